#pragma once

#include <functional>
#include <string_view>

#include "core/outlet.h"

namespace qf::client {

/// Makes the folder the working one and starts the program, both in the program's form of a path. Throws
/// RuntimeError where the folder or the program is not there or the start fails.
using ProgramStart = std::function<void(std::string_view program, std::string_view folder)>;

/// Starts the server, whose full path this is, in its own folder. One box tells of any failure.
void StartZarn(std::string_view path, const ProgramStart& start, core::Outlet& outlet);

/// Starts the item tool in this folder. One box tells of any failure.
void StartInsideUO(std::string_view folder, const ProgramStart& start, core::Outlet& outlet);

/// Tells that the game client cannot be started: the start depends on a component that patches the client's
/// encryption, and there is none.
void StartUO(core::Outlet& outlet);

} // namespace qf::client
