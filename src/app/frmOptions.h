#pragma once

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "app/options.h"
#include "ui/option_array.h"
#include "ui/panel.h"
#include "ui/path_box.h"

namespace qf::app {

/// The configuration: shows and saves the settings, and calibrates. Other panels look at its boxes without
/// showing it, so an instance usually stays loaded, hidden.
class frmOptions final : public ui::Panel {
  public:
    explicit frmOptions(ui::AppContext& context);

    void Load() override;
    void Unload() override;

  private:
    /// A path, the dialog that browses for it, and whether the box takes the file's folder or the file.
    struct PathRow {
        std::string_view box;
        std::string_view label;
        std::string_view button;
        std::string_view title;
        std::string_view fileName;
        std::string_view filter;
        bool             takesFolder;
    };

    static const PathRow pathRows[];

    QWidget*   MakePaths();
    QWidget*   MakeClient();
    QWidget*   MakeServer();
    QWidget*   MakeCalibration();
    QLayout*   MakeBottomRow();
    QCheckBox* MakeCheck(QWidget* parent, std::string_view name, std::string_view caption, std::string_view toolTip,
                         std::function<void()> handler = {});

    void FillBoxes();
    void Browse(const PathRow& row, ui::PathBox& box);
    void ClassicClicked();
    void ThirdDawnClicked();
    void Save();
    void CalibrateHere();
    void ShowCalibrationState(std::string_view text, const QColor& colour);

    ui::PathBox& Path(std::string_view name) const;
    OptionsState State() const;

    ui::OptionArray optZarnVer;
    QLineEdit*      txtCommandPrefix;
    QCheckBox*      chkItemPics;
    QCheckBox*      ChkStayOnTop;
    QCheckBox*      chkUseTD;
    QCheckBox*      chkUseClassicUO;
    QCheckBox*      chkUseVista;
    QLabel*         lblCalibrate;

    /// The boxes of the place and their labels, of no use with ClassicUO.
    std::vector<QWidget*> placeControls_;

    bool dirty_ = false;
};

} // namespace qf::app
