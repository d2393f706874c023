#include "app/setup/setup_dialog.h"

#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>
#include <memory>
#include <stdexcept>

#include "core/host_path.h"
#include "support/memory_store.h"
#include "support/temp_folder.h"
#include "ui/parts.h"

namespace qf::app {
namespace {

class SetupDialogTest : public testing::Test {
  protected:
    static void SetUpTestSuite()
    {
        static int   argc = 1;
        static char  name[] = "setup_tests";
        static char* argv[] = {name, nullptr};
        qputenv("QT_QPA_PLATFORM", "offscreen");
        application = std::make_unique<QApplication>(argc, argv);
    }
    SetupDialogTest()
    {
        folder.Write("art.mul", "");
        folder.Write("artidx.mul", "");
    }
    static void TearDownTestSuite() { application.reset(); }

    template <typename Control>
    static Control& Child(SetupDialog& dialog, const char* name)
    {
        auto* control = dialog.findChild<Control*>(QString::fromLatin1(name));
        if (control == nullptr) {
            throw std::runtime_error(name);
        }
        return *control;
    }

    /// Notes what the boxes tell that come while `act` runs, and answers them.
    template <typename Act>
    static QStringList BoxesOf(QMessageBox::StandardButton answer, Act act)
    {
        QStringList told;
        QTimer      watch;
        QObject::connect(&watch, &QTimer::timeout, &watch, [&] {
            if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                told << box->text();
                box->button(answer)->click();
            }
        });
        watch.start(1);
        act();
        return told;
    }

    /// A client folder, in the system's form.
    QString ClientFolder() const { return QString::fromStdU16String(folder.Path().u16string()); }

    static inline std::unique_ptr<QApplication> application;

