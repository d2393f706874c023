#include "ui/parts.h"

#include <QApplication>
#include <QPalette>

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
    auto* button = Named(new QPushButton(Text(caption), parent), name);
    button->setToolTip(Text(toolTip));
    button->setAutoDefault(false);
    return button;
}

QToolButton* MakeAddButton(QWidget* parent, const QString& name, std::string_view what)
{
    auto* button = new QToolButton(parent);
    button->setObjectName(name);
    button->setText(QStringLiteral("+"));
    button->setFocusPolicy(Qt::TabFocus);
    button->setToolTip(QStringLiteral("Add one piece: ") + Text(what));
    button->setAccessibleName(button->toolTip());
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
    auto* label = MakeLabel(parent, name, caption);
    label->setToolTip(Text(toolTip));
    label->setAlignment(Qt::AlignCenter);
    label->setFrameStyle(QFrame::Panel | QFrame::Raised);
    label->setMargin(label->fontMetrics().height() / 4);
    label->setFocusPolicy(Qt::TabFocus);
    label->setCursor(Qt::PointingHandCursor);
    return label;
}

QGroupBox* MakeFrame(QWidget* parent, std::string_view name, std::string_view caption)
{
    return Named(new QGroupBox(Text(caption), parent), name);
}

QLabel* MakeTitle(QWidget* parent, std::string_view name, std::string_view caption)
{
    auto* title = MakeLabel(parent, name, caption);
    QFont font = title->font();
    font.setFamilies({QStringLiteral("MS Sans Serif"), QApplication::font().family()});
    font.setPointSizeF(font.pointSizeF() * 1.6);
    font.setBold(true);
    title->setFont(font);
    title->setAlignment(Qt::AlignCenter);
    return title;
}

void SetBackground(QLineEdit& box, BoxBackground background)
{
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

void SelectWhole(QLineEdit& box)
{
    box.selectAll();
    if (QGuiApplication::mouseButtons() != Qt::NoButton) {
        // The click sets the cursor only after this, so the selection is made again behind it.
        QMetaObject::invokeMethod(&box, "selectAll", Qt::QueuedConnection);
    }
}

} // namespace qf::ui
