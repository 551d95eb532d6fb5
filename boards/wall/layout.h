// Where the wall board's elements stand on the form, in twips. The wall is
// drawn as a solid seen from the front, a little from above and from the
// right: the back stands a third of a cube up and to the right of the front.
// Every level fills the same room, so a smaller wall has bigger cubes; the
// circle of a square stands in the middle of its face, clear of every line
// it doesn't own.
#pragma once

#include <vector>

#include "frame/helpers.h"

namespace vrask::wall::layout {

struct Point {
  double x = 0, y = 0;
};

// The room of the wall: a square on the left of the form.
inline constexpr double kBoardLeft = 300;
inline constexpr double kBoardTop = 360;
inline constexpr double kBoardSpan = 8760;
// How far the back stands from the front, in cubes, across and up.
inline constexpr double kDepth = 1.0 / 3;

// The side of a cube on the wall of level `bd`.
double cubeOf(int bd);
// Line `line` (1..156) on the wall of level `bd`, from its first end to its
// second.
Segment lineAt(int line, int bd);
// The middle of the face of `square` (1..110).
Point middleOf(int square, int bd);
// The circle `Shape1(10 square)`.
Rect circleAt(int square, int bd);
// The click target `Label9(square)`: round the circle, a little larger, its
// top where the number it shows with the grid on is centred on the circle.
Rect targetAt(int square, int bd);
// The size of the numbers `Label9` shows, in points.
double numberSizeOf(int bd);

// The faces of the solid, to shade: the front as a rectangle, and the top and
// the right end as strokes that fill them, side by side.
Rect frontOf(int bd);
std::vector<Segment> topStrokes(int bd);
std::vector<Segment> endStrokes(int bd);

// The form: the wall on the left, two side columns on the right.
inline constexpr double kFormWidth = 16740;
inline constexpr double kFormHeight = 9480;
inline constexpr Rect kSidePanel{9420, 0, kFormWidth - 9420, kFormHeight};

// First column: the game, the turn, the scores, moves left, the levels.
inline constexpr double kColumnLeft = 9600;
inline constexpr double kColumnWidth = 3300;
inline constexpr double kLineHeight = 285;
// The game's name takes two rows: "Game = Super Vrask Plus (Set count)".
inline constexpr Rect kGameName{kColumnLeft, 180, kColumnWidth, 540};
inline constexpr Rect kStatus{kColumnLeft, 780, kColumnWidth, 360};
inline constexpr double kScoreWidth = 1575;
inline constexpr double kRedScoreLeft = kColumnLeft + kColumnWidth - kScoreWidth;
inline constexpr double kScoreHeadingTop = 1380;
inline constexpr double kScoreTop = 1650;
inline constexpr double kScoreHeight = 720;
inline constexpr double kYourTurnTop = 2400;
inline constexpr Rect kMovesLeftHeading{kColumnLeft, 2850, 1200, kLineHeight};
inline constexpr Rect kMovesLeft{kColumnLeft + 1200, 2850, kColumnWidth - 1200, kLineHeight};
inline constexpr Rect kLastMove{kColumnLeft, 3150, kColumnWidth, kLineHeight};
inline constexpr Rect kLevelHeading{kColumnLeft, 3570, kColumnWidth, kLineHeight};
inline constexpr double kLevelTop = 3870;
inline constexpr double kLevelWidth = 600;
inline constexpr double kLevelHeight = 390;
inline constexpr double kLevelStep = 690;
inline constexpr Rect kNewGame{kColumnLeft, 4500, 1575, 450};
inline constexpr Place kKeypadOpener{kColumnLeft + 1800, 4530};
// "GAME" "OVER" twice, in two rows.
inline constexpr double kGameOverTop = 5250;
inline constexpr double kGameOverRow = 600;
inline constexpr double kGameOverWidth = 1575;

// Second column: the round list, the keypad below it.
inline constexpr Place kRoundList{13260, 240};
inline constexpr Place kKeypad{14000, 3480};

}  // namespace vrask::wall::layout
