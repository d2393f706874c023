#include "world/template_format.h"

#include <algorithm>
#include <array>

#include "core/number_rules.h"
#include "core/text.h"

namespace qf::world {

namespace {

/// Where the fields of a line stand, in words counted from 0. The id takes the words from `id` up to `x1`.
struct Places {
    int id;
    int x1;
    int x2;
    int y1;
    int y2;
    int z;
};

using PlacesByKind = std::array<Places, 4>;

// clang-format off
constexpr PlacesByKind twoWordPlaces{{
    // id x1 x2 y1 y2 z
    {1, 3, 4, 5, 6, 7},
    {1, 3, 4, 5, 5, 6},
    {1, 3, 3, 4, 5, 6},
    {0, 2, 2, 3, 3, 4},
}};

constexpr PlacesByKind oneWordPlaces{{
    // id x1 x2 y1 y2 z
    {1, 2, 3, 4, 5, 6},
    {1, 2, 3, 4, 4, 5},
    {1, 3, 3, 4, 5, 6}, // the places of the two-word form
    {0, 1, 1, 2, 2, 3},
}};
// clang-format on

std::int32_t NumberAt(std::string_view line, int word)
{
    return core::ToInteger32(core::WordRange(line, word, word + 1));
}

void AppendSum(std::string& command, std::int32_t base, std::int32_t offset)
{
    command += ' ';
    command += core::ToText(core::Add32(base, offset));
}

} // namespace

TemplateTile ParseTemplateLine(std::string_view line, TemplateKind kind, TemplateIdForm idForm,
                               core::ServerGeneration generation)
{
    const bool  twoWords = idForm == TemplateIdForm::TwoWords;
    const auto& places = (twoWords ? twoWordPlaces : oneWordPlaces)[static_cast<std::size_t>(kind)];

    TemplateTile tile;
    tile.id = core::WordRange(line, places.id, places.x1);
    tile.x1 = NumberAt(line, places.x1);
    tile.x2 = places.x2 == places.x1 ? tile.x1 : NumberAt(line, places.x2);
    tile.y1 = NumberAt(line, places.y1);
    tile.y2 = places.y2 == places.y1 ? tile.y1 : NumberAt(line, places.y2);
    tile.z = NumberAt(line, places.z);
    if (twoWords && generation.Is09()) {
        std::erase(tile.id, ' ');
        tile.id.insert(0, "0x");
    }
    return tile;
}

std::string FormatTemplateLine(std::string_view line, TemplateIdForm idForm, const BuildPoint& point, TemplateKind kind,
                               core::ServerGeneration generation)
{
    const auto  tile = ParseTemplateLine(line, kind, idForm, generation);
    std::string command;
    if (generation.Is070() || generation.Is09()) {
        command = generation.Is070() ? "tilew " : "tile ";
        command += tile.id;
        AppendSum(command, point.x, tile.x1);
        AppendSum(command, point.x, tile.x2);
        AppendSum(command, point.y, tile.y1);
    }
    AppendSum(command, point.y, tile.y2);
    AppendSum(command, point.z, tile.z);
    return command;
}

} // namespace qf::world
