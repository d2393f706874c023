#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <sstream>

#include "console/item_type.h"
#include "core/number_rules.h"
#include "support/recording_outlet.h"
#include "world/item_types.h"
#include "world/template_build.h"
#include "world/text_lines.h"

// The texts that lie beside the program: what the messages of the panels promise is in them.

namespace qf::console {
namespace {

using Lines = std::vector<std::string>;

constexpr std::string_view LineEnd = "\r\n";
constexpr std::size_t      LongestLine = 78;

/// The lines of a shipped text, without their ends.
Lines LinesOf(const std::string& name)
{
    std::ifstream      file(std::string(QF_SHIPPED_TEXTS) + "/" + name, std::ios::binary);
    std::ostringstream bytes;
    bytes << file.rdbuf();
    const auto text = bytes.str();

    Lines       lines;
    std::size_t start = 0;
    for (auto end = text.find(LineEnd); end != text.npos; end = text.find(LineEnd, start)) {
        lines.push_back(text.substr(start, end - start));
        start = end + LineEnd.size();
    }
    EXPECT_EQ(start, text.size()) << name << " ends in the middle of a line";
    return lines;
}

/// The templates that stand in the readme: its indented passages that begin with a name.
std::vector<std::string> ReadmeTemplates()
{
    constexpr std::string_view indent = "    ";
    std::vector<std::string>   templates;
    bool                       inside = false;
    for (const auto& line : LinesOf("Quernfield Readme.txt")) {
        if (line.starts_with("    :")) {
            templates.emplace_back();
            inside = true;
        } else if (!line.empty() && !line.starts_with(indent)) {
            inside = false;
        }
        if (inside) {
            templates.back() += (line.empty() ? line : line.substr(indent.size())) + "\r\n";
        }
    }
    return templates;
}

std::vector<test::OutletEntry> Built(const std::string& text, core::ServerGeneration generation)
{
    std::stringbuf        bytes(text);
    world::TextLines      lines(bytes);
    test::RecordingOutlet outlet;
    world::BuildTemplateLines(lines, {1000, 2000, 5}, generation, outlet);
    return outlet.Entries();
}

TEST(ShippedTexts, AreReadableInAnyEditor)
{
    for (const auto* name : {"TYPES.TXT", "Quernfield Readme.txt"}) {
        const auto lines = LinesOf(name);
        EXPECT_GT(lines.size(), 40U) << name;
        for (const auto& line : lines) {
            EXPECT_LE(line.size(), LongestLine) << line;
            EXPECT_TRUE(std::ranges::all_of(line, [](char c) { return c >= ' ' && c <= '~'; })) << line;
            EXPECT_FALSE(line.ends_with(' ')) << line;
        }
    }
}

/// The entries of the list of types: a number that ends in the third column, two blanks, the rest of the line.
std::multimap<int, std::string> ListedTypes()
{
    constexpr std::size_t           nameColumn = 5;
    std::multimap<int, std::string> types;
    for (const auto& line : LinesOf("TYPES.TXT")) {
        if (line.size() > nameColumn && line[2] >= '0' && line[2] <= '9' && line.substr(3, 2) == "  ") {
            types.emplace(core::ToInteger32(line.substr(0, 3)), line.substr(nameColumn));
        }
    }
    return types;
}

TEST(ShippedTexts, EveryTypeThatThePanelSetsIsListed)
{
    const auto types = ListedTypes();
    for (const auto& option : ItemTypeOptions()) {
        const auto [first, last] = types.equal_range(option.value);
        ASSERT_EQ(std::distance(first, last), 1) << option.caption;
        const auto name = option.caption.substr(option.caption.find(" - ") + 3);
        EXPECT_TRUE(first->second.starts_with(name)) << option.caption << ": " << first->second;
        EXPECT_EQ(first->second.ends_with("(0.70.x)"), option.only070) << option.caption;
    }
}

TEST(ShippedTexts, EveryTypeThatTheExtractionNamesIsListed)
{
    const auto types = ListedTypes();
    for (int number = 0; number <= 255; ++number) {
        if (world::GetTypeFromNum(number) != "Unknown") {
            EXPECT_EQ(types.count(number), 1U) << number;
        }
    }
}

TEST(ShippedTexts, TheTemplatesOfTheReadmeBuildWithoutABadLine)
{
    const auto templates = ReadmeTemplates();
    ASSERT_EQ(templates.size(), 2U);
    for (const auto& text : templates) {
        for (const auto generation : {core::Generation070, core::Generation09}) {
            const auto entries = Built(text, generation);
            ASSERT_GT(entries.size(), 4U) << text;
            for (const auto& entry : entries) {
                EXPECT_EQ(entry.kind, test::OutletEntry::Kind::Send) << entry.Line();
            }
        }
    }
}

TEST(ShippedTexts, TheTemplatesOfTheReadmeShowEveryKindOfLine)
{
    std::set<std::string> words;
    for (const auto& text : ReadmeTemplates()) {
        std::istringstream lines(text);
        for (std::string line; std::getline(lines, line);) {
            words.insert(line.substr(0, line.find(' ')));
        }
    }
    for (const auto* word : {"DESC", "TILEW", "XLINE", "YLINE"}) {
        EXPECT_TRUE(words.contains(word)) << word;
    }
}

/// The commands that the readme says its first template becomes at 1000, 2000, 5.
Lines ReadmeCommands()
{
    Lines commands;
    for (const auto& line : LinesOf("Quernfield Readme.txt")) {
        if (line.starts_with("    tile ")) {
            commands.push_back(line.substr(4));
        }
    }
    return commands;
}

TEST(ShippedTexts, TheFirstTemplateOfTheReadmeBecomesTheCommandsBesideIt)
{
    Lines areas;
    for (const auto& entry : Built(ReadmeTemplates().at(0), core::Generation09)) {
        if (entry.usePrefix) {
            areas.push_back(entry.command);
        }
    }
    EXPECT_FALSE(areas.empty());
    EXPECT_EQ(areas, ReadmeCommands());
}

} // namespace
} // namespace qf::console
