#include "console/npc_script.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>

#include "core/host_path.h"
#include "support/expect_error.h"
#include "support/recording_outlet.h"
#include "support/temp_folder.h"

namespace qf::console {
namespace {

using Lines = std::vector<std::string>;

const std::string loadFailure =
    "box 16 [ERROR] ERROR: The path to Zarn/Brakewater dir (and thus npc.dfn) was wrong. Please re-enter it.";

/// The entries of a text, and the number of the error that ended it.
struct Outcome {
    Lines entries;
    int   error = 0;

    friend bool operator==(const Outcome&, const Outcome&) = default;
};

void PrintTo(const Outcome& outcome, std::ostream* out)
{
    for (const auto& entry : outcome.entries) {
        *out << '"' << entry << "\" ";
    }
    *out << "error " << outcome.error;
}

Outcome Read(const std::string& text)
{
    Outcome            outcome;
    std::istringstream script(text);
    outcome.error = test::ErrorNumberOf(
        [&] { ReadNpcScript(script, [&](std::string_view entry) { outcome.entries.emplace_back(entry); }); });
    return outcome;
}

/// A section of the number 12 with these lines.
std::string SectionOf(const std::string& lines)
{
    return "SECTION NPC 12\r\n{\r\n" + lines + "}\r\n";
}

/// A panel that a load fills, and what the load told.
struct LoadRun {
    explicit LoadRun(std::string server) : serverPath(std::move(server)) {}

    void Load(core::ServerGeneration generation = core::Generation070)
    {
        const NpcListLoad load{
            .serverPath = [this] { return serverPath; },
            .enterFolder =
                [this](std::string_view folder) {
                    entered.emplace_back(folder);
                    if (!std::filesystem::is_directory(core::HostPath(folder))) {
                        throw core::RuntimeError(core::error::PathNotFound);
                    }
                },
            .showStatus = [this](std::string_view text) { told.push_back("status " + std::string(text)); },
            .addEntry = [this](std::string_view entry) { told.push_back("entry " + std::string(entry)); },
            .showList = [this] { told.emplace_back("list shown"); },
        };
        test::RecordingOutlet outlet;
        LoadNpcList(load, generation, numbers, outlet);
        for (const auto& line : outlet.Lines()) {
            told.push_back(line);
        }
    }

