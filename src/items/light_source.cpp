#include "items/light_source.h"

#include <array>

#include "core/command_words.h"
#include "core/number_rules.h"

namespace qf::items {

namespace {

constexpr core::CommandWords SetDirection{"setdir ", "set dir "};

// clang-format off
constexpr std::array lightButtons{
    LightButton{ 0, "All   360   3"},
    LightButton{ 1, "All   360   3"},
    LightButton{ 2, "South"},
    LightButton{ 3, "East"},
    LightButton{ 4, "South 180 3"},
    LightButton{ 5, "South 135 3"},
    LightButton{ 6, "West 180 3"},
    LightButton{ 7, "East 180 3"},
    LightButton{ 8, "East 135 3"},
    LightButton{ 9, "North 180 3"},
    LightButton{10, "South 180 2"},
    LightButton{11, "South 135 3"},
    LightButton{12, "West 180 3"},
    LightButton{13, "East 180 3"},
    LightButton{14, "North 180 3"},

    LightButton{21, "Small Window"},
    LightButton{22, "Small Window"},
    LightButton{23, "Small Window"},
    LightButton{24, "Small Window"},
    LightButton{25, "Arched Window"},
    LightButton{26, "Arched Window"},
    LightButton{27, "Arched Window"},
    LightButton{28, "All   360   4"},
    LightButton{29, "Southeast 90"},

    LightButton{36, "Open Door"},
    LightButton{37, "Open Door"},
    LightButton{38, "Window w light"},
    LightButton{39, "Window wo light"},
    LightButton{40, "Window w light"},
    LightButton{41, "Window wo light"},
    LightButton{42, "NONE (turn off)"},
    LightButton{43, "Slit Window"},
    LightButton{44, "Slit Window"},
    LightButton{45, "Slit Window"},

    LightButton{49, "Slots"},
    LightButton{50, "South  90"},
    LightButton{51, "East    90"},
    LightButton{52, "South   180   2"},
    LightButton{53, "East     180   2"},
    LightButton{54, "Southeast 90"},
    LightButton{55, "NONE (Turn off)"},
};
// clang-format on

} // namespace

std::span<const LightButton> LightButtons()
{
    return lightButtons;
}

void SendLight(int index, core::ServerGeneration generation, core::Outlet& outlet)
{
    SendWords(SetDirection, core::ToText(LightValue(index)), generation, outlet);
}

} // namespace qf::items
