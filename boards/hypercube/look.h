// How the HyperCube board marks its state: widths of lines and rings and the
// board's own colours, besides Blue, Red, Black and yellow.
#pragma once

namespace vrask::hypercube {

// A painted line is drawn 4 wide, a free one 1.
inline constexpr int kPainted = 4;
// Rings: a square taken or closed 8 wide; the computer's choice while it
// shows it, 28.
inline constexpr int kClosedRing = 8;
inline constexpr int kChosenRing = 28;

// The computer's lines, and Red's colour in a flash of a finished square.
inline constexpr int kDarkRed = 192;
// A square closed in a Classic game that scores for nobody.
inline constexpr int kMagenta = 16711935;
// The grid numbers of Blue's cube.
inline constexpr int kBlueNumbers = 12582912;
// The grid numbers of Red's cube, the colour of its free lines.
inline constexpr int kRedCube = 128;

// Codes of the line games' owners in `lnown` and `sqside`.
inline constexpr int kRedCode = 1;
inline constexpr int kBlueCode = 2;

}  // namespace vrask::hypercube
