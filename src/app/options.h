#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>

#include "core/generation.h"
#include "core/outlet.h"
#include "core/settings.h"

namespace qf::app {

/// What the boxes of the configuration panel hold; a check box is 0, 1 or 2 (grey).
struct OptionsState {
    std::string         pathUO;
    std::string         pathZarn;
    std::string         pathInsideUO;
    std::string         pathUOG;
    std::string         commandPrefix;
    int                 itemPics = 0;
    int                 stayOnTop = 0;
    int                 useTD = 0;
    int                 useClassicUO = 0;
    int                 useVista = 0;
    std::array<bool, 2> zarnVer{};
};

/// The path of a folder, which ends in "\".
std::string WithBackslash(std::string path);

/// The generation that the options choose: the higher index where both were set, 0 where none is.
core::ServerGeneration ChosenGeneration(const std::array<bool, 2>& zarnVer);

/// Takes the boxes over into the settings of the run and writes them to the store.
/// Throws RuntimeError 75 where the store cannot be written.
void SaveOptions(const OptionsState& state, core::Settings& settings, core::ServerGeneration& generation,
                 core::SettingsStore& store);

/// The place that the user typed for the calibration.
struct CalibrationPlace {
    std::string x;
    std::string y;
    std::string z;

    bool IsComplete() const { return !x.empty() && !y.empty() && !z.empty(); }
};

/// Looks for a place and gives its address, 0, -1 or the assist window's answer.
using CalibrationSearch = std::function<std::int32_t(std::int32_t x, std::int32_t y, std::int32_t z)>;

/// Searches for the place (with ClassicUO for none), tells how it went and gives the number to store, which is
/// one of a failure too. Without a client the search gives -1, which reads as success: the first position
/// button that is pressed then asks for a calibration.
/// Throws RuntimeError 13 or 6 where the place is no three whole numbers.
std::int32_t Calibrate(const CalibrationPlace& place, bool usingClassicUO, const CalibrationSearch& search,
                       core::Outlet& outlet);

} // namespace qf::app
