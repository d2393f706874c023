#include <QApplication>
#include <QFileDialog>
#include <QTimer>
#include <gtest/gtest.h>

#include "app/qt_environment.h"
#include "core/host_path.h"
#include "support/temp_folder.h"

namespace qf::app {
namespace {

/// What the program gets where the user chooses the file, or, without one, leaves the dialog by its Cancel.
std::string Choose(const QString& file)
{
    QTimer::singleShot(0, [file] {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        if (!file.isEmpty()) {
            dialog->selectFile(file);
            static_cast<QDialog*>(dialog)->accept();
        }
        if (dialog->isVisible()) {
            dialog->reject();
        }
    });
    return DesktopFileDialogs().OpenFile({"Browse for Zarn directory", "*zarn*.exe", "Zarn Executable|*zarn*.exe;"});
}

TEST(DesktopFileDialogs, TheChosenFileHasTheProgramsForm)
{
    const test::TempFolder folder;
    for (const auto* name : {"zarn.exe", "Spiele \xC3\xA4\xE2\x82\xAC/zarn \xC3\xB6.exe"}) {
        const auto file = folder.Write(name, "");
        EXPECT_EQ(Choose(QString::fromStdU16String(file.u16string())), core::ProgramPath(file));
    }
}

TEST(DesktopFileDialogs, WithoutAChoiceTheNameThatWasAskedForStays)
{
    EXPECT_EQ(Choose(QString()), "*zarn*.exe");
}

} // namespace
} // namespace qf::app
