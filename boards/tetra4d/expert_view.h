// The line game of the 4D board as the expert sees it: each triangle a cell
// of the lines that finish it. On one cube a triangle is its edge and two
// spokes. On two cubes a triangle of apex 2 stands on the second cube's
// edge, and one of apex 3 on the middle cube's edge, which is there only
// once both like-named edges are: so it is a cell of four lines, both edges
// and its two spokes, and whoever draws the last of them finishes it.
#pragma once

#include "boards/tetra4d/rules.h"
#include "frame/cell_board.h"
#include "frame/expert_lines.h"

namespace vrask::tetra4d {

// The triangles 1..36 of the level by their slots.
CellBoard triangleCells(int level);

// The line game as it stands, each move known by its slot.
ExpertLines expertLinesOf(const Board& board);

}  // namespace vrask::tetra4d
