#include "world/template_list.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "core/host_path.h"
#include "core/runtime_error.h"
#include "core/text.h"
#include "world/line_file.h"
#include "world/template_file.h"

namespace qf::world {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view Ending = "TMP";
constexpr std::string_view NoDescription = " ";

bool IsTemplateName(std::string_view name)
{
    return name.size() >= Ending.size() && core::EqualIgnoringCase(name.substr(name.size() - Ending.size()), Ending);
}

std::string FirstLine(const fs::path& path)
{
    LineFile    file(path);
    std::string line;
    NextLine(file.Lines(), line);
    return line;
}

bool StandsBefore(const TemplateEntry& a, const TemplateEntry& b)
{
    const auto lowerA = core::LowerCase(a.fileName);
    const auto lowerB = core::LowerCase(b.fileName);
    return lowerA != lowerB ? lowerA < lowerB : a.fileName < b.fileName;
}

} // namespace

std::vector<TemplateEntry> ListTemplates(std::string_view folder)
{
    const auto      host = core::HostPath(folder);
    std::error_code failure;
    if (!fs::is_directory(host, failure)) {
        throw core::RuntimeError(core::error::PathNotFound);
    }
    std::vector<TemplateEntry> entries;
    fs::directory_iterator     file(host, failure);
    while (!failure && file != fs::directory_iterator()) {
        std::error_code noFile;
        auto            name = core::ProgramPath(file->path().filename());
        if (IsTemplateName(name) && file->is_regular_file(noFile)) {
            entries.push_back({WithoutFirst(FirstLine(file->path()), 1), std::move(name)});
        }
        file.increment(failure);
    }
    if (failure) {
        throw core::RuntimeError(core::error::PathFileAccess);
    }
    std::ranges::sort(entries, StandsBefore);
    return entries;
}

std::string TemplateDescription(std::string_view path)
{
    LineFile    file(ExistingFile(path));
    std::string line;
    while (NextLine(file.Lines(), line)) {
        if (core::StartsWithIgnoringCase(line, "DESC")) {
            return WithoutFirst(line, 5);
        }
    }
    return std::string(NoDescription);
}

void ShowTemplateInfo(std::string_view path, std::string_view entryText, core::Outlet& outlet)
{
    const auto description = TemplateDescription(path);
    if (description == NoDescription) {
        outlet.Show(core::PlainBox("The house you selected does not have a description"));
        return;
    }
    outlet.Show({description, core::MessageStyle::Plain, ": " + std::string(entryText)});
}

} // namespace qf::world
