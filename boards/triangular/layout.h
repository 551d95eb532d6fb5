// Where the triangular board's elements stand on the form, in twips. The
// hexagon keeps its geometry at every size: a smaller board is part of it.
#pragma once

#include "boards/triangular/tables.h"
#include "frame/helpers.h"

namespace vrask::triangular::layout {

struct Point {
  double x = 0, y = 0;
};

inline constexpr double kBoardTop = 720;    // the top row of points
inline constexpr double kRowStep = 1440;    // from one row of points to the next
inline constexpr double kPointStep = 1560;  // between two points of a row
inline constexpr double kCircle = 495;      // a circle's box
inline constexpr double kNumberDrop = 40;   // the cell's number, below the circle's top

Point pointAt(Vertex v);
// Line `line` (1..90) from its first end to its second.
Segment lineAt(int line);
// The hit area `Label1(line)`: a strip along a lying line, a box over the
// middle of a slanted one.
Rect stripAt(int line);
// The circle `Shape1(cell)`, centred in its triangle, and the hit area and
// number `Label2(cell)` over it.
Rect circleAt(int cell);
Rect numberAt(int cell);

// The form: the hexagon on the left, the side panel on the right.
inline constexpr double kFormWidth = 17700;
inline constexpr double kFormHeight = 10080;
inline constexpr double kSidePanelLeft = 10380;

// A second New under the round list, and the keypad moved down to make room.
inline constexpr double kNewRoundTop = 3240;
inline constexpr double kNewRoundWidth = 1650;
inline constexpr double kNewRoundHeight = 390;
inline Place keypadUnder(Place keypad) {
  return {keypad.left, keypad.top + 300};
}

}  // namespace vrask::triangular::layout
