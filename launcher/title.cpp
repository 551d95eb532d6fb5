#include "launcher/title.h"

#include <array>
#include <optional>

#include "frame/helpers.h"
#include "launcher/shared_state.h"
#include "toolkit/program.h"

namespace vrask {

namespace {

constexpr double kWidth = StarField::kWidth;
constexpr double kHeight = StarField::kHeight;
constexpr double kShadowShift = 240;

// The front page: a light panel with three columns, 2D, 3D and 4D.
constexpr double kPanelLeft = 900;
constexpr double kPanelTop = 1500;
constexpr double kPanelWidth = 13100;
constexpr double kPanelHeight = 6000;
constexpr double kColumnWidth = 4100;
constexpr double kColumnGap = 200;
constexpr double kRow = 390;

constexpr int kPrompt = 122;
constexpr int kPlainColour = color::Grey;
constexpr int kNewColour = color::Red;

struct Launch {
  int index;
  const char* target;
  int bubbleland;  // 1: the board opens in Bubbleland
  int wallLevel;   // 0: no wall level written
};

constexpr std::array<Launch, 11> kLaunches{{{4, "Triang", 0, 0},
                                            {5, "Triang", 1, 0},
                                            {6, "Form1large", 0, 0},
                                            {7, "Form1large", 1, 0},
                                            {30, "zorvex", 0, 0},
                                            {31, "vraskthewall", 0, 1},
                                            {32, "vraskthewall", 0, 2},
                                            {33, "vraskthewall", 0, 3},
                                            {100, "Quennel", 0, 0},
                                            {51, "form5d", 0, 0},
                                            {52, "form5d2", 0, 0}}};

std::optional<Launch> launchOf(int index) {
  for (const Launch& launch : kLaunches) {
    if (launch.index == index) return launch;
  }
  return std::nullopt;
}

enum class Style { Header, Launcher, Plain, New };

// One shown label of the front page: where it stands (column 0..2, row) and
// what it says.
struct FrontLabel {
  int index;
  int column;
  double row;
  Style style;
  const char* caption;
};

constexpr std::array<FrontLabel, 24> kFrontLabels{{
    {0, 0, 0, Style::Header, "Vrask Flatland Zorvex 2014 in 2D"},
    {4, 0, 1.5, Style::Launcher, " Vrask Quennel in Flatland"},
    {5, 0, 2.5, Style::Launcher, "Vrask Quennel in Bubbleland"},
    {6, 0, 3.5, Style::Launcher, "Super Vrask Plus in Flatland and Bubbleland"},
    {29, 1, 0, Style::Header, "Vrask Zorvex 2014 in 3D"},
    {101, 1, 0.8, Style::Plain, "Boards you can turn and view from every side"},
    {30, 1, 1.5, Style::Launcher, "Zorvex Ultra Squared and Ultra Vrasked"},
    {34, 1, 2.3, Style::Plain, "    one cube of 2 x 2 x 2 small cubes"},
    {31, 1, 3, Style::Launcher, "Vrask the Wall"},
    {32, 1, 4, Style::Launcher, "Vrask a Bigger Wall"},
    {33, 1, 5, Style::Launcher, "Vrask the Great Wall"},
    {35, 1, 5.8, Style::Plain, "    slabs of cubes, 3, 4 and 5 a side"},
    {100, 1, 6.5, Style::Launcher, "Vrask Quennel"},
    {36, 1, 7.3, Style::Plain, "    a tetrahedron of small tetrahedra"},
    {37, 1, 8.3, Style::Plain, "Play a friend at one screen, or the computer,"},
    {38, 1, 9.0, Style::Plain, "or a friend far away with the keypad."},
    {49, 2, 0, Style::Header, "Vrask Zorvex 2014 in 4D"},
    {50, 2, 0.8, Style::Plain, "Four dimensions on a flat screen"},
    {51, 2, 1.5, Style::Launcher, "Vrask Quennel in 4D"},
    {53, 2, 2.3, Style::Plain, "    a cube joined at its corners to three apexes"},
    {52, 2, 3, Style::Launcher, "HyperCube Vrask"},
    {54, 2, 3.8, Style::Plain, "    four cubes in a closed ring"},
    {55, 2, 4.8, Style::New, "New!"},
    {kPrompt, 1, 12.5, Style::Plain, "Click the name of a game to Quick-Launch it"},
}};

void style(Element& label, Style style) {
  switch (style) {
    case Style::Header:
      label.ForeColor = color::Black;
      label.FontBold = true;
      label.FontSize = 11;
      break;
    case Style::Launcher:
      label.ForeColor = title::kRest;
      label.FontSize = 10;
      break;
    case Style::Plain:
      label.ForeColor = kPlainColour;
      break;
    case Style::New:
      label.ForeColor = kNewColour;
      label.FontBold = true;
      break;
  }
}

double columnLeft(int column) {
  return kPanelLeft + kColumnGap + column * (kColumnWidth + kColumnGap);
}

double rowTop(double row) {
  return kPanelTop + 150 + row * kRow;
}

}  // namespace

title::title(Program& program) : Form(program, "title") {}

void title::Form_Load() {
  Width = kWidth;
  Height = kHeight;
  openAboveCentre = 300;
  BackColor = color::Black;
  Caption = shared().text(shared::kProductTitle);
  addSplash();
  addFrontPage();
}

// The star field, the title and its shadow, the exit button, and the timers
// that run from the start.
void title::addSplash() {
  Element& sky = placed(add("Picture2", Kind::Picture), 0, 0, kWidth, kHeight);
  sky.BackColor = color::Black;
  starField_ = std::make_unique<StarField>(sky);

  // A transparent backdrop: moving the mouse off the labels rests them.
  Element& backdrop = placed(add("Label2", Kind::Label), 0, 0, kWidth, kHeight);
  backdrop.BackStyle = 0;
  handle("Label2_MouseMove", [this] { restLaunchLabels(); });

  ElementArray& runner = addArray("Runner", Kind::Label, 0, 1);
  for (Element& label : runner) {
    placed(label, 1200, 300, 12500, 900);
    label.Caption = shared().text(shared::kProductTitle);
    label.BackStyle = 0;
    label.FontSize = 36;
    label.FontBold = true;
    label.Alignment = AlignCenter;
    label.Visible = false;
    frontPage_.push_back(&label);
  }
  // Later elements are painted over earlier ones: the shadow is the first,
  // so that the title stands in front of it.
  // A dim shadow: on black, a full grey competes with the title.
  runner[0].ForeColor = 0x404040;
  runner[0].Left -= kShadowShift;
  runner[1].ForeColor = color::Yellow;

  Element& exit = placed(add("Command3", Kind::Button), kWidth - 1500, kHeight - 600, 1200, 375);
  exit.Caption = "Exit";
  handle("Command3_Click", [this] { End(); });

  Element& stars = add("Timer1", Kind::Timer);
  stars.Interval = 1;
  stars.Enabled = true;
  handle("Timer1_Timer", [this] { starField_->tick(*this); });
  splashTimer_ = &add("Timer2", Kind::Timer);
  splashTimer_->Interval = 6000;
  splashTimer_->Enabled = true;
  handle("Timer2_Timer", [this] { hideblurb(); });
  Element& blink = add("Timer3", Kind::Timer);
  blink.Interval = 4000;
  blink.Enabled = true;
  handle("Timer3_Timer", [this] { blinkPrompt(); });
}

// The front page, hidden until the splash is over.
void title::addFrontPage() {
  Element& panel =
      placed(add("Picture5", Kind::Picture), kPanelLeft, kPanelTop, kPanelWidth, kPanelHeight);
  panel.BackColor = color::White;
  panel.Visible = false;
  frontPage_.push_back(&panel);

  // The panel's backdrop, as the form's is outside it.
  Element& backdrop =
      placed(add("Image3", Kind::Image), kPanelLeft, kPanelTop, kPanelWidth, kPanelHeight);
  handle("Image3_MouseMove", [this] { restLaunchLabels(); });
  backdrop.BackStyle = 0;

  ElementArray& frames = addArray("Shape2", Kind::Shape, 0, 2);
  for (Element& frame : frames) {
    placed(frame, columnLeft(frame.index) - 100, kPanelTop + 90, kColumnWidth + 100,
           kPanelHeight - 900);
    frame.BorderColor = kRest;
    frame.Visible = false;
    frontPage_.push_back(&frame);
  }

  // The emblem stands in the 2D column, below its three games.
  Element& logo =
      placed(addArray("Image1", Kind::Image, 0, 0)[0], columnLeft(0) + 700, rowTop(5), 2700, 2700);
  logo.Visible = false;
  frontPage_.push_back(&logo);
  Element& viewer =
      placed(add("picViewer", Kind::Picture), columnLeft(0) + 850, rowTop(5) + 150, 2400, 2400);
  viewer.BackColor = color::White;
  viewer.Visible = false;
  frontPage_.push_back(&viewer);
  emblem_ = std::make_unique<Emblem>(viewer);
  emblemTimer_ = &add("tmrAni", Kind::Timer);
  emblemTimer_->Interval = 1;
  handle("tmrAni_Timer", [this] {
    emblem_->turn();
    showblurb();
  });

  Element& note = placed(add("Label5", Kind::Label), kPanelLeft, kPanelTop + kPanelHeight + 120,
                         kPanelWidth, 300);
  note.Caption =
      "Two players at one screen, a player against the computer, or two players "
      "anywhere with the keypad";
  note.ForeColor = color::White;
  note.BackStyle = 0;
  note.Alignment = AlignCenter;
  note.Visible = false;
  frontPage_.push_back(&note);

  addLaunchLabels();
}

void title::addLaunchLabels() {
  labels_ = &addArray("Label11", Kind::Label, 0, kPrompt);
  ElementArray& labels = *labels_;
  for (Element& label : labels) label.Visible = false;
  for (const FrontLabel& front : kFrontLabels) {
    Element& label = labels[front.index];
    placed(label, columnLeft(front.column), rowTop(front.row), kColumnWidth, kRow);
    label.Caption = front.caption;
    label.BackStyle = 0;
    style(label, front.style);
  }
  labels[kPrompt].ForeColor = kRest;
  labels[kPrompt].Alignment = AlignCenter;
  // Index 7 opens the square board in Bubbleland; it is not offered.
  labels[7].Caption = "Super Vrask Plus in Bubbleland";
  for (const Launch& launch : kLaunches) {
    Element& label = labels[launch.index];
    style(label, Style::Launcher);
    if (!program().knowsForm(launch.target)) {
      label.Enabled = false;
      label.ToolTipText = "Not yet available";
    }
  }
  handleIndexed("Label11_Click", [this](int i) { Label11_Click(i); });
  handleIndexed("Label11_MouseMove", [this](int i) { Label11_MouseMove(i); });
}

void title::Label11_Click(int i) {
  std::optional<Launch> launch = launchOf(i);
  if (!launch) return;
  if (launch->bubbleland != 0) shared().set(shared::kBubblelandStart, num(launch->bubbleland));
  if (launch->wallLevel != 0) shared().set(shared::kWallLevel, num(launch->wallLevel));
  goTo(launch->target);
}

void title::Label11_MouseMove(int i) {
  if (!launchOf(i)) return;
  restLaunchLabels();
  (*labels_)[i].ForeColor = kHover;
}

void title::restLaunchLabels() {
  for (const Launch& launch : kLaunches) (*labels_)[launch.index].ForeColor = kRest;
}

void title::hideblurb() {
  for (Element* e : frontPage_) e->Visible = true;
  for (const FrontLabel& front : kFrontLabels) (*labels_)[front.index].Visible = true;
  // The splash shows once.
  splashTimer_->Enabled = false;
  emblemTimer_->Enabled = true;
}

void title::showblurb() {
  emblem_->draw();
}

// Every four seconds the prompt changes colour, to draw the eye to the names.
void title::blinkPrompt() {
  Element& prompt = (*labels_)[kPrompt];
  prompt.ForeColor = prompt.ForeColor == kRest ? kHover : kRest;
}

}  // namespace vrask
