// The computer player's decisions on the triangular board, from the board
// alone: no memory, no look-ahead, no skill levels. The one random step is
// left to the form, which owns the generator.
#pragma once

#include <array>
#include <functional>
#include <vector>

#include "boards/triangular/tables.h"

namespace vrask::triangular {

// Per cell (1..54) or per line (1..90); index 0 unused.
using CellCounts = std::array<int, kCells + 1>;
using LineValues = std::array<int, kLines + 1>;
using SideMarks = std::array<std::array<int, 3>, kCells + 1>;  // sidemark
// Whether a line or cell shows on the board at its size, or whether a line
// is drawn.
using Test = std::function<bool(int)>;

// Line games. How many sides of each cell carry a mark.
CellCounts countMarkedSides(const SideMarks& sidemark);
// The cells with two marked sides, lowest first: the computer closes them
// before anything else.
std::vector<int> cellsToClose(const CellCounts& sidecount);
// The lines it draws when there is nothing to close: the free lines on the
// board that are no side of a cell with one marked side, in ascending order;
// when every free line is, all free lines on the board.
std::vector<int> lineCandidates(const CellLines& celllines, const CellCounts& sidecount,
                                const LineValues& lineowner, const Test& lineShows);

// Circle games. How many lines of each cell are drawn.
CellCounts countDrawnLines(const CellLines& celllines, const Test& drawn);
// The free cell on the board it plays on: the lowest-numbered among those
// with the most drawn lines, 3, 2 or 1; 0 when every free cell is bare.
int redchackTarget(const CellCounts& linecount, const CellCounts& celltaken, const Test& cellShows);
// The free cells on the board, to draw from.
std::vector<int> freeCells(const CellCounts& celltaken, const Test& cellShows);

}  // namespace vrask::triangular
