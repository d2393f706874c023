#pragma once

#include <optional>
#include <span>
#include <vector>

namespace qf::gamedata {

// Where everything of the item explorer stands, in pixels.

/// The side of a cell, its border included.
inline constexpr int CellSide = 75;

/// How many cells the panel makes at its load.
inline constexpr int InitialCells = 101;

/// What of the panel's inner width is beside the viewport.
inline constexpr int RoomBesideViewport = 25;

/// The upper left corner of a cell on the grid.
struct CellPlace {
    int left = 0;
    int top = 0;

    friend bool operator==(const CellPlace&, const CellPlace&) = default;
};

/// The places of the first cells on a grid seen through a viewport of this width.
std::vector<CellPlace> InitialPlaces(int viewportWidth);

/// The place of a cell that is made while a category is drawn, beside or below the cell before it, at a gap
/// of 5. `firstLeft` is the left of cell 0, `panelWidth` the panel's inner width.
CellPlace PlaceOfNewCell(CellPlace previous, int firstLeft, int panelWidth);

/// The places of all cells of a list after a resize; cell 0 has its place also where the list is empty.
std::vector<CellPlace> PlacesAfterResize(int count, int viewportWidth);

/// The height of the grid with its first cells.
int InitialGridHeight(CellPlace last);

/// The height of a grid whose last shown cell stands there: at least the viewport's.
int GridHeight(CellPlace last, int viewportHeight);

/// The scroll bar's maximum, which is not negative.
int ScrollMaximum(int gridHeight, int viewportHeight);

/// The scroll bar's value behind one notch of the wheel.
int ScrolledByNotch(int value, bool up, int pageStep, int maximum);

/// The scroll bar's value at which a cell is wholly seen, as near to the given one as can be.
int ScrolledToCell(int value, CellPlace cell, int viewportHeight);

/// The two axes along which the arrow keys move.
enum class Step { Left, Right, Up, Down };

/// The cell beside this one; above and below it is the nearest of the next row. Nothing at the grid's edge.
std::optional<int> Neighbour(std::span<const CellPlace> places, int cell, Step step);

/// The widths of the controls that are placed by them.
struct ControlWidths {
    int scrollBar = 0;
    int wipe = 0;
    int remove = 0;
};

/// What a resize of the panel decides; everything else stays where it is.
struct ControlPlaces {
    int viewportWidth = 0;
    int viewportHeight = 0;
    int scrollBarLeft = 0;
    int exitLeft = 0;
    int wipeLeft = 0;
    int removeLeft = 0;
    int modelRowTop = 0;
    int statusTextTop = 0;
    int progressTop = 0;
};

ControlPlaces PlaceControls(int panelWidth, int panelHeight, const ControlWidths& widths);

} // namespace qf::gamedata
