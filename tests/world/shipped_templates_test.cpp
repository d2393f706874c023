#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>
#include <set>
#include <sstream>

#include "core/host_path.h"
#include "core/number_rules.h"
#include "support/recording_outlet.h"
#include "world/line_file.h"
#include "world/template_build.h"
#include "world/template_list.h"

// The templates that lie beside the program build in both generations.

namespace qf::world {
namespace {

const std::string Folder = core::ProgramPath(QF_TEMPLATES) + "\\";

/// The effects of building a template at 1000, 1000, 0.
std::vector<test::OutletEntry> Built(const std::string& fileName, core::ServerGeneration generation)
{
    LineFile              file(core::HostPath(Folder + fileName));
    test::RecordingOutlet outlet;
    BuildTemplateLines(file.Lines(), {1000, 1000, 0}, generation, outlet);
    return outlet.Entries();
}

class ShippedTemplate : public testing::TestWithParam<TemplateEntry> {};

TEST_P(ShippedTemplate, HasANameAndADescription)
{
    EXPECT_FALSE(GetParam().text.empty());
    EXPECT_GT(TemplateDescription(Folder + GetParam().fileName).size(), 10U);
}

TEST_P(ShippedTemplate, StartsWithItsNameAndHasNoBadLine)
{
    const auto entries = Built(GetParam().fileName, core::Generation09);
    ASSERT_GT(entries.size(), 10U);
    EXPECT_EQ(entries[0].command, "Good lord, I'm building a " + GetParam().text);
    for (const auto& entry : entries) {
        EXPECT_EQ(entry.kind, test::OutletEntry::Kind::Send) << entry.Line();
    }
}

/// The fields of an area command behind its word and id, which must be those of the generation.
std::vector<std::string> Numbers(std::string_view command, core::ServerGeneration generation)
{
    const std::string_view form = generation.Is070() ? "tilew hh hh  " : "tile 0xhhhh ";
    EXPECT_TRUE(std::equal(form.begin(), form.end(), command.begin(),
                           command.begin() + static_cast<std::ptrdiff_t>(std::min(form.size(), command.size())),
                           [](char sign, char character) {
                               constexpr std::string_view digits = "0123456789abcdef";
                               return sign == 'h' ? digits.find(character) != digits.npos : sign == character;
                           }))
        << command;

    std::istringstream       rest(std::string(command.substr(std::min(form.size(), command.size()))));
    std::vector<std::string> numbers;
    for (std::string number; std::getline(rest, number, ' ');) {
        EXPECT_EQ(number, core::ToText(core::ToInteger32(number))) << command;
        numbers.push_back(number);
    }
    return numbers;
}

TEST_P(ShippedTemplate, ComposesWellFormedAreasInBothGenerations)
{
    for (const auto generation : {core::Generation070, core::Generation09}) {
        for (const auto& entry : Built(GetParam().fileName, generation)) {
            if (entry.usePrefix) {
                const auto numbers = Numbers(entry.command, generation);
                ASSERT_EQ(numbers.size(), 5U) << entry.command;
                EXPECT_LE(std::stoi(numbers[0]), std::stoi(numbers[1])) << entry.command;
                EXPECT_LE(std::stoi(numbers[2]), std::stoi(numbers[3])) << entry.command;
                EXPECT_LE(std::stoi(numbers[4]), 107) << entry.command;
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Every, ShippedTemplate, testing::ValuesIn(ListTemplates(Folder)),
                         [](const testing::TestParamInfo<TemplateEntry>& info) {
                             auto name = info.param.fileName;
                             std::ranges::replace_if(
                                 name, [](char character) { return character == '-' || character == '.'; }, '_');
                             return name;
                         });

TEST(ShippedTemplates, ShowEveryKindOfLineBetweenThem)
{
    const auto templates = ListTemplates(Folder);
    EXPECT_GE(templates.size(), 5U);
    std::set<std::string> kinds;
    for (const auto& entry : templates) {
        std::ifstream stream(core::HostPath(Folder + entry.fileName));
        for (std::string line; std::getline(stream, line);) {
            const auto first = line.substr(0, line.find(' '));
            kinds.insert(first.size() == 2 ? "single" : line.starts_with(':') ? ":" : first);
        }
    }
    EXPECT_EQ(kinds, (std::set<std::string>{"", ":", "DESC", "TILEW", "XLINE", "YLINE", "single"}));
}

} // namespace
} // namespace qf::world
