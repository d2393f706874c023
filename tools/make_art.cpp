#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string>

#include "tools/art_files.h"
#include "tools/hue_file.h"

namespace {

void Write(const std::filesystem::path& path, const std::string& bytes)
{
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    if (!file) {
        throw std::runtime_error("cannot write \"" + path.string() + "\"");
    }
}

} // namespace

/// Makes a small client folder: art and hues of the program's own, for the panels and the practice client.
int main(int argc, char* argv[])
{
    constexpr int Failure = 1;
    constexpr int UsageFault = 2;
    if (argc != 2) {
        std::cerr << "Usage: qf-make-art FOLDER\n";
        return UsageFault;
    }
    try {
        const std::filesystem::path folder(argv[1]);
        std::filesystem::create_directories(folder);
        const qf::tools::ArtFiles files = qf::tools::MakeArt();
        Write(folder / "art.mul", files.art);
        Write(folder / "artidx.mul", files.index);
        Write(folder / "hues.mul", qf::tools::MakeHues());
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "qf-make-art: " << error.what() << "\n";
        return Failure;
    }
}
