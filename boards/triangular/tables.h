// The triangular board's numbers: a hexagon of 54 triangles and their 90
// sides, which lines bound which cells, the lines a circle move paints beyond
// its own cell, the twins of the rim in Bubbleland, what a smaller board hides
// and the colours the free lines are drawn in. Plain data and pure functions;
// the form reads and writes the drawn elements, these only say which ones.
#pragma once

#include <array>
#include <vector>

#include "frame/cell_board.h"

namespace vrask::triangular {

inline constexpr int kLines = 90;
inline constexpr int kCells = 54;
inline constexpr int kHorizontalLines = 30;  // 1..30 lie, 31..90 slant
inline constexpr int kVertexRows = 7;
inline constexpr int kBands = 6;  // band b lies between vertex rows b and b + 1
inline constexpr int kNormalSize = 3;

// The games, the indexes of the games menu. Slot 5 is a separator.
enum Game { Ombrel = 0, Dorvel = 1, Vrask = 2, SuperVrask = 3, SuperVraskPlus = 4, LineVrask = 6 };
inline constexpr int kGameSlots = 7;

inline bool playedOnLines(int game) {
  return game == Ombrel || game == Dorvel || game == LineVrask;
}

// A point of the lattice: its row from the top (0..6) and its column counted
// in half steps between neighbours, so that a horizontal line goes two columns
// and a slanted one a row and a column. In these coordinates the lattice is
// straight: the point beyond `b` seen from `a` is 2b - a.
struct Vertex {
  int row = 0;
  int column = 0;
  bool operator==(const Vertex&) const = default;
};

bool onBoard(Vertex v);
// The line between two neighbouring points of the board, else 0.
int lineBetween(Vertex a, Vertex b);
std::array<Vertex, 2> endsOf(int line);
// The three corners of a cell: for a cell pointing up the apex first, for one
// pointing down the two upper corners first.
std::array<Vertex, 3> cornersOf(int cell);
bool pointsUp(int cell);

// celllines: the three lines of each cell in their slots, (right, base, left)
// for a cell pointing up and (top, right, left) for one pointing down. Row 0
// is unused so that the board's own numbers index it.
using CellLines = std::array<std::array<int, 3>, kCells + 1>;
CellLines start();
// The same table as the rules shared with other boards read it.
CellBoard cellBoard(const CellLines& celllines);

// Game state by cell (1..54) or by line (1..90); index 0 unused.
using CellFlags = std::array<int, kCells + 1>;
using LineValues = std::array<int, kLines + 1>;
// sidemark: the mark on each slot of each cell.
using SideMarks = std::array<std::array<int, 3>, kCells + 1>;
// How many sides of each cell carry a mark.
Counts countMarkedSides(const SideMarks& sidemark);

bool onRim(int line);
// The rim line across the hexagon that stands for the same line of the joined
// surface in Bubbleland, or 0 for a line inside.
int twinOf(int line);
// The twin line a rim cell paints in Bubbleland besides its own three, or 0.
int rimTwinOf(const CellLines& celllines, int cell);

// The lines a circle move paints beyond its own cell in Flatland: each side
// continued one line past each corner, and in Super Vrask Plus the line that
// closes the triangle standing point to point with the cell at that corner.
// Lines off the board are left out. Ascending.
std::vector<int> vraskexten(int game, int cell);
// The same in Bubbleland, where the cells along the rim reach across it.
std::vector<int> withbubble(int game, int cell);

// What each smaller size hides. Size 2 hides the lower right (lines of set B,
// cells of set Q); size 1 also the upper left (set A, set P).
struct Hidden {
  std::vector<int> lines;
  std::vector<int> cells;
};
Hidden hiddenBySize(int size);

// The moves a game has at a size: its lines in Ombrel and Line Vrask, else
// its cells.
int movestotal(int game, int size);

// The colour each line is drawn in while free (index 0 unused).
std::array<int, kLines + 1> designColours();

}  // namespace vrask::triangular
