#include "core/tile_id.h"

#include <charconv>

#include "core/runtime_error.h"
#include "core/text.h"

namespace qf::core {

std::string TileIdText(std::string_view digits, ServerGeneration generation)
{
    std::string text;
    if (digits.empty()) {
        return text;
    }
    if (generation.Is070()) {
        text = digits;
        if (text.size() > 2) {
            text.insert(2, 1, ' ');
        }
    } else if (generation.Is09()) {
        text = "0x";
        text += digits;
    }
    return text;
}

std::string HexNumberText(std::int32_t number)
{
    return "0x" + UpperHex(static_cast<std::uint32_t>(number));
}

std::int32_t TileNumberOf(std::string_view digits)
{
    std::uint32_t pattern = 0;
    const auto    parsed = std::from_chars(digits.data(), digits.data() + digits.size(), pattern, 16);
    if (parsed.ec != std::errc() || parsed.ptr != digits.data() + digits.size()) {
        throw RuntimeError(error::TypeMismatch);
    }
    return static_cast<std::int32_t>(pattern);
}

std::int32_t TileNumber(std::string_view idText, ServerGeneration generation)
{
    if (generation.Is070() && idText.size() == 5 && idText[2] == ' ') {
        std::string digits(idText.substr(0, 2));
        digits += idText.substr(3);
        return TileNumberOf(digits);
    }
    if (generation.Is09() && idText.starts_with("0x")) {
        return TileNumberOf(idText.substr(2));
    }
    throw RuntimeError(error::TypeMismatch);
}

} // namespace qf::core
