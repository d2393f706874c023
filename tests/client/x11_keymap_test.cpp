#include "client/platform/x11/x11_keymap.h"

#include <set>

#include <gtest/gtest.h>

namespace qf::client {
namespace {

TEST(X11Keymap, Latin1CharactersAreTheirOwnSymbols)
{
    EXPECT_EQ(SymbolOf('a'), 0x61U);
    EXPECT_EQ(SymbolOf(' '), 0x20U);
    EXPECT_EQ(SymbolOf(0xE4), 0xE4U);
    EXPECT_EQ(SymbolOf(0xFF), 0xFFU);
}

TEST(X11Keymap, OtherCharactersHaveNamedOrNumberedSymbols)
{
    EXPECT_EQ(SymbolOf(0x80), 0x20ACU) << "euro";
    EXPECT_EQ(SymbolOf(0x9F), 0x13BEU) << "Y with diaeresis";
    EXPECT_EQ(SymbolOf(0x88), 0x010002C6U) << "circumflex, which has no name of its own";
}

TEST(X11Keymap, EnterHasItsSymbol)
{
    EXPECT_EQ(SymbolOf(ReturnLabel), 0xFF0DU);
}

TEST(X11Keymap, ControlCharactersHaveNone)
{
    for (const int code : {0, 8, 9, 13, 27, 31, 127, 0x81, 0x8D, 0x8F, 0x90, 0x9D}) {
        EXPECT_EQ(SymbolOf(static_cast<std::uint16_t>(code)), XCB_NO_SYMBOL) << code;
    }
}

TEST(X11Keymap, NoTwoCharactersShareASymbol)
{
    std::set<xcb_keysym_t> symbols;
    int                    printed = 0;
    for (std::uint16_t label = 0; label < LabelCount; ++label) {
        if (SymbolOf(label) != XCB_NO_SYMBOL) {
            ++printed;
            symbols.insert(SymbolOf(label));
        }
    }
    EXPECT_EQ(static_cast<int>(symbols.size()), printed);
    EXPECT_EQ(printed, 256 - 32 - 1 - 5 + 1);
}

} // namespace
} // namespace qf::client
