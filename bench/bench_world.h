#pragma once

#include <cstdint>
#include <cstdio>
#include <fstream>
#include <malloc.h>
#include <random>
#include <string>

#include "world/database.h"

namespace qf::bench {

inline constexpr int MapWidth = 6144;
inline constexpr int MapHeight = 4096;

/// Items of a world: two thirds of them houses of two storeys, the others strewn over the map.
class WorldBuilder {
  public:
    WorldBuilder(world::Database& database, int count) : database_(database), count_(count) {}

    void Build()
    {
        while (serial_ < count_ / 3 * 2) {
            const int width = Below(12) + 6;
            const int height = Below(12) + 6;
            House(Below(MapWidth - width), Below(MapHeight - height), width, height, 2);
        }
        while (serial_ < count_) {
            Add(Below(0x3FFF), Below(MapWidth), Below(MapHeight), Below(60) - 10);
        }
        database_.Commit();
    }

    void House(int left, int top, int width, int height, int storeys)
    {
        const int floor = Below(8) * 3 + 0x4A9;
        const int wall = Below(8) * 4 + 6;
        for (int storey = 0; storey < storeys; ++storey) {
            for (int y = top; y < top + height; ++y) {
                for (int x = left; x < left + width; ++x) {
                    const bool onNorth = y == top || y == top + height - 1;
                    const bool onWest = x == left || x == left + width - 1;
                    Add(floor, x, y, storey * 20);
                    if (onNorth || onWest) {
                        Add(wall + (onNorth ? 1 : 0) + (onWest ? 2 : 0), x, y, storey * 20);
                    } else if (Below(8) == 0) {
                        Add(Below(200) + 0xA00, x, y, storey * 20);
                    }
                }
            }
        }
    }

  private:
    int Below(int limit) { return static_cast<int>(draw_() % static_cast<unsigned>(limit)); }

    void Add(int id, int x, int y, int z)
    {
        static const char* const names[] = {"wooden boards", "stone wall", "a chair", "(no name)", "an oak shelf"};
        sql_ = "INSERT INTO tblItem( [Serial], [Name], [X], [Y], [Z], [Container], [World], [ID], [iType], "
               "[InstanceID] ) VALUES( ";
        Append(++serial_);
        sql_ += ", '";
        sql_ += names[serial_ % 5];
        sql_ += '\'';
        for (const int number : {x, y, z, -1, 0, id, serial_ % 20, 0}) {
            sql_ += ", ";
            Append(number);
        }
        sql_ += " );";
        database_.Execute(sql_);
    }

    void Append(int number) { sql_ += std::to_string(number); }

    world::Database& database_;
    int              count_;
    int              serial_ = 0;
    std::mt19937     draw_{1}; // NOLINT(cert-msc32-c,cert-msc51-cpp): every run draws the same
    std::string      sql_;
};

/// What the process has in memory, in MB: "VmRSS" now, "VmHWM" at most since `ForgetPeak`.
inline double Megabytes(const std::string& key)
{
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with(key + ":")) {
            return std::stod(line.substr(key.size() + 1)) / 1024;
        }
    }
    return 0;
}

/// Gives back what is free, so that the next peak is that of what follows.
inline void ForgetPeak()
{
    malloc_trim(0);
    std::ofstream("/proc/self/clear_refs") << "5";
}

} // namespace qf::bench
