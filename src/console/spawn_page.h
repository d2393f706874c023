#pragma once

#include <QGridLayout>
#include <QGroupBox>
#include <vector>

#include "console/console_page.h"
#include "console/spawners.h"
#include "ui/option_array.h"

namespace qf::console {

/// The tab with the wizards that make a spawner of items. They keep nothing but the texts of their boxes.
class SpawnPage final : public ConsolePage {
  public:
    SpawnPage(ConsoleHost& host, QWidget* parent);

  private:
    QGroupBox* MakeChoice();
    QGroupBox* MakeWizard(int number);
    void       AddStep(QGridLayout& layout, int row, const Spawner& spawner, const SpawnStep& step);
    void       ShowWizard();
    void       OpenContainers();

    ui::OptionArray         optSpawnType;
    QGroupBox*              fraSpawnType = nullptr;
    std::vector<QGroupBox*> wizards_;
};

} // namespace qf::console
