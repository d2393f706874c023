#pragma once

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "core/generation.h"
#include "core/outlet.h"
#include "core/runtime_error.h"

namespace qf::commands {

/// The text as it stands in a cell of a table.
std::string Cell(std::string_view text);

/// A caption as the user sees it.
std::string Shown(std::string_view caption);

std::string Code(std::string_view text);

/// What leaves the program, as a cell.
class CellOutlet final : public core::Outlet {
  public:
    void Send(std::string_view command, bool usePrefix) override;
    void Show(const core::Message& message) override;
    bool Ask(const core::Message& message) override;

    std::string Text() const { return text_.empty() ? "nothing" : text_; }

  private:
    void Add(const std::string& effect) { text_ += (text_.empty() ? "" : ", then ") + effect; }

    std::string text_;
};

/// What a step sends and says, run-time errors included.
template <typename Run>
std::string Effects(const Run& run)
{
    CellOutlet outlet;
    try {
        run(outlet);
    } catch (const core::RuntimeError& error) {
        outlet.Show({.text = error.Description(), .style = core::MessageStyle::Plain, .title = {}});
    }
    return outlet.Text();
}

/// The head of a table of what is sent under either generation.
void Heading(std::ostream& out, std::string_view first, bool named = true);

/// The head of any other table.
void Columns(std::ostream& out, const std::vector<std::string>& names);

void Row(std::ostream& out, const std::vector<std::string>& cells);

/// A row of what is sent in either generation; `send` is called with the generation and an outlet.
template <typename SendIn>
void CommandRow(std::ostream& out, std::vector<std::string> cells, const SendIn& send)
{
    for (const auto generation : {core::Generation09, core::Generation070}) {
        cells.push_back(Effects([&](core::Outlet& outlet) { send(generation, outlet); }));
    }
    Row(out, cells);
}

} // namespace qf::commands
