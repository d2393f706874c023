#include "app/about_motion.h"

namespace qf::app {

namespace {

void AdvanceAxis(int& place, int& step, int inner, int outer)
{
    place += step;
    if (place + inner >= outer) {
        step = -AboutMotion::BouncedStep;
    } else if (place <= 0) {
        step = AboutMotion::BouncedStep;
    }
}

} // namespace

void AboutMotion::Advance(int innerWidth, int innerHeight, int outerWidth, int outerHeight)
{
    AdvanceAxis(left, stepX, innerWidth, outerWidth);
    AdvanceAxis(top, stepY, innerHeight, outerHeight);
}

} // namespace qf::app
