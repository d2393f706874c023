#include "scenario/stage.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <system_error>
#include <vector>

#include "client/delivery.h"
#include "core/ansi.h"
#include "core/host_path.h"

namespace qf::scenario {

namespace fs = std::filesystem;

namespace {

std::string WithoutSeparatorAtEnd(std::string path)
{
    while (path.ends_with('\\')) {
        path.pop_back();
    }
    return path;
}

fs::path HostFile(std::string_view path)
{
    return core::HostPath(ReplaceAll(std::string(path), "/", "\\"));
}

std::uint64_t Address(const std::string& text)
{
    return static_cast<std::uint64_t>(ParseNumber(text).value());
}

/// The low 32 bits of the number as a signed one.
std::int32_t Pattern32(const std::string& text)
{
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(ParseNumber(text).value()));
}

void WriteBytes(const fs::path& file, std::string_view bytes)
{
    fs::create_directories(file.parent_path());
    std::ofstream stream(file, std::ios::binary | std::ios::trunc);
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    stream.flush();
    if (!stream) {
        throw LineError("the file cannot be written: " + file.string());
    }
}

std::string TextBytes(const std::vector<std::string>& lines, const Folders& folders)
{
    std::string bytes;
    for (const auto& line : lines) {
        bytes += core::ToAnsi(folders.Expand(line)) + "\r\n";
    }
    return bytes;
}

std::string HexBytes(const std::string& digits)
{
    std::string bytes;
    for (std::size_t i = 0; i < digits.size(); i += 2) {
        bytes += static_cast<char>(std::stoi(digits.substr(i, 2), nullptr, 16));
    }
    return bytes;
}

} // namespace

std::string Folders::Expand(std::string text) const
{
    text = ReplaceAll(std::move(text), "${APP}", app);
    text = ReplaceAll(std::move(text), "${DIR}", dir);
    return ReplaceAll(std::move(text), "${HERE}", here);
}

Words Folders::Expand(Words words) const
{
    for (auto& word : words) {
        word.text = Expand(std::move(word.text));
    }
    return words;
}

Words Folders::Contract(Words words) const
{
    for (auto& word : words) {
        word.text = ReplaceAll(std::move(word.text), app, "${APP}");
        word.text = ReplaceAll(std::move(word.text), dir, "${DIR}");
        word.text = ReplaceAll(std::move(word.text), here, "${HERE}");
    }
    return words;
}

Stage::Stage(fs::path scratch, const fs::path& database, const fs::path& here)
    : scratch_(std::move(scratch)), store_(scratch_)
{
    fs::create_directories(scratch_ / "app");
    fs::create_directories(scratch_ / "dir");
    fs::copy_file(database, DatabaseFile());
    fs::permissions(DatabaseFile(), fs::perms::owner_write, fs::perm_options::add);
    folders_.app = core::ProgramPath(scratch_ / "app");
    folders_.dir = core::ProgramPath(scratch_ / "dir");
    folders_.here = WithoutSeparatorAtEnd(core::ProgramPath(here));
    WriteSetting("Configuration", "ZarnVer", "1");
    WriteSetting("Configuration", "UOPath", folders_.dir + "\\");
    platform.SetForeground(platform.AddWindow("SDL_app", "ClassicUO"));
}

Stage::~Stage()
{
    std::error_code failure;
    fs::remove_all(scratch_, failure);
}

void Stage::WriteSetting(std::string_view section, std::string_view key, std::string_view text)
{
    store_->Write(section, key, text);
}

bool Stage::Arrange(const Step& step)
{
    return ArrangeDesktop(step) || ArrangeFiles(step) || ArrangeScripts(step);
}

bool Stage::ArrangeDesktop(const Step& step)
{
    const auto& words = step.arguments;
    switch (step.verb) {
    case Verb::Windows:
        platform.RemoveAllWindows();
        assist_ = 0;
        return true;
    case Verb::Window: platform.AddWindow(core::ToAnsi(words[0]), core::ToAnsi(words[1])); return true;
    case Verb::Front: BringForward(words[0] == "client"); return true;
    case Verb::Process:
        process_ = platform.AddProcess();
        platform.AddWindow(core::ToAnsi(words[0]), "", process_);
        return true;
    case Verb::Memory: platform.MapMemory(LastProcess(), Address(words[0]), Address(words[1])); return true;
    case Verb::Poke:
        for (std::size_t i = 1; i < words.size(); ++i) {
            platform.Poke(LastProcess(), Address(words[0]) + (i - 1) * sizeof(std::int32_t), Pattern32(words[i]));
        }
        return true;
    case Verb::Assist: SetAssist(words[0]); return true;
    case Verb::Another: components.anotherInstance = true; return true;
    default: return false;
    }
}

