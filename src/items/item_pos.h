#pragma once

#include <span>
#include <string>
#include <string_view>

#include "core/command_words.h"
#include "core/generation.h"
#include "core/outlet.h"

namespace qf::items {

/// A button that sends its words with the text of its box behind them.
struct ValueButton {
    std::string_view   name;
    std::string_view   caption;
    std::string_view   box;
    core::CommandWords words;
};

/// A button that sends its words alone.
struct PlainButton {
    std::string_view   name;
    std::string_view   caption;
    core::CommandWords words;
};

/// A button that changes the number in its box.
struct StepButton {
    std::string_view name;
    std::string_view caption;
    std::string_view box;
    double           step;
};

std::span<const ValueButton> ValueButtons();
std::span<const PlainButton> PlainButtons();
std::span<const StepButton>  StepButtons();

/// One command with the box's text as it stands; a message where it is empty.
void SendValue(const ValueButton& button, std::string_view text, core::ServerGeneration generation,
               core::Outlet& outlet);

/// The text of a box after a step. Throws RuntimeError 13 or 6 where it holds no number.
std::string Stepped(std::string_view text, double step);

} // namespace qf::items
