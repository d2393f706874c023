#include "console/frmAreaCommands.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <algorithm>

#include "ui/option_array.h"
#include "ui/parts.h"

namespace qf::console {

namespace {

constexpr int BoxDigits = 12;

enum Column { BoxColumn, ButtonColumn, SyntaxColumn };

} // namespace

frmAreaCommands::frmAreaCommands(ui::AppContext& context) : Panel(context, "frmAreaCommands")
{
    setWindowTitle(QStringLiteral("Area Commands"));

    auto* left = new QVBoxLayout;
    for (const std::string_view group : {"Colour", "Move by", "Move to"}) {
        left->addWidget(MakeGroup(group));
    }
    left->addStretch(1);
    auto* right = new QVBoxLayout;
    right->addWidget(MakeGroup("Properties"));
    right->addStretch(1);

    auto* leave = MakeExit(this, "cmdExit");
    auto* bottom = new QHBoxLayout;
    bottom->addStretch(1);
    bottom->addWidget(leave);

    auto* groups = new QHBoxLayout;
    groups->addLayout(left, 1);
    groups->addLayout(right, 1);
    auto* all = new QVBoxLayout(this);
    all->addLayout(groups, 1);
    all->addLayout(bottom);
}

QGroupBox* frmAreaCommands::MakeGroup(std::string_view group)
{
    auto* frame = ui::MakeFrame(this, "", group);
    auto* layout = new QGridLayout(frame);
    int   row = 0;
    for (const auto& command : AreaCommands()) {
        if (command.group != group) {
            continue;
        }
        if (frame->findChild<QLineEdit*>(ui::Text(command.box)) == nullptr) {
            // A box that two buttons share stands between them.
            const auto sharers = std::ranges::count(AreaCommands(), command.box, &AreaCommand::box);
            layout->addWidget(MakeBox(*frame, command), row, BoxColumn, static_cast<int>(sharers), 1);
        }
        layout->addWidget(MakeCommand(*frame, command), row, ButtonColumn);
        const auto syntaxes = AreaSyntaxes();
        if (const auto found = std::ranges::find(syntaxes, command.index, &AreaSyntax::index);
            found != syntaxes.end()) {
            layout->addWidget(MakeSyntax(*frame, command, *found), row, SyntaxColumn);
        }
        ++row;
    }
    layout->setColumnStretch(BoxColumn, 1);
    return frame;
}

QLineEdit* frmAreaCommands::MakeBox(QGroupBox& frame, const AreaCommand& command)
{
    auto* box = ui::MakeTextBox(&frame, command.box, BoxDigits);
    box->setMaximumWidth(QWIDGETSIZE_MAX);
    box->setAccessibleName(ui::Text(command.caption));
    return box;
}

QPushButton* frmAreaCommands::MakeCommand(QGroupBox& frame, const AreaCommand& command)
{
    const auto name = ui::Utf8(ui::MemberName("cmdAreaCmdArray", command.index));
    auto*      button = ui::MakeButton(&frame, name, command.caption, command.toolTip);
    ui::GiveRoom(*button);
    OnClick(*button, [this, &command] { SendAreaCommand(command, ui::Utf8(Box(command.box).text()), Outlet()); });
    return button;
}

QPushButton* frmAreaCommands::MakeSyntax(QGroupBox& frame, const AreaCommand& command, const AreaSyntax& syntax)
{
    auto* button = ui::MakeButton(&frame, syntax.name, "?");
    button->setMaximumWidth(button->sizeHint().height() * 4 / 3);
    button->setAccessibleName(QStringLiteral("Syntax of ") + ui::Text(command.caption));
    if (syntax.message.empty()) {
        button->setEnabled(Context().panels.Has("frmType"));
        OnClick(*button, [this] { Context().panels.Show("frmType"); });
    } else {
        OnClick(*button, [this, &syntax] { TellSyntax(syntax, Outlet()); });
    }
    return button;
}

} // namespace qf::console
