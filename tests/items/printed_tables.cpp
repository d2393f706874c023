#include "items/printed_tables.h"

#include <cstdio>
#include <utility>

namespace qf::items {

namespace {

// Columns as on paper: number, name, directions, then the tiles N, W, S, E; doors have their second layer
// behind them, plants have S alone, lights, "Other 1" and signs N and W; signs all have the directions N and W but
// for the numbers 60 to 69, which have N. A dash is an empty entry.

constexpr const char* chairs = R"(
| 0 | Stool | S | - | - | 0a2a | - |
| 1 | Foot Stool | S | - | - | 0b5e | - |
| 2 | Bamboo Stool | S | - | - | 11fc | - |
| 3 | Throne | SE | - | - | 0b32 | 0b33 |
| 4 | Wooden Chair | NWSE | 0b31 | 0b30 | 0b2e | 0b2f |
| 5 | Stone Chair | NWSE | 121a | 121b | 1218 | 1219 |
| 6 | Cushion Chair | NWSE | 0b54 | 0b55 | 0b53 | 0b52 |
| 7 | Cushion Chair Fancy | NWSE | 0b50 | 0b51 | 0b4f | 0b4e |
| 8 | Normal Chair | NWSE | 0b59 | 0b58 | 0b57 | 0b56 |
| 9 | Ugly Chair | NWSE | 0b5c | 0b5d | 0b5b | 0b5a |
| 10 | Ornate Elven Chair | NWSE | 2de6 | 2de5 | 2de4 | 2de3 |
| 11 | Big Elven Chair | NWSE | 2deb | 2dee | 2dec | 2ded |
| 12 | Gargoyle Chair | SE | - | - | 4023 | 4024 |
| 13 | Chair Simple | SE | - | - | 4c80 | 4c81 |
| 14 | Wedding Chair 1 | NWSE | 9e8e | 9e8f | 9e91 | 9e90 |
| 15 | Wedding Chair 2 | NWSE | 9e9f | 9ea0 | 9ea1 | 9ea2 |
| 16 | Ornate Chair | NWSE | 9e9f | 9ea0 | 9ea1 | 9ea2 |
| 17 | Spiked Chair | SE | - | - | a4ea | a4eb |
)";

constexpr const char* benches = R"(
| 0 | Wooden Bench | SE | - | - | 0b2c | 0b2d |
| 1 | Large Bench | NWSE | 0b94 | 0b92 | 0b93 | 0b91 |
| 2 | Marble Bench | SE | - | - | 045a | 0459 |
| 3 | Sandstone Pt 1 | SE | - | - | 1dc7 | 1dca |
| 4 | Sandstone Pt 2 | SE | - | - | 1dc9 | 1dcc |
| 5 | Sandstone Pt 3 | SE | - | - | 1dc8 | 1dcb |
| 6 | Marble Pt 1 | SE | - | - | 1dcd | 1dd0 |
| 7 | Marble Pt 2 | SE | - | - | 1dd2 | 1dd2 |
| 8 | Marble Pt 3 | SE | - | - | 1dce | 1dd1 |
| 9 | Fancy Pt 1 | SE | - | - | 0b62 | 0b68 |
| 10 | Fancy Pt 2 | SE | - | - | 0b64 | 0b6a |
| 11 | Fancy Pt 3 | SE | - | - | 0b63 | 0b69 |
| 12 | Light Wood Pt 1 | SE | - | - | 0b5f | 0b65 |
| 13 | Light Wood Pt 2 | SE | - | - | 0b61 | 0b67 |
| 14 | Light Wood Pt 3 | SE | - | - | 0b60 | 0b66 |
| 15 | Stone Pt 1 | SE | - | - | 120a | 1207 |
| 16 | Stone Pt 2 | SE | - | - | 120c | 1209 |
| 17 | Stone Pt 3 | SE | - | - | 120b | 1208 |
)";

