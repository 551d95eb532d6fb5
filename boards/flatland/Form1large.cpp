#include "boards/flatland/Form1large.h"

#include <array>

#include "boards/flatland/captions.h"
#include "boards/flatland/layout.h"
#include "boards/flatland/look.h"
#include "frame/grid_switch.h"
#include "frame/keypad.h"
#include "frame/other_games.h"
#include "frame/round_list.h"
#include "frame/session_menu.h"
#include "frame/sudden_death.h"
#include "frame/turn_flow.h"
#include "launcher/shared_state.h"

namespace vrask {

using namespace flatland;
namespace lay = flatland::layout;

namespace {

// A mid grey: the yellow numbers, the Blue, Red and Black marks and the five
// design colours all stand out on it.
constexpr int kBoardColour = 0x606060;
// A pale blue, on which the grey size buttons show.
constexpr int kPanelColour = 0xF0E4D8;
constexpr int kGridNumbers = color::Yellow;
constexpr double kCircleNumberSize = 18;
constexpr double kLineNumberSize = 7;

constexpr std::array<const char*, 6> kGameCaptions{
    "Ombrel", "Dorvel (2 Player only)", "Vrask", "Super Vrask", "Super Vrask Plus", "Ribbon Vrask"};
constexpr std::array<const char*, 4> kPlayerCaptions{"1 player verus the computer", "2 Players",
                                                     "3 Players", "2 Players versus the computer"};

std::string sizeCaption(int n) {
  return std::to_string(n) + " x " + std::to_string(n);
}

}  // namespace

Form1large::Form1large(Program& program) : Form(program, "Form1large") {}

Form1large::~Form1large() = default;

// The design first, in paint order, then the load in its own order. Where
// the window stands on the screen is the window's business.
void Form1large::Form_Load() {
  Caption = shared().text(shared::kProductTitle);
  Width = lay::kFormWidth;
  Height = lay::kFormHeight;
  openAboveCentre = 300;
  BackColor = kBoardColour;
  addSidePanel();
  addBoard();
  addStatus();
  addScores();
  addSizeLabels();
  addWorkingElements();
  addMenus();
  roundList_ = std::make_unique<RoundList>(*this, RoundListConfig{.place = lay::kRoundList});
  flow_ = std::make_unique<TurnFlow>(*this, *roundList_, *keypad_,
                                     TurnFlowNames{.gameMenus = {"opts", "kda", "sks", "ks"}});
  registerHandlers();
  registerVariables();

  boardsize = kSide;
  gameover = 0;
  starterflag = 1;
  styleClickTargets();
  saveDesignColours();
  clearCircles();
  for (Element& target : *Label2_) target.Visible = false;
  sqline = start();
  board_ = cellBoard(sqline);
  applyBubblelandStart();
  game_Click(SuperVraskPlus);
  sd_->choose(1);
}

void Form1large::addSidePanel() {
  placed(add("Picture2", Kind::Picture), lay::kSidePanel).BackColor = kPanelColour;
}

void Form1large::addBoard() {
  std::array<int, kLines + 1> design = designColours();
  ln1_ = &addArray("ln1", Kind::Line, 1, kLines);
  for (Element& line : *ln1_) {
    placedLine(line, lay::lineAt(line.index)).BorderColor =
        design.at(static_cast<size_t>(line.index));
  }
  Shape1_ = &addArray("Shape1", Kind::Shape, 1, kSquares);
  for (Element& circle : *Shape1_) placed(circle, lay::circleAt(circle.index)).FillStyle = 0;
  Label1_ = &addArray("Label1", Kind::Label, 1, kLines);
  for (Element& strip : *Label1_) placed(strip, lay::stripAt(strip.index));
  Label2_ = &addArray("Label2", Kind::Label, 1, kSquares);
  for (Element& target : *Label2_) placed(target, lay::circleAt(target.index));
}

void Form1large::addStatus() {
  Label36 = &captioned(placed(add("Label36", Kind::Label), lay::kGameName), "", 11, true);
  Label33 = &captioned(placed(add("Label33", Kind::Label), lay::kStatus), "", 11, true);
  // Its colour is the mover's, Black included, so it stands on white.
  Label33->BackStyle = 1;
  Label33->BackColor = color::White;
  Label33->ForeColor = color::Blue;
  Label33->Alignment = AlignCenter;
  Label12 = &captioned(placed(add("Label12", Kind::Label), lay::kMovesLeft), "");
  Label18 = &captioned(placed(add("Label18", Kind::Label), lay::kLastMove), kLastMove);
}

// Blue's column on the left, Red's on the right: a heading, the points, and
// the "Your turn" marker of the side to move (`Label4(1)` Blue's, `Label4(0)`
// Red's).
void Form1large::addScores() {
  ElementArray& headings = addArray("Label3", Kind::Label, 0, 1);
  Label5_ = &addArray("Label5", Kind::Label, 0, 0);
  Label6 = &add("Label6", Kind::Label);
  Label4_ = &addArray("Label4", Kind::Label, 0, 1);
  struct Side {
    Element& heading;
    Element& points;
    Element& yourTurn;
    const char* name;
    int colour;
    double left;
  };
  std::array<Side, 2> sides{
      {{headings[0], Label5(0), Label4(1), "Blue", color::Blue, lay::kColumnLeft},
       {headings[1], *Label6, Label4(0), "Red", color::Red, lay::kRedScoreLeft}}};
  for (Side& side : sides) {
    placed(captioned(side.heading, side.name, 10, true),
           {side.left, lay::kScoreHeadingTop, lay::kScoreWidth, lay::kLineHeight});
    placed(captioned(side.points, "0", 28, true),
           {side.left, lay::kScoreTop, lay::kScoreWidth, lay::kScoreHeight});
    placed(captioned(side.yourTurn, "Your turn", 10, true),
           {side.left, lay::kYourTurnTop, lay::kScoreWidth, lay::kLineHeight});
    for (Element* e : {&side.heading, &side.points, &side.yourTurn}) {
      e->ForeColor = side.colour;
      e->Alignment = AlignCenter;
    }
  }
  // Blue moves first on a board just opened.
  Label4(0).Visible = false;
}

void Form1large::addSizeLabels() {
  Label14 = &captioned(placed(add("Label14", Kind::Label), lay::kSizeHeading), "Board size");
  Label13_ = &addArray("Label13", Kind::Label, kSmallestSize, kSide);
  for (Element& label : *Label13_) {
    double left = lay::kColumnLeft + lay::kSizeStep * (label.index - kSmallestSize);
    placed(captioned(label, sizeCaption(label.index)),
           {left, lay::kSizeTop, lay::kSizeWidth, lay::kSizeHeight});
    label.BackStyle = 1;
    label.Alignment = AlignCenter;
  }
  (*Label13_)[kSide].BackColor = kSizeChosen;

  Command1 = &placed(add("Command1", Kind::Button), lay::kNewGame);
  Command1->Caption = "New game";

  Label15_ = &addArray("Label15", Kind::Label, 0, 3);
  for (Element& label : *Label15_) {
    int row = label.index / 2;
    int column = label.index % 2;
    placed(captioned(label, column == 0 ? "GAME" : "OVER", 24, true),
           {lay::kColumnLeft + column * (lay::kColumnWidth - lay::kGameOverWidth),
            lay::kGameOverTop + row * lay::kGameOverRow, lay::kGameOverWidth, lay::kGameOverRow});
    label.ForeColor = color::Red;
    label.Alignment = AlignCenter;
    label.Visible = false;
  }
  captioned(placed(add("Label16", Kind::Label), lay::kTimeHeading), "Time for a move");
}

// `Label8` and `List1` are the board's working elements: the player never
// sees them.
void Form1large::addWorkingElements() {
  Label8 = &placed(add("Label8", Kind::Label), lay::kHidden);
  Label8->Visible = false;
  List1 = &placed(add("List1", Kind::ListBox), lay::kHidden);
  List1->Visible = false;
}

void Form1large::addMenus() {
  addGamesMenu();
  addOptionsMenu();
  addBoardMenu();
  otherGames_ = std::make_unique<OtherGames>(*this);
  addHelpAndExit();
}

void Form1large::addGamesMenu() {
  sks = &addMenu("sks", "", "Games Menu");
  game_ = &addMenuArray("game", "sks", Ombrel, Ribbon);
  for (Element& entry : *game_) entry.Caption = kGameCaptions.at(static_cast<size_t>(entry.index));
  // Dorvel needs all four sides from one player; this board doesn't offer it.
  game(Dorvel).Visible = false;
  // New stands on the menu bar beside the games: the games close with the
  // first move, New is there all through.
  addMenu("gmc", "", "New").Shortcut = "Ctrl+N";
}

void Form1large::addOptionsMenu() {
  ks = &addMenu("ks", "", "Options");
  ip_ = &addMenuArray("ip", "ks", 0, 3);
  for (Element& entry : *ip_) {
    entry.Caption = kPlayerCaptions.at(static_cast<size_t>(entry.index));
    entry.Visible = entry.index <= 1;
  }
  ip(0).Checked = true;
  addMenu("osep", "ks", "-");
  sd_ = std::make_unique<SuddenDeath>(*this, SuddenDeathConfig{.bar = lay::kTimeBar});
  grid_ = std::make_unique<GridSwitch>(*this, "ks", [this](bool on) { shgrid_Click(on); });
  keypad_ = std::make_unique<Keypad>(
      *this, *grid_, [this] { Command6_Click(); },
      KeypadConfig{.panel = lay::kKeypad, .opener = lay::kKeypadOpener});
  addOnlineEntries(*this, "ks");
}

void Form1large::addBoardMenu() {
  kda = &addMenu("kda", "", "Board");
  ver_ = &addMenuArray("ver", "kda", 1, 2);
  ver(1).Caption = "Flatland";
  ver(2).Caption = "Bubbleland";
  ver(1).Checked = true;
  addMenu("ksep", "kda", "-");
  sizsq_ = &addMenuArray("sizsq", "kda", kSmallestSize, kSide);
  for (Element& entry : *sizsq_) entry.Caption = sizeCaption(entry.index);
  (*sizsq_)[kSide].Checked = true;
}

// Help and About stay open during a game, and so does Exit.
void Form1large::addHelpAndExit() {
  addMenu("hlp", "", "Help");
  addHelpEntry(*this, "rh", "hlp");
  addAboutEntry(*this, "abt", "hlp");
  addExitEntry(*this, "");
}

void Form1large::registerHandlers() {
  handleIndexed("Label1_Click", [this](int L) { Label1_Click(L); });
  handleIndexed("Label2_Click", [this](int s) { Label2_Click(s); });
  handleIndexed("Label13_Click", [this](int n) { sizsq_Click(n); });
  handleIndexed("sizsq_Click", [this](int n) { sizsq_Click(n); });
  handleIndexed("game_Click", [this](int m) { game_Click(m); });
  handleIndexed("ip_Click", [this](int i) { ip_Click(i); });
  handleIndexed("ver_Click", [this](int) { ver_Click(); });
  handle("gmc_Click", [this] { gmc_Click(); });
  handle("Command1_Click", [this] { gmc_Click(); });
}

void Form1large::registerVariables() {
  var("gamemode", gamemode);
  var("boardsize", boardsize);
  var("turnflag", turnflag);
  var("moverid", moverid);
  var("starterflag", starterflag);
  var("compbusy", compbusy);
  var("gameover", gameover);
  auto perLine = [](const auto& table) {
    return [&table](int i) { return num(table.at(static_cast<size_t>(i))); };
  };
  varArray("lineown", 1, kLines, perLine(lineown));
  varArray("linecolor0", 1, kLines, perLine(linecolor0));
  varArray("sqdone", 1, kSquares, perLine(sqdone));
  varArray("sqscored", 1, kSquares, perLine(sqscored));
  varArray("sidecount", 1, kSquares, perLine(sidecount));
  auto perSide = [](const SideOwners& table) {
    return [&table](int s, int k) {
      return num(table.at(static_cast<size_t>(s)).at(static_cast<size_t>(k)));
    };
  };
  varTable("sqline", {1, kSquares}, {Top, Left}, perSide(sqline));
  varTable("sqowner", {1, kSquares}, {Top, Left}, perSide(sqowner));
  varArray("candlist", 1, kLines, [this](int i) {
    return num(i <= static_cast<int>(candlist.size()) ? candlist[static_cast<size_t>(i - 1)] : 0);
  });
}

// The hit areas show nothing but the numbers of the grid.
void Form1large::styleClickTargets() {
  for (Element& target : *Label2_) {
    target.FontSize = kCircleNumberSize;
    target.ForeColor = kGridNumbers;
    target.Alignment = AlignCenter;
    target.BackStyle = 0;
  }
  for (Element& strip : *Label1_) {
    strip.FontSize = kLineNumberSize;
    strip.ForeColor = kGridNumbers;
    strip.Alignment = AlignCenter;
    strip.BackStyle = 0;
  }
}

void Form1large::saveDesignColours() {
  for (const Element& line : *ln1_) {
    linecolor0.at(static_cast<size_t>(line.index)) = line.BorderColor;
  }
}

void Form1large::clearCircles() {
  for (Element& circle : *Shape1_) {
    circle.FillColor = BackColor;
    circle.BorderColor = color::Black;
    circle.Shape = Circle;
  }
}

void Form1large::applyBubblelandStart() {
  if (shared().number(shared::kBubblelandStart) != 1) return;
  ver(1).Checked = false;
  ver(2).Checked = true;
  game(Ribbon).Enabled = false;
}

}  // namespace vrask
