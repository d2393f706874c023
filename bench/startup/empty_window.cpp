// What any window costs: the libraries of the program, a QApplication and one plain widget.

#include <QApplication>
#include <QWidget>

int main(int argumentCount, char** arguments)
{
    QApplication application(argumentCount, arguments);
    QWidget      window;
    window.setWindowTitle(QStringLiteral("Empty window"));
    window.show();
    return QApplication::exec();
}
