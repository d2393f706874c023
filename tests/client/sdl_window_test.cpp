#include "client/platform/x11/sdl_window.h"

#include <sstream>

#include <gtest/gtest.h>
#include <unistd.h>

namespace qf::client {
namespace {

bool Names(const std::string& maps)
{
    std::istringstream stream(maps);
    return MapsNameSdl(stream);
}

TEST(SdlWindow, LibraryIsKnownByItsFileName)
{
    EXPECT_TRUE(Names("7f00-7f10 r-xp 0000 fe:01 12 /usr/lib/libSDL2-2.0.so.0.2600.5\n"));
    EXPECT_TRUE(Names("7f00-7f10 r-xp 0000 fe:01 12 /home/a b/game/libSDL2.so (deleted)\n"));
    EXPECT_TRUE(Names("0-1 r 0 0 0\n7f00-7f10 r-xp 0000 fe:01 12 /opt/libSDL3.so.0\n"));
}

TEST(SdlWindow, OtherFilesAreNoLibrary)
{
    EXPECT_FALSE(Names(""));
    EXPECT_FALSE(Names("7f00-7f10 r-xp 0000 fe:01 12 /usr/lib/libSDL-1.2.so.0\n"));
    EXPECT_FALSE(Names("7f00-7f10 r-xp 0000 fe:01 12 /usr/lib/libSDL2_image.so.0\n"));
    EXPECT_FALSE(Names("7f00-7f10 r-xp 0000 fe:01 12 /opt/libSDL2-2.0/other.so\n"));
    EXPECT_FALSE(Names("7f00-7f10 rw-p 0000 00:00 0 [heap]\n"));
}

TEST(SdlWindow, ProcessesWithoutTheLibraryAreTold)
{
    EXPECT_FALSE(ProcessUsesSdl(static_cast<ProcessId>(getpid())));
    EXPECT_FALSE(ProcessUsesSdl(0));
    EXPECT_FALSE(ProcessUsesSdl(0x7FFFFFF0));
}

TEST(SdlWindow, DocumentedClassesKeepTheirNames)
{
    EXPECT_TRUE(IsKnownClientClass("Ultima Online"));
    EXPECT_TRUE(IsKnownClientClass("UOASSIST-TP-MSG-WND"));
    EXPECT_FALSE(IsKnownClientClass("ClassicUO"));
    EXPECT_FALSE(IsKnownClientClass(""));
}

} // namespace
} // namespace qf::client
