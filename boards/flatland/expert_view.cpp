#include "boards/flatland/expert_view.h"

#include <algorithm>
#include <array>
#include <map>

#include "frame/expert_lines.h"

namespace vrask::flatland {

namespace {

struct Place {
  int row;
  int column;
};

// The eight ways to turn or mirror a square of `size` rows onto itself,
// for a place counted from its corner.
Place turned(int way, Place p, int size) {
  int last = size - 1;
  switch (way) {
    case 0:
      return p;
    case 1:
      return {p.column, last - p.row};
    case 2:
      return {last - p.row, last - p.column};
    case 3:
      return {last - p.column, p.row};
    case 4:
      return {p.row, last - p.column};
    case 5:
      return {last - p.row, p.column};
    case 6:
      return {p.column, p.row};
    default:
      return {last - p.column, last - p.row};
  }
}

constexpr std::array<Place, 5> kStep{{{0, 0}, {-1, 0}, {0, 1}, {1, 0}, {0, -1}}};

// The side that points the way `step` does.
int sideTowards(Place step) {
  for (int k = Top; k <= Left; ++k) {
    if (kStep.at(static_cast<size_t>(k)).row == step.row &&
        kStep.at(static_cast<size_t>(k)).column == step.column) {
      return k;
    }
  }
  return 0;
}

// The flat board in play is a square of squares: its seven turns and
// mirrors, as images of the moves. None when what shows is not a square.
std::vector<std::vector<int>> squareSymmetries(const SideTable& sqline,
                                               const std::function<bool(int)>& shows,
                                               const std::vector<int>& lineOfMove) {
  int top = kSide;
  int left = kSide;
  int bottom = 0;
  int right = 0;
  int count = 0;
  for (int s = 1; s <= kSquares; ++s) {
    if (!shows(s)) continue;
    ++count;
    top = std::min(top, rowOf(s));
    bottom = std::max(bottom, rowOf(s));
    left = std::min(left, columnOf(s));
    right = std::max(right, columnOf(s));
  }
  int size = bottom - top + 1;
  if (count == 0 || right - left + 1 != size || count != size * size) return {};
  std::map<int, int> moveOfLine;
  for (size_t m = 0; m < lineOfMove.size(); ++m) moveOfLine[lineOfMove[m]] = static_cast<int>(m);

  std::vector<std::vector<int>> symmetries;
  for (int way = 1; way < 8; ++way) {
    std::vector<int> image(lineOfMove.size(), -1);
    for (int r = 0; r < size; ++r) {
      for (int c = 0; c < size; ++c) {
        Place to = turned(way, {r, c}, size);
        int from = squareAt(top + r, left + c);
        int onto = squareAt(top + to.row, left + to.column);
        for (int k = Top; k <= Left; ++k) {
          Place step = kStep.at(static_cast<size_t>(k));
          Place beyond = turned(way, {r + step.row, c + step.column}, size);
          int side = sideTowards({beyond.row - to.row, beyond.column - to.column});
          image.at(static_cast<size_t>(moveOfLine.at(sqline.at(from).at(k)))) =
              moveOfLine.at(sqline.at(onto).at(side));
        }
      }
    }
    symmetries.push_back(image);
  }
  return symmetries;
}

}  // namespace

expert::LineProblem lineProblem(const SideTable& sqline, const LineOwners& lineown,
                                const std::function<bool(int)>& shows, bool bubbleland,
                                std::vector<int>& lineOfMove) {
  ExpertLines view = expertLines(
      cellBoard(sqline), shows,
      [&lineown](int line) { return lineown.at(static_cast<size_t>(line)) != 0; },
      bubbleland ? std::function<int(int)>(twinOf) : nullptr);
  lineOfMove = std::move(view.lineOfMove);
  // Bubbleland's seams join the board's edges, and its twins make one move
  // of two lines: only the flat board is turned and mirrored.
  if (!bubbleland) view.problem.symmetries = squareSymmetries(sqline, shows, lineOfMove);
  return std::move(view.problem);
}

int expertLine(const SideTable& sqline, const LineOwners& lineown,
               const std::function<bool(int)>& shows, bool bubbleland, expert::Budget budget) {
  std::vector<int> lineOfMove;
  int m = expert::bestLineMove(lineProblem(sqline, lineown, shows, bubbleland, lineOfMove), budget);
  return m < 0 ? 0 : lineOfMove.at(static_cast<size_t>(m));
}

expert::CircleProblem circleProblem(const SideTable& sqline, const CirclePosition& position,
                                    std::vector<int>& squareOfCell) {
  expert::CircleProblem p;
  p.lineCount = kLines + 1;
  p.colour.assign(static_cast<size_t>(p.lineCount), expert::kUnmarked);
  for (int L = 1; L <= kLines; ++L) p.colour.at(static_cast<size_t>(L)) = position.colour(L);
  squareOfCell.clear();
  for (int s = 1; s <= kSquares; ++s) {
    if (!position.shows(s)) continue;
    p.cells.emplace_back(sqline.at(s).begin() + 1, sqline.at(s).end());
    p.patterns.push_back(vraskPattern(sqline, position.mode, s, position.bubbleland));
    p.done.push_back(position.sqdone->at(static_cast<size_t>(s)) != 0);
    squareOfCell.push_back(s);
  }
  p.mover = position.mover;
  return p;
}

int expertCircle(const SideTable& sqline, const CirclePosition& position, expert::Budget budget) {
  std::vector<int> squareOfCell;
  int c = expert::bestCircle(circleProblem(sqline, position, squareOfCell), budget);
  return c < 0 ? 0 : squareOfCell.at(static_cast<size_t>(c));
}

}  // namespace vrask::flatland
