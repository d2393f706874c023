#pragma once

#include <span>
#include <string_view>

#include "core/generation.h"
#include "core/outlet.h"

namespace qf::items {

/// A kind of light: the index of its button, one less than the direction that the server knows it by, and its
/// caption. Captions repeat.
struct LightButton {
    int              index;
    std::string_view caption;
};

/// All kinds of light in the order of their indices, which have gaps.
std::span<const LightButton> LightButtons();

/// The direction value that makes a lamp shine with this kind of light.
constexpr int LightValue(int index)
{
    return index + 1;
}

/// One command that gives the light of a button to the item that is then picked in the client.
void SendLight(int index, core::ServerGeneration generation, core::Outlet& outlet);

} // namespace qf::items
