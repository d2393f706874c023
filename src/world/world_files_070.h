#pragma once

#include <string_view>

#include "core/outlet.h"
#include "world/text_lines.h"
#include "world/world_records.h"

namespace qf::world {

// The two files of the older layout: blocks between "{" and "}", each line a key and its value. What a block does
// not tell keeps the value of the block before. Each statistic from 65536 up is told in a box and becomes 30000.
//
// They throw RuntimeError 13 or 6 for a value that is no number or does not fit, 75 for a file that cannot be opened
// or read.

/// Reads items.wsc. Gives the number of statistics that were told.
int ReadItemBlocks(TextLines& lines, RecordSink& sink, core::Outlet& outlet);

/// Reads chars.wsc. Gives the number of statistics that were told.
int ReadCharacterBlocks(TextLines& lines, RecordSink& sink, core::Outlet& outlet);

/// Reads both files from the server's folder (a program path with its "\"). Where one is missing it says so, reads
/// nothing and gives false.
bool LoadWorldFiles070(std::string_view folder, RecordSink& sink, core::Outlet& outlet);

} // namespace qf::world
