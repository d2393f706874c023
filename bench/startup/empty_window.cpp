// What any window costs: the libraries of the program, a QApplication and one plain widget.
//
// empty_window [TEXT]   with one line of text in it, where one is given

#include <QApplication>
#include <QLabel>
#include <QVBoxLayout>

int main(int argumentCount, char** arguments)
{
    QApplication application(argumentCount, arguments);
    QWidget      window;
    window.setWindowTitle(QStringLiteral("Empty window"));
    if (argumentCount > 1) {
        auto* layout = new QVBoxLayout(&window);
        layout->addWidget(new QLabel(QString::fromLocal8Bit(arguments[1])));
    }
    window.show();
    return QApplication::exec();
}
