#pragma once

#include <QObject>
#include <optional>
#include <string>
#include <string_view>

#include "scenario/qfs_file.h"
#include "scenario/recorder.h"
#include "ui/app_context.h"

class QWidget;

namespace qf::ui {
class Panel;
}

namespace qf::scenario {

/// Does the steps of a user on the panels of one run of the program, and reads what they show.
class Driver {
  public:
    Driver(ui::AppContext& context, Recorder& recorder) : context_(context), recorder_(recorder) {}

    /// Does a step that acts on a panel or asks one. Throws LineError where the step is none of these.
    void Do(const Step& step);

  private:
    struct Target {
        ui::Panel* panel = nullptr;
        QObject*   object = nullptr;
    };

    Target Find(std::string_view name) const;
    bool   MayReach(const Step& step, const Target& target);
    void   Act(const Step& step, const Target& target);
    bool   ActOnPanel(const Step& step, ui::Panel& panel);
    bool   ActOnControl(const Step& step, const Target& target);
    void   DoubleClick(const Target& target, QWidget& widget);
    void   Click(const Target& target);
    void   ActivateButton(ui::Panel& panel, QWidget& widget);
    void   Ask(const Step& step);
    void   Get(const PropertyReference& reference);
    void   Answer(const std::optional<std::string>& value);

    std::string* SharedText(std::string_view name);
    void         DoOnSharedText(const Step& step, std::string& text);

    ui::AppContext& context_;
    Recorder&       recorder_;
};

} // namespace qf::scenario
