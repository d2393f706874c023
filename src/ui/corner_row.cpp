#include "ui/corner_row.h"

#include "ui/parts.h"

namespace qf::ui {

namespace {

constexpr int FetchColumn = 4;

} // namespace

void AddCornerRow(QWidget* frame, QGridLayout& layout, int line, const CornerRow& row, int digits,
                  const std::function<QWidget*()>& makeFetch)
{
    auto* x = MakeTextBox(frame, row.boxX, digits);
    auto* y = MakeTextBox(frame, row.boxY, digits);
    layout.addWidget(MakeLabelFor(x, "", row.labelX), line, 0);
    layout.addWidget(x, line, 1);
    layout.addWidget(MakeLabelFor(y, "", row.labelY), line, 2);
    layout.addWidget(y, line, 3);
    layout.addWidget(makeFetch(), line, FetchColumn);
    // Labels stay beside their boxes, however wide the frame is.
    layout.setColumnStretch(FetchColumn, 1);
}

} // namespace qf::ui
