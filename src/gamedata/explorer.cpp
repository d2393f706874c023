#include "gamedata/explorer.h"

#include <array>
#include <charconv>

#include "core/number_rules.h"

namespace qf::gamedata {

namespace {

/// "0x" and the number's 32-bit pattern in upper-case hexadecimal without leading zeros.
std::string HexText(std::int32_t number)
{
    std::array<char, 8> digits{};
    const auto          end =
        std::to_chars(digits.data(), digits.data() + digits.size(), static_cast<std::uint32_t>(number), 16);
    std::string text = "0x";
    for (const char* digit = digits.data(); digit != end.ptr; ++digit) {
        text += *digit >= 'a' ? static_cast<char>(*digit - 'a' + 'A') : *digit;
    }
    return text;
}

std::string_view AddWord(AddModes modes, core::ServerGeneration generation)
{
    if (generation.Is09() && modes.repeatAdd) {
        return "radd ";
    }
    return modes.tile ? "tile " : "add ";
}

} // namespace

std::string AddCommand(std::int32_t id, AddModes modes, core::ServerGeneration generation)
{
    if (!generation.Is070() && !generation.Is09()) {
        return {};
    }
    return std::string(AddWord(modes, generation)) + HexText(id);
}

void AddItem(std::string_view tag, AddModes modes, core::ServerGeneration generation, core::Outlet& outlet)
{
    if (const auto command = AddCommand(core::ToInteger32(tag), modes, generation); !command.empty()) {
        outlet.Send(command);
    }
}

void RemoveItem(core::ServerGeneration generation, core::Outlet& outlet)
{
    if (generation.Is070()) {
        outlet.Send("remove");
    } else if (generation.Is09()) {
        outlet.Send("rremove");
    }
}

std::string ModelIdText(std::int32_t id)
{
    return HexText(id) + " (" + std::to_string(id) + ")";
}

std::string CopiedPart(std::string_view modelId)
{
    return std::string(modelId.substr(0, modelId.find(' ')));
}

} // namespace qf::gamedata
