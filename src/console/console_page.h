#pragma once

#include <QComboBox>
#include <QWidget>
#include <functional>

#include "ui/app_context.h"

namespace qf::console {

/// What the console gives to a tab that is a unit of its own. A handler is attached here and never with a bare
/// connection, so that it runs inside the panel's boundary and can also be run by name.
class ConsoleHost {
  public:
    virtual ~ConsoleHost() = default;

    virtual ui::AppContext& Context() = 0;

    /// Where the handlers' effects go.
    virtual core::Outlet& Outlet() = 0;

    virtual void OnClick(QWidget& control, std::function<void()> handler) = 0;

    /// Runs whenever the control gets the keyboard focus.
    virtual void OnFocus(QWidget& control, std::function<void()> handler) = 0;

    /// Runs when the user picks a row of a drop-down list, also the one that is shown already.
    virtual void OnChoose(QComboBox& list, std::function<void()> handler) = 0;

    /// Runs a handler inside the panel's boundary, for what has no function of its own here.
    virtual void Guard(const std::function<void()>& handler) = 0;
};

/// A tab of the console that is a unit of its own: `TravelPage` in travel_page.h and `SpawnPage` in spawn_page.h, each
/// made with the host and the widget it lies on. The host outlives the page.
class ConsolePage : public QWidget {
  public:
    ConsolePage(ConsoleHost& host, QWidget* parent) : QWidget(parent), host_(host) {}

  protected:
    ConsoleHost& Host() { return host_; }

  private:
    ConsoleHost& host_;
};

} // namespace qf::console