constexpr const char* tables = R"(
| 0 | Small Table | SE | - | - | 0b34 | 0b35 |
| 1 | Large Table | SE | - | - | 0b7d | 0b90 |
| 2 | Ugly Table | SE | - | - | 0b7c | 0b8f |
| 3 | Writing Table | NWSE | 0b4a | 0b49 | 0b4b | 0b4c |
| 4 | Counter | SE | - | - | 0b3f | 0b40 |
| 5 | Wooden Pt 1 | SE | - | - | 0b6b | 0b7e |
| 6 | Wooden Pt 2 | SE | - | - | 0b6d | 0b80 |
| 7 | Wooden Pt 3 | SE | - | - | 0b6c | 0b7f |
| 8 | Fancy Pt 1 | SE | - | - | 0b6e | 0b81 |
| 9 | Fancy Pt 2 | SE | - | - | 0b73 | 0b86 |
| 10 | Fancy Pt 3 | SE | - | - | 0b6f | 0b82 |
| 11 | Normal Pt 1 | SE | - | - | 0b75 | 0b88 |
| 12 | Normal Pt 2 | SE | - | - | 0b7a | 0b8d |
| 13 | Normal Pt 3 | SE | - | - | 0b76 | 0b89 |
| 14 | Stone Pt 1 | SE | - | - | 1201 | 1204 |
| 15 | Stone Pt 2 | SE | - | - | 1203 | 1206 |
| 16 | Stone Pt 3 | SE | - | - | 1202 | 1205 |
| 17 | Marble Pt 1 | SE | - | - | 1dc1 | 1dc4 |
| 18 | Marble Pt 2 | SE | - | - | 1dc3 | 1dc6 |
| 19 | Marble Pt 3 | SE | - | - | 1dc2 | 1dc5 |
| 20 | w/Cloth Pt. 1 | SE | - | - | 1667 | 166c |
| 21 | w/Cloth Pt. 2 | SE | - | - | 1668 | 166b |
| 22 | w/Cloth Pt. 3 | SE | - | - | 1669 | 166a |
)";

constexpr const char* beds = R"(
| 0 | Plain | NWSE | 0a64 | 0a5b | 0a65 | 0a5a |
| 1 | Not so plain | NWSE | 0a63 | 0a5d | 0a5c | 0a62 |
| 2 | White Plain | NWSE | 0a5e | 0a60 | 0a5f | 0a61 |
| 3 | Unmade | NWSE | 0a66 | 0a69 | 0a68 | 0a6b |
| 4 | Unmade (pillow) | NWSE | 0a67 | 0a6a | 0a68 | 0a6b |
| 5 | Bedroll | SE | - | - | 0a56 | 0a55 |
| 6 | Big 1 (E/W) | NWSE | 0a73 | 0a70 | 0a71 | 0a72 |
| 7 | Big 1 (N/S) | NWSE | 0a77 | 0a76 | 0a75 | 0a74 |
| 8 | Big 2 (E/W) | NWSE | 0a7b | 0a7a | 0a78 | 0a79 |
| 9 | Big 2 (N/S) | NWSE | 0a7d | 0a7c | 0a7e | 0a79 |
| 10 | Big(pillow) EW | NWSE | 0a80 | 0a7f | 0a7e | 0a81 |
| 11 | Big(pillow) NS | NWSE | 0a83 | 0a7f | 0a7e | 0a82 |
| 12 | Big(sheets) EW | NWSE | 0a85 | 0a84 | 0a86 | 0a87 |
| 13 | Big(unmade) EW | NWSE | 0a8f | 0a8e | 0a8c | 0a8d |
| 14 | Big(unmade +pillow) EW | NWSE | 0a91 | 0a90 | 0a8c | 0a8d |
| 15 | Big(unmade +pillow) NS | NWSE | 0db5 | 0db1 | 0db0 | 0db4 |
)";

