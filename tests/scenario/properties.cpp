#include "scenario/properties.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAction>
#include <QBrush>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QTabWidget>
#include <QTextCursor>
#include <QTextDocumentFragment>
#include <QTimer>
#include <array>
#include <vector>

#include "scenario/words.h"
#include "ui/panel.h"
#include "ui/parts.h"
#include "ui/path_box.h"
#include "ui/picture_surface.h"

namespace qf::scenario {

namespace {

using Value = std::optional<std::string>;
using ui::Utf8;

std::string Flag(bool set)
{
    return set ? "1" : "0";
}

std::string ColourName(const QColor& colour)
{
    return Utf8(colour.name(QColor::HexRgb).toUpper());
}

/// The control as the given kind of widget; null where it is of another kind.
template <typename Kind>
const Kind* As(const QObject& control)
{
    return qobject_cast<const Kind*>(&control);
}

Value Caption(const QObject& control)
{
    if (const auto* panel = dynamic_cast<const ui::Panel*>(&control)) {
        return Utf8(panel->windowTitle());
    }
    if (const auto* button = As<QAbstractButton>(control)) {
        return Utf8(button->text());
    }
    if (const auto* label = As<QLabel>(control)) {
        return Utf8(label->text());
    }
    if (const auto* frame = As<QGroupBox>(control)) {
        return Utf8(frame->title());
    }
    if (const auto* entry = As<QAction>(control)) {
        return Utf8(entry->text());
    }
    return std::nullopt;
}

Value TextOf(const QObject& control)
{
    // Scenarios write paths as the program does, whatever the system shows its user.
    if (const auto* box = dynamic_cast<const ui::PathBox*>(&control)) {
        return box->ProgramText();
    }
    if (const auto* box = As<QLineEdit>(control)) {
        return Utf8(box->text());
    }
    if (const auto* box = As<QPlainTextEdit>(control)) {
        return ReplaceAll(Utf8(box->toPlainText()), "\n", "\r\n");
    }
    if (const auto* list = As<QComboBox>(control)) {
        return Utf8(list->currentText());
    }
    if (const auto* list = As<QAbstractItemView>(control)) {
        return Utf8(list->currentIndex().data(Qt::DisplayRole).toString());
    }
    return Caption(control);
}

Value Selection(const QObject& control)
{
    if (const auto* box = dynamic_cast<const ui::PathBox*>(&control)) {
        return box->SelectedProgramText();
    }
    if (const auto* box = As<QLineEdit>(control)) {
        return Utf8(box->selectedText());
    }
    if (const auto* box = As<QPlainTextEdit>(control)) {
        return ReplaceAll(Utf8(box->textCursor().selection().toPlainText()), "\n", "\r\n");
    }
    return std::nullopt;
}

Value ToolTip(const QObject& control)
{
    if (const auto* entry = As<QAction>(control)) {
        return Utf8(entry->toolTip());
    }
    const auto* widget = As<QWidget>(control);
    return widget != nullptr ? Value(Utf8(widget->toolTip())) : std::nullopt;
}

Value ValueOf(const QObject& control)
{
    if (const auto* box = As<QCheckBox>(control)) {
        switch (box->checkState()) {
        case Qt::Unchecked: return "0";
        case Qt::Checked: return "1";
        case Qt::PartiallyChecked: return "2";
        }
    }
    if (const auto* button = As<QAbstractButton>(control); button != nullptr && button->isCheckable()) {
        return Flag(button->isChecked());
    }
    if (const auto* bar = As<QProgressBar>(control)) {
        return std::to_string(bar->value());
    }
    if (const auto* bar = As<QAbstractSlider>(control)) {
        return std::to_string(bar->value());
    }
    if (const auto* entry = As<QAction>(control)) {
        return Flag(entry->isChecked());
    }
    return std::nullopt;
}

Value Maximum(const QObject& control)
{
    if (const auto* bar = As<QProgressBar>(control)) {
        return std::to_string(bar->maximum());
    }
    const auto* bar = As<QAbstractSlider>(control);
    return bar != nullptr ? Value(std::to_string(bar->maximum())) : std::nullopt;
}

Value Index(const QObject& control)
{
    if (const auto* list = As<QComboBox>(control)) {
        return std::to_string(list->currentIndex());
    }
    if (const auto* tabs = As<QTabWidget>(control)) {
        return std::to_string(tabs->currentIndex());
    }
    const auto* list = As<QAbstractItemView>(control);
    return list != nullptr ? Value(std::to_string(list->currentIndex().row())) : std::nullopt;
}

/// The rows of a list or the captions of a tab control; nothing for any other control.
std::optional<std::vector<std::string>> Rows(const QObject& control)
{
    std::vector<std::string> rows;
    if (const auto* tabs = As<QTabWidget>(control)) {
        for (int i = 0; i < tabs->count(); ++i) {
            rows.push_back(Utf8(tabs->tabText(i)));
        }
        return rows;
    }
    if (const auto* list = As<QComboBox>(control)) {
        for (int i = 0; i < list->count(); ++i) {
            rows.push_back(Utf8(list->itemText(i)));
        }
        return rows;
    }
    if (const auto* list = As<QAbstractItemView>(control)) {
        const auto* model = list->model();
        for (int i = 0; model != nullptr && i < model->rowCount(); ++i) {
            rows.push_back(Utf8(model->index(i, 0).data(Qt::DisplayRole).toString()));
        }
        return rows;
    }
    return std::nullopt;
}

Value Items(const QObject& control)
{
    const auto rows = Rows(control);
    return rows ? Value(JsonArray(*rows)) : std::nullopt;
}

Value Count(const QObject& control)
{
    const auto rows = Rows(control);
    return rows ? Value(std::to_string(rows->size())) : std::nullopt;
}

/// Where the control stands in what holds it. What only arranges controls and has no name does not count,
/// nor does what Qt puts in between.
QPoint PlaceOf(const QWidget& widget)
{
    if (widget.isWindow()) {
        return widget.pos();
    }
    const auto* holder = widget.parentWidget();
    while (!holder->isWindow() &&
           (holder->objectName().isEmpty() || holder->objectName().startsWith(QLatin1String("qt_")))) {
        holder = holder->parentWidget();
    }
    return widget.mapTo(holder, QPoint(0, 0));
}

Value Geometry(const QObject& control, std::string_view property)
{
    const auto* widget = As<QWidget>(control);
    if (widget == nullptr) {
        return std::nullopt;
    }
    if (property == "left" || property == "top") {
        const auto place = PlaceOf(*widget);
        return std::to_string(property == "left" ? place.x() : place.y());
    }
    const auto* picture = dynamic_cast<const ui::PictureSurface*>(widget);
    const auto  size = picture != nullptr ? picture->Image().size() : widget->size();
    return std::to_string(property == "width" ? size.width() : size.height());
}

Value Background(const QObject& control)
{
    const auto* widget = As<QWidget>(control);
    if (widget == nullptr) {
        return std::nullopt;
    }
    const bool framed = As<QLineEdit>(control) != nullptr || As<QAbstractScrollArea>(control) != nullptr;
    return ColourName(widget->palette().color(QPalette::Active, framed ? QPalette::Base : widget->backgroundRole()));
}

Value OfPanel(const QObject& control, std::string_view property)
{
    const auto* panel = dynamic_cast<const ui::Panel*>(&control);
    if (panel == nullptr) {
        return std::nullopt;
    }
    if (property == "loaded") {
        return "1";
    }
    if (property == "topmost") {
        return Flag(panel->IsTopmost());
    }
    return Flag(property == "modal" ? panel->isModal() : panel->isMinimized());
}

struct Reader {
    std::string_view property;
    Value (*read)(const QObject& control);
};

constexpr std::array Readers{
    Reader{"text", TextOf},           Reader{"caption", Caption}, Reader{"tooltip", ToolTip},
    Reader{"selection", Selection},   Reader{"value", ValueOf},   Reader{"maximum", Maximum},
    Reader{"index", Index},           Reader{"count", Count},     Reader{"items", Items},
    Reader{"background", Background},
};

} // namespace

std::optional<std::string> ReadProperty(const QObject& control, std::string_view property)
{
    for (const auto& reader : Readers) {
        if (reader.property == property) {
            return reader.read(control);
        }
    }
    if (property == "enabled") {
        return Flag(IsEnabled(control));
    }
    if (property == "shown") {
        return Flag(IsShown(control));
    }
    if (property == "left" || property == "top" || property == "width" || property == "height") {
        return Geometry(control, property);
    }
    return OfPanel(control, property);
}

std::optional<std::string> ReadPixel(const QObject& control, int x, int y)
{
    const auto* picture = dynamic_cast<const ui::PictureSurface*>(&control);
    if (picture == nullptr || !picture->Image().valid(x, y)) {
        return std::nullopt;
    }
    return ColourName(picture->Image().pixelColor(x, y));
}

std::optional<std::string> ReadCell(const QObject& control, int row, int column)
{
    const auto* grid = As<QAbstractItemView>(control);
    const auto* model = grid != nullptr ? grid->model() : nullptr;
    if (model == nullptr || row < -1 || row >= model->rowCount() || column < 0 || column >= model->columnCount()) {
        return std::nullopt;
    }
    if (row == -1) {
        return Utf8(model->headerData(column, Qt::Horizontal).toString());
    }
    const auto index = model->index(row, column);
    const auto text = index.data(Qt::DisplayRole).toString();
    const auto colour = index.data(Qt::BackgroundRole);
    if (text.isEmpty() && colour.isValid()) {
        return ColourName(colour.userType() == QMetaType::QColor ? colour.value<QColor>()
                                                                 : colour.value<QBrush>().color());
    }
    return Utf8(text);
}

bool IsShown(const QObject& control)
{
    if (const auto* entry = As<QAction>(control)) {
        return entry->isVisible();
    }
    const auto* widget = As<QWidget>(control);
    if (widget == nullptr) {
        return false;
    }
    return widget->isWindow() ? widget->isVisible() : !widget->isHidden();
}

bool IsEnabled(const QObject& control)
{
    if (const auto* timer = As<QTimer>(control)) {
        return timer->isActive();
    }
    if (const auto* entry = As<QAction>(control)) {
        return entry->isEnabled();
    }
    const auto* widget = As<QWidget>(control);
    return widget != nullptr && !widget->testAttribute(Qt::WA_ForceDisabled);
}

} // namespace qf::scenario
