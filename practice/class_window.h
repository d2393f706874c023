#pragma once

#include <memory>
#include <string>

#include "practice/world.h"

namespace qf::practice {

/// A small window of the class "Ultima Online" that shows the player's position. A classic client's window
/// is found by this class, and its process is then the one whose memory is read.
///
/// On Windows there is a hidden window as well, by which an assist program tells the position: one of the class
/// "UOASSIST-TP-MSG-WND" that answers message 1226 with X in the low and Y in the high 16 bits.
class ClassWindow {
  public:
    /// Opens the window. Throws std::runtime_error where the desktop does not allow it.
    ClassWindow();
    ~ClassWindow();
    ClassWindow(const ClassWindow&) = delete;
    ClassWindow& operator=(const ClassWindow&) = delete;

    void Show(const Position& position);

    /// Handles what the desktop sent to the window, without waiting. False once the user has closed it.
    bool HandleEvents();

  private:
    struct Native;
    std::unique_ptr<Native> native_;
};

/// The window's title: "Practice position 1000 1000 0".
inline std::string PositionTitle(const Position& position)
{
    return "Practice position " + std::to_string(position.x) + " " + std::to_string(position.y) + " " +
           std::to_string(position.z);
}

} // namespace qf::practice
