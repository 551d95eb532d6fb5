// The solid's line game as the expert sees it: the faces of the size as
// cells of their three real lines, each line a move of its own.
#pragma once

#include "boards/quennel/computer.h"
#include "boards/quennel/tables.h"
#include "frame/expert_lines.h"

namespace vrask::quennel {

// The line game as it stands on the first `faces` faces, each move known by
// its real line.
ExpertLines expertLinesOf(const CellLines& celllines, const LineValues& linetaken, int faces);

}  // namespace vrask::quennel
