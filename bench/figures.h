#pragma once

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>

namespace qf::bench {

/// Adds a row to the table of a run, the file that QF_BENCH_TABLE names; does nothing where it names none.
inline void AddFigure(const std::string& figure, const std::string& measured, const std::string& limit,
                      const std::string& verdict = {})
{
    if (const char* table = std::getenv("QF_BENCH_TABLE")) {
        std::ofstream(table, std::ios::app)
            << "| " << figure << " | " << measured << " | " << limit << " | " << verdict << " |\n";
    }
}

inline std::string Verdict(bool kept)
{
    return kept ? "kept" : "**not kept**";
}

/// A number with as many digits as a reader compares by.
inline std::string Figure(double number)
{
    char text[32];
    std::snprintf(text, sizeof text, number < 9.995 ? "%.2f" : number < 99.95 ? "%.1f" : "%.0f", number);
    return text;
}

/// Whether a figure is at most its limit; a row of the table. A figure that is no number is over any limit.
inline bool AtMost(const std::string& figure, double measured, double limit, const std::string& unit = {})
{
    const bool kept = measured <= limit;
    char       text[32];
    std::snprintf(text, sizeof text, "at most %g", limit);
    AddFigure(figure, Figure(measured) + unit, text + unit, Verdict(kept));
    return kept;
}

/// Whether a figure is at least its limit; a row of the table.
inline bool AtLeast(const std::string& figure, double measured, double limit, const std::string& unit = {})
{
    const bool kept = measured >= limit;
    char       text[32];
    std::snprintf(text, sizeof text, "at least %g", limit);
    AddFigure(figure, Figure(measured) + unit, text + unit, Verdict(kept));
    return kept;
}

} // namespace qf::bench
