#pragma once

#include <QAction>
#include <QElapsedTimer>
#include <QLabel>
#include <QMenuBar>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollBar>
#include <optional>
#include <string>
#include <vector>

#include "gamedata/catalogue.h"
#include "gamedata/explorer.h"
#include "gamedata/explorer_layout.h"
#include "gamedata/item_cell.h"
#include "gamedata/picture_cache.h"
#include "ui/panel.h"

namespace qf::gamedata {

/// Shows every item of a category as a grid of pictures and adds the one that is clicked. It is the one panel
/// of fixed places: its grid decides what stands where, and a resize follows a table.
class frmItemExplorer final : public ui::Panel {
  public:
    explicit frmItemExplorer(ui::AppContext& context);

    void Load() override;
    void Unload() override;

    /// Set while a category is drawn. Other events run between its cells; meanwhile the wheel and the arrow
    /// keys do nothing and no second category is begun.
    bool busy = false;

  protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* object, QEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    class Drawing;

    void     MakeMenu();
    QAction* MakeMode(QMenu* menu, std::string_view name, std::string_view caption, std::string_view hint);
    void     MakeUpperRow();
    void     MakeGrid();
    void     MakeLowerRow();
    void     PlaceControlsIn(QSize inner);

    /// How much larger the text is than the usual one, and a length that goes with it. The cells keep the size of
    /// their pictures.
    double Scale() const;
    int    Scaled(int pixels) const;

    void HoverModeChosen();
    void RepeatAddChosen();
    void TileModeChosen();

    void LoadCategoryList();
    void CategoryChosen();
    void RefreshCategories();
    void RebuildCache();

    void      DrawInitialGrid();
    void      DrawSpecificGrid(const std::string& category);
    void      DrawCells(const ItemList& list);
    void      LeaveGrid();
    void      HideCellsFrom(int first);
    bool      LetEventsRun(int cellsDone);
    void      FitGrid();
    void      ReflowCells();
    void      ResizeTicked();
    ItemCell& AddCell();
    ItemCell& Cell(int index) { return *cells_[static_cast<std::size_t>(index)]; }
    int       CellCount() const { return static_cast<int>(cells_.size()); }

    void      UsePictures();
    void      CellGotFocus(ItemCell& cell);
    void      CellLostFocus(ItemCell& cell);
    void      PaintCell(ItemCell& cell, std::int32_t id);
    void      StartSaving();
    void      SavePictures();
    void      AddItemOf(const ItemCell& cell);
    void      ScrollTo(const ItemCell& cell);
    ItemCell* FocusedCell() const;
    void      MoveFocus(const ItemCell& from, Step step);
    void      CopyItemId();

    AddModes           Modes() const;
    const std::string& ProgramFolder() { return Context().environment.programFolder; }
    std::string        Category() const;

    QMenuBar*     menuBar_;
    QAction*      hoverMode_;
    QAction*      repeatAdd_;
    QAction*      tileMode_;
    QComboBox*    comboItemType;
    QPushButton*  cmdRefreshCategories;
    QPushButton*  Command1;
    QPushButton*  cmdRemove;
    QPushButton*  cmdWipe;
    QPushButton*  cmdExit;
    QWidget*      Picture1;
    QWidget*      Picture2;
    QScrollBar*   VScroll1;
    QLabel*       lblStatusLabel;
    QLineEdit*    txtModelID;
    QPushButton*  cmdCopyItemID;
    QLabel*       lblStatusText;
    QProgressBar* prgLoadCategory;
    QTimer*       tmrResize;
    QTimer*       savingTimer_;

    std::vector<ItemCell*>  cells_;
    std::optional<ItemList> itemList_;
    PictureCache            pictures_;
    core::PixelSurface      picture_;
    QElapsedTimer           sinceEvents_;
    int                     shownCells_ = 0; ///< cells are shown from the first on
    int                     current_ = 0;    ///< the cell that the keyboard comes to
    int                     wheelTurn_ = 0;
    bool                    leavingGrid_ = false;
    bool                    unloaded_ = false;
    bool                    deletionHeld_ = false;
};

} // namespace qf::gamedata
