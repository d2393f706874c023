#include "gamedata/frmDye.h"

#include <QAbstractTableModel>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QProgressBar>
#include <QStyle>
#include <QStyleOption>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QVBoxLayout>
#include <utility>

#include "gamedata/dye.h"
#include "ui/parts.h"

namespace qf::gamedata {

namespace {

constexpr int Rows = HueGroup::Entries;
constexpr int Columns = static_cast<int>(std::tuple_size_v<decltype(HueEntry::colours)>);

/// Of a cell, in tenths of a text line's height.
constexpr int CellWidth = 12;
constexpr int CellHeight = 16;
constexpr int NameLength = 20;

/// One group of the hues as a table of colours: a row for each hue.
class GroupModel final : public QAbstractTableModel {
  public:
    GroupModel(const HueTable& hues, QObject* parent) : QAbstractTableModel(parent), hues_(hues) {}

    void Show(int group)
    {
        group_ = group;
        Q_EMIT dataChanged(index(0, 0), index(Rows - 1, Columns - 1));
    }

    const HueGroup& Group() const { return hues_.groups[static_cast<std::size_t>(group_)]; }

    int rowCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : Rows; }
    int columnCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : Columns; }

    QVariant data(const QModelIndex& cell, int role) const override
    {
        if (!cell.isValid()) {
            return {};
        }
        if (role == Qt::BackgroundRole) {
            const auto& hue = Group().entries[static_cast<std::size_t>(cell.row())];
            return QColor(QRgb(ToRgb(hue.colours[static_cast<std::size_t>(cell.column())])));
        }
        if (role == Qt::ToolTipRole || role == Qt::AccessibleTextRole) {
            const auto hue = HueNumber(group_, cell.row());
            return QStringLiteral("Hue %1: %2").arg(hue).arg(ui::Text(DyeCommand(hue)));
        }
        return {};
    }

  private:
    const HueTable& hues_;
    int             group_ = 0;
};

/// Paints a cell as its plain colour, with a frame around the one that the keyboard stands on.
class ColourDelegate final : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& cell) const override
    {
        painter->fillRect(option.rect, cell.data(Qt::BackgroundRole).value<QColor>());
        if ((option.state & QStyle::State_HasFocus) != 0) {
            // Dark and light, so that it is seen on every colour.
            painter->setPen(Qt::black);
            painter->drawRect(option.rect.adjusted(0, 0, -1, -1));
            painter->setPen(Qt::white);
            painter->drawRect(option.rect.adjusted(1, 1, -2, -2));
        }
    }
};

/// A bar that is steered by the keyboard too, and shows when it is. Qt's own one is made for lists, and takes the
/// arrows to the sides the other way round so that the wheel turns downwards to greater values.
class Bar final : public QScrollBar {
  public:
    explicit Bar(QWidget* parent) : QScrollBar(Qt::Horizontal, parent) {}

  protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        switch (event->key()) {
        case Qt::Key_Left: triggerAction(SliderSingleStepSub); break;
        case Qt::Key_Right: triggerAction(SliderSingleStepAdd); break;
        default: QScrollBar::keyPressEvent(event);
        }
    }

    void paintEvent(QPaintEvent* event) override
    {
        QScrollBar::paintEvent(event);
        if (hasFocus()) {
            QStyleOptionFocusRect option;
            option.initFrom(this);
            option.backgroundColor = palette().color(QPalette::Window);
            QPainter painter(this);
            style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
        }
    }
};

QScrollBar* MakeBar(QWidget* parent, std::string_view name, std::string_view toolTip)
{
    auto* bar = new Bar(parent);
    bar->setObjectName(ui::Text(name));
    bar->setToolTip(ui::Text(toolTip));
    bar->setFocusPolicy(Qt::StrongFocus);
    return bar;
}

} // namespace

/// The grid of colours. What a click does, Enter and the space bar do for the cell that the keyboard stands on.
class frmDye::Vat final : public QTableView {
  public:
    Vat(const HueTable& hues, QWidget* parent) : QTableView(parent), model_(new GroupModel(hues, this))
    {
        setModel(model_);
        setItemDelegate(new ColourDelegate(this));
        setSelectionMode(QAbstractItemView::NoSelection);
        setEditTriggers(QAbstractItemView::NoEditTriggers);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setShowGrid(false);
        setTabKeyNavigation(false);
        for (auto* header : {horizontalHeader(), verticalHeader()}) {
            header->hide();
            header->setMinimumSectionSize(1);
            header->setSectionResizeMode(QHeaderView::Stretch);
        }
        const int frame = 2 * frameWidth();
        const int line = fontMetrics().height();
        setMinimumSize(Columns * line * CellWidth / 10 + frame, Rows * line * CellHeight / 10 + frame);
    }

