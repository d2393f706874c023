#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/file_numbers.h"
#include "core/pixel_surface.h"

namespace qf::gamedata {

/// What the pictures of one category are made from, and whom it is told.
struct PictureOrder {
    std::string programFolder;
    std::string category;

    /// The client folder with its separator at the end.
    std::string uoPath;

    core::Rgb background = core::White;

    /// Asked before a tile is drawn.
    std::function<bool()> seeItemPics;

    /// Told "Loading cache..." or "Generating cache..." before either is done.
    std::function<void(std::string_view)> status;
};

/// The pictures of the items of a category, kept as bitmap files so that each tile is drawn once.
///
/// A picture that was drawn is there at once, and its file is written when there is time: making a file takes
/// many times as long as drawing its tile.
class PictureCache {
  public:
    explicit PictureCache(core::FileNumbers& numbers) : numbers_(numbers) {}

    /// Turns to a category. Names of files are looked up once from here on, so this is called anew for each
    /// run of pictures.
    void Use(PictureOrder order);

    /// The picture of an item: loaded where there is a file of it, otherwise drawn from the client's art files
    /// and saved. A file that is no picture is made anew. The surface takes the picture's size.
    /// Throws RuntimeError 6 for a number out of range, 63 for one below -16384, which is below all records, 67
    /// where no file number is free, 75 where a folder or file cannot be made.
    void GetCachedPicture(std::int32_t id, core::PixelSurface& picture);

    /// Writes pictures that are not saved yet: all of them, or those that can be written within a few
    /// milliseconds. Throws RuntimeError 75 where a file cannot be made.
    void SaveAll();
    void SaveSome();

    bool AllSaved() const { return unsaved_.empty(); }

  private:
    /// The system's own form of a file's name.
    using HostName = std::filesystem::path::string_type;

    void MakeFolder() const;
    bool Load(std::int32_t id, core::PixelSurface& picture);
    void Generate(std::int32_t id);
    void SaveOne();

    /// Whether there is such a file; `Bytes` are its bytes then.
    bool                       ReadFile(const HostName& name);
    std::span<const std::byte> Bytes() const { return std::span(buffer_).first(length_); }

    HostName                NameOf(std::int32_t id) const;
    std::optional<HostName> OtherNameOf(std::int32_t id);

    core::FileNumbers&     numbers_;
    PictureOrder           order_;
    std::filesystem::path  folder_;
    std::filesystem::path  indexFile_;
    std::filesystem::path  artFile_;
    bool                   folderMade_ = false;
    std::vector<std::byte> buffer_;
    std::size_t            length_ = 0;

    /// Names in the folder that differ from those that the program writes in the case of letters alone, by
    /// their lower-case form; looked for when a file is first missed.
    std::optional<std::map<std::string, std::string>> otherNames_;

    std::map<HostName, std::vector<std::byte>> unsaved_;
    std::size_t                                unsavedBytes_ = 0;

    /// Tiles are drawn on this one surface, which keeps its size from tile to tile.
    core::PixelSurface pctTempDraw;
};

} // namespace qf::gamedata
