#pragma once

#include <memory>
#include <string>
#include <vector>

#include "app/application.h"
#include "scenario/driver.h"
#include "scenario/stage.h"

namespace qf::scenario {

/// A scenario as it runs: its stage, and the run of the program on it, where there is one.
class ProgramRun {
  public:
    explicit ProgramRun(Stage& stage) : stage_(stage) {}
    ~ProgramRun();
    ProgramRun(const ProgramRun&) = delete;
    ProgramRun& operator=(const ProgramRun&) = delete;

    /// Does a step, its words replaced already, and gives what it recorded until the program is idle.
    /// Throws LineError where the step cannot be done.
    std::vector<Words> Do(const Step& step);

  private:
    /// Everything that ends with the process.
    struct Process {
        explicit Process(Stage& stage);

        RecordingProcess control;
        ui::Environment  environment;
        app::Application application;
    };

    void DoWithProgram(const Step& step);
    void AnswerWithoutProgram(const Step& step);
    void Start();
    void Open(const std::string& panel);
    void Query(const std::string& statement);
    void Settle();
    void Leave();

    Stage&                   stage_;
    std::unique_ptr<Process> process_;
    bool                     started_ = false;
};

} // namespace qf::scenario
