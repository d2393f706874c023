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

/// What leaves the program, each effect as a cell.
class CellOutlet final : public core::Outlet {
  public:
    void Send(std::string_view command, bool usePrefix) override;
    void Show(const core::Message& message) override;
    bool Ask(const core::Message& message) override;

    const std::vector<std::string>& List() const { return effects_; }

  private:
    std::vector<std::string> effects_;
};

/// What a step sends and says, one by one, run-time errors included.
template <typename Run>
std::vector<std::string> EffectList(const Run& run)
{
    CellOutlet outlet;
    try {
        run(outlet);
    } catch (const core::RuntimeError& error) {
        outlet.Show({.text = error.Description(), .style = core::MessageStyle::Plain, .title = {}});
    }
    return outlet.List();
}

/// All effects in one cell.
std::string Joined(const std::vector<std::string>& effects);

template <typename Run>
std::string Effects(const Run& run)
{
    return Joined(EffectList(run));
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

/// A numbered table of what one press sends in either generation, an effect a row.
void WriteSteps(std::ostream& out, const std::vector<std::string>& in09, const std::vector<std::string>& in070);

template <typename SendIn>
void StepTable(std::ostream& out, const SendIn& send)
{
    const auto in = [&](core::ServerGeneration generation) {
        return EffectList([&](core::Outlet& outlet) { send(generation, outlet); });
    };
    WriteSteps(out, in(core::Generation09), in(core::Generation070));
}

} // namespace qf::commands
