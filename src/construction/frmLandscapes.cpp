#include "construction/frmLandscapes.h"

namespace qf::construction {

namespace {

constexpr ConstructionTraits traits{
    .name = "frmLandscapes", .caption = "Landscapes", .spacedTitle = "L A N D S C A P E S"};

} // namespace

frmLandscapes::frmLandscapes(ui::AppContext& context)
    : ConstructionPanel(context, traits), optType(*this, "optType"), optAddMethod(*this, "optAddMethod")
{
    const OptionPage page{.first = 0,
                          .count = static_cast<int>(LandscapeRows().size()),
                          .columns = 1,
                          .pieceButtons = "cmdType",
                          .pieceCaption = "Add single item"};
    auto*            types = MakeOptionGroup(
                   "fraType", "Landscape Type", optType, page,
                   [](int index) { return LandscapeRows()[static_cast<std::size_t>(index)].caption; },
                   [this](int index) { AddLandscapePiece(State(), index, Generation(), Outlet()); });
    auto* method = MakeOptionFrame("fraAddMethod", "Add method", optAddMethod, {"Point'n Click", "Coordinates"});

    auto* body = MakeBody({.kinds = types,
                           .choices = MakeColumn({method}),
                           .preview = MakePreviewFrame(),
                           .corners = MakeCoordinateFrame(),
                           .height = MakeBaseHeightFrame()});

    const CommandButton buttons[] = {
        {"cmdAdd", "Add", [this] { AddLandscape(State(), Generation(), Outlet()); }, "Lays the chosen ground"},
        WhereButton("Where?"),
        RemoveButton("cmdRemove"),
        WipeButton("Wipe Menu"),
    };
    Compose(body, MakeBottomRow(buttons));

    optType.onSelect = [this](int type) { Guard([this, type] { TypeChosen(type); }); };
    optAddMethod.onSelect = [this](int chosen) {
        Guard([this, chosen] { TakePlace(chosen == LandscapeCoordinates); });
    };
}

LandscapesState frmLandscapes::State() const
{
    return {.type = optType.Selected(), .method = optAddMethod.Selected(), .area = Area(), .tableForm = TableForm()};
}

void frmLandscapes::TypeChosen(int type)
{
    if (Context().settings.ItemPic) {
        const auto id = LandscapeTileId(type, TableForm());
        ShowItemId(id);
        DrawTile(id);
    }
}

} // namespace qf::construction
