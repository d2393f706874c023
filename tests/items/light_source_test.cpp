#include "items/light_source.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/recording_outlet.h"

namespace qf::items {
namespace {

using core::Generation070;
using core::Generation09;
using Lines = std::vector<std::string>;

Lines Send(int index, core::ServerGeneration generation)
{
    test::RecordingOutlet outlet;
    SendLight(index, generation, outlet);
    return outlet.Lines();
}

struct Row {
    int              index;
    std::string_view caption;
    std::string      value;
};

// clang-format off
const Row rows[] = {
    { 0, "All   360   3",   "1"},
    { 1, "All   360   3",   "2"},
    { 2, "South",           "3"},
    { 3, "East",            "4"},
    { 4, "South 180 3",     "5"},
    { 5, "South 135 3",     "6"},
    { 6, "West 180 3",      "7"},
    { 7, "East 180 3",      "8"},
    { 8, "East 135 3",      "9"},
    { 9, "North 180 3",     "10"},
    {10, "South 180 2",     "11"},
    {11, "South 135 3",     "12"},
    {12, "West 180 3",      "13"},
    {13, "East 180 3",      "14"},
    {14, "North 180 3",     "15"},
    {21, "Small Window",    "22"},
    {22, "Small Window",    "23"},
    {23, "Small Window",    "24"},
    {24, "Small Window",    "25"},
    {25, "Arched Window",   "26"},
    {26, "Arched Window",   "27"},
    {27, "Arched Window",   "28"},
    {28, "All   360   4",   "29"},
    {29, "Southeast 90",    "30"},
    {36, "Open Door",       "37"},
    {37, "Open Door",       "38"},
    {38, "Window w light",  "39"},
    {39, "Window wo light", "40"},
    {40, "Window w light",  "41"},
    {41, "Window wo light", "42"},
    {42, "NONE (turn off)", "43"},
    {43, "Slit Window",     "44"},
    {44, "Slit Window",     "45"},
    {45, "Slit Window",     "46"},
    {49, "Slots",           "50"},
    {50, "South  90",       "51"},
    {51, "East    90",      "52"},
    {52, "South   180   2", "53"},
    {53, "East     180   2","54"},
    {54, "Southeast 90",    "55"},
    {55, "NONE (Turn off)", "56"},
};
// clang-format on

TEST(LightSource, HasFortyOneButtonsWithGapsInTheirIndices)
{
    const auto buttons = LightButtons();
    ASSERT_EQ(buttons.size(), 41U);
    ASSERT_EQ(std::size(rows), buttons.size());
    for (std::size_t place = 0; place < buttons.size(); ++place) {
        EXPECT_EQ(buttons[place].index, rows[place].index);
        EXPECT_EQ(buttons[place].caption, rows[place].caption);
    }
}

TEST(LightSource, SendsOneMoreThanTheIndex)
{
    for (const auto& row : rows) {
        EXPECT_EQ(Send(row.index, Generation070), Lines{"send setdir " + row.value});
        EXPECT_EQ(Send(row.index, Generation09), Lines{"send set dir " + row.value});
        EXPECT_EQ(Send(row.index, core::ServerGeneration(7)), Lines{});
    }
}

} // namespace
} // namespace qf::items
