#pragma once

#include <functional>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

namespace qf::ui {

class AppContext;
class Panel;

/// A panel of the program: its name and how it is made.
struct PanelEntry {
    std::string_view name;
    std::unique_ptr<Panel> (*make)(AppContext& context);
};

/// The loaded panels: at most one instance of each, loaded on first touch, remembered in load order.
class Panels {
  public:
    Panels(AppContext& context, std::span<const PanelEntry> list);
    ~Panels();

    /// Whether the program has such a panel.
    bool Has(std::string_view name) const;

    /// The panel, loaded invisibly where it is not loaded yet. The program must have it.
    Panel& Touch(std::string_view name);

    /// The panel where it is loaded, otherwise null.
    Panel* Loaded(std::string_view name) const;

    /// Shows a panel beside the others, loading it first where it is not loaded.
    Panel& Show(std::string_view name);

    /// Shows a panel that keeps the user's input to itself until it is hidden or unloaded; `afterwards`
    /// runs then.
    Panel& ShowModal(std::string_view name, std::function<void()> afterwards = {});

    /// Unloads a panel: its unload handler runs, then it is gone and the next touch loads it anew.
    void Unload(Panel& panel);

    /// The loaded panels in the order in which they were loaded.
    std::vector<Panel*> LoadOrder() const;

  private:
    AppContext&                         context_;
    std::span<const PanelEntry>         list_;
    std::vector<std::unique_ptr<Panel>> loaded_;
    std::vector<Panel*>                 unloading_;
};

} // namespace qf::ui
