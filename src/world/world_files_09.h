#pragma once

#include <string_view>

#include "core/outlet.h"
#include "world/text_lines.h"
#include "world/world_records.h"

namespace qf::world {

/// Reads one file of the newer layout: sections of items and characters, a key and its value on each line.
/// A record whose serial is 0 is left out.
/// Throws RuntimeError 13 or 6 for a value that is no number or does not fit, 9 for a Location of less than four
/// members, 75 where the bytes cannot be read.
void ReadSections(TextLines& lines, RecordSink& sink);

/// Reads every map region's file below the server's folder (a program path with its "\"), 51 by 51 names, and
/// tells how many there were.
/// Throws RuntimeError as ReadSections does, and 75 for a file that cannot be opened.
void LoadWorldFiles09(std::string_view folder, RecordSink& sink, core::Outlet& outlet);

} // namespace qf::world