bool Stage::ArrangeFiles(const Step& step)
{
    const auto& words = step.arguments;
    switch (step.verb) {
    case Verb::Setting: WriteSetting(words[0], words[1], words[2]); return true;
    case Verb::Generation: WriteSetting("Configuration", "ZarnVer", words[0]); return true;
    case Verb::Unset: store_->Remove(words[0], words[1]); return true;
    case Verb::File: WriteBytes(HostFile(words[0]), TextBytes(step.text, folders_)); return true;
    case Verb::Bytes: {
        std::string bytes;
        std::for_each(words.begin() + 1, words.end(), [&](const auto& digits) { bytes += HexBytes(digits); });
        WriteBytes(HostFile(words[0]), bytes);
        return true;
    }
    case Verb::Copy: {
        const auto target = HostFile(words[1]);
        fs::create_directories(target.parent_path());
        fs::copy_file(HostFile(words[0]), target, fs::copy_options::overwrite_existing);
        return true;
    }
    case Verb::Folder: fs::create_directories(HostFile(words[0])); return true;
    case Verb::Delete: fs::remove(HostFile(words[0])); return true;
    default: return false;
    }
}

bool Stage::ArrangeScripts(const Step& step)
{
    const auto& words = step.arguments;
    switch (step.verb) {
    case Verb::Answer:
        std::transform(words.begin(), words.end(), std::back_inserter(boxes.answers),
                       [](const auto& word) { return word == "yes"; });
        return true;
    case Verb::Dialog:
        dialogs.results.push_back(words[0] == "cancel" ? std::nullopt : std::optional(ReplaceAll(words[0], "/", "\\")));
        return true;
    case Verb::Random:
        std::ranges::for_each(words, [&](const auto& draw) { uniform.Add(std::stod(draw)); });
        return true;
    case Verb::Limit: watch.SetLimit(ParseNumber(words[0]).value()); return true;
    case Verb::Trace: watch.SetTrace(words[0] == "on"); return true;
    default: return false;
    }
}

bool Stage::Answer(const Step& step)
{
    switch (step.verb) {
    case Verb::AskSetting:
        if (const auto text = store_->Find(step.arguments[0], step.arguments[1])) {
            recorder.Text("value", *text);
        } else {
            recorder.Bare("absent");
        }
        return true;
    case Verb::AskClipboard: recorder.Text("value", clipboard.Text()); return true;
    case Verb::AskFile: AskFile(step.arguments[0]); return true;
    case Verb::AskFiles: AskFolder(step.arguments[0]); return true;
    default: return false;
    }
}

void Stage::BringForward(bool client)
{
    platform.SetForeground(client ? client::FindClientWindow(platform) : 0);
}

void Stage::SetAssist(std::string_view result)
{
    platform.RemoveWindow(assist_);
    assist_ = 0;
    if (result != "none") {
        assist_ = platform.AddWindow(std::string(client::window_class::Assist), "");
        platform.SetAnswer(assist_, client::message::AssistPosition, Pattern32(std::string(result)));
    }
}

client::ProcessId Stage::LastProcess() const
{
    if (process_ == 0) {
        throw LineError("no process was added before");
    }
    return process_;
}

void Stage::AskFile(std::string_view path)
{
    const auto      file = HostFile(path);
    std::error_code failure;
    std::ifstream   stream(file, std::ios::binary);
    if (!fs::is_regular_file(file, failure) || !stream) {
        recorder.Bare("absent");
        return;
    }
    for (std::string line; std::getline(stream, line);) {
        if (line.ends_with('\r')) {
            line.pop_back();
        }
        recorder.Text("line", core::FromAnsi(line));
    }
}

void Stage::AskFolder(std::string_view path)
{
    std::error_code        failure;
    fs::directory_iterator folder(HostFile(path), failure);
    if (failure) {
        recorder.Bare("absent");
        return;
    }
    std::vector<std::string> names;
    for (const auto& entry : folder) {
        names.push_back(core::ProgramPath(entry.path().filename()));
    }
    std::sort(names.begin(), names.end());
    for (const auto& name : names) {
        recorder.Text("line", name);
    }
}

} // namespace qf::scenario
