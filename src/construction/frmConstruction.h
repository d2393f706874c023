#pragma once

#include <QBoxLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "construction/commands.h"
#include "construction/height.h"
#include "core/generation.h"
#include "ui/option_array.h"
#include "ui/panel.h"
#include "ui/picture_surface.h"

namespace qf::construction {

/// How a panel of the chain differs from its neighbours.
struct ConstructionTraits {
    std::string_view name;
    std::string_view caption;
    std::string_view spacedTitle;
    std::string_view heightBox = "txtCurrentHeight";
    bool             sharesArea = true;
    LoneMinus        loneMinus = LoneMinus::NoNumber;
};

/// The frame of the construction panels: the corners, the base height and the build height, the shown tile,
/// the shared buttons, the steps to the neighbours, and the shared area that is taken at load and given
/// back at the end.
class ConstructionPanel : public ui::Panel {
  public:
    ConstructionPanel(ui::AppContext& context, const ConstructionTraits& traits);

    void Load() override;
    void Unload() override;

    /// The two corners and the base height as they stand in the boxes; a box that the panel lacks is empty.
    AreaTexts Area() const;
    void      SetArea(const AreaTexts& texts);

  protected:
    /// A button of the bottom row: its name, its caption and what its click does.
    struct CommandButton {
        std::string_view      name;
        std::string_view      caption;
        std::function<void()> handler;
        std::string_view      toolTip = {};
    };

    core::ServerGeneration Generation() { return Context().generation; }

    /// The generation at the panel's load, which the tile IDs keep the form of.
    core::ServerGeneration TableForm() const { return tableForm_; }

    /// The title above `body`, and both with the bottom row as the panel's layout.
    void Compose(QLayout* body, QLayout* bottomRow);

    /// "Coordinates": a row of X, Y and position button for each corner.
    QGroupBox* MakeCoordinateFrame();

    /// "Height": the base height with its button, the storeys of `optHeight` and the custom height.
    QGroupBox* MakeHeightFrame(ui::OptionArray& storeys);

    /// The first line of a height group: the base height with the button that takes it from the client.
    QLineEdit& AddBaseHeight(QWidget* frame, QGridLayout& layout);

    /// The picture of the chosen tile with its ID below it.
    QGroupBox* MakePreviewFrame();

    /// A frame that holds the members of a small option array one below the other.
    QGroupBox* MakeOptionFrame(std::string_view name, std::string_view caption, ui::OptionArray& options,
                               std::initializer_list<std::string_view> captions);

    /// Which members of an option array lie on a page, and in how many columns. `pieceButtons` is the array of
    /// the small buttons beside them; without a name there are none.
    struct OptionPage {
        int              first = 0;
        int              count = 0;
        int              columns = 1;
        std::string_view pieceButtons = {};
    };

    /// A page of options in columns, each with the button that adds one piece of it.
    QWidget* MakeOptionPage(QWidget* parent, ui::OptionArray& options, const OptionPage& page,
                            const std::function<std::string_view(int index)>& caption,
                            const std::function<void(int index)>&             addPiece);

    /// The panel's own buttons, the chain steps whose panels exist, and "Exit".
    QLayout* MakeBottomRow(std::span<const CommandButton> buttons);

    CommandButton WhereButton(std::string_view caption);
    CommandButton RemoveButton(std::string_view name);
    CommandButton WipeButton(std::string_view caption);

    /// Opens the boxes for coordinates: enabled, in the info colour, a "N/A" emptied.
    void OpenBoxes();

    /// Closes the boxes, whose place is picked in the client: disabled, "N/A" where they are empty and "0"
    /// for an empty base height.
    void CloseBoxes();

    /// Enables or disables one of the buttons that take the player's place.
    void EnableFetch(std::string_view button, bool enabled);

    /// Shows the ID text of the chosen tile.
    void        ShowItemId(const std::string& idText);
    std::string ItemId() const;

    /// Draws the tile that an ID text of the panel's tables names, where "See Item Pics" is on; an empty
    /// entry leaves the picture as it is.
    void DrawTile(const std::string& idText);
    void DrawTile(std::int32_t number);

    /// Shows a tile by its number: "0x" with upper-case hexadecimal without leading zeros in either
    /// generation, and its picture.
    void ShowTileNumber(std::int32_t number);

    std::string CustomHeight() const;

  private:
    std::vector<QLineEdit*> AreaBoxes() const;
    QLineEdit*              FindBox(std::string_view name) const;

    void ApplyStorey(int storey);
    void HeightChanged();
    void CopyItemId();
    void Step(std::string_view target, bool copiesArea);

    ConstructionTraits     traits_;
    core::ServerGeneration tableForm_;
    ui::OptionArray*       storeys_ = nullptr;
    ui::PictureSurface*    pctMain_ = nullptr;
};

} // namespace qf::construction
