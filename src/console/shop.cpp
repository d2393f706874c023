#include "console/shop.h"

#include <array>

namespace qf::console {

namespace {

constexpr std::string_view Packs = "Packs";
constexpr std::string_view Restocking = "Restocking";
constexpr std::string_view Prices = "Prices";

// clang-format off
constexpr std::array shopCommands{
    ShopCommand{Packs,      "cmdMakeShop",                "Add Shopkeeper Packs to NPC",   "",                   {"makeshop",            "makeshop"}},
    ShopCommand{Packs,      "cmdCharOpenBuyPack",         "Open Buy Pack",                 "",                   {"gmopen 1c",           "openlayer 0x1c"}},
    ShopCommand{Packs,      "cmdCharOpenSellPack",        "Open Sell Pack",                "",                   {"gmopen 1a",           "openlayer 0x1a"}},
    ShopCommand{Packs,      "cmdCharOpenBoughtGoodsPack", "Open bought goods pack",        "",                   {"gmopen 1b",           "openlayer 0x1b"}},
    ShopCommand{Restocking, "cmdNormalRestock",           "Normal Restock (all vendors)",  "",                   {"restock",             "restock"}},
    ShopCommand{Restocking, "cmdRestockAll",              "Restock All Vendors(Max)",      "",                   {"restockall",          "restock all"}},
    ShopCommand{Restocking, "cmdRestockRate",             "Restock Rate",                  "txtRestockRate",     {"setrestock ",         "set restock "}},
    ShopCommand{Restocking, "cmdShopRestockRate",         "Restock Rate for Shops (Min.)", "txtShopRestockRate", {"setshoprestockrate ", "setshoprestockrate "}},
    ShopCommand{Prices,     "cmdPrice",                   "Price ($)",                     "txtPrice",           {"setvalue ",           "set value "}},
};
// clang-format on

} // namespace

std::span<const ShopCommand> ShopCommands()
{
    return shopCommands;
}

void SendShopCommand(const ShopCommand& command, std::string_view text, core::ServerGeneration generation,
                     core::Outlet& outlet)
{
    core::SendWords(command.words, command.box.empty() ? std::string_view() : text, generation, outlet);
}

} // namespace qf::console
