#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <gtest/gtest.h>

#include <array>
#include <map>
#include <set>
#include <utility>

#include "app/program_on_stage.h"
#include "documents/markdown.h"
#include "scenario/words.h"
#include "ui/panel.h"
#include "ui/parts.h"

// What the list of commands says of a control is what the real panel does: its caption, what it types and what it
// says, and that no control that types is left out.

namespace qf {
namespace {

constexpr std::array generations{1, 0};

/// A row of the list.
struct Listed {
    std::string                panel;
    bool                       isOption = false;
    std::string                name;
    std::string                caption;
    std::array<std::string, 2> effects;
};

/// The panels whose boxes may hold any text, and what is pressed behind an option.
const std::map<std::string, std::string> walked{
    {"frmNPC", "cmdItemVisibilitySet"},
    {"frmNPCWander", ""},
    {"frmShop", ""},
    {"frmPrivs", ""},
    {"frmType", "Command2"},
    {"frmAreaCommands", ""},
    {"frmTime", "Command1"},
    {"frmShutdown", ""},
    {"frmItemPos", ""},
};

/// What stands in a box where its own name in braces will not do.
const std::map<std::string, std::string> typed{
    {"txtDye", "0x21"}, {"Hours", "9"}, {"Minutes", "30"}, {"ampm", "am"}, {"added", ""},
};

/// The text of a cell without the marks that keep its characters from meaning something.
std::string Plain(std::string_view cell)
{
    std::string text;
    for (std::size_t at = 0; at < cell.size(); ++at) {
        if (cell[at] == '\\' && at + 1 < cell.size() &&
            std::string_view("\\<>*_[|").find(cell[at + 1]) != std::string_view::npos) {
            ++at;
        }
        text += cell[at];
    }
    return text;
}

/// What is seen of a button's text: a mark of a key is not, two of them are one.
std::string Seen(const QAbstractButton& button)
{
    auto text = button.text();
    for (auto at = text.indexOf(QLatin1Char('&')); at >= 0; at = text.indexOf(QLatin1Char('&'), at + 1)) {
        text.remove(at, 1);
    }
    return ui::Utf8(text.trimmed());
}

bool IsQuoted(std::string_view cell)
{
    return cell.size() > 2 && cell.front() == '`' && cell.back() == '`';
}

std::string Unquoted(std::string_view cell)
{
    return std::string(cell.substr(1, cell.size() - 2));
}

std::vector<Listed> ReadList()
{
    std::vector<Listed>      rows;
    std::string              panel;
    std::vector<std::string> heading;
    for (const auto& line : test::LinesOf(std::filesystem::path(QF_DOCUMENTS) / "docs/commands.md")) {
        const auto cells = test::Cells(line);
        if (line.starts_with("## ")) {
            const auto mark = line.find('`');
            panel = mark == std::string::npos ? std::string() : line.substr(mark + 1, line.rfind('`') - mark - 1);
        }
        if (cells.empty()) {
            heading.clear();
        } else if (heading.empty()) {
            heading = cells;
        } else if (!test::IsRule(cells) && heading.size() == 4 && heading[1] == "Caption" && IsQuoted(cells[0])) {
            rows.push_back({panel, heading[0] == "Option", Unquoted(cells[0]), Plain(cells[1]), {cells[2], cells[3]}});
        }
    }
    return rows;
}

std::vector<std::string> Split(const std::string& cell)
{
    constexpr std::string_view Between = ", then ";
    std::vector<std::string>   effects;
    for (std::size_t begin = 0;;) {
        const auto end = cell.find(Between, begin);
        effects.push_back(cell.substr(begin, end - begin));
        if (end == std::string::npos) {
            return effects;
        }
        begin = end + Between.size();
    }
}

/// A box's name as the list has it.
std::string InBraces(const std::string& box)
{
    return std::string("{").append(box).append("}");
}

std::string TextOf(const std::string& box)
{
    const auto found = typed.find(box);
    return found == typed.end() ? InBraces(box) : found->second;
}

/// A panel that was just opened, its boxes filled.
class OpenPanel {
  public:
    OpenPanel(const std::string& name, int generation) : stage_(generation)
    {
        EXPECT_TRUE(stage_.application->Main());
        panel_ = &stage_.application->Context().panels.Show(name);
        QApplication::processEvents();
        for (auto* box : panel_->findChildren<QLineEdit*>()) {
            if (!box->isReadOnly()) {
                box->setText(ui::Text(TextOf(ui::Utf8(box->objectName()))));
            }
        }
    }

    ui::Panel& Panel() { return *panel_; }

    QAbstractButton* Button(const std::string& name) { return panel_->findChild<QAbstractButton*>(ui::Text(name)); }

    void Press(const std::string& name)
    {
        auto* button = Button(name);
        ASSERT_NE(button, nullptr);
        EXPECT_TRUE(panel_->InvokeClick(*button));
    }

