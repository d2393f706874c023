#include "ui/parts.h"

#include <QApplication>
#include <QPalette>
#include <QStyleOptionToolButton>
#include <algorithm>
#include <cmath>

#include "ui/click_label.h"

namespace qf::ui {

namespace {

template <typename Control>
Control* Named(Control* control, std::string_view name)
{
    if (!name.empty()) {
        control->setObjectName(Text(name));
    }
    return control;
}

/// What a box remembers of its background.
constexpr auto BackgroundProperty = "qfBackground";

/// The share of white's light that a colour has.
double Luminance(const QColor& colour)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

/// A push button with the same room around every caption, long ones too.
class Button final : public QPushButton {
  public:
    using QPushButton::QPushButton;

    QSize sizeHint() const override
    {
        const int text = fontMetrics().size(Qt::TextShowMnemonic, this->text()).width();
        return QPushButton::sizeHint().expandedTo({text == 0 ? 0 : text + fontMetrics().height() * 5 / 4, 0});
    }
    QSize minimumSizeHint() const override { return sizeHint(); }
};

/// A small button whose caption is a sign, or words that a plus sign stands for.
class AddButton final : public QToolButton {
  public:
    explicit AddButton(QWidget* parent) : QToolButton(parent) { setToolButtonStyle(Qt::ToolButtonIconOnly); }

    QSize sizeHint() const override
    {
        QStyleOptionToolButton option;
        initStyleOption(&option);
        const int  blanks = 2 * fontMetrics().horizontalAdvance(QLatin1Char(' '));
        const auto text = fontMetrics().size(Qt::TextShowMnemonic, option.text) + QSize(blanks, 0);
        return style()->sizeFromContents(QStyle::CT_ToolButton, &option, text, this);
    }
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void initStyleOption(QStyleOptionToolButton* option) const override
    {
        QToolButton::initStyleOption(option);
        option->text = text().size() == 1 ? text() : QStringLiteral("+");
        option->toolButtonStyle = Qt::ToolButtonTextOnly;
    }
};

} // namespace

QString Text(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

std::string Utf8(const QString& text)
{
    const auto bytes = text.toUtf8();
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

QPushButton* MakeButton(QWidget* parent, std::string_view name, std::string_view caption, std::string_view toolTip)
{
    auto* button = Named(new Button(Text(caption), parent), name);
    button->setToolTip(Text(toolTip));
    button->setAutoDefault(false);
    return button;
}

void GiveRoom(QPushButton& button)
{
    button.setMinimumWidth(button.sizeHint().width() + button.fontMetrics().height());
}

QToolButton* MakeAddButton(QWidget* parent, const QString& name, std::string_view what, std::string_view caption)
{
    auto* button = new AddButton(parent);
    button->setObjectName(name);
    button->setText(Text(caption));
    button->setFocusPolicy(Qt::TabFocus);
    button->setToolTip(caption == PlusCaption ? QStringLiteral("Add one piece: ") + Text(what) : Text(caption));
    button->setAccessibleName(Text(caption == PlusCaption ? "Add one piece" : caption) + QStringLiteral(": ") +
                              Text(what));
    return button;
}

QLineEdit* MakeTextBox(QWidget* parent, std::string_view name, int digits)
{
    auto*      box = Named(new QLineEdit(parent), name);
    const auto margin = box->sizeHint().width() - box->fontMetrics().horizontalAdvance(QLatin1Char('x')) * 17;
    const auto width = box->fontMetrics().horizontalAdvance(QString(digits, QLatin1Char('0'))) + qMax(margin, 16);
    box->setMinimumWidth(width);
    box->setMaximumWidth(width * 2);
    return box;
}

QLabel* MakeLabel(QWidget* parent, std::string_view name, std::string_view caption)
{
    return Named(new QLabel(Text(caption), parent), name);
}

QLabel* MakeLabelFor(QWidget* buddy, std::string_view name, std::string_view caption)
{
    auto* label = MakeLabel(buddy->parentWidget(), name, caption);
    label->setBuddy(buddy);
    return label;
}

QLabel* MakeClickLabel(QWidget* parent, std::string_view name, std::string_view caption, std::string_view toolTip)
{
    auto* label = Named(new ClickLabel(Text(caption), parent), name);
    label->setToolTip(Text(toolTip));
    label->setAlignment(Qt::AlignCenter);
    label->setFrameStyle(QFrame::Panel | QFrame::Raised);
    label->setMargin(label->fontMetrics().height() / 4);
    return label;
}

QGroupBox* MakeFrame(QWidget* parent, std::string_view name, std::string_view caption)
{
    return Named(new QGroupBox(Text(caption), parent), name);
}

QLabel* MakeLargeLabel(QWidget* parent, std::string_view name, std::string_view caption)
{
    auto* title = MakeLabel(parent, name, caption);
    QFont font = title->font();
    font.setPointSizeF(font.pointSizeF() * 1.6);
    font.setBold(true);
    title->setFont(font);
    title->setAlignment(Qt::AlignCenter);
    return title;
}

QLabel* MakeTitle(QWidget* parent, std::string_view name, std::string_view caption)
{
    auto* title = MakeLargeLabel(parent, name, caption);
    QFont font = title->font();
    font.setFamilies({QStringLiteral("MS Sans Serif"), QApplication::font().family()});
    title->setFont(font);
    return title;
}

void SetBackground(QLineEdit& box, BoxBackground background)
{
    box.setProperty(BackgroundProperty, static_cast<int>(background));
    const auto role = background == BoxBackground::Info ? QPalette::ToolTipBase : QPalette::Button;
    const auto text = background == BoxBackground::Info ? QPalette::ToolTipText : QPalette::ButtonText;
    const auto system = QApplication::palette();
    auto       own = box.palette();
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        own.setColor(group, QPalette::Base, system.color(QPalette::Active, role));
    }
    own.setColor(QPalette::Active, QPalette::Text, system.color(QPalette::Active, text));
    own.setColor(QPalette::Inactive, QPalette::Text, system.color(QPalette::Active, text));
    box.setPalette(own);
}

void RefreshBackgrounds(const QWidget& panel)
{
    for (auto* box : panel.findChildren<QLineEdit*>()) {
        if (const auto background = box->property(BackgroundProperty); background.isValid()) {
            SetBackground(*box, static_cast<BoxBackground>(background.toInt()));
        }
    }
}

double Contrast(const QColor& one, const QColor& other)
{
    const auto [darker, lighter] = std::minmax({Luminance(one), Luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

void KeepPlaceWhenHidden(QWidget& control)
{
    auto policy = control.sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    control.setSizePolicy(policy);
}

void SelectWhole(QLineEdit& box)
{
    box.selectAll();
    if (QGuiApplication::mouseButtons() != Qt::NoButton) {
        // The click sets the cursor only after this, so the selection is made again behind it.
        QMetaObject::invokeMethod(&box, "selectAll", Qt::QueuedConnection);
    }
}

} // namespace qf::ui