constexpr const char* containers = R"(
| 0 | Silver Chest | SE | - | - | 0e7c | 09ab |
| 1 | Metal Chest | SE | - | - | 0e40 | 0e41 |
| 2 | Wooden Chest | SE | - | - | 0e42 | 0e43 |
| 3 | Metal Box | SE | - | - | 0e80 | 09a8 |
| 4 | Wooden Box | SE | - | - | 0e7d | 09aa |
| 5 | Small Crate | SE | - | - | 0e7e | 09a9 |
| 6 | Medium Crate | SE | - | - | 0e3e | 0e3f |
| 7 | Large Crate | SE | - | - | 0e3c | 0e3d |
| 8 | Barrel | S | - | - | 0e77 | - |
| 9 | Chest Drawers | SE | - | - | 0a34 | 0a2c |
| 10 | Chest Drawers(R) | SE | - | - | 0a38 | 0a30 |
| 11 | Armoire | SE | - | - | 0a53 | 0a4f |
| 12 | Armoire (Red) | SE | - | - | 0a51 | 0a4d |
| 13 | Bookcase 1 | SE | - | - | 0a99 | 0a97 |
| 14 | Bookcase 2 | SE | - | - | 0a9a | 0a9b |
| 15 | Bookcase 3 | SE | - | - | 0a9c | 0a98 |
| 16 | Empty BC | SE | - | - | 0a9e | 0a9d |
| 17 | Dresser | NWSE | 0a45 | 0a3d | 0a44 | 0a3c |
| 18 | Picnic Basket | S | - | - | 0e7a | - |
)";

constexpr const char* plants = R"(
| 0 | Potted Tree | S | 11c8 |
| 1 | Potted Tree (tall) | S | 11c9 |
| 2 | Flowerpot | S | 11cb |
| 3 | Flowerpot (tall) | S | 11cc |
| 4 | Flowerpot (wide) | S | 11ca |
| 5 | Potted Cactus | S | 1e0f |
| 6 | Potted Cactus 2 | S | 1e10 |
| 7 | Potted Cactus 3 | S | 1e11 |
| 8 | Potted Cactus 4 | S | 1e12 |
| 9 | Potted Cactus 5 | S | 1e13 |
| 10 | Potted Cactus 6 | S | 1e14 |
)";

constexpr const char* wallDecor = R"(
| 0 | Bear Head | NW | 1e60 | 1e67 | - | - |
| 1 | Deer Head | NW | 1e61 | 1e68 | - | - |
| 2 | Fish | NW | 1e62 | 1e69 | - | - |
| 3 | Creature Head | NW | 1e63 | 1e6a | - | - |
| 4 | Orcish Head | NW | 1e64 | 1e6b | - | - |
| 5 | Troll Head | NW | 1e66 | 1e6d | - | - |
| 6 | Polar Bear Head | NW | 1e65 | 1e6c | - | - |
| 7 | Female Portrait 1 | NW | 0e9f | 0ec8 | - | - |
| 8 | Female Portrait 2 | NW | 0ee7 | 0ec9 | - | - |
| 9 | Female Portrait 3 | NW | 0ea7 | 0ea8 | - | - |
| 10 | Male Portrait | NW | 0ea3 | 0ea4 | - | - |
| 11 | Large Painting | N | 0ea0 | - | - | - |
| 12 | Ruined Large Painting | N | 0c2c | - | - | - |
| 13 | Serpent Crest | W | - | 1514 | - | - |
| 14 | Broken Clock | NW | 104c | 104b | - | - |
)";

constexpr const char* lightsources = R"(
| 0 | Wall Torch | NW | 0A0c | 0A07 |
| 1 | Wall Candle | NW | 0A02 | 09fd |
| 2 | Candle | N | 0A0f | - |
| 3 | Tall Candle | N | 0B1a | - |
| 4 | Candelabra | N | 0B1d | - |
| 5 | Tall Candelabra | N | 0B26 | - |
| 6 | Brazier | N | 0E31 | - |
| 7 | Standing Brazier | N | 19aa | - |
| 8 | Low Brazier | N | 1F2b | - |
| 9 | Normal Torch | N | 0a12 | - |
| 10 | Skull Candle | N | 1854 | - |
| 11 | Square Lit L.Post | N | 0b20 | - |
| 12 | Square Post | N | 0b21 | - |
| 13 | Round Lit Post | N | 0b22 | - |
| 14 | Round Post | N | 0b23 | - |
| 15 | Fancy Lit Post | N | 0b24 | - |
| 16 | Fancy L.Post | N | 0b25 | - |
| 17 | Lantern | N | 0a22 | - |
| 18 | Paper Lantern 1 | N | 24bb | - |
| 19 | Paper Lantern 2 | N | 24bd | - |
| 20 | Paper Lantern 3 | N | 24bf | - |
| 21 | Paper Lantern 4 | NW | 24c1 | 24c3 |
| 22 | Paper Lantern 5 | NW | 24c5 | 24c7 |
| 23 | Paper Lantern 6 | N | 24c9 | - |
)";

