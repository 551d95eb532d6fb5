// Where the HyperCube board's elements stand on the form, in twips. The board
// is eight pictures in two rows: each shows one cube with the next cube of
// the ring nested small inside it and the connectors of that ring step
// between them. Every ring step is drawn twice, with the outer cube at its
// normal size and large, so every line is several drawn segments.
#pragma once

#include <array>

#include "frame/helpers.h"

namespace vrask::hypercube::layout {

using vrask::Point;
using vrask::Rect;
using vrask::Segment;

// One picture: its box, the ring step it shows (the step's first cube
// outside, normal or large, and its second cube nested small inside), and the
// segment indexes of the two cubes' lines there (10 c + 0..3, c the cube's
// number).
struct Picture {
  Rect box;
  int step;  // into kSteps
  bool large;
  const char* caption;
  int outerSet;
  int innerSet;
};
inline constexpr double kTopRow = 360;
inline constexpr double kBottomRow = 4560;
inline constexpr double kPictureHeight = 3960;
inline constexpr std::array<Picture, 8> kPictures{{
    {{1800, kTopRow, 3360, kPictureHeight}, 0, true, "Inside White cube", 21, 33},
    {{6120, kTopRow, 2880, kPictureHeight}, 0, false, "Outer White cube", 20, 32},
    {{9720, kTopRow, 3360, kPictureHeight}, 1, true, "Inside Red cube", 31, 13},
    {{14040, kTopRow, 2880, kPictureHeight}, 1, false, "Outer Red cube", 30, 12},
    {{1080, kBottomRow, 2880, kPictureHeight}, 3, false, "Outer Blue cube", 0, 23},
    {{4920, kBottomRow, 3360, kPictureHeight}, 3, true, "Inside Blue cube", 1, 22},
    {{9240, kBottomRow, 2880, kPictureHeight}, 2, false, "Outer Black cube", 10, 2},
    {{13200, kBottomRow, 3360, kPictureHeight}, 2, true, "Inside Black cube", 11, 3},
}};
inline constexpr double kPictureCaptionHeight = 300;

// The segment indexes each cube's lines have: 10 c + 0..3.
inline constexpr std::array<int, 4> kSegmentSets{0, 1, 2, 3};
// Connector segments: 0 in the normal picture of its step, 1 in the large,
// 2 the stub out of the large picture of the step's second cube.
enum ConnectorSegment { InNormal = 0, InLarge = 1, Stub = 2 };

// Segment `segment` (10 c + 0..3) of edge `edge` of cube c.
Segment cubeSegment(int edge, int segment);
// Segment `segment` of the connector at corner `k` of ring step `step`.
Segment connectorSegment(int step, int k, int segment);

// The hit area of line `index` (0..79), on the normal picture of its cube or
// of its step; and the second one that the rightbackbottom connectors have
// on the large picture.
Rect hitArea(int index);
Rect secondHitArea(int index);
// The indexes of the second hit areas, `Label1(550)` and so on: ten times
// the line's index.
inline constexpr std::array<int, 4> kSecondHitAreas{550, 630, 710, 790};

// The ring `Shape1(s)` of square s (1..72), and its circle `Label11(s)` in
// the middle of it: a cube's faces on its normal picture, a block of
// connecting squares on the large picture of its step's first cube.
Rect ringAt(int square);
Rect circleAt(int square);

inline constexpr double kFormWidth = 17800;
inline constexpr double kFormHeight = 11800;

// The legend of the ring at the left: five cube names one under another and
// a bar between each two. `row` counts the names from 0, a bar half a row.
Rect legendRow(double row);
// The first-time hint under the legend, until the first move.
inline constexpr Rect kFirstTimeHint{60, 2700, 1620, 1800};

// The band below the pictures, from the left: the status column, the
// scores with the hints under them, the key of Super Vrask Plus, the keypad
// and the round list.
inline constexpr double kBandTop = 8700;
inline constexpr double kRowHeight = 285;

// The game's name, the status, moves left and the last move, New with the
// keypad's opener beside it, and "GAME" "OVER" twice in two rows under them.
struct StatusColumn {
  Rect gameName, status, movesLeft, lastMove, newGame;
  Point keypadOpener;
  Rect gameOverCell;  // the first of the four; the others to its right and below
};
inline constexpr StatusColumn kStatusColumn{
    .gameName{240, kBandTop, 4200, 300},
    .status{240, kBandTop + 330, 4200, 540},
    .movesLeft{240, kBandTop + 930, 2000, kRowHeight},
    .lastMove{2280, kBandTop + 930, 2160, kRowHeight},
    .newGame{240, kBandTop + 1320, 1500, 420},
    .keypadOpener{1920, kBandTop + 1342},
    .gameOverCell{240, kBandTop + 1860, 2100, 540},
};

// Blue's column and Red's beside it: a heading with a colour swatch, the
// points, "Your turn".
struct ScoreColumns {
  double left, width, gap;
  Rect heading, swatch, points, yourTurn;  // Blue's, relative to `left`
};
inline constexpr ScoreColumns kScores{.left = 4680,
                                      .width = 1500,
                                      .gap = 1620,
                                      .heading{0, kBandTop, 1500, kRowHeight},
                                      .swatch{120, kBandTop + 50, 180, 180},
                                      .points{0, kBandTop + 330, 1500, 720},
                                      .yourTurn{0, kBandTop + 1080, 1500, kRowHeight}};

// The hints: the count of safe lines, and their list.
inline constexpr Rect kSafeCount{4680, kBandTop + 1500, 3060, kRowHeight};
inline constexpr Rect kSafeList{4680, kBandTop + 1800, 1200, 1200};
inline constexpr Rect kKey{8040, kBandTop, 3000, 2700};
inline constexpr Point kKeypad{11280, kBandTop};
inline constexpr Point kRoundList{13380, kBandTop};

}  // namespace vrask::hypercube::layout
