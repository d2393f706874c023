#pragma once

#include <QObject>
#include <optional>
#include <string>
#include <string_view>

namespace qf::scenario {

/// A property of a loaded panel or of one of its controls, as text; nothing where it has no such property.
std::optional<std::string> ReadProperty(const QObject& control, std::string_view property);

/// The colour of one drawn pixel, "#RRGGBB"; nothing where the control is no picture or is smaller.
std::optional<std::string> ReadPixel(const QObject& control, int x, int y);

/// The text of a grid's cell, or its colour where it has only a colour; row -1 is the heading. Nothing
/// where the control is no grid or has no such cell.
std::optional<std::string> ReadCell(const QObject& control, int row, int column);

/// Whether the control itself is shown, whatever holds it; a panel, whether it is shown.
bool IsShown(const QObject& control);

/// Whether the control itself is enabled, whatever holds it.
bool IsEnabled(const QObject& control);

} // namespace qf::scenario
