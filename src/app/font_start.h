#pragma once

#include <thread>

namespace qf::app {

/// Reads the system's font configuration beside the connection to the display, which takes as long. Nothing happens
/// where the system keeps its fonts ready itself.
class FontStart {
  public:
    FontStart();

  private:
    std::jthread reading_;
};

} // namespace qf::app
