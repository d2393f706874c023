#include "world/template_build.h"

#include "core/number_rules.h"
#include "core/runtime_error.h"
#include "core/text.h"
#include "world/line_file.h"
#include "world/template_file.h"

namespace qf::world {

namespace {

constexpr std::string_view NameStart = "Good lord, I'm building a ";
constexpr std::string_view DescriptionStart = "Wow, I could describe this as ";

/// A kind of tile line: how it begins, how many blanks it has with a one-word id, and what is said of a line
/// with neither that number nor one more.
struct LineRule {
    std::string_view keyword;
    TemplateKind     kind;
    int              blanks;
    std::string_view complaint;
};

// clang-format off
constexpr LineRule areaRule  {"TILEW", TemplateKind::Area,   6, "You have a bad tile format on line"};
constexpr LineRule alongXRule{"XLINE", TemplateKind::AlongX, 5, "You have a bad XLINE format on line"};
constexpr LineRule alongYRule{"YLINE", TemplateKind::AlongY, 5, "You have a bad YLINK format on line"};
constexpr LineRule singleRule{"",      TemplateKind::Single, 3, "You have a bad format on line"};
// clang-format on

void Say(std::string_view start, const std::string& text, core::Outlet& outlet)
{
    outlet.Send(std::string(start) + text, false);
}

const LineRule& RuleOf(std::string_view line)
{
    for (const auto* rule : {&areaRule, &alongXRule, &alongYRule}) {
        if (core::StartsWithIgnoringCase(line, rule->keyword)) {
            return *rule;
        }
    }
    return singleRule;
}

void BuildLine(std::string_view line, std::int32_t number, const BuildPoint& point, core::ServerGeneration generation,
               core::Outlet& outlet)
{
    if (line.starts_with(':')) {
        Say(NameStart, WithoutFirst(line, 1), outlet);
        return;
    }
    if (core::StartsWithIgnoringCase(line, "DESC")) {
        Say(DescriptionStart, WithoutFirst(line, 5), outlet);
        return;
    }
    const auto& rule = RuleOf(line);
    const int   blanks = core::CountWords(line);
    if (blanks != rule.blanks && blanks != rule.blanks + 1) {
        outlet.Show(core::CriticalBox(std::string(rule.complaint) + core::ToText(number)));
        return;
    }
    const auto idForm = blanks == rule.blanks ? TemplateIdForm::OneWord : TemplateIdForm::TwoWords;
    outlet.Send(FormatTemplateLine(line, idForm, point, rule.kind, generation));
}

} // namespace

void BuildTemplateLines(TextLines& lines, const BuildPoint& point, core::ServerGeneration generation,
                        core::Outlet& outlet)
{
    std::string  line;
    std::int32_t number = 0;
    while (NextLine(lines, line)) {
        ++number;
        if (!line.empty()) {
            BuildLine(line, number, point, generation, outlet);
        }
    }
}

void BuildTemplate(std::string_view path, const BuildBoxes& boxes, core::ServerGeneration generation,
                   const std::function<bool()>& clientIsThere, core::Outlet& outlet)
{
    try {
        const auto x = core::ToInteger32(boxes.txtX);
        const auto y = core::ToInteger32(boxes.txtY);
        const auto z = core::ToInteger32(boxes.txtCurrentHeight);
        if (!clientIsThere()) {
            outlet.Show(core::CriticalBox("Error: Could not find UO client window. Can't build house template."));
            return;
        }
        LineFile file(ExistingFile(path));
        BuildTemplateLines(file.Lines(), {x, y, z}, generation, outlet);
    } catch (const core::RuntimeError& error) {
        outlet.Show(core::PlainBox(error.Number() == core::error::TypeMismatch
                                       ? "Please fill in the location fields before attempting to build"
                                       : error.Description()));
    }
}

std::span<const TemplateCommand> TemplateCommands()
{
    // clang-format off
    static constexpr TemplateCommand commands[] = {
        {"cmdSetContainer", "Set as Container:", "settype 1",  "Makes a container of an item"},
        {"cmdSetDoor",      "Set as Door:",      "settype 12", "Makes a door of an item"},
        {"cmdWhere",        "Where am I?",       "where",      "Asks the server for your place"},
    };
    // clang-format on
    return commands;
}

} // namespace qf::world
