// What the item explorer does with the keyboard, the wheel and its window.

#include <QKeyEvent>
#include <QResizeEvent>
#include <QWheelEvent>
#include <cstdlib>

#include "gamedata/frmItemExplorer.h"

namespace qf::gamedata {

namespace {

constexpr int WheelNotch = 120;

} // namespace

ItemCell* frmItemExplorer::FocusedCell() const
{
    return dynamic_cast<ItemCell*>(focusWidget());
}

void frmItemExplorer::ScrollTo(const ItemCell& cell)
{
    VScroll1->setValue(ScrolledToCell(VScroll1->value(), cell.Place(), Picture1->height()));
}

void frmItemExplorer::MoveFocus(const ItemCell& from, Step step)
{
    std::vector<CellPlace> places;
    places.reserve(cells_.size());
    for (int i = 0; i < shownCells_; ++i) {
        places.push_back(Cell(i).Place());
    }
    if (const auto next = Neighbour(places, from.Index(), step)) {
        Cell(*next).setFocus();
        ScrollTo(Cell(*next));
    }
}

void frmItemExplorer::keyPressEvent(QKeyEvent* event)
{
    const auto* cell = FocusedCell();
    if (cell == nullptr || cell->isHidden() || busy) {
        Panel::keyPressEvent(event);
        return;
    }
    switch (event->key()) {
    case Qt::Key_Left: MoveFocus(*cell, Step::Left); break;
    case Qt::Key_Right: MoveFocus(*cell, Step::Right); break;
    case Qt::Key_Up: MoveFocus(*cell, Step::Up); break;
    case Qt::Key_Down: MoveFocus(*cell, Step::Down); break;
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter: Guard([&] { AddItemOf(*cell); }); break;
    default: Panel::keyPressEvent(event);
    }
}

bool frmItemExplorer::focusNextPrevChild(bool next)
{
    // Cells are made when they are needed, which puts them behind all other controls in Qt's own order; and
    // the Tab key is to come to one of them alone.
    const auto* from = focusWidget();
    QWidget*    to = nullptr;
    if (FocusedCell() != nullptr) {
        to = next ? static_cast<QWidget*>(txtModelID) : cmdExit;
    } else if (from == (next ? static_cast<QWidget*>(cmdExit) : txtModelID) && Cell(current_).isVisible()) {
        to = &Cell(current_);
    }
    if (to == nullptr) {
        return Panel::focusNextPrevChild(next);
    }
    to->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

void frmItemExplorer::resizeEvent(QResizeEvent* event)
{
    menuBar_->setGeometry(0, 0, width(), menuBar_->height());
    // The first size is the one that the panel was made with.
    if (event->oldSize().isValid()) {
        tmrResize->start();
    }
}

void frmItemExplorer::wheelEvent(QWheelEvent* event)
{
    const int turn = event->angleDelta().y();
    if (busy || turn == 0) {
        event->ignore();
        return;
    }
    // Fine wheels and touch pads tell of a notch in many parts.
    wheelTurn_ += turn;
    if (std::abs(wheelTurn_) >= WheelNotch) {
        VScroll1->setValue(
            ScrolledByNotch(VScroll1->value(), wheelTurn_ > 0, VScroll1->pageStep(), VScroll1->maximum()));
        wheelTurn_ = 0;
    }
}

bool frmItemExplorer::event(QEvent* event)
{
    // The panel may be closed while it draws a category; it goes when the drawing has ended.
    if (busy && event->type() == QEvent::DeferredDelete) {
        deletionHeld_ = true;
        return true;
    }
    return Panel::event(event);
}

bool frmItemExplorer::eventFilter(QObject* object, QEvent* event)
{
    // The wheel belongs to the grid, wherever it is turned; the list and the bar would take it for themselves.
    if (event->type() == QEvent::Wheel) {
        wheelEvent(static_cast<QWheelEvent*>(event));
        return true;
    }
    if (event->type() == QEvent::FocusIn) {
        const auto  reason = static_cast<QFocusEvent*>(event)->reason();
        const auto* cell = dynamic_cast<ItemCell*>(object);
        if (cell != nullptr && (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason)) {
            ScrollTo(*cell);
        }
    }
    return Panel::eventFilter(object, event);
}

} // namespace qf::gamedata
