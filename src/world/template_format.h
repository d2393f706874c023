#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/generation.h"

namespace qf::world {

/// The kinds of a template's tile lines.
enum class TemplateKind {
    Area = 0,   ///< "TILEW" id x1 x2 y1 y2 z
    AlongX = 1, ///< "XLINE" id x1 x2 y z
    AlongY = 2, ///< "YLINE" id x y1 y2 z
    Single = 3, ///< id x y z
};

/// The two written forms of a tile's id in a template; the numbers are those of the flag that tells them apart.
enum class TemplateIdForm {
    OneWord = 0,  ///< "0x1b4d"
    TwoWords = 1, ///< "1b 4d"
};

/// The fields of a tile line: the id as text and the offsets from the build point.
struct TemplateTile {
    /// The blank that stood behind the id stays, unless the newer generation rewrote the id as one word.
    std::string id;

    std::int32_t x1 = 0;
    std::int32_t x2 = 0;
    std::int32_t y1 = 0;
    std::int32_t y2 = 0;
    std::int32_t z = 0;

    friend bool operator==(const TemplateTile&, const TemplateTile&) = default;
};

/// The place that a template's offsets count from.
struct BuildPoint {
    std::int32_t x = 0;
    std::int32_t y = 0;
    std::int32_t z = 0;
};

/// The fields of a tile line. A line along Y with a one-word id is read at the places of the two-word form, so
/// its height is always missing.
/// Throws RuntimeError 13 or 6 where a field that must be a number is none.
TemplateTile ParseTemplateLine(std::string_view line, TemplateKind kind, TemplateIdForm idForm,
                               core::ServerGeneration generation);

/// The command that lays a tile line at the build point: whatever its kind, an area of five numbers. A generation
/// that is neither gives the last two numbers alone, each behind a blank.
/// Throws RuntimeError 13 as ParseTemplateLine does, and 6 where a place does not fit 32 bits.
std::string FormatTemplateLine(std::string_view line, TemplateIdForm idForm, const BuildPoint& point, TemplateKind kind,
                               core::ServerGeneration generation);

} // namespace qf::world
