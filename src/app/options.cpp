#include "app/options.h"

#include <string_view>

#include "core/number_rules.h"
#include "core/text.h"

namespace qf::app {

namespace {

/// Stands in the store for a usable assist window, which has no address.
constexpr std::int32_t AssistCalibration = 7000;

} // namespace

std::string WithBackslash(std::string path)
{
    if (!path.ends_with('\\')) {
        path += '\\';
    }
    return path;
}

core::ServerGeneration ChosenGeneration(const std::array<bool, 2>& zarnVer)
{
    return zarnVer[1] ? core::Generation09 : core::Generation070;
}

void SaveOptions(const OptionsState& state, core::Settings& settings, core::ServerGeneration& generation,
                 core::SettingsStore& store)
{
    settings.UOPath = state.pathUO;
    settings.IUOPath = state.pathInsideUO;
    settings.ItemPic = state.itemPics != 0;
    settings.StayOnTop = state.stayOnTop != 0;
    settings.ZarnPath = state.pathZarn;
    settings.UOGPath = state.pathUOG;
    settings.CommandPrefix = state.commandPrefix;
    settings.UsingThirdDawn = state.useTD != 0;
    settings.UsingClassicUO = state.useClassicUO != 0;
    settings.UsingVista = state.useVista != 0;
    generation = ChosenGeneration(state.zarnVer);

    const auto write = [&store](std::string_view key, const std::string& text) {
        store.Write(core::section::Configuration, key, text);
    };
    write("UOPath", state.pathUO);
    write("ZarnPath", state.pathZarn);
    write("IUOPath", state.pathInsideUO);
    write("UOGPath", state.pathUOG);
    write("ItemPic", core::ToText(state.itemPics));
    write("StayOnTop", core::ToText(state.stayOnTop));
    write("CommandPrefix", state.commandPrefix);
    write("UsingThirdDawn", core::ToText(state.useTD));
    write("UsingClassicUO", core::ToText(state.useClassicUO));
    write("UsingVista", core::ToText(state.useVista));
    write("ZarnVer", core::ToText(std::int32_t{generation.Number()}));
}

std::int32_t Calibrate(const CalibrationPlace& place, bool usingClassicUO, const CalibrationSearch& search,
                       core::Outlet& outlet)
{
    if (usingClassicUO) {
        const auto answer = search(0, 0, 0);
        if (core::LoWord(answer) != 0) {
            outlet.Show(core::PlainBox("Calibration Successful!"));
            return AssistCalibration;
        }
        outlet.Show(
            core::PlainBox("Calibration was not successful! Unable to get coordinates from ClassicUO assist API."));
        return answer;
    }
    const auto x = core::ToInteger32(place.x);
    const auto y = core::ToInteger32(place.y);
    const auto z = core::ToInteger32(place.z);
    const auto address = search(x, y, z);
    outlet.Show(core::PlainBox(
        address == 0 ? "Calibration was not successful! Make sure you enter your current ingame coordinates."
                     : "Calibration Successful!"));
    return address;
}

} // namespace qf::app
