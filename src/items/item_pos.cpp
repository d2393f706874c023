#include "items/item_pos.h"

#include <array>

#include "core/number_rules.h"

namespace qf::items {

namespace {

// clang-format off
constexpr std::array valueButtons{
    ValueButton{"Command3",  "IncX", "txtIncrease", {"incx ", "rincx "}},
    ValueButton{"Command2",  "IncY", "txtIncrease", {"incy ", "rincy "}},
    ValueButton{"Command10", "IncZ", "txtIncrease", {"incz ", "rincz "}},
    ValueButton{"Command6",  "NewX", "txtNewPos",   {"newx ", "set x "}},
    ValueButton{"Command5",  "NewY", "txtNewPos",   {"newy ", "set y "}},
    ValueButton{"Command4",  "NewZ", "txtNewPos",   {"newz ", "set z "}},
};

constexpr std::array plainButtons{
    PlainButton{"Command7", "TeleStuff",  {"telestuff", "telestuff"}},
    PlainButton{"Command8", "MoveToBag",  {"movetobag", "movetobag"}},
    PlainButton{"Command9", "MoveToFeet", {"xtele",     "xteleport"}},
};

constexpr std::array stepButtons{
    StepButton{"Command11", "+", "txtIncrease",  1},
    StepButton{"Command12", "-", "txtIncrease", -1},
    StepButton{"Command13", "+", "txtNewPos",    1},
    StepButton{"Command14", "-", "txtNewPos",   -1},
};
// clang-format on

} // namespace

std::span<const ValueButton> ValueButtons()
{
    return valueButtons;
}

std::span<const PlainButton> PlainButtons()
{
    return plainButtons;
}

std::span<const StepButton> StepButtons()
{
    return stepButtons;
}

void SendValue(const ValueButton& button, std::string_view text, core::ServerGeneration generation,
               core::Outlet& outlet)
{
    if (text.empty()) {
        outlet.Show(core::PlainBox("You need to enter a value first."));
        return;
    }
    SendWords(button.words, text, generation, outlet);
}

std::string Stepped(std::string_view text, double step)
{
    return core::ToText(core::ToDouble(text) + step);
}

} // namespace qf::items
