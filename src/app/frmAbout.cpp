#include "app/frmAbout.h"

#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QVBoxLayout>

#include "app/quern_picture.h"
#include "core/product.h"
#include "core/twips.h"
#include "ui/click_label.h"
#include "ui/parts.h"

namespace qf::app {

namespace {

constexpr int TickMilliseconds = 70;

constexpr auto Credits =
    "Quernfield sits beside the game client of a Game Master and types the server's commands for every floor, wall, "
    "roof, tree and item that is picked on its panels.\n\n"
    "It is made with Qt, SQLite, xcb and SDL by volunteers, for volunteers who build worlds by hand, evening after "
    "evening. It is free software under the MIT licence.\n\n"
    "Thanks to everyone who ever laid a floor one tile at a time.";

} // namespace

frmAbout::frmAbout(ui::AppContext& context) : Panel(context, "frmAbout")
{
    setWindowTitle(QStringLiteral("About Quernfield 2025"));
    Layout();

    OnClick(*Picture1, [this] { Picture2->setVisible(Picture2->isHidden()); });
    OnClick(*Picture2, [this] { Label5->show(); });
    OnClick(*Label5, [this] { Label5->hide(); });
    OnClick(*findChild<QLabel*>(QStringLiteral("Label3")),
            [this] { Context().environment.shell.OpenAddress(core::HomePage); });
    OnClick(*findChild<QPushButton*>(QStringLiteral("cmdOK")), [this] { Context().panels.Unload(*this); });

    Timer2 = new QTimer(this);
    Timer2->setObjectName(QStringLiteral("Timer2"));
    OnTick(*Timer2, [this] { Tick(); });
}

void frmAbout::Layout()
{
    const auto clickable = [](QWidget* parent, const char* name, std::string_view text) {
        auto* label = new ui::ClickLabel(ui::Text(text), parent);
        label->setObjectName(QLatin1String(name));
        return label;
    };
    Picture1 = clickable(this, "Picture1", "");
    Picture1->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    Picture1->setAccessibleName(QStringLiteral("Shows and hides the quern"));
    Picture1->setAutoFillBackground(true);
    Picture1->setBackgroundRole(QPalette::Base);
    Picture1->setFixedSize(190, 190);

    Picture2 = clickable(Picture1, "Picture2", "");
    Picture2->setAccessibleName(QStringLiteral("The quern"));
    Picture2->setPixmap(QuernPicture(48));
    Picture2->setFixedSize(48, 48);

    Label5 = clickable(this, "Label5", "Ground by hand, tile by tile.");
    Label5->setAlignment(Qt::AlignCenter);
    ui::KeepPlaceWhenHidden(*Label5);
    Label5->hide();

    auto* address = clickable(this, "Label3", core::HomePage);
    auto  font = address->font();
    font.setUnderline(true);
    address->setFont(font);
    // Some dark desktops keep the blue of light ones.
    const bool readable = ui::Contrast(palette().color(QPalette::Link), palette().color(QPalette::Window)) >= 4.5;
    address->setForegroundRole(readable ? QPalette::Link : QPalette::WindowText);
    address->setToolTip(QStringLiteral("Opens the home page"));

    auto* credits = new QPlainTextEdit(QString::fromUtf8(Credits), this);
    credits->setObjectName(QStringLiteral("txtCredits"));
    credits->setReadOnly(true);
    credits->setAccessibleName(QStringLiteral("Credits"));
    credits->setTabChangesFocus(true);
    credits->setMinimumSize(320, 110);

    auto* ok = ui::MakeButton(this, "cmdOK", "OK");
    SetDefault(*ok);

    auto* left = new QVBoxLayout;
    left->addWidget(Picture1);
    left->addWidget(Label5);

    auto* right = new QVBoxLayout;
    auto* title = ui::MakeLargeLabel(this, "lblTitle", core::ThisProduct.title);
    title->setAlignment(Qt::AlignLeft);
    right->addWidget(title);
    right->addWidget(ui::MakeLabel(this, "lblVersion", "Version " + core::VersionText()));
    right->addWidget(address, 0, Qt::AlignLeft);
    right->addSpacing(6);
    right->addWidget(credits, 1);

    auto* body = new QHBoxLayout;
    body->setSpacing(16);
    body->addLayout(left);
    body->addLayout(right, 1);

    auto* all = new QVBoxLayout(this);
    all->addLayout(body, 1);
    all->addWidget(ok, 0, Qt::AlignRight);
}

void frmAbout::Load()
{
    ApplyStayOnTopRule();
    Timer2->start(TickMilliseconds);
}

void frmAbout::Tick()
{
    using core::TwipsPerPixel;
    motion_.Advance(Picture2->width() * TwipsPerPixel, Picture2->height() * TwipsPerPixel,
                    Picture1->width() * TwipsPerPixel, Picture1->height() * TwipsPerPixel);
    Picture2->move(motion_.left / TwipsPerPixel, motion_.top / TwipsPerPixel);
}

} // namespace qf::app
