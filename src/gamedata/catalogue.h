#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/file_numbers.h"
#include "core/outlet.h"

namespace qf::gamedata {

/// The items of one category: texts as they stand in its list, each of them a number once it is used.
using ItemList = std::vector<std::string>;

// Paths are in the program's form; `programFolder` has no separator at its end.

/// The folder that holds the category lists.
std::string ExplorerFolder(std::string_view programFolder);

/// The file that lists a category's items.
std::string ItemListPath(std::string_view programFolder, std::string_view category);

/// The folder of a category's cached pictures, with a separator at its end.
std::string PictureFolder(std::string_view programFolder, std::string_view category);

/// The file name of an item's cached picture: "item_5899.bmp".
std::string PictureName(std::int32_t id);

/// Makes the folder of the lists where it is missing. Throws RuntimeError 75 where it cannot be made.
void MakeExplorerFolder(std::string_view programFolder);

/// The name under which a list's file is shown: every ".txt" in it removed.
std::string CategoryName(std::string_view fileName);

/// The categories that have a list, by the name of its file without regard to case.
std::vector<std::string> ListCategories(std::string_view programFolder);

/// The texts of the first line, which ends at CR, LF or CR LF, parted at each ",". A file without bytes is no
/// list; an empty first line is a list without items.
std::optional<ItemList> ParseItemList(std::string_view bytes);

/// Reads the list of a category. Where it has none the user is told and nothing is given.
/// Throws RuntimeError 67 where no file number is free, 75 where the file cannot be read.
std::optional<ItemList> GetItemList(std::string_view programFolder, std::string_view category,
                                    core::FileNumbers& numbers, core::Outlet& outlet);

/// Deletes the cached pictures of a list's items and gives how many went; what cannot be deleted is passed
/// over. Throws RuntimeError 13 or 6 at a text that is no number, behind the deletion of those before it.
int DeleteCachedPictures(const ItemList& list, std::string_view programFolder, std::string_view category);

} // namespace qf::gamedata
