#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "core/outlet.h"

namespace qf::world {

class Database;

/// The boxes of the extraction panel, as texts.
struct ExtractionState {
    std::string txtX;
    std::string txtY;
    std::string txtZ;
    std::string txtX2;
    std::string txtY2;
    std::string txtZ2;
    std::string txtWorld;
    std::string txtInstance;
    std::string txtName;
    std::string txtDescription;
};

/// The part of the world that a template is made of: two corners, both inclusive, in one instance of one world.
struct ExtractionArea {
    std::int32_t x1 = 0;
    std::int32_t y1 = 0;
    std::int32_t z1 = 0;
    std::int32_t x2 = 0;
    std::int32_t y2 = 0;
    std::int32_t z2 = 0;
    std::int32_t world = 0;
    std::int32_t instance = 0;
};

/// The query of the optimised writer: ID, X, Y, Z of each different item, the lowest first.
std::string OptimizedQuery(const ExtractionArea& area);

/// The "Extract Items from Coordinates" button: tells how many items are loaded, checks that the corners are
/// numbers and has the grid filled with every item there is, whatever the corners. Its errors are told in boxes.
/// True where the grid was filled to the end.
bool ExtractItems(const ExtractionState& state, Database& database, core::Outlet& outlet,
                  const std::function<void()>& fillGrid);

/// The "Build House Template" button: writes `Templates\NAME.tmp` below the program's folder, as few filled
/// rectangles as a greedy walk finds. A number behind the name keeps it from overwriting anything.
///
/// Throws RuntimeError 76 without the folder, 52 for a name that no file can have, 75 for a file that cannot be
/// written; 13 or 6 for boxes that are no numbers, and the database's own, with the file holding its head alone.
void WriteOptimizedTemplate(const ExtractionState& state, std::string_view programFolder, Database& database,
                            core::Outlet& outlet);

/// The same with one line for each item of the six bounds in any world, relative to the first corner and in the
/// order of the database. Tells nothing at its end.
void WritePlainTemplate(const ExtractionState& state, std::string_view programFolder, Database& database,
                        core::Outlet& outlet);

/// The "HELP!" button.
void ShowExtractionHelp(core::Outlet& outlet);

} // namespace qf::world
