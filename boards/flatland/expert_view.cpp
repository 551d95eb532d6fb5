#include "boards/flatland/expert_view.h"

#include "frame/expert_lines.h"

namespace vrask::flatland {

expert::LineProblem lineProblem(const SideTable& sqline, const LineOwners& lineown,
                                const std::function<bool(int)>& shows, bool bubbleland,
                                std::vector<int>& lineOfMove) {
  ExpertLines view = expertLines(
      cellBoard(sqline), shows,
      [&lineown](int line) { return lineown.at(static_cast<size_t>(line)) != 0; },
      bubbleland ? std::function<int(int)>(twinOf) : nullptr);
  lineOfMove = std::move(view.lineOfMove);
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
