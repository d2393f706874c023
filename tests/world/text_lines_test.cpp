#include "world/text_lines.h"

#include <fstream>
#include <gtest/gtest.h>
#include <ios>
#include <sstream>
#include <string>
#include <vector>

#include "failure_of.h"
#include "support/temp_folder.h"

namespace qf::world {
namespace {

using namespace std::string_literals;

std::vector<std::string> LinesOf(const std::string& text, std::size_t blockSize)
{
    std::stringbuf           bytes(text);
    TextLines                lines(bytes, blockSize);
    std::vector<std::string> all;
    for (std::string_view line; lines.Next(line);) {
        all.emplace_back(line);
    }
    return all;
}

TEST(TextLines, EndAtLineFeedsWithOrWithoutCarriageReturn)
{
    const struct {
        std::string              text;
        std::vector<std::string> lines;
    } cases[] = {
        {"", {}},
        {"\n", {""}},
        {"\r\n", {""}},
        {"a", {"a"}},
        {"a\r\nb\nc", {"a", "b", "c"}},
        {"a\r\n\r\n\nb\r\n", {"a", "", "", "b"}},
        {"a\rb\nc\r", {"a\rb", "c\r"}},
        {"a\r\r\n", {"a\r"}},
        {"\0a\n\0"s, {"\0a"s, "\0"s}},
        {"a line longer than a block\r\nshort\r\nanother that is longer",
         {"a line longer than a block", "short", "another that is longer"}},
    };
    for (const auto& [text, lines] : cases) {
        for (const std::size_t blockSize : {1U, 2U, 3U, 7U, 1024U}) {
            EXPECT_EQ(LinesOf(text, blockSize), lines) << text << " in blocks of " << blockSize;
        }
    }
}

TEST(TextLines, ManyLinesAcrossBlocks)
{
    std::string text;
    for (int i = 0; i < 100'000; ++i) {
        text += std::to_string(i) + "\r\n";
    }
    const auto lines = LinesOf(text, TextLines::BlockSize);
    ASSERT_EQ(lines.size(), 100'000U);
    for (int i = 0; i < 100'000; ++i) {
        EXPECT_EQ(lines[static_cast<std::size_t>(i)], std::to_string(i));
    }
}

/// A medium that gives a line and then fails.
class FailingBytes final : public std::streambuf {
  protected:
    std::streamsize xsgetn(char* out, std::streamsize) override
    {
        if (given_) {
            throw std::ios_base::failure("the medium fails");
        }
        given_ = true;
        *out = 'a';
        return 1;
    }

  private:
    bool given_ = false;
};

TEST(TextLines, AMediumThatFailsIsAnError)
{
    FailingBytes     bytes;
    TextLines        lines(bytes);
    std::string_view line;
    EXPECT_EQ(FailureOf([&] { lines.Next(line); }), std::pair(75, "Path/File access error"s));
}

} // namespace
} // namespace qf::world
