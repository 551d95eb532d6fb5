// Where the elements of the 4D triangular board stand on the form, in twips.
//
// Three figures across the middle of the form: on the left the first cube with
// apex 1, in the middle the common cube with apex 3, on the right the second
// cube (in the smaller level the first cube again) with apex 2. Each figure
// is a cube in oblique view with its apex to the outside, so that the spokes
// of every corner fan out and each triangle has room for its circle. The
// scores and the turn stand above the figures, the round list, New, the time
// bar and the keypad below them.
#pragma once

#include "boards/tetra4d/tables.h"
#include "frame/helpers.h"

namespace vrask::tetra4d::layout {

using vrask::Rect;
using vrask::Segment;

inline constexpr double kFormWidth = 19215;
inline constexpr double kFormHeight = 10815;

// The three figures: 1 the left (apex 1), 2 the right (apex 2), 3 the middle
// (apex 3), numbered as their apexes.
Segment edgeIn(int figure, int e);
Segment spokeIn(int figure, int k);

// The hit area `Label1(index)` (and its grid number) of a slot, on its line;
// `second` for the second hit area of a spoke.
Rect hitArea(int slot, bool second = false);
// The ring `Shape1(t - 1)` and the circle `Label99(t - 1)` of triangle t.
Rect ringOf(int t);

inline constexpr double kHit = 300;
inline constexpr double kRing = 330;

// Above the figures.
inline constexpr Rect kBlueName{240, 120, 3000, 360};
inline constexpr Rect kBluePoints{240, 480, 3000, 840};
inline constexpr Rect kBlueTurn{240, 1380, 3000, 330};
inline constexpr Rect kRedName{15975, 120, 3000, 360};
inline constexpr Rect kRedPoints{15975, 480, 3000, 840};
inline constexpr Rect kRedTurn{15975, 1380, 3000, 330};
inline constexpr Rect kGameName{3600, 120, 12000, 360};
inline constexpr Rect kStatus{6600, 540, 6000, 420};
inline constexpr Rect kMovesLeft{3600, 1080, 12000, 330};
inline constexpr Rect kLastMove{3600, 1410, 12000, 330};
inline constexpr Rect kNote{3600, 1800, 12000, 600};
inline constexpr Rect kHintCount{3600, 2400, 12000, 330};

// Below the figures.
inline constexpr vrask::Place kRoundList{240, 7780};
inline constexpr Rect kNewGame{3780, 7900, 1800, 480};
inline constexpr Rect kGridOff{3780, 8550, 1800, 300};
inline constexpr Rect kGridOn{3780, 8880, 1800, 300};
inline constexpr Rect kTimeHeading{3780, 9330, 3000, 255};
inline constexpr vrask::Place kTimeBar{3780, 9620};
inline constexpr Rect kGameOver{7800, 7900, 3600, 900};  // two rows of "GAME" "OVER"
inline constexpr Rect kHintList{12400, 7900, 1800, 2700};
inline constexpr vrask::Place kKeypad{17160, 7780};
inline constexpr vrask::Place kKeypadOpener{17460, 7900};
inline constexpr Rect kHidden{0, 0, 0, 0};

}  // namespace vrask::tetra4d::layout
