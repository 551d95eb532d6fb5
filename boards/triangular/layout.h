// Where the triangular board's elements stand on the form, in twips. The
// hexagon keeps its geometry at every size: a smaller board is part of it.
#pragma once

#include "boards/triangular/tables.h"
#include "frame/helpers.h"

namespace vrask::triangular::layout {

struct Rect {
  double left = 0, top = 0, width = 0, height = 0;
};
struct Segment {
  double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
};
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

// The form: the hexagon on the left, two side columns on the right.
inline constexpr double kFormWidth = 17700;
inline constexpr double kFormHeight = 10080;

inline constexpr Rect kSidePanel{10380, 0, kFormWidth - 10380, kFormHeight};

// First column: the game, the turn, the scores, the sizes, New.
inline constexpr double kColumnLeft = 10560;
inline constexpr double kColumnWidth = 3450;
inline constexpr Rect kGameName{kColumnLeft, 240, kColumnWidth, 330};
inline constexpr Rect kStatus{kColumnLeft, 630, kColumnWidth, 600};
inline constexpr double kScoreWidth = 1650;
inline constexpr double kRedScoreLeft = kColumnLeft + 1800;
inline constexpr double kScoreHeadingTop = 1380;
inline constexpr double kScoreTop = 1650;
inline constexpr double kScoreHeight = 720;
inline constexpr double kYourTurnTop = 2400;
inline constexpr double kLineHeight = 285;
inline constexpr Rect kMovesLeft{kColumnLeft, 2850, kColumnWidth, kLineHeight};
inline constexpr Rect kLastMove{kColumnLeft, 3150, kColumnWidth, kLineHeight};
inline constexpr Rect kSizeHeading{kColumnLeft, 3570, kColumnWidth, kLineHeight};
inline constexpr double kSizeTop = 3870;
inline constexpr double kSizeWidth = 600;
inline constexpr double kSizeHeight = 390;
inline constexpr double kSizeStep = 690;
inline constexpr Rect kNewGame{kColumnLeft, 4500, 1650, 450};
inline constexpr Place kKeypadOpener{kColumnLeft + 1800, 4530};
// "GAME" "OVER" twice, in two rows.
inline constexpr double kGameOverTop = 5250;
inline constexpr double kGameOverRow = 600;
inline constexpr double kGameOverWidth = 1650;
inline constexpr Rect kTimeHeading{kColumnLeft, 6600, kColumnWidth, kLineHeight};
inline constexpr Place kTimeBar{kColumnLeft, 6930};
// Working elements that show nothing.
inline constexpr Rect kHidden{kColumnLeft, 9000, 1200, 255};

// Second column: the round list, a second New under it, the keypad.
inline constexpr Place kRoundList{14130, 240};
inline constexpr Rect kNewRound{14130, 3240, 1650, 390};
inline constexpr Place kKeypad{14850, 3780};

}  // namespace vrask::triangular::layout
