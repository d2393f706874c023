// Pictures of every panel of the program, and where the controls lie on it: `quernfield-panels`. It walks
// the program's own list of panels, so that a new panel is in the book as soon as it is in the list.

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QTabWidget>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "app/application.h"
#include "client/platform/simulated/simulated_platform.h"
#include "core/host_path.h"
#include "support/memory_store.h"
#include "support/quiet_services.h"
#include "support/themes.h"
#include "ui/panel.h"
#include "ui/parts.h"
#include "ui/picture_surface.h"
#include "world/database.h"

namespace {

using namespace qf;

/// A picture of a panel: what its file name has behind the panel's, and what is chosen and typed before it is taken:
/// "control", "control=text" for a box, or "control=number" for a list's row, a bar's value or a tab, and ">text" for
/// a box that this brings up. A picture surface that takes the focus gets it.
struct Picture {
    std::string              suffix;
    std::vector<std::string> poses;
};

/// The pictures by panel, in the order in which they are taken.
using Pictures = std::map<std::string, std::vector<Picture>>;

Pictures ReadPictures(const std::string& file)
{
    Pictures      pictures;
    std::ifstream stream(file);
    std::string   line;
    while (std::getline(stream, line)) {
        const auto blank = line.find(' ');
        if (blank == std::string::npos || line.front() == '#') {
            continue;
        }
        auto        pose = line.substr(blank + 1);
        std::string suffix;
        if (pose.starts_with('@')) {
            const auto end = pose.find(' ');
            suffix = '-' + pose.substr(1, end - 1);
            pose = end == std::string::npos ? std::string() : pose.substr(end + 1);
        }
        auto& ofPanel = pictures[line.substr(0, blank)];
        auto  picture = std::ranges::find(ofPanel, suffix, &Picture::suffix);
        if (picture == ofPanel.end()) {
            picture = ofPanel.insert(ofPanel.end(), {suffix, {}});
        }
        if (!pose.empty()) {
            picture->poses.push_back(pose);
        }
    }
    return pictures;
}

/// Puts a small house into the world.
void Furnish(world::Database& database)
{
    constexpr int Width = 8;
    constexpr int Height = 6;
    int           serial = 0x40000000;
    const auto    add = [&](const std::string& name, int id, int type, int x, int y) {
        std::string sql = "INSERT INTO tblItem( [Serial], [Name], [X], [Y], [Z], [Container], [World], [ID], [iType], ";
        sql += "[InstanceID] ) VALUES( " + std::to_string(++serial) + ", '" + name + "'";
        for (const int number : {1000 + x, 1000 + y, 0, -1, 0, id, type, 0}) {
            sql += ", " + std::to_string(number);
        }
        database.Execute(sql + " );");
    };
    add("metal door", 0x675, 12, 3, Height - 1);
    add("wooden chest", 0xE42, 1, 1, 1);
    add("wooden chair", 0xB57, 0, 4, 2);
    add("oak table", 0xB90, 0, 5, 2);
    add("bread loaf", 0x103B, 14, 5, 2);
    add("ruined bookcase", 0xC14, 0, 6, 1);
    add("fire field", 0x398C, 85, 7, 5);
    for (int y = 0; y < Height; ++y) {
        for (int x = 0; x < Width; ++x) {
            add("wooden boards", 0x4A9, 0, x, y);
        }
    }
}

bool Strike(ui::Panel& panel, const std::string& pose)
{
    const auto equals = pose.find('=');
    const auto text = equals == std::string::npos ? std::string() : pose.substr(equals + 1);
    const int  number = std::atoi(text.c_str());
    auto*      control = panel.findChild<QWidget*>(ui::Text(pose.substr(0, equals)));
    if (auto* box = qobject_cast<QLineEdit*>(control)) {
        box->setText(ui::Text(text));
    } else if (auto* tabs = qobject_cast<QTabWidget*>(control)) {
        tabs->setCurrentIndex(number);
    } else if (auto* list = qobject_cast<QComboBox*>(control)) {
        list->setCurrentIndex(number);
        Q_EMIT list->activated(number);
    } else if (auto* bar = qobject_cast<QAbstractSlider*>(control)) {
        bar->setValue(number);
    } else if (auto* picture = dynamic_cast<ui::PictureSurface*>(control);
               picture != nullptr && picture->focusPolicy()) {
        picture->setFocus(Qt::MouseFocusReason);
    } else if (auto* button = qobject_cast<QAbstractButton*>(control); button != nullptr && button->isCheckable()) {
        button->setChecked(true);
    } else {
        return control != nullptr && panel.InvokeClick(*control);
    }
    return true;
}

/// Strikes the poses of a picture; false, with a line on the error stream, where one has no control or brings up no
/// such box.
bool StrikeAll(ui::Panel& panel, const Picture& picture, std::vector<std::string>& boxes)
{
    bool complete = true;
    for (const auto& pose : picture.poses) {
        if (pose.starts_with('>')) {
            if (std::erase(boxes, pose.substr(1)) != 1) {
                std::cerr << panel.Name() << ": no box " << pose.substr(1) << '\n';
                complete = false;
            }
        } else if (!Strike(panel, pose)) {
            std::cerr << panel.Name() << ": no control for " << pose << '\n';
            complete = false;
        }
    }
    QApplication::processEvents();
    return complete;
}

void WriteControls(std::ofstream& out, const ui::Panel& panel)
{
    for (const auto* control : panel.findChildren<QWidget*>()) {
        const auto name = control->objectName();
        if (name.isEmpty() || name.startsWith(QLatin1String("qt_")) || !control->isVisibleTo(&panel)) {
            continue;
        }
        const auto place = control->mapTo(&panel, QPoint(0, 0));
        out << panel.Name() << '\t' << ui::Utf8(name) << '\t' << place.x() << '\t' << place.y() << '\t'
            << control->width() << '\t' << control->height() << '\n';
    }
}

int Usage()
{
    std::cerr << "quernfield-panels [--poses FILE] [--screenshots FOLDER] [--controls FILE] [--client-folder FOLDER] "
                 "[--generation 0|1] [--theme light|dark] [--dpi NUMBER]\n";
    return 2;
}

} // namespace

