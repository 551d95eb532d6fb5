#include "boards/triangular/computer.h"

#include <algorithm>

namespace vrask::triangular {

CellCounts countMarkedSides(const SideMarks& sidemark) {
  CellCounts counts{};
  for (int cell = 1; cell <= kCells; ++cell) {
    counts.at(cell) = static_cast<int>(std::count_if(
        sidemark.at(cell).begin(), sidemark.at(cell).end(), [](int m) { return m != 0; }));
  }
  return counts;
}

std::vector<int> cellsToClose(const CellCounts& sidecount) {
  std::vector<int> cells;
  for (int cell = 1; cell <= kCells; ++cell) {
    if (sidecount.at(cell) == 2) cells.push_back(cell);
  }
  return cells;
}

std::vector<int> lineCandidates(const CellLines& celllines, const CellCounts& sidecount,
                                const LineValues& lineowner, const Test& lineShows) {
  // The sides of cells with one side: a second would let the other player
  // close the cell.
  std::vector<int> dangerlines;
  for (int cell = 1; cell <= kCells; ++cell) {
    if (sidecount.at(cell) != 1) continue;
    dangerlines.insert(dangerlines.end(), celllines.at(cell).begin(), celllines.at(cell).end());
  }
  std::vector<int> safe, free;
  for (int line = 1; line <= kLines; ++line) {
    if (lineowner.at(line) != 0 || !lineShows(line)) continue;
    free.push_back(line);
    if (std::find(dangerlines.begin(), dangerlines.end(), line) == dangerlines.end()) {
      safe.push_back(line);
    }
  }
  return safe.empty() ? free : safe;
}

CellCounts countDrawnLines(const CellLines& celllines, const Test& drawn) {
  CellCounts counts{};
  for (int cell = 1; cell <= kCells; ++cell) {
    for (int line : celllines.at(cell)) counts.at(cell) += drawn(line) ? 1 : 0;
  }
  return counts;
}

int redchackTarget(const CellCounts& linecount, const CellCounts& celltaken,
                   const Test& cellShows) {
  for (int lines = 3; lines >= 1; --lines) {
    for (int cell = 1; cell <= kCells; ++cell) {
      if (cellShows(cell) && celltaken.at(cell) == 0 && linecount.at(cell) == lines) return cell;
    }
  }
  return 0;
}

std::vector<int> freeCells(const CellCounts& celltaken, const Test& cellShows) {
  std::vector<int> cells;
  for (int cell = 1; cell <= kCells; ++cell) {
    if (celltaken.at(cell) == 0 && cellShows(cell)) cells.push_back(cell);
  }
  return cells;
}

}  // namespace vrask::triangular
