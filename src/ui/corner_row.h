#pragma once

#include <QGridLayout>
#include <QWidget>
#include <functional>
#include <string_view>

namespace qf::ui {

/// The boxes of one corner and what stands before each.
struct CornerRow {
    std::string_view boxX;
    std::string_view boxY;
    std::string_view labelX;
    std::string_view labelY;
};

/// Fills one line of a grid: X and Y, each behind its label, and the control that takes the place where one
/// stands, which `makeFetch` makes after them.
void AddCornerRow(QWidget* frame, QGridLayout& layout, int line, const CornerRow& row, int digits,
                  const std::function<QWidget*()>& makeFetch);

} // namespace qf::ui
