#include "gamedata/frmClothing.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "gamedata/art.h"
#include "ui/parts.h"

namespace qf::gamedata {

namespace {

constexpr int ListColumns = 22;

QComboBox* MakeList(QWidget* parent, std::string_view name, std::string_view toolTip)
{
    auto* list = new QComboBox(parent);
    list->setObjectName(ui::Text(name));
    list->setToolTip(ui::Text(toolTip));
    list->setMinimumContentsLength(ListColumns);
    list->setMaxVisibleItems(16);
    return list;
}

void Fill(QComboBox& list, const auto& rows)
{
    for (const auto& row : rows) {
        list.addItem(ui::Text(row.name));
    }
}

} // namespace

frmClothing::frmClothing(ui::AppContext& context) : Panel(context, "frmClothing")
{
    setWindowTitle(QStringLiteral("Clothing & Hairs - QF"));

    auto* lists = new QVBoxLayout;
    lists->addWidget(MakeClothing());
    lists->addWidget(MakeGroundList("Hair", cmbHair, "cmbHair", Hairs(), "cmdAddHair", "Add Hair on Ground"));
    lists->addWidget(MakeGroundList("Beard", cmbBeard, "cmbBeard", Beards(), "cmdAddBeard", "Add Beard on Ground"));
    lists->addStretch(1);

    auto* body = new QHBoxLayout;
    body->addLayout(lists, 1);
    body->addWidget(MakePicture());

    auto* all = new QVBoxLayout(this);
    all->addLayout(body, 1);
    all->addLayout(MakeBottomRow());
}

QWidget* frmClothing::MakeClothing()
{
    auto* frame = ui::MakeFrame(this, "", "Clothing");
    cmbClothing = MakeList(frame, "cmbClothing", "The category of clothing");
    cmbSubClothing = MakeList(frame, "cmbSubClothing", "The piece of clothing");
    OnChoose(*cmbClothing, [this] { CategoryChosen(); });
    OnChoose(*cmbSubClothing, [this] { DrawChosenGarment(); });
    auto* add = ui::MakeButton(frame, "cmdAddClothing", "Add Clothing", "Adds the chosen piece where you click next");
    OnClick(*add, [this] { AddGarment(ChosenGarment(), Context().generation, Outlet()); });

    auto* layout = new QGridLayout(frame);
    layout->addWidget(ui::MakeLabelFor(cmbClothing, "", "Category"), 0, 0);
    layout->addWidget(cmbClothing, 0, 1);
    layout->addWidget(ui::MakeLabelFor(cmbSubClothing, "", "Garment"), 1, 0);
    layout->addWidget(cmbSubClothing, 1, 1);
    layout->addWidget(add, 2, 0, 1, 2);
    layout->setColumnStretch(1, 1);
    return frame;
}

QWidget* frmClothing::MakeGroundList(std::string_view caption, QComboBox*& list, std::string_view listName,
                                     std::span<const Garment> rows, std::string_view button,
                                     std::string_view buttonCaption)
{
    auto* frame = ui::MakeFrame(this, "", caption);
    list = MakeList(frame, listName, "");
    list->setAccessibleName(ui::Text(caption));
    auto* add = ui::MakeButton(frame, button, buttonCaption, "Adds the chosen row where you click next");
    OnClick(*add, [this, rows, chosen = list] {
        AddGarment(GarmentAt(rows, chosen->currentIndex()), Context().generation, Outlet());
    });

    auto* layout = new QVBoxLayout(frame);
    layout->addWidget(list);
    layout->addWidget(add);
    return frame;
}

QWidget* frmClothing::MakePicture()
{
    auto* frame = ui::MakeFrame(this, "", "Picture");
    pctItem = new ui::PictureSurface(frame);
    pctItem->setObjectName(QStringLiteral("pctItem"));
    pctItem->setAccessibleName(QStringLiteral("Picture of the garment"));
    auto* layout = new QVBoxLayout(frame);
    layout->addWidget(ui::MakePicturePlace(frame, *pctItem), 0, Qt::AlignHCenter);
    layout->addStretch(1);
    return frame;
}

QLayout* frmClothing::MakeBottomRow()
{
    auto* dye = ui::MakeButton(this, "cmdDyeVat", "Dye", "Opens the colours with which an item can be dyed");
    auto* leave = MakeExit(this, "cmdReturn");
    OnClick(*dye, [this] { Context().panels.Show("frmDye"); });

    auto* row = new QHBoxLayout;
    row->addWidget(dye);
    row->addStretch(1);
    row->addWidget(leave);
    return row;
}

void frmClothing::Load()
{
    Fill(*cmbHair, Hairs());
    Fill(*cmbBeard, Beards());
    Fill(*cmbClothing, GarmentCategories());
    for (auto* list : {cmbHair, cmbBeard, cmbClothing}) {
        Choose(*list, 0);
    }
    ApplyStayOnTopRule();
}

const Garment* frmClothing::ChosenGarment() const
{
    return GarmentAt(GarmentsOf(cmbClothing->currentIndex()), cmbSubClothing->currentIndex());
}

void frmClothing::CategoryChosen()
{
    cmbSubClothing->clear();
    Fill(*cmbSubClothing, GarmentsOf(cmbClothing->currentIndex()));
    if (cmbSubClothing->count() > 0) {
        Choose(*cmbSubClothing, 0);
    }
}

void frmClothing::DrawChosenGarment()
{
    const auto* garment = ChosenGarment();
    if (garment == nullptr || !Context().settings.ItemPic) {
        return;
    }
    auto id = ItemIdOf(*garment);
    DrawStaticTile2(id, pctItem->Surface(),
                    {.seeItemPics = Context().ItemPicsWanted(), .uoPath = Context().settings.UOPath},
                    Context().fileNumbers);
    pctItem->update();
}

} // namespace qf::gamedata
