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

// First column: the game, the turn, the scores, moves left, the walls, New.
inline constexpr double kColumnLeft = 9600;
inline constexpr double kColumnWidth = 3300;
inline constexpr double kLineHeight = 285;
// A box across the column, or part of it from `indent`.
constexpr Rect inColumn(double top, double height = kLineHeight, double indent = 0,
                        double width = kColumnWidth) {
  return {kColumnLeft + indent, top, width - indent, height};
}
// The game's name takes two rows: "Game = Super Vrask Plus (Set count)".
inline constexpr Rect kGameName = inColumn(180, 540);
inline constexpr Rect kStatus = inColumn(780, 360);
inline constexpr Rect kMovesLeftHeading = inColumn(2850, kLineHeight, 0, 1200);
inline constexpr Rect kMovesLeft = inColumn(2850, kLineHeight, 1200);
inline constexpr Rect kLastMove = inColumn(3150);
inline constexpr Rect kLevelHeading = inColumn(3570);
inline constexpr Rect kNewGame = inColumn(4500, 450, 0, 1575);
inline constexpr Place kKeypadOpener{kColumnLeft + 1800, 4530};

// Each side's points: Blue's on the left of the column, Red's on the right;
// a heading, the number, and "Your turn" below.
struct ScoreColumn {
  double width, headingTop, pointsTop, pointsHeight, flagTop;
};
inline constexpr ScoreColumn kScores{
    .width = 1575, .headingTop = 1380, .pointsTop = 1650, .pointsHeight = 720, .flagTop = 2400};
inline constexpr double kRedScoreLeft = kColumnLeft + kColumnWidth - kScores.width;

// The buttons of the three walls, in a row, and "GAME" "OVER" twice, in two
// rows.
struct Row {
  double top, width, height, step;
};
inline constexpr Row kLevelButtons{.top = 3870, .width = 600, .height = 390, .step = 690};
inline constexpr Row kGameOver{.top = 5250, .width = 1575, .height = 600, .step = 600};

// Second column: the round list, the keypad below it.
inline constexpr Place kRoundList{13260, 240};
inline constexpr Place kKeypad{14000, 3480};

}  // namespace vrask::wall::layout
