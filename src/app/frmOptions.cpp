#include "app/frmOptions.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QPointer>
#include <QVBoxLayout>

#include "client/calibration.h"
#include "core/number_rules.h"
#include "core/text.h"
#include "ui/parts.h"

namespace qf::app {

namespace {

constexpr int PathDigits = 44;
constexpr int PrefixDigits = 6;
constexpr int PlaceDigits = 6;

constexpr QRgb CalibratingColour = 0xFFFF0000;
constexpr QRgb ReadyColour = 0xFF00FF00;
constexpr QRgb DisplayColour = 0xFF101214;
constexpr QRgb DisplayTextColour = 0xFFE0E4E8;

constexpr std::string_view CalibrationInfo =
    "NOTE: This does not apply to the ClassicUO open source client, only the regular UO clients! Calibration is needed "
    "to get the Automatic Retrieval of Coordinates to work. You'll need to do this once every time the UO Client is "
    "updated to a newer version, and if you switch between UO:R and UO:Third Dawn. The results are saved in the "
    "windows registry, and auto-loaded every time Quernfield is started.";

bool IsTicked(const QCheckBox& box)
{
    return box.checkState() != Qt::Unchecked;
}

/// 0, 1 or, for the grey state, 2.
int ValueOf(const QCheckBox& box)
{
    switch (box.checkState()) {
    case Qt::Unchecked: return 0;
    case Qt::Checked: return 1;
    case Qt::PartiallyChecked: return 2;
    }
    return 0;
}

} // namespace

// clang-format off
const frmOptions::PathRow frmOptions::pathRows[] = {
    {"txtPathUO",        "Path to UO Client folder:",   "cmdBrowseUO",        "Browse for UO directory",                         "*.exe",                               "UO Client Executable|client.exe",                                           true},
    {"txtPathZarn",      "Path to Zarn",                "cmdBrowseZarn",      "Browse for Zarn directory",                       "*zarn*.exe",                          "Zarn Executable|*zarn*.exe;",                                               false},
    {"txtPathInsideUO",  "Path to UOFiddler/InsideUO",  "cmdBrowseInsideUO",  "Browse for UOFiddler/InsideUO directory",         "*uofiddler.exe*;*insideuo.exe*",      "UOFiddler|*uofiddler.exe*; InsideUO Executable|*insideuo.exe*",             true},
    {"txtPathUOG",       "Path to Razor",               "cmdBrowseUOG",       "Browse for Razor/UORice NoEncrypt-executable",    "*razor.exe*;*no_crypt_client.exe*",   "Razor|*razor.exe*; No_Crypt_Client|*no_crypt_client.exe*",                  false},
};
// clang-format on

frmOptions::frmOptions(ui::AppContext& context) : Panel(context, "frmOptions"), optZarnVer(*this, "optZarnVer")
{
    setWindowTitle(QStringLiteral("Configuration - Quernfield 2025"));

    auto* all = new QVBoxLayout(this);
    all->addWidget(MakePaths());
    auto* lower = new QHBoxLayout;
    lower->addWidget(MakeClient(), 1);
    auto* right = new QVBoxLayout;
    right->addWidget(MakeServer());
    right->addWidget(MakeCalibration(), 1);
    lower->addLayout(right, 1);
    all->addLayout(lower, 1);
    all->addLayout(MakeBottomRow());
}

QWidget* frmOptions::MakePaths()
{
    auto* frame = ui::MakeFrame(this, "", "Paths");
    auto* layout = new QGridLayout(frame);
    int   line = 0;
    for (const auto& row : pathRows) {
        auto* box = new ui::PathBox(frame);
        box->setObjectName(ui::Text(row.box));
        box->setMinimumWidth(box->fontMetrics().horizontalAdvance(QString(PathDigits, QLatin1Char('0'))));
        OnChange(*box, [this] { dirty_ = true; });
        auto* browse = ui::MakeButton(frame, row.button, "Browse..");
        OnClick(*browse, [this, &row, box] { Browse(row, *box); });
        layout->addWidget(ui::MakeLabelFor(box, "", row.label), line, 0);
        layout->addWidget(box, line, 1);
        layout->addWidget(browse, line, 2);
        ++line;
    }
    layout->setColumnStretch(1, 1);
    return frame;
}

QWidget* frmOptions::MakeClient()
{
    auto* frame = ui::MakeFrame(this, "", "Client");
    auto* layout = new QVBoxLayout(frame);

    auto* prefix = new QHBoxLayout;
    txtCommandPrefix = ui::MakeTextBox(frame, "txtCommandPrefix", PrefixDigits);
    txtCommandPrefix->setToolTip(QStringLiteral("The command prefix used before GM commands on your shard, usually ' "
                                                "or . for Zarn shards"));
    OnChange(*txtCommandPrefix, [this] { dirty_ = true; });
    prefix->addWidget(ui::MakeLabelFor(txtCommandPrefix, "", "Command Prefix"));
    prefix->addWidget(txtCommandPrefix);
    prefix->addStretch(1);
    layout->addLayout(prefix);

    const auto change = [this] { dirty_ = true; };
    chkItemPics = MakeCheck(frame, "chkItemPics", "See Item Pics",
                            "If enabled, QF attempts to display item pictures based on art.mul/artidx.mul from the "
                            "specified UO client folder above",
                            change);
    ChkStayOnTop = MakeCheck(frame, "ChkStayOnTop", "Stay On Top",
                             "If checked, QF will try to stay on top of other windows", change);
    chkUseTD = MakeCheck(frame, "chkUseTD", "Use 3D Client", "", [this] { ThirdDawnClicked(); });
    chkUseClassicUO = MakeCheck(frame, "chkUseClassicUO", "Use ClassicUO",
                                "If you're using the open-source ClassicUO client, check this, or you won't be able "
                                "to send any commands to the client",
                                [this] { ClassicClicked(); });
    chkUseVista = MakeCheck(frame, "chkUseVista", "Using Win 11/10/8",
                            "If checked, uses an improved method of sending commands to client in Windows versions "
                            "from Vista to Win10+");
    for (auto* box : {chkItemPics, ChkStayOnTop, chkUseTD, chkUseClassicUO, chkUseVista}) {
        layout->addWidget(box);
    }
    layout->addStretch(1);
    return frame;
}

QCheckBox* frmOptions::MakeCheck(QWidget* parent, std::string_view name, std::string_view caption,
                                 std::string_view toolTip, std::function<void()> handler)
{
    auto* box = new QCheckBox(ui::Text(caption), parent);
    box->setObjectName(ui::Text(name));
    box->setToolTip(ui::Text(toolTip));
    ui::KeepPlaceWhenHidden(*box);
    if (handler) {
        OnCheck(*box, std::move(handler));
    }
    return box;
}

QWidget* frmOptions::MakeServer()
{
    auto* frame = ui::MakeFrame(this, "Frame1", "Zarn Version");
    auto* layout = new QHBoxLayout(frame);
    layout->addWidget(&optZarnVer.Add(0, "0.70.x", frame));
    layout->addWidget(&optZarnVer.Add(1, "0.9x.x", frame));
    layout->addStretch(1);
    optZarnVer.onSelect = [this](int) { Guard([this] { dirty_ = true; }); };
    return frame;
}

QWidget* frmOptions::MakeCalibration()
{
    auto* frame = ui::MakeFrame(this, "", "Calibration");
    auto* layout = new QVBoxLayout(frame);

    auto*                                               place = new QHBoxLayout;
    const std::pair<std::string_view, std::string_view> boxes[] = {{"x", "Label2"}, {"y", "Label3"}, {"z", "Label4"}};
    for (const auto& [name, labelName] : boxes) {
        auto* box = ui::MakeTextBox(frame, name, PlaceDigits);
        auto* label = ui::MakeLabelFor(box, labelName, ui::Utf8(ui::Text(name).toUpper()));
        for (QWidget* control : {static_cast<QWidget*>(label), static_cast<QWidget*>(box)}) {
            ui::KeepPlaceWhenHidden(*control);
            place->addWidget(control);
            placeControls_.push_back(control);
        }
    }
    layout->addLayout(place);

    lblCalibrate = ui::MakeLabel(frame, "lblCalibrate", "Ready for Calibration");
    lblCalibrate->setAlignment(Qt::AlignCenter);
    lblCalibrate->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    lblCalibrate->setMargin(lblCalibrate->fontMetrics().height() / 3);
    // Both colours of its text are too bright for a light ground, and the red one too dark for all but the darkest.
    lblCalibrate->setAutoFillBackground(true);
    ShowCalibrationState("Ready for Calibration", QColor::fromRgb(DisplayTextColour));
    layout->addWidget(lblCalibrate);

    auto* buttons = new QHBoxLayout;
    auto* calibrate = ui::MakeButton(frame, "cmdCalibrate", "Calibrate",
                                     "Calibrate essentially attempts to verify that QF can find the player's position "
                                     "from the UO client");
    auto* info = ui::MakeButton(frame, "Command2", "Info on Calibration");
    OnClick(*calibrate, [this] { CalibrateHere(); });
    OnClick(*info, [this] { Outlet().Show(core::PlainBox(std::string(CalibrationInfo))); });
    buttons->addWidget(calibrate, 1);
    buttons->addWidget(info, 1);
    layout->addLayout(buttons);
    layout->addStretch(1);
    return frame;
}

QLayout* frmOptions::MakeBottomRow()
{
    auto* row = new QHBoxLayout;
    auto* save = ui::MakeButton(this, "cmdSave", "Save");
    auto* leave = MakeExit(this, "cmdReturn", "");
    OnClick(*save, [this] { Save(); });
    row->addStretch(1);
    row->addWidget(save);
    row->addWidget(leave);
    return row;
}

void frmOptions::Load()
{
    FillBoxes();
    dirty_ = false;
    ApplyStayOnTopRule();
}

void frmOptions::FillBoxes()
{
    const auto generation = Context().generation.Number();
    if (optZarnVer.Has(generation)) {
        optZarnVer.Select(generation);
    }
    // A copy: the click of a client box that is filled changes the settings themselves.
    const auto settings = Context().settings;
    Path("txtPathUO").SetProgramText(settings.UOPath);
    Path("txtPathZarn").SetProgramText(settings.ZarnPath);
    Path("txtPathInsideUO").SetProgramText(settings.IUOPath);
    Path("txtPathUOG").SetProgramText(settings.UOGPath);
    txtCommandPrefix->setText(ui::Text(settings.CommandPrefix));
    chkItemPics->setChecked(settings.ItemPic);
    ChkStayOnTop->setChecked(settings.StayOnTop);
    chkUseTD->setChecked(settings.UsingThirdDawn);
    chkUseClassicUO->setChecked(settings.UsingClassicUO);
    chkUseVista->setChecked(settings.UsingVista);
}

void frmOptions::Unload()
{
    if (dirty_ && Outlet().Ask(core::QuestionBox("You have unsaved data, do you wish to save first?"))) {
        Save();
    }
}

void frmOptions::Browse(const PathRow& row, ui::PathBox& box)
{
    const auto chosen = Context().environment.dialogs.OpenFile(
        {std::string(row.title), std::string(row.fileName), std::string(row.filter)});
    box.SetProgramText(row.takesFolder ? core::FolderOf(chosen) : chosen);
}

void frmOptions::ClassicClicked()
{
    dirty_ = true;
    const bool classic = IsTicked(*chkUseClassicUO);
    if (classic) {
        chkUseTD->setChecked(false);
    }
    chkUseTD->setHidden(classic);
    for (auto* control : placeControls_) {
        control->setHidden(classic);
    }
    Context().settings.UsingClassicUO = classic;
}

void frmOptions::ThirdDawnClicked()
{
    dirty_ = true;
    const bool thirdDawn = IsTicked(*chkUseTD);
    if (thirdDawn) {
        chkUseClassicUO->setChecked(false);
    }
    chkUseClassicUO->setHidden(thirdDawn);
}

void frmOptions::Save()
{
    for (const auto* name : {"txtPathUO", "txtPathInsideUO"}) {
        auto& box = Path(name);
        if (const auto folder = WithBackslash(box.ProgramText()); folder != box.ProgramText()) {
            box.SetProgramText(folder);
        }
    }
    SaveOptions(State(), Context().settings, Context().generation, Context().environment.store);
    dirty_ = false;
}

void frmOptions::CalibrateHere()
{
    auto&      context = Context();
    const bool classic = context.settings.UsingClassicUO;

    const CalibrationPlace place{ui::Utf8(Box("x").text()), ui::Utf8(Box("y").text()), ui::Utf8(Box("z").text())};
    if (!classic && !place.IsComplete()) {
        Outlet().Show(core::PlainBox("You need to enter your current in-game coordinates!"));
        return;
    }
    ShowCalibrationState("Calibrating...Do not move ingame...", QColor::fromRgb(CalibratingColour));
    lblCalibrate->repaint();

    // While the search lets the user work on, the panel may be left and the program may end.
    const QPointer panel = this;
    const auto     search = [&context](std::int32_t x, std::int32_t y, std::int32_t z) {
        return client::CalibrateLocation(context.environment.platform, x, y, z, context.settings.UsingClassicUO,
                                             [] { QCoreApplication::processEvents(); });
    };
    const auto calibration = Calibrate(place, classic, search, context.Outlet());
    if (context.environment.process.HasEnded()) {
        return;
    }
    context.environment.store.Write(core::section::Configuration, "Calibration", core::ToText(calibration));
    if (panel) {
        ShowCalibrationState("Ready to Calibrate", QColor::fromRgb(ReadyColour));
    }
}

void frmOptions::ShowCalibrationState(std::string_view text, const QColor& colour)
{
    auto palette = lblCalibrate->palette();
    palette.setColor(QPalette::Window, QColor::fromRgb(DisplayColour));
    palette.setColor(QPalette::WindowText, colour);
    lblCalibrate->setPalette(palette);
    lblCalibrate->setText(ui::Text(text));
}

ui::PathBox& frmOptions::Path(std::string_view name) const
{
    return dynamic_cast<ui::PathBox&>(Box(name));
}

OptionsState frmOptions::State() const
{
    return {
        .pathUO = Path("txtPathUO").ProgramText(),
        .pathZarn = Path("txtPathZarn").ProgramText(),
        .pathInsideUO = Path("txtPathInsideUO").ProgramText(),
        .pathUOG = Path("txtPathUOG").ProgramText(),
        .commandPrefix = ui::Utf8(txtCommandPrefix->text()),
        .itemPics = ValueOf(*chkItemPics),
        .stayOnTop = ValueOf(*ChkStayOnTop),
        .useTD = ValueOf(*chkUseTD),
        .useClassicUO = ValueOf(*chkUseClassicUO),
        .useVista = ValueOf(*chkUseVista),
        .zarnVer = {optZarnVer.At(0).isChecked(), optZarnVer.At(1).isChecked()},
    };
}

} // namespace qf::app
