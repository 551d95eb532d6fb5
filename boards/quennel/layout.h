// Where the tetrahedron board's elements stand on the form, in twips. The
// solid is drawn once, in perspective, at the vertices' fixed coordinates;
// a turn of the view changes which real element each screen element shows,
// never where the screen element stands.
#pragma once

#include "boards/quennel/tables.h"
#include "frame/helpers.h"

namespace vrask::quennel::layout {

struct Rect {
  double left = 0, top = 0, width = 0, height = 0;
};
struct Segment {
  double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
};

// Line `LN(line)` between its two vertices.
Segment lineAt(int line);
// Its drawn width, 1 (far at the back) to 4 (in front).
int lineWidth(int line);
// The number label `sdfx(line)`, near the middle of the line; it is also the
// line's click target.
Rect lineLabelAt(int line);
// The circle `Shape1(face)` and its number label `Label12(face)`, near the
// middle of the face, held apart from the circles of the faces in front of
// and behind it so that none hides another.
Rect faceCircleAt(int face);

inline constexpr double kCircle = 420;
inline constexpr double kLabelWide = 330;
inline constexpr double kLabelHigh = 255;

inline constexpr double kFormWidth = 15720;
inline constexpr double kFormHeight = 10800;

// The side panel behind both columns.
inline constexpr Rect kSidePanel{8400, 0, kFormWidth - 8400, kFormHeight};

// First column: the game, the turn, the scores, moves, view, New.
inline constexpr double kColumnLeft = 8580;
inline constexpr double kColumnWidth = 3450;
inline constexpr double kLineHeight = 285;
inline constexpr Rect kGameName{kColumnLeft, 240, kColumnWidth, 540};
inline constexpr Rect kStatus{kColumnLeft, 840, kColumnWidth, 600};
inline constexpr double kScoreWidth = 1650;
inline constexpr double kRedScoreLeft = kColumnLeft + 1800;
inline constexpr double kScoreHeadingTop = 1560;
inline constexpr double kScoreTop = 1830;
inline constexpr double kScoreHeight = 720;
inline constexpr double kYourTurnTop = 2580;
inline constexpr Rect kMovesLeft{kColumnLeft, 3030, kColumnWidth, kLineHeight};
inline constexpr Rect kLastMove{kColumnLeft, 3330, kColumnWidth, kLineHeight};
inline constexpr Rect kViewLabel{kColumnLeft + 780, 3810, 1890, 390};
inline constexpr Rect kViewDown{kColumnLeft, 3810, 690, 390};
inline constexpr Rect kViewUp{kColumnLeft + 2760, 3810, 690, 390};
inline constexpr Rect kNewGame{kColumnLeft, 4440, 1650, 450};
inline constexpr Place kKeypadOpener{kColumnLeft + 1800, 4470};
// "GAME" "OVER" twice, in two rows, on their own backdrop.
inline constexpr Rect kGameOver{kColumnLeft, 5190, kColumnWidth, 1260};
inline constexpr double kGameOverRow = 600;
inline constexpr double kGameOverWidth = 1650;

// Second column: the round list, the keypad below it.
inline constexpr Place kRoundList{12150, 240};
inline constexpr Place kKeypad{12870, 3480};

}  // namespace vrask::quennel::layout
