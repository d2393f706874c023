#include "ui/panel.h"

#include <QAbstractButton>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QWindow>
#include <utility>

#include "core/number_rules.h"
#include "core/twips.h"
#include "ui/close_entry.h"
#include "ui/keyboard.h"
#include "ui/parts.h"

namespace qf::ui {

namespace {

int ToPixels(int twips)
{
    return qRound(static_cast<double>(twips) / core::TwipsPerPixel);
}

bool TakesClickFocus(const QWidget& control)
{
    return (control.focusPolicy() & Qt::ClickFocus) != 0;
}

bool TakesKeysOfButton(const QWidget& control)
{
    const auto* box = qobject_cast<const QLineEdit*>(&control);
    return qobject_cast<const QLabel*>(&control) != nullptr || (box != nullptr && box->isReadOnly());
}

} // namespace

Panel::Panel(AppContext& context, std::string_view name) : context_(context), name_(name)
{
    setObjectName(QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())));
}

Panel::~Panel() = default;

void Panel::SetStayOnTop(bool onTop)
{
    if (topmost_ == onTop) {
        return;
    }
    topmost_ = onTop;
    const bool wasShown = isVisible();
    setWindowFlag(Qt::WindowStaysOnTopHint, onTop);
    if (wasShown) {
        show();
    }
}

int Panel::LeftTwips() const
{
    return pos().x() * core::TwipsPerPixel;
}

int Panel::TopTwips() const
{
    return pos().y() * core::TwipsPerPixel;
}

void Panel::MoveToTwips(int left, int top)
{
    PlaceFrame({ToPixels(left), ToPixels(top)});
}

void Panel::PlaceFrame(const QPoint& corner)
{
    place_ = corner;
    move(corner);
}

void Panel::setVisible(bool visible)
{
    if (visible && !isVisible() && place_ && isWindow()) {
        winId();
        windowHandle()->installEventFilter(this);
    }
    QWidget::setVisible(visible);
}

bool Panel::Invoke(const Handlers& handlers, QWidget& control)
{
    const auto found = handlers.find(&control);
    if (found == handlers.end()) {
        return false;
    }
    // A copy, since the handler may unload this panel.
    const auto handler = found->second;
    Guard(handler);
    return true;
}

bool Panel::InvokeClick(QWidget& control)
{
    return Invoke(click_, control);
}

bool Panel::InvokeDoubleClick(QWidget& control)
{
    return Invoke(doubleClick_, control);
}

bool Panel::InvokePress(QWidget& control)
{
    return Invoke(press_, control);
}

void Panel::RunAfterModal()
{
    if (auto afterwards = std::exchange(afterModal_, {})) {
        Guard(afterwards);
    }
}

void Panel::ApplyStayOnTopRule()
{
    if (context_.StayOnTopWanted()) {
        SetStayOnTop(true);
    }
}

void Panel::ReturnToMainPanel()
{
    if (context_.panels.Has("frmMain") && !context_.panels.Touch("frmMain").isMinimized()) {
        context_.panels.Show("frmMain");
    }
}

void Panel::OnClick(QWidget& control, std::function<void()> handler)
{
    click_[&control] = std::move(handler);
    if (auto* button = qobject_cast<QAbstractButton*>(&control)) {
        connect(button, &QAbstractButton::clicked, this, [this, button] { InvokeClick(*button); });
    } else {
        control.installEventFilter(this);
    }
}

void Panel::OnDoubleClick(QWidget& control, std::function<void()> handler)
{
    doubleClick_[&control] = std::move(handler);
    control.installEventFilter(this);
}

void Panel::OnPress(QWidget& control, std::function<void()> handler)
{
    press_[&control] = std::move(handler);
    control.installEventFilter(this);
}

void Panel::OnChange(QLineEdit& box, std::function<void()> handler)
{
    connect(&box, &QLineEdit::textChanged, this, [this, handler = std::move(handler)] { Guard(handler); });
}

void Panel::OnCheck(QCheckBox& box, std::function<void()> handler)
{
    connect(&box, &QCheckBox::stateChanged, this, [this, handler = std::move(handler)] { Guard(handler); });
}

void Panel::OnFocus(QWidget& control, std::function<void()> handler)
{
    focus_[&control] = std::move(handler);
    control.installEventFilter(this);
}

void Panel::OnBlur(QWidget& control, std::function<void()> handler)
{
    blur_[&control] = std::move(handler);
    control.installEventFilter(this);
}

void Panel::OnChoose(QComboBox& list, std::function<void()> handler)
{
    choose_[&list] = std::move(handler);
    connect(&list, &QComboBox::activated, this, [this, &list] { Invoke(choose_, list); });
}

void Panel::Choose(QComboBox& list, int row)
{
    list.setCurrentIndex(row);
    Invoke(choose_, list);
}

void Panel::OnCell(QAbstractItemView& grid, std::function<void()> handler)
{
    connect(&grid, &QAbstractItemView::clicked, this, [this, handler = std::move(handler)] { Guard(handler); });
}

