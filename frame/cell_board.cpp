#include "frame/cell_board.h"

#include <algorithm>

#include "toolkit/element.h"

namespace vrask {

CellBoard::CellBoard(std::vector<std::vector<int>> sides, int lines)
    : sides_(std::move(sides)), lines_(lines) {}

Counts CellBoard::countSides(const Test& counts) const {
  Counts result(sides_.size(), 0);
  for (int c = 1; c <= cells(); ++c) {
    for (int line : sides(c)) result.at(static_cast<size_t>(c)) += counts(line) ? 1 : 0;
  }
  return result;
}

std::vector<int> CellBoard::cellsToComplete(CountsView sidecount) const {
  std::vector<int> found;
  for (int c = 1; c <= cells(); ++c) {
    if (sidecount[static_cast<size_t>(c)] == sideCount(c) - 1) found.push_back(c);
  }
  return found;
}

std::vector<int> CellBoard::safeLines(CountsView sidecount, const Test& isFree) const {
  // The lines of cells two short: one more would hand the cell over.
  std::vector<bool> dangerous(static_cast<size_t>(lines_) + 1, false);
  for (int c = 1; c <= cells(); ++c) {
    if (sidecount[static_cast<size_t>(c)] != sideCount(c) - 2) continue;
    for (int line : sides(c)) dangerous.at(static_cast<size_t>(line)) = true;
  }
  std::vector<int> safe;
  std::vector<int> free;
  for (int line = 1; line <= lines_; ++line) {
    if (!isFree(line)) continue;
    free.push_back(line);
    if (!dangerous.at(static_cast<size_t>(line))) safe.push_back(line);
  }
  return safe.empty() ? free : safe;
}

int CellBoard::vraskTarget(CountsView sidecount, CountsView done, const Test& shows) const {
  auto first = [&](int short_, bool mustBeOpen) {
    for (int c = 1; c <= cells(); ++c) {
      auto i = static_cast<size_t>(c);
      if (!shows(c) || sidecount[i] != sideCount(c) - short_) continue;
      if (!mustBeOpen || done[i] == 0) return c;
    }
    return 0;
  };
  // A cell with every side marked and an open circle is of mixed colours:
  // one move turns it whole.
  for (auto [short_, mustBeOpen] : {std::pair{0, true}, {1, false}, {2, false}}) {
    if (int c = first(short_, mustBeOpen)) return c;
  }
  return 0;
}

std::vector<int> CellBoard::openCells(CountsView done, const Test& shows) const {
  std::vector<int> found;
  for (int c = 1; c <= cells(); ++c) {
    if (done[static_cast<size_t>(c)] == 0 && shows(c)) found.push_back(c);
  }
  return found;
}

void markLines(ElementArray& drawn, const std::vector<int>& lines, int colour) {
  for (int line : lines) {
    drawn[line].BorderWidth = kMarkedWidth;
    drawn[line].BorderColor = colour;
  }
}

}  // namespace vrask