constexpr const char* other1 = R"(
| 0 | Scarecrow | NW | 1e34 | 1e35 |
| 1 | Pickpocket Dip | NW | 1e2c | 1e2d |
| 2 | Dartboard | NW | 1e2e | 1e2f |
| 3 | Dartboard (axe) | NW | 1e30 | 1e31 |
| 4 | Dartboard(knife) | NW | 1e32 | 1e33 |
| 5 | Bulletin Board | NW | 1e5e | 1e5f |
| 6 | Black Moongate | N | 1fd4 | - |
| 7 | Cauldron | NW | 0974 | 0975 |
| 8 | Red Moongate | N | 0dda | - |
| 9 | Stump (axes) | NW | 0e56 | 0e58 |
| 10 | Stump | NW | 0e57 | 0e59 |
| 11 | Saddle | NW | 0f37 | 0f38 |
| 12 | Blue Moongate | N | 0f6c | - |
| 13 | Spinning Wheel | NW | 1019 | 1015 |
| 14 | Archery Butte | NW | 100b | 100a |
| 15 | Training Dummy | NW | 1070 | 1074 |
| 16 | Guillotine | N | 1230 | 125e |
| 17 | Water Barrel | N | 154d | - |
| 18 | Hay Sheave | N | 100c | - |
| 19 | Rolling Head | N | 1f1f | - |
| 20 | Peg Board | NW | 0c39 | 0c3a |
| 21 | Anvil | NW | 0faf | 0fb0 |
| 22 | Small Forge | N | 0fb1 | - |
)";

constexpr const char* other2 = R"(
| 0 | Fireplace (brick, no fire) | NWSE | 08d0 | 08d3 | 08cf | 08d4 |
| 1 | Fireplace (Stone, no fire) | NWSE | 08db | 08df | 08da | 08de |
| 2 | Fireplace (brick, logs, no fire) | NWSE | 0936 | 0944 | 0935 | 0943 |
| 3 | Fireplace (Stone, logs, no fire) | NWSE | 0952 | 0960 | 0951 | 095f |
| 4 | Fireplace (brick, fire) | NWSE | 0936 | 0944 | 0937 | 0945 |
| 5 | Fireplace (Stone, fire) | NWSE | 0959 | 0967 | 0953 | 0961 |
| 6 | Stone Oven | NWSE | 092c | 0931 | 092b | 0930 |
| 7 | Loom | NWSE | 1060 | 1061 | 105f | 1062 |
| 8 | Water Trough | NWSE | 0b41 | 0b43 | 0b42 | 0b44 |
| 9 | Standing Harp | NWSE | 0eb1 | 0eb1 | 0eb1 | 0eb1 |
)";

