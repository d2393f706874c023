#include "app/setup/setup_dialog.h"

#include <QDir>
#include <QFileDialog>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>
#include <utility>

#include "core/runtime_error.h"
#include "ui/parts.h"

namespace qf::app {

namespace {

constexpr int PathCharacters = 44;

} // namespace

SetupDialog::SetupDialog(core::SettingsStore& store, SetupPlaces places)
    : store_(store), places_(std::move(places)), optZarnVer_(*this, "optZarnVer")
{
    setObjectName(QStringLiteral("frmSetup"));
    setWindowTitle(QStringLiteral("Quernfield Setup"));

    auto* frame = ui::MakeFrame(this, "Frame1", "Zarn Version");
    optZarnVer_.Add(0, "0.&70.x", frame);
    optZarnVer_.Add(1, "0.&9x.x", frame);
    auto* generations = new QHBoxLayout(frame);
    generations->addWidget(&optZarnVer_.At(0));
    generations->addWidget(&optZarnVer_.At(1));
    generations->addStretch();

    txtPathUO_ = new QLineEdit(this);
    txtPathUO_->setObjectName(QStringLiteral("txtPathUO"));
    txtPathUO_->setMinimumWidth(txtPathUO_->fontMetrics().averageCharWidth() * PathCharacters);
    auto* label = ui::MakeLabelFor(txtPathUO_, "", "&Path to UO Client folder:");
    auto* browse = ui::MakeButton(this, "cmdBrowseUO", "&Browse..");
    auto* folder = new QHBoxLayout;
    folder->addWidget(txtPathUO_, 1);
    folder->addWidget(browse);

    auto* save = ui::MakeButton(this, "cmdSave", "&Save");
    auto* cancel = ui::MakeButton(this, "cmdReturn", "&Cancel");
    // Enter presses the button that has the focus, and Save from anywhere else.
    for (auto* button : {browse, save, cancel}) {
        button->setAutoDefault(true);
    }
    save->setDefault(true);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(save);
    buttons->addWidget(cancel);

    auto* whole = new QVBoxLayout(this);
    whole->addWidget(frame);
    whole->addWidget(label);
    whole->addLayout(folder);
    whole->addStretch();
    whole->addLayout(buttons);

    const auto choice = InitialChoice(store_, places_.practiceArt);
    optZarnVer_.Select(choice.generation);
    // Left to itself the focus goes to the first option, where Space would choose it.
    optZarnVer_.At(choice.generation).setFocus();
    txtPathUO_->setText(QDir::toNativeSeparators(ui::Text(choice.clientFolder)));

    connect(browse, &QPushButton::clicked, this, [this] { Browse(); });
    connect(save, &QPushButton::clicked, this, [this] { Save(); });
    connect(cancel, &QPushButton::clicked, this, [this] { reject(); });
}

SetupChoice SetupDialog::Choice() const
{
    return {optZarnVer_.Selected(), ui::Utf8(txtPathUO_->text())};
}

void SetupDialog::Browse()
{
    const auto folder =
        QFileDialog::getExistingDirectory(this, QStringLiteral("Browse for UO directory"), txtPathUO_->text());
    if (!folder.isEmpty()) {
        txtPathUO_->setText(QDir::toNativeSeparators(folder));
    }
}

void SetupDialog::Save()
{
    const auto choice = Choice();
    if (LacksTileArt(choice) && !IsMeant(choice)) {
        txtPathUO_->setFocus();
        txtPathUO_->selectAll();
        return;
    }
    try {
        SaveChoice(store_, choice);
    } catch (const core::RuntimeError& error) {
        auto told = QStringLiteral("The settings cannot be saved.\n\n") + ui::Text(error.Description());
        if (!places_.settings.empty()) {
            told += QStringLiteral(":\n") + ui::Text(places_.settings);
        }
        QMessageBox::critical(this, windowTitle(), told);
        return;
    }
    accept();
}

/// Asks about a folder that would leave the panels without pictures.
bool SetupDialog::IsMeant(const SetupChoice& choice)
{
    const auto question = QStringLiteral("No pictures of tiles can be shown, since this folder does not hold art.mul "
                                         "and artidx.mul:\n%1\n\nSave it all the same?")
                              .arg(ui::Text(choice.clientFolder));
    return QMessageBox::question(this, windowTitle(), question, QMessageBox::Yes | QMessageBox::No, QMessageBox::No) ==
           QMessageBox::Yes;
}

} // namespace qf::app
