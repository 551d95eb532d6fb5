// How the HyperCube board marks its state: widths of lines and rings and the
// board's own colours, besides Blue, Red, Black and yellow.
#pragma once

namespace vrask::hypercube {

// Widths: a painted line is drawn 4 wide (a free one 1); the ring of a
// square taken or closed 8, of the computer's choice while it shows it 28.
enum Widths : int { kPainted = 4, kClosedRing = 8, kChosenRing = 28 };

// Colours: dark red for the computer's lines and Red's in a flash of a
// finished square; magenta for a square closed in a Classic game that scores
// for nobody; the grid numbers of Blue's cube, and of Red's cube (the colour
// of its free lines).
enum Colours : int {
  kDarkRed = 192,
  kMagenta = 16711935,
  kBlueNumbers = 12582912,
  kRedCube = 128,
};

// How long a finished square shows in yellow in the line games.
inline constexpr double kSquareFlashSeconds = 3;

// Codes of the line games' owners in `lnown` and `sqside`.
enum OwnerCodes : int { kRedCode = 1, kBlueCode = 2 };

}  // namespace vrask::hypercube
