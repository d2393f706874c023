#include "support/temp_folder.h"

#include <fstream>
#include <iterator>
#include <random>
#include <stdexcept>
#include <system_error>

#include "core/host_path.h"

namespace qf::test {

namespace fs = std::filesystem;

TempFolder::TempFolder()
{
    std::random_device random; // may give one sequence in every process, so only a folder that is new counts
    do {
        path_ = fs::temp_directory_path() / ("quernfield-" + std::to_string(random()));
    } while (!fs::create_directory(path_));
}

TempFolder::~TempFolder()
{
    std::error_code ignored;
    fs::remove_all(path_, ignored);
}

std::string TempFolder::ProgramPath() const
{
    return core::ProgramPath(path_);
}

fs::path TempFolder::Write(std::string_view name, std::string_view bytes) const
{
    const fs::path file = Inside(name);
    fs::create_directories(file.parent_path());
    std::ofstream stream(file, std::ios::binary);
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    stream.close();
    if (!stream) {
        throw std::runtime_error("cannot write " + file.string());
    }
    return file;
}

fs::path TempFolder::MakeFolder(std::string_view name) const
{
    fs::path folder = Inside(name);
    fs::create_directories(folder);
    return folder;
}

std::string TempFolder::Read(std::string_view name) const
{
    const fs::path file = Inside(name);
    std::ifstream  stream(file, std::ios::binary);
    if (!stream) {
        throw std::runtime_error("cannot read " + file.string());
    }
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

bool TempFolder::Has(std::string_view name) const
{
    return fs::exists(Inside(name));
}

fs::path TempFolder::Inside(std::string_view name) const
{
    return path_ / core::PathOf(name);
}

} // namespace qf::test
