#include "scenario/doubles.h"

#include <filesystem>

#include "client/delivery.h"
#include "core/ansi.h"
#include "core/host_path.h"
#include "core/product.h"
#include "core/text.h"

namespace qf::scenario {

namespace {

using Kind = client::PlatformCall::Kind;

/// Whether a call begins or goes on typing a command; the end of its Enter key does not.
bool IsTyping(const client::PlatformCall& call)
{
    switch (call.kind) {
    case Kind::Activate:
    case Kind::BringToForeground:
    case Kind::Pause: return true;
    case Kind::Post: return call.numbers.front() != client::message::KeyUp;
    default: return false;
    }
}

std::string WithFullLineBreaks(std::string_view text)
{
    return ReplaceAll(ReplaceAll(std::string(text), "\r\n", "\n"), "\n", "\r\n");
}

} // namespace

DeliveryWatch::DeliveryWatch(client::SimulatedPlatform& platform, Recorder& recorder)
    : platform_(platform), recorder_(recorder)
{
    platform_.KeepLog(false);
    platform_.observer = [this](const client::PlatformCall& call) { Hear(call); };
}

void DeliveryWatch::BeginStep()
{
    sent_ = 0;
    boxes_ = 0;
}

void DeliveryWatch::Flush()
{
    for (const auto& line : platform_.TakeLines()) {
        ++sent_;
        if (!trace_) {
            recorder_.Text("send", core::FromAnsi(line));
        }
    }
}

void DeliveryWatch::CountBox()
{
    if (client::FindClientWindow(platform_) == 0 && ++boxes_ > limit_) {
        throw LimitReached();
    }
}

void DeliveryWatch::SetTrace(bool trace)
{
    Flush();
    trace_ = trace;
}

void DeliveryWatch::Hear(const client::PlatformCall& call)
{
    if (!IsTyping(call)) {
        if (trace_ && call.kind == Kind::Post) {
            RecordCall(call);
        }
        return;
    }
    Flush();
    if (sent_ >= limit_) {
        throw LimitReached();
    }
    if (trace_) {
        RecordCall(call);
    }
}

void DeliveryWatch::RecordCall(const client::PlatformCall& call)
{
    Words line;
    switch (call.kind) {
    case Kind::Activate: line.push_back({"activate"}); break;
    case Kind::BringToForeground: line.push_back({"foreground"}); break;
    case Kind::Pause: line.push_back({"pause"}); break;
    default: line.push_back({"post"}); break;
    }
    for (const auto number : call.numbers) {
        line.push_back({std::to_string(number)});
    }
    recorder_.Add(std::move(line));
}

void RecordingBoxes::Record(const core::Message& message)
{
    watch_.Flush();
    watch_.CountBox();
    const std::string title = message.title ? *message.title : std::string(core::ThisProduct.title);
    recorder_.Add({{"box"},
                   {std::to_string(static_cast<int>(message.style))},
                   {title, true},
                   {WithFullLineBreaks(message.text), true}});
}

void RecordingBoxes::Show(const core::Message& message)
{
    Record(message);
}

bool RecordingBoxes::Ask(const core::Message& message)
{
    Record(message);
    if (answers.empty()) {
        return true;
    }
    const bool answer = answers.front();
    answers.pop_front();
    return answer;
}

std::string ScriptedDialogs::OpenFile(const ui::FileDialogRequest& request)
{
    if (results.empty()) {
        return request.fileName;
    }
    const auto result = results.front();
    results.pop_front();
    return result.value_or(request.fileName);
}

void RecordingShell::OpenAddress(std::string_view address)
{
    watch_.Flush();
    recorder_.Text("browse", address);
}

void RecordingShell::EnterFolder(std::string_view folder)
{
    // The runner stays where it was started: its files are named from there.
    std::error_code failure;
    if (folder.empty() || !std::filesystem::is_directory(core::HostPath(folder), failure)) {
        throw core::RuntimeError(core::error::PathNotFound);
    }
}

void RecordingShell::StartProgram(std::string_view program, std::string_view folder)
{
    EnterFolder(folder);
    // A name without a folder is looked for where the program is to run.
    const bool named = core::LastBackslash(program) == 0;
    const auto file =
        named ? core::HostPath(std::string(folder) + "\\" + std::string(program)) : core::HostPath(program);
    std::error_code failure;
    if (!std::filesystem::is_regular_file(file, failure)) {
        throw core::RuntimeError(core::error::FileNotFound);
    }
    watch_.Flush();
    recorder_.Add({{"run"}, {std::string(program), true}, {std::string(folder), true}});
}

void RecordingProcess::OnEnd()
{
    watch_.Flush();
    recorder_.Bare("end");
}

void RecordingProcess::OnFailure(const core::RuntimeError& error)
{
    watch_.Flush();
    recorder_.Add({{"error"}, {std::to_string(error.Number())}, {error.Description(), true}});
}

void RecordingProcess::OnForeignException()
{
    try {
        throw;
    } catch (const LimitReached&) {
        watch_.Flush();
        recorder_.Bare("limit");
        // What the handlers around the stopped one still do belongs to no step that was asked for.
        recorder_.Shut(true);
    } catch (const std::exception& error) {
        stray_ = error.what();
    }
}

} // namespace qf::scenario
