#pragma once

#include <array>
#include <bitset>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "core/command_words.h"
#include "core/generation.h"
#include "core/outlet.h"
#include "items/items_tables.h"

namespace qf::items {

/// The open directions of doors stand behind the facings in the same array of options: two for doors that face
/// east or west, two for those that face north or south.
enum OpenDirection { OpenNorth = 4, OpenSouth = 5, OpenEast = 6, OpenWest = 7 };

inline constexpr std::size_t DirectionCount = 8;

/// The signs lie on pages, of which one is shown at a time.
inline constexpr int SignPageCount = 4;
struct SignPage {
    int first;
    int count;
};

/// The signs of a page from 0.
SignPage SignsOnPage(int page);

/// The page on which a sign lies; signs are counted through all pages.
int PageOfSign(int sign);

/// The fields of the items panel.
struct ItemsState {
    static constexpr std::size_t MostOptions = 73;
    using Options = std::bitset<MostOptions>;

    int tab = Chairs;

    /// The set options of each tab. Only signs, which lie in four groups, can have more than one.
    std::array<Options, TabCount> options;

    /// Which of the directions are set, and which are available for the chosen item.
    std::array<bool, DirectionCount> directionSet{false, false, false, false, true, false, true, false};
    std::array<bool, DirectionCount> directionEnabled{true, true, true, true, true, true, true, true};

    // What is shown beside the options.
    bool fraDoorOpenEW = false;
    bool fraDoorOpenNS = false;
    bool cmdSetContainer = false;
    bool cmdSetDoor = false;
    bool cmdBasicLight = false;
    bool cmdAdvancedLight = false;
    int  signPage = 0;

    /// The state of "Use Repeat CMD": 0, 1, or 2 for grey.
    int repeatCheck = 0;

    std::string txtItemID = "00 00";

    /// The form of the tile IDs, which stays what it was when the panel was loaded.
    core::ServerGeneration tableForm;
};

/// What a step needs beside the fields: the generation of the moment, and who draws a tile by its number.
struct ItemsDesk {
    core::ServerGeneration                   generation;
    std::function<void(std::int32_t number)> drawTile;
};

/// The lowest facing that is both set and available, or -1.
int GetDirection(const ItemsState& state);

/// The lowest set option of a tab, or -1, also for a tab that is not there.
int GetOption(const ItemsState& state, int tab);

/// The ID text of an item in the form of the panel's tables, empty where there is none. Plants have one text for
/// all directions; of a door it is that of the open direction which is set.
/// Throws RuntimeError 9 for a direction past the columns of the tab's table, but for signs and plants.
std::string GetItemString(const ItemsState& state, int tab, int direction, int option);

/// The tile number of an ID text as the picture takes it. Under 0.70.x up to four digits are a signed 16-bit
/// number; under 0.9x.x what follows the first two characters is a positive one. Blanks are skipped, and reading
/// ends where the digits do. A generation that is neither gives 0.
/// Throws RuntimeError 5 under 0.9x.x where the text has fewer than two characters.
std::int32_t PictureNumber(std::string_view idText, core::ServerGeneration generation);

/// The choice of an option: which directions are available, what is drawn and shown.
/// Throws RuntimeError 5 or 9, and what drawing throws.
void ClickOption(ItemsState& state, int tab, int option, const ItemsDesk& desk);

/// The choice of a direction, for the item that is set on the tab in front.
/// Throws RuntimeError 5 or 9, and what drawing throws.
void ClickDirection(ItemsState& state, int direction, const ItemsDesk& desk);

/// Another tab comes to the front.
void ChangeTab(ItemsState& state, int tab, core::ServerGeneration generation);

/// Shows a page of signs and leaves none of them set, but for the last one of all.
void ShowSignPage(ItemsState& state, int page);

/// "Add": one message or one command. Throws RuntimeError 9.
void AddItem(const ItemsState& state, core::Outlet& outlet);

/// The same for a direction that was found before.
void AddItem(const ItemsState& state, int direction, core::Outlet& outlet);

// The buttons whose press is one command.
inline constexpr core::CommandWords BasicLight{"setdir 1", "set dir 1"};
inline constexpr core::CommandWords SetContainer{"settype 1", "set type 1"};
inline constexpr core::CommandWords SetDoor{"settype 12", "set type 12"};

} // namespace qf::items