int main(int argumentCount, char** arguments)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    std::map<std::string, std::string> options;
    for (int index = 1; index < argumentCount; index += 2) {
        // One dash is for an option of Qt, such as "-platform".
        if (index + 1 == argumentCount || !std::string_view(arguments[index]).starts_with('-')) {
            return Usage();
        }
        options[arguments[index]] = arguments[index + 1];
    }
    if (const auto dpi = options.find("--dpi"); dpi != options.end()) {
        // Qt reads it once, when the application begins.
        qputenv("QT_FONT_DPI", QByteArray::fromStdString(dpi->second));
    }
    QApplication application(argumentCount, arguments);
    QApplication::setQuitOnLastWindowClosed(false);
    if (const auto theme = options.find("--theme"); theme != options.end()) {
        if (theme->second != "light" && theme->second != "dark") {
            return Usage();
        }
        test::ApplyTheme(theme->second == "dark" ? test::Theme::Dark : test::Theme::Light);
    }

    const QTemporaryDir scratch;
    const auto          folder = QDir(scratch.path()).filesystemPath();
    const auto          program = QDir(QApplication::applicationDirPath()).filesystemPath();
    world::CreateWorldDatabase(folder / "qf.mdb");
    for (const auto* shipped : {"Templates", "ItemExplorer"}) {
        std::filesystem::copy(program / shipped, folder / shipped);
    }

    test::MemoryStore store;
    const auto        generation = options.find("--generation");
    store.Write(core::section::Configuration, "ZarnVer", generation == options.end() ? "1" : generation->second);
    store.Write(core::section::Configuration, "UOPath", "\\nowhere\\");
    if (const auto client = options.find("--client-folder"); client != options.end()) {
        const auto path = core::ProgramPath(std::filesystem::absolute(client->second));
        store.Write(core::section::Configuration, "UOPath", path.ends_with('\\') ? path : path + '\\');
        store.Write(core::section::Configuration, "ItemPic", "1");
    }
    client::SimulatedPlatform desktop;
    desktop.SetForeground(desktop.AddWindow("SDL_app", "ClassicUO"));

    test::QuietServices          services;
    core::PseudoUniformGenerator uniform;
    ui::Environment              environment{store,    desktop,  services, services, services,
                                services, services, services, uniform,  core::ProgramPath(folder)};

    app::Application run(environment);
    if (!run.Main()) {
        return 1;
    }

    Furnish(*run.Context().database);
    auto          pictures = ReadPictures(options["--poses"]);
    const auto    target = ui::Text(options["--screenshots"]);
    std::ofstream controls;
    if (options.contains("--controls")) {
        controls.open(options["--controls"]);
    }
    bool complete = true;
    for (const auto& entry : app::AllPanels()) {
        auto& panel = run.Context().panels.Show(entry.name);
        auto& ofPanel = pictures[std::string(entry.name)];
        if (std::ranges::find(ofPanel, std::string(), &Picture::suffix) == ofPanel.end()) {
            ofPanel.insert(ofPanel.begin(), Picture{});
        }
        for (const auto& picture : ofPanel) {
            complete = StrikeAll(panel, picture, services.boxes) && complete;
            if (!target.isEmpty()) {
                QDir().mkpath(target);
                const auto name = std::string(entry.name) + picture.suffix + ".png";
                complete = panel.grab().save(target + QLatin1Char('/') + ui::Text(name)) && complete;
            }
            if (controls.is_open() && picture.suffix.empty()) {
                WriteControls(controls, panel);
            }
        }
        panel.hide();
    }
    for (const auto& box : services.boxes) {
        std::cerr << box << '\n';
    }
    return complete && services.boxes.empty() ? 0 : 1;
}
