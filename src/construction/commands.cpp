#include "construction/commands.h"

#include "core/command_words.h"
#include "core/number_rules.h"
#include "core/runtime_error.h"

namespace qf::construction {

namespace {

std::int32_t Resolve(BoxEnd end, std::int32_t first, std::int32_t second)
{
    return core::Add32(end.corner == 1 ? first : second, end.offset);
}

} // namespace

Area ToArea(const AreaTexts& texts)
{
    return {core::ToInteger32(texts.x1), core::ToInteger32(texts.x2), core::ToInteger32(texts.y1),
            core::ToInteger32(texts.y2)};
}

Area StripOf(const Area& box, BoxEnd x1, BoxEnd x2, BoxEnd y1, BoxEnd y2)
{
    return {Resolve(x1, box.x1, box.x2), Resolve(x2, box.x1, box.x2), Resolve(y1, box.y1, box.y2),
            Resolve(y2, box.y1, box.y2)};
}

void SendArea(core::Outlet& outlet, core::ServerGeneration generation, std::string_view id, const Area& area,
              std::int32_t z)
{
    std::string command;
    if (generation.Is070()) {
        command = "tilew ";
    } else if (generation.Is09()) {
        command = "tile ";
    } else {
        return;
    }
    command += id;
    for (const auto number : {area.x1, area.x2, area.y1, area.y2, z}) {
        command += ' ';
        command += core::ToText(number);
    }
    outlet.Send(command);
}

void SendTypedArea(core::Outlet& outlet, core::ServerGeneration generation, std::string_view id,
                   const AreaTexts& corners, const std::string& height)
{
    RunTrapped(outlet, "Please provide a valid location, including height!", [&] {
        const auto area = ToArea(corners);
        SendArea(outlet, generation, id, area, core::ToInteger32(height));
    });
}

void SendPointAndClick(core::Outlet& outlet, std::string_view id)
{
    outlet.Send("tile " + std::string(id));
}

void SendDirectAdd(core::Outlet& outlet, core::ServerGeneration generation, std::string_view id)
{
    core::SendWords({"add ", "radd "}, id, generation, outlet);
}

void SendRemove(core::Outlet& outlet, core::ServerGeneration generation)
{
    core::SendWords(core::RemoveItemWords, {}, generation, outlet);
}

void RunTrapped(core::Outlet& outlet, std::string_view typeError, const std::function<void()>& run)
{
    try {
        run();
    } catch (const core::RuntimeError& error) {
        if (error.Number() == core::error::TypeMismatch) {
            outlet.Show(core::InformationBox(std::string(typeError)));
        } else {
            outlet.Show(core::CriticalBox(std::to_string(error.Number()) + ": " + error.Description()));
        }
    }
}

} // namespace qf::construction
