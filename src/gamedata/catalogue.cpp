#include "gamedata/catalogue.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <utility>

#include "core/host_path.h"
#include "core/number_rules.h"
#include "core/runtime_error.h"
#include "core/text.h"

namespace qf::gamedata {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view ListEnding = ".txt";
constexpr std::string_view LineEnds = "\r\n";

/// The bytes of a file up to and including its first line end.
std::string ReadFirstLine(const fs::path& path)
{
    std::filebuf file;
    std::string  bytes;
    if (file.open(path, std::ios::in | std::ios::binary) == nullptr) {
        throw core::RuntimeError(core::error::PathFileAccess);
    }
    constexpr auto End = std::filebuf::traits_type::eof();
    try {
        for (auto next = file.sbumpc(); next != End; next = file.sbumpc()) {
            bytes += static_cast<char>(next);
            if (LineEnds.find(bytes.back()) != std::string_view::npos) {
                break;
            }
        }
    } catch (const std::ios_base::failure&) {
        throw core::RuntimeError(core::error::PathFileAccess);
    }
    return bytes;
}

} // namespace

std::string ExplorerFolder(std::string_view programFolder)
{
    return std::string(programFolder) + "\\ItemExplorer";
}

std::string ItemListPath(std::string_view programFolder, std::string_view category)
{
    return ExplorerFolder(programFolder) + "\\" + std::string(category) + std::string(ListEnding);
}

std::string PictureFolder(std::string_view programFolder, std::string_view category)
{
    return ExplorerFolder(programFolder) + "\\" + std::string(category) + "\\";
}

std::string PictureName(std::int32_t id)
{
    return "item_" + std::to_string(id) + ".bmp";
}

void MakeExplorerFolder(std::string_view programFolder)
{
    const auto      folder = core::HostPath(ExplorerFolder(programFolder));
    std::error_code error;
    if (fs::is_directory(folder, error)) {
        return;
    }
    fs::create_directory(folder, error);
    if (error) {
        throw core::RuntimeError(core::error::PathFileAccess);
    }
}

std::string CategoryName(std::string_view fileName)
{
    std::string name;
    for (std::size_t at = 0; at < fileName.size();) {
        if (fileName.substr(at).starts_with(ListEnding)) {
            at += ListEnding.size();
        } else {
            name += fileName[at++];
        }
    }
    return name;
}

std::vector<std::string> ListCategories(std::string_view programFolder)
{
    std::vector<std::pair<std::string, std::string>> files;
    std::error_code                                  error;
    fs::directory_iterator                           entry(core::HostPath(ExplorerFolder(programFolder)), error);
    while (!error && entry != fs::directory_iterator()) {
        std::error_code noFile;
        auto            name = core::ProgramPath(entry->path().filename());
        if (auto lower = core::LowerCase(name); lower.ends_with(ListEnding) && entry->is_regular_file(noFile)) {
            files.emplace_back(std::move(lower), std::move(name));
        }
        entry.increment(error);
    }
    std::ranges::sort(files);

    std::vector<std::string> names;
    names.reserve(files.size());
    std::ranges::transform(files, std::back_inserter(names),
                           [](const auto& file) { return CategoryName(file.second); });
    return names;
}

std::optional<ItemList> ParseItemList(std::string_view bytes)
{
    if (bytes.empty()) {
        return std::nullopt;
    }
    ItemList   list;
    const auto line = bytes.substr(0, bytes.find_first_of(LineEnds));
    for (std::size_t begin = 0; begin <= line.size() && !line.empty();) {
        const auto end = std::min(line.find(',', begin), line.size());
        list.emplace_back(line.substr(begin, end - begin));
        begin = end + 1;
    }
    return list;
}

std::optional<ItemList> GetItemList(std::string_view programFolder, std::string_view category,
                                    core::FileNumbers& numbers, core::Outlet& outlet)
{
    const auto path = ItemListPath(programFolder, category);
    if (!core::IsFile(path)) {
        outlet.Show({.text = "Could not find the item list for '" + std::string(category) + "'.",
                     .style = core::MessageStyle::Warning,
                     .title = std::nullopt});
        return std::nullopt;
    }
    const int  number = numbers.Take();
    const auto bytes = ReadFirstLine(core::HostPath(path));
    numbers.Release(number);
    return ParseItemList(bytes);
}

int DeleteCachedPictures(const ItemList& list, std::string_view programFolder, std::string_view category)
{
    const auto folder = PictureFolder(programFolder, category);
    int        count = 0;
    for (const auto& text : list) {
        const auto      path = core::HostPath(folder + PictureName(core::ToInteger32(text)));
        std::error_code error;
        if (fs::is_regular_file(path, error) && fs::remove(path, error)) {
            ++count;
        }
    }
    return count;
}

} // namespace qf::gamedata
