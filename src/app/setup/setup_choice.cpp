#include "app/setup/setup_choice.h"

#include <filesystem>
#include <optional>
#include <system_error>

#include "core/host_path.h"
#include "core/number_rules.h"
#include "core/runtime_error.h"

namespace qf::app {

namespace {

constexpr std::string_view GenerationKey = "ZarnVer";
constexpr std::string_view FolderKey = "UOPath";

bool IsFolder(std::string_view programPath)
{
    std::error_code failure;
    return !programPath.empty() && std::filesystem::is_directory(core::HostPath(programPath), failure);
}

/// The generation as the program reads it at its start.
std::optional<int> StoredGeneration(core::SettingsStore& store)
{
    const auto text = store.Find(core::section::Configuration, GenerationKey);
    if (!text) {
        return std::nullopt;
    }
    try {
        return core::ToInteger16(*text);
    } catch (const core::RuntimeError&) {
        return std::nullopt;
    }
}

} // namespace

std::string UsualFolder()
{
#ifdef _WIN32
    return std::string(core::UsualClientFolder) + "\\";
#else
    return {};
#endif
}

SetupTexts TextsOf(const SetupChoice& choice)
{
    SetupTexts texts{std::to_string(choice.generation), core::ProgramPath(core::PathOf(choice.clientFolder))};
    if (!texts.uoPath.ends_with('\\')) {
        texts.uoPath += '\\';
    }
    return texts;
}

SetupChoice InitialChoice(core::SettingsStore& store, std::string_view practiceArt, const std::string& usualFolder)
{
    SetupChoice choice;
    choice.generation = StoredGeneration(store) == 0 ? 0 : 1;

    const auto stored = store.Find(core::section::Configuration, FolderKey);
    if (!stored && !practiceArt.empty() && !IsFolder(usualFolder)) {
        choice.clientFolder = practiceArt;
        return choice;
    }
    choice.clientFolder = core::Utf8Of(core::HostPath(stored ? *stored : usualFolder));
    return choice;
}

bool LacksTileArt(const SetupChoice& choice)
{
    const auto folder = TextsOf(choice).uoPath;
    return !choice.clientFolder.empty() && !(core::IsFile(folder + "art.mul") && core::IsFile(folder + "artidx.mul"));
}

bool IsSetupNeeded(core::SettingsStore& store)
{
    return !StoredGeneration(store);
}

void SaveChoice(core::SettingsStore& store, const SetupChoice& choice)
{
    const auto texts = TextsOf(choice);
    store.Write(core::section::Configuration, FolderKey, texts.uoPath);
    store.Write(core::section::Configuration, GenerationKey, texts.zarnVer);
}

} // namespace qf::app
