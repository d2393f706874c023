#pragma once

#include <string_view>

#include "core/message.h"

namespace qf::core {

/// Where the effects of a handler go, in the order in which they happen.
///
/// Some runs have no end of their own, so a composition never gathers its commands: it sends them one
/// by one, and whoever listens may stop it by throwing.
class Outlet {
  public:
    virtual ~Outlet() = default;

    /// Types one command into the client, with the command prefix in front unless `usePrefix` is false.
    virtual void Send(std::string_view command, bool usePrefix = true) = 0;

    /// Shows a message box and returns when it is closed.
    virtual void Show(const Message& message) = 0;

    /// Asks a question; true means Yes.
    virtual bool Ask(const Message& message) = 0;
};

} // namespace qf::core