    std::vector<std::string> TakeLines() { return stage_.platform.TakeLines(); }

    const std::vector<std::string>& Boxes() const { return stage_.services.boxes; }

  private:
    test::ProgramOnStage stage_;
    ui::Panel*           panel_ = nullptr;
};

/// What a cell promises: the lines that are typed and the texts of the boxes.
struct Promise {
    explicit Promise(const std::string& cell)
    {
        constexpr std::string_view Says = "says \"";
        for (const auto& effect : Split(cell)) {
            if (IsQuoted(effect)) {
                lines.push_back('\'' + Filled(Unquoted(effect)));
            } else if (effect.starts_with(Says)) {
                boxes.push_back(Filled(Plain(effect.substr(Says.size(), effect.size() - Says.size() - 1))));
            } else {
                EXPECT_EQ(effect, "nothing");
            }
        }
    }

    /// The text with what is in the boxes in place of their names.
    static std::string Filled(std::string text)
    {
        for (const auto& [box, content] : typed) {
            text = scenario::ReplaceAll(text, InBraces(box), content);
        }
        return text;
    }

    std::vector<std::string> lines;
    std::vector<std::string> boxes;
};

void Walk(const Listed& row, const std::string& effect, int generation)
{
    OpenPanel open(row.panel, generation);
    auto*     button = open.Button(row.name);
    ASSERT_NE(button, nullptr);
    if (effect == "not shown") {
        EXPECT_TRUE(button->isHidden());
        return;
    }
    if (row.isOption) {
        button->click();
        open.Press(walked.at(row.panel));
    } else {
        open.Press(row.name);
    }
    const Promise promise(effect);
    EXPECT_EQ(open.TakeLines(), promise.lines);
    EXPECT_EQ(open.Boxes(), promise.boxes);
}

TEST(CommandList, HasTheCaptionsOfThePanels)
{
    int                  compared = 0;
    test::ProgramOnStage stage;
    ASSERT_TRUE(stage.application->Main());
    for (const auto& row : ReadList()) {
        SCOPED_TRACE(row.panel + "." + row.name);
        const auto* button =
            stage.application->Context().panels.Touch(row.panel).findChild<QAbstractButton*>(ui::Text(row.name));
        ASSERT_NE(button, nullptr);
        EXPECT_EQ(Seen(*button), row.caption);
        ++compared;
    }
    EXPECT_GT(compared, 300);
}

TEST(CommandList, SaysWhatThePanelsDo)
{
    int walks = 0;
    for (const auto& row : ReadList()) {
        if (!walked.contains(row.panel)) {
            continue;
        }
        for (std::size_t column = 0; column < generations.size(); ++column) {
            const auto& effect = row.effects[column];
            if (effect.starts_with("opens ") || effect.starts_with("fills ")) {
                continue;
            }
            SCOPED_TRACE(row.panel + "." + row.name + ": " + effect);
            Walk(row, effect, generations[column]);
            ++walks;
        }
    }
    EXPECT_GT(walks, 200);
}

TEST(CommandList, LeavesNoControlOut)
{
    std::set<std::pair<std::string, std::string>> listed;
    for (const auto& row : ReadList()) {
        listed.emplace(row.panel, row.name);
    }
    for (const auto& [panel, behindOptions] : walked) {
        for (const int generation : generations) {
            std::vector<std::string> names;
            {
                OpenPanel open(panel, generation);
                for (const auto* button : open.Panel().findChildren<QAbstractButton*>()) {
                    if (open.Panel().HandlesClick(*button)) {
                        names.push_back(ui::Utf8(button->objectName()));
                    }
                }
            }
            for (const auto& name : names) {
                OpenPanel open(panel, generation);
                open.Press(name);
                if (name != behindOptions && !open.TakeLines().empty()) {
                    EXPECT_TRUE(listed.contains({panel, name})) << panel << "." << name;
                }
            }
        }
    }
}

/// Every panel but those that send nothing has its chapter.
TEST(CommandList, HasAChapterForEachPanel)
{
    const std::set<std::string> silent{"frmSplash",  "frmMain",    "frmAbout",
                                       "frmOptions", "frmPicture", "frmHouseExtraction"};
    std::set<std::string>       chapters;
    for (const auto& line : test::LinesOf(std::filesystem::path(QF_DOCUMENTS) / "docs/commands.md")) {
        const auto mark = line.find('`');
        if (line.starts_with("## ") && mark != std::string::npos) {
            chapters.insert(line.substr(mark + 1, line.rfind('`') - mark - 1));
        }
    }
    for (const auto& entry : app::AllPanels()) {
        EXPECT_NE(chapters.contains(std::string(entry.name)), silent.contains(std::string(entry.name))) << entry.name;
    }
}

} // namespace
} // namespace qf
