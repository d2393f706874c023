#include <QApplication>
#include <string_view>

#include "app/settings/store_factory.h"
#include "app/setup/setup_dialog.h"
#include "ui/desktop_colours.h"

// Ends with 0 when the settings are saved (or with --if-needed are there already), with 1 when the user
// cancels.
int main(int argc, char** argv)
{
    bool onlyIfNeeded = false;
    for (int index = 1; index < argc; ++index) {
        onlyIfNeeded = onlyIfNeeded || std::string_view(argv[index]) == "--if-needed";
    }
    const auto store = qf::app::OpenSettingsStore();
    if (onlyIfNeeded && !qf::app::IsSetupNeeded(*store)) {
        return 0;
    }
    qf::ui::AskForDesktopColours();
    QApplication application(argc, argv);
    qf::ui::FollowDesktopColours(application);
    qf::app::SetupDialog dialog(*store);
    return dialog.exec() == QDialog::Accepted ? 0 : 1;
}
