#pragma once

#include <QGridLayout>
#include <QGroupBox>
#include <QLayout>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "construction/chain.h"
#include "construction/commands.h"
#include "construction/height.h"
#include "core/generation.h"
#include "ui/option_array.h"
#include "ui/panel.h"
#include "ui/parts.h"
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

    /// The place buttons look at the box of Y, not X, to tell whether the place is known.
    bool testsY = false;

    /// Labels do the work of the place buttons.
    bool fetchesByLabels = false;

    /// A storey chosen with an empty base height takes the height from the client.
    bool fetchesEmptyHeight = true;

    /// The build height follows the base height as it is typed.
    bool heightFollows = true;
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

    /// What the body of a panel is made of, in the order in which the keyboard goes through it.
    struct Body {
        QWidget*   kinds;   ///< what may be added, on the left
        QLayout*   choices; ///< how it is added
        QGroupBox* preview; ///< the picture beside the choices
        QGroupBox* corners; ///< below them the coordinates
        QGroupBox* height;  ///< and the heights
    };
    static QLayout* MakeBody(const Body& body);

    /// Frames one below the other, as high as they need to be.
    static QLayout* MakeColumn(std::initializer_list<QWidget*> frames);

    /// "Coordinates": a row of X, Y and position button for each corner.
    QGroupBox* MakeCoordinateFrame();

    /// "Height": the base height with its button, the options of `storeys` and the custom height.
    QGroupBox* MakeHeightFrame(ui::OptionArray& storeys);

    /// "Height" with the base height alone.
    QGroupBox* MakeBaseHeightFrame();

    /// The first line of a height group: the base height with the button that takes it from the client.
    QLineEdit& AddBaseHeight(QWidget* frame, QGridLayout& layout);

    /// The picture of the chosen tile, in a place of its largest size.
    QWidget* MakePicture(QWidget* parent);

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
        std::string_view pieceCaption = ui::PlusCaption;
    };

    /// A page of options in columns, each with the button that adds one piece of it.
    QWidget* MakeOptionPage(QWidget* parent, ui::OptionArray& options, const OptionPage& page,
                            const std::function<std::string_view(int index)>& caption,
                            const std::function<void(int index)>&             addPiece);

    /// The same in a frame with a caption.
    QGroupBox* MakeOptionGroup(std::string_view name, std::string_view caption, ui::OptionArray& options,
                               const OptionPage& page, const std::function<std::string_view(int index)>& captionOf,
                               const std::function<void(int index)>& addPiece);

    /// The panel's own buttons, the chain steps whose panels exist, and "Exit".
    QLayout* MakeBottomRow(std::span<const CommandButton> buttons);

    CommandButton WhereButton(std::string_view caption);
    CommandButton RemoveButton(std::string_view name);
    CommandButton WipeButton(std::string_view caption);

    /// What a closed box shows in place of nothing.
    static constexpr const char* NotApplicable = "N/A";

    /// Opens one box: enabled, in the info colour, a "N/A" emptied; closes one: disabled, the placeholder where it
    /// is empty.
    static void OpenBox(QLineEdit& box);
    static void CloseBox(QLineEdit& box, const char* placeholder = NotApplicable);

    /// Opens the boxes for coordinates: enabled, in the info colour, a "N/A" emptied.
    void OpenBoxes();

    /// Closes the boxes, whose place is picked in the client: disabled, "N/A" where they are empty and "0"
    /// for an empty base height.
    void CloseBoxes();

    /// The controls that take the player's place, in the order of the corners, and his height.
    enum class Fetch { Corner1, Corner2, Height };
    void EnableFetch(Fetch fetch, bool enabled);

    /// Opens or closes the boxes for coordinates and all three of these controls.
    void TakePlace(bool takesPlace);

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
    std::string_view        FetchName(Fetch fetch) const;
    QWidget*                MakeFetch(QWidget* parent, Fetch fetch);

    void ApplyStorey(int storey);
    void HeightChanged();
    void CopyItemId();
    void Step(const ChainStep& step);

    ConstructionTraits     traits_;
    core::ServerGeneration tableForm_;
    ui::OptionArray*       storeys_ = nullptr;
    ui::PictureSurface*    pctMain_ = nullptr;
};

} // namespace qf::construction
