#include "gamedata/item_cell.h"

#include <QPainter>

#include "ui/option_array.h"

namespace qf::gamedata {

namespace {

constexpr core::Rgb Red = 0xFF0000;

} // namespace

ItemCell::ItemCell(int index, QWidget* parent)
    : PictureSurface(parent, {CellSide, CellSide}), tag(std::to_string(index)), index_(index)
{
    setObjectName(ui::MemberName("pctPicture", index));
    setFocusPolicy(Qt::ClickFocus);
}

void ItemCell::Clear()
{
    if (!blank_) {
        Surface().SetBackColour(core::White);
        blank_ = true;
        framed_ = false;
        update();
    }
}

void ItemCell::ShowPicture(const core::PixelSurface& picture)
{
    Surface().Paint(picture, (CellSide - picture.Width()) / 2.0, (CellSide - picture.Height()) / 2.0);
    blank_ = false;
    update();
}

void ItemCell::DrawFrames()
{
    DrawOutline(0);
    DrawOutline(1);
    blank_ = false;
    framed_ = true;
    update();
}

void ItemCell::DrawOutline(int inset)
{
    const int  last = CellSide - 1 - inset;
    const auto red = [](std::int64_t) { return Red; };
    Surface().PlotLine(inset, inset, last - inset, red);
    Surface().PlotLine(inset, last, last + 1 - inset, red);
    for (int y = inset; y < last; ++y) {
        Surface().Plot(inset, y, Red);
        Surface().Plot(last, y, Red);
    }
}

void ItemCell::paintEvent(QPaintEvent* event)
{
    PictureSurface::paintEvent(event);
    if (!framed_) {
        QPainter painter(this);
        painter.setPen(palette().color(QPalette::Mid));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

} // namespace qf::gamedata
