#include "ui/desktop_colours.h"

#include <QEvent>
#include <QGroupBox>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOption>

namespace qf::ui {

namespace {

constexpr auto QtStyle = "fusion";

bool IsDark(const QPalette& palette)
{
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

/// A colour between that of the window and that of its text; `share` is the text's.
QColor Between(const QPalette& palette, double share)
{
    const auto window = palette.color(QPalette::Window);
    const auto text = palette.color(QPalette::WindowText);
    const auto mix = [share](int one, int other) { return qRound(one + share * (other - one)); };
    return {mix(window.red(), text.red()), mix(window.green(), text.green()), mix(window.blue(), text.blue())};
}

/// Qt's style takes its outlines from the window's colour, darkened, which cannot be told from a dark window.
class OutlinedStyle final : public QProxyStyle {
  public:
    OutlinedStyle() : QProxyStyle(QLatin1String(QtStyle)) {}

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override
    {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        if (!IsDark(option->palette)) {
            return;
        }
        painter->save();
        painter->setBrush(Qt::NoBrush);
        const auto inner = QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5);
        switch (element) {
        case PE_IndicatorRadioButton:
            painter->setRenderHint(QPainter::Antialiasing);
            painter->setPen(Between(option->palette, MarkShare));
            painter->drawEllipse(inner.adjusted(0.5, 0.5, -0.5, -0.5));
            break;
        case PE_IndicatorCheckBox:
            painter->setPen(Between(option->palette, MarkShare));
            painter->drawRect(inner);
            break;
        case PE_FrameLineEdit:
            if ((option->state & State_HasFocus) == 0) {
                painter->setPen(Between(option->palette, FrameShare));
                painter->drawRect(inner);
            }
            break;
        case PE_FrameGroupBox:
            painter->setPen(Between(option->palette, FrameShare));
            painter->drawRect(inner.adjusted(0, HeightOfTitle(widget), 0, 0));
            break;
        default: break;
        }
        painter->restore();
    }

  private:
    /// How far below the upper edge of a framed group its frame begins.
    int HeightOfTitle(const QWidget* widget) const
    {
        constexpr int GapBelow = 3;
        const auto*   group = qobject_cast<const QGroupBox*>(widget);
        if (group == nullptr || group->title().isEmpty()) {
            return 0;
        }
        return qMax(pixelMetric(PM_IndicatorHeight, nullptr, widget), widget->fontMetrics().height()) + GapBelow;
    }

    static constexpr double MarkShare = 0.5;
    static constexpr double FrameShare = 0.25;
};

/// Keeps the application's style one that can draw with the colours of the desktop.
class StyleChooser final : public QObject {
  public:
    explicit StyleChooser(QApplication& application) : QObject(&application), usual_(UsualStyle())
    {
        application.installEventFilter(this);
        Choose();
    }

  protected:
    bool eventFilter(QObject* object, QEvent* event) override
    {
        if (object == parent() && event->type() == QEvent::ApplicationPaletteChange) {
            Choose();
        }
        return QObject::eventFilter(object, event);
    }

  private:
    /// The style in which the desktop shows other programs.
    static QString UsualStyle()
    {
#ifdef _WIN32
        const auto own = QStringLiteral("windowsvista");
        if (QStyleFactory::keys().contains(own, Qt::CaseInsensitive)) {
            return own;
        }
#endif
        return QApplication::style()->name();
    }

    bool NeedsOutlines() const
    {
        if (!IsDark(QApplication::palette())) {
            return false;
        }
#ifdef _WIN32
        return true;
#else
        return usual_.compare(QLatin1String(QtStyle), Qt::CaseInsensitive) == 0;
#endif
    }

    void Choose()
    {
        if (const bool outlined = NeedsOutlines(); outlined != outlined_) {
            outlined_ = outlined;
            QApplication::setStyle(outlined ? MakeOutlinedStyle() : QStyleFactory::create(usual_));
        }
    }

    QString usual_;
    bool    outlined_ = false;
};

} // namespace

void AskForDesktopColours()
{
#ifdef _WIN32
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "windows:darkmode=2");
    }
#endif
}

void FollowDesktopColours(QApplication& application)
{
    new StyleChooser(application);
}

QStyle* MakeOutlinedStyle()
{
    return new OutlinedStyle;
}

} // namespace qf::ui
