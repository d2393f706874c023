#include "ui/path_box.h"

#include <QScopedValueRollback>

#include "ui/parts.h"

namespace qf::ui {

namespace {

#ifdef _WIN32

QString ShownForm(std::string_view programText)
{
    return Text(programText);
}

#else

QString ShownForm(std::string_view programText)
{
    auto       shown = Text(programText);
    const bool hasDrive = shown.size() > 1 && shown[0].isLetter() && shown[1] == QLatin1Char(':');
    return hasDrive ? shown : shown.replace(QLatin1Char('\\'), QLatin1Char('/'));
}

#endif

std::string ProgramForm(QString shown)
{
    return Utf8(shown.replace(QLatin1Char('/'), QLatin1Char('\\')));
}

} // namespace

PathBox::PathBox(QWidget* parent) : QLineEdit(parent)
{
    // The first of the listeners to a change: whoever hears of it later reads the new path.
    connect(this, &QLineEdit::textChanged, this, [this](const QString& shown) {
        if (!setting_) {
            programText_ = ProgramForm(shown);
        }
    });
}

void PathBox::SetProgramText(std::string_view programText)
{
    const QScopedValueRollback setting(setting_, true);
    programText_ = programText;
    setText(ShownForm(programText));
}

std::string PathBox::SelectedProgramText() const
{
    return ProgramForm(selectedText());
}

} // namespace qf::ui
