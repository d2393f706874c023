#pragma once

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QTabWidget>
#include <array>
#include <memory>
#include <vector>

#include "construction/chain.h"
#include "items/items.h"
#include "ui/option_array.h"
#include "ui/panel.h"
#include "ui/picture_surface.h"

namespace qf::items {

/// Adds single items: a group on a tab, an item, a facing.
class frmItems final : public ui::Panel {
  public:
    explicit frmItems(ui::AppContext& context);

    void Load() override;
    void Unload() override;

  private:
    /// Options that lie together, of which one is set at a time.
    using Group = std::unique_ptr<ui::OptionArray>;

    void       MakeTabs();
    QWidget*   MakePage(int tab);
    QWidget*   MakeSignsPage();
    void       AddOptions(QGridLayout& layout, QWidget* parent, int tab, int first, int count);
    void       AddCommands(QHBoxLayout& row, QWidget* parent, int tab);
    QGroupBox* MakePreviewFrame();
    QGroupBox* MakeDirectionFrame();
    QLayout*   MakeOpenDirectionFrames();
    QLayout*   MakeAddRow();
    QLayout*   MakeBottomRow();

    /// A button that opens another panel; disabled where the program has none of that name.
    QPushButton* MakeOpener(QWidget* parent, std::string_view name, std::string_view caption, const char* panel,
                            std::string_view toolTip);

    /// A button that gives a neighbour this panel's place and shows it.
    QPushButton* MakeStep(const construction::ChainStep& step);

    /// Runs the handler when an option becomes the set one, and at a click on one that is set already.
    void OnOption(ui::OptionArray& group, std::function<void(ItemsState&, int index)> handler);

    ItemsState State() const;
    void       Show(const ItemsState& state);

    /// Runs a step on the fields as they are shown and shows what it makes of them.
    void Step(const std::function<void(ItemsState&)>& step);

    ItemsDesk Desk();
    QWidget&  Control(std::string_view name) const;

    core::ServerGeneration tableForm_;
    int                    tab_ = Chairs;
    bool                   showing_ = false;

    /// The option that the click under way has just set.
    const QAbstractButton* justSet_ = nullptr;

    QTabWidget*         tabItems = nullptr;
    QCheckBox*          repeatCheck = nullptr;
    ui::PictureSurface* pctMain = nullptr;

    std::array<std::vector<Group>, TabCount> options_;
    std::array<ui::OptionArray, 3>           optDirection;
};

} // namespace qf::items
