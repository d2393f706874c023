#include <QGuiApplication>
#include <QPixmap>
#include <iostream>
#include <string>

#include "app/quern_picture.h"

// Writes the program's emblem as pictures for the desktop, one for each size at which desktops show it.
int main(int argc, char** argv)
{
    // Nothing is shown, so no display is asked for.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    if (argc != 2) {
        std::cerr << "usage: qf-make-icons FOLDER\n";
        return 2;
    }
    for (const int size : {16, 24, 32, 48, 64, 128, 256}) {
        const auto file = std::string(argv[1]) + "/quernfield-" + std::to_string(size) + ".png";
        if (!qf::app::QuernPicture(size).save(QString::fromStdString(file))) {
            std::cerr << file << " cannot be written\n";
            return 1;
        }
    }
    return 0;
}
