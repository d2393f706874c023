#include "gamedata/picture_cache.h"

#include <QImage>
#include <algorithm>
#include <chrono>
#include <fstream>
#include <utility>

#include "core/host_path.h"
#include "core/runtime_error.h"
#include "core/text.h"
#include "gamedata/art.h"
#include "gamedata/bitmap.h"
#include "gamedata/catalogue.h"

namespace qf::gamedata {

namespace fs = std::filesystem;

namespace {

/// Files are read in parts of this size; a usual picture is a single one.
constexpr std::size_t PartBytes = 1U << 16U;

/// No picture of a tile is larger.
constexpr std::size_t MostBytes = 1U << 28U;

/// So much is kept in memory before it is written at once.
constexpr std::size_t MostUnsavedBytes = 1U << 25U;

constexpr std::chrono::milliseconds SavingTime(10);

/// Any picture that Qt knows, for files that were put into the cache by other hands.
bool ReadForeignPicture(std::span<const std::byte> file, core::PixelSurface& picture)
{
    auto image = QImage::fromData(reinterpret_cast<const uchar*>(file.data()), static_cast<int>(file.size()));
    if (image.isNull()) {
        return false;
    }
    image = std::move(image).convertToFormat(QImage::Format_RGB32);
    picture.SetSize(image.width(), image.height());
    for (int y = 0; y < image.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(std::as_const(image).scanLine(y));
        picture.PlotLine(0, y, image.width(), [line](std::int64_t x) { return line[x] & RGB_MASK; });
    }
    return true;
}

} // namespace

void PictureCache::Use(PictureOrder order)
{
    order_ = std::move(order);
    folder_ = core::HostPath(PictureFolder(order_.programFolder, order_.category));
    indexFile_ = core::HostPath(order_.uoPath + "Artidx.mul");
    artFile_ = core::HostPath(order_.uoPath + "Art.mul");
    folderMade_ = false;
    otherNames_.reset();
}

void PictureCache::GetCachedPicture(std::int32_t id, core::PixelSurface& picture)
{
    if (!std::exchange(folderMade_, true)) {
        MakeFolder();
    }
    if (Load(id, picture)) {
        return;
    }
    order_.status("Generating cache...");
    Generate(id);
    picture.SetSize(pctTempDraw.Width(), pctTempDraw.Height());
    picture.Paint(pctTempDraw, 0, 0);
}

void PictureCache::MakeFolder() const
{
    std::error_code error;
    if (fs::is_directory(folder_, error)) {
        return;
    }
    // The name ends in a separator, so that the making tells of none made though it is.
    fs::create_directories(folder_, error);
    if (!fs::is_directory(folder_, error)) {
        throw core::RuntimeError(core::error::PathFileAccess);
    }
}

bool PictureCache::Load(std::int32_t id, core::PixelSurface& picture)
{
    const auto name = NameOf(id);
    if (const auto unsaved = unsaved_.find(name); unsaved != unsaved_.end()) {
        order_.status("Loading cache...");
        return ReadBitmap(unsaved->second, picture);
    }
    if (!ReadFile(name)) {
        const auto other = OtherNameOf(id);
        if (!other || !ReadFile(*other)) {
            return false;
        }
    }
    order_.status("Loading cache...");
    return ReadBitmap(Bytes(), picture) || ReadForeignPicture(Bytes(), picture);
}

void PictureCache::Generate(std::int32_t id)
{
    pctTempDraw.SetBackColour(pctTempDraw.BackColour());
    const int indexNumber = numbers_.Take();
    auto      index = FileBytes::OnHost(indexFile_, FileBytes::Access::ReadWrite);
    const int artNumber = numbers_.Take();
    auto      art = FileBytes::OnHost(artFile_, FileBytes::Access::ReadWrite);
    DrawStaticTileFromFiles(id, pctTempDraw, index, art, order_.seeItemPics(), order_.background);
    numbers_.Release(artNumber);
    numbers_.Release(indexNumber);

    auto& file = unsaved_[NameOf(id)];
    WriteBitmap(pctTempDraw, file);
    unsavedBytes_ += file.size();
    if (unsavedBytes_ > MostUnsavedBytes) {
        SaveAll();
    }
}

void PictureCache::SaveAll()
{
    while (!AllSaved()) {
        SaveOne();
    }
}

void PictureCache::SaveSome()
{
    const auto end = std::chrono::steady_clock::now() + SavingTime;
    while (!AllSaved() && std::chrono::steady_clock::now() < end) {
        SaveOne();
    }
}

void PictureCache::SaveOne()
{
    const auto picture = unsaved_.extract(unsaved_.begin());
    unsavedBytes_ -= picture.mapped().size();
    const auto write = [&picture] {
        std::filebuf file;
        const auto   size = static_cast<std::streamsize>(picture.mapped().size());
        return file.open(picture.key().c_str(), std::ios::out | std::ios::binary | std::ios::trunc) != nullptr &&
               file.sputn(reinterpret_cast<const char*>(picture.mapped().data()), size) == size &&
               file.close() != nullptr;
    };
    if (write()) {
        return;
    }
    // The folder may have gone since it was made.
    std::error_code error;
    fs::create_directories(fs::path(picture.key()).parent_path(), error);
    if (!write()) {
        throw core::RuntimeError(core::error::PathFileAccess);
    }
}

bool PictureCache::ReadFile(const HostName& name)
{
    std::filebuf file;
    // Without a buffer of its own it reads straight into this one.
    file.pubsetbuf(nullptr, 0);
    if (file.open(name.c_str(), std::ios::in | std::ios::binary) == nullptr) {
        return false;
    }
    length_ = 0;
    try {
        for (std::size_t read = PartBytes; read == PartBytes && length_ < MostBytes; length_ += read) {
            buffer_.resize(std::max(buffer_.size(), length_ + PartBytes));
            read = static_cast<std::size_t>(
                file.sgetn(reinterpret_cast<char*>(buffer_.data() + length_), static_cast<std::streamsize>(PartBytes)));
        }
    } catch (const std::ios_base::failure&) {
        return false; // a folder of this name, or a medium that fails
    }
    return true;
}

PictureCache::HostName PictureCache::NameOf(std::int32_t id) const
{
    const auto plain = PictureName(id);
    HostName   name = folder_.native();
    name.append(plain.begin(), plain.end());
    return name;
}

std::optional<PictureCache::HostName> PictureCache::OtherNameOf(std::int32_t id)
{
    if (!otherNames_) {
        otherNames_.emplace();
        std::error_code        error;
        fs::directory_iterator entry(folder_, error);
        while (!error && entry != fs::directory_iterator()) {
            auto name = core::ProgramPath(entry->path().filename());
            if (auto lower = core::LowerCase(name); lower != name) {
                otherNames_->emplace(std::move(lower), std::move(name));
            }
            entry.increment(error);
        }
    }
    const auto found = otherNames_->find(PictureName(id));
    return found == otherNames_->end() ? std::nullopt : std::optional((folder_ / found->second).native());
}

} // namespace qf::gamedata
