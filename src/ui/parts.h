#pragma once

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>
#include <string>
#include <string_view>

namespace qf::ui {

/// UTF-8 text of the core as Qt's, and back.
QString     Text(std::string_view utf8);
std::string Utf8(const QString& text);

/// A push button with its documented name and caption.
QPushButton* MakeButton(QWidget* parent, std::string_view name, std::string_view caption,
                        std::string_view toolTip = {});

/// Gives the caption of a button more room than it needs, half the height of its letters on either side.
void GiveRoom(QPushButton& button);

/// The caption of a button that adds one piece, where it has no other.
constexpr std::string_view PlusCaption = "+";

/// A small button that stands beside an option and adds one piece of it. It shows a caption of one sign, and a plus
/// sign for words, which its tool tip tells.
QToolButton* MakeAddButton(QWidget* parent, const QString& name, std::string_view what,
                           std::string_view caption = PlusCaption);

/// A text box wide enough for this many digits.
QLineEdit* MakeTextBox(QWidget* parent, std::string_view name, int digits);

/// A label; one without a name is decoration.
QLabel* MakeLabel(QWidget* parent, std::string_view name, std::string_view caption);

/// A label whose access key and click lead to a box.
QLabel* MakeLabelFor(QWidget* buddy, std::string_view name, std::string_view caption);

/// A label that is clicked like a button; the keyboard reaches it and Space or Enter click it.
QLabel* MakeClickLabel(QWidget* parent, std::string_view name, std::string_view caption, std::string_view toolTip);

/// A framed group with its caption.
QGroupBox* MakeFrame(QWidget* parent, std::string_view name, std::string_view caption);

/// A large label in the font of the desktop, centred.
QLabel* MakeLargeLabel(QWidget* parent, std::string_view name, std::string_view caption);

/// The title of a panel, a large label in the font of titles.
QLabel* MakeTitle(QWidget* parent, std::string_view name, std::string_view caption);

/// The two backgrounds that tell a box in use from one that waits: the system's info background and its
/// button face.
enum class BoxBackground { Info, ButtonFace };
void SetBackground(QLineEdit& box, BoxBackground background);

/// Gives the boxes of a panel the same backgrounds again in the system's new colours.
void RefreshBackgrounds(const QWidget& panel);

/// The contrast of two colours as the accessibility guidelines count it, from 1 to 21; text is read well from 4.5 on.
double Contrast(const QColor& one, const QColor& other);

/// A hidden control leaves its place empty, so that nothing moves when it comes and goes.
void KeepPlaceWhenHidden(QWidget& control);

/// Selects the whole text of a box that gets the focus, also when a click brings the focus.
void SelectWhole(QLineEdit& box);

} // namespace qf::ui
