// Where the tetrahedron board's elements stand on the form, in twips. The
// solid is drawn once, in perspective, at the vertices' fixed coordinates;
// a turn of the view changes which real element each screen element shows,
// never where the screen element stands.
#pragma once

#include <array>

#include "boards/quennel/tables.h"
#include "frame/helpers.h"

namespace vrask::quennel::layout {

// A line `LN(line)` runs between its two vertices, where `vertices()` puts
// them; the labels and circles stand in boxes.
using vrask::Rect;

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

// The first column, top to bottom, each row across its width.
inline constexpr double kColumnLeft = 8580;
inline constexpr double kColumnWidth = 3450;
constexpr Rect acrossColumn(double top, double height) {
  return {kColumnLeft, top, kColumnWidth, height};
}
inline constexpr Rect kGameName = acrossColumn(240, 540);
inline constexpr Rect kStatus = acrossColumn(840, 600);
// Blue's name, points and turn flag one under the other at the left, Red's
// at the right.
inline constexpr double kScoreWidth = 1650;
inline constexpr std::array<double, 2> kScoreLefts{kColumnLeft, kColumnLeft + 1800};
inline constexpr std::array<double, 3> kScoreTops{1560, 1830, 2580};
inline constexpr std::array<double, 3> kScoreHeights{285, 720, 285};
inline constexpr Rect kMovesLeft = acrossColumn(3030, 285);
inline constexpr Rect kLastMove = acrossColumn(3330, 285);
// The view between the buttons that turn it; New and the keypad's opener.
inline constexpr double kViewTop = 3810;
inline constexpr Rect kViewDown{kColumnLeft, kViewTop, 690, 390};
inline constexpr Rect kViewLabel{kColumnLeft + 780, kViewTop + 45, 1890, 345};
inline constexpr Rect kViewUp{kColumnLeft + 2760, kViewTop, 690, 390};
inline constexpr Rect kNewGame{kColumnLeft, 4440, 1650, 450};
inline constexpr Place kKeypadOpener{kColumnLeft + 1800, 4470};
// "GAME" "OVER" twice, in two rows of two, on their own backdrop.
inline constexpr Rect kGameOver = acrossColumn(5190, 1260);
inline constexpr double kGameOverRow = 600;
inline constexpr double kGameOverWidth = 1650;

// Second column: the round list, the keypad below it.
inline constexpr Place kRoundList{12150, 240};
inline constexpr Place kKeypad{12870, 3480};

}  // namespace vrask::quennel::layout
