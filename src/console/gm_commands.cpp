#include "console/gm_commands.h"

#include <algorithm>

#include "core/number_rules.h"
#include "core/text.h"

namespace qf::console {

namespace {

constexpr std::string_view LeftKey = "GMposX";
constexpr std::string_view TopKey = "GMposY";
constexpr std::size_t      CaptionsSetAtLoad = 10;

std::string CustomKey(std::size_t index)
{
    return "CustomCMD" + std::to_string(index);
}

/// What a name in braces stands for: the word of a list's choice or the text of a box.
std::string_view ValueOf(std::string_view name, const GMFields& fields)
{
    if (const auto list = std::ranges::find(GMLists(), name, &GMList::name); list != GMLists().end()) {
        const auto found = fields.indices.find(name);
        const auto index = found != fields.indices.end() ? found->second : -1;
        const bool chosen = index >= 0 && static_cast<std::size_t>(index) < list->choices.size();
        return chosen ? list->choices[static_cast<std::size_t>(index)].word : list->wordOfNone;
    }
    const auto found = fields.texts.find(name);
    return found != fields.texts.end() ? std::string_view(found->second) : std::string_view();
}

std::string Compose(std::string_view text, const GMFields& fields)
{
    std::string composed;
    while (!text.empty()) {
        const auto open = text.find('{');
        const auto close = text.find('}', open);
        if (close == std::string_view::npos) {
            break;
        }
        composed += text.substr(0, open);
        composed += ValueOf(text.substr(open + 1, close - open - 1), fields);
        text.remove_prefix(close + 1);
    }
    return composed.append(text);
}

} // namespace

const GMCommand* FindGMCommand(std::string_view name)
{
    const auto commands = GMCommands();
    const auto found = std::ranges::find(commands, name, &GMCommand::name);
    return found != commands.end() ? &*found : nullptr;
}

const GMEffect& EffectIn(const GMCommand& command, core::ServerGeneration generation)
{
    static constexpr GMEffect nothing;
    if (generation.Is09() || command.in070.act == GMAct::Same) {
        return command.in09;
    }
    return generation.Is070() ? command.in070 : nothing;
}

GMWindowStep PressGMCommand(const GMCommand& command, const GMFields& fields, core::ServerGeneration generation,
                            core::Outlet& outlet)
{
    const auto&  effect = EffectIn(command, generation);
    GMWindowStep step{.act = GMAct::None, .target = {}, .hides = command.hides};
    switch (effect.act) {
    case GMAct::None:
    case GMAct::Same: break;
    case GMAct::Send: outlet.Send(Compose(effect.text, fields)); break;
    case GMAct::Type: outlet.Send(Compose(effect.text, fields), false); break;
    case GMAct::Tell: outlet.Show(core::PlainBox(std::string(effect.more))); break;
    case GMAct::TellAndSend:
        outlet.Show(core::PlainBox(std::string(effect.more)));
        outlet.Send(Compose(effect.text, fields));
        break;
    case GMAct::OpenWithClient:
        if (fields.uoPath.empty()) {
            outlet.Show(core::PlainBox(std::string(effect.more)));
        } else {
            step.act = GMAct::Open;
            step.target = effect.text;
        }
        break;
    default:
        step.act = effect.act;
        step.target = effect.text;
        break;
    }
    return step;
}

std::span<const std::string_view> ReloadCaptions(core::ServerGeneration generation)
{
    static const auto captions09 = [] {
        std::array<std::string_view, CaptionsSetAtLoad> captions;
        for (std::size_t index = 0; index < captions.size(); ++index) {
            captions[index] = FindGMCommand("cmdReload(" + std::to_string(index) + ")")->caption;
        }
        return captions;
    }();
    if (generation.Is09()) {
        return captions09;
    }
    return generation.Is070() ? ReloadCaptions070() : std::span<const std::string_view>();
}

CustomCommands ReadCustomCommands(core::SettingsStore& store)
{
    CustomCommands commands;
    for (std::size_t index = 0; index < commands.size(); ++index) {
        commands[index] = store.Read(core::section::Configuration, CustomKey(index));
    }
    return commands;
}

void SaveCustomCommands(const CustomCommands& commands, core::SettingsStore& store, core::Outlet& outlet)
{
    for (std::size_t index = 0; index < commands.size(); ++index) {
        store.Write(core::section::Configuration, CustomKey(index), commands[index]);
    }
    outlet.Show(core::PlainBox("Custom commands saved."));
}

bool IsCustomCommandUsable(std::string_view text)
{
    return !core::TrimBlanks(text).empty();
}

GMPosition ReadGMPosition(core::SettingsStore& store)
{
    const auto read = [&store](std::string_view key) {
        return core::ToInteger16(store.Read(core::section::Startup, key));
    };
    const auto left = read(LeftKey);
    return {left, read(TopKey)};
}

void SaveGMPosition(int left, int top, core::SettingsStore& store)
{
    store.Write(core::section::Startup, LeftKey, core::ToText(static_cast<float>(left)));
    store.Write(core::section::Startup, TopKey, core::ToText(static_cast<float>(top)));
}

} // namespace qf::console
