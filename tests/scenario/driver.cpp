#include "scenario/driver.h"

#include <QAbstractButton>
#include <QAction>
#include <QMenu>
#include <QPointer>
#include <QTabWidget>
#include <array>
#include <vector>

#include "scenario/input.h"
#include "scenario/properties.h"
#include "ui/panel.h"
#include "ui/parts.h"

namespace qf::scenario {

namespace {

int Number(const std::string& word)
{
    return static_cast<int>(ParseNumber(word).value());
}

/// What holds a menu entry: the menus above it.
std::vector<const QAction*> MenusAbove(const QAction& entry)
{
    std::vector<const QAction*> menus;
    const QAction*              below = &entry;
    while (below != nullptr) {
        const QAction* above = nullptr;
        for (const auto* object : below->associatedObjects()) {
            if (const auto* menu = qobject_cast<const QMenu*>(object); menu != nullptr && menu->menuAction() != below) {
                above = menu->menuAction();
            }
        }
        if (above != nullptr) {
            menus.push_back(above);
        }
        below = above;
    }
    return menus;
}

/// The control and all that holds it, up to its panel.
std::vector<const QObject*> Chain(const QObject& control, const ui::Panel& panel)
{
    std::vector<const QObject*> chain{&control};
    if (const auto* entry = qobject_cast<const QAction*>(&control)) {
        const auto menus = MenusAbove(*entry);
        chain.insert(chain.end(), menus.begin(), menus.end());
        chain.push_back(&panel);
        return chain;
    }
    for (const auto* holder = control.parent(); holder != nullptr; holder = holder->parent()) {
        chain.push_back(holder);
    }
    return chain;
}

bool IsInFront(const QObject& control)
{
    const auto* page = qobject_cast<const QWidget*>(&control);
    const auto* stack = page != nullptr ? page->parentWidget() : nullptr;
    const auto* tabs = stack != nullptr ? qobject_cast<const QTabWidget*>(stack->parentWidget()) : nullptr;
    return tabs == nullptr || tabs->indexOf(const_cast<QWidget*>(page)) < 0 || tabs->currentWidget() == page;
}

bool IsUserStep(Verb verb)
{
    return verb >= Verb::Click && verb <= Verb::Close;
}

} // namespace

Driver::Target Driver::Find(std::string_view name) const
{
    const auto point = name.find('.');
    auto*      panel = context_.panels.Loaded(name.substr(0, point));
    if (panel == nullptr || point == std::string_view::npos) {
        return {panel, panel};
    }
    auto* object = panel->findChild<QObject*>(ui::Text(name.substr(point + 1)));
    if (auto* menu = qobject_cast<QMenu*>(object)) {
        object = menu->menuAction();
    }
    return {panel, object};
}

void Driver::Do(const Step& step)
{
    if (!IsUserStep(step.verb) && step.verb != Verb::Tick) {
        Ask(step);
        return;
    }
    if (auto* text = SharedText(step.arguments.front())) {
        DoOnSharedText(step, *text);
        return;
    }
    const Target target = Find(step.arguments.front());
    if (target.object == nullptr) {
        recorder_.Bare("unknown");
    } else if (step.forced || step.verb == Verb::Tick || MayReach(step, target)) {
        Act(step, target);
    }
}

bool Driver::MayReach(const Step& step, const Target& target)
{
    const auto chain = Chain(*target.object, *target.panel);
    for (const auto* link : chain) {
        if (!IsShown(*link) || !IsInFront(*link)) {
            recorder_.Add({{"refused"}, {"hidden"}});
            return false;
        }
    }
    bool enabled = true;
    for (const auto* link : chain) {
        enabled = enabled && IsEnabled(*link);
    }
    if (const auto* tabs = qobject_cast<const QTabWidget*>(target.object); tabs != nullptr && step.verb == Verb::Tab) {
        const int tab = Number(step.arguments[1]);
        if (tab >= 0 && tab < tabs->count() && !tabs->isTabVisible(tab)) {
            recorder_.Add({{"refused"}, {"hidden"}});
            return false;
        }
        enabled = enabled && (tab < 0 || tab >= tabs->count() || tabs->isTabEnabled(tab));
    }
    if (!enabled || (step.verb == Verb::Close && !target.panel->HasCloseEntry())) {
        recorder_.Add({{"refused"}, {"disabled"}});
        return false;
    }
    return true;
}

void Driver::Act(const Step& step, const Target& target)
{
    const bool done = target.object == target.panel ? ActOnPanel(step, *target.panel) : ActOnControl(step, target);
    if (!done) {
        recorder_.Bare("unknown");
    }
}

bool Driver::ActOnPanel(const Step& step, ui::Panel& panel)
{
    switch (step.verb) {
    case Verb::Wheel: TurnWheel(panel, step.arguments[1] == "up"); return true;
    case Verb::Resize: panel.resize(Number(step.arguments[1]), Number(step.arguments[2])); return true;
    case Verb::Move: panel.move(Number(step.arguments[1]), Number(step.arguments[2])); return true;
    case Verb::Minimise: panel.setWindowState(panel.windowState() | Qt::WindowMinimized); return true;
    case Verb::Close: CloseByFrame(panel); return true;
    case Verb::Focus: GiveFocus(panel); return true;
    case Verb::Click:
    case Verb::Double:
    case Verb::Press: return ActOnControl(step, {&panel, &panel});
    default: return false;
    }
}

bool Driver::ActOnControl(const Step& step, const Target& target)
{
    const auto& words = step.arguments;
    if (step.verb == Verb::Click) {
        Click(target);
        return true;
    }
    if (step.verb == Verb::Check) {
        return SetCheck(*target.object, Number(words[1]));
    }
    if (step.verb == Verb::Tick) {
        return FireTimer(*target.object);
    }
    if (auto* entry = qobject_cast<QAction*>(target.object)) {
        if (step.verb == Verb::Menu) {
            ChooseEntry(*entry);
        }
        return step.verb == Verb::Menu;
    }
    auto* widget = qobject_cast<QWidget*>(target.object);
    if (widget == nullptr) {
        return false;
    }
    const QPointer alive = widget;
    switch (step.verb) {
    case Verb::Double: DoubleClick(target, *widget); return true;
    case Verb::Press: target.panel->InvokePress(*widget); return true;
    case Verb::Type:
        GiveFocus(*widget);
        if (!alive) {
            return true;
        }
        return ReplaceText(*widget, ui::Text(words[1]));
    case Verb::Focus: GiveFocus(*widget); return true;
    case Verb::Choose: return ChooseRow(*widget, Number(words[1]));
    case Verb::Tab: return BringTabForward(*widget, Number(words[1]));
    case Verb::Cell: return ClickCell(*widget, Number(words[1]), Number(words[2]));
    case Verb::Scroll: return SetBar(*widget, Number(words[1]));
    case Verb::Wheel: TurnWheel(*widget, words[1] == "up"); return true;
    default: return false;
    }
}

void Driver::DoubleClick(const Target& target, QWidget& widget)
{
    const QPointer alive = &widget;
    Click(target);
    if (alive && context_.panels.Loaded(target.panel->Name()) == target.panel) {
        target.panel->InvokeDoubleClick(widget);
    }
}

void Driver::Click(const Target& target)
{
    if (auto* entry = qobject_cast<QAction*>(target.object)) {
        ChooseEntry(*entry);
        return;
    }
    auto* widget = qobject_cast<QWidget*>(target.object);
    if (widget == nullptr) {
        return;
    }
    const QPointer alive = widget;
    const QPointer panel = target.panel;
    if ((widget->focusPolicy() & Qt::ClickFocus) != 0) {
        GiveFocus(*widget);
    }
    if (alive && panel) {
        panel->InvokePress(*widget);
    }
    if (alive && panel) {
        ActivateButton(*panel, *widget);
    }
}

void Driver::ActivateButton(ui::Panel& panel, QWidget& widget)
{
    const QPointer alive = &widget;
    ToggleByClick(widget);
    if (!alive || panel.InvokeClick(widget) || !alive) {
        return;
    }
    if (auto* button = qobject_cast<QAbstractButton*>(&widget)) {
        Q_EMIT button->clicked(button->isChecked());
    }
}

void Driver::Ask(const Step& step)
{
    const auto& words = step.arguments;
    const auto  ask = [&](auto read) {
        const Target target = Find(words[0]);
        Answer(target.object != nullptr ? read(*target.object, Number(words[1]), Number(words[2])) : std::nullopt);
    };
    switch (step.verb) {
    case Verb::Get: Get(ParsePropertyReference(words[0]).value()); return;
    case Verb::Pixel: ask(ReadPixel); return;
    case Verb::AskCell: ask(ReadCell); return;
    default: throw LineError("no panel can do this step");
    }
}

void Driver::Get(const PropertyReference& reference)
{
    if (const auto* text = SharedText(reference.control)) {
        const bool isText = reference.property == "text";
        const bool isFlag = reference.property == "shown" || reference.property == "enabled";
        Answer(isText   ? std::optional(*text)
               : isFlag ? std::optional<std::string>(reference.property == "shown" ? "0" : "1")
                        : std::nullopt);
        return;
    }
    const Target target = Find(reference.control);
    if (target.object != nullptr) {
        Answer(ReadProperty(*target.object, reference.property));
        return;
    }
    const bool flag = IsPanelFlag(reference.property) && context_.panels.Has(reference.control);
    Answer(flag ? std::optional<std::string>("0") : std::nullopt);
}

void Driver::Answer(const std::optional<std::string>& value)
{
    if (value) {
        recorder_.Text("value", *value);
    } else {
        recorder_.Bare("unknown");
    }
}

std::string* Driver::SharedText(std::string_view name)
{
    struct Field {
        std::string_view name;
        std::string ui::SharedArea::*text;
    };
    constexpr std::array fields{
        Field{"frmMain.txtX1Main", &ui::SharedArea::txtX1Main}, Field{"frmMain.txtY1Main", &ui::SharedArea::txtY1Main},
        Field{"frmMain.txtX2Main", &ui::SharedArea::txtX2Main}, Field{"frmMain.txtY2Main", &ui::SharedArea::txtY2Main},
        Field{"frmMain.txtZMain", &ui::SharedArea::txtZMain},
    };
    for (const auto& field : fields) {
        if (field.name == name) {
            return &(context_.sharedArea.*field.text);
        }
    }
    return nullptr;
}

void Driver::DoOnSharedText(const Step& step, std::string& text)
{
    if (!step.forced) {
        recorder_.Add({{"refused"}, {"hidden"}});
    } else if (step.verb == Verb::Type) {
        text = step.arguments[1];
    }
}

} // namespace qf::scenario