constexpr const char* doors = R"(
| 0 | Metal Door 1 | NWSE | 067f | 0679 | 067d | 067b | 0683 | 0675 | 0681 | 0677 |
| 1 | Metal Door 2 | NWSE | 06cf | 06c9 | 06cd | 06cb | 06d3 | 06c5 | 06d1 | 06c7 |
| 2 | Barred Metal Door | NWSE | 068f | 0689 | 068d | 068b | 0693 | 0685 | 0691 | 0687 |
| 3 | Iron Gate (short) | NWSE | 0856 | 0850 | 0854 | 0852 | 085a | 084c | 0858 | 084e |
| 4 | Rattan Door | NWSE | 069f | 0699 | 069d | 069b | 06a3 | 0695 | 06a1 | 0697 |
| 5 | Wooden Door (dark) | NWSE | 06af | 06a9 | 06ad | 06ab | 06b3 | 06a5 | 06b1 | 06a7 |
| 6 | Wooden Door (tall) | NWSE | 06bf | 06b9 | 06bd | 06bb | 06c3 | 06b5 | 06c1 | 06b7 |
| 7 | Wooden Door (light) | NWSE | 06df | 06d9 | 06dd | 06db | 06e3 | 06d5 | 06e1 | 06d7 |
| 8 | Wooden Door (strong) | NWSE | 06ef | 06e9 | 06ed | 06eb | 06f3 | 06e5 | 06f1 | 06e7 |
| 9 | Wooden Gate 1 | NWSE | 0843 | 083d | 0841 | 083b | 0847 | 0839 | 0845 | 083f |
| 10 | Wooden Gate 2 | NWSE | 0870 | 086a | 086e | 0868 | 0874 | 0866 | 0872 | 086c |
| 11 | Secret Dungeon Door | NWSE | 031c | 0318 | 031e | 031a | 0320 | 0314 | 0322 | 0316 |
| 12 | Secret Brownwall Door | NWSE | 032e | 0328 | 032c | 0326 | 0332 | 0324 | 0330 | 032a |
| 13 | Secret Wooden Door 1 | NWSE | 033e | 0338 | 033c | 0336 | 0342 | 0334 | 0340 | 033a |
| 14 | Secret Wooden Door 2 | NWSE | 034e | 0348 | 034c | 0346 | 0352 | 0344 | 0350 | 034a |
| 15 | Secret StoneWall Door | NWSE | 035e | 0358 | 035c | 0356 | 0362 | 0354 | 0360 | 035a |
| 16 | Bar Door | NW | 190e | 190f | - | - | 190e | 190f | - | - |
| 17 | Iron Gate (tall) | NWSE | 082e | 082a | 082c | 0824 | 0832 | 0826 | 0830 | 0828 |
| 18 | SE Wooden Door (grey) | NW | 241f | 2423 | 241f | 2423 | 241f | 2423 | 241f | 2423 |
| 19 | SE Sliding Door 1 | NW | 2a09 | 2a05 | 2a0b | 2a07 | 2a09 | 2a05 | 2a0b | 2a07 |
| 20 | SE Sliding Door 2 | NW | 2a11 | 2a0d | 2a13 | 2a0f | 2a11 | 2a0d | 2a13 | 2a0f |
| 21 | SE Sliding Door 3 | NW | 2a19 | 2a15 | 2a1b | 2a17 | 2a19 | 2a15 | 2a1b | 2a17 |
| 22 | ML Wooden Door | NW | 2d46 | - | 2d48 | - | 2d46 | - | 2d48 | - |
| 23 | ML Simple Door | NW | 2d63 | 2d65 | 2d63 | 2d65 | 2d63 | 2d65 | 2d63 | 2d65 |
| 24 | ML Ornate Door | NW | 2d67 | 2d69 | 2d67 | 2d69 | 2d67 | 2d69 | 2d67 | 2d69 |
| 25 | ML Plain Door | NW | 2d6b | 2d6d | 2d6b | 2d6d | 2d6b | 2d6d | 2d6b | 2d6d |
| 26 | ML Moon Door | NW | 2fe2 | 2fe4 | 2fe2 | 2fe4 | 2fe2 | 2fe4 | 2fe2 | 2fe4 |
| 27 | SA Door Wallset 3 | NW | 409f | 409b | 40a1 | 409d | 409f | 409b | 40a1 | 409d |
| 28 | SA Gargoyle Door | NW | 4110 | 410c | 4112 | 410e | 4110 | 410c | 4112 | 410e |
| 29 | SA Door Wallset 2 | NW | 41c6 | 41c2 | 41c8 | 41c4 | 41c6 | 41c2 | 41c8 | 41c4 |
| 30 | SA Door Wallset 1 | NW | 41d3 | 41cf | 41d5 | 41d1 | 41d3 | 41cf | 41d5 | 41d1 |
| 31 | SA Door A | NW | 4376 | 436e | 4378 | 4370 | 4376 | 436e | 4378 | 4370 |
| 32 | SA Door B | NW | 437a | 4372 | 437c | 4374 | 437a | 4372 | 437c | 4374 |
| 33 | SA Ruin Door | NW | 46e1 | 46dd | 46e3 | 46df | 46e1 | 46dd | 46e3 | 46df |
| 34 | SA Queen Door (tall) | NW | 4d1e | 4d1a | 4d20 | 4d1c | 4d1e | 4d1a | 4d20 | 4d1c |
| 35 | SA Queen Door (short) | NW | 4d26 | 4d22 | 4d28 | 4d24 | 4d26 | 4d22 | 4d28 | 4d24 |
| 36 | SA Door 1 | NW | 50cc | 50c8 | 50ce | 50ca | 50cc | 50c8 | 50ce | 50ca |
| 37 | SA Door 2 | NW | 50d4 | 50d0 | 50d6 | 50d2 | 50d4 | 50d0 | 50d6 | 50d2 |
| 38 | SA Door 3 - Metal | NW | 5146 | 5142 | 5148 | 5144 | 5146 | 5142 | 5148 | 5144 |
| 39 | ToL Door 1 | NWSE | 9adf | 9ad7 | 9ae1 | 9ad9 | 9ae3 | 9adb | 9ae5 | 9add |
| 40 | ToL Door 2 | NWSE | 9b44 | 9b3c | 9b46 | 9b3e | 9b48 | 9b40 | 9b4a | 9b42 |
)";

