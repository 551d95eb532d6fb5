#include "frame/board_design.h"

#include "launcher/shared_state.h"
#include "toolkit/form.h"

namespace vrask {

namespace {

constexpr int kBoardGrey = 0x606060;

void showsNumbers(Element& target, double size, bool bold) {
  target.FontSize = size;
  target.FontBold = bold;
  target.ForeColor = color::Yellow;
  target.Alignment = AlignCenter;
  target.BackStyle = 0;
}

}  // namespace

void designBoardWindow(Form& form, double width, double height) {
  form.Caption = form.shared().text(shared::kProductTitle);
  form.Width = width;
  form.Height = height;
  form.openAboveCentre = 300;
  form.BackColor = kBoardGrey;
}

BoardElements addBoardElements(Form& form, int lines, int cells, const BoardLayout& layout) {
  BoardElements board{};
  board.lines = &form.addArray("ln1", Kind::Line, 1, lines);
  for (Element& line : *board.lines) {
    placedLine(line, layout.line(line.index)).BorderColor = layout.colour(line.index);
  }
  board.circles = &form.addArray("Shape1", Kind::Shape, 1, cells);
  for (Element& circle : *board.circles) placed(circle, layout.circle(circle.index));
  board.strips = &form.addArray("Label1", Kind::Label, 1, lines);
  for (Element& strip : *board.strips) {
    showsNumbers(placed(strip, layout.strip(strip.index)), layout.lineNumberSize, false);
  }
  board.targets = &form.addArray("Label2", Kind::Label, 1, cells);
  for (Element& target : *board.targets) {
    showsNumbers(placed(target, layout.target(target.index)), layout.cellNumberSize,
                 layout.boldCellNumbers);
  }
  return board;
}

}  // namespace vrask
