#include "world/world_files_09.h"

#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <vector>

#include "failure_of.h"
#include "recording_sink.h"
#include "support/world_files.h"

namespace qf::world {
namespace {

using Lines = std::vector<std::string>;

RecordingSink Read(const std::string& text)
{
    std::stringbuf bytes(text);
    TextLines      lines(bytes);
    RecordingSink  sink;
    ReadSections(lines, sink);
    return sink;
}

/// The one item whose section holds these lines.
ItemRecord Item(const std::string& keys)
{
    auto sink = Read("[ITEM]\r\nSerial=1\r\n" + keys);
    EXPECT_EQ(sink.items.size(), 1U) << keys;
    return sink.items.empty() ? ItemRecord() : sink.items.front();
}

TEST(NewerLayout, ReadsItemsAndCharacters)
{
    EXPECT_EQ(Read("[ITEM]\r\nSerial=0x40000001\r\nID=0xeed\r\nName=gold coins\r\nLocation=1000,2000,-5,1,7\r\n"
                   "Cont=0x40000002\r\nType=14\r\n\r\n"
                   "[CHARACTER]\r\nSerial=16\r\nID=0x190\r\nName=Iolo\r\nLocation=1,2,3,4\r\nOwnerID=0x10\r\no---o\r\n")
                  .lines,
              (Lines{"item 1073741825 'gold coins' 1000 2000 -5 in 1073741826 world 1 id 3821 type 14 instance 7",
                     "character 16 'Iolo' 1 2 3 world 4 of 16 id 400 instance 0"}));
}

TEST(NewerLayout, KeysThatAreNotToldAreEmpty)
{
    EXPECT_EQ(Read("[ITEM]\nSerial=5\n[CHARACTER]\nSerial=6\n").lines,
              (Lines{"item 5 '' 0 0 0 in 0 world 0 id 0 type 0 instance 0",
                     "character 6 '' 0 0 0 world 0 of 0 id 0 instance 0"}));
}

TEST(NewerLayout, MarkersInAnyCaseWithBlanksAround)
{
    EXPECT_EQ(Read("[item]\nSerial=1\n  [Item]  \nSerial=2\n[chARACTER]\nSerial=3\n O---O \nSerial=4\n").lines.size(),
              3U);
}

TEST(NewerLayout, WhatLooksLikeAMarkerIsNone)
{
    EXPECT_EQ(Read("[ITEM]\nSerial=1\n[ITEMS]\nx[ITEM]\n[ITEM] x\n[ITEM]x\n\t[ITEM]\no--o\no----o\nType=3\n").lines,
              Lines{"item 1 '' 0 0 0 in 0 world 0 id 0 type 3 instance 0"});
}

TEST(NewerLayout, ASectionEndsAtTheNextOneOrAtTheEnd)
{
    EXPECT_EQ(Read("[ITEM]\nSerial=1").lines.size(), 1U);
    EXPECT_EQ(Read("[ITEM]\nSerial=1\n[ITEM]\nSerial=2\n[CHARACTER]\nSerial=3").lines.size(), 3U);
    EXPECT_EQ(Read("[ITEM]\nSerial=1\no---o\n").lines.size(), 1U);
    EXPECT_EQ(Read("[ITEM]\nSerial=1\no---o\nSerial=2\no---o\n").lines.size(), 1U);
}

TEST(NewerLayout, ASectionBeginsEmpty)
{
    EXPECT_EQ(Read("[ITEM]\nSerial=1\nName=chair\nLocation=1,2,3,4,5\nCont=6\nID=7\nType=8\n[ITEM]\nSerial=2\n"
                   "[CHARACTER]\nSerial=3\nName=Iolo\nLocation=1,2,3,4,5\nOwnerID=6\nID=7\n[CHARACTER]\nSerial=4\n")
                  .lines,
              (Lines{"item 1 'chair' 1 2 3 in 6 world 4 id 7 type 8 instance 5",
                     "item 2 '' 0 0 0 in 0 world 0 id 0 type 0 instance 0",
                     "character 3 'Iolo' 1 2 3 world 4 of 6 id 7 instance 5",
                     "character 4 '' 0 0 0 world 0 of 0 id 0 instance 0"}));
}

TEST(NewerLayout, LinesOutsideASectionAreIgnored)
{
    EXPECT_EQ(Read("Serial=1\nLocation=1\nSerial=x\n[ITEM]\nSerial=2\no---o\nSerial=x\n\n").lines.size(), 1U);
}

TEST(NewerLayout, ARecordWithoutASerialIsLeftOut)
{
    EXPECT_EQ(Read("[ITEM]\nName=chair\n[ITEM]\nSerial=0\n[ITEM]\nSerial=0x0\n[CHARACTER]\nName=Iolo\n").lines,
              Lines{});
    EXPECT_EQ(Read("[ITEM]\nserial=5\nSERIAL=5\nSerial =5\n").lines, Lines{});
    EXPECT_EQ(Read("[ITEM]\nSerial=5\nSerial=0\n").lines, Lines{});
}

TEST(NewerLayout, KeysMatterByCaseAndAsAWhole)
{
    EXPECT_EQ(Item("id=x\nTYPE=x\ntype=x\ncont=x\nname=x\nlocation=x\nIDs=x\n ID2=x\nOwnerID=x\n").id, 0);
    EXPECT_EQ(Item("=5\nType\nType5\nno key at all\nID: 5\n").type, 0);
    EXPECT_EQ(Read("[CHARACTER]\nSerial=1\nCont=x\nType=x\nOwnerId=x\n").characters.size(), 1U);
}

TEST(NewerLayout, TheFirstEqualsSignSplits)
{
    EXPECT_EQ(Item("Name=a=b\n").name, "a=b");
    EXPECT_EQ(Item("Name==\n").name, "=");
    EXPECT_EQ(Item("Name=\n").name, "");
}

TEST(NewerLayout, LinesAreTrimmedAndValuesAreNot)
{
    EXPECT_EQ(Item("  Name= a chair   \r\n").name, " a chair");
    EXPECT_EQ(Item("Name=chair\t\r\n").name, "chair\t");
    EXPECT_EQ(Item("Name=     \r\n").name, "");
    EXPECT_EQ(Item("\tName=chair\r\n").name, "");
    EXPECT_EQ(Item("Type= 5\n").type, 5);
}

TEST(NewerLayout, NamesAreAnsiText)
{
    EXPECT_EQ(Item("Name=d\xE9j\xE0 \x80 \x81\n").name, "d\xC3\xA9j\xC3\xA0 \xE2\x82\xAC \xC2\x81");
}

TEST(NewerLayout, NumbersAreDecimalOrHexadecimal)
{
    const struct {
        std::string  value;
        std::int32_t number;
    } cases[] = {
        {"16", 16},
        {"-16", -16},
        {"0x10", 16},
        {"0xFfFf", 65535},
        {"0x9E8E", 40590},
        {"&H10", 16},
        {"0x40000001", 1073741825},
        {"0x80000000", -2147483647 - 1},
        {"0xFFFFFFFF", -1},
        {"2147483647", 2147483647},
        {"2.5", 2},
        {"1E3", 1000},
    };
    for (const auto& [value, number] : cases) {
        EXPECT_EQ(Item("ID=" + value).id, number) << value;
        EXPECT_EQ(Item("Cont=" + value).container, number) << value;
        EXPECT_EQ(Item("Type=" + value).type, number) << value;
        EXPECT_EQ(Item("Serial=" + value).serial, number) << value;
        std::string text = "[CHARACTER]";
        for (const auto* key : {"Serial", "OwnerID", "ID"}) {
            text.append("\n").append(key).append("=").append(value);
        }
        const auto sink = Read(text);
        ASSERT_EQ(sink.characters.size(), 1U);
        EXPECT_EQ(sink.characters[0].serial, number) << value;
        EXPECT_EQ(sink.characters[0].owner, number) << value;
        EXPECT_EQ(sink.characters[0].id, number) << value;
    }
}

TEST(NewerLayout, LocationsHaveFourMembersOrFive)
{
    const auto four = Item("Location=100,200,10,3");
    EXPECT_EQ((std::vector<int>{four.x, four.y, four.z, four.world, four.instance}),
              (std::vector<int>{100, 200, 10, 3, 0}));
    const auto five = Item("Location= 100 ,200, -10,1 ,7");
    EXPECT_EQ((std::vector<int>{five.x, five.y, five.z, five.world, five.instance}),
              (std::vector<int>{100, 200, -10, 1, 7}));
    EXPECT_EQ(Item("Location=1,2,3,4,5,x,y").instance, 5);
    EXPECT_EQ(Item("Location=1,2,3,4,5\nLocation=6,7,8,9").instance, 5);
}

TEST(NewerLayout, BrokenFiles)
{
    const struct {
        const char* damage;
        std::string text;
        int         error;
    } fixtures[] = {
        {"location of three members", "Location=1,2,3", 9},
        {"location of one member", "Location=1", 9},
        {"empty location", "Location=", 9},
        {"short location with a word", "Location=x,2,3", 9},
        {"location of empty members", "Location=,,,", 13},
        {"empty fifth member", "Location=1,2,3,4,", 13},
        {"word in a location", "Location=1,2,x,4", 13},
        {"location beyond 16 bits", "Location=32768,2,3,4", 6},
        {"instance beyond 16 bits", "Location=1,2,3,4,-32769", 6},
        {"location parted by points", "Location=1.2.3.4", 9},
        {"empty number", "ID=", 13},
        {"word for a number", "ID=chair", 13},
        {"two numbers", "ID=1 2", 13},
        {"prefix without digits", "Cont=0x", 13},
        {"prefix in upper case", "Cont=0X1F", 13},
        {"blank before the prefix", "Cont= 0x1F", 13},
        {"letter behind hexadecimal digits", "Cont=0x1G", 13},
        {"nine hexadecimal digits", "Cont=0x123456789", 6},
        {"number beyond 32 bits", "Type=2147483648", 6},
        {"number below 32 bits", "Type=-2147483649", 6},
        {"serial that is a word", "Serial=none", 13},
        {"carriage return within a line", "ID=5\r\r\n", 13},
        {"NUL in a number", std::string("ID=5\0", 5), 13},
    };
    for (const auto& fixture : fixtures) {
        std::stringbuf bytes("[ITEM]\nSerial=1\n[CHARACTER]\nSerial=2\n[ITEM]\nSerial=3\n" + fixture.text +
                             "\n[ITEM]\nSerial=4\n");
        TextLines      lines(bytes);
        RecordingSink  sink;
        EXPECT_EQ(FailureOf([&] { ReadSections(lines, sink); }).first, fixture.error) << fixture.damage;
        EXPECT_EQ(sink.lines.size(), 2U) << fixture.damage;
    }
}

TEST(NewerLayout, BytesThatAreNoWorldLeaveNothing)
{
    std::string noise;
    for (int i = 0; i < 100'000; ++i) {
        noise += static_cast<char>(i * 7919 >> 3);
    }
    EXPECT_EQ(Read(noise).lines, Lines{});
    EXPECT_EQ(Read("").lines, Lines{});
}

TEST(NewerLayout, TheGeneratorsFilesComeBack)
{
    const auto items = test::ItemsOfSeed(3, 500);
    const auto characters = test::CharactersOfSeed(4, 100);
    const auto read = Read(test::SectionText(items, characters));
    ASSERT_EQ(read.items.size(), items.size());
    ASSERT_EQ(read.characters.size(), characters.size());
    for (std::size_t i = 0; i < items.size(); ++i) {
        const auto& a = read.items[i];
        const auto& b = items[i];
        EXPECT_EQ(std::tie(a.serial, a.name, a.x, a.y, a.z, a.container, a.world, a.id, a.type, a.instance),
                  std::tie(b.serial, b.name, b.x, b.y, b.z, b.container, b.world, b.id, b.type, b.instance));
    }
    for (std::size_t i = 0; i < characters.size(); ++i) {
        const auto& a = read.characters[i];
        const auto& b = characters[i];
        EXPECT_EQ(std::tie(a.serial, a.name, a.x, a.y, a.z, a.world, a.owner, a.id, a.instance),
                  std::tie(b.serial, b.name, b.x, b.y, b.z, b.world, b.owner, b.id, b.instance));
    }
}

} // namespace
} // namespace qf::world
