#include <filesystem>
#include <iostream>

#include "core/runtime_error.h"
#include "world/database.h"

// Makes the empty world database that is shipped beside the program. A database that is there is left as it
// is, since a running program keeps its world in it.
int main(int argc, char** argv)
{
    if (argc != 2) {
        std::cerr << "usage: qf-make-database FILE\n";
        return 2;
    }
    try {
        const std::filesystem::path file(argv[1]);
        if (!std::filesystem::exists(file)) {
            qf::world::CreateWorldDatabase(file);
            // Opened once as the program opens it at its start, so that a start alone changes nothing in it.
            qf::world::UpgradeDatabase(*qf::world::Database::Open(file));
        }
    } catch (const std::exception& error) {
        std::cerr << argv[1] << ": " << error.what() << '\n';
        return 1;
    }
    return 0;
}
