#include "items/frmItemPos.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "ui/parts.h"

namespace qf::items {

namespace {

constexpr int ValueDigits = 8;

} // namespace

frmItemPos::frmItemPos(ui::AppContext& context) : Panel(context, "frmItemPos")
{
    setWindowTitle(QStringLiteral("Item Positioning "));

    auto* values = new QHBoxLayout;
    values->addWidget(MakeValueFrame("Frame1", "Increase", "txtIncrease"));
    values->addWidget(MakeValueFrame("Frame2", "New Position", "txtNewPos"));

    auto* bottom = new QHBoxLayout;
    for (const auto& row : PlainButtons()) {
        auto* button = ui::MakeButton(this, row.name, row.caption);
        ui::GiveRoom(*button);
        OnClick(*button, [this, &row] { SendWords(row.words, {}, Context().generation, Outlet()); });
        bottom->addWidget(button);
    }
    bottom->addStretch(1);
    auto* leave = MakeExit(this, "Command1");
    bottom->addWidget(leave);

    auto* all = new QVBoxLayout(this);
    all->addLayout(values);
    all->addStretch(1);
    all->addLayout(bottom);
}

QGroupBox* frmItemPos::MakeValueFrame(std::string_view name, std::string_view caption, std::string_view boxName)
{
    auto* frame = ui::MakeFrame(this, name, caption);
    auto* box = ui::MakeTextBox(frame, boxName, ValueDigits);
    box->setMaximumWidth(QWIDGETSIZE_MAX);
    box->setText(QStringLiteral("0"));
    box->setAccessibleName(ui::Text(caption));

    auto* number = new QHBoxLayout;
    number->addWidget(box, 1);
    for (const auto& row : StepButtons()) {
        if (row.box == boxName) {
            auto* button = ui::MakeButton(frame, row.name, row.caption);
            button->setMaximumWidth(button->sizeHint().height() * 4 / 3);
            button->setAccessibleName(ui::Text(caption) + QLatin1Char(' ') + button->text());
            OnClick(*button, [box, &row] { box->setText(ui::Text(Stepped(ui::Utf8(box->text()), row.step))); });
            number->addWidget(button);
        }
    }
    auto* commands = new QHBoxLayout;
    for (const auto& row : ValueButtons()) {
        if (row.box == boxName) {
            auto* button = ui::MakeButton(frame, row.name, row.caption);
            OnClick(*button,
                    [this, box, &row] { SendValue(row, ui::Utf8(box->text()), Context().generation, Outlet()); });
            commands->addWidget(button);
        }
    }
    auto* layout = new QVBoxLayout(frame);
    layout->addLayout(number);
    layout->addLayout(commands);
    return frame;
}

void frmItemPos::Load()
{
    ApplyStayOnTopRule();
}

} // namespace qf::items