constexpr const char* signs = R"(
| 0 | Wooden Signpost 1 | 0b98 | 0b97 |
| 1 | Wooden SignPost 2 | 0b9a | 0b99 |
| 2 | Metal Signpost 1 | 0b9c | 0b9b |
| 3 | Metal Signpost 2 | 0b9e | 0b9d |
| 4 | Metal Signpost 3 | 0ba0 | 0b9f |
| 5 | Metal Signpost 4 | 0ba2 | 0ba1 |
| 6 | Library | 0b96 | 0b95 |
| 58 | Bank | 0c0c | 0c0b |
| 59 | Theatre | 0c0e | 0c0d |
| 60 | Tall Sign Post | 1296 | - |
| 61 | Road Sign (N / E) | 1297 | - |
| 62 | RoadSign (N / W) | 1298 | - |
| 63 | RoadSign (N) | 1299 | - |
| 64 | RoadSign (W) | 129a | - |
| 65 | RoadSign (S / E) | 129b | - |
| 66 | RoadSign (E) | 129c | - |
| 67 | RoadSign (S) | 129d | - |
| 68 | RoadSign (S / W) | 129e | - |
| 69 | Magical Sign | 163d | - |
| 70 | Beekeeper | 0c44 | 0c43 |
| 71 | Merchant's Guild | 0c0a | 0c09 |
| 72 | Wooden sign 2 | 1f28 | 1f29 |
)";

constexpr const char* ruined = R"(
| 0 | Broken Chair | NW | 0c10 | 0c11 | - | - |
| 1 | Broken Chair 2 | NW | 0c19 | 0c1a | - | - |
| 2 | Broken Chair 3 | NWSE | 0c1d | 0c1e | 0c1b | 0c1c |
| 3 | Covered Chair | NW | 0c17 | 0c18 | - | - |
| 4 | Broken Armoire | NW | 0c12 | 0c13 | - | - |
| 5 | Ruined Bookcase | NW | 0c14 | 0c15 | - | - |
| 6 | Broken Dresser | NWSE | 0c21 | 0c23 | 0c20 | 0c22 |
| 7 | Broken Drawer | NW | 0c24 | 0c25 | - | - |
| 8 | Ruined Bed | NWSE | 1895 | 1894 | 1896 | 1897 |
| 9 | Ruined Bed 2 | NWSE | 1899 | 189b | 189a | 1898 |
| 10 | Ruined Painting | N | 0c2c | - | - | - |
| 11 | Broken Clock | N | 0c1f | - | - | - |
| 12 | Damaged Books | N | 0c16 | - | - | - |
| 13 | Debris | NWSE | 0c2d | 0c2e | 0c2f | 0c 30 |
)";

