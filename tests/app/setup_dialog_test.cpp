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

#include "support/memory_store.h"

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

    static inline std::unique_ptr<QApplication> application;

    test::MemoryStore store;
};

TEST_F(SetupDialogTest, StartsWithTheNewerGenerationAndSaves)
{
    SetupDialog dialog(store);
    EXPECT_TRUE(Child<QRadioButton>(dialog, "optZarnVer(1)").isChecked());
    Child<QLineEdit>(dialog, "txtPathUO").setText(QStringLiteral("/games/uo"));
    Child<QPushButton>(dialog, "cmdSave").click();
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(store.log, (std::vector<std::string>{"Configuration UOPath=\\games\\uo\\", "Configuration ZarnVer=1"}));
}

TEST_F(SetupDialogTest, OffersThePracticeArtAndSavesIt)
{
    SetupDialog dialog(store, "/usr/share/quernfield/PracticeArt");
    EXPECT_EQ(Child<QLineEdit>(dialog, "txtPathUO").text(),
              QDir::toNativeSeparators(QStringLiteral("/usr/share/quernfield/PracticeArt")));
    EXPECT_TRUE(store.log.empty());
    Child<QPushButton>(dialog, "cmdSave").click();
    EXPECT_EQ(store.Find("Configuration", "UOPath"), "\\usr\\share\\quernfield\\PracticeArt\\");
}

TEST_F(SetupDialogTest, TheOlderGenerationCanBeChosen)
{
    SetupDialog dialog(store);
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
    dialog.show();
    QTest::keyClick(&Child<QLineEdit>(dialog, "txtPathUO"), Qt::Key_Return);
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(store.log.size(), 2U);
}

TEST_F(SetupDialogTest, AStoreThatCannotBeWrittenIsToldAndTheDialogStays)
{
    store.Write("Configuration", "CommandPrefix", "'");
    store.failsAt = 1;
    SetupDialog dialog(store);
    dialog.show();
    QString told;
    QTimer  watch;
    QObject::connect(&watch, &QTimer::timeout, &dialog, [&] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            told = box->text();
            box->accept();
        }
    });
    watch.start(1);
    Child<QPushButton>(dialog, "cmdSave").click();
    EXPECT_TRUE(told.contains(QStringLiteral("Path/File access error")));
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(store.log.size(), 1U);
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
