#include "world/world_files_070.h"

#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <tuple>
#include <vector>

#include "failure_of.h"
#include "recording_sink.h"
#include "support/recording_outlet.h"
#include "support/world_files.h"

namespace qf::world {
namespace {

using Lines = std::vector<std::string>;

/// What a file gives: its records, its boxes, the number of bad statistics.
struct Result {
    RecordingSink         sink;
    test::RecordingOutlet outlet;
    int                   bad = 0;
};

Result ReadItems(const std::string& text)
{
    std::stringbuf bytes(text);
    TextLines      lines(bytes);
    Result         result;
    result.bad = ReadItemBlocks(lines, result.sink, result.outlet);
    return result;
}

Result ReadCharacters(const std::string& text)
{
    std::stringbuf bytes(text);
    TextLines      lines(bytes);
    Result         result;
    result.bad = ReadCharacterBlocks(lines, result.sink, result.outlet);
    return result;
}

/// The one record whose block holds these lines.
ItemRecord Item(const std::string& keys)
{
    const auto result = ReadItems("WORLDITEM\n{\n" + keys + "\n}\n");
    EXPECT_EQ(result.sink.items.size(), 1U) << keys;
    return result.sink.items.empty() ? ItemRecord() : result.sink.items.front();
}

CharacterRecord Character(const std::string& keys)
{
    const auto result = ReadCharacters("{\n" + keys + "\n}\n");
    EXPECT_EQ(result.sink.characters.size(), 1U) << keys;
    return result.sink.characters.empty() ? CharacterRecord() : result.sink.characters.front();
}

TEST(OlderLayout, ReadsItems)
{
    EXPECT_EQ(ReadItems("SECTION WORLDITEM 1\r\n{\r\nSERIAL 5\r\nID 2894\r\nNAME chair\r\nCONT -1\r\nTYPE 12\r\n"
                        "LAYER 3\r\nX 1000\r\nY 2000\r\nZ -5\r\n}\r\n")
                  .sink.lines,
              Lines{"item 5 'chair' 1000 2000 -5 in -1 world 0 id 2894 type 12 instance 0"});
}

TEST(OlderLayout, ReadsCharacters)
{
    EXPECT_EQ(ReadCharacters("SECTION CHARACTER 1\r\n{\r\nSERIAL 5\r\nNAME Iolo\r\nX 1000\r\nY 2000\r\nZ -5\r\n"
                             "OWNER 77\r\nID 5\r\nXBODY 0190\r\nXSKIN 83ea\r\n}\r\n")
                  .sink.lines,
              Lines{"character 5 'Iolo' 1000 2000 -5 world 0 of 77 id 0 instance 0"});
}

TEST(OlderLayout, AnItemBlockOpensBehindItsAnnouncement)
{
    const std::string block = "SERIAL 5\n}\n";
    EXPECT_EQ(ReadItems("WORLDITEM {\n" + block).sink.lines.size(), 1U);
    EXPECT_EQ(ReadItems("{ xWORLDITEMx\n" + block).sink.lines.size(), 1U);
    EXPECT_EQ(ReadItems("WORLDITEM\nanything\n\n  x{y\n" + block).sink.lines.size(), 1U);
    EXPECT_EQ(ReadItems("{\n" + block).sink.lines.size(), 0U);
    EXPECT_EQ(ReadItems("worlditem\n{\n" + block).sink.lines.size(), 0U);
    EXPECT_EQ(ReadItems("{\nWORLDITEM\n" + block).sink.lines.size(), 0U);
}

TEST(OlderLayout, EachItemBlockNeedsItsOwnAnnouncement)
{
    const std::string block = "{\nSERIAL 5\n}\n";
    EXPECT_EQ(ReadItems("WORLDITEM\n" + block + block).sink.lines.size(), 1U);
    EXPECT_EQ(ReadItems("WORLDITEM\n" + block + "WORLDITEM\n" + block).sink.lines.size(), 2U);
    EXPECT_EQ(ReadItems("WORLDITEM\n{\nWORLDITEM\nSERIAL 5\n}\n" + block).sink.lines.size(), 1U);
    EXPECT_EQ(ReadItems("WORLDITEM\n{\nSERIAL 5\n} WORLDITEM\n" + block).sink.lines.size(), 1U);
}

TEST(OlderLayout, AnyBraceOpensACharacterBlock)
{
    EXPECT_EQ(ReadCharacters("x { y\nSERIAL 1\n}\n{\nSERIAL 2\n}\n").sink.lines.size(), 2U);
    EXPECT_EQ(ReadCharacters("SERIAL 1\n}\n").sink.lines.size(), 0U);
}

TEST(OlderLayout, ABlockClosesAtABraceInTheFirstPlace)
{
    EXPECT_EQ(Item(" }\nx}\n{\nSERIAL 6").serial, 6);
    EXPECT_EQ(ReadItems("WORLDITEM\n{\nSERIAL 5\n}x{\n").sink.lines.size(), 1U);
}

TEST(OlderLayout, ABlockWithoutItsEndLeavesNothing)
{
    EXPECT_EQ(ReadItems("WORLDITEM\n{\nSERIAL 5\n").sink.lines.size(), 0U);
    EXPECT_EQ(ReadItems("WORLDITEM\n{\nSERIAL 5\n}").sink.lines.size(), 1U);
    EXPECT_EQ(ReadItems("WORLDITEM\n{").sink.lines.size(), 0U);
    EXPECT_EQ(ReadItems("WORLDITEM").sink.lines.size(), 0U);
    EXPECT_EQ(ReadItems("").sink.lines.size(), 0U);
}

TEST(OlderLayout, WhatABlockDoesNotTellStaysAsItWas)
{
    EXPECT_EQ(ReadItems("WORLDITEM\n{\nSERIAL 1\nNAME chair\nID 2\nCONT 3\nTYPE 4\nX 5\nY 6\nZ 7\n}\n"
                        "WORLDITEM\n{\nSERIAL 2\nX 50\n}\nWORLDITEM\n{\nNAME \n}\n")
                  .sink.lines,
              (Lines{"item 1 'chair' 5 6 7 in 3 world 0 id 2 type 4 instance 0",
                     "item 2 'chair' 50 6 7 in 3 world 0 id 2 type 4 instance 0",
                     "item 2 '' 50 6 7 in 3 world 0 id 2 type 4 instance 0"}));
    EXPECT_EQ(ReadCharacters("{\nSERIAL 1\nNAME Iolo\nX 5\nY 6\nZ 7\nOWNER 8\n}\n{\n}\n").sink.lines,
              (Lines{"character 1 'Iolo' 5 6 7 world 0 of 8 id 0 instance 0",
                     "character 1 'Iolo' 5 6 7 world 0 of 8 id 0 instance 0"}));
}

TEST(OlderLayout, ASerialOfZeroIsARecord)
{
    EXPECT_EQ(ReadItems("WORLDITEM\n{\n}\n").sink.lines, Lines{"item 0 '' 0 0 0 in 0 world 0 id 0 type 0 instance 0"});
    EXPECT_EQ(ReadCharacters("{\nSERIAL 0\n}\n").sink.lines.size(), 1U);
}

TEST(OlderLayout, KeysAreTheFirstCharactersOfALine)
{
    EXPECT_EQ(Item(" SERIAL 5\n\tSERIAL 5\nserial 5\nSerial 5\nSERIA 5").serial, 0);
    EXPECT_EQ(Item("SERIALS5").serial, 5);
    EXPECT_EQ(Item("SERIAL=5").serial, 5);
    EXPECT_EQ(Item("TYPE2 5").type, 5);
    EXPECT_EQ(Item("NAMES chair").name, " chair");
    EXPECT_EQ(Item("X5").x, 5);
    EXPECT_EQ(Item("Y6").y, 6);
    EXPECT_EQ(Item("SECTION x\nINT x\nCOLOR x\nTITLE x\nLOCK x\nDAMAGE x\nMORE x\nOWNER x\nHP x\n").serial, 0);
    EXPECT_EQ(Character("ID x\nCONT x\nTYPE x\nLAYER x\nNPC x\nXBODY x\nXSKIN x\nXBODYx").x, 0);
}

TEST(OlderLayout, ValuesBeginAtTheirPlace)
{
    const auto item = Item("SERIAL_11\nID_12\nNAME_ a chair \nCONT_13\nTYPE_14\nLAYER_15\nX16\nY 17\nZ  -18 \n"
                           "STRENGTH_19\nDEXTERITY_20\nSTAMINA_21\nMANA_22\n");
    EXPECT_EQ(std::tie(item.serial, item.id, item.name, item.container, item.type, item.layer, item.x, item.y, item.z),
              std::tuple(11, 12, " a chair ", 13, 14, 15, 16, 17, -18));
    EXPECT_EQ(
        std::tie(item.statistics.strength, item.statistics.dexterity, item.statistics.stamina, item.statistics.mana),
        std::tuple(19, 20, 21, 22));
    const auto character = Character("SERIAL_11\nNAME_Iolo\nX 16\nY 17\nZ 18\nSTRENGTH_19\nDEXTERITY_20\nSTAMINA_21\n"
                                     "MANA_22\nOWNER_23\n");
    EXPECT_EQ(std::tie(character.serial, character.name, character.x, character.y, character.z, character.owner),
              std::tuple(11, "Iolo", 16, 17, 18, 23));
    EXPECT_EQ(std::tie(character.statistics.strength, character.statistics.dexterity, character.statistics.stamina,
                       character.statistics.mana),
              std::tuple(19, 20, 21, 22));
}

TEST(OlderLayout, NamesAreAnsiText)
{
    EXPECT_EQ(Item("NAME Fa\xDF \x80").name, "Fa\xC3\x9F \xE2\x82\xAC");
    EXPECT_EQ(Item("NAME").name, "");
    EXPECT_EQ(Item("NAME \"x\" 'y'").name, "\"x\" 'y'");
}

TEST(OlderLayout, BadStatisticsAreTold)
{
    const struct {
        const char* key;
        const char* word;
    } statistics[] = {{"STRENGTH", "strength"}, {"DEXTERITY", "dexterity"}, {"STAMINA", "stamina"}, {"MANA", "mana"}};
    for (const auto& [key, word] : statistics) {
        const auto items = ReadItems("WORLDITEM\n{\nSERIAL 5\nNAME chair\n" + std::string(key) + " 70000\n}\n");
        EXPECT_EQ(items.outlet.Lines(),
                  Lines{"box 0 Item chair with serial 5 has an invalid " + std::string(word) + " value 70000"});
        EXPECT_EQ(items.bad, 1);
        EXPECT_EQ(items.sink.lines.size(), 1U);

        const auto characters = ReadCharacters("{\nSERIAL -5\nNAME Iolo\n" + std::string(key) + " 65536\n}\n");
        EXPECT_EQ(characters.outlet.Lines(),
                  Lines{"box 0 Char Iolo with serial -5 has an invalid " + std::string(word) + " value 65536"});
        EXPECT_EQ(characters.bad, 1);
        EXPECT_EQ(characters.sink.lines.size(), 1U);
    }
}

TEST(OlderLayout, EachBadStatisticIsToldWithWhatIsKnownThen)
{
    const auto result = ReadItems("WORLDITEM\n{\nMANA 65536\nSERIAL 5\nNAME d\xE9j\xE0\nMANA 1E5\nSTRENGTH 2147483647\n"
                                  "STRENGTH 65535.5\n}\nWORLDITEM\n{\nMANA &H10000\n}\n");
    EXPECT_EQ(result.outlet.Lines(),
              (Lines{"box 0 Item  with serial 0 has an invalid mana value 65536",
                     "box 0 Item d\xC3\xA9j\xC3\xA0 with serial 5 has an invalid mana value 100000",
                     "box 0 Item d\xC3\xA9j\xC3\xA0 with serial 5 has an invalid strength value 2147483647",
                     "box 0 Item d\xC3\xA9j\xC3\xA0 with serial 5 has an invalid strength value 65536",
                     "box 0 Item d\xC3\xA9j\xC3\xA0 with serial 5 has an invalid mana value 65536"}));
    EXPECT_EQ(result.bad, 5);
    EXPECT_EQ(result.sink.items.at(0).statistics.mana, 30000);
    EXPECT_EQ(result.sink.items.at(1).statistics.strength, 30000);
}

TEST(OlderLayout, StatisticsThatFitAreTaken)
{
    EXPECT_EQ(Item("MANA 32767").statistics.mana, 32767);
    EXPECT_EQ(Item("MANA -32768").statistics.mana, -32768);
    EXPECT_EQ(Item("LAYER 255").layer, 255);
    EXPECT_EQ(Item("LAYER 0.5").layer, 0);
}

TEST(OlderLayout, BrokenFiles)
{
    const struct {
        const char* damage;
        std::string line;
        int         error;
    } fixtures[] = {
        {"serial without a value", "SERIAL", 13},
        {"serial with nothing behind the separator", "SERIAL ", 13},
        {"serial that is a word", "SERIAL none", 13},
        {"prefix of the newer layout", "SERIAL 0x40000001", 13},
        {"serial beyond 32 bits", "SERIAL 2147483648", 6},
        {"place without a value", "X", 13},
        {"another key that begins with X", "XTRA 5", 13},
        {"another key that begins with Y", "YEAR 5", 13},
        {"another key that begins with Z", "ZONE 5", 13},
        {"another key that begins with ID", "IDENTIFIED 1", 13},
        {"place beyond 16 bits", "Y 32768", 6},
        {"layer above a byte", "LAYER 256", 6},
        {"layer below a byte", "LAYER -1", 6},
        {"layer that is a word", "LAYER none", 13},
        {"statistic above 16 bits", "STAMINA 32768", 6},
        {"statistic just below a bad one", "STAMINA 65535", 6},
        {"statistic below 16 bits", "STAMINA -32769", 6},
        {"statistic beyond 32 bits", "STAMINA 2147483648", 6},
        {"statistic that is a word", "STAMINA high", 13},
        {"carriage return within a line", "ID 5\r\r", 13},
        {"NUL in a number", std::string("ID 5\0", 5), 13},
        {"body key in an item block", "XBODY 5", 13},
    };
    for (const auto& fixture : fixtures) {
        std::stringbuf        bytes("WORLDITEM\n{\nSERIAL 1\n}\nWORLDITEM\n{\n" + fixture.line + "\n}\n");
        TextLines             lines(bytes);
        RecordingSink         sink;
        test::RecordingOutlet outlet;
        EXPECT_EQ(FailureOf([&] { ReadItemBlocks(lines, sink, outlet); }).first, fixture.error) << fixture.damage;
        EXPECT_EQ(sink.lines.size(), 1U) << fixture.damage;
    }
}

TEST(OlderLayout, BrokenCharacters)
{
    const struct {
        const char* damage;
        std::string line;
        int         error;
    } fixtures[] = {
        {"owner that is a word", "OWNER none", 13},
        {"owner beyond 32 bits", "OWNER 4294967296", 6},
        {"another key that begins with X", "XSKI 5", 13},
        {"statistic above 16 bits", "MANA 40000", 6},
    };
    for (const auto& fixture : fixtures) {
        EXPECT_EQ(FailureOf([&] { ReadCharacters("{\n" + fixture.line + "\n}\n"); }).first, fixture.error)
            << fixture.damage;
    }
}

TEST(OlderLayout, TheGeneratorsFilesComeBack)
{
    const auto items = test::ItemsOfSeed(3, 500);
    const auto read = ReadItems(test::ItemBlocks(items));
    ASSERT_EQ(read.sink.items.size(), items.size());
    for (std::size_t i = 0; i < items.size(); ++i) {
        const auto& a = read.sink.items[i];
        const auto& b = items[i];
        EXPECT_EQ(std::tie(a.serial, a.name, a.x, a.y, a.z, a.container, a.id, a.type),
                  std::tie(b.serial, b.name, b.x, b.y, b.z, b.container, b.id, b.type));
        EXPECT_EQ(a.world, 0);
        EXPECT_EQ(a.instance, 0);
    }
    const auto characters = test::CharactersOfSeed(4, 100);
    const auto readCharacters = ReadCharacters(test::CharacterBlocks(characters));
    ASSERT_EQ(readCharacters.sink.characters.size(), characters.size());
    for (std::size_t i = 0; i < characters.size(); ++i) {
        const auto& a = readCharacters.sink.characters[i];
        const auto& b = characters[i];
        EXPECT_EQ(std::tie(a.serial, a.name, a.x, a.y, a.z, a.owner),
                  std::tie(b.serial, b.name, b.x, b.y, b.z, b.owner));
    }
}

} // namespace
} // namespace qf::world
