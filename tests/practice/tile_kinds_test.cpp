#include <gtest/gtest.h>

#include "practice/tile_kinds.h"

namespace qf::practice {

namespace {

TEST(PracticeTileKinds, KnowTheFamilies)
{
    struct Row {
        std::uint16_t id;
        TileKind      kind;
        Form          form;
    };
    // clang-format off
    constexpr Row Rows[] = {
        {0x04A9, TileKind::Floor,     Form::Slab},
        {0x0495, TileKind::Floor,     Form::Slab},
        {0x2435, TileKind::Floor,     Form::Slab},
        {0x0516, TileKind::Floor,     Form::Slab},
        {0x0AC8, TileKind::Carpet,    Form::Slab},
        {0x0008, TileKind::Wall,      Form::WallAlongY},
        {0x0007, TileKind::Wall,      Form::WallAlongX},
        {0x0009, TileKind::Wall,      Form::Post},
        {0x0006, TileKind::Wall,      Form::Corner},
        {0x000F, TileKind::Wall,      Form::WindowAlongY},
        {0x0362, TileKind::Wall,      Form::WallAlongY},
        {0x0082, TileKind::Wall,      Form::Block},
        {0x06A5, TileKind::Wall,      Form::DoorAlongX},
        {0x06AD, TileKind::Wall,      Form::DoorAlongY},
        {0x05D0, TileKind::Roof,      Form::RoofRisesSouth},
        {0x05CE, TileKind::Roof,      Form::RoofRidgeAlongX},
        {0x05C3, TileKind::Roof,      Form::RoofFallsEast},
        {0x055C, TileKind::Roof,      Form::Slab},
        {0x0721, TileKind::Stair,     Form::Block},
        {0x0724, TileKind::Stair,     Form::StepNorth},
        {0x0723, TileKind::Stair,     Form::StepEast},
        {0x087A, TileKind::Stair,     Form::RampEast},
        {0x0CDD, TileKind::Tree,      Form::Trunk},
        {0x0CDE, TileKind::Tree,      Form::Canopy},
        {0x0C8B, TileKind::Plant,     Form::Flower},
        {0x177B, TileKind::Plant,     Form::Rock},
        {0x053B, TileKind::Cave,      Form::Slab},
        {0x025C, TileKind::Cave,      Form::Rock},
        {0x1797, TileKind::Water,     Form::WaterSurface},
        {0x17AC, TileKind::Water,     Form::WaterSurface},
        {0x0B7D, TileKind::Furniture, Form::Table},
        {0x0E77, TileKind::Furniture, Form::Barrel},
        {0x0B41, TileKind::Furniture, Form::Trough},
        {0x0B40, TileKind::Furniture, Form::Table},
        {0x0C1F, TileKind::Furniture, Form::PictureAlongX},
        {0x0C20, TileKind::Furniture, Form::Chest},
        {0x1F03, TileKind::Other,     Form::Robe},
        {0x203C, TileKind::Other,     Form::Hair},
        {0x0002, TileKind::Furniture, Form::Ankh},
        {0x9ADF, TileKind::Wall,      Form::DoorAlongY},
        {0xFFFF, TileKind::Other,     Form::Chest},
        {0x0000, TileKind::Other,     Form::Chest},
    };
    // clang-format on
    for (const Row& row : Rows) {
        const TileLook look = LookOf(row.id);
        EXPECT_EQ(look.kind, row.kind) << std::hex << row.id;
        EXPECT_EQ(look.form, row.form) << std::hex << row.id;
    }
}

TEST(PracticeTileKinds, TellKnownNumbersFromOthers)
{
    EXPECT_TRUE(KnownLook(0x04A9));
    EXPECT_TRUE(KnownLook(0x170B));
    EXPECT_FALSE(KnownLook(0x0000));
    EXPECT_FALSE(KnownLook(0x0001));
    EXPECT_FALSE(KnownLook(0xFFFF));
    EXPECT_EQ(LookOf(0x0001).form, Form::Post);
}

TEST(PracticeTileKinds, ShortWallsAreLowerThanLongOnes)
{
    EXPECT_LT(LookOf(0x0026).height, LookOf(0x001B).height);
    EXPECT_EQ(LookOf(0x001B).height, 20);
}

TEST(PracticeTileKinds, EveryNumberHasALook)
{
    for (unsigned id = 0; id <= 0xFFFF; ++id) {
        const TileLook look = LookOf(static_cast<std::uint16_t>(id));
        ASSERT_LE(look.colour, 0xFFFFFFU);
        ASSERT_GE(look.height, 0);
        ASSERT_LE(look.height, 20);
    }
}

} // namespace

} // namespace qf::practice
