#include "practice/tile_kinds.h"

#include <array>
#include <optional>

namespace qf::practice {

namespace {

constexpr int Storey = 20;

constexpr std::uint32_t DarkWood = 0x7A5230;
constexpr std::uint32_t LightWood = 0xB98A55;
constexpr std::uint32_t GreyWood = 0x8F8778;
constexpr std::uint32_t RedWood = 0x8E4A35;
constexpr std::uint32_t Stone = 0x9A9A96;
constexpr std::uint32_t DarkStone = 0x6E6E72;
constexpr std::uint32_t Marble = 0xE6E4DE;
constexpr std::uint32_t Sandstone = 0xD8BC82;
constexpr std::uint32_t Brick = 0xA85F48;
constexpr std::uint32_t Plaster = 0xDCCFB0;
constexpr std::uint32_t Straw = 0xCDB264;
constexpr std::uint32_t Leaf = 0x4E8A3A;
constexpr std::uint32_t Autumn = 0xC07A2C;
constexpr std::uint32_t Bark = 0x6B4A2E;
constexpr std::uint32_t Earth = 0x6F5A45;
constexpr std::uint32_t DeepWater = 0x3C78B4;
constexpr std::uint32_t Gold = 0xE0B83C;
constexpr std::uint32_t Metal = 0x84898F;

// clang-format off

/// The tiles of one wall type: short and long, then the two windows; 0 where there is none.
struct WallRow {
    std::uint16_t nsShort, nsLong, ewShort, ewLong, postShort, postLong, cornerShort, cornerLong, windowNs, windowEw;
    std::uint32_t colour;
    Pattern       pattern;
};

constexpr WallRow Walls[] = {
    {0x0015, 0x0008, 0x0016, 0x0007, 0x0017, 0x0009, 0x0014, 0x0006, 0x000F, 0x000E, DarkWood,  Pattern::PlanksAlongX},
    {0x00BE, 0x00A7, 0x00BF, 0x00A8, 0x00C0, 0x0000, 0x00BD, 0x00A6, 0x00B9, 0x00BA, LightWood, Pattern::PlanksAlongX},
    {0x0000, 0x00B0, 0x0000, 0x00AF, 0x0000, 0x00B1, 0x0000, 0x00AE, 0x00BB, 0x00BC, LightWood, Pattern::PlanksAlongX},
    {0x009B, 0x0091, 0x009C, 0x0092, 0x009D, 0x0093, 0x009A, 0x0090, 0x0099, 0x0098, DarkWood,  Pattern::Logs},
    {0x0043, 0x0035, 0x0042, 0x0034, 0x0044, 0x0036, 0x0041, 0x0033, 0x003C, 0x003B, Brick,     Pattern::Bricks},
    {0x0064, 0x0057, 0x0063, 0x0058, 0x0066, 0x005A, 0x0065, 0x0059, 0x005D, 0x005E, 0x9C6A52,  Pattern::Blocks},
    {0x0026, 0x001B, 0x0025, 0x001C, 0x0027, 0x001D, 0x0024, 0x001A, 0x0023, 0x0022, Stone,     Pattern::Blocks},
    {0x00DD, 0x00C9, 0x00DE, 0x00C8, 0x00DF, 0x00CC, 0x00DC, 0x00C7, 0x00CB, 0x00CA, 0x8B8F8A,  Pattern::Blocks},
    {0x01EA, 0x01D1, 0x01E9, 0x01D0, 0x01EB, 0x01D2, 0x01E8, 0x01CF, 0x01D4, 0x01D3, 0xA7A095,  Pattern::Blocks},
    {0x0110, 0x00FA, 0x010F, 0x00F9, 0x0111, 0x00FB, 0x010E, 0x00F8, 0x00FD, 0x00FC, Marble,    Pattern::Blocks},
    {0x014B, 0x0137, 0x014A, 0x0136, 0x0144, 0x012A, 0x0141, 0x0135, 0x013B, 0x013A, Plaster,   Pattern::Rough},
    {0x0169, 0x015F, 0x016A, 0x0160, 0x016B, 0x0161, 0x0168, 0x015E, 0x0162, 0x0163, Sandstone, Pattern::Blocks},
    {0x215A, 0x01A9, 0x215B, 0x01A6, 0x01B5, 0x01B9, 0x215C, 0x01A5, 0x01AF, 0x01AD, Straw,     Pattern::Weave},
    {0x02FF, 0x0242, 0x02FE, 0x0241, 0x0300, 0x0244, 0x02FD, 0x0243, 0x0000, 0x0000, DarkStone, Pattern::Blocks},
    {0x0424, 0x0221, 0x0423, 0x0222, 0x0000, 0x0000, 0x0425, 0x0223, 0x0000, 0x0000, DarkWood,  Pattern::Logs},
    {0x0000, 0x0000, 0x0000, 0x0000, 0x0000, 0x0000, 0x0000, 0x0000, 0x008D, 0x008F, Stone,     Pattern::Blocks},
    {0x02D3, 0x0362, 0x02D0, 0x0354, 0x0000, 0x0000, 0x0000, 0x0000, 0x0000, 0x0000, Stone,     Pattern::Blocks},
    {0x02D5, 0x0000, 0x02D2, 0x0000, 0x0000, 0x0000, 0x0000, 0x0000, 0x0000, 0x0000, Stone,     Pattern::Blocks},
    {0x03C1, 0x03C9, 0x03C0, 0x03C8, 0x03C2, 0x03CA, 0x03BE, 0x03C7, 0x03DF, 0x03DE, 0xCFA56B,  Pattern::Blocks},
};

/// The slopes of one roof material: first, ridge and last row of each direction.
struct RoofRow {
    std::uint16_t nsFirst, nsRidge, nsLast, ewFirst, ewRidge, ewLast;
    std::uint32_t colour;
    Pattern       pattern;
};

constexpr RoofRow Roofs[] = {
    {0x05D0, 0x05CE, 0x05CF, 0x05C4, 0x05C2, 0x05C3, 0x8A6A48, Pattern::Shingles},
    {0x0594, 0x0593, 0x0592, 0x0591, 0x0590, 0x058F, 0x8FA04A, Pattern::Weave},
    {0x05A9, 0x05A8, 0x05A7, 0x05A6, 0x05A5, 0x05A4, Straw,    Pattern::Weave},
    {0x05A3, 0x05A1, 0x05A2, 0x0597, 0x0595, 0x0596, 0x5C6B7C, Pattern::Shingles},
    {0x05C1, 0x05BF, 0x05C0, 0x05B5, 0x05B3, 0x05B4, 0xB05A3C, Pattern::Shingles},
    {0x05FE, 0x05FC, 0x05FD, 0x05F2, 0x05F0, 0x05F1, DarkWood, Pattern::Logs},
    {0x193C, 0x193D, 0x193A, 0x193B, 0x193E, 0x1939, 0x9A4A38, Pattern::Shingles},
    {0x23C7, 0x23D1, 0x23C1, 0x23C5, 0x23BE, 0x23C3, 0x46464C, Pattern::Shingles},
    {0x23E0, 0x23D5, 0x23DA, 0x23DE, 0x23D4, 0x23DC, 0xB03A30, Pattern::Shingles},
    {0x23F6, 0x23EB, 0x23F0, 0x23F4, 0x23EA, 0x23F2, 0x3A62A8, Pattern::Shingles},
    {0x26EC, 0x26EA, 0x26EB, 0x26DC, 0x26DA, 0x26DB, 0xD8C070, Pattern::Weave},
    {0x270A, 0x2708, 0x2709, 0x26FA, 0x26F8, 0x26F9, Bark,     Pattern::Rough},
    {0x28C4, 0x28C2, 0x28C3, 0x28B4, 0x28B2, 0x28B3, Stone,    Pattern::Shingles},
    {0x28DA, 0x28D8, 0x28D9, 0x28CA, 0x28C8, 0x28C9, 0xA67C4C, Pattern::PlanksAlongX},
    {0x28FC, 0x28F1, 0x28F6, 0x28FA, 0x28F0, 0x28F8, 0xD9A832, Pattern::Shingles},
    {0x2912, 0x2907, 0x290C, 0x2910, 0x2906, 0x290E, 0xDCE4EC, Pattern::Shingles},
    {0x292C, 0x2921, 0x2926, 0x292A, 0x2920, 0x2928, 0xD8602A, Pattern::Shingles},
    {0x2BA6, 0x2BA4, 0x2BA5, 0x2B96, 0x2B94, 0x2B95, 0x5E7A3A, Pattern::Shingles},
};

/// The tiles of one stair material; a step is named by the direction to which it falls.
struct StairRow {
    std::uint16_t north, west, south, east, block;
    std::uint32_t colour;
    Pattern       pattern;
};

constexpr StairRow Stairs[] = {
    {0x0724, 0x0725, 0x0722, 0x0723, 0x0721, LightWood, Pattern::PlanksAlongX},
    {0x073B, 0x073C, 0x0739, 0x073A, 0x0738, DarkWood,  Pattern::PlanksAlongX},
    {0x0737, 0x0749, 0x071F, 0x0736, 0x071E, 0x7A8798,  Pattern::Blocks},
    {0x0753, 0x0754, 0x0751, 0x0752, 0x0750, 0xC8C8C2,  Pattern::Blocks},
    {0x078B, 0x078C, 0x0789, 0x078A, 0x0788, 0x8E8475,  Pattern::Blocks},
    {0x076F, 0x0770, 0x076D, 0x076E, 0x076C, Sandstone, Pattern::Blocks},
    {0x07A6, 0x07A7, 0x07A4, 0x07A5, 0x07A3, 0x7A957A,  Pattern::Blocks},
    {0x03F1, 0x03F2, 0x03EF, 0x03F0, 0x03EE, 0xCDB56A,  Pattern::Blocks},
    {0x070C, 0x070D, 0x070A, 0x070B, 0x0709, Marble,    Pattern::Blocks},
};

/// A run of tile numbers of one look. The first row that holds a number counts, so single tiles stand
/// before the runs around them.
struct RunRow {
    std::uint16_t first, last;
    TileLook      look;
};

using enum TileKind;

constexpr RunRow Runs[] = {
    // floors
    {0x0495, 0x049A, {Floor, Form::Slab, Pattern::Tiles,        1, 0xF0EEEA}},
    {0x049B, 0x049B, {Floor, Form::Slab, Pattern::Tiles,        1, 0x5C6B86}},
    {0x049C, 0x049C, {Floor, Form::Slab, Pattern::Tiles,        1, 0x7C7F84}},
    {0x049D, 0x04A8, {Floor, Form::Slab, Pattern::Blocks,       1, Sandstone}},
    {0x04A9, 0x04AC, {Floor, Form::Slab, Pattern::PlanksAlongX, 1, DarkWood}},
    {0x04AD, 0x04B4, {Floor, Form::Slab, Pattern::PlanksAlongX, 1, 0x5E3D22}},
    {0x04B5, 0x04B8, {Floor, Form::Slab, Pattern::PlanksAlongY, 1, DarkWood}},
    {0x04B9, 0x04C0, {Floor, Form::Slab, Pattern::PlanksAlongY, 1, 0x5E3D22}},
    {0x04C1, 0x04C8, {Floor, Form::Slab, Pattern::Logs,         1, 0x8A6238}},
    {0x04C9, 0x04CC, {Floor, Form::Slab, Pattern::PlanksAlongX, 1, LightWood}},
    {0x04CD, 0x04D3, {Floor, Form::Slab, Pattern::PlanksAlongX, 1, 0x9A6E3E}},
    {0x04D4, 0x04D7, {Floor, Form::Slab, Pattern::PlanksAlongY, 1, LightWood}},
    {0x04D8, 0x04E1, {Floor, Form::Slab, Pattern::PlanksAlongY, 1, 0x9A6E3E}},
    {0x04F2, 0x04F2, {Floor, Form::Slab, Pattern::Tiles,        1, 0x4C72A8}},
    {0x04F3, 0x04F3, {Floor, Form::Slab, Pattern::Tiles,        1, 0xA84A40}},
    {0x04FC, 0x04FF, {Floor, Form::Slab, Pattern::Blocks,       1, Stone}},
    {0x0500, 0x0503, {Floor, Form::Slab, Pattern::Blocks,       1, 0x8E7658}},
    {0x0506, 0x0506, {Floor, Form::Slab, Pattern::Logs,         1, 0x8A6238}},
    {0x050B, 0x050C, {Floor, Form::Slab, Pattern::Logs,         1, GreyWood}},
    {0x050D, 0x050E, {Floor, Form::Slab, Pattern::Tiles,        1, Marble}},
    {0x050F, 0x0510, {Floor, Form::Slab, Pattern::Tiles,        1, 0x8FB59A}},
    {0x0511, 0x0514, {Floor, Form::Slab, Pattern::Tiles,        1, 0xC0C4CA}},
    {0x0515, 0x0518, {Floor, Form::Slab, Pattern::Bricks,       1, 0x85827C}},
    {0x0519, 0x0524, {Floor, Form::Slab, Pattern::Blocks,       1, 0x94928C}},
    {0x0525, 0x0530, {Floor, Form::Slab, Pattern::Tiles,        1, 0xE4CE9C}},
    {0x0531, 0x0536, {Floor, Form::Slab, Pattern::Tiles,        1, 0xC6A468}},
    {0x0537, 0x0539, {Floor, Form::Slab, Pattern::Bricks,       1, Brick}},
    {0x04E2, 0x053A, {Floor, Form::Slab, Pattern::Blocks,       1, Stone}},
    {0x2425, 0x2430, {Floor, Form::Slab, Pattern::PlanksAlongX, 1, 0x7E5226}},
    {0x2431, 0x2438, {Floor, Form::Slab, Pattern::Weave,        1, 0xA8743C}},
    {0x2439, 0x245D, {Floor, Form::Slab, Pattern::PlanksAlongX, 1, 0x5A3C26}},
    {0x245E, 0x2463, {Floor, Form::Slab, Pattern::Rough,        1, 0xDCC890}},
    {0x2722, 0x2739, {Floor, Form::Slab, Pattern::PlanksAlongX, 1, RedWood}},
    {0x273A, 0x2751, {Floor, Form::Slab, Pattern::PlanksAlongX, 1, 0x7A5634}},
    {0x286E, 0x2885, {Floor, Form::Slab, Pattern::PlanksAlongX, 1, 0xC49C68}},
    {0x2960, 0x2977, {Floor, Form::Slab, Pattern::PlanksAlongX, 1, 0x54402C}},
    {0x2978, 0x298F, {Floor, Form::Slab, Pattern::PlanksAlongX, 1, 0xA89C88}},
    {0x2BB5, 0x2BB6, {Floor, Form::Slab, Pattern::Weave,        1, 0xB8A078}},
    {0x2BCF, 0x2BCF, {Floor, Form::Slab, Pattern::Tiles,        1, 0xC4BCA8}},
    {0x2CEC, 0x2CEC, {Floor, Form::Slab, Pattern::Tiles,        1, 0xC4BCA8}},
    // rugs and carpets
    {0x0AA9, 0x0AB2, {Carpet, Form::Slab, Pattern::Weave, 0, 0xA83232}},
    {0x0AB3, 0x0ABC, {Carpet, Form::Slab, Pattern::Weave, 0, 0x3E7A44}},
    {0x0ABD, 0x0AC5, {Carpet, Form::Slab, Pattern::Weave, 0, 0x34509C}},
    {0x0AC6, 0x0AC8, {Carpet, Form::Slab, Pattern::Weave, 0, 0xB02C2C}},
    {0x0AC9, 0x0AD0, {Carpet, Form::Slab, Pattern::Weave, 0, 0x7E1E24}},
    {0x0AD1, 0x0AD1, {Carpet, Form::Slab, Pattern::Weave, 0, 0x2C4A9C}},
    {0x0AD2, 0x0AD9, {Carpet, Form::Slab, Pattern::Weave, 0, 0xB8963C}},
    {0x0ADA, 0x0ADA, {Carpet, Form::Slab, Pattern::Weave, 0, 0xA82A2A}},
    {0x0ADB, 0x0AE2, {Carpet, Form::Slab, Pattern::Weave, 0, 0xB8963C}},
    {0x0AE3, 0x0AEB, {Carpet, Form::Slab, Pattern::Weave, 0, 0x9A7434}},
    {0x0AEC, 0x0AEC, {Carpet, Form::Slab, Pattern::Weave, 0, 0xB06A90}},
    {0x0AED, 0x0AED, {Carpet, Form::Slab, Pattern::Weave, 0, 0xA08E50}},
    {0x0AEE, 0x0AF5, {Carpet, Form::Slab, Pattern::Weave, 0, 0x7A5AA0}},
    {0x0AF6, 0x0AFA, {Carpet, Form::Slab, Pattern::Weave, 0, 0x22386E}},
    {0x1098, 0x1098, {Carpet, Form::Slab, Pattern::Weave, 0, 0x9A9A9A}},
    {0x1099, 0x10A0, {Carpet, Form::Slab, Pattern::Weave, 0, 0x6C6C70}},
    {0x1DD3, 0x1DE0, {Carpet, Form::Slab, Pattern::Weave, 0, 0x8A3A34}},
    {0x1DE1, 0x1DEE, {Carpet, Form::Slab, Pattern::Weave, 0, 0x4A6A42}},
    {0x1DEF, 0x1DFC, {Carpet, Form::Slab, Pattern::Weave, 0, 0x3E5080}},
    {0x1E36, 0x1E48, {Carpet, Form::Slab, Pattern::Rough, 0, 0x6A4A30}},
    {0x1E49, 0x1E5B, {Carpet, Form::Slab, Pattern::Rough, 0, 0xE8E6E0}},
    {0x29C0, 0x29C9, {Carpet, Form::Slab, Pattern::Weave, 0, 0x8E9A5A}},
    {0x2A3C, 0x2A44, {Carpet, Form::Slab, Pattern::Weave, 0, 0xC8B878}},
    // walls and doors
    {0x007C, 0x007C, {Wall, Form::Block, Pattern::Blocks, 10,     Stone}},
    {0x0082, 0x0082, {Wall, Form::Block, Pattern::Blocks, Storey, Stone}},
    {0x025C, 0x026A, {Cave, Form::Rock,  Pattern::Rough,  Storey, 0x6C5E52}},
    {0x026B, 0x0280, {Cave, Form::Rock,  Pattern::Rough,  9,      0x6C5E52}},
    // flat roofs
    {0x055C, 0x0572, {Roof, Form::Slab, Pattern::Tiles,  2, 0xA8584A}},
    {0x0573, 0x0578, {Roof, Form::Slab, Pattern::Tiles,  2, 0xDEDCD6}},
    {0x0579, 0x057E, {Roof, Form::Slab, Pattern::Tiles,  2, 0x8E7658}},
    {0x057F, 0x058E, {Roof, Form::Slab, Pattern::Tiles,  2, 0x5C6B86}},
    {0x0637, 0x063A, {Roof, Form::Slab, Pattern::Blocks, 2, Stone}},
    {0x063B, 0x063E, {Roof, Form::Slab, Pattern::Tiles,  2, Marble}},
    {0x058F, 0x0600, {Roof, Form::Slab, Pattern::Shingles, 2, 0x9A5A3C}},
    // ramps
    {0x087A, 0x087A, {Stair, Form::RampEast,  Pattern::PlanksAlongX, 5, LightWood}},
    {0x087B, 0x087B, {Stair, Form::RampSouth, Pattern::PlanksAlongX, 5, LightWood}},
    {0x087C, 0x087C, {Stair, Form::RampWest,  Pattern::PlanksAlongX, 5, LightWood}},
    {0x087D, 0x087D, {Stair, Form::RampNorth, Pattern::PlanksAlongX, 5, LightWood}},
    // trees: trunks, then canopies
    {0x0CD3, 0x0CD3, {Tree, Form::Trunk,      Pattern::Rough, 16, Bark}},
    {0x0CD4, 0x0CD5, {Tree, Form::Canopy,     Pattern::Rough, 14, Leaf}},
    {0x0CD6, 0x0CD6, {Tree, Form::Trunk,      Pattern::Rough, 14, Bark}},
    {0x0CD7, 0x0CD7, {Tree, Form::TallCanopy, Pattern::Rough, 4,  0x3C6E48}},
    {0x0CD8, 0x0CD8, {Tree, Form::Trunk,      Pattern::Rough, 14, Bark}},
    {0x0CD9, 0x0CD9, {Tree, Form::TallCanopy, Pattern::Rough, 4,  0x3C6E48}},
    {0x0CDA, 0x0CDA, {Tree, Form::Trunk,      Pattern::Rough, 16, Bark}},
    {0x0CDB, 0x0CDB, {Tree, Form::Canopy,     Pattern::Rough, 14, Leaf}},
    {0x0CDC, 0x0CDC, {Tree, Form::Canopy,     Pattern::Rough, 14, Autumn}},
    {0x0CDD, 0x0CDD, {Tree, Form::Trunk,      Pattern::Rough, 16, Bark}},
    {0x0CDE, 0x0CDE, {Tree, Form::Canopy,     Pattern::Rough, 14, Leaf}},
    {0x0CDF, 0x0CDF, {Tree, Form::Canopy,     Pattern::Rough, 14, Autumn}},
    {0x0CE0, 0x0CE0, {Tree, Form::Trunk,      Pattern::Rough, 16, Bark}},
    {0x0CE1, 0x0CE1, {Tree, Form::Canopy,     Pattern::Rough, 14, 0x5E9440}},
    {0x0CE2, 0x0CE2, {Tree, Form::Canopy,     Pattern::Rough, 14, 0xB8642A}},
    {0x0CE3, 0x0CE3, {Tree, Form::Trunk,      Pattern::Rough, 16, Bark}},
    {0x0CE4, 0x0CE4, {Tree, Form::Canopy,     Pattern::Rough, 14, 0x5E9440}},
    {0x0CE5, 0x0CE5, {Tree, Form::Canopy,     Pattern::Rough, 14, 0xB8642A}},
    {0x0CE6, 0x0CE6, {Tree, Form::Trunk,      Pattern::Rough, 14, Bark}},
    {0x0CE7, 0x0CE8, {Tree, Form::Canopy,     Pattern::Rough, 11, 0x7A9E50}},
    {0x0CE9, 0x0CEA, {Tree, Form::Bush,       Pattern::Rough, 9,  0x6E9A44}},
    {0x0CF8, 0x0CF8, {Tree, Form::Trunk,      Pattern::Rough, 12, Bark}},
    {0x0CF9, 0x0CF9, {Tree, Form::TallCanopy, Pattern::Rough, 5,  0x3E7440}},
    {0x0CFA, 0x0CFA, {Tree, Form::TallCanopy, Pattern::Rough, 5,  0xA8742E}},
    {0x0CFB, 0x0CFB, {Tree, Form::Trunk,      Pattern::Rough, 12, Bark}},
    {0x0CFC, 0x0CFC, {Tree, Form::TallCanopy, Pattern::Rough, 5,  0x3E7440}},
    {0x0CFD, 0x0CFD, {Tree, Form::TallCanopy, Pattern::Rough, 5,  0xA8742E}},
    {0x0CFE, 0x0CFE, {Tree, Form::Trunk,      Pattern::Rough, 12, Bark}},
    {0x0CFF, 0x0CFF, {Tree, Form::TallCanopy, Pattern::Rough, 5,  0x3E7440}},
    {0x0D00, 0x0D00, {Tree, Form::TallCanopy, Pattern::Rough, 5,  0xA8742E}},
    {0x0D01, 0x0D01, {Tree, Form::Trunk,      Pattern::Rough, 12, Bark}},
    {0x0D02, 0x0D02, {Tree, Form::TallCanopy, Pattern::Rough, 5,  0x3E7440}},
    {0x0D03, 0x0D03, {Tree, Form::TallCanopy, Pattern::Rough, 5,  0xA8742E}},
    {0x0D41, 0x0D90, {Tree, Form::Canopy,     Pattern::Rough, 16, 0x3E7A3C}},
    {0x0D94, 0x0D94, {Tree, Form::Trunk,      Pattern::Rough, 12, Bark}},
    {0x0D95, 0x0D95, {Tree, Form::Canopy,     Pattern::Rough, 10, Leaf}},
    {0x0D96, 0x0D96, {Tree, Form::Canopy,     Pattern::Rough, 10, 0x8A7A38}},
    {0x0D97, 0x0D97, {Tree, Form::Canopy,     Pattern::Rough, 10, Autumn}},
    {0x0D98, 0x0D98, {Tree, Form::Trunk,      Pattern::Rough, 12, Bark}},
    {0x0D99, 0x0D99, {Tree, Form::Canopy,     Pattern::Rough, 10, Leaf}},
    {0x0D9A, 0x0D9A, {Tree, Form::Canopy,     Pattern::Rough, 10, 0x8A7A38}},
    {0x0D9B, 0x0D9B, {Tree, Form::Canopy,     Pattern::Rough, 10, Autumn}},
    {0x0D9C, 0x0D9C, {Tree, Form::Trunk,      Pattern::Rough, 12, Bark}},
    {0x0D9D, 0x0D9E, {Tree, Form::Canopy,     Pattern::Rough, 10, 0x82A050}},
    {0x0D9F, 0x0D9F, {Tree, Form::Canopy,     Pattern::Rough, 10, Autumn}},
    {0x0DA0, 0x0DA0, {Tree, Form::Trunk,      Pattern::Rough, 12, Bark}},
    {0x0DA1, 0x0DA2, {Tree, Form::Canopy,     Pattern::Rough, 10, 0x82A050}},
    {0x0DA3, 0x0DA3, {Tree, Form::Canopy,     Pattern::Rough, 10, Autumn}},
    {0x0DA4, 0x0DA4, {Tree, Form::Trunk,      Pattern::Rough, 12, Bark}},
    {0x0DA5, 0x0DA6, {Tree, Form::Canopy,     Pattern::Rough, 10, 0x6E9E48}},
    {0x0DA7, 0x0DA7, {Tree, Form::Canopy,     Pattern::Rough, 10, Autumn}},
    {0x12B6, 0x12BD, {Tree, Form::Canopy,     Pattern::Rough, 16, 0x35623A}},
    {0x12BE, 0x12C7, {Tree, Form::Trunk,      Pattern::Rough, 16, Bark}},
    {0x1B7E, 0x1B7E, {Tree, Form::TallCanopy, Pattern::Rough, 4,  0x3A6A42}},
    {0x246C, 0x2470, {Plant, Form::Grass,     Pattern::Rough, 18, 0x8AA84A}},
    {0x2471, 0x2475, {Tree, Form::Canopy,     Pattern::Rough, 12, 0xE8A8C0}},
    {0x2476, 0x2477, {Tree, Form::Trunk,      Pattern::Rough, 14, 0x5A3A32}},
    {0x2478, 0x247C, {Tree, Form::Canopy,     Pattern::Rough, 12, 0xC0482C}},
    {0x247D, 0x247D, {Tree, Form::Trunk,      Pattern::Rough, 14, Bark}},
    {0x26ED, 0x26EE, {Tree, Form::Trunk,      Pattern::Rough, 14, 0x5A3A32}},
    {0x26EF, 0x26F3, {Tree, Form::Canopy,     Pattern::Rough, 12, 0xB080B8}},
    // plants and rocks
    {0x0C37, 0x0C37, {Plant, Form::Flower, Pattern::Rough, 4,  0xD86A9A}},
    {0x0C48, 0x0C4A, {Plant, Form::Flower, Pattern::Rough, 4,  0xE0C040}},
    {0x0C83, 0x0C83, {Plant, Form::Flower, Pattern::Rough, 5,  0x8E5AB8}},
    {0x0C84, 0x0C85, {Plant, Form::Flower, Pattern::Rough, 5,  0xD89030}},
    {0x0C86, 0x0C86, {Plant, Form::Flower, Pattern::Rough, 5,  0xD03A30}},
    {0x0C87, 0x0C8A, {Plant, Form::Flower, Pattern::Rough, 5,  0xC878B0}},
    {0x0C8B, 0x0C8E, {Plant, Form::Flower, Pattern::Rough, 5,  0xF0F0E8}},
    {0x0C8F, 0x0C90, {Plant, Form::Block,  Pattern::Rough, 9,  0x3E7438}},
    {0x0C91, 0x0C94, {Plant, Form::Grass,  Pattern::Rough, 9,  0x7E9A48}},
    {0x0C95, 0x0C96, {Plant, Form::Palm,   Pattern::Rough, 20, 0x5E9A3E}},
    {0x0C97, 0x0C98, {Plant, Form::Bush,   Pattern::Rough, 6,  0x4E8E42}},
    {0x0C99, 0x0C9D, {Plant, Form::Palm,   Pattern::Rough, 10, 0x6AA044}},
    {0x0C9E, 0x0C9E, {Tree,  Form::Palm,   Pattern::Rough, 20, 0x4E8A3A}},
    {0x0C9F, 0x0CA4, {Plant, Form::Grass,  Pattern::Rough, 6,  0x4A8A40}},
    {0x0CA8, 0x0CA8, {Tree,  Form::Palm,   Pattern::Rough, 16, 0x7AAA3E}},
    {0x0CA5, 0x0CB6, {Plant, Form::Grass,  Pattern::Rough, 7,  0x86A24C}},
    {0x0CC0, 0x0CC1, {Plant, Form::Flower, Pattern::Rough, 5,  0xD89030}},
    {0x0CC7, 0x0CC7, {Plant, Form::Grass,  Pattern::Rough, 6,  0x6E8E3A}},
    {0x0CC8, 0x0CC8, {Plant, Form::Bush,   Pattern::Rough, 8,  0x44703C}},
    {0x0CC9, 0x0CC9, {Plant, Form::Bush,   Pattern::Rough, 14, 0x6A7A3A}},
    {0x0D04, 0x0D0B, {Plant, Form::Grass,  Pattern::Rough, 4,  0x4E9A5A}},
    {0x0D13, 0x0D14, {Plant, Form::Flower, Pattern::Rough, 3,  0xE8E0D0}},
    {0x0D15, 0x0D16, {Plant, Form::Flower, Pattern::Rough, 3,  0xC83A30}},
    {0x0D36, 0x0D36, {Plant, Form::Flower, Pattern::Rough, 4,  0x7A7AD0}},
    {0x0D37, 0x0D38, {Plant, Form::Palm,   Pattern::Rough, 12, 0x8AA050}},
    {0x0D3F, 0x0D40, {Plant, Form::Bush,   Pattern::Rough, 5,  0x7A6A3A}},
    {0x0DBA, 0x0DBB, {Plant, Form::Grass,  Pattern::Rough, 4,  0x3A6E5A}},
    {0x0DBC, 0x0DC1, {Plant, Form::Grass,  Pattern::Rough, 2,  0x4E9A5A}},
    {0x11C8, 0x11CC, {Plant, Form::Bush,   Pattern::Rough, 9,  0x4A8040}},
    {0x1E0F, 0x1E14, {Plant, Form::Bush,   Pattern::Rough, 7,  0x5E9060}},
    {0x134F, 0x1362, {Plant, Form::Rock,   Pattern::Rough, 9,  0x8A847A}},
    {0x1770, 0x1774, {Plant, Form::Rock,   Pattern::Rough, 3,  0x8A7050}},
    {0x1775, 0x1778, {Plant, Form::Rock,   Pattern::Rough, 3,  0x3E3E42}},
    {0x1779, 0x177B, {Plant, Form::Rock,   Pattern::Rough, 5,  0xB8B8B4}},
    // ground, caves and water
    {0x177F, 0x1781, {Floor, Form::Slab, Pattern::Rough, 0, 0x5C8A40}},
    {0x17BD, 0x17C0, {Floor, Form::Slab, Pattern::Rough, 0, 0xF2F5F8}},
    {0x12EE, 0x134D, {Floor, Form::Slab, Pattern::Waves, 0, 0xE0561E}},
    {0x2141, 0x2141, {Floor, Form::Slab, Pattern::Rough, 0, 0x141432}},
    {0x31F4, 0x31FB, {Floor, Form::Slab, Pattern::Rough, 0, 0x7A5E40}},
    {0x3220, 0x3240, {Floor, Form::Slab, Pattern::Waves, 0, 0x56643A}},
    {0x3D84, 0x3D84, {Floor, Form::Slab, Pattern::Plain, 0, 0x060606}},
    {0x040B, 0x041E, {Cave,  Form::Slab, Pattern::Rough, 0, 0x7A6044}},
    {0x053B, 0x0554, {Cave,  Form::Slab, Pattern::Rough, 0, Earth}},
    {0x056A, 0x056A, {Cave,  Form::Slab, Pattern::Rough, 0, Earth}},
    {0x08E0, 0x08E1, {Cave,  Form::Spike, Pattern::Rough, 14, 0x8A7A6A}},
    {0x08E2, 0x08E3, {Cave,  Form::Rock,  Pattern::Rough, 8,  0xA89478}},
    {0x08E4, 0x08E5, {Cave,  Form::Spike, Pattern::Rough, 10, 0x8A7A6A}},
    {0x08E6, 0x08E6, {Cave,  Form::Rock,  Pattern::Rough, 8,  0xA89478}},
    {0x08E7, 0x08E7, {Cave,  Form::Spike, Pattern::Rough, 8,  0x8A7A6A}},
    {0x08E8, 0x08E8, {Cave,  Form::Rock,  Pattern::Rough, 6,  0xA89478}},
    {0x08E9, 0x08EA, {Cave,  Form::Spike, Pattern::Rough, 6,  0x8A7A6A}},
    {0x1797, 0x179C, {Water, Form::WaterSurface, Pattern::Waves, 0, DeepWater}},
    {0x179D, 0x17AC, {Water, Form::WaterSurface, Pattern::Waves, 0, 0x7AA6B4}},
    // furniture
    {0x0A2A, 0x0A2A, {Furniture, Form::Seat,  Pattern::Plain, 4, LightWood}},
    {0x0B2C, 0x0B33, {Furniture, Form::Seat,  Pattern::Plain, 4, LightWood}},
    {0x0B4E, 0x0B5E, {Furniture, Form::Seat,  Pattern::Plain, 4, DarkWood}},
    {0x0B5F, 0x0B6A, {Furniture, Form::Table, Pattern::PlanksAlongX, 4, LightWood}},
    {0x0B91, 0x0B94, {Furniture, Form::Seat,  Pattern::Plain, 4, DarkWood}},
    {0x0459, 0x045A, {Furniture, Form::Table, Pattern::Plain, 4, Marble}},
    {0x11FC, 0x11FC, {Furniture, Form::Seat,  Pattern::Plain, 4, Straw}},
    {0x1201, 0x120C, {Furniture, Form::Table, Pattern::Blocks, 5, Stone}},
    {0x1218, 0x121B, {Furniture, Form::Seat,  Pattern::Plain, 4, Stone}},
    {0x1667, 0x166C, {Furniture, Form::Table, Pattern::Weave, 6, 0xE8E4DC}},
    {0x1DC1, 0x1DC6, {Furniture, Form::Table, Pattern::Plain, 6, Marble}},
    {0x1DC7, 0x1DCC, {Furniture, Form::Table, Pattern::Plain, 4, Sandstone}},
    {0x1DCD, 0x1DD2, {Furniture, Form::Table, Pattern::Plain, 4, Marble}},
    {0x2DE3, 0x2DEE, {Furniture, Form::Seat,  Pattern::Plain, 5, 0x9A7A4A}},
    {0x0B34, 0x0B4C, {Furniture, Form::Table, Pattern::PlanksAlongX, 6, LightWood}},
    {0x0B6B, 0x0B90, {Furniture, Form::Table, Pattern::PlanksAlongX, 6, DarkWood}},
    {0x0A55, 0x0A56, {Furniture, Form::Bed,   Pattern::Weave, 2, 0x8A7A5A}},
    {0x0A5A, 0x0A91, {Furniture, Form::Bed,   Pattern::Weave, 5, 0xD8D4E0}},
    {0x0DB0, 0x0DB5, {Furniture, Form::Bed,   Pattern::Weave, 5, 0xD8D4E0}},
    {0x09A8, 0x09A8, {Furniture, Form::Chest, Pattern::Plain, 4, Metal}},
    {0x09A9, 0x09AA, {Furniture, Form::Chest, Pattern::PlanksAlongX, 4, LightWood}},
    {0x09AB, 0x09AB, {Furniture, Form::Chest, Pattern::Plain, 5, 0xB8BEC4}},
    {0x0E3C, 0x0E3F, {Furniture, Form::Chest, Pattern::PlanksAlongX, 7, LightWood}},
    {0x0E40, 0x0E41, {Furniture, Form::Chest, Pattern::Plain, 6, Metal}},
    {0x0E42, 0x0E43, {Furniture, Form::Chest, Pattern::PlanksAlongX, 6, DarkWood}},
    {0x0E77, 0x0E77, {Furniture, Form::Chest, Pattern::Logs, 7, LightWood}},
    {0x0E7A, 0x0E7E, {Furniture, Form::Chest, Pattern::PlanksAlongX, 5, LightWood}},
    {0x0E80, 0x0E80, {Furniture, Form::Chest, Pattern::Plain, 4, Metal}},
    {0x0A2C, 0x0A53, {Furniture, Form::Cupboard, Pattern::PlanksAlongX, 12, DarkWood}},
    {0x0A97, 0x0A9E, {Furniture, Form::Cupboard, Pattern::Bricks, 16, 0x8A5A3A}},
    {0x0C10, 0x0C25, {Furniture, Form::Chest, Pattern::Rough, 5, 0x7A6A58}},
    {0x08CF, 0x08DF, {Furniture, Form::Cupboard, Pattern::Bricks, 14, Brick}},
    {0x092B, 0x0967, {Furniture, Form::Cupboard, Pattern::Bricks, 14, 0x8E7A70}},
    {0x09FD, 0x0A26, {Furniture, Form::Lamp, Pattern::Plain, 8, Metal}},
    {0x0B1A, 0x0B26, {Furniture, Form::Lamp, Pattern::Plain, 14, Metal}},
    {0x0E31, 0x0E31, {Furniture, Form::Lamp, Pattern::Plain, 6, Metal}},
    {0x1854, 0x1854, {Furniture, Form::Lamp, Pattern::Plain, 3, 0xE0D8C8}},
    {0x19AA, 0x19AA, {Furniture, Form::Lamp, Pattern::Plain, 10, Metal}},
    {0x1F2B, 0x1F2B, {Furniture, Form::Lamp, Pattern::Plain, 4, Metal}},
    {0x24BB, 0x24C9, {Furniture, Form::Lamp, Pattern::Plain, 9, 0xC84030}},
    {0x0B95, 0x0C0E, {Furniture, Form::Sign, Pattern::Plain, 14, LightWood}},
    {0x0C43, 0x0C44, {Furniture, Form::Sign, Pattern::Plain, 14, LightWood}},
    {0x1296, 0x129E, {Furniture, Form::Sign, Pattern::Plain, 14, LightWood}},
    {0x1F28, 0x1F29, {Furniture, Form::Sign, Pattern::Plain, 14, DarkWood}},
    {0x1B3F, 0x1B69, {Furniture, Form::Pile, Pattern::Rough, 4, Gold}},
    {0x1731, 0x1741, {Furniture, Form::Block, Pattern::Blocks, 5, 0xD6D6D0}},
    {0x19C3, 0x19D3, {Furniture, Form::Block, Pattern::Blocks, 5, Sandstone}},
};

/// Doors come in blocks of sixteen tiles: the first eight hang in walls along X, the others in walls along Y.
struct DoorRow {
    std::uint16_t first, last;
    std::uint32_t colour;
};

constexpr DoorRow Doors[] = {
    {0x0314, 0x0323, DarkStone},
    {0x0324, 0x0333, 0x7A6450},
    {0x0334, 0x0353, DarkWood},
    {0x0354, 0x0363, Stone},
    {0x0675, 0x0694, Metal},
    {0x0695, 0x06A4, Straw},
    {0x06A5, 0x06C4, DarkWood},
    {0x06C5, 0x06D4, Metal},
    {0x06D5, 0x06E4, LightWood},
    {0x06E5, 0x06F4, DarkWood},
    {0x0824, 0x0833, 0x50545A},
    {0x0839, 0x0848, LightWood},
    {0x084C, 0x085B, 0x50545A},
    {0x0866, 0x0875, LightWood},
};

// clang-format on

std::optional<TileLook> WallLook(std::uint16_t id)
{
    constexpr int Low = 9;
    if (id == 0) {
        return std::nullopt;
    }
    for (const WallRow& row : Walls) {
        const auto look = [&](Form form, int height) { return TileLook{Wall, form, row.pattern, height, row.colour}; };
        // clang-format off
        if (id == row.nsShort)     { return look(Form::WallAlongY,   Low); }
        if (id == row.nsLong)      { return look(Form::WallAlongY,   Storey); }
        if (id == row.ewShort)     { return look(Form::WallAlongX,   Low); }
        if (id == row.ewLong)      { return look(Form::WallAlongX,   Storey); }
        if (id == row.postShort)   { return look(Form::Post,         Low); }
        if (id == row.postLong)    { return look(Form::Post,         Storey); }
        if (id == row.cornerShort) { return look(Form::Corner,       Low); }
        if (id == row.cornerLong)  { return look(Form::Corner,       Storey); }
        if (id == row.windowNs)    { return look(Form::WindowAlongY, Storey); }
        if (id == row.windowEw)    { return look(Form::WindowAlongX, Storey); }
        // clang-format on
    }
    return std::nullopt;
}

std::optional<TileLook> RoofLook(std::uint16_t id)
{
    for (const RoofRow& row : Roofs) {
        const auto look = [&](Form form) { return TileLook{Roof, form, row.pattern, 3, row.colour}; };
        // clang-format off
        if (id == row.nsFirst) { return look(Form::RoofRisesSouth); }
        if (id == row.nsRidge) { return look(Form::RoofRidgeAlongX); }
        if (id == row.nsLast)  { return look(Form::RoofFallsSouth); }
        if (id == row.ewFirst) { return look(Form::RoofRisesEast); }
        if (id == row.ewRidge) { return look(Form::RoofRidgeAlongY); }
        if (id == row.ewLast)  { return look(Form::RoofFallsEast); }
        // clang-format on
    }
    return std::nullopt;
}

std::optional<TileLook> StairLook(std::uint16_t id)
{
    for (const StairRow& row : Stairs) {
        const auto look = [&](Form form) { return TileLook{Stair, form, row.pattern, 5, row.colour}; };
        // clang-format off
        if (id == row.north) { return look(Form::StepNorth); }
        if (id == row.west)  { return look(Form::StepWest); }
        if (id == row.south) { return look(Form::StepSouth); }
        if (id == row.east)  { return look(Form::StepEast); }
        if (id == row.block) { return look(Form::Block); }
        // clang-format on
    }
    return std::nullopt;
}

std::optional<TileLook> DoorLook(std::uint16_t id)
{
    for (const DoorRow& row : Doors) {
        if (id >= row.first && id <= row.last) {
            const bool alongX = (id - row.first) % 16 < 8;
            return TileLook{Wall, alongX ? Form::DoorAlongX : Form::DoorAlongY, Pattern::PlanksAlongX, 17, row.colour};
        }
    }
    return std::nullopt;
}

/// A colour that differs from number to number and is never dark.
std::uint32_t OwnColour(std::uint16_t id)
{
    const std::uint32_t mixed = id * 2654435761U;
    return 0x707070U + (mixed & 0x3F3F3FU) * 2U;
}

} // namespace

TileLook LookOf(std::uint16_t id)
{
    for (const auto find : {WallLook, RoofLook, StairLook}) {
        if (const auto look = find(id)) {
            return *look;
        }
    }
    for (const RunRow& row : Runs) {
        if (id >= row.first && id <= row.last) {
            return row.look;
        }
    }
    if (const auto look = DoorLook(id)) {
        return *look;
    }
    if (id > 0 && id < 0x0400) {
        return TileLook{Wall, Form::Post, Pattern::Blocks, Storey, OwnColour(id)};
    }
    return TileLook{Other, Form::Chest, Pattern::Plain, 4, OwnColour(id)};
}

} // namespace qf::practice
