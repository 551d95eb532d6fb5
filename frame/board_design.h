// The design every flat board shares around its own geometry: the window,
// and the drawn lines and circles with their hit areas and grid numbers.
#pragma once

#include <functional>

#include "frame/helpers.h"

namespace vrask {

class ElementArray;
class Form;

// The product title as caption, the size in twips, opened centred 300 twips
// above the middle of the screen (the board is tall), on the boards' grey,
// on which the yellow numbers, the players' marks and the design colours all
// stand out.
void designBoardWindow(Form& form, double width, double height);

// Where a board's elements stand and how its numbers look.
struct BoardLayout {
  std::function<Segment(int line)> line;
  std::function<int(int line)> colour;  // the design colour of a free line
  std::function<Rect(int line)> strip;  // its hit area
  std::function<Rect(int cell)> circle;
  std::function<Rect(int cell)> target;  // the circle's hit area and number
  double lineNumberSize = 7;
  double cellNumberSize = 18;
  bool boldCellNumbers = false;
};

struct BoardElements {
  ElementArray* lines;    // `ln1`
  ElementArray* circles;  // `Shape1`
  ElementArray* strips;   // `Label1`
  ElementArray* targets;  // `Label2`
};

// Adds, in paint order, `ln1(1..lines)`, `Shape1(1..cells)`, `Label1(1..lines)`
// and `Label2(1..cells)`. The hit areas are transparent and show, centred and
// in yellow, nothing but the numbers of the grid.
BoardElements addBoardElements(Form& form, int lines, int cells, const BoardLayout& layout);

}  // namespace vrask
