#include "practice/options.h"

#include <charconv>
#include <string_view>

namespace qf::practice {

namespace {

constexpr int SmallestSide = 240;
constexpr int LargestSide = 8192;

int Side(std::string_view text)
{
    int        side = 0;
    const auto end = text.data() + text.size();
    const auto read = std::from_chars(text.data(), end, side);
    if (read.ec != std::errc() || read.ptr != end || side < SmallestSide || side > LargestSide) {
        throw UsageError("--size takes WIDTHxHEIGHT, each from 240 to 8192, for example 1024x768");
    }
    return side;
}

void ReadSize(std::string_view text, Options& options)
{
    const std::size_t cross = text.find('x');
    options.width = Side(text.substr(0, cross));
    options.height = Side(cross == std::string_view::npos ? std::string_view() : text.substr(cross + 1));
}

} // namespace

Options ParseOptions(std::span<const char* const> arguments)
{
    Options options;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string_view name = arguments[i];
        if (name == "--help") {
            options.help = true;
            continue;
        }
        if (name == "--no-art") {
            options.noArt = true;
            continue;
        }
        if (name != "--log" && name != "--screenshot" && name != "--prefix" && name != "--size" &&
            name != "--client-folder") {
            throw UsageError("unknown option \"" + std::string(name) + "\"");
        }
        if (++i == arguments.size()) {
            throw UsageError(std::string(name) + " needs a value");
        }
        const std::string_view value = arguments[i];
        if (name == "--prefix") {
            options.prefix = value;
            continue;
        }
        if (value.empty()) {
            throw UsageError(std::string(name) + " needs a value");
        }
        if (name == "--log") {
            options.logFile = value;
        } else if (name == "--screenshot") {
            options.screenshotFile = value;
        } else if (name == "--client-folder") {
            options.clientFolder = value;
        } else {
            ReadSize(value, options);
        }
    }
    if (options.noArt && !options.clientFolder.empty()) {
        throw UsageError("--client-folder and --no-art exclude each other");
    }
    return options;
}

std::string UsageText()
{
    return "Usage: quernfield-practice [OPTION]...\n"
           "A window that stands in for the game client: it takes typed command lines and shows what they build.\n"
           "\n"
           "  --client-folder DIR  draw with the art.mul and artidx.mul of DIR\n"
           "                       (default: PracticeArt beside the program or installed with it)\n"
           "  --no-art             draw painted blocks in place of art\n"
           "  --log FILE           append each line received to FILE\n"
           "  --prefix TEXT        what a command begins with (default: ')\n"
           "  --screenshot FILE    write the view to FILE (BMP) on F12 and on exit\n"
           "  --size WxH           size of the window (default: 1024x768)\n"
           "  --help               show this text\n"
           "\n"
           "Mouse wheel: zoom. Middle button or arrow keys: scroll. Home: back to the player.\n"
           "F2: hide what lies above the player. Escape: give up a command that waits for a click.\n";
}

} // namespace qf::practice
