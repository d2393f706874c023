#pragma once

#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "core/file_numbers.h"
#include "gamedata/art.h"
#include "gamedata/art_bytes.h"
#include "support/expect_error.h"
#include "support/temp_folder.h"

namespace qf::test {

/// A client folder with one tile, drawn as the panels draw it.
class StaticTile : public ::testing::Test {
  protected:
    StaticTile()
    {
        folder.MakeFolder("uo");
        drawing.seeItemPics = true;
        drawing.uoPath = folder.ProgramPath() + "\\uo\\";
    }

    void Files(std::string_view index, std::string_view art) const
    {
        folder.Write("uo/Artidx.mul", index);
        folder.Write("uo/Art.mul", art);
    }

    /// Draws a tile that stands at the start of its file; gives the number of the error, 0 for none.
    int Draw(const std::string& art)
    {
        Files(IndexRecord(0), art);
        return DrawFiles();
    }

    int DrawFiles(std::int32_t id = FirstOfIndex)
    {
        canvas.refreshes.clear();
        lastId = id;
        return ErrorNumberOf([&] { gamedata::DrawStaticTile(lastId, canvas, drawing, numbers); });
    }

    TempFolder            folder;
    gamedata::TileDrawing drawing;
    core::FileNumbers     numbers;
    Canvas                canvas;
    std::int32_t          lastId = 0;
};

/// Draws a tile at the start of `art` from files that the caller has open.
inline void DrawOpen(core::PixelSurface& surface, const std::string& art, std::int64_t lookup = 0)
{
    const auto            index = IndexRecord(lookup);
    gamedata::MemoryBytes indexBytes(std::as_bytes(std::span(index)));
    gamedata::MemoryBytes artBytes(std::as_bytes(std::span(art)));
    gamedata::DrawStaticTileFromFiles(FirstOfIndex, surface, indexBytes, artBytes, true, core::White);
}

} // namespace qf::test
