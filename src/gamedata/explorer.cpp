#include "gamedata/explorer.h"

#include "core/command_words.h"
#include "core/number_rules.h"
#include "core/tile_id.h"

namespace qf::gamedata {

namespace {

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
    return std::string(AddWord(modes, generation)) + core::HexNumberText(id);
}

void AddItem(std::string_view tag, AddModes modes, core::ServerGeneration generation, core::Outlet& outlet)
{
    if (const auto command = AddCommand(core::ToInteger32(tag), modes, generation); !command.empty()) {
        outlet.Send(command);
    }
}

void RemoveItem(core::ServerGeneration generation, core::Outlet& outlet)
{
    core::SendWords(core::RemoveItemWords, {}, generation, outlet);
}

std::string ModelIdText(std::int32_t id)
{
    return core::HexNumberText(id) + " (" + std::to_string(id) + ")";
}

std::string CopiedPart(std::string_view modelId)
{
    return std::string(modelId.substr(0, modelId.find(' ')));
}

} // namespace qf::gamedata
