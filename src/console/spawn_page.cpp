#include "console/spawn_page.h"

#include <QTabWidget>
#include <QVBoxLayout>

#include "items/items_tables.h"
#include "ui/panel.h"
#include "ui/parts.h"

namespace qf::console {

namespace {

constexpr int ValueDigits = 24;

} // namespace

SpawnPage::SpawnPage(ConsoleHost& host, QWidget* parent)
    : ConsolePage(host, parent), optSpawnType(*this, "optSpawnType")
{
    auto* layout = new QGridLayout(this);
    fraSpawnType = MakeChoice();
    optSpawnType.onSelect = [this](int) { Host().Guard([this] { ShowWizard(); }); };
    layout->addWidget(fraSpawnType, 0, 0, Qt::AlignTop | Qt::AlignLeft);
    for (int number = 0; number < std::ssize(Spawners()); ++number) {
        layout->addWidget(MakeWizard(number), 0, 0, Qt::AlignTop | Qt::AlignLeft);
    }
    layout->setColumnStretch(0, 1);
    layout->setRowStretch(0, 1);
}

QGroupBox* SpawnPage::MakeChoice()
{
    auto* frame = ui::MakeFrame(this, "fraSpawnType", "Select Spawner Type:");
    auto* layout = new QVBoxLayout;
    int   index = 0;
    for (const auto& spawner : Spawners()) {
        layout->addWidget(&optSpawnType.Add(index++, spawner.option, frame));
    }
    frame->setLayout(layout);
    return frame;
}

QGroupBox* SpawnPage::MakeWizard(int number)
{
    const auto& spawner = Spawners()[static_cast<std::size_t>(number)];
    auto*       frame = ui::MakeFrame(this, spawner.frame, spawner.caption);
    auto*       layout = new QGridLayout(frame);
    int         row = 0;
    for (const auto& step : spawner.steps) {
        AddStep(*layout, row++, spawner, step);
    }
    auto* back = ui::MakeButton(frame, spawner.returnButton, "<<----- Return", "Back to the spawner types");
    Host().OnClick(*back, [this, frame, number] {
        frame->hide();
        fraSpawnType->show();
        optSpawnType.At(number).setFocus();
    });
    layout->setRowMinimumHeight(row++, fontMetrics().height() / 2);
    layout->addWidget(back, row, 0, Qt::AlignLeft);
    // The wizards take turns in one place, which is as large as the largest of them needs.
    ui::KeepPlaceWhenHidden(*frame);
    frame->hide();
    wizards_.push_back(frame);
    return frame;
}

void SpawnPage::AddStep(QGridLayout& layout, int row, const Spawner& spawner, const SpawnStep& step)
{
    auto* frame = layout.parentWidget();
    auto* button = ui::MakeButton(frame, step.control, step.caption);
    layout.addWidget(button, row, 0);
    if (step.OpensContainers()) {
        button->setToolTip(QStringLiteral("Opens the items panel on its containers"));
        Host().OnClick(*button, [this] { OpenContainers(); });
        return;
    }
    QLineEdit* box = nullptr;
    if (!step.box.empty()) {
        box = ui::MakeTextBox(frame, step.box, ValueDigits);
        box->setAccessibleName(button->text());
        layout.addWidget(box, row, 1);
    }
    Host().OnClick(*button, [this, &step, box] {
        const auto value = box != nullptr ? ui::Utf8(box->text()) : std::string();
        SendSpawnStep(step, value, Host().Context().generation, Host().Outlet());
    });
    if (step.namesTheSpawned) {
        auto* help = ui::MakeButton(frame, spawner.helpButton, "?", "Tells where the item to spawn is found");
        help->setFixedWidth(help->sizeHint().height());
        Host().OnClick(*help, [this] { ShowSpawnHelp(Host().Context().generation, Host().Outlet()); });
        layout.addWidget(help, row, 2);
    }
}

void SpawnPage::ShowWizard()
{
    const int selected = optSpawnType.Selected();
    fraSpawnType->hide();
    // The option is left unselected, so that the same wizard can be chosen again after a return.
    optSpawnType.Clear();
    const auto number = static_cast<std::size_t>(selected);
    wizards_[number]->show();
    wizards_[number]->findChild<QPushButton*>(ui::Text(Spawners()[number].steps.front().control))->setFocus();
}

void SpawnPage::OpenContainers()
{
    auto& items = Host().Context().panels.Show("frmItems");
    items.findChild<QTabWidget*>(QStringLiteral("tabItems"))->setCurrentIndex(items::Containers);
}

} // namespace qf::console
