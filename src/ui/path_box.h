#pragma once

#include <QLineEdit>
#include <string>
#include <string_view>

namespace qf::ui {

/// A text box for a path. It holds the program's form and shows and takes the system's own: off Windows
/// "\home\ann\" is shown as "/home/ann/". A path with a drive is shown as it stands.
class PathBox : public QLineEdit {
  public:
    explicit PathBox(QWidget* parent = nullptr);

    /// The path in the program's form. One that the user has not touched is the text that was set, to the byte.
    const std::string& ProgramText() const { return programText_; }
    void               SetProgramText(std::string_view programText);

    /// What the user has selected, in the program's form.
    std::string SelectedProgramText() const;

  private:
    std::string programText_;
    bool        setting_ = false;
};

} // namespace qf::ui
