#include "scenario/program_run.h"

#include <algorithm>
#include <memory>

#include "core/runtime_error.h"
#include "scenario/event_loop.h"
#include "world/database.h"

namespace qf::scenario {

ProgramRun::Process::Process(Stage& stage)
    : control(stage.recorder, stage.watch),
      environment{stage.Settings(), stage.platform,   stage.boxes, stage.dialogs, stage.clipboard,
                  stage.shell,      stage.components, control,     stage.uniform, stage.Places().app},
      application(environment)
{}

ProgramRun::~ProgramRun()
{
    Leave();
}

std::vector<Words> ProgramRun::Do(const Step& step)
{
    stage_.recorder.Shut(false);
    stage_.watch.BeginStep();
    if (!stage_.Arrange(step) && !stage_.Answer(step)) {
        DoWithProgram(step);
    }
    Settle();
    return stage_.recorder.Take();
}

void ProgramRun::DoWithProgram(const Step& step)
{
    switch (step.verb) {
    case Verb::Start:
        if (!started_) {
            Start();
        }
        return;
    case Verb::Restart:
        Leave();
        Start();
        return;
    case Verb::Open: Open(step.arguments.front()); return;
    case Verb::AskSql: Query(step.arguments.front()); return;
    default: break;
    }
    if (process_) {
        process_->control.Run([&] { Driver(process_->application.Context(), stage_.recorder).Do(step); });
    } else if (!started_) {
        AnswerWithoutProgram(step);
    }
}

void ProgramRun::AnswerWithoutProgram(const Step& step)
{
    const auto panels = app::AllPanels();
    const auto asked = step.verb == Verb::Get ? ParsePropertyReference(step.arguments.front()) : std::nullopt;
    if (asked && IsPanelFlag(asked->property) &&
        std::ranges::find(panels, asked->control, &ui::PanelEntry::name) != panels.end()) {
        stage_.recorder.Text("value", "0");
    } else {
        stage_.recorder.Bare("unknown");
    }
}

void ProgramRun::Start()
{
    started_ = true;
    process_ = std::make_unique<Process>(stage_);
    process_->control.Run([this] { process_->application.Main(); });
}

void ProgramRun::Open(const std::string& panel)
{
    if (!started_) {
        Start();
    }
    if (!process_ || process_->control.HasEnded()) {
        return;
    }
    auto& panels = process_->application.Context().panels;
    if (panels.Has(panel)) {
        process_->control.Run([&] { panels.Show(panel); });
    } else {
        stage_.recorder.Bare("unknown");
    }
}

void ProgramRun::Query(const std::string& statement)
{
    try {
        std::unique_ptr<world::Database> own;
        auto*                            database = process_ ? process_->application.Context().database : nullptr;
        if (database == nullptr) {
            own = world::Database::Open(stage_.DatabaseFile());
            database = own.get();
        }
        for (const auto& fields : database->Query(statement)) {
            std::string row;
            for (const auto& field : fields) {
                row += (&field == &fields.front() ? "" : "|") + field;
            }
            stage_.recorder.Text("row", row);
        }
    } catch (const core::RuntimeError& error) {
        throw LineError("the query fails: " + error.Description());
    }
}

void ProgramRun::Settle()
{
    RunUntilIdle();
    stage_.watch.Flush();
    if (process_ && !process_->control.Stray().empty()) {
        throw LineError("a handler let an exception through: " + process_->control.Stray());
    }
    if (process_ && process_->control.HasEnded()) {
        Leave();
    }
}

void ProgramRun::Leave()
{
    if (!process_) {
        return;
    }
    // What panels do while they are taken down is nothing that the process did.
    const bool shut = stage_.recorder.IsShut();
    stage_.recorder.Shut(true);
    process_.reset();
    RunUntilIdle();
    stage_.recorder.Shut(shut);
}

} // namespace qf::scenario
