#pragma once

#include <QCheckBox>

#include "construction/construction_panel.h"
#include "construction/stairs.h"
#include "ui/option_array.h"

namespace qf::construction {

class frmStairs final : public ConstructionPanel {
  public:
    explicit frmStairs(ui::AppContext& context);

    void Load() override;

  private:
    /// The two ends of a flight: their frame, options and box.
    struct FlightEnd {
        std::string_view                        frame;
        std::string_view                        caption;
        std::initializer_list<std::string_view> options;
        std::string_view                        label;
        std::string_view                        labelCaption;
        std::string_view                        box;
        int                                     firstStorey;
    };

    QGroupBox* MakeMaterialFrame();
    QGroupBox* MakeDirectionFrame();
    QGroupBox* MakeFlightEndFrame(const FlightEnd& end, ui::OptionArray& options);
    QGroupBox* MakeModeFrame();

    StairsState State() const;

    void ShowChosenTile(bool needsMaterial);
    void AddPiece(int material);
    void SetHeight(std::string_view box, int storey);
    void CurrentHeightChanged();
    void SingleItemChanged();

    ui::OptionArray optMaterial;
    ui::OptionArray optDir;
    ui::OptionArray optStairStart;
    ui::OptionArray optStairEnd;

    QGroupBox* fraStairStart = nullptr;
    QGroupBox* fraCustomEnd = nullptr;
    QCheckBox* singleCheck = nullptr;
    QCheckBox* repeatCheck = nullptr;
};

} // namespace qf::construction
