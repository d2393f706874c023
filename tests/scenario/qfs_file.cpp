#include "scenario/qfs_file.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace qf::scenario {

namespace {

/// How a step is written. Each letter of `arguments` is one word: "w" any word, "n" a whole number, "p" a
/// property of a control, "d" a draw, "x" hexadecimal digits, "[a|b]" one of these words; "*" or "+" says
/// that the word before it stands any number of times, or at least once.
struct Form {
    std::string_view name;
    Verb             verb;
    std::string_view arguments;
    bool             byUser = false;
};

// clang-format off
constexpr std::array Forms{
    Form{"setting",    Verb::Setting,      "www"},
    Form{"unset",      Verb::Unset,        "ww"},
    Form{"generation", Verb::Generation,   "w"},
    Form{"windows",    Verb::Windows,      "[none]"},
    Form{"window",     Verb::Window,       "ww"},
    Form{"front",      Verb::Front,        "[client|other]"},
    Form{"process",    Verb::Process,      "w"},
    Form{"memory",     Verb::Memory,       "nn"},
    Form{"poke",       Verb::Poke,         "nn+"},
    Form{"assist",     Verb::Assist,       "w"},
    Form{"file",       Verb::File,         "w"},
    Form{"bytes",      Verb::Bytes,        "wx*"},
    Form{"copy",       Verb::Copy,         "ww"},
    Form{"folder",     Verb::Folder,       "w"},
    Form{"delete",     Verb::Delete,       "w"},
    Form{"another",    Verb::Another,      "[instance]"},
    Form{"click",      Verb::Click,        "w",           true},
    Form{"double",     Verb::Double,       "w",           true},
    Form{"press",      Verb::Press,        "w",           true},
    Form{"type",       Verb::Type,         "ww",          true},
    Form{"focus",      Verb::Focus,        "w",           true},
    Form{"choose",     Verb::Choose,       "wn",          true},
    Form{"check",      Verb::Check,        "w[0|1|2]",    true},
    Form{"tab",        Verb::Tab,          "wn",          true},
    Form{"menu",       Verb::Menu,         "w",           true},
    Form{"cell",       Verb::Cell,         "wnn",         true},
    Form{"scroll",     Verb::Scroll,       "wn",          true},
    Form{"wheel",      Verb::Wheel,        "w[up|down]",  true},
    Form{"resize",     Verb::Resize,       "wnn",         true},
    Form{"move",       Verb::Move,         "wnn",         true},
    Form{"minimise",   Verb::Minimise,     "w",           true},
    Form{"close",      Verb::Close,        "w",           true},
    Form{"start",      Verb::Start,        ""},
    Form{"open",       Verb::Open,         "w"},
    Form{"tick",       Verb::Tick,         "w"},
    Form{"restart",    Verb::Restart,      ""},
    Form{"answer",     Verb::Answer,       "[yes|no]+"},
    Form{"dialog",     Verb::Dialog,       "w"},
    Form{"random",     Verb::Random,       "d+"},
    Form{"limit",      Verb::Limit,        "n"},
    Form{"trace",      Verb::Trace,        "[on|off]"},
    Form{"get",        Verb::Get,          "p"},
    Form{"pixel",      Verb::Pixel,        "wnn"},
    Form{"cell?",      Verb::AskCell,      "wnn"},
    Form{"setting?",   Verb::AskSetting,   "ww"},
    Form{"clipboard?", Verb::AskClipboard, ""},
    Form{"file?",      Verb::AskFile,      "w"},
    Form{"files?",     Verb::AskFiles,     "w"},
    Form{"sql?",       Verb::AskSql,       "w"},
};

constexpr std::array<std::string_view, 20> Properties{
    "text", "caption", "tooltip", "selection", "value", "maximum", "enabled", "shown", "index", "count", "items",
    "left", "top", "width", "height", "background", "loaded", "topmost", "modal", "minimised",
};
// clang-format on

const Form* FindForm(std::string_view name)
{
    const auto* found = std::find_if(Forms.begin(), Forms.end(), [&](const Form& form) { return form.name == name; });
    return found == Forms.end() ? nullptr : found;
}

bool IsDraw(const std::string& text)
{
    try {
        std::size_t  used = 0;
        const double draw = std::stod(text, &used);
        return used == text.size() && std::isfinite(draw);
    } catch (const std::exception&) {
        return false;
    }
}

bool IsHexText(const std::string& text)
{
    return text.size() % 2 == 0 && text.find_first_not_of("0123456789abcdefABCDEF") == std::string::npos;
}

/// Takes the next kind of word off a form: a letter or a bracketed choice.
std::string_view TakeKind(std::string_view& arguments)
{
    const std::size_t      length = arguments.front() == '[' ? arguments.find(']') + 1 : 1;
    const std::string_view kind = arguments.substr(0, length);
    arguments.remove_prefix(length);
    return kind;
}

void CheckWord(std::string_view kind, const Word& word)
{
    const auto refuse = [&](std::string_view why) {
        throw LineError(JsonString(word.text) + " is " + std::string(why));
    };
    switch (kind.front()) {
    case 'n':
        if (!ParseNumber(word.text)) {
            refuse("no number");
        }
        break;
    case 'd':
        if (!IsDraw(word.text)) {
            refuse("no number");
        }
        break;
    case 'x':
        if (!IsHexText(word.text)) {
            refuse("no row of bytes in hexadecimal");
        }
        break;
    case 'p':
        if (!ParsePropertyReference(word.text)) {
            refuse("no property of a control");
        }
        break;
    case '[': {
        const std::string choices = "|" + std::string(kind.substr(1, kind.size() - 2)) + "|";
        if (word.text.empty() || choices.find("|" + word.text + "|") == std::string::npos) {
            refuse("none of " + std::string(kind));
        }
        break;
    }
    default: break;
    }
}

void CheckArguments(const Form& form, const Words& words)
{
    std::string_view rest = form.arguments;
    std::size_t      next = 1;
    while (!rest.empty()) {
        const std::string_view kind = TakeKind(rest);
        const bool             many = !rest.empty() && (rest.front() == '*' || rest.front() == '+');
        const bool             none = many && rest.front() == '*';
        if (many) {
            rest.remove_prefix(1);
        }
        if (next >= words.size() && !none) {
            throw LineError("a word is missing behind \"" + std::string(form.name) + "\"");
        }
        const std::size_t end = many ? words.size() : next + 1;
        for (; next < end; ++next) {
            CheckWord(kind, words[next]);
        }
    }
    if (next < words.size()) {
        throw LineError("a word too many: " + FormatWords({words[next]}));
    }
}

Step ParseStep(int line, const Words& words)
{
    if (words.front().quoted) {
        throw LineError("a step begins with its name, not with a quoted word");
    }
    std::string_view name = words.front().text;
    const bool       forced = name.size() > 1 && name.ends_with('!');
    if (forced) {
        name.remove_suffix(1);
    }
    const Form* form = FindForm(name);
    if (form == nullptr || (forced && !form->byUser)) {
        throw LineError("unknown step \"" + words.front().text + "\"");
    }
    CheckArguments(*form, words);
    if (form->verb == Verb::Assist && words[1].text != "none") {
        CheckWord("n", words[1]);
    }
    Step step;
    step.line = line;
    step.lastLine = line;
    step.verb = form->verb;
    step.forced = forced;
    for (auto word = words.begin() + 1; word != words.end(); ++word) {
        step.arguments.push_back(word->text);
    }
    return step;
}

std::vector<std::string> SplitLines(std::string_view text)
{
    std::vector<std::string> lines;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        std::string_view  line = text.substr(0, end);
        if (line.ends_with('\r')) {
            line.remove_suffix(1);
        }
        lines.emplace_back(line);
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return lines;
}

std::string_view WithoutIndent(std::string_view line)
{
    const auto start = line.find_first_not_of(" \t");
    return start == std::string_view::npos ? std::string_view() : line.substr(start);
}

class Parser {
  public:
    QfsFile Parse(std::string_view text)
    {
        constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
        if (text.starts_with(byteOrderMark)) {
            text.remove_prefix(byteOrderMark.size());
        }
        file_.lines = SplitLines(text);
        for (const auto& line : file_.lines) {
            ++number_;
            try {
                ParseLine(WithoutIndent(line));
            } catch (const LineError& error) {
                Report(error.what());
            }
        }
        return std::move(file_);
    }

