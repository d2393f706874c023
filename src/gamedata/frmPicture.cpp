#include "gamedata/frmPicture.h"

#include <QVBoxLayout>

namespace qf::gamedata {

namespace {

/// Around the picture, in pixels: together 150 twips in each direction.
constexpr int Margin = 5;

} // namespace

frmPicture::frmPicture(ui::AppContext& context) : Panel(context, "frmPicture"), pctMain(new ui::PictureSurface(this))
{
    setWindowTitle(QStringLiteral("Picture"));
    pctMain->setObjectName(QStringLiteral("pctMain"));
    pctMain->setAccessibleName(QStringLiteral("Picture of the tile"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    // The panel follows the picture at once, also to a smaller size.
    layout->setSizeConstraint(QLayout::SetNoConstraint);
    layout->addWidget(pctMain, 0, Qt::AlignTop | Qt::AlignLeft);
}

void frmPicture::Load()
{
    ApplyStayOnTopRule();
}

void frmPicture::Draw(std::int32_t id)
{
    Context().DrawStaticTile(id, *pctMain);
    resize(pctMain->width() + 2 * Margin, pctMain->height() + 2 * Margin);
}

} // namespace qf::gamedata
