#include "boards/flatland/Form1large.h"

#include <array>

#include "boards/flatland/captions.h"
#include "boards/flatland/layout.h"
#include "boards/flatland/look.h"
#include "frame/board_design.h"
#include "frame/expert_menu.h"
#include "frame/grid_switch.h"
#include "frame/keypad.h"
#include "frame/other_games.h"
#include "frame/round_list.h"
#include "frame/session_menu.h"
#include "frame/side_panel.h"
#include "frame/sudden_death.h"
#include "frame/turn_flow.h"
#include "launcher/shared_state.h"

namespace vrask {

using namespace flatland;
namespace lay = flatland::layout;

namespace {

constexpr double kCircleNumberSize = 18;

constexpr std::array<const char*, 6> kGameCaptions{
    "Ombrel", "Dorvel (2 Player only)", "Vrask", "Super Vrask", "Super Vrask Plus", "Ribbon Vrask"};

std::string sizeCaption(int n) {
  return std::to_string(n) + " x " + std::to_string(n);
}

}  // namespace

Form1large::Form1large(Program& program) : Form(program, "Form1large") {}

Form1large::~Form1large() = default;

// The design first, in paint order, then the load in its own order. Where
// the window stands on the screen is the window's business.
void Form1large::Form_Load() {
  designBoardWindow(*this, lay::kFormWidth, lay::kFormHeight);
  addSidePanel();
  addBoard();
  panel_->addColumn();
  panel_->markSize(kSide);
  Label33 = &panel_->status();
  Label36 = &panel_->gameName();
  Label12 = &panel_->movesLeft();
  addWorkingElements();
  addMenus();
  addRoundsAndFlow(*this, "Label18");
  registerHandlers();
  registerVariables();

  boardsize = kSide;
  gameover = 0;
  starterflag = 1;
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
  panel_ = std::make_unique<SidePanel>(*this, SidePanelConfig{.left = lay::kSidePanelLeft,
                                                              .sizeButtons = "Label13",
                                                              .firstSize = kSmallestSize,
                                                              .lastSize = kSide,
                                                              .sizeCaption = sizeCaption});
}

void Form1large::addBoard() {
  std::array<int, kLines + 1> design = designColours();
  BoardElements board = addBoardElements(
      *this, kLines, kSquares,
      {.line = lay::lineAt,
       .colour = [design](int line) { return design.at(static_cast<size_t>(line)); },
       .strip = lay::stripAt,
       .circle = lay::circleAt,
       .target = lay::circleAt,
       .cellNumberSize = kCircleNumberSize});
  ln1_ = board.lines;
  Shape1_ = board.circles;
  Label1_ = board.strips;
  Label2_ = board.targets;
  for (Element& circle : *Shape1_) circle.FillStyle = 0;
}

// `Label8` and `List1` are the board's working elements: the player never
// sees them.
void Form1large::addWorkingElements() {
  Label8 = &placed(add("Label8", Kind::Label), panel_->hidden());
  Label8->Visible = false;
  List1 = &placed(add("List1", Kind::ListBox), panel_->hidden());
  List1->Visible = false;
}

void Form1large::addMenus() {
  addGamesMenu();
  addOptionsMenu(
      *this, [this](bool on) { shgrid_Click(on); }, [this] { Command6_Click(); }, panel_->keypad());
  expert_ = std::make_unique<ExpertMenu>(*this, "ks", [this] { hint_Click(); });
  addBoardMenu();
  otherGames_ = std::make_unique<OtherGames>(*this);
  addHelpAboutExit(*this);
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

void Form1large::addBoardMenu() {
  kda = &addMenu("kda", "", "Board");
  ver_ = &addWorldEntries(*this, "kda");
  sizsq_ = &addMenuArray("sizsq", "kda", kSmallestSize, kSide);
  for (Element& entry : *sizsq_) entry.Caption = sizeCaption(entry.index);
  (*sizsq_)[kSide].Checked = true;
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
