#include "gamedata/clothing.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <set>

#include "support/recording_outlet.h"

namespace qf::gamedata {
namespace {

using Lines = std::vector<std::string>;

Lines Added(const Garment* garment, core::ServerGeneration generation)
{
    test::RecordingOutlet outlet;
    AddGarment(garment, generation, outlet);
    return outlet.Lines();
}

std::vector<std::span<const Garment>> AllLists()
{
    std::vector<std::span<const Garment>> lists{Hairs(), Beards()};
    for (const auto& category : GarmentCategories()) {
        lists.push_back(category.garments);
    }
    return lists;
}

TEST(Clothing, CategoriesStandInTheirOrderWithTheirPieces)
{
    struct Row {
        std::string_view name;
        std::size_t      count;
        std::string_view first;
        std::string_view last;
    };
    constexpr std::array expected{
        Row{"[Boots]", 4, "Boots", "Thigh Boots"},
        Row{"[Hats]", 12, "Floppy Hat", "Skull Cap"},
        Row{"[Shirts and Robes]", 10, "Cape", "Plain Dress"},
        Row{"[Pants]", 4, "Skirt", "Long Pants"},
        Row{"[Misc]", 3, "Half Apron", "Body Sash"},
        Row{"[Masks]", 6, "Deer Mask", "Voodoo Mask"},
    };
    ASSERT_EQ(GarmentCategories().size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        const auto& category = GarmentCategories()[i];
        EXPECT_EQ(category.name, expected[i].name);
        ASSERT_EQ(category.garments.size(), expected[i].count) << category.name;
        EXPECT_EQ(category.garments.front().name, expected[i].first);
        EXPECT_EQ(category.garments.back().name, expected[i].last);
    }
    EXPECT_EQ(Hairs().size(), 10U);
    EXPECT_EQ(Beards().size(), 7U);
}

TEST(Clothing, EveryPieceHasItsOwnIdOfFourDigits)
{
    std::set<std::int32_t> numbers;
    for (const auto list : AllLists()) {
        for (const auto& garment : list) {
            EXPECT_EQ(garment.id.size(), 4U) << garment.name;
            EXPECT_EQ(garment.id.find_first_not_of("0123456789abcdefABCDEF"), std::string_view::npos) << garment.name;
            EXPECT_TRUE(numbers.insert(ItemIdOf(garment)).second) << garment.name;
        }
    }
    EXPECT_EQ(numbers.size(), 56U);
}

TEST(Clothing, ThePictureIsOfTheItem)
{
    EXPECT_EQ(ItemIdOf(GarmentsOf(0)[0]), 0x170b);
    EXPECT_EQ(ItemIdOf(GarmentsOf(5)[3]), 0x141c);
    EXPECT_EQ(ItemIdOf(GarmentsOf(2)[3]), 0x1ffd);
}

TEST(Clothing, TheOlderDialectWritesTheIdAsTwoBytes)
{
    EXPECT_EQ(Added(&GarmentsOf(0)[0], core::Generation070), Lines{"send add 17 0b"});
    EXPECT_EQ(Added(&Hairs()[0], core::Generation070), Lines{"send add 20 3b"});
    EXPECT_EQ(Added(&Beards()[6], core::Generation070), Lines{"send add 20 4d"});
}

TEST(Clothing, TheNewerDialectWritesTheIdAsOneNumber)
{
    EXPECT_EQ(Added(&GarmentsOf(0)[0], core::Generation09), Lines{"send add 0x170b"});
    EXPECT_EQ(Added(&Hairs()[9], core::Generation09), Lines{"send add 0x204a"});
    EXPECT_EQ(Added(&Beards()[2], core::Generation09), Lines{"send add 0x2040"});
}

TEST(Clothing, UpperCaseDigitsStayAsTheyAre)
{
    EXPECT_EQ(Added(&GarmentsOf(4)[0], core::Generation070), Lines{"send add 15 3B"});
    EXPECT_EQ(Added(&GarmentsOf(5)[2], core::Generation09), Lines{"send add 0x1F0B"});
    EXPECT_EQ(Added(&GarmentsOf(2)[5], core::Generation09), Lines{"send add 0x1f03"});
}

TEST(Clothing, TheSixthHairCarriesItsQuoteMarks)
{
    EXPECT_EQ(Hairs()[5].name, "\"Buns\"Hair");
    EXPECT_EQ(Added(&Hairs()[5], core::Generation09), Lines{"send add 0x2046"});
}

TEST(Clothing, AGenerationThatIsNeitherSendsNothing)
{
    for (const auto list : AllLists()) {
        for (const auto& garment : list) {
            EXPECT_TRUE(Added(&garment, core::ServerGeneration(7)).empty());
            EXPECT_TRUE(Added(&garment, core::ServerGeneration(-1)).empty());
        }
    }
}

TEST(Clothing, WithoutASelectionNothingIsSent)
{
    EXPECT_EQ(GarmentAt(Hairs(), -1), nullptr);
    EXPECT_EQ(GarmentAt(Hairs(), 10), nullptr);
    EXPECT_EQ(GarmentAt(GarmentsOf(-1), 0), nullptr);
    EXPECT_EQ(GarmentAt(GarmentsOf(6), 0), nullptr);
    EXPECT_EQ(GarmentAt(GarmentsOf(1), 11)->name, "Skull Cap");
    EXPECT_TRUE(Added(nullptr, core::Generation09).empty());
}

} // namespace
} // namespace qf::gamedata
