#pragma once

namespace qf::app {

/// The picture that wanders about the About panel and bounces off the edges. All lengths in twips.
struct AboutMotion {
    static constexpr int FirstStep = 100;
    static constexpr int BouncedStep = 75;

    int left = 0;
    int top = 0;
    int stepX = FirstStep;
    int stepY = FirstStep;

    /// One tick: moves by both steps; at an edge of the surrounding picture the step of that axis becomes
    /// the shorter one, pointing inward.
    void Advance(int innerWidth, int innerHeight, int outerWidth, int outerHeight);
};

} // namespace qf::app
