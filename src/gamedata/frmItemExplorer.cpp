#include "gamedata/frmItemExplorer.h"

#include <QCoreApplication>
#include <QPointer>
#include <algorithm>

#include "core/number_rules.h"
#include "ui/parts.h"

namespace qf::gamedata {

namespace {

/// Every cell could let the events run, but a look at the event queue costs as much as a cell. A pause of
/// this many milliseconds is not felt.
constexpr int MillisecondsBetweenEvents = 25;

constexpr std::string_view NoCategory = "Select an item category";

} // namespace

/// The time in which a category is drawn.
class frmItemExplorer::Drawing {
  public:
    explicit Drawing(frmItemExplorer& panel) : panel_(panel), listHadFocus_(panel.comboItemType->hasFocus())
    {
        panel_.busy = true;
        // Left to itself the focus of a control that is disabled wanders to the next one.
        panel_.comboItemType->clearFocus();
        SetListsEnabled(false);
    }
    Drawing(const Drawing&) = delete;
    Drawing& operator=(const Drawing&) = delete;
    ~Drawing()
    {
        panel_.busy = false;
        panel_.StartSaving();
        SetListsEnabled(true);
        if (listHadFocus_ && panel_.focusWidget() == nullptr) {
            panel_.comboItemType->setFocus();
        }
        if (panel_.deletionHeld_) {
            QTimer::singleShot(0, QCoreApplication::instance(), [panel = QPointer(&panel_)] { delete panel.data(); });
        }
    }

  private:
    void SetListsEnabled(bool enabled)
    {
        panel_.comboItemType->setEnabled(enabled);
        panel_.cmdRefreshCategories->setEnabled(enabled);
    }

