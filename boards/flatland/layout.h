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

// The form: the board on the left, two side columns on the right.
inline constexpr double kFormWidth = 17100;
inline constexpr double kFormHeight = 9900;

// The side panel behind both columns.
inline constexpr Rect kSidePanel{9780, 0, kFormWidth - 9780, kFormHeight};

// First column: the game, the turn, the scores, the sizes, New.
inline constexpr double kColumnLeft = 9960;
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

// Second column: the round list, the keypad below it.
inline constexpr Place kRoundList{13530, 240};
inline constexpr Place kKeypad{14250, 3480};

}  // namespace vrask::flatland::layout
