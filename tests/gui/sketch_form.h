// Small forms that hold one of each kind of element, for the renderer's
// tests: lines thin and marked, a filled circle, labels stacked over one
// another, a panel with controls, a list box, a timer and menus.
#pragma once

#include <vector>

#include "toolkit/form.h"

namespace vrask::gui_test {

class SketchForm : public Form {
 public:
  explicit SketchForm(Program& program) : Form(program, "Sketch") {}
  void Form_Load() override;

  int underClicks = 0;
  int overClicks = 0;
  int insideClicks = 0;
  int buttonClicks = 0;
  int ticks = 0;
  int ticksInPlainWait = -1;
  int ticksInPumpingWait = -1;
  int hoverMoves = 0;
  bool longWaitReturned = false;
  std::vector<int> keys;  // Text1_KeyDown, as it heard them

 private:
  void addDrawing();
  void addPanel();
  void addWaitButtons();
  void addMenus();
};

// "Sketch" and "Sketch2", a plain form that "Next form" goes to.
void registerSketchForms(Program& program);

}  // namespace vrask::gui_test
