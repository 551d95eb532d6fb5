#include "frame/about_box.h"

#include "frame/helpers.h"
#include "launcher/shared_state.h"
#include "toolkit/program.h"

namespace vrask {

AboutBox::AboutBox(Program& program) : Form(program, "AboutBox") {}

void AboutBox::Form_Load() {
  Caption = "About " + shared().text(shared::kProductTitle);
  Width = 7200;
  Height = 4560;

  Element& stars = placed(add("stars", Kind::Picture), 0, 0, Width, 2880);
  stars.BackColor = color::Black;
  starField_ = std::make_unique<StarField>(stars);

  Element& title = placed(add("Label1", Kind::Label), 240, 3000, 6720, 420);
  title.Caption = shared().text(shared::kProductTitle);
  title.FontSize = 14;
  title.FontBold = true;
  title.Alignment = AlignCenter;
  Element& version = placed(add("Label2", Kind::Label), 240, 3480, 6720, 285);
  version.Caption = "Version 1.0";
  version.Alignment = AlignCenter;

  Element& ok = placed(add("Cmd_OK", Kind::Button), 5760, 3960, 1200, 420);
  ok.Caption = "OK";
  ok.Default = true;
  handle("Cmd_OK_Click", [this] { Unload(); });

  // Slower than the launcher's field: the box is small and only decoration.
  Element& timer = add("Timer1", Kind::Timer);
  timer.Interval = 20;
  timer.Enabled = true;
  handle("Timer1_Timer", [this] { starField_->tick(*this); });
}

}  // namespace vrask
