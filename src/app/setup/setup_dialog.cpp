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

#include "core/runtime_error.h"
#include "ui/parts.h"

namespace qf::app {

namespace {

constexpr int PathCharacters = 44;

} // namespace

SetupDialog::SetupDialog(core::SettingsStore& store, std::string_view practiceArt)
    : store_(store), optZarnVer_(*this, "optZarnVer")
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
    save->setAutoDefault(true);
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

    const auto choice = InitialChoice(store_, practiceArt);
    optZarnVer_.Select(choice.generation);
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
    try {
        SaveChoice(store_, Choice());
    } catch (const core::RuntimeError& error) {
        QMessageBox::critical(this, windowTitle(),
                              QStringLiteral("The settings cannot be saved.\n\n") + ui::Text(error.Description()));
        return;
    }
    accept();
}

} // namespace qf::app
