// The tabs "Item Edit", "Character Edit", "NPCs" and "Custom Commands" of the console.

#include <QGridLayout>
#include <QHBoxLayout>
#include <QStringList>
#include <algorithm>

#include "console/frmGMCommands.h"
#include "ui/parts.h"

namespace qf::console {

namespace {

constexpr int ValueDigits = 6;
constexpr int CustomCommandDigits = 60;

const GMList& ListNamed(std::string_view name)
{
    return *std::ranges::find(GMLists(), name, &GMList::name);
}

QGridLayout& GridOf(const QGroupBox& frame)
{
    return *static_cast<QGridLayout*>(frame.layout());
}

} // namespace

QWidget* frmGMCommands::MakeItemEditTab()
{
    auto* page = new QWidget(TabMain);
    auto* grid = new QGridLayout(page);

    auto* make = MakeCommandGroup(page, Tab::ItemEdit, "Make", 2);
    PutBoxBeside(*make, "cmdDupeItem", "txtDupeCount", "How many the dupe makes");
    grid->addWidget(make, 0, 0);
    grid->addWidget(MakeCommandGroup(page, Tab::ItemEdit, "Remove", 2), 0, 1);
    grid->addWidget(MakeCommandGroup(page, Tab::ItemEdit, "Change", 2), 1, 0);
    grid->addWidget(MakeCommandGroup(page, Tab::ItemEdit, "Properties", 2), 1, 1);
    grid->addWidget(MakeChoiceFrame(page, Tab::ItemEdit, "fraItemVisible", optItemVisible, 1), 2, 0);
    grid->addWidget(MakeChoiceFrame(page, Tab::ItemEdit, "fraMoveable", optItemMovable, 1), 2, 1);
    grid->setRowStretch(3, 1);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    return page;
}

void frmGMCommands::PutBoxBeside(QGroupBox& frame, std::string_view button, std::string_view name,
                                 std::string_view meaning)
{
    auto&     grid = GridOf(frame);
    auto*     beside = frame.findChild<QPushButton*>(ui::Text(button));
    int       row = 0;
    int       column = 0;
    int       rows = 0;
    int       columns = 0;
    const int place = grid.indexOf(beside);
    grid.getItemPosition(place, &row, &column, &rows, &columns);
    grid.removeWidget(beside);
    const int behind = grid.count() - place;

    auto* box = MakeBox(&frame, name, ValueDigits);
    box->setToolTip(ui::Text(meaning));
    box->setAccessibleName(box->toolTip());
    auto* both = new QHBoxLayout;
    both->addWidget(beside, 1);
    both->addWidget(box);
    grid.addLayout(both, row, column);
    // The Tab key goes in the order of the layout, so what came behind the button comes behind the box.
    for (int moved = 0; moved < behind; ++moved) {
        grid.getItemPosition(place, &row, &column, &rows, &columns);
        grid.addItem(grid.takeAt(place), row, column, rows, columns);
    }
}

QGroupBox* frmGMCommands::MakeChoiceFrame(QWidget* parent, Tab tab, std::string_view frame, ui::OptionArray& options,
                                          int columns)
{
    auto* group = MakeGroup(parent, frame);
    auto& grid = GridOf(*group);
    int   index = 0;
    for (const auto& choice : ListNamed(options.Name()).choices) {
        grid.addWidget(&options.Add(index, choice.caption, group), index / columns, index % columns);
        ++index;
    }
    AddCommands(*group, tab, frame, columns);
    return group;
}

QWidget* frmGMCommands::MakeCharacterEditTab()
{
    auto* page = new QWidget(TabMain);
    auto* grid = new QGridLayout(page);
    grid->addWidget(MakeCommandGroup(page, Tab::CharacterEdit, "Look and set", 2), 0, 0);
    grid->addWidget(MakeCommandGroup(page, Tab::CharacterEdit, "Belongings", 2), 0, 1);
    grid->addWidget(MakeCommandGroup(page, Tab::CharacterEdit, "Condition", 2), 1, 0);
    grid->addWidget(MakeCommandGroup(page, Tab::CharacterEdit, "Kill and remove", 2), 1, 1);
    grid->addWidget(MakeSkillsFrame(page), 2, 0);
    grid->addWidget(MakeFameFrame(page), 2, 1);
    grid->setRowStretch(3, 1);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    return page;
}

PickList* frmGMCommands::MakeList(QWidget* parent, std::string_view name)
{
    const auto& list = ListNamed(name);
    QStringList rows;
    for (const auto& choice : list.choices) {
        rows << ui::Text(choice.caption);
    }
    return new PickList(parent, list.name, list.initialText, rows);
}

QGroupBox* frmGMCommands::MakeSkillsFrame(QWidget* parent)
{
    auto* frame = MakeGroup(parent, "Frame13");
    auto& grid = GridOf(*frame);
    cmbSkills = MakeList(frame, "cmbSkills");
    auto* skill = MakeBox(frame, "txtSkills", ValueDigits);
    skill->setAccessibleName(QStringLiteral("Value of the skill"));
    grid.addWidget(cmbSkills, 0, 0);
    grid.addWidget(skill, 0, 1);
    grid.addWidget(MakeCommand(frame, "cmdSkills"), 0, 2);

    cmbStats = MakeList(frame, "cmbStats");
    auto* stat = MakeBox(frame, "txtStats", ValueDigits);
    stat->setAccessibleName(QStringLiteral("Value of the stat"));
    grid.addWidget(cmbStats, 1, 0);
    grid.addWidget(stat, 1, 1);
    grid.addWidget(MakeCommand(frame, "cmdStats"), 1, 2);
    grid.addWidget(MakeCommand(frame, "Command125"), 2, 2);
    grid.setColumnStretch(0, 1);
    grid.setRowStretch(3, 1);
    return frame;
}

QGroupBox* frmGMCommands::MakeFameFrame(QWidget* parent)
{
    auto* frame = MakeGroup(parent, "Frame14");
    auto& grid = GridOf(*frame);
    auto* fame = MakeBox(frame, "fame", ValueDigits);
    grid.addWidget(ui::MakeLabelFor(fame, "", "Fame"), 0, 0);
    grid.addWidget(fame, 0, 1);
    grid.addWidget(MakeCommand(frame, "Command127"), 0, 2);
    auto* karma = MakeBox(frame, "karma", ValueDigits);
    grid.addWidget(ui::MakeLabelFor(karma, "", "Karma"), 1, 0);
    grid.addWidget(karma, 1, 1);
    grid.addWidget(MakeCommand(frame, "Command128"), 1, 2);
    grid.addWidget(MakeCommand(frame, "Command129"), 2, 2);
    grid.setColumnStretch(2, 1);
    grid.setRowStretch(3, 1);
    return frame;
}

QWidget* frmGMCommands::MakeNPCsTab()
{
    auto* page = new QWidget(TabMain);
    auto* grid = new QGridLayout(page);
    grid->addWidget(MakeCommandGroup(page, Tab::NPCs, "Add", 2), 0, 0);
    grid->addWidget(MakeCommandGroup(page, Tab::NPCs, "Outfit", 2), 0, 1);
    grid->addWidget(MakeCommandGroup(page, Tab::NPCs, "Behaviour", 2), 1, 0);
    grid->addWidget(MakeChoiceFrame(page, Tab::NPCs, "frmNPCAI", optNPCAI, 2), 1, 1);
    grid->setRowStretch(2, 1);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    return page;
}

QWidget* frmGMCommands::MakeCustomCommandsTab()
{
    auto* page = new QWidget(TabMain);
    auto* grid = new QGridLayout(page);
    grid->addWidget(
        ui::MakeLabel(page, "Label1", "(Remember to include the command prefix if you're sending actual commands!)"), 0,
        0, 1, 2);
    int row = 1;
    for (int index = 0; index < static_cast<int>(CustomCommandCount); ++index, ++row) {
        auto* box = MakeBox(page, ui::Utf8(ui::MemberName("txtUseCommand", index)), CustomCommandDigits);
        auto* use = MakeCommand(page, ui::Utf8(ui::MemberName("cmdUseCommand", index)));
        box->setAccessibleName(QStringLiteral("Custom command %1").arg(index + 1));
        use->setEnabled(false);
        OnChange(*box, [box, use] { use->setEnabled(IsCustomCommandUsable(ui::Utf8(box->text()))); });
        grid->addWidget(box, row, 0);
        grid->addWidget(use, row, 1);
    }
    grid->addWidget(MakeCommand(page, "cmdSaveCommands"), row, 1);
    grid->setRowStretch(row + 1, 1);
    grid->setColumnStretch(0, 1);
    return page;
}

} // namespace qf::console
