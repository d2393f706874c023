#pragma once

#include <string>

namespace qf::ui {

/// The five texts that carry a marked box from panel to panel: copied as they stand when a construction
/// panel loads, and written back when it closes.
struct SharedArea {
    std::string txtX1Main;
    std::string txtY1Main;
    std::string txtX2Main;
    std::string txtY2Main;
    std::string txtZMain;
};

} // namespace qf::ui
