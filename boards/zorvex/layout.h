// Where the cube board's elements stand, in twips. The drawn figure is the
// same in every view: a view changes what each drawn place shows, never where
// it stands.
#pragma once

#include "boards/zorvex/tables.h"
#include "frame/helpers.h"

namespace vrask::cube::layout {

using vrask::Point;

// A node of the lattice on the screen, in the slanted projection.
Point nodeAt(Node n);

// The drawn line of slot `slot` (1..54) from its first end to its second.
Segment lineAt(int slot);
// A thin strand beside a drawn line, `offset` (1 or 2) strand widths away.
Segment strandAt(int slot, int offset);
// The diagonal of the drawn square `slot`, from its low corner across.
Segment diagonalAt(int slot);
// The middle of the drawn square `slot`.
Point middleOf(int slot);

// The hit zones `Label22(0..97)`: each covers one stretch of one drawn line.
inline constexpr int kZones = 98;
int zoneLine(int zone);
// The first zone of a drawn line.
int firstZoneOf(int slot);
Rect zoneAt(int zone);

// The number `Label11(n)` beside the drawn line of view-1 number n.
Rect numberAt(int slot);
// The ring `Shape1(s)` and the circle `Label9(s)` on the middle of square s.
Rect ringAt(int slot);
Rect circleAt(int slot);
// The second click target of circle 30.
inline constexpr Rect kSecondCircle30{6240, 2880, 480, 480};

// The view marker `Line3(i)`: two strokes for each view.
Segment viewMarkerAt(int i);

// The form, with the cube on the left and two side columns on the right.
inline constexpr Rect kForm{0, 0, 18000, 9900};
inline constexpr Rect kSidePanel{10860, 0, kForm.width - 10860, kForm.height};

// The first column, row by row from the top: the game, the status, the two
// players with their points and turn markers, the counters, the last move,
// the views, New and the keypad's opener, "GAME OVER", the hints, the clock.
inline constexpr double kColumnLeft = 11040;
inline constexpr double kLineHeight = 285;
constexpr Rect fullRow(double top, double height = kLineHeight) {
  return {kColumnLeft, top, 3300, height};
}
inline constexpr Rect kGameName = fullRow(180, 540);
inline constexpr Rect kStatus = fullRow(780, 600);
// Each player has half the column: Blue the left, Red the right.
inline constexpr double kHalf = 1590;
inline constexpr double kRightHalf = kColumnLeft + 1710;
inline constexpr struct {
  double player = 1500, points = 1800, pointsHeight = 660, yourTurn = 2490;
} kPlayerRows;
inline constexpr Rect kMovesLeft = fullRow(2880);
inline constexpr Rect kNonScoring = fullRow(3180);
inline constexpr Rect kLastMove = fullRow(3480);
inline constexpr Rect kViewDown{kColumnLeft, 3900, 840, 420};
inline constexpr Rect kViewLabel{kColumnLeft + 960, 3930, 1380, 375};
inline constexpr Rect kViewUp{kColumnLeft + 2460, 3900, 840, 420};
inline constexpr Rect kNewGame{kColumnLeft, 4560, kHalf, 450};
inline constexpr Place kKeypadOpener{kColumnLeft + 1830, 4590};
inline constexpr double kGameOverTop = 5160;
inline constexpr double kGameOverRow = 540;
inline constexpr Rect kHintList = fullRow(6300, 1500);
inline constexpr Rect kTimeHeading = fullRow(8040);
inline constexpr Place kTimeBar{kColumnLeft, 8370};

// The second column: the cumulative score, and the keypad below it.
inline constexpr double kSecondLeft = 14520;
inline constexpr Rect kShowRounds{kSecondLeft, 240, 3300, 420};
inline constexpr Rect kRoundsTitle{kSecondLeft, 240, 3300, kLineHeight};
inline constexpr Place kRoundList{kSecondLeft, 540};
inline constexpr Rect kHideRounds{kSecondLeft + 2400, 3480, 900, 360};
inline constexpr Place kKeypad{kSecondLeft + 720, 4080};

// Working elements the player never sees.
inline constexpr Rect kHidden{kColumnLeft, 9300, 1200, 255};

}  // namespace vrask::cube::layout
