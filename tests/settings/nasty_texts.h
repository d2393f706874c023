#pragma once

#include <string>
#include <vector>

namespace qf::app {

/// Texts that a store has to give back as they were written.
inline std::vector<std::string> NastyTexts()
{
    using namespace std::string_literals;
    return {
        "",
        " ",
        "  ",
        "\t",
        " leading",
        "trailing ",
        "\ttabs\t",
        "'",
        "\"",
        "\"quoted\"",
        "'single'",
        R"(C:\Program Files\Ultima Online\)",
        R"(\)",
        R"(\\server\share\new\table)",
        R"(\n\r\t\0)",
        "a=b=c",
        "=",
        "[Configuration]",
        "[[Dobrin's Quernfield]]",
        "; no comment",
        "# no comment",
        "%",
        "%%",
        "100%",
        "%APPDATA%",
        "%20",
        "%2520",
        "%%20",
        "%2",
        "%\n",
        "%4\r\n1",
        "two\nlines",
        "two\r\nlines",
        "\r",
        "\n",
        "\n\n",
        "\0"s,
        "a\0b"s,
        "end\0"s,
        "Zauberspr\xC3\xBC"
        "che \xE2\x82\xAC \xF0\x9F\x90\x89",
        "\xEF\xBB\xBFmark",
        "\x01\x1B\x7F",
        std::string(100000, 'x'),
    };
}

} // namespace qf::app