  private:
    void ParseLine(std::string_view line)
    {
        if (line.empty() || line.front() == '#') {
            return;
        }
        if (line.front() == '>') {
            CurrentStep("expected output").expected.push_back({number_, SplitWords(line.substr(1))});
        } else if (line.front() == '|') {
            ParseFileText(line.substr(1));
        } else {
            const Words words = SplitWords(line);
            if (words.front() == Word{"scenario", false}) {
                BeginScenario(words);
            } else if (file_.scenarios.empty()) {
                throw LineError("a step outside a scenario");
            } else {
                file_.scenarios.back().steps.push_back(ParseStep(number_, words));
            }
        }
    }

    void BeginScenario(const Words& words)
    {
        Scenario scenario;
        scenario.line = number_;
        scenario.name = words.size() > 1 ? words[1].text : "";
        file_.scenarios.push_back(std::move(scenario));
        if (words.size() != 2) {
            throw LineError("a scenario has one name");
        }
    }

    void ParseFileText(std::string_view text)
    {
        Step& step = CurrentStep("a line of a file");
        if (step.verb != Verb::File || !step.expected.empty()) {
            throw LineError("a line of a file belongs to no \"file\" step");
        }
        if (text.starts_with(' ')) {
            text.remove_prefix(1);
        }
        step.text.emplace_back(text);
        step.lastLine = number_;
    }

    Step& CurrentStep(std::string_view what)
    {
        if (file_.scenarios.empty() || file_.scenarios.back().steps.empty()) {
            throw LineError(std::string(what) + " before any step");
        }
        return file_.scenarios.back().steps.back();
    }

    void Report(std::string message)
    {
        if (file_.scenarios.empty()) {
            file_.errors.push_back({number_, std::move(message)});
        } else if (auto& scenario = file_.scenarios.back(); !scenario.error) {
            scenario.error = FileError{number_, std::move(message)};
        }
    }

    QfsFile file_;
    int     number_ = 0;
};

} // namespace

QfsFile ParseQfs(std::string_view text)
{
    return Parser().Parse(text);
}

bool IsExpectation(std::string_view line)
{
    return WithoutIndent(line).starts_with('>');
}

std::optional<PropertyReference> ParsePropertyReference(std::string_view text)
{
    const auto point = text.rfind('.');
    if (point == std::string_view::npos || point == 0) {
        return std::nullopt;
    }
    const std::string_view property = text.substr(point + 1);
    if (std::find(Properties.begin(), Properties.end(), property) == Properties.end()) {
        return std::nullopt;
    }
    return PropertyReference{std::string(text.substr(0, point)), std::string(property)};
}

bool IsPanelFlag(std::string_view property)
{
    constexpr std::array<std::string_view, 5> flags{"loaded", "shown", "topmost", "modal", "minimised"};
    return std::find(flags.begin(), flags.end(), property) != flags.end();
}

} // namespace qf::scenario
