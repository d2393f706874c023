#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <set>

#include "documents/markdown.h"
#include "scenario/words.h"

// What the documents say of the tree is so: what they link to is there, and the guide's list of messages is that of
// the program.

namespace qf {
namespace {

namespace fs = std::filesystem;

const fs::path root = QF_DOCUMENTS;

constexpr std::string_view Varying = "\u2026";

std::set<std::string> AnchorsOf(const fs::path& document)
{
    std::set<std::string> anchors;
    bool                  code = false;
    for (const auto& line : test::LinesOf(document)) {
        code = code != line.starts_with("```");
        const auto text = line.find_first_not_of('#');
        if (!code && text != 0 && text != std::string::npos && line[text] == ' ') {
            anchors.insert(test::Anchor(std::string_view(line).substr(text + 1)));
        }
    }
    return anchors;
}

TEST(Documents, LinkToWhatIsThere)
{
    int links = 0;
    for (const auto& document : test::Documents(root)) {
        for (const auto& line : test::LinesOf(document)) {
            for (const auto& target : test::Targets(line)) {
                if (target.find("://") != std::string::npos) {
                    continue;
                }
                ++links;
                SCOPED_TRACE(document.string() + ": " + target);
                const auto mark = target.find('#');
                const auto name = target.substr(0, mark);
                const auto file = name.empty() ? document : document.parent_path() / name;
                EXPECT_TRUE(fs::exists(file));
                if (mark != std::string::npos && fs::exists(file)) {
                    EXPECT_TRUE(AnchorsOf(file).contains(target.substr(mark + 1)));
                }
            }
        }
    }
    EXPECT_GT(links, 100);
}

TEST(Documents, ShowEveryPanel)
{
    std::string all;
    for (const auto& line : test::LinesOf(root / "docs/guide/panels.md")) {
        all += line + '\n';
    }
    for (const auto& entry : fs::directory_iterator(root / "docs/screenshots")) {
        const auto name = entry.path().stem().string();
        if (name.starts_with("frm") && name.find('-') == std::string::npos && name != "frmPicture") {
            EXPECT_NE(all.find("(../screenshots/" + name + ".png)"), std::string::npos) << name;
        }
    }
}

/// The messages of the guide; the varying mark stands for any text.
std::vector<std::string> ListedMessages()
{
    std::vector<std::string> messages;
    for (const auto& line : test::LinesOf(root / "docs/guide/messages.md")) {
        const auto cells = test::Cells(line);
        if (!cells.empty() && cells.front().starts_with('"') && cells.front().ends_with('"')) {
            const auto text = cells.front().substr(1, cells.front().size() - 2);
            messages.push_back(scenario::ReplaceAll(text, "<br>", "\n"));
        }
    }
    return messages;
}

std::vector<std::string> Pieces(const std::string& message)
{
    std::vector<std::string> pieces;
    for (std::size_t begin = 0;;) {
        const auto end = message.find(Varying, begin);
        pieces.push_back(message.substr(begin, end - begin));
        if (end == std::string::npos) {
            return pieces;
        }
        begin = end + Varying.size();
    }
}

bool Fits(const std::string& message, std::string_view text)
{
    const auto pieces = Pieces(message);
    if (pieces.size() == 1) {
        return text == message;
    }
    if (!text.starts_with(pieces.front()) || !text.ends_with(pieces.back()) ||
        text.size() < pieces.front().size() + pieces.back().size()) {
        return false;
    }
    std::size_t at = pieces.front().size();
    for (std::size_t piece = 1; piece + 1 < pieces.size(); ++piece) {
        at = text.find(pieces[piece], at);
        if (at == std::string_view::npos) {
            return false;
        }
        at += pieces[piece].size();
    }
    return at + pieces.back().size() <= text.size();
}

/// The texts of the boxes that the scenarios expect, but for the descriptions of templates, which are their own.
std::set<std::string> ShownMessages()
{
    std::set<std::string> shown;
    for (const auto& entry : fs::directory_iterator(root / "tests/scenarios")) {
        for (const auto& line : test::LinesOf(entry.path())) {
            if (!line.starts_with("> box ")) {
                continue;
            }
            const auto words = scenario::SplitWords(std::string_view(line).substr(2));
            if (words.size() == 4 && words[3].quoted && !words[2].text.starts_with(": ")) {
                shown.insert(scenario::ReplaceAll(words[3].text, "\r", ""));
            }
        }
    }
    return shown;
}

/// The string literals of a C++ source, those that stand one behind the other joined.
std::set<std::string> Literals(const fs::path& file)
{
    std::ifstream         stream(file);
    const std::string     code((std::istreambuf_iterator<char>(stream)), std::istreambuf_iterator<char>());
    std::set<std::string> literals;
    std::string           literal;
    bool                  open = false;
    const auto            close = [&] {
        if (open) {
            literals.insert(literal);
        }
        literal.clear();
        open = false;
    };
    for (std::size_t at = 0; at < code.size(); ++at) {
        if (code.compare(at, 2, "//") == 0) {
            at = code.find('\n', at);
            if (at == std::string::npos) {
                break;
            }
        } else if (code[at] == '\'' && at + 2 < code.size() && (code[at + 2] == '\'' || code[at + 1] == '\\')) {
            close();
            at = code.find('\'', at + 2);
        } else if (code[at] == '"') {
            open = true;
            for (++at; at < code.size() && code[at] != '"'; ++at) {
                if (code[at] == '\\') {
                    ++at;
                    if (code[at] != 'r') {
                        literal += code[at] == 'n' ? '\n' : code[at];
                    }
                } else {
                    literal += code[at];
                }
            }
        } else if (code[at] != ' ' && code[at] != '\n') {
            close();
        }
    }
    close();
    return literals;
}

std::set<std::string> LiteralsOfTheProgram()
{
    std::set<std::string> all;
    for (const auto& entry : fs::recursive_directory_iterator(root / "src")) {
        if (entry.path().extension() == ".cpp" || entry.path().extension() == ".h") {
            all.merge(Literals(entry.path()));
        }
    }
    return all;
}

TEST(Messages, AreAllInTheGuide)
{
    const auto listed = ListedMessages();
    const auto shown = ShownMessages();
    EXPECT_GT(shown.size(), 100U);
    for (const auto& text : shown) {
        // This one is nothing but a number and what a RuntimeError says, and would fit too much.
        const bool isListed = std::ranges::any_of(listed, [&](const auto& message) {
            return message != std::string(Varying) + ": " + std::string(Varying)
                       ? Fits(message, text)
                       : text == "6: Overflow" || text == "9: Subscript out of range";
        });
        EXPECT_TRUE(isListed) << text;
    }
}

TEST(Messages, OfTheGuideAreThoseOfTheProgram)
{
    std::string all;
    for (const auto& literal : LiteralsOfTheProgram()) {
        all += literal + '\0';
    }
    const auto shown = ShownMessages();
    const auto listed = ListedMessages();
    EXPECT_GT(listed.size(), 120U);
    for (const auto& message : listed) {
        const auto pieces = Pieces(message);
        const bool isWritten =
            std::ranges::all_of(pieces, [&](const auto& piece) { return all.find(piece) != std::string::npos; });
        const bool isShown = std::ranges::any_of(shown, [&](const auto& text) { return Fits(message, text); });
        EXPECT_TRUE(isWritten || isShown) << message;
    }
}

/// A sentence that the program may say: it ends as one and is no hint of a control.
bool IsSentence(const std::string& literal)
{
    static const std::set<std::string> beside{
        // shown on a panel, not in a box
        "(Remember to include the command prefix if you're sending actual commands!)",
        "Doing this will wipe out EVERY item on your world. Are you sure you want to do that? ",
        "Ground by hand, tile by tile.",
        "Plants and Misc.",
        "103 - Army Enlistment Obj.",
        // the hint of a button
        "Dye many items in two clicks, preface color hex-id with 0x!",
        "Set the X coordinate of many items to the specified coordinate.",
        "Set the Y coordinate of many items to the specified coordinate.",
        "Set the Z coordinate of many items to the specified coordinate.",
    };
    return std::ranges::count(literal, ' ') >= 2 && (literal.ends_with('.') || literal.ends_with('!')) &&
           literal.find("...") == std::string::npos && !literal.starts_with("Quernfield sits beside") &&
           !beside.contains(literal);
}

TEST(Messages, OfTheSourcesAreInTheGuide)
{
    std::string all;
    for (const auto& message : ListedMessages()) {
        all += message + '\0';
    }
    int sentences = 0;
    for (const auto& literal : LiteralsOfTheProgram()) {
        if (IsSentence(literal)) {
            ++sentences;
            EXPECT_NE(all.find(literal), std::string::npos) << literal;
        }
    }
    EXPECT_GT(sentences, 50);
}

} // namespace
} // namespace qf