    frmItemExplorer& panel_;
    bool             listHadFocus_;
};

void frmItemExplorer::Load()
{
    PlaceControlsIn(size());
    DrawInitialGrid();
    MakeExplorerFolder(ProgramFolder());
    LoadCategoryList();
    ApplyStayOnTopRule();
}

void frmItemExplorer::Unload()
{
    unloaded_ = true;
    tmrResize->stop();
    savingTimer_->stop();
    pictures_.SaveAll();
    ReturnToMainPanel();
}

void frmItemExplorer::HoverModeChosen()
{
    Context().explorerModes.hover = hoverMode_->isChecked();
}

void frmItemExplorer::RepeatAddChosen()
{
    Context().explorerModes.repeatAdd = repeatAdd_->isChecked();
    tileMode_->setChecked(false);
    Context().explorerModes.tile = false;
}

void frmItemExplorer::TileModeChosen()
{
    Context().explorerModes.tile = tileMode_->isChecked();
    repeatAdd_->setChecked(false);
    Context().explorerModes.repeatAdd = false;
}

AddModes frmItemExplorer::Modes() const
{
    return {.repeatAdd = repeatAdd_->isChecked(), .tile = tileMode_->isChecked()};
}

std::string frmItemExplorer::Category() const
{
    return ui::Utf8(comboItemType->currentText());
}

void frmItemExplorer::LoadCategoryList()
{
    comboItemType->clear();
    comboItemType->addItem(ui::Text(NoCategory));
    for (const auto& name : ListCategories(ProgramFolder())) {
        comboItemType->addItem(ui::Text(name));
    }
    Choose(*comboItemType, 0);
}

void frmItemExplorer::CategoryChosen()
{
    if (comboItemType->currentIndex() <= 0) {
        return;
    }
    Picture2->show();
    VScroll1->setValue(0);
    DrawSpecificGrid(Category());
}

void frmItemExplorer::RefreshCategories()
{
    itemList_.reset();
    for (auto* cell : cells_) {
        cell->Clear();
    }
    VScroll1->setValue(0);
    Picture2->hide();
    LoadCategoryList();
    Outlet().Show(core::UntitledInformationBox("Category list has been refreshed from files."));
}

void frmItemExplorer::RebuildCache()
{
    if (comboItemType->currentIndex() <= 0) {
        Outlet().Show(core::UntitledInformationBox("Please select an item category first."));
        return;
    }
    pictures_.SaveAll();
    const auto category = Category();
    const auto list = GetItemList(ProgramFolder(), category, Context().fileNumbers, Outlet());
    const int  count = DeleteCachedPictures(list.value_or(ItemList()), ProgramFolder(), category);
    Outlet().Show({"Cache cleared for '" + category + "' category. " + std::to_string(count) + " images removed.",
                   core::MessageStyle::Information, "Cache Refreshed"});
    CategoryChosen();
}

void frmItemExplorer::DrawInitialGrid()
{
    const auto places = InitialPlaces(Picture1->width());
    for (const auto& place : places) {
        auto& cell = AddCell();
        cell.move(place.left, place.top);
        cell.show();
    }
    shownCells_ = CellCount();
    Picture2->resize(Picture2->width(), InitialGridHeight(places.back()));
    VScroll1->setMaximum(ScrollMaximum(Picture2->height(), Picture1->height()));
}

void frmItemExplorer::DrawSpecificGrid(const std::string& category)
{
    if (busy) {
        return;
    }
    const Drawing drawing(*this);
    LeaveGrid();
    itemList_ = GetItemList(ProgramFolder(), category, Context().fileNumbers, Outlet());
    if (!itemList_) {
        HideCellsFrom(0);
        Picture2->hide();
        return;
    }
    prgLoadCategory->setRange(0, std::max(static_cast<int>(itemList_->size()) - 1, 0));
    prgLoadCategory->show();
    lblStatusText->clear();
    lblStatusText->show();
    HideCellsFrom(static_cast<int>(itemList_->size()));
    current_ = 0;
    try {
        DrawCells(ItemList(*itemList_));
    } catch (...) {
        // The process ends now; the pictures that are drawn stay for the next one.
        pictures_.SaveAll();
        throw;
    }
    if (unloaded_) {
        return;
    }
    prgLoadCategory->setValue(0);
    prgLoadCategory->hide();
    lblStatusText->hide();
    Picture2->show();
    FitGrid();
}

void frmItemExplorer::LeaveGrid()
{
    if (auto* cell = FocusedCell()) {
        leavingGrid_ = true;
        cell->clearFocus();
        leavingGrid_ = false;
    }
}

void frmItemExplorer::HideCellsFrom(int first)
{
    for (int i = first; i < shownCells_; ++i) {
        Cell(i).hide();
        Cell(i).Clear();
    }
    shownCells_ = std::min(first, shownCells_);
}

void frmItemExplorer::DrawCells(const ItemList& list)
{
    UsePictures();
    sinceEvents_.start();
    const int count = static_cast<int>(list.size());
    for (int i = 0; i < count; ++i) {
        const auto& text = list[static_cast<std::size_t>(i)];
        const bool  isNew = i == CellCount();
        auto&       cell = isNew ? AddCell() : Cell(i);
        pictures_.GetCachedPicture(core::ToInteger32(text), picture_);
        if (!LetEventsRun(i)) {
            return;
        }
        cell.Clear();
        cell.ShowPicture(picture_);
        if (isNew && i > 0) {
            // The rule for new cells knows the usual width of what is beside the grid.
            const int  usualWidth = width() - Scaled(RoomBesideViewport) + RoomBesideViewport;
            const auto place = PlaceOfNewCell(Cell(i - 1).Place(), Cell(0).x(), usualWidth);
            cell.move(place.left, place.top);
        }
        cell.tag = text;
        if (i >= shownCells_) {
            cell.show();
            shownCells_ = i + 1;
        }
    }
}

bool frmItemExplorer::LetEventsRun(int cellsDone)
{
    if (!sinceEvents_.hasExpired(MillisecondsBetweenEvents)) {
        return true;
    }
    prgLoadCategory->setValue(cellsDone);
    // The cells of the category before are all gone now, as far as anybody sees: where no event runs before the
    // last cell is drawn, those that are needed again need not go and come back.
    HideCellsFrom(cellsDone);
    // A cell that gets the focus now uses the picture cache as well, so what was read last is kept.
    const auto picture = picture_;
    QCoreApplication::processEvents();
    picture_ = picture;
    sinceEvents_.restart();
    Context().environment.process.ThrowIfStopped();
    return !unloaded_;
}

void frmItemExplorer::FitGrid()
{
    if (!itemList_ || itemList_->empty()) {
        return;
    }
    const int last = std::min(static_cast<int>(itemList_->size()), CellCount()) - 1;
    Picture2->resize(Picture2->width(), GridHeight(Cell(last).Place(), Picture1->height()));
    VScroll1->setMaximum(ScrollMaximum(Picture2->height(), Picture1->height()));
}

void frmItemExplorer::ReflowCells()
{
    if (!itemList_) {
        return;
    }
    // A resize while a category is drawn finds fewer cells than its list has items.
    const int  count = std::min(static_cast<int>(itemList_->size()), CellCount());
    const auto places = PlacesAfterResize(count, Picture1->width());
    for (std::size_t i = 0; i < places.size(); ++i) {
        cells_[i]->move(places[i].left, places[i].top);
    }
}

void frmItemExplorer::ResizeTicked()
{
    tmrResize->stop();
    PlaceControlsIn(size());
    ReflowCells();
    FitGrid();
}

ItemCell& frmItemExplorer::AddCell()
{
    auto* cell = new ItemCell(CellCount(), Picture2);
    cells_.push_back(cell);
    OnFocus(*cell, [this, cell] { CellGotFocus(*cell); });
    OnBlur(*cell, [this, cell] { CellLostFocus(*cell); });
    OnPress(*cell, [this, cell] {
        if (hoverMode_->isChecked()) {
            cell->setFocus();
        }
    });
    OnClick(*cell, [this, cell] {
        if (hoverMode_->isChecked()) {
            AddItemOf(*cell);
        }
    });
    OnDoubleClick(*cell, [this, cell] {
        if (!hoverMode_->isChecked()) {
            AddItemOf(*cell);
        }
    });
    return *cell;
}

void frmItemExplorer::UsePictures()
{
    pictures_.Use({.programFolder = ProgramFolder(),
                   .category = Category(),
                   .uoPath = Context().settings.UOPath,
                   .background = Context().tileBackColour,
                   .seeItemPics = [this] { return Context().ItemPicsWanted(); },
                   .status = [this](std::string_view status) { lblStatusText->setText(ui::Text(status)); }});
}

void frmItemExplorer::CellGotFocus(ItemCell& cell)
{
    const auto id = core::ToInteger32(cell.tag);
    current_ = cell.Index();
    PaintCell(cell, id);
    cell.DrawFrames();
    txtModelID->setText(ui::Text(ModelIdText(id)));
    cell.setAccessibleName(txtModelID->text());
}

void frmItemExplorer::CellLostFocus(ItemCell& cell)
{
    // A cell that is left because another category is drawn has nothing of the new one to show.
    if (!leavingGrid_ && !unloaded_) {
        PaintCell(cell, core::ToInteger32(cell.tag));
    }
}

void frmItemExplorer::PaintCell(ItemCell& cell, std::int32_t id)
{
    if (comboItemType->currentIndex() <= 0) {
        cell.Clear();
        return;
    }
    UsePictures();
    pictures_.GetCachedPicture(id, picture_);
    StartSaving();
    cell.Clear();
    cell.ShowPicture(picture_);
}

void frmItemExplorer::StartSaving()
{
    if (!pictures_.AllSaved()) {
        savingTimer_->start();
    }
}

void frmItemExplorer::SavePictures()
{
    if (busy) {
        return;
    }
    pictures_.SaveSome();
    if (pictures_.AllSaved()) {
        savingTimer_->stop();
    }
}

void frmItemExplorer::AddItemOf(const ItemCell& cell)
{
    AddItem(cell.tag, Modes(), Context().generation, Outlet());
}

void frmItemExplorer::CopyItemId()
{
    const auto shown = ui::Utf8(txtModelID->text());
    if (shown.empty()) {
        return;
    }
    const auto id = CopiedPart(shown);
    Context().CopyToClipboard(id);
    Outlet().Show(core::PlainBox("Item ID (" + id + ") copied to Clipboard."));
}

} // namespace qf::gamedata
