#pragma once

#include <QObject>

namespace qf::scenario {

/// Runs what waits in the event loop until it is idle. No timer with an interval is waited for.
void RunUntilIdle();

/// Keeps the named timers of the panels from firing by themselves: they fire when a scenario says so.
class TimerStop final : public QObject {
  public:
    TimerStop();

  protected:
    bool eventFilter(QObject* object, QEvent* event) override;
};

} // namespace qf::scenario