void Panel::OnScroll(QAbstractSlider& bar, std::function<void()> handler)
{
    connect(&bar, &QAbstractSlider::valueChanged, this, [this, handler = std::move(handler)] { Guard(handler); });
}

void Panel::OnMenu(QAction& entry, std::function<void()> handler)
{
    connect(&entry, &QAction::triggered, this, [this, handler = std::move(handler)] { Guard(handler); });
}

void Panel::OnTick(QTimer& timer, std::function<void()> handler)
{
    connect(&timer, &QTimer::timeout, this, [this, handler = std::move(handler)] { Guard(handler); });
}

void Panel::SetDefault(QPushButton& button)
{
    button.setDefault(true);
    button.setFocus();
    defaultButton_ = &button;
}

QPushButton* Panel::MakeExit(QWidget* parent, std::string_view name, std::string_view toolTip, std::string_view caption)
{
    auto* leave = MakeButton(parent, name, caption, toolTip);
    OnClick(*leave, [this] { context_.panels.Unload(*this); });
    return leave;
}

void Panel::AddPositionControl(const PositionRow& row)
{
    auto* control = findChild<QWidget*>(Text(row.control));
    OnClick(*control, [this, row] {
        const auto place = context_.FetchLocation();
        const auto fill = [this](std::string_view box, std::int32_t number) {
            if (!box.empty()) {
                Box(box).setText(Text(core::ToText(number)));
            }
        };
        fill(row.boxX, place.x);
        fill(row.boxY, place.y);
        fill(row.boxZ, place.z);
        if (!row.tested.empty() && Box(row.tested).text() == QLatin1String("-1")) {
            context_.ShowCalibrationNag();
        }
    });
}

QLineEdit& Panel::Box(std::string_view name) const
{
    return *findChild<QLineEdit*>(Text(name));
}

void Panel::Guard(const std::function<void()>& handler)
{
    context_.environment.process.Run(handler);
}

void Panel::keyPressEvent(QKeyEvent* event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    auto*      button = qobject_cast<QAbstractButton*>(focusWidget());
    if (isEnter && button != nullptr && !button->isCheckable()) {
        button->click();
        return;
    }
    if (isEnter && defaultButton_ != nullptr && defaultButton_->isEnabled()) {
        defaultButton_->click();
        return;
    }
    QWidget::keyPressEvent(event);
}

bool Panel::focusNextPrevChild(bool next)
{
    KeepOptionsInReach(*this);
    return QWidget::focusNextPrevChild(next);
}

void Panel::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        RefreshBackgrounds(*this);
    }
}

void Panel::closeEvent(QCloseEvent* event)
{
    if (!HasCloseEntry()) {
        event->ignore();
        return;
    }
    event->accept();
    Guard([this] { context_.panels.Unload(*this); });
}

void Panel::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (!HasCloseEntry() && isWindow()) {
        RemoveCloseEntry(*this);
    }
}

void Panel::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    if (event->spontaneous()) {
        return;
    }
    if (!isMinimized()) {
        place_ = pos();
    }
    if (isModal()) {
        setWindowModality(Qt::NonModal);
        RunAfterModal();
    }
}

bool Panel::eventFilter(QObject* object, QEvent* event)
{
    if (object == windowHandle() && event->type() == QEvent::Show && place_) {
        // As long as no window manager has framed the window, X11 takes a widget's place for that of what is within the
        // frame. Only the window itself can say that the frame is meant, and only at the last moment.
        windowHandle()->setFramePosition(*place_);
    }
    auto* control = qobject_cast<QWidget*>(object);
    if (control == nullptr || !control->isEnabled()) {
        return QWidget::eventFilter(object, event);
    }
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        if (static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
            InvokePress(*control);
            // A label passes a press on to what lies below it, which would then get the release as well.
            return click_.contains(control) && !TakesClickFocus(*control);
        }
        break;
    case QEvent::MouseButtonRelease: {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        if (std::exchange(doubleClicked_, nullptr) == control) {
            break;
        }
        if (mouse->button() == Qt::LeftButton && control->rect().contains(mouse->position().toPoint())) {
            return InvokeClick(*control) && !TakesClickFocus(*control);
        }
        break;
    }
    case QEvent::MouseButtonDblClick:
        if (static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
            // A double click is one click and what follows it: its second release is no click of its own.
            doubleClicked_ = control;
            if (InvokeDoubleClick(*control)) {
                return true;
            }
        }
        break;
    case QEvent::KeyPress: {
        // What is clicked without being a button takes the keys of one where the keyboard reaches it.
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (TakesKeysOfButton(*control) && (key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter)) {
            return InvokeClick(*control);
        }
        break;
    }
    case QEvent::FocusIn: Invoke(focus_, *control); break;
    case QEvent::FocusOut: Invoke(blur_, *control); break;
    default: break;
    }
    return QWidget::eventFilter(object, event);
}

} // namespace qf::ui
