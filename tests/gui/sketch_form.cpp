#include "tests/gui/sketch_form.h"

#include "frame/session_menu.h"
#include "toolkit/program.h"

namespace vrask::gui_test {

namespace {

Element& placed(Element& e, double left, double top, double width, double height) {
  e.Left = left;
  e.Top = top;
  e.Width = width;
  e.Height = height;
  return e;
}

Element& line(Form& form, const std::string& name, double y, int width, int colour) {
  Element& e = form.add(name, Kind::Line);
  e.X1 = 600;
  e.X2 = 6600;
  e.Y1 = e.Y2 = y;
  e.BorderWidth = width;
  e.BorderColor = colour;
  return e;
}

class PlainForm : public Form {
 public:
  explicit PlainForm(Program& program) : Form(program, "Sketch2") {}
  void Form_Load() override {
    Caption = "Sketch two";
    placed(add("Label1", Kind::Label), 600, 600, 3000, 600).Caption = "The second form";
  }
};

}  // namespace

void SketchForm::Form_Load() {
  Caption = "Sketch";
  Width = 7200;
  Height = 4800;
  BackColor = color::White;
  addDrawing();
  addPanel();
  addWaitButtons();
  addMenus();
}

void SketchForm::addDrawing() {
  line(*this, "thin", 500, 1, color::Red);
  line(*this, "thick", 1000, 8, color::Blue);

  Element& dot = placed(add("dot", Kind::Shape), 600, 1500, 900, 900);
  dot.Shape = Circle;
  dot.FillStyle = 0;
  dot.FillColor = color::Green;

  Element& under = placed(add("under", Kind::Label), 1800, 1500, 1500, 600);
  under.Caption = "under";
  under.BackColor = color::Yellow;
  handle("under_Click", [this] { ++underClicks; });
  handle("under_MouseMove", [this] { ++hoverMoves; });
  Element& over = placed(add("over", Kind::Label), 1800, 1500, 1500, 600);
  over.BackStyle = 0;
  over.ToolTipText = "on top";
  handle("over_Click", [this] { ++overClicks; });

  Element& list = placed(add("List1", Kind::ListBox), 600, 2700, 3300, 1200);
  list.BackColor = color::White;
  list.AddItem("Round 1 -Blue\t5\t3");
  list.AddItem(" ");

  Element& timer = add("Timer1", Kind::Timer);
  timer.Interval = 20;
  timer.Enabled = true;
  handle("Timer1_Timer", [this] { ++ticks; });
}

void SketchForm::addPanel() {
  Element& panel = placed(add("panel", Kind::Picture), 4200, 1500, 2400, 2100);
  panel.BackColor = color::Grey;
  auto inPanel = [&](const std::string& name, Kind kind, double top) -> Element& {
    Element& e = placed(add(name, kind), 120, top, 2160, 420);
    e.container = "panel";
    return e;
  };
  Element& inside = inPanel("inside", Kind::Label, 120);
  inside.Caption = "inside the panel";
  handle("inside_Click", [this] { ++insideClicks; });

  inPanel("Text1", Kind::TextBox, 600).BackColor = color::White;
  handleKey("Text1_KeyDown", [this](int, int keyCode) { keys.push_back(keyCode); });

  Element& button = inPanel("Command1", Kind::Button, 1080);
  button.Caption = "press";
  button.Default = true;
  handle("Command1_Click", [this] { ++buttonClicks; });

  Element& off = inPanel("Command5", Kind::Button, 1560);
  off.Caption = "off";
  off.Enabled = false;
  handle("Command5_Click", [this] { ++buttonClicks; });
}

void SketchForm::addWaitButtons() {
  Element& plain = placed(add("Command2", Kind::Button), 4200, 3900, 1100, 420);
  plain.Caption = "plain wait";
  handle("Command2_Click", [this] {
    int before = ticks;
    wait(0.3);
    ticksInPlainWait = ticks - before;
  });
  Element& pumping = placed(add("Command3", Kind::Button), 5500, 3900, 1100, 420);
  pumping.Caption = "pumping wait";
  handle("Command3_Click", [this] {
    int before = ticks;
    waitWithEvents(0.3);
    ticksInPumpingWait = ticks - before;
  });
  Element& longer = placed(add("Command4", Kind::Button), 600, 4080, 1500, 420);
  longer.Caption = "long wait";
  handle("Command4_Click", [this] {
    waitWithEvents(30);
    longWaitReturned = true;
  });
}

void SketchForm::addMenus() {
  addMenu("file", "", "File");
  addMenu("opt", "file", "Option");
  handle("opt_Click", [this] {
    Element& opt = (*findArray("opt"))[0];
    opt.Checked = !opt.Checked;
  });
  addMenu("gone", "file", "Gone").Enabled = false;
  handle("gone_Click", [this] { ++buttonClicks; });
  addMenu("sep", "file", "-");
  addMenu("next", "file", "Next form");
  handle("next_Click", [this] { goTo("Sketch2"); });
  addAboutEntry(*this, "abt", "file");
  addMenu("ex", "file", "Exit");
  handle("ex_Click", [this] { End(); });
}

void registerSketchForms(Program& program) {
  program.registerForm("Sketch", [](Program& p) { return std::make_unique<SketchForm>(p); });
  program.registerForm("Sketch2", [](Program& p) { return std::make_unique<PlainForm>(p); });
}

}  // namespace vrask::gui_test
