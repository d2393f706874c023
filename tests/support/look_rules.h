#pragma once

#include <QSize>
#include <QWidget>
#include <string>
#include <vector>

namespace qf::test {

/// What is wrong with a window, a line each; nothing where all is right. The window is shown, and what it does not
/// show is not looked at.
using Faults = std::vector<std::string>;

/// Controls that reach out of what they lie in or over one another.
Faults PlaceFaults(const QWidget& window);

/// Captions, texts and tabs that their control cuts off.
Faults CutOffFaults(const QWidget& window);

/// Controls that the Tab key does not come to, groups that it leaves and comes back to, and steps against the reading
/// order. Of two controls that the key goes through one after the other, in one container, the second must not lie
/// - above the first, unless it begins to the right of where the first ends (the next column), nor
/// - left of the first, unless its upper edge is below the middle of the first (the next line).
/// `alsoReached` are controls that are no usual ones for the keyboard and must be.
Faults KeyboardFaults(QWidget& window, const std::vector<QWidget*>& alsoReached = {});

/// Controls of which a screen reader would tell nothing, or their name in the program.
Faults NameFaults(const QWidget& window);

/// Texts that stand out from their ground by less than 4.5 to 1.
Faults ContrastFaults(const QWidget& window);

/// A window that asks for more room than there is.
Faults SizeFaults(const QWidget& window, QSize room);

} // namespace qf::test
