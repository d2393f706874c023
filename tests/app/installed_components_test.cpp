#include <gtest/gtest.h>

#include "app/qt_environment.h"
#include "support/expect_error.h"
#include "support/temp_folder.h"

namespace qf::app {
namespace {

TEST(InstalledComponents, TheCheckFillsTheProgramsFolder)
{
    const test::TempFolder shipped;
    const test::TempFolder data;
    shipped.Write("qf.mdb", "world");
    InstalledComponents({data.Path() / "quernfield", shipped.Path()}).Check();
    EXPECT_EQ(data.Read("quernfield/qf.mdb"), "world");
}

TEST(InstalledComponents, AFolderThatCannotBeFilledFailsTheCheck)
{
    const test::TempFolder shipped;
    const test::TempFolder data;
    shipped.Write("qf.mdb", "world");
    data.Write("quernfield", "");
    EXPECT_RUNTIME_ERROR(core::error::PathFileAccess,
                         InstalledComponents({data.Path() / "quernfield", shipped.Path()}).Check());
}

TEST(InstalledComponents, AProgramsOwnFolderIsLeftAsItIsAndMustBeThere)
{
    const test::TempFolder folder;
    InstalledComponents({folder.Path(), {}}).Check();
    EXPECT_TRUE(std::filesystem::is_empty(folder.Path()));
    EXPECT_RUNTIME_ERROR(core::error::ComponentUnsuited, InstalledComponents({folder.Path() / "missing", {}}).Check());
}

} // namespace
} // namespace qf::app