    test::MemoryStore store;
    test::TempFolder  folder;
};

TEST_F(SetupDialogTest, StartsWithTheNewerGenerationAndSaves)
{
    SetupDialog dialog(store);
    EXPECT_TRUE(Child<QRadioButton>(dialog, "optZarnVer(1)").isChecked());
    Child<QLineEdit>(dialog, "txtPathUO").setText(ClientFolder());
    Child<QPushButton>(dialog, "cmdSave").click();
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(store.log, (std::vector<std::string>{"Configuration UOPath=" + core::ProgramPath(folder.Path()) + "\\",
                                                   "Configuration ZarnVer=1"}));
}

TEST_F(SetupDialogTest, OffersThePracticeArtAndSavesIt)
{
    SetupDialog dialog(store, {.practiceArt = ui::Utf8(ClientFolder()), .settings = {}});
    EXPECT_EQ(Child<QLineEdit>(dialog, "txtPathUO").text(), QDir::toNativeSeparators(ClientFolder()));
    EXPECT_TRUE(store.log.empty());
    Child<QPushButton>(dialog, "cmdSave").click();
    EXPECT_EQ(store.Find("Configuration", "UOPath"), core::ProgramPath(folder.Path()) + "\\");
}

TEST_F(SetupDialogTest, TheOlderGenerationCanBeChosen)
{
    SetupDialog dialog(store);
    Child<QLineEdit>(dialog, "txtPathUO").clear();
    Child<QRadioButton>(dialog, "optZarnVer(0)").click();
    Child<QPushButton>(dialog, "cmdSave").click();
    EXPECT_EQ(store.Find("Configuration", "ZarnVer"), "0");
}

TEST_F(SetupDialogTest, CancelAndEscapeWriteNothing)
{
    SetupDialog dialog(store);
    dialog.show();
    Child<QPushButton>(dialog, "cmdReturn").click();
    EXPECT_EQ(dialog.result(), QDialog::Rejected);
    dialog.show();
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_TRUE(store.log.empty());
}

TEST_F(SetupDialogTest, EnterInTheFolderBoxSaves)
{
    SetupDialog dialog(store);
    Child<QLineEdit>(dialog, "txtPathUO").setText(ClientFolder());
    dialog.show();
    QTest::keyClick(&Child<QLineEdit>(dialog, "txtPathUO"), Qt::Key_Return);
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(store.log.size(), 2U);
}

TEST_F(SetupDialogTest, AStoreThatCannotBeWrittenIsToldAndTheDialogStays)
{
    store.Write("Configuration", "CommandPrefix", "'");
    store.failsAt = 1;
    SetupDialog dialog(store, {.practiceArt = {}, .settings = "/config/settings.ini"});
    Child<QLineEdit>(dialog, "txtPathUO").setText(ClientFolder());
    dialog.show();
    const auto told = BoxesOf(QMessageBox::Ok, [&] { Child<QPushButton>(dialog, "cmdSave").click(); });
    ASSERT_EQ(told.size(), 1);
    EXPECT_EQ(ui::Utf8(told[0]), "The settings cannot be saved.\n\nPath/File access error:\n/config/settings.ini");
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(store.log.size(), 1U);
}

TEST_F(SetupDialogTest, AFolderWithoutTileArtIsAskedAbout)
{
    SetupDialog dialog(store);
    auto&       box = Child<QLineEdit>(dialog, "txtPathUO");
    auto&       save = Child<QPushButton>(dialog, "cmdSave");
    box.setText(ClientFolder() + QStringLiteral("/none"));
    dialog.show();

    auto told = BoxesOf(QMessageBox::No, [&] { save.click(); });
    ASSERT_EQ(told.size(), 1);
    EXPECT_TRUE(told[0].contains(box.text()));
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(dialog.focusWidget(), &box);
    EXPECT_EQ(box.selectedText(), box.text());
    EXPECT_TRUE(store.log.empty());

    told = BoxesOf(QMessageBox::Yes, [&] { save.click(); });
    EXPECT_EQ(told.size(), 1);
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(store.Find("Configuration", "UOPath"), core::ProgramPath(folder.Path()) + "\\none\\");
}

TEST_F(SetupDialogTest, NoFolderIsAChoice)
{
    SetupDialog dialog(store);
    Child<QLineEdit>(dialog, "txtPathUO").clear();
    EXPECT_TRUE(BoxesOf(QMessageBox::No, [&] { Child<QPushButton>(dialog, "cmdSave").click(); }).isEmpty());
    EXPECT_EQ(store.Find("Configuration", "UOPath"), "\\");
}

TEST_F(SetupDialogTest, EnterPressesTheButtonWithTheFocus)
{
    SetupDialog dialog(store);
    Child<QLineEdit>(dialog, "txtPathUO").clear();
    auto& cancel = Child<QPushButton>(dialog, "cmdReturn");
    dialog.show();
    cancel.setFocus();
    QTest::keyClick(&cancel, Qt::Key_Return);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(dialog.result(), QDialog::Rejected);
    EXPECT_TRUE(store.log.empty());
    for (const auto* name : {"cmdBrowseUO", "cmdSave"}) {
        EXPECT_TRUE(Child<QPushButton>(dialog, name).autoDefault()) << name;
    }
}

TEST_F(SetupDialogTest, EnterOnAGenerationSaves)
{
    SetupDialog dialog(store);
    Child<QLineEdit>(dialog, "txtPathUO").clear();
    dialog.show();
    auto& older = Child<QRadioButton>(dialog, "optZarnVer(0)");
    older.setFocus();
    QTest::keyClick(&older, Qt::Key_Space);
    QTest::keyClick(&older, Qt::Key_Return);
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(store.Find("Configuration", "ZarnVer"), "0");
}

TEST_F(SetupDialogTest, TheChosenGenerationHasTheFocusAtFirst)
{
    for (const auto* generation : {"0", "1"}) {
        store.Write("Configuration", "ZarnVer", generation);
        SetupDialog dialog(store);
        dialog.show();
        dialog.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
        ASSERT_NE(dialog.focusWidget(), nullptr);
        EXPECT_EQ(ui::Utf8(dialog.focusWidget()->objectName()), std::string("optZarnVer(") + generation + ")");
        EXPECT_TRUE(Child<QPushButton>(dialog, "cmdSave").isDefault());
    }
}

TEST_F(SetupDialogTest, AccessKeysLeadToEachControl)
{
    SetupDialog dialog(store);
    Child<QLineEdit>(dialog, "txtPathUO").setText(ClientFolder());
    dialog.show();
    dialog.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    QTest::keyClick(&dialog, Qt::Key_7, Qt::AltModifier);
    const auto chosen = [&](const char* option) {
        return QTest::qWaitFor([&] { return Child<QRadioButton>(dialog, option).isChecked(); }, 1000);
    };
    EXPECT_TRUE(chosen("optZarnVer(0)"));
    QTest::keyClick(&dialog, Qt::Key_9, Qt::AltModifier);
    EXPECT_TRUE(chosen("optZarnVer(1)"));
    QTest::keyClick(&dialog, Qt::Key_P, Qt::AltModifier);
    EXPECT_EQ(dialog.focusWidget(), &Child<QLineEdit>(dialog, "txtPathUO"));
    QTest::keyClick(&dialog, Qt::Key_C, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !dialog.isVisible(); }, 1000));
    EXPECT_EQ(dialog.result(), QDialog::Rejected);
    dialog.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    QTest::keyClick(&dialog, Qt::Key_S, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !dialog.isVisible(); }, 1000));
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
}

TEST_F(SetupDialogTest, TabGoesAsTheEyeDoes)
{
    SetupDialog    dialog(store);
    QStringList    names;
    const QWidget* first = &Child<QRadioButton>(dialog, "optZarnVer(0)");
    const QWidget* widget = first;
    do {
        if (widget->focusPolicy() & Qt::TabFocus) {
            names << widget->objectName();
        }
        widget = widget->nextInFocusChain();
    } while (widget != first);
    EXPECT_EQ(names.join(QStringLiteral(" ")).toStdString(),
              "optZarnVer(0) optZarnVer(1) txtPathUO cmdBrowseUO cmdSave cmdReturn");
}

} // namespace
} // namespace qf::app
