#include "boards/quennel/computer.h"

#include <algorithm>

namespace vrask::quennel {

FaceCounts countMarkedSides(const SideMarks& sidemark, int faces) {
  FaceCounts counts{};
  for (int f = 1; f <= faces; ++f) {
    for (int slot = 1; slot <= 3; ++slot) {
      if (sidemark.at(f).at(slot) != 0) ++counts.at(f);
    }
  }
  return counts;
}

std::vector<int> facesToClose(const FaceCounts& sidecount, int faces) {
  std::vector<int> candidates;
  for (int f = 1; f <= faces; ++f) {
    if (sidecount.at(f) == 2) candidates.push_back(f);
  }
  return candidates;
}

std::vector<int> dangerLines(const CellLines& celllines, const FaceCounts& sidecount, int faces) {
  std::vector<int> lines;
  for (int f = 1; f <= faces; ++f) {
    if (sidecount.at(f) != 1) continue;
    for (int slot = 1; slot <= 3; ++slot) lines.push_back(celllines.at(f).at(slot));
  }
  return lines;
}

std::vector<int> lineCandidates(const std::vector<int>& dangerlines, const LineValues& linetaken,
                                int lines) {
  std::vector<int> safe;
  std::vector<int> free;
  for (int line = 1; line <= lines; ++line) {
    if (linetaken.at(line) != 0) continue;
    free.push_back(line);
    if (std::find(dangerlines.begin(), dangerlines.end(), line) == dangerlines.end()) {
      safe.push_back(line);
    }
  }
  return safe.empty() ? free : safe;
}

int faceTarget(const FaceCounts& sidecount, const FaceCounts& facetaken, int faces) {
  for (int sides = 3; sides >= 0; --sides) {
    for (int f = 1; f <= faces; ++f) {
      if (facetaken.at(f) == 0 && sidecount.at(f) == sides) return f;
    }
  }
  return 0;
}

}  // namespace vrask::quennel
