#pragma once

#include <QGroupBox>
#include <QLayout>
#include <functional>
#include <vector>

#include "console/console_page.h"
#include "console/pick_list.h"
#include "console/travel.h"

namespace qf::console {

/// The tab that takes the Game Master, or a target, to a place picked by name or typed.
class TravelPage final : public ConsolePage {
  public:
    TravelPage(ConsoleHost& host, QWidget* parent);

  private:
    QGroupBox* MakePlaceFrame();
    QGroupBox* MakeCommandFrame();
    QLayout*   MakeLists(QWidget* parent);
    QLayout*   MakeCoordinates(QWidget* parent);

    TravelState State() const;
    void        Show(const TravelState& state);

    /// Runs a step on the fields as they are shown and shows what it makes of them.
    void Step(const std::function<void(TravelState&)>& step);

    std::vector<PickList*> lists_;
};

} // namespace qf::console
