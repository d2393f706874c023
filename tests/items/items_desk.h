#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "items/items.h"
#include "support/recording_outlet.h"

namespace qf::items {

/// An items panel without a window: its fields, and the tiles that were drawn.
struct DeskOnPaper {
    explicit DeskOnPaper(core::ServerGeneration generationOfRun, int tab = Chairs) : generation(generationOfRun)
    {
        state.tableForm = generationOfRun;
        state.tab = tab;
    }

    void                     Option(int option) { ClickOption(state, state.tab, option, Desk()); }
    void                     Direction(int direction) { ClickDirection(state, direction, Desk()); }
    void                     Tab(int tab) { ChangeTab(state, tab, generation); }
    std::vector<std::string> Add() const
    {
        test::RecordingOutlet outlet;
        AddItem(state, outlet);
        return outlet.Lines();
    }
    ItemsDesk Desk()
    {
        return {generation, [this](std::int32_t number) { drawn.push_back(number); }};
    }

    core::ServerGeneration    generation;
    ItemsState                state;
    std::vector<std::int32_t> drawn;
};

/// Which of the directions are available, as a text of eight digits.
inline std::string Flags(const std::array<bool, DirectionCount>& flags)
{
    std::string text;
    for (const bool flag : flags) {
        text += flag ? '1' : '0';
    }
    return text;
}

} // namespace qf::items
