#include "core/settings.h"

#include "core/number_rules.h"

namespace qf::core {

Settings ReadSettings(SettingsStore& store)
{
    const auto text = [&store](std::string_view key, std::string_view fallback = {}) {
        return store.Read(section::Configuration, key, fallback);
    };
    const auto flag = [&text](std::string_view key) { return ToBoolean(text(key, "0")); };

    Settings settings;
    settings.UOPath = text("UOPath", UsualClientFolder);
    settings.IUOPath = text("IUOPath");
    settings.ZarnPath = text("ZarnPath");
    settings.UOGPath = text("UOGPath");
    settings.ItemPic = flag("ItemPic");
    settings.StayOnTop = flag("StayOnTop");
    settings.CommandPrefix = text("CommandPrefix", "'");
    settings.UsingThirdDawn = flag("UsingThirdDawn");
    settings.UsingClassicUO = flag("UsingClassicUO");
    settings.UsingVista = flag("UsingVista");
    return settings;
}

} // namespace qf::core
