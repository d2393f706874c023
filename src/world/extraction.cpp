#include "world/extraction.h"

#include <algorithm>
#include <optional>
#include <unordered_map>
#include <utility>
#include <vector>

#include "core/number_rules.h"
#include "core/runtime_error.h"
#include "world/cover.h"
#include "world/database.h"
#include "world/item_types.h"
#include "world/template_writer.h"

namespace qf::world {

namespace {

using core::ToText;

/// The file with its head, nothing where the user has to name the building first.
std::optional<TemplateWriter> BeginTemplate(const ExtractionState& state, std::string_view programFolder,
                                            core::Outlet& outlet)
{
    if (state.txtName.empty()) {
        outlet.Show(core::UntitledInformationBox("You must supply a name for this building"));
        return std::nullopt;
    }
    TemplateWriter file(programFolder, state.txtName);
    file.WriteLine(":" + state.txtName);
    if (!state.txtDescription.empty()) {
        file.WriteLine("DESC " + state.txtDescription);
    }
    return file;
}

ExtractionArea CornersOf(const ExtractionState& state)
{
    return {.x1 = core::ToInteger32(state.txtX),
            .y1 = core::ToInteger32(state.txtY),
            .z1 = core::ToInteger32(state.txtZ),
            .x2 = core::ToInteger32(state.txtX2),
            .y2 = core::ToInteger32(state.txtY2),
            .z2 = core::ToInteger32(state.txtZ2)};
}

ExtractionArea AreaOf(const ExtractionState& state)
{
    auto area = CornersOf(state);
    area.world = core::ToInteger32(state.txtWorld);
    area.instance = core::ToInteger32(state.txtInstance);
    return area;
}

std::string Bounds(const ExtractionArea& area)
{
    return "X >= " + ToText(area.x1) + " AND X <= " + ToText(area.x2) + " AND Y >= " + ToText(area.y1) +
           " AND Y <= " + ToText(area.y2) + " AND Z >= " + ToText(area.z1) + " AND Z <= " + ToText(area.z2);
}

/// The cells of one tile number at one height.
struct Layer {
    std::int32_t      id;
    std::int32_t      z;
    std::vector<Cell> cells;
};

/// What the area holds, layers in the order in which they were first seen, and its smallest coordinates.
class Building {
  public:
    void Add(std::int32_t id, const Cell& cell, std::int32_t z)
    {
        const auto key = std::uint64_t{static_cast<std::uint32_t>(id)} << 32U | static_cast<std::uint32_t>(z);
        const auto [place, isNew] = places_.try_emplace(key, layers.size());
        if (isNew) {
            layers.push_back({.id = id, .z = z, .cells = {}});
        }
        layers[place->second].cells.push_back(cell);

        minX = any_ ? std::min(minX, cell.x) : cell.x;
        minY = any_ ? std::min(minY, cell.y) : cell.y;
        minZ = any_ ? std::min(minZ, z) : z;
        any_ = true;
    }

    std::vector<Layer> layers;
    std::int32_t       minX = 0;
    std::int32_t       minY = 0;
    std::int32_t       minZ = 0;

  private:
    std::unordered_map<std::uint64_t, std::size_t> places_;
    bool                                           any_ = false;
};

Building ReadBuilding(const ExtractionArea& area, Database& database)
{
    Building building;
    database.ForEachRow(OptimizedQuery(area), [&](std::span<const std::string_view> row) {
        building.Add(core::ToInteger32(row[0]), {.y = core::ToInteger32(row[2]), .x = core::ToInteger32(row[1])},
                     core::ToInteger32(row[3]));
    });
    return building;
}

/// A template line: the words parted by single blanks, the numbers relative to an origin.
class LineText {
  public:
    explicit LineText(std::string start) : text_(std::move(start)) {}

    LineText& Add(std::int32_t number, std::int32_t origin)
    {
        text_ += ' ';
        text_ += ToText(core::Subtract32(number, origin));
        return *this;
    }

    const std::string& Text() const { return text_; }

  private:
    std::string text_;
};

void WriteLayer(Layer& layer, const Building& building, TemplateWriter& file)
{
    const auto head = "TILEW " + GetHexIDFromNum(layer.id);
    for (const auto& rectangle : CoverCells(std::move(layer.cells))) {
        file.WriteLine(LineText(head)
                           .Add(rectangle.x1, building.minX)
                           .Add(rectangle.x2, building.minX)
                           .Add(rectangle.y1, building.minY)
                           .Add(rectangle.y2, building.minY)
                           .Add(layer.z, building.minZ)
                           .Text());
    }
}

} // namespace

std::string OptimizedQuery(const ExtractionArea& area)
{
    return "SELECT DISTINCT ID, X, Y, Z FROM tblItem WHERE " + Bounds(area) +
           " AND WorldNumber = " + ToText(area.world) + " AND InstanceID = " + ToText(area.instance) +
           " ORDER BY Z, Y, X";
}

bool ExtractItems(const ExtractionState& state, Database& database, core::Outlet& outlet,
                  const std::function<void()>& fillGrid)
{
    try {
        const auto rows = database.Query("SELECT COUNT(*) FROM tblItem");
        const auto count = rows.empty() ? std::string("0") : rows.front().front();
        outlet.Show({.text = "Database Check: Found a total of " + count + " items loaded in the database.",
                     .style = core::MessageStyle::Information,
                     .title = "Debug Info"});
        CornersOf(state);
        fillGrid();
        return true;
    } catch (const core::RuntimeError& error) {
        outlet.Show(core::PlainBox(error.Number() == core::error::TypeMismatch
                                       ? "Please fill in a valid set of coordinates!"
                                       : error.Description()));
        return false;
    }
}

void WriteOptimizedTemplate(const ExtractionState& state, std::string_view programFolder, Database& database,
                            core::Outlet& outlet)
{
    auto file = BeginTemplate(state, programFolder, outlet);
    if (!file) {
        return;
    }
    auto building = ReadBuilding(AreaOf(state), database);
    for (auto& layer : building.layers) {
        WriteLayer(layer, building, *file);
    }
    file->Close();
    outlet.Show(core::UntitledInformationBox("Optimized template '" + file->Path() + "' created successfully!"));
}

void WritePlainTemplate(const ExtractionState& state, std::string_view programFolder, Database& database,
                        core::Outlet& outlet)
{
    auto file = BeginTemplate(state, programFolder, outlet);
    if (!file) {
        return;
    }
    const auto area = CornersOf(state);
    database.ForEachRow("SELECT ID, X, Y, Z FROM tblItem WHERE " + Bounds(area),
                        [&](std::span<const std::string_view> row) {
                            file->WriteLine(LineText(GetHexIDFromNum(core::ToInteger32(row[0])))
                                                .Add(core::ToInteger32(row[1]), area.x1)
                                                .Add(core::ToInteger32(row[2]), area.y1)
                                                .Add(core::ToInteger32(row[3]), area.z1)
                                                .Text());
                        });
    file->Close();
}

void ShowExtractionHelp(core::Outlet& outlet)
{
    outlet.Show(core::PlainBox("Look in the file Quernfield Readme.txt that comes with Quernfield for closer "
                               "information on how to make templates using this tool."));
}

} // namespace qf::world
