#pragma once

#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPoint>
#include <QPushButton>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "ui/app_context.h"
#include "ui/position_row.h"

namespace qf::ui {

/// A window of the program. It carries what all panels share: load and unload, the stay-on-top rule, the
/// return to the main panel, the boundary at which a handler's run-time error is caught.
///
/// A handler is attached with one of the `On...` functions, never with a bare connection, so that it runs
/// inside that boundary and can also be run by name.
class Panel : public QWidget {
  public:
    Panel(AppContext& context, std::string_view name);
    ~Panel() override;

    std::string_view Name() const { return name_; }

    /// The load handler; runs once, before the panel is shown for the first time.
    virtual void Load() {}

    /// The unload handler; runs once, before the panel is destroyed.
    virtual void Unload() {}

    /// Whether the window frame's Close entry is there.
    virtual bool HasCloseEntry() const { return true; }

    /// Puts the panel above the windows of other programs (true) or among them, keeping size and place.
    void SetStayOnTop(bool onTop);
    bool IsTopmost() const { return topmost_; }

    /// Left and top of the window's frame in twips (15 a pixel), and setting them.
    int  LeftTwips() const;
    int  TopTwips() const;
    void MoveToTwips(int left, int top);

    /// Puts the upper left corner of the window's frame to this place, in pixels, now or when the panel is shown.
    void PlaceFrame(const QPoint& corner);

    /// A panel that was hidden comes back where it stood.
    void setVisible(bool visible) override;

    /// Runs the click handler of a control as a user's click would, whatever state the control is in.
    /// False where the control has none.
    bool InvokeClick(QWidget& control);
    bool HandlesClick(const QWidget& control) const { return click_.contains(&control); }
    bool InvokeDoubleClick(QWidget& control);
    bool InvokePress(QWidget& control);

    /// What runs once when a modal panel is left.
    void SetAfterModal(std::function<void()> afterwards) { afterModal_ = std::move(afterwards); }
    void RunAfterModal();

  protected:
    AppContext&   Context() { return context_; }
    core::Outlet& Outlet() { return context_.Outlet(); }

    /// Puts the panel on top where "Stay On Top" is ticked.
    void ApplyStayOnTopRule();

    /// Shows the main panel. One that is minimised stays so: the console, which minimises it, restores it itself.
    void ReturnToMainPanel();

    void OnClick(QWidget& control, std::function<void()> handler);
    void OnDoubleClick(QWidget& control, std::function<void()> handler);
    void OnPress(QWidget& control, std::function<void()> handler);

    /// Runs at every change of the box's text, by the user or by code.
    void OnChange(QLineEdit& box, std::function<void()> handler);

    /// Runs at every change of the box between clear, ticked and grey, by the user or by code.
    void OnCheck(QCheckBox& box, std::function<void()> handler);

    /// Runs whenever the control gets the keyboard focus, and when it loses it.
    void OnFocus(QWidget& control, std::function<void()> handler);
    void OnBlur(QWidget& control, std::function<void()> handler);

    /// Runs when the user picks a row of a drop-down list, also the one that is shown already.
    void OnChoose(QComboBox& list, std::function<void()> handler);

    /// Selects a row for the user, which runs the same handler.
    void Choose(QComboBox& list, int row);

    /// Runs when a cell of a grid is clicked; the cell is the current one then.
    void OnCell(QAbstractItemView& grid, std::function<void()> handler);

    /// Runs at every change of a bar's value, by the user or by code.
    void OnScroll(QAbstractSlider& bar, std::function<void()> handler);

    /// Runs when a menu entry is chosen; a checkable one has its new state then.
    void OnMenu(QAction& entry, std::function<void()> handler);

    /// Runs at each tick.
    void OnTick(QTimer& timer, std::function<void()> handler);

    /// Makes a button the one that Enter presses where the focus is on no other one, and where the focus is first.
    void SetDefault(QPushButton& button);

    /// The button that leaves the panel, which is unloaded.
    QPushButton* MakeExit(QWidget* parent, std::string_view name, std::string_view toolTip = "Closes this panel",
                          std::string_view caption = "Exit");

    /// Makes a control fill boxes from the player's place; the controls named by the row are there already.
    void AddPositionControl(const PositionRow& row);

    void Guard(const std::function<void()>& handler);

    /// The text box of this name.
    QLineEdit& Box(std::string_view name) const;

    /// Enter presses the button that has the focus, as Space does.
    void keyPressEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    bool eventFilter(QObject* object, QEvent* event) override;

  private:
    using Handlers = std::map<const QWidget*, std::function<void()>>;

    bool Invoke(const Handlers& handlers, QWidget& control);

    AppContext&           context_;
    std::string           name_;
    bool                  topmost_ = false;
    std::optional<QPoint> place_;
    Handlers              click_;
    Handlers              doubleClick_;
    Handlers              press_;
    Handlers              focus_;
    Handlers              blur_;
    Handlers              choose_;
    std::function<void()> afterModal_;

    QPushButton* defaultButton_ = nullptr;

    /// The control whose double click is not released yet.
    QWidget* doubleClicked_ = nullptr;
};

} // namespace qf::ui
