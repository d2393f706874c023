#include "console/pick_list.h"

#include <QCompleter>
#include <QLineEdit>
#include <QMouseEvent>
#include <utility>

#include "ui/parts.h"

namespace qf::console {

namespace {

constexpr int MostVisibleRows = 20;

// A list's width is counted in the widest letters, and a row of common ones takes five sixths of that.
constexpr int WideLettersOf6 = 5;

} // namespace

PickList::PickList(QWidget* parent, std::string_view name, std::string_view initialText, const QStringList& rows)
    : QComboBox(parent), initialText_(ui::Text(initialText))
{
    setObjectName(ui::Text(name));
    setAccessibleName(initialText_);
    // A box whose completer gets the rows at the first focus: a completer with rows costs more than the rest.
    auto* box = new QLineEdit(this);
    box->setCompleter(new QCompleter(box));
    setLineEdit(box);
    setInsertPolicy(QComboBox::NoInsert);
    setMaxVisibleItems(MostVisibleRows);
    // Told by the longest row, since measuring every row takes as long as making the list.
    qsizetype longest = initialText_.size();
    for (const auto& row : rows) {
        longest = qMax(longest, row.size());
    }
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(static_cast<int>(longest) * WideLettersOf6 / 6);
    addItems(rows);
    setCurrentIndex(-1);
    setEditText(initialText_);
    lineEdit()->installEventFilter(this);
    // A text that led to no entry does not stay: the list always shows the row that it stands for.
    connect(lineEdit(), &QLineEdit::editingFinished, this,
            [this] { setEditText(currentIndex() < 0 ? initialText_ : itemText(currentIndex())); });
}

bool PickList::eventFilter(QObject* object, QEvent* event)
{
    const bool reached = event->type() == QEvent::FocusIn || event->type() == QEvent::KeyPress;
    if (object == lineEdit() && reached && completer()->model() != model()) {
        auto* offers = new QCompleter(model(), lineEdit());
        offers->setCaseSensitivity(Qt::CaseInsensitive);
        offers->setCompletionMode(QCompleter::PopupCompletion);
        offers->setFilterMode(Qt::MatchContains);
        setCompleter(offers);
    }
    const bool mouse = event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonRelease;
    if (object != lineEdit() || !mouse || static_cast<QMouseEvent*>(event)->button() != Qt::LeftButton) {
        return QComboBox::eventFilter(object, event);
    }
    if (event->type() == QEvent::MouseButtonPress) {
        setFocus(Qt::MouseFocusReason);
        lineEdit()->selectAll();
        pressed_ = true;
    } else if (std::exchange(pressed_, false)) {
        // Not at the press, whose release could then pick a row of a list that opens above this place. A
        // press that only closed the list never comes here.
        showPopup();
    }
    return true;
}

} // namespace qf::console
