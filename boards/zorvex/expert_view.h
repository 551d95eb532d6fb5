// The cube board as the expert sees its two games of taking sides: Ombrel,
// whose cells are the 36 squares and their sides the lines, and Zorvex
// (Squares), whose cells are the 8 small cubes and their sides the squares.
// In both, whoever completes a cell scores it and goes again, so the expert's
// line game plays them alike.
#pragma once

#include "boards/zorvex/tables.h"
#include "frame/cell_board.h"

namespace vrask::cube {

// Cells 1..36 with their four line indices.
CellBoard squaresAsCells(const Tables& t);
// Cells 1..8 with their six squares.
CellBoard cubesAsCells(const Tables& t);

}  // namespace vrask::cube
