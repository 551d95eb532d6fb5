// The square board's numbers: which lines bound which squares, which squares
// touch, which lines a Vrask move paints, what a smaller board hides and the
// colours the free lines are drawn in. Plain data and pure functions; the
// form reads and writes the drawn elements, these only say which ones.
#pragma once

#include <array>
#include <vector>

#include "frame/cell_board.h"

namespace vrask::flatland {

inline constexpr int kSide = 9;  // squares a side of the full board
inline constexpr int kSquares = 81;
inline constexpr int kLines = 180;
inline constexpr int kVerticalLines = 90;  // 1..90 stand, 91..180 lie
inline constexpr int kSmallestSize = 5;

// Sides of a square, as the side table counts them.
enum SideIndex { Top = 1, Right = 2, Bottom = 3, Left = 4 };

// Game modes, the indexes of the games menu.
enum GameMode { Ombrel = 0, Dorvel = 1, Vrask = 2, SuperVrask = 3, SuperVraskPlus = 4, Ribbon = 5 };

inline bool isVraskMode(int mode) {
  return mode >= Vrask && mode <= Ribbon;
}

inline int rowOf(int square) {
  return (square - 1) / kSide + 1;
}
inline int columnOf(int square) {
  return (square - 1) % kSide + 1;
}
inline int squareAt(int row, int column) {
  return (row - 1) * kSide + column;
}

// sqline: the line of side k (1..4) of square s (1..81); row 0 and column 0
// are unused so that the board's own numbers index it.
using SideTable = std::array<std::array<int, 5>, kSquares + 1>;

// Walks the lines 1 to 180 and enters each in the squares it bounds, band by
// band: the left edge, the inner columns of lines, the right edge, then the
// top edge, the inner rows and the bottom edge.
SideTable start();
// The same table as cells and their sides, for the rules every board shares.
CellBoard cellBoard(const SideTable& sqline);

// The line of the opposite edge that stands for the same line of the joined
// surface in Bubbleland, or 0 for a line that is not on the edge.
int twinOf(int line);

enum class Direction { Up, Right, Down, Left };
inline constexpr std::array<Direction, 4> kDirections{Direction::Up, Direction::Right,
                                                      Direction::Down, Direction::Left};

// The square that touches `square` by a side in `direction`: across the seam
// in Bubbleland, none (0) off the grid in Flatland. Squares hidden by a
// smaller board are still neighbours.
int neighbour(int square, Direction direction, bool bubbleland);

// The lines a Vrask move on `square` paints in game mode `mode` (2..5), each
// once, twins included in Bubbleland.
std::vector<int> vraskPattern(const SideTable& sqline, int mode, int square, bool bubbleland);

// Lines of a board of `size` squares a side: 2 n (n + 1).
int lineCount(int size);

// What a board of `size` leaves out, built the way the size menu hides it: for
// each larger size m, the row and column m of squares and the lines that only
// they have. Both lists may repeat a number.
struct Hidden {
  std::vector<int> squares;
  std::vector<int> lines;
};
Hidden hiddenBySize(int size);

// The five colours free lines are drawn in, none of them Blue or Red.
inline constexpr std::array<int, 5> kDesignColours{0x0040C0, 0x00C0C0, 0xC000C0, 0xC0C000,
                                                   0x00C000};

// The design colour of each line (index 0 unused): lines that meet at a
// point differ, also across the seam of Bubbleland, and twins are equal.
std::array<int, kLines + 1> designColours();

}  // namespace vrask::flatland
