#pragma once

#include <filesystem>
#include <iosfwd>
#include <string>

#include "scenario/qfs_file.h"

namespace qf::scenario {

/// Where a run of scenarios finds and puts things.
struct RunnerPlaces {
    std::filesystem::path scratch;  ///< an existing folder for the scenarios' own
    std::filesystem::path database; ///< the empty world database
};

/// Runs scenario files and compares or prints what they record.
class Runner {
  public:
    /// Failures go to `out` while comparing, to `errors` while printing.
    Runner(RunnerPlaces places, std::ostream& out, std::ostream& errors)
        : places_(std::move(places)), out_(out), errors_(errors)
    {}

    /// Runs a file and writes one line for each scenario that fails.
    void Compare(const std::string& file);

    /// Runs a file and writes its lines with the recorded ones in the place of the expected ones.
    void Print(const std::string& file);

    int Passed() const { return passed_; }
    int Failed() const { return failed_; }

  private:
    void Fail(std::ostream& stream, const std::string& file, const FileError& error);

    /// What a scenario's steps recorded, up to the one that fails where one does.
    struct Outcome;
    Outcome Run(const std::string& file, const Scenario& scenario, bool compare);

    RunnerPlaces  places_;
    std::ostream& out_;
    std::ostream& errors_;
    int           passed_ = 0;
    int           failed_ = 0;
    int           scenario_ = 0;
};

} // namespace qf::scenario
