#include "scenario/runner.h"

#include <algorithm>
#include <fstream>
#include <map>
#include <optional>
#include <ostream>
#include <sstream>
#include <vector>

#include "scenario/program_run.h"
#include "scenario/stage.h"

namespace qf::scenario {

namespace {

namespace fs = std::filesystem;

std::optional<std::string> ReadFile(const std::string& file)
{
    std::error_code failure;
    std::ifstream   stream(file, std::ios::binary);
    if (!fs::is_regular_file(file, failure) || !stream) {
        return std::nullopt;
    }
    std::ostringstream bytes;
    bytes << stream.rdbuf();
    return bytes.str();
}

Step Expanded(Step step, const Folders& folders)
{
    for (auto& word : step.arguments) {
        word = folders.Expand(std::move(word));
    }
    return step;
}

std::string LineOrNothing(const Words* words, const Folders& folders)
{
    return words != nullptr ? FormatWords(folders.Contract(*words)) : "nothing";
}

/// The first line in which a step's output is not the expected one.
std::optional<FileError> FirstDifference(const Step& step, const std::vector<Words>& recorded, const Folders& folders)
{
    const std::size_t lines = std::max(step.expected.size(), recorded.size());
    for (std::size_t i = 0; i < lines; ++i) {
        const Expectation* wanted = i < step.expected.size() ? &step.expected[i] : nullptr;
        const Words*       got = i < recorded.size() ? &recorded[i] : nullptr;
        const Words        words = wanted != nullptr ? folders.Expand(wanted->words) : Words();
        if (wanted == nullptr || got == nullptr || !Matches(words, *got)) {
            return FileError{wanted != nullptr ? wanted->line : step.line,
                             "expected " + LineOrNothing(wanted != nullptr ? &words : nullptr, folders) + ", got " +
                                 LineOrNothing(got, folders)};
        }
    }
    return std::nullopt;
}

} // namespace

struct Runner::Outcome {
    std::map<int, std::vector<std::string>> recorded; ///< by the last line of the step, as lines of a file
    std::optional<FileError>                failure;
};

Runner::Outcome Runner::Run(const std::string& file, const Scenario& scenario, bool compare)
{
    Outcome outcome;
    if (scenario.error) {
        outcome.failure = scenario.error;
        return outcome;
    }
    int line = scenario.line;
    try {
        Stage      stage(places_.scratch / std::to_string(++scenario_), places_.database,
                         fs::absolute(file).lexically_normal().parent_path());
        ProgramRun run(stage);
        for (const auto& step : scenario.steps) {
            line = step.line;
            const auto recorded = run.Do(Expanded(step, stage.Places()));
            for (const auto& words : recorded) {
                outcome.recorded[step.lastLine].push_back(FormatWords(stage.Places().Contract(words)));
            }
            if (compare) {
                outcome.failure = FirstDifference(step, recorded, stage.Places());
            }
            if (outcome.failure) {
                break;
            }
        }
    } catch (const std::exception& error) {
        outcome.failure = FileError{line, error.what()};
    }
    return outcome;
}

void Runner::Compare(const std::string& file)
{
    const auto text = ReadFile(file);
    if (!text) {
        Fail(out_, file, {0, "the file cannot be read"});
        return;
    }
    const auto parsed = ParseQfs(*text);
    for (const auto& error : parsed.errors) {
        Fail(out_, file, error);
    }
    for (const auto& scenario : parsed.scenarios) {
        const auto outcome = Run(file, scenario, true);
        if (outcome.failure) {
            Fail(out_, file, {outcome.failure->line, JsonString(scenario.name) + ": " + outcome.failure->message});
        } else {
            ++passed_;
        }
    }
}

void Runner::Print(const std::string& file)
{
    const auto text = ReadFile(file);
    if (!text) {
        Fail(errors_, file, {0, "the file cannot be read"});
        return;
    }
    const auto                              parsed = ParseQfs(*text);
    std::map<int, std::vector<std::string>> recorded;
    for (const auto& error : parsed.errors) {
        Fail(errors_, file, error);
    }
    for (const auto& scenario : parsed.scenarios) {
        auto outcome = Run(file, scenario, false);
        if (outcome.failure) {
            Fail(errors_, file, {outcome.failure->line, JsonString(scenario.name) + ": " + outcome.failure->message});
        }
        recorded.merge(outcome.recorded);
    }
    int number = 0;
    for (const auto& line : parsed.lines) {
        ++number;
        if (!IsExpectation(line)) {
            out_ << line << '\n';
        }
        if (const auto found = recorded.find(number); found != recorded.end()) {
            for (const auto& output : found->second) {
                out_ << "> " << output << '\n';
            }
        }
    }
}

void Runner::Fail(std::ostream& stream, const std::string& file, const FileError& error)
{
    ++failed_;
    stream << file << ':' << error.line << ": " << error.message << '\n';
}

} // namespace qf::scenario