    /// Shows a group's colours in one step. The cell in the last corner is the selected one afterwards.
    const HueGroup& ShowGroup(int group)
    {
        model_->Show(group);
        setCurrentIndex(model_->index(Rows - 1, Columns - 1));
        return model_->Group();
    }

  protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        switch (event->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space: Q_EMIT clicked(currentIndex()); break;
        default: QTableView::keyPressEvent(event);
        }
    }

    void mouseDoubleClickEvent(QMouseEvent* event) override
    {
        if (indexAt(event->position().toPoint()) == currentIndex()) {
            doubleClicked_ = true;
        } else {
            QTableView::mouseDoubleClickEvent(event);
        }
    }

    void mouseReleaseEvent(QMouseEvent* event) override
    {
        // The second release of a double click is no click of its own.
        if (!std::exchange(doubleClicked_, false)) {
            QTableView::mouseReleaseEvent(event);
        }
    }

  private:
    GroupModel* model_;
    bool        doubleClicked_ = false;
};

frmDye::frmDye(ui::AppContext& context) : Panel(context, "frmDye")
{
    setWindowTitle(QStringLiteral("Dyeing - Quernfield 2025"));

    auto* all = new QVBoxLayout(this);
    all->addWidget(MakeColours(), 1);
    all->addLayout(MakeBottomRow());
    sclCurrentHue->setFocus();
}

QWidget* frmDye::MakeColours()
{
    auto* frame = ui::MakeFrame(this, "", "Hues");
    flxDyeVat = new Vat(Context().hues, frame);
    flxDyeVat->setObjectName(QStringLiteral("flxDyeVat"));
    flxDyeVat->setAccessibleName(QStringLiteral("Hues, one a row"));
    OnCell(*flxDyeVat, [this] { SendSelectedHue(); });

    sclCurrentHue = MakeBar(frame, "sclCurrentHue", "Eight hues a step");
    sclCurrentHue->setRange(0, HueTable::Groups - 1);
    OnScroll(*sclCurrentHue, [this] { ShowGroup(); });

    txtDyeVat = ui::MakeTextBox(frame, "txtDyeVat", NameLength);
    txtDyeVat->setReadOnly(true);
    txtDyeVat->setToolTip(QStringLiteral("The name of the first hue shown"));

    auto* intensity = MakeBar(frame, "sclIntensity", "Changes nothing");

    auto* layout = new QGridLayout(frame);
    layout->addWidget(flxDyeVat, 0, 0, 1, 4);
    layout->addWidget(ui::MakeLabelFor(sclCurrentHue, "", "Group"), 1, 0);
    layout->addWidget(sclCurrentHue, 1, 1);
    layout->addWidget(ui::MakeLabelFor(txtDyeVat, "", "Name"), 1, 2);
    layout->addWidget(txtDyeVat, 1, 3);
    layout->addWidget(ui::MakeLabelFor(intensity, "", "Intensity"), 2, 0);
    layout->addWidget(intensity, 2, 1);
    layout->setRowStretch(0, 1);
    layout->setColumnStretch(1, 1);
    return frame;
}

QLayout* frmDye::MakeBottomRow()
{
    auto* help = ui::MakeButton(this, "Command1", "Help!", "Says how an item is dyed");
    auto* leave = MakeExit(this, "cmdExit");
    OnClick(*help, [this] { ShowDyeHelp(Outlet()); });

    auto* row = new QHBoxLayout;
    row->addWidget(help);
    row->addStretch(1);
    row->addWidget(leave);
    return row;
}

void frmDye::Load()
{
    if (!Context().hues.loaded) {
        LoadHues();
    }
    ShowGroup();
    ApplyStayOnTopRule();
}

void frmDye::LoadHues()
{
    QProgressBar*     bar = nullptr;
    const HueProgress progress{
        .begin =
            [&] {
                auto& splash = Context().panels.Touch("frmSplash");
                auto& label = *splash.findChild<QLabel*>(QStringLiteral("lblWarning"));
                label.setText(QStringLiteral("Loading Hue Data now"));
                label.repaint();
                bar = splash.findChild<QProgressBar*>(QStringLiteral("barTest"));
                bar->show();
            },
        .group = [&](int group) { bar->setValue(HuePercent(group)); },
    };
    LoadHueData(Context().settings.UOPath, Context().hues, Context().fileNumbers, progress);
}

void frmDye::ShowGroup()
{
    const auto& group = flxDyeVat->ShowGroup(sclCurrentHue->value());
    txtDyeVat->setText(ui::Text(GroupName(group)));
}

void frmDye::SendSelectedHue()
{
    Outlet().Send(DyeCommand(HueNumber(sclCurrentHue->value(), flxDyeVat->currentIndex().row())));
}

} // namespace qf::gamedata
