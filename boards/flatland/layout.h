// Where the square board's elements stand on the form, in twips. The board
// keeps its geometry at every size: a smaller board is the top left corner of
// the full one.
#pragma once

#include "frame/helpers.h"

namespace vrask::flatland::layout {

inline constexpr double kCell = 960;       // a square's side
inline constexpr double kBoardTop = 720;   // the top edge of the board
inline constexpr double kCircle = 495;     // a circle's box
inline constexpr double kStripWide = 255;  // a line's hit strip, across the line
inline constexpr double kStripLong = 735;  // ... and along it

// Line `line` (1..180) from its first end to its second.
Segment lineAt(int line);
// The hit strip `Label1(line)` laid along the line, centred on it.
Rect stripAt(int line);
// The circle `Shape1(square)`, and the hit area `Label2(square)` over it.
Rect circleAt(int square);

// The form: the board on the left, the side panel on the right.
inline constexpr double kFormWidth = 17100;
inline constexpr double kFormHeight = 9900;

// The side panel, from here to the right edge.
inline constexpr double kSidePanelLeft = 9780;

}  // namespace vrask::flatland::layout