    std::string       serverPath;
    core::FileNumbers numbers;
    Lines             entered;
    Lines             told;
};

TEST(NpcScript, ASectionIsListedByNumberAndName)
{
    EXPECT_EQ(Read(SectionOf("NAME=orc\r\n")), Outcome{{"12 - orc"}});
    EXPECT_EQ(Read("SECTION NPC 1\nNAME=a\n}\nSECTION NPC 2\nNAME=b\n}\n"), (Outcome{{"1 - a", "2 - b"}}));
    EXPECT_EQ(Read(""), Outcome{});
}

TEST(NpcScript, NameListsAndTitles)
{
    const auto entry = [](const std::string& lines) {
        const auto outcome = Read(SectionOf(lines));
        return outcome.entries.size() == 1 ? outcome.entries.front() : "not one entry";
    };
    EXPECT_EQ(entry(""), "12 - ");
    EXPECT_EQ(entry("TITLE=the smith\n"), "12 - ");
    EXPECT_EQ(entry("NAME=Bo\nTITLE=the smith\n"), "12 - Bo");
    EXPECT_EQ(entry("NAMELIST=3\n"), "12 - ");
    EXPECT_EQ(entry("NAMELIST=3\nTITLE=the smith\n"), "12 - the smith");
    EXPECT_EQ(entry("NAMELIST=3\nNAME=Bo\n"), "12 - Bo");
    EXPECT_EQ(entry("NAMELIST=3\nNAME=Bo\nTITLE=the smith\n"), "12 - the smith");
    EXPECT_EQ(entry("TITLE=the smith\nNAME=Bo\nNAMELIST=3\n"), "12 - the smith");
    EXPECT_EQ(entry("NAMELIST=3\nNAME=Bo\nTITLE=\n"), "12 - Bo");
}

TEST(NpcScript, ALaterLineOverwritesAnEarlierOne)
{
    EXPECT_EQ(Read(SectionOf("NAME=a\nNAME=b\n")), Outcome{{"12 - b"}});
    EXPECT_EQ(Read(SectionOf("NAME=a\nNAME\n")), Outcome{{"12 - "}});
    EXPECT_EQ(Read(SectionOf("NAMELIST=1\nTITLE=a\nTITLE=b\n")), Outcome{{"12 - b"}});
}

TEST(NpcScript, KeysCountAtTheStartOfALineAndInCapitals)
{
    EXPECT_EQ(Read(SectionOf(" NAME=a\nname=b\nName=c\nxNAME=d\n")), Outcome{{"12 - "}});
    EXPECT_EQ(Read(SectionOf("NAME a\n")), Outcome{{"12 - a"}});
    EXPECT_EQ(Read(SectionOf("NAMES=a\n")), Outcome{{"12 - =a"}});
    EXPECT_EQ(Read(SectionOf("NAME=  a  \n")), Outcome{{"12 -   a  "}});
    EXPECT_EQ(Read(SectionOf("NAMELISTS\nTITLEx\nTITLEx=a\n")), Outcome{{"12 - =a"}});
    EXPECT_EQ(Read(SectionOf("NAME=a}\n")), Outcome{{"12 - a}"}});
}

TEST(NpcScript, NothingIsCarriedIntoTheNextSection)
{
    EXPECT_EQ(Read(SectionOf("NAMELIST=1\nTITLE=t\nNAME=n\n") + SectionOf("")), (Outcome{{"12 - t", "12 - "}}));
    EXPECT_EQ(Read(SectionOf("NAMELIST=1\n") + SectionOf("TITLE=t\nNAME=n\n")), (Outcome{{"12 - ", "12 - n"}}));
}

TEST(NpcScript, WhatStartsASection)
{
    const auto starts = [](const std::string& line) { return Read(line + "\n}\n") != Outcome{}; };
    EXPECT_TRUE(starts("SECTION NPC 12"));
    EXPECT_TRUE(starts("SECTION NPCS12"));
    EXPECT_TRUE(starts("SECTIONxxxxx12NPC"));
    EXPECT_FALSE(starts("SECTION NPCLIST 3"));
    EXPECT_FALSE(starts("SECTION NPC 12 NPCLIST"));
    EXPECT_FALSE(starts(" SECTION NPC 12"));
    EXPECT_FALSE(starts("Section NPC 12"));
    EXPECT_FALSE(starts("SECTION npc 12"));
    EXPECT_FALSE(starts("SECTION ITEM 12"));
    EXPECT_FALSE(starts("NPC SECTION 12"));
}

TEST(NpcScript, TheNumberIsWhatStandsFromTheThirteenthCharacterOn)
{
    const auto entries = [](const std::string& line) { return Read(line + "\n}\n"); };
    EXPECT_EQ(entries("SECTION NPC 007"), Outcome{{"7 - "}});
    EXPECT_EQ(entries("SECTION NPC  12  "), Outcome{{"12 - "}});
    EXPECT_EQ(entries("SECTION NPC -5"), Outcome{{"-5 - "}});
    EXPECT_EQ(entries("SECTION NPC 2.5"), Outcome{{"2 - "}});
    EXPECT_EQ(entries("SECTION NPC 1e3"), Outcome{{"1000 - "}});
    EXPECT_EQ(entries("SECTION NPC &H10"), Outcome{{"16 - "}});
    EXPECT_EQ(entries("SECTION NPC 70000"), Outcome{{"70000 - "}});
    EXPECT_EQ(entries("SECTION  NPC 12"), Outcome{{"12 - "}});
    EXPECT_EQ(entries("SECTION NPC\t12"), Outcome{{"12 - "}});
}

TEST(NpcScript, ANumberThatIsNoneEndsTheReading)
{
    const auto before = SectionOf("NAME=orc\n");
    for (const std::string line : {"SECTION NPC", "SECTION NPC ", "SECTION NPC orc", "SECTION NPC 12 // orcs",
                                   "SECTION NPC 1 2", "SECTION NPC 0x10", "SECTION NPC 12\t", "SECTIONNPC12"}) {
        EXPECT_EQ(Read(before + line + "\n}\n" + before), (Outcome{{"12 - orc"}, core::error::TypeMismatch})) << line;
    }
    EXPECT_EQ(Read(before + "SECTION NPC 3000000000\n}\n"), (Outcome{{"12 - orc"}, core::error::Overflow}));
    EXPECT_EQ(Read(std::string("SECTION NPC 12\0\n}\n", 18)), (Outcome{{}, core::error::TypeMismatch}));
}

TEST(NpcScript, ASectionEndsWithItsBraceAlone)
{
    EXPECT_EQ(Read("SECTION NPC 1\n  }  \n"), Outcome{{"1 - "}});
    EXPECT_EQ(Read("SECTION NPC 1\n}"), Outcome{{"1 - "}});
    EXPECT_EQ(Read("SECTION NPC 1\r\n}\r\n"), Outcome{{"1 - "}});
    EXPECT_EQ(Read("SECTION NPC 1\n\t}\n"), Outcome{});
    EXPECT_EQ(Read("SECTION NPC 1\n}}\n"), Outcome{});
    EXPECT_EQ(Read("SECTION NPC 1\n} // end\n"), Outcome{});
    EXPECT_EQ(Read("SECTION NPC 1\nNAME=cut off"), Outcome{});
    EXPECT_EQ(Read("}\n}\nNAME=a\n"), Outcome{});
}

TEST(NpcScript, ASectionThatIsNotClosedSwallowsTheNext)
{
    EXPECT_EQ(Read("SECTION NPC 1\nNAME=a\nSECTION NPC 2\nNAME=b\n}\n}\n"), Outcome{{"1 - b"}});
    EXPECT_EQ(Read("SECTION NPC 1\nSECTION NPC orc\n}\n"), Outcome{{"1 - "}});
}

TEST(NpcScript, OtherBytesAreTextOfTheCodePage)
{
    EXPECT_EQ(Read(SectionOf("NAME=Zo\xEB\n")), Outcome{{"12 - Zo\xC3\xAB"}});
    EXPECT_EQ(Read(SectionOf("NAME=\x81\xFF\n")), Outcome{{"12 - \xC2\x81\xC3\xBF"}});
    EXPECT_EQ(Read("\xEF\xBB\xBFSECTION NPC 1\n}\n"), Outcome{});
    const auto withNul = Read(SectionOf(std::string("NAME=a\0b\n", 9)));
    EXPECT_EQ(withNul, Outcome{{std::string("12 - a\0b", 8)}});
}

TEST(NpcScript, ALongLineIsALongName)
{
    const std::string name(1'000'000, 'n');
    EXPECT_EQ(Read(SectionOf("NAME=" + name + "\n")), Outcome{{"12 - " + name}});
}

TEST(NpcScript, BytesThatCannotBeReadAreAnError)
{
    /// Fails at the first byte.
    class FailingBytes final : public std::streambuf {
      protected:
        int_type underflow() override { throw std::ios_base::failure("no more"); }
    };
    FailingBytes bytes;
    std::istream script(&bytes);
    EXPECT_RUNTIME_ERROR(core::error::PathFileAccess, ReadNpcScript(script, [](std::string_view) {}));
}

TEST(NpcScript, TheNumberOfAnEntryKeepsItsBlank)
{
    EXPECT_EQ(NumberOfNpcEntry("12 - orc"), "12 ");
    EXPECT_EQ(NumberOfNpcEntry("12 - orc - lord"), "12 ");
    EXPECT_EQ(NumberOfNpcEntry("-5 - orc"), "");
    EXPECT_EQ(NumberOfNpcEntry("orc"), "orc");
}

TEST(NpcScript, ThePathHoldsTwoSeparatorsInARow)
{
    EXPECT_EQ(NpcScriptPath("C:\\Zarn\\zarn.exe"), "C:\\Zarn\\\\npc.scp");
    EXPECT_EQ(NpcScriptPath("zarn.exe"), "\\npc.scp");
    EXPECT_EQ(NpcScriptPath(""), "\\npc.scp");
}

TEST(NpcListLoading, FillsTheListFromTheFileBesideTheServer)
{
    const test::TempFolder folder;
    folder.Write("npc.scp", SectionOf("NAME=orc\r\n"));
    LoadRun    run(folder.ProgramPath() + "\\zarn.exe");
    const auto path = folder.ProgramPath() + "\\\\npc.scp";
    run.Load();
    const Lines once{"status Loading " + path, "entry 12 - orc", "status Working on file " + path, "list shown"};
    EXPECT_EQ(run.told, once);
    EXPECT_EQ(run.entered, Lines{folder.ProgramPath() + "\\"});
    run.Load();
    auto twice = once;
    twice.insert(twice.end(), once.begin(), once.end());
    EXPECT_EQ(run.told, twice);
    EXPECT_EQ(run.numbers.InUse(), 0);
}

TEST(NpcListLoading, AnEmptyScriptShowsAnEmptyList)
{
    const test::TempFolder folder;
    folder.Write("npc.scp", "");
    LoadRun run(folder.ProgramPath() + "\\zarn.exe");
    run.Load();
    ASSERT_EQ(run.told.size(), 3U);
    EXPECT_EQ(run.told.back(), "list shown");
}

TEST(NpcListLoading, AMissingFileIsTheMessage)
{
    const test::TempFolder folder;
    LoadRun                run(folder.ProgramPath() + "\\zarn.exe");
    run.Load();
    EXPECT_EQ(run.told, (Lines{"status Loading " + folder.ProgramPath() + "\\\\npc.scp", loadFailure}));
}

TEST(NpcListLoading, AFolderOfThatNameIsTheMessage)
{
    const test::TempFolder folder;
    folder.MakeFolder("npc.scp");
    LoadRun run(folder.ProgramPath() + "\\zarn.exe");
    run.Load();
    EXPECT_EQ(run.told.back(), loadFailure);
    EXPECT_EQ(run.told.size(), 2U);
}

TEST(NpcListLoading, AWrongFolderIsTheMessageBeforeAnythingIsTold)
{
    const test::TempFolder folder;
    for (const auto& server : {folder.ProgramPath() + "\\none\\zarn.exe", std::string("zarn.exe"), std::string()}) {
        LoadRun run(server);
        run.Load();
        EXPECT_EQ(run.told, Lines{loadFailure}) << server;
    }
}

TEST(NpcListLoading, AFailureKeepsWhatWasListed)
{
    const test::TempFolder folder;
    folder.Write("npc.scp", SectionOf("NAME=orc\n") + "SECTION NPC elf\n}\n" + SectionOf("NAME=ghoul\n"));
    LoadRun run(folder.ProgramPath() + "\\zarn.exe");
    run.Load();
    EXPECT_EQ(run.told,
              (Lines{"status Loading " + folder.ProgramPath() + "\\\\npc.scp", "entry 12 - orc", loadFailure}));
    EXPECT_EQ(run.numbers.InUse(), 0);
}

TEST(NpcListLoading, NoFreeFileNumberIsTheMessage)
{
    const test::TempFolder folder;
    folder.Write("npc.scp", SectionOf("NAME=orc\n"));
    LoadRun run(folder.ProgramPath() + "\\zarn.exe");
    for (int i = 0; i < core::FileNumbers::Most; ++i) {
        run.numbers.Take();
    }
    run.Load();
    EXPECT_EQ(run.told.size(), 2U);
    EXPECT_EQ(run.told.back(), loadFailure);
}

TEST(NpcListLoading, OtherGenerationsReadNothing)
{
    const test::TempFolder folder;
    folder.Write("npc.scp", SectionOf("NAME=orc\n"));
    LoadRun run(folder.ProgramPath() + "\\zarn.exe");
    run.Load(core::Generation09);
    EXPECT_EQ(run.told, Lines{"box 0 Sorry, this is only available for 0.70.x versions of Zarn at the moment."});
    run.told.clear();
    run.Load(core::ServerGeneration(std::int16_t{2}));
    EXPECT_EQ(run.told, Lines{});
}

} // namespace
} // namespace qf::console
