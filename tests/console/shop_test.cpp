#include "console/shop.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/recording_outlet.h"

namespace qf::console {
namespace {

using core::Generation070;
using core::Generation09;
using Lines = std::vector<std::string>;

Lines Send(const ShopCommand& command, std::string_view text, core::ServerGeneration generation)
{
    test::RecordingOutlet outlet;
    SendShopCommand(command, text, generation, outlet);
    return outlet.Lines();
}

struct Row {
    std::string_view name;
    std::string_view caption;
    std::string_view box;
    std::string      in09;
    std::string      in070;
};

// clang-format off
const Row rows[] = {
    {"cmdMakeShop",                "Add Shopkeeper Packs to NPC",   "",                   "makeshop",            "makeshop"},
    {"cmdCharOpenBuyPack",         "Open Buy Pack",                 "",                   "openlayer 0x1c",      "gmopen 1c"},
    {"cmdCharOpenSellPack",        "Open Sell Pack",                "",                   "openlayer 0x1a",      "gmopen 1a"},
    {"cmdCharOpenBoughtGoodsPack", "Open bought goods pack",        "",                   "openlayer 0x1b",      "gmopen 1b"},
    {"cmdNormalRestock",           "Normal Restock (all vendors)",  "",                   "restock",             "restock"},
    {"cmdRestockAll",              "Restock All Vendors(Max)",      "",                   "restock all",         "restockall"},
    {"cmdRestockRate",             "Restock Rate",                  "txtRestockRate",     "set restock ",        "setrestock "},
    {"cmdShopRestockRate",         "Restock Rate for Shops (Min.)", "txtShopRestockRate", "setshoprestockrate ", "setshoprestockrate "},
    {"cmdPrice",                   "Price ($)",                     "txtPrice",           "set value ",          "setvalue "},
};
// clang-format on

TEST(Shop, NineButtons)
{
    const auto commands = ShopCommands();
    ASSERT_EQ(commands.size(), std::size(rows));
    for (std::size_t place = 0; place < commands.size(); ++place) {
        EXPECT_EQ(commands[place].name, rows[place].name);
        EXPECT_EQ(commands[place].caption, rows[place].caption);
        EXPECT_EQ(commands[place].box, rows[place].box);
    }
}

TEST(Shop, ButtonsSpeakBothDialects)
{
    for (std::size_t place = 0; place < std::size(rows); ++place) {
        const auto& row = rows[place];
        for (const std::string typed : {"25", "", " -1 x"}) {
            const auto  text = row.box.empty() ? std::string() : typed;
            const auto& command = ShopCommands()[place];
            EXPECT_EQ(Send(command, typed, Generation09), Lines{"send " + row.in09 + text});
            EXPECT_EQ(Send(command, typed, Generation070), Lines{"send " + row.in070 + text});
        }
    }
}

TEST(Shop, WhatIsOneTextGoesToAnyGeneration)
{
    for (std::size_t place = 0; place < std::size(rows); ++place) {
        const auto& row = rows[place];
        const auto  expected = row.in09 == row.in070 ? Lines{"send " + row.in09} : Lines{};
        for (const std::int16_t number : {std::int16_t{7}, std::int16_t{2}, std::int16_t{-1}}) {
            EXPECT_EQ(Send(ShopCommands()[place], "", core::ServerGeneration(number)), expected) << row.name;
        }
    }
}

} // namespace
} // namespace qf::console
