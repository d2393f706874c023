#include "ui/panels.h"

#include <QCoreApplication>
#include <QWindow>
#include <algorithm>
#include <utility>

#include "core/runtime_error.h"
#include "ui/keyboard.h"
#include "ui/panel.h"
#include "ui/spoken.h"

namespace qf::ui {

Panels::Panels(AppContext& context, std::span<const PanelEntry> list) : context_(context), list_(list)
{
    InstallSpokenRoles();
}

Panels::~Panels()
{
    while (!loaded_.empty()) {
        loaded_.pop_back();
    }
    // Panels that were unloaded within one of their own handlers still wait to be deleted; their timers must not
    // outlive what they work on.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

bool Panels::Has(std::string_view name) const
{
    return std::ranges::find(list_, name, &PanelEntry::name) != list_.end();
}

Panel* Panels::Loaded(std::string_view name) const
{
    const auto found = std::ranges::find_if(loaded_, [&](const auto& panel) { return panel->Name() == name; });
    return found == loaded_.end() ? nullptr : found->get();
}

Panel& Panels::Touch(std::string_view name)
{
    if (auto* panel = Loaded(name)) {
        return *panel;
    }
    const auto entry = std::ranges::find(list_, name, &PanelEntry::name);
    if (entry == list_.end()) {
        throw core::RuntimeError(core::error::InvalidCall);
    }
    loaded_.push_back(entry->make(context_));
    auto& panel = *loaded_.back();
    panel.Load();
    SetReadingOrder(panel);
    NameForScreenReaders(panel);
    return panel;
}

Panel& Panels::Show(std::string_view name)
{
    auto& panel = Touch(name);
    if (panel.isMinimized()) {
        panel.showNormal();
    } else {
        panel.show();
    }
    panel.raise();
    panel.activateWindow();
    return panel;
}

Panel& Panels::ShowModal(std::string_view name, std::function<void()> afterwards)
{
    auto& panel = Touch(name);
    if (panel.isVisible() && !panel.isModal()) {
        panel.hide();
    }
    panel.SetAfterModal(std::move(afterwards));
    panel.setWindowModality(Qt::ApplicationModal);
    if (auto* owner = Loaded("frmMain"); owner != nullptr && owner != &panel) {
        // The owner's window stays below, also where it is one that stays on top of others.
        owner->winId();
        panel.winId();
        panel.windowHandle()->setTransientParent(owner->windowHandle());
    }
    return Show(name);
}

void Panels::Unload(Panel& panel)
{
    const auto isPanel = [&](const auto& held) { return held.get() == &panel; };
    if (std::ranges::find(unloading_, &panel) != unloading_.end() || std::ranges::none_of(loaded_, isPanel)) {
        return;
    }
    unloading_.push_back(&panel);
    panel.Unload();

    const auto found = std::ranges::find_if(loaded_, isPanel);
    if (found != loaded_.end()) {
        // The handler that unloads a panel is often one of the panel's own: the window outlives it.
        auto* released = found->release();
        loaded_.erase(found);
        released->hide();
        released->deleteLater();
    }
    std::erase(unloading_, &panel);
}

std::vector<Panel*> Panels::LoadOrder() const
{
    std::vector<Panel*> order;
    order.reserve(loaded_.size());
    std::ranges::transform(loaded_, std::back_inserter(order), [](const auto& panel) { return panel.get(); });
    return order;
}

} // namespace qf::ui
