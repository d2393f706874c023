#pragma once

#include <string_view>

#include "core/generation.h"
#include "core/outlet.h"
#include "world/database.h"

namespace qf::world {

/// Empties both tables and fills them from the world files that lie beside the server. `serverProgram` is the full
/// program path of the server's executable. True where a world was loaded: not for a generation without a reader,
/// and not where a file of the older layout is missing.
///
/// Throws RuntimeError for a value that cannot be read, 75 for a file that cannot be opened or read, and the store's
/// error for a statement that it refuses; the tables then hold what was written before.
bool LoadWorld(Database& database, core::Outlet& outlet, core::ServerGeneration generation,
               std::string_view serverProgram);

} // namespace qf::world
