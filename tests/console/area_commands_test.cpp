#include "console/area_commands.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "support/recording_outlet.h"

namespace qf::console {
namespace {

using Lines = std::vector<std::string>;

const AreaCommand& CommandOf(int index)
{
    for (const auto& command : AreaCommands()) {
        if (command.index == index) {
            return command;
        }
    }
    throw std::out_of_range("no such button");
}

Lines Send(int index, std::string_view text)
{
    test::RecordingOutlet outlet;
    SendAreaCommand(CommandOf(index), text, outlet);
    return outlet.Lines();
}

constexpr std::string_view TypeText =
    "Set the type of many items in one go to the specified type (255 for WorldForge compability)";

struct Row {
    int              index;
    std::string_view caption;
    std::string_view box;
    std::string      command;
    std::string_view toolTip;
};

// clang-format off
const Row rows[] = {
    { 0, "Dye",           "txtDye",        "areacommand dye 0x1",         "Dye many items in two clicks, preface color hex-id with 0x!"},
    { 2, "IncX",          "txtIncX",       "areacommand incx 0x1",        "Move many items in one go, either west or east, by the specified amount of tiles. (negative numbers for left, positive for right)"},
    { 4, "IncY",          "txtIncY",       "areacommand incy 0x1",        "Move many items in one go, either north or south, by the specified amount of tiles. (negative numbers for north, positive for south)"},
    { 6, "IncZ",          "txtIncZ",       "areacommand incz 0x1",        "Move many items in one go, either up or down, by the specified amount of tiles. (negative numbers for down, positive for up)"},
    { 8, "SetX",          "txtSetX",       "areacommand setx 0x1",        "Set the X coordinate of many items to the specified coordinate."},
    {10, "SetY",          "txtSetY",       "areacommand sety 0x1",        "Set the Y coordinate of many items to the specified coordinate."},
    {12, "SetZ",          "txtSetZ",       "areacommand setz 0x1",        "Set the Z coordinate of many items to the specified coordinate."},
    {14, "SetType",       "txtSetTYPE",    "areacommand settype 0x1",       TypeText},
    {16, "SetMovable",    "txtSetMovable", "areacommand setmovable 0x1",    TypeText},
    {18, "SetScpTrig",    "txtSetScpTrig", "areacommand setscptrig 0x1",    TypeText},
    {20, "AddScpTrig",    "txtAddScpTrig", "areacommand addscptrig 0x1",    TypeText},
    {22, "RemoveScpTrig", "txtAddScpTrig", "areacommand removescptrig 0x1", TypeText},
    {24, "Name",          "txtName",       "areacommand name 0x1",          TypeText},
    {26, "SetEvent",      "txtSetEvent",   "areacommand setevent 0x1",      TypeText},
    {28, "Decayable",     "txtDecayable",  "areacommand decayable 0x1",     TypeText},
};
// clang-format on

TEST(AreaCommands, FifteenButtonsOfEvenIndices)
{
    const auto commands = AreaCommands();
    ASSERT_EQ(commands.size(), std::size(rows));
    for (std::size_t place = 0; place < commands.size(); ++place) {
        EXPECT_EQ(commands[place].index, rows[place].index);
        EXPECT_EQ(commands[place].caption, rows[place].caption);
        EXPECT_EQ(commands[place].box, rows[place].box);
        EXPECT_EQ(commands[place].toolTip, rows[place].toolTip);
        EXPECT_EQ(Send(rows[place].index, "0x1"), Lines{"send " + rows[place].command});
    }
}

TEST(AreaCommands, TheFieldGoesOutAsTyped)
{
    EXPECT_EQ(Send(6, "-5"), Lines{"send areacommand incz -5"});
    EXPECT_EQ(Send(24, " a  b "), Lines{"send areacommand name  a  b "});
    for (const auto& row : rows) {
        if (row.index != 0) {
            const auto words = row.command.substr(0, row.command.size() - 3);
            EXPECT_EQ(Send(row.index, ""), Lines{"send " + words});
            EXPECT_EQ(Send(row.index, "480"), Lines{"send " + words + "480"});
        }
    }
}

TEST(AreaCommands, AColourNeedsItsPrefix)
{
    const std::string message =
        "box 0 This command takes a HexID, which needs to be prefixed with 0x, which in this case would be: 0x";
    EXPECT_EQ(Send(0, "0x480"), Lines{"send areacommand dye 0x480"});
    EXPECT_EQ(Send(0, "0x"), Lines{"send areacommand dye 0x"});
    EXPECT_EQ(Send(0, "0xno colour"), Lines{"send areacommand dye 0xno colour"});
    for (const std::string text : {"480", "0X480", "", "0", "x480", " 0x480", "00x1", "4800x"}) {
        EXPECT_EQ(Send(0, text), Lines{message + text});
    }
}

TEST(AreaCommands, RemoveTakesTheFieldOfAdd)
{
    EXPECT_EQ(CommandOf(22).box, CommandOf(20).box);
    EXPECT_EQ(Send(22, ""), Lines{"send areacommand removescptrig "});
}

struct SyntaxRow {
    std::string_view name;
    std::string_view caption;
    std::string      message;
};

const SyntaxRow syntaxRows[] = {
    {"cmdTypeSyntax", "SetType", ""},
    {"cmdMoveSyntax", "SetMovable",
     "0 == default by client, 1 == everyone can move, 2 == GM Only, 3 == house-locked down(Owner only)"},
    {"cmdScpTrigSyntax", "SetScpTrig", "Assigns JS script ID, overwriting all other script IDs that might be assigned"},
    {"cmdAddScpTrigSyntax", "AddScpTrig", "Adds JS script ID to object's list of script IDs"},
    {"cmdRemoveScpTrigSyntax", "RemoveScpTrig", "Removes JS script ID from object's list of script IDs"},
    {"cmdNameSyntax", "Name", "Enter name to assign to all items within the selected area"},
    {"cmdSetEventSyntax", "SetEvent",
     "Assigns defined event name to all items within selected area. Used by 'decorate feature"},
    {"cmdDecayableSyntax", "Decayable", "0 == not decayable, 1 == decayable"},
};

TEST(AreaCommands, SyntaxStandsBesideItsButton)
{
    const auto syntaxes = AreaSyntaxes();
    ASSERT_EQ(syntaxes.size(), std::size(syntaxRows));
    for (std::size_t place = 0; place < syntaxes.size(); ++place) {
        EXPECT_EQ(syntaxes[place].name, syntaxRows[place].name);
        EXPECT_EQ(CommandOf(syntaxes[place].index).caption, syntaxRows[place].caption);
        EXPECT_EQ(syntaxes[place].message, syntaxRows[place].message);
    }
}

TEST(AreaCommands, SyntaxIsToldAndNothingSent)
{
    for (const auto& syntax : AreaSyntaxes()) {
        if (!syntax.message.empty()) {
            test::RecordingOutlet outlet;
            TellSyntax(syntax, outlet);
            EXPECT_EQ(outlet.Lines(), Lines{"box 0 " + std::string(syntax.message)});
        }
    }
}

} // namespace
} // namespace qf::console
