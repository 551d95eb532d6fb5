// Where the triangular board's elements stand on the form, in twips. The
// hexagon keeps its geometry at every size: a smaller board is part of it.
#pragma once

#include "boards/triangular/tables.h"
#include "frame/helpers.h"

namespace vrask::triangular::layout {

// The form: the hexagon on the left, the side panel on the right from
// kSidePanelLeft.
inline constexpr double kFormWidth = 17700, kFormHeight = 10080, kSidePanelLeft = 10380;

// A second New under the round list, and the keypad moved down to make room.
inline Rect newRoundUnder(Place rounds) {
  return {rounds.left, 3240, 1650, 390};
}
inline Place keypadUnder(Place keypad) {
  return {keypad.left, keypad.top + 300};
}

struct Point {
  double x = 0, y = 0;
};

// Where a point of the hexagon stands: rows 1440 twips apart from 720 down,
// points 1560 apart in a row.
Point pointAt(Vertex v);

// Line `line` (1..90) from its first end to its second; its hit area
// `Label1(line)`, a strip along a lying line or a box over the middle of a
// slanted one; the circle `Shape1(cell)`, centred in its triangle; and the
// hit area and number `Label2(cell)` over it, 40 twips lower.
Segment lineAt(int line);
Rect stripAt(int line);
Rect circleAt(int cell);
Rect numberAt(int cell);

}  // namespace vrask::triangular::layout
