// How the item explorer is made of its controls, and where they stand.

#include <QMenu>
#include <QStyle>

#include "gamedata/frmItemExplorer.h"
#include "ui/parts.h"

namespace qf::gamedata {

namespace {

constexpr QSize DesignSize(620, 520);
constexpr QSize LeastSize(300, 200);
constexpr int   Margin = 3;
constexpr int   Gap = 5;
constexpr int   RowHeight = 25;
constexpr int   ExitWidth = 55;
constexpr int   ScrollBarWidth = 17;
constexpr int   LargestGridTop = 62;
constexpr int   MostListWidth = 220;
constexpr int   LeastListWidth = 30;
constexpr int   GapInUpperRow = 2;
constexpr int   MostProgressWidth = 240;
constexpr int   LeastProgressWidth = 30;
constexpr int   StatusTextHeight = 15;
constexpr int   ProgressHeight = 16;
constexpr int   ModelIdDigits = 15;
constexpr int   ResizeInterval = 250;
constexpr int   DesignMaximum = 2000;
constexpr int   SmallStep = 40;
constexpr int   LargeStep = 80;
constexpr int   HiddenBoxDigits = 4;

constexpr std::string_view Help = "Reloads item categories and item lists from \\ItemExplorer\\ inside root QF "
                                  "installation folder. Feel free to add your own categories/lists!";

/// The width that a button needs for its caption and no more.
int TightWidth(const QPushButton& button)
{
    return button.fontMetrics().horizontalAdvance(button.text()) + 14;
}

} // namespace

frmItemExplorer::frmItemExplorer(ui::AppContext& context)
    : Panel(context, "frmItemExplorer"), pictures_(context.fileNumbers)
{
    setWindowTitle(QStringLiteral("Item Explorer"));
    setMinimumSize(Scaled(LeastSize.width()), Scaled(LeastSize.height()));
    resize(Scaled(DesignSize.width()), Scaled(DesignSize.height()));
    MakeMenu();
    MakeUpperRow();
    MakeGrid();
    MakeLowerRow();
    PlaceControlsIn(size());

    tmrResize = new QTimer(this);
    tmrResize->setObjectName(QStringLiteral("tmrResize"));
    tmrResize->setInterval(ResizeInterval);
    OnTick(*tmrResize, [this] { ResizeTicked(); });

    // Without an interval: it ticks whenever there is nothing else to do.
    savingTimer_ = new QTimer(this);
    OnTick(*savingTimer_, [this] { SavePictures(); });
}

int frmItemExplorer::Scaled(int pixels) const
{
    return qRound(pixels * Scale());
}

double frmItemExplorer::Scale() const
{
    constexpr double UsualDpi = 96;
    return qMax(1.0, logicalDpiY() / UsualDpi);
}

void frmItemExplorer::MakeMenu()
{
    menuBar_ = new QMenuBar(this);
    menuBar_->setNativeMenuBar(false);
    auto* menu = menuBar_->addMenu(QStringLiteral("&Options..."));
    menu->setObjectName(QStringLiteral("Options"));
    menu->setToolTipsVisible(true);
    hoverMode_ = MakeMode(menu, "HoverMode", "&Hover Mode", "One click adds an item, instead of two");
    repeatAdd_ = MakeMode(menu, "RepeatAdd", "Repeat &Add", "Adds an item again and again (0.9x.x)");
    tileMode_ = MakeMode(menu, "TileMode", "&Tile Mode", "Lays an item as tiles");
    menu->addSeparator();
    auto* rebuild = menu->addAction(QStringLiteral("&Rebuild Cache"));
    rebuild->setObjectName(QStringLiteral("mnuRebuildCache"));
    rebuild->setToolTip(QStringLiteral("Draws the pictures of this category anew"));
    OnMenu(*hoverMode_, [this] { HoverModeChosen(); });
    OnMenu(*repeatAdd_, [this] { RepeatAddChosen(); });
    OnMenu(*tileMode_, [this] { TileModeChosen(); });
    OnMenu(*rebuild, [this] { RebuildCache(); });
    menuBar_->resize(width(), menuBar_->sizeHint().height());
}

QAction* frmItemExplorer::MakeMode(QMenu* menu, std::string_view name, std::string_view caption, std::string_view hint)
{
    auto* mode = menu->addAction(ui::Text(caption));
    mode->setObjectName(ui::Text(name));
    mode->setCheckable(true);
    mode->setToolTip(ui::Text(hint));
    return mode;
}

void frmItemExplorer::MakeUpperRow()
{
    comboItemType = new QComboBox(this);
    comboItemType->setObjectName(QStringLiteral("comboItemType"));
    comboItemType->setAccessibleName(QStringLiteral("Item category"));
    comboItemType->installEventFilter(this);
    OnChoose(*comboItemType, [this] { CategoryChosen(); });

    cmdRefreshCategories = ui::MakeButton(this, "cmdRefreshCategories", "", "Refresh Item Category Lists");
    cmdRefreshCategories->setIcon(style()->standardIcon(QStyle::SP_BrowserReload, nullptr, this));
    cmdRefreshCategories->setAccessibleName(cmdRefreshCategories->toolTip());
    OnClick(*cmdRefreshCategories, [this] { RefreshCategories(); });

    Command1 = ui::MakeButton(this, "Command1", "?", "What the button beside this one does");
    OnClick(*Command1, [this] { Outlet().Show(core::PlainBox(std::string(Help))); });

    cmdRemove = ui::MakeButton(this, "cmdRemove", "Remove Item", "Removes the item that you then target");
    cmdWipe = ui::MakeButton(this, "cmdWipe", "Wipe", "Opens the wipe panel");
    cmdExit = MakeExit(this, "cmdExit", "Leads back to the main panel", "EXIT");
    OnClick(*cmdRemove, [this] { RemoveItem(Context().generation, Outlet()); });
    OnClick(*cmdWipe, [this] { Context().panels.Show("frmWipe"); });

    const int top = menuBar_->height() + Scaled(Margin);
    const int height = Scaled(RowHeight);
    comboItemType->setGeometry(Scaled(Margin), top, Scaled(MostListWidth), height);
    cmdRefreshCategories->setGeometry(0, top, height, height);
    Command1->setGeometry(0, top, height, height);
    cmdRemove->setGeometry(0, top, TightWidth(*cmdRemove), height);
    cmdWipe->setGeometry(0, top, TightWidth(*cmdWipe), height);
    cmdExit->setGeometry(0, top, Scaled(ExitWidth), height);
}

void frmItemExplorer::MakeGrid()
{
    Picture1 = new QWidget(this);
    Picture1->setObjectName(QStringLiteral("Picture1"));
    Picture1->setBackgroundRole(QPalette::Base);
    Picture1->setAutoFillBackground(true);
    Picture2 = new QWidget(Picture1);
    Picture2->setObjectName(QStringLiteral("Picture2"));
    Picture1->move(Scaled(Margin),
                   std::min(menuBar_->height() + Scaled(Margin + RowHeight + Gap), Scaled(LargestGridTop)));

    VScroll1 = new QScrollBar(Qt::Vertical, this);
    VScroll1->setObjectName(QStringLiteral("VScroll1"));
    VScroll1->setRange(0, DesignMaximum);
    VScroll1->setSingleStep(SmallStep);
    VScroll1->setPageStep(LargeStep);
    VScroll1->resize(Scaled(ScrollBarWidth), 0);
    for (QWidget* part : {Picture1, Picture2, static_cast<QWidget*>(VScroll1)}) {
        part->installEventFilter(this);
    }
    OnScroll(*VScroll1, [this] { Picture2->move(0, -VScroll1->value()); });
}

void frmItemExplorer::MakeLowerRow()
{
    txtModelID = ui::MakeTextBox(this, "txtModelID", ModelIdDigits);
    txtModelID->setReadOnly(true);
    lblStatusLabel = ui::MakeLabelFor(txtModelID, "lblStatusLabel", "Item ID:");
    cmdCopyItemID = ui::MakeButton(this, "cmdCopyItemID", "Copy ID", "Copies the number of the chosen item");
    OnClick(*cmdCopyItemID, [this] { CopyItemId(); });

    lblStatusText = ui::MakeLabel(this, "lblStatusText", "Loading...");
    lblStatusText->hide();
    prgLoadCategory = new QProgressBar(this);
    prgLoadCategory->setObjectName(QStringLiteral("prgLoadCategory"));
    prgLoadCategory->setTextVisible(false);
    prgLoadCategory->hide();
    for (const std::string_view name : {"txtRADD", "txtHover"}) {
        ui::MakeTextBox(this, name, HiddenBoxDigits)->hide();
    }

    int        left = Scaled(Margin + Gap);
    const auto place = [&](QWidget& control, int width) {
        control.setGeometry(left, 0, width, Scaled(RowHeight));
        left += width + Scaled(Gap);
    };
    place(*lblStatusLabel, lblStatusLabel->sizeHint().width());
    place(*txtModelID, txtModelID->minimumWidth());
    place(*cmdCopyItemID, TightWidth(*cmdCopyItemID));
    lblStatusText->setGeometry(left, 0, Scaled(MostProgressWidth), Scaled(StatusTextHeight));
    prgLoadCategory->setGeometry(left, 0, Scaled(MostProgressWidth), Scaled(ProgressHeight));
}

void frmItemExplorer::PlaceControlsIn(QSize inner)
{
    // The places are told for text of the usual size.
    const auto usual = [scale = Scale()](int pixels) { return qRound(pixels / scale); };
    const auto places = PlaceControls(
        usual(inner.width()), usual(inner.height()),
        {.scrollBar = usual(VScroll1->width()), .wipe = usual(cmdWipe->width()), .remove = usual(cmdRemove->width())});
    const auto moveLeft = [](QWidget& control, int left) { control.move(left, control.y()); };
    const auto moveTop = [this](QWidget& control, int top) { control.move(control.x(), Scaled(top)); };

    Picture1->resize(Scaled(places.viewportWidth), Scaled(places.viewportHeight));
    VScroll1->setGeometry(Scaled(places.scrollBarLeft), Picture1->y(), VScroll1->width(), Picture1->height());
    moveLeft(*cmdExit, Scaled(places.exitLeft));
    moveLeft(*cmdWipe, Scaled(places.wipeLeft));
    moveLeft(*cmdRemove, Scaled(places.removeLeft));
    for (auto* control : {static_cast<QWidget*>(lblStatusLabel), static_cast<QWidget*>(txtModelID),
                          static_cast<QWidget*>(cmdCopyItemID)}) {
        moveTop(*control, places.modelRowTop);
    }
    moveTop(*lblStatusText, places.statusTextTop);
    moveTop(*prgLoadCategory, places.progressTop);
    Picture2->resize(Picture1->width(), Picture2->height());

    // What has no place of its own takes the room that is left.
    const int gap = Scaled(GapInUpperRow);
    const int room = cmdRemove->x() - Scaled(Margin) - 3 * gap - cmdRefreshCategories->width() - Command1->width();
    comboItemType->resize(std::clamp(room, Scaled(LeastListWidth), Scaled(MostListWidth)), Scaled(RowHeight));
    moveLeft(*cmdRefreshCategories, comboItemType->geometry().right() + 1 + gap);
    moveLeft(*Command1, cmdRefreshCategories->geometry().right() + 1 + gap);
    const int progress = std::clamp(inner.width() - Scaled(Gap) - prgLoadCategory->x(), Scaled(LeastProgressWidth),
                                    Scaled(MostProgressWidth));
    lblStatusText->resize(progress, lblStatusText->height());
    prgLoadCategory->resize(progress, prgLoadCategory->height());
}

} // namespace qf::gamedata
