#include <string>
#include <string_view>

#include "command_list/cells.h"
#include "command_list/chapters.h"
#include "items/special.h"

namespace qf::commands {

namespace {

using core::Generation070;
using core::Generation09;

std::string Signed(std::int32_t number)
{
    return (number > 0 ? "+" : "") + std::to_string(number);
}

/// The components in their order; neighbours of one tile share its ID.
std::string Components(const items::SpecialObject& object)
{
    std::string      text;
    std::string_view last;
    for (const auto& component : object.components) {
        if (component.bytes != last) {
            text += (text.empty() ? "" : "; ") + Code(items::ComponentId(component.bytes, Generation09)) + " / " +
                    Code(items::ComponentId(component.bytes, Generation070));
            last = component.bytes;
        }
        text += " (" + Signed(component.dx) + ' ' + Signed(component.dy);
        text += component.dz != 0 ? ' ' + Signed(component.dz) : std::string();
        text += component.base == items::BasePoint::Ignored ? " from the map's corner)" : ")";
    }
    return text;
}

/// Takes the first command alone.
class FirstCommand final : public core::Outlet {
  public:
    void Send(std::string_view command, bool) override
    {
        if (text_.empty()) {
            text_ = command;
        }
    }
    void Show(const core::Message&) override {}
    bool Ask(const core::Message&) override { return true; }

    const std::string& Text() const { return text_; }

  private:
    std::string text_;
};

std::string FirstCommandIn(core::ServerGeneration generation)
{
    FirstCommand outlet;
    items::AddSpecial({.tab = 0, .option = 0, .x = "1000", .y = "2000", .z = "20"}, generation, outlet);
    return Code(outlet.Text());
}

} // namespace

void WriteSpecial(std::ostream& out)
{
    const auto menus = items::SpecialMenus();
    out << "## Special objects: `frmSpecial`\n\nOne command for each component: the first of \""
        << Cell(menus[0].objects[0].name) << "\" at X 1000, Y 2000 and height 20 is " << FirstCommandIn(Generation09)
        << " under 0.9x.x and " << FirstCommandIn(Generation070)
        << " under 0.70.x. A component is its tile in the form of 0.9x.x / 0.70.x and what is added to X, Y and, where "
           "it is not 0, the height of the base point.\n\n";
    for (const auto& menu : menus) {
        out << Cell(menu.caption) << ", " << Code(menu.options) << ":\n\n";
        Columns(out, {"Index", "Object", "Count", "Components"});
        for (std::size_t index = 0; index < menu.objects.size(); ++index) {
            const auto& object = menu.objects[index];
            Row(out, {std::to_string(index), Cell(object.name), std::to_string(object.components.size()),
                      Components(object)});
        }
        out << '\n';
    }
    out << "\"?\" " << Effects(items::ShowSpecialHelp) << ".\n\n";
}

} // namespace qf::commands
