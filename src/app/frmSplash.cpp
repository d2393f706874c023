#include "app/frmSplash.h"

#include <QGuiApplication>
#include <QLabel>
#include <QProgressBar>
#include <QScreen>
#include <QVBoxLayout>

#include "app/quern_picture.h"
#include "core/product.h"
#include "ui/parts.h"

namespace qf::app {

namespace {

constexpr int Columns = 44;

} // namespace

frmSplash::frmSplash(ui::AppContext& context) : Panel(context, "frmSplash")
{
    setWindowFlag(Qt::FramelessWindowHint);
    setWindowTitle(ui::Text(core::ThisProduct.title));

    auto* picture = ui::MakeLabel(this, "", "");
    picture->setPixmap(QuernPicture(64));
    picture->setAlignment(Qt::AlignCenter);
    picture->setMinimumWidth(fontMetrics().averageCharWidth() * Columns);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(36, 28, 36, 28);
    layout->setSpacing(10);
    layout->addWidget(picture);
    layout->addWidget(ui::MakeLargeLabel(this, "lblProductName", ""));
    for (const auto* name : {"lblVersion", "lblPlatform", "lblCompanyProduct"}) {
        auto* label = ui::MakeLabel(this, name, "");
        label->setAlignment(Qt::AlignCenter);
        layout->addWidget(label);
    }
    layout->addWidget(ui::MakeLabel(this, "lblWarning", "Opening the world database and the main panel..."), 0,
                      Qt::AlignCenter);

    // For what is loaded later in the run; the start itself does not tell how far it is.
    auto* bar = new QProgressBar(this);
    bar->setObjectName(QStringLiteral("barTest"));
    bar->setRange(0, 100);
    bar->setValue(0);
    bar->hide();
    layout->addWidget(bar);
}

void frmSplash::Load()
{
    const auto fill = [this](const char* name, std::string_view text) {
        findChild<QLabel*>(QLatin1String(name))->setText(ui::Text(text));
    };
    fill("lblVersion", "Version " + core::VersionText());
    fill("lblProductName", core::ThisProduct.title);
    fill("lblPlatform", "Win32");
    fill("lblCompanyProduct", core::CompanyName);

    adjustSize();
    if (const auto* screen = QGuiApplication::primaryScreen()) {
        move(screen->availableGeometry().center() - rect().center());
    }
}

} // namespace qf::app