// The signs with the numbers 7 to 57 in order.
constexpr const char* signNames =
    "Bakery, Tailor, Tinker, Butcher, Healer, Mage, Woodworker, Customs, Inn, Shipwright, Stables, "
    "Barber, Bard, Fletcher, Armourer, Jeweler, Tavern, Reagent Shop, Blacksmith, Painter, Provisioner, "
    "Bowyer, Wooden sign, Brass sign, Arnaments Guild, Armourers' Guild, Blacksmiths' Guild, "
    "Weapons Guild, Bardic Guild, Barters' Guild, Provisioners' Guild, Traders' Guild, Cooks' Guild, "
    "Healers' Guild, Mages' Guild, Sorcerer Guild, Illusionist Guild, Miner's Guild, Archers' Guild, "
    "Seamen Guild, Fishermen G., Sailors' Guild, Shipwrights' Guild, Tailors' Guild, Thieves' Guild, "
    "Rogues' Guild, Assassin's Guild, Tinkers' Guild, Warriors' Guild, Cavalery Guild, Fighters' Guild";

std::vector<std::string> Split(const std::string& text, const std::string& separator)
{
    std::vector<std::string> parts;
    std::size_t              from = 0;
    for (;;) {
        const auto to = text.find(separator, from);
        parts.push_back(text.substr(from, to - from));
        if (to == std::string::npos) {
            return parts;
        }
        from = to + separator.size();
    }
}

std::vector<std::vector<std::string>> Lines(const char* printed)
{
    std::vector<std::vector<std::string>> lines;
    for (const auto& line : Split(printed, "\n")) {
        if (!line.empty()) {
            auto cells = Split(line.substr(2, line.size() - 4), " | ");
            for (auto& cell : cells) {
                cell = cell == "-" ? "" : cell;
            }
            lines.push_back(cells);
        }
    }
    return lines;
}

std::vector<PrintedRow> Read(const char* printed)
{
    std::vector<PrintedRow> rows;
    for (const auto& cells : Lines(printed)) {
        PrintedRow row{cells[1], cells[2], {}, {}};
        for (std::size_t place = 3; place < cells.size(); ++place) {
            (place < 7 ? row.tiles : row.second).at((place - 3) % 4) = cells[place];
        }
        rows.push_back(row);
    }
    return rows;
}

std::vector<PrintedRow> ReadPlants()
{
    auto rows = Read(plants);
    for (auto& row : rows) {
        std::swap(row.tiles[0], row.tiles[2]);
    }
    return rows;
}

std::string Hex(int number)
{
    char text[8];
    std::snprintf(text, sizeof text, "%04x", static_cast<unsigned>(number));
    return text;
}

std::vector<PrintedRow> ReadSigns()
{
    constexpr int           firstNamed = 7;
    std::vector<PrintedRow> rows(73);
    const auto              names = Split(signNames, ", ");
    for (int place = 0; place < static_cast<int>(names.size()); ++place) {
        const int north = 0x0ba4 + 2 * place;
        rows.at(static_cast<std::size_t>(firstNamed + place)) = {
            names[static_cast<std::size_t>(place)], "NW", {Hex(north), Hex(north - 1), "", ""}, {}};
    }
    for (const auto& cells : Lines(signs)) {
        const int number = std::stoi(cells[0]);
        rows.at(static_cast<std::size_t>(number)) = {
            cells[1], number >= 60 && number <= 69 ? "N" : "NW", {cells[2], cells[3], "", ""}, {}};
    }
    return rows;
}

} // namespace

const std::vector<std::vector<PrintedRow>>& PrintedTables()
{
    static const std::vector<std::vector<PrintedRow>> all{
        Read(chairs),       Read(benches), Read(tables), Read(beds),  Read(containers), ReadPlants(), Read(wallDecor),
        Read(lightsources), Read(other1),  Read(other2), Read(doors), ReadSigns(),      Read(ruined),
    };
    return all;
}

} // namespace qf::items
