#include "boards/quennel/Quennel.h"

#include <array>

#include "boards/quennel/captions.h"
#include "boards/quennel/layout.h"
#include "boards/quennel/look.h"
#include "frame/grid_switch.h"
#include "frame/keypad.h"
#include "frame/other_games.h"
#include "frame/round_list.h"
#include "frame/session_menu.h"
#include "launcher/shared_state.h"

namespace vrask {

using namespace quennel;
namespace lay = quennel::layout;

namespace {

// A mid grey: the yellow numbers, the players' colours and the colours of the
// small tetrahedra all stand out on it.
constexpr int kBoardColour = 0x606060;
constexpr int kPanelColour = 0xF0E4D8;  // a pale blue
constexpr int kCircleFill = 0x383838;   // a dark disc, on which the yellow numbers read
constexpr int kNumbers = color::Yellow;
constexpr double kIntroTick = 500;  // ms

constexpr std::array<const char*, 4> kPlayerCaptions{"1 player verus the computer", "2 Players",
                                                     "3 Players", "2 Players versus the computer"};

Element& placed(Element& e, const lay::Rect& r) {
  e.Left = r.left;
  e.Top = r.top;
  e.Width = r.width;
  e.Height = r.height;
  return e;
}

Element& text(Element& e, const std::string& caption, double fontSize = 10, bool bold = false) {
  e.Caption = caption;
  e.FontSize = fontSize;
  e.FontBold = bold;
  e.BackStyle = 0;
  return e;
}

}  // namespace

Quennel::Quennel(Program& program) : Form(program, "Quennel") {}

Quennel::~Quennel() = default;

// The design first, in paint order; then everything is hidden for the
// introduction, which ends by opening the first game.
void Quennel::Form_Load() {
  Caption = shared().product_title;
  Width = lay::kFormWidth;
  Height = lay::kFormHeight;
  openAboveCentre = 300;
  BackColor = kBoardColour;
  addSidePanel();
  addSolid();
  addStatus();
  addScores();
  addViewAndNew();
  addMenus();
  roundList_ = std::make_unique<RoundList>(
      *this, RoundListConfig{
                 .list = "List4", .firstRow = "", .afterWinner = "\t\t", .place = lay::kRoundList});
  registerHandlers();
  registerVariables();

  celllines = startgrids();
  turn = turned(celllines);
  ga_Click(kFirstGame);
  Label33->Caption.clear();
  for (Element& circle : *Shape1_) circle.Visible = false;
  for (Element& label : *Label12_) label.Visible = false;
  Label13->Visible = false;
  for (Element& button : *Command8_) button.Visible = false;
  setStartMenusEnabled(false);
  otherGames_->menu().Enabled = false;
  Timer1->Enabled = true;
}

void Quennel::addSidePanel() {
  placed(add("Picture2", Kind::Picture), lay::kSidePanel).BackColor = kPanelColour;
}

// The lines, the circles of the faces, and the two kinds of number label,
// which are also what a player clicks.
void Quennel::addSolid() {
  LN_ = &addArray("LN", Kind::Line, 1, kLines);
  for (Element& line : *LN_) {
    lay::Segment s = lay::lineAt(line.index);
    line.X1 = s.x1;
    line.Y1 = s.y1;
    line.X2 = s.x2;
    line.Y2 = s.y2;
    line.BorderWidth = lay::lineWidth(line.index);
    line.BorderColor = kTetrahedronColours.at(static_cast<size_t>(tetrahedronOf(line.index)));
  }
  Shape1_ = &addArray("Shape1", Kind::Shape, 1, kFaces);
  for (Element& circle : *Shape1_) {
    placed(circle, lay::faceCircleAt(circle.index));
    circle.Shape = Circle;
    circle.FillStyle = 0;
    circle.FillColor = kCircleFill;
    circle.BorderColor = color::Black;
  }
  Label12_ = &addArray("Label12", Kind::Label, 1, kFaces);
  for (Element& label : *Label12_) {
    placed(text(label, std::to_string(label.index), 9, true), lay::faceCircleAt(label.index));
    label.ForeColor = kNumbers;
    label.Alignment = AlignCenter;
    label.Top += 90;  // the number stands in the middle of the circle
    label.Height -= 90;
  }
  sdfx_ = &addArray("sdfx", Kind::Label, 1, kLines);
  for (Element& label : *sdfx_) {
    placed(text(label, std::to_string(label.index), 8, true), lay::lineLabelAt(label.index));
    label.ForeColor = kNumbers;
    label.BackStyle = 1;
    label.BackColor = kCircleFill;
    label.Alignment = AlignCenter;
  }
}

void Quennel::addStatus() {
  Label36 = &text(placed(add("Label36", Kind::Label), lay::kGameName), "", 10, true);
  Label33 = &text(placed(add("Label33", Kind::Label), lay::kStatus), "", 11, true);
  // Its colour is the mover's, black included, so it stands on white.
  Label33->BackStyle = 1;
  Label33->BackColor = color::White;
  Label33->ForeColor = color::Blue;
  Label33->Alignment = AlignCenter;
  Label34 = &text(placed(add("Label34", Kind::Label), lay::kMovesLeft), "20");
  Label34->Left += 1500;
  Label34->Width -= 1500;
  text(placed(add("Label9", Kind::Label), lay::kMovesLeft), "Moves left:");
  Label20 = &text(placed(add("Label20", Kind::Label), lay::kLastMove), kLastMove);
}

// Blue's column on the left, Red's on the right: a heading, the points, and
// the "Your turn" flag of the side to move.
void Quennel::addScores() {
  ElementArray& headings = addArray("Label8", Kind::Label, 0, 1);
  Label5 = &add("Label5", Kind::Label);
  Label6 = &add("Label6", Kind::Label);
  Label4 = &add("Label4", Kind::Label);
  Label3 = &add("Label3", Kind::Label);
  struct Side {
    Element& heading;
    Element& points;
    Element& yourTurn;
    const char* name;
    int colour;
    double left;
  };
  std::array<Side, 2> sides{{{headings[0], *Label5, *Label4, "Blue", color::Blue, lay::kColumnLeft},
                             {headings[1], *Label6, *Label3, "Red", kFaceRed, lay::kRedScoreLeft}}};
  for (Side& side : sides) {
    placed(text(side.heading, side.name, 10, true),
           {side.left, lay::kScoreHeadingTop, lay::kScoreWidth, lay::kLineHeight});
    placed(text(side.points, "0", 28, true),
           {side.left, lay::kScoreTop, lay::kScoreWidth, lay::kScoreHeight});
    placed(text(side.yourTurn, "Your turn", 10, true),
           {side.left, lay::kYourTurnTop, lay::kScoreWidth, lay::kLineHeight});
    for (Element* e : {&side.heading, &side.points, &side.yourTurn}) {
      e->ForeColor = side.colour;
      e->Alignment = AlignCenter;
    }
  }
  Label3->Visible = false;
}

void Quennel::addViewAndNew() {
  Label13 = &text(placed(add("Label13", Kind::Label), lay::kViewLabel), viewText(1), 11, true);
  Label13->Alignment = AlignCenter;
  Command8_ = &addArray("Command8", Kind::Button, 0, 1);
  placed((*Command8_)[0], lay::kViewDown).Caption = "<<";
  placed((*Command8_)[1], lay::kViewUp).Caption = ">>";
  Command3 = &placed(add("Command3", Kind::Button), lay::kNewGame);
  Command3->Caption = "New game";

  Picture3 = &placed(add("Picture3", Kind::Picture), lay::kGameOver);
  Picture3->BackColor = color::White;
  Picture3->Visible = false;
  Label15_ = &addArray("Label15", Kind::Label, 0, 3);
  for (Element& label : *Label15_) {
    int row = label.index / 2;
    int column = label.index % 2;
    placed(text(label, column == 0 ? "GAME" : "OVER", 24, true),
           {lay::kGameOver.left + column * (lay::kColumnWidth - lay::kGameOverWidth),
            lay::kGameOver.top + 30 + row * lay::kGameOverRow, lay::kGameOverWidth,
            lay::kGameOverRow});
    label.ForeColor = color::Red;
    label.Alignment = AlignCenter;
    label.Visible = false;
  }
  Timer1 = &add("Timer1", Kind::Timer);
  Timer1->Interval = static_cast<int>(kIntroTick);
  Timer1->Enabled = false;
}

void Quennel::addMenus() {
  addGamesMenu();
  addOptionsMenu();
  newMenu = &addMenu("new", "", "New");
  otherGames_ = std::make_unique<OtherGames>(*this);
  addMenu("howmany", "", "&Pyramids");
  addHelpMenu();
}

// The games of the chosen size, and the two sizes.
void Quennel::addGamesMenu() {
  kkj = &addMenu("kkj", "", "Games Menu");
  ga_ = &addMenuArray("ga", "kkj", 0, kGameEntries - 1);
  for (Element& entry : *ga_) {
    const Game* g = gameOf(entry.index);
    entry.Caption = g != nullptr ? g->menu : "-";
  }
  addMenu("gsep", "kkj", "-");
  sublmenu = &addMenu("sublmenu", "kkj", "Board size");
  tetsize_ = &addMenuArray("tetsize", "sublmenu", 1, 2);
  tetsize(1).Caption = kNormalSize;
  tetsize(2).Caption = kMirrorSize;
}

void Quennel::addOptionsMenu() {
  zw = &addMenu("zw", "", "Options");
  ip_ = &addMenuArray("ip", "zw", 0, 3);
  for (Element& entry : *ip_) {
    entry.Caption = kPlayerCaptions.at(static_cast<size_t>(entry.index));
    entry.Visible = entry.index <= 1;
  }
  ip(0).Checked = true;
  addMenu("osep", "zw", "-");
  hidmov = &addMenu("hidmov", "zw", kHideMoves);
  hidmov->Checked = true;
  grid_ = std::make_unique<GridSwitch>(
      *this, "zw", [this](bool on) { grid_Click(on); }, "grid");
  keypad_ = std::make_unique<Keypad>(
      *this, *grid_, [this] { Command6_Click(); },
      KeypadConfig{.parentMenu = "zw",
                   .openerButton = "Command9",
                   .panel = lay::kKeypad,
                   .opener = lay::kKeypadOpener});
  addOnlineEntries(*this, "zw");
}

void Quennel::addHelpMenu() {
  gg = &addMenu("gg", "", "Help");
  addHelpEntry(*this, "rul", "gg");
  addAboutEntry(*this, "abt", "gg");
  addExitEntry(*this, "");
}

void Quennel::registerHandlers() {
  handleIndexed("sdfx_Click", [this](int n) { sdfx_Click(n); });
  handleIndexed("Label12_Click", [this](int n) { Label12_Click(n); });
  handleIndexed("ga_Click", [this](int i) { ga_Click(i); });
  handleIndexed("tetsize_Click", [this](int i) { tetsize_Click(i); });
  handleIndexed("ip_Click", [this](int i) { ip_Click(i); });
  handleIndexed("Command8_Click", [this](int step) { Command8_Click(step); });
  handle("hidmov_Click", [this] { hidmov_Click(); });
  handle("new_Click", [this] { new_Click(); });
  handle("Command3_Click", [this] { new_Click(); });
  handle("howmany_Click", [this] { MsgBox(kPyramids, kPyramidsTitle); });
  handle("Timer1_Timer", [this] { Timer1_Timer(); });
}

void Quennel::registerVariables() {
  for (auto [name, value] :
       std::initializer_list<std::pair<const char*, int*>>{{"gamecode", &gamecode},
                                                           {"levelfull", &levelfull},
                                                           {"viewnum", &viewnum},
                                                           {"whosnext", &whosnext},
                                                           {"openerflag", &openerflag},
                                                           {"markplayer", &markplayer},
                                                           {"movesleft", &movesleft},
                                                           {"finished", &finished},
                                                           {"openingmove", &openingmove}}) {
    var(name, *value);
  }
  auto perLine = [](const auto& table) {
    return [&table](int i) { return num(table.at(static_cast<size_t>(i))); };
  };
  varArray("linetaken", 1, kLines, perLine(linetaken));
  varArray("linecolour", 1, kLines, perLine(linecolour));
  varArray("facescored", 1, kFaces, perLine(facescored));
  varArray("facetaken", 1, kFaces, perLine(facetaken));
  varArray("sidecount", 1, kFaces, perLine(sidecount));
  auto perSide = [](const auto& table) {
    return [&table](int f, int slot) {
      return num(table.at(static_cast<size_t>(f)).at(static_cast<size_t>(slot)));
    };
  };
  varTable("celllines", {1, kFaces}, {1, 3}, perSide(celllines));
  varTable("sidemark", {1, kFaces}, {1, 3}, perSide(sidemark));
  auto listed = [](const std::vector<int>& list) {
    return [&list](int i) {
      return num(i <= static_cast<int>(list.size()) ? list.at(static_cast<size_t>(i - 1)) : 0);
    };
  };
  varArray("candidates", 1, kLines, listed(candidates));
  varArray("dangerlines", 1, 150, listed(dangerlines));
}

// The introduction: the first twenty circles go, come back one a tick, and
// at the 24th tick the board opens with its first game.
void Quennel::Timer1_Timer() {
  ++introticks;
  if (introticks == 1) {
    for (int f = 1; f <= kFaces; ++f) Shape1(f).Visible = false;
  } else if (introticks <= facesOfSize(0) + 1) {
    Shape1(introticks - 1).Visible = true;
  }
  if (introticks < 24) return;
  for (int f = 1; f <= faces(); ++f) Shape1(f).Visible = true;
  Timer1->Enabled = false;
  Label33->Caption = kIntroDone;
  Label13->Visible = true;
  for (Element& button : *Command8_) button.Visible = game().turnable;
  setStartMenusEnabled(true);
  new_Click();
}

// What the introduction holds closed and opens at its end.
void Quennel::setStartMenusEnabled(bool on) {
  for (Element* e :
       {sublmenu, zw, kkj, Command3, &keypad_->entry(), &grid_->entry(), gg, newMenu}) {
    e->Enabled = on;
  }
}

}  // namespace vrask
