#pragma once

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTabWidget>

#include "ui/panel.h"

namespace qf::app {

/// The navigator: one button for every tool, and the end of the program.
class frmMain final : public ui::Panel {
  public:
    explicit frmMain(ui::AppContext& context);

    void Load() override;
    void Unload() override;

  private:
    enum class Opens { Beside, Minimised, Modal, AfterLoad };

    /// A button that opens a tool and how it does so.
    struct Tool {
        std::string_view button;
        std::string_view caption;
        std::string_view panel;
        Opens            how;
        std::string_view hint;
    };

    static const Tool constructionTools[];
    static const Tool placementTools[];
    static const Tool worldTools[];
    static const Tool programTools[];

    void         Layout();
    QPushButton* MakeToolButton(QWidget* parent, const Tool& tool);
    void         OpenTool(const Tool& tool);
    void         LoadWorldAndOpen(const Tool& tool);
    void         LoadWorld();
    QWidget*     MakeFirstSteps();

    void RestorePosition();
    void SavePosition();
    void PlaceTitle();

    QTabWidget*   SSTab1;
    QLabel*       lblTitle;
    QPushButton*  cmdLoadWorldFiles = nullptr;
    QProgressBar* barLoad;
};

} // namespace qf::app
