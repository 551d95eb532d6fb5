#include "boards/triangular/Triang.h"

#include <array>
#include <string>

#include "boards/triangular/captions.h"
#include "boards/triangular/layout.h"
#include "boards/triangular/look.h"
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

using namespace triangular;
namespace lay = triangular::layout;

namespace {

// A mid grey: the yellow numbers, the Blue, Red and Black marks and the five
// design colours all stand out on it.
constexpr int kBoardColour = 0x606060;
constexpr double kCellNumberSize = 12;
constexpr double kLineNumberSize = 7;

constexpr std::array<const char*, 4> kPlayerCaptions{"1 player verus the computer", "2 Players",
                                                     "3 Players", "2 Players versus the computer"};

std::string sizeNumber(int size) {
  return std::to_string(size);
}

}  // namespace

Triang::Triang(Program& program) : Form(program, "Triang") {}

Triang::~Triang() = default;

// The design first, in paint order, then the load.
void Triang::Form_Load() {
  Caption = shared().text(shared::kProductTitle);
  Width = lay::kFormWidth;
  Height = lay::kFormHeight;
  openAboveCentre = 300;
  BackColor = kBoardColour;
  panel_ = std::make_unique<SidePanel>(*this, SidePanelConfig{.left = lay::kSidePanelLeft,
                                                              .movesLeft = "Label13",
                                                              .lastMove = "Label12",
                                                              .sizeButtons = "Label133",
                                                              .firstSize = 1,
                                                              .lastSize = kNormalSize,
                                                              .sizeCaption = sizeNumber});
  addBoard();
  panel_->addColumn();
  Label33 = &panel_->status();
  Label36 = &panel_->gameName();
  Label13 = &panel_->movesLeft();
  addWorkingElements();
  addMenus();
  roundList_ = std::make_unique<RoundList>(*this, RoundListConfig{.place = panel_->roundList()});
  flow_ = std::make_unique<TurnFlow>(
      *this, *roundList_, *keypad_,
      TurnFlowNames{.lastMove = "Label12", .gameMenus = {"opts", "kda", "sks", "ks"}});
  registerHandlers();
  registerVariables();

  styleClickTargets();
  clearCircles();
  celllines = start();
  board_ = cellBoard(celllines);
  applyBubblelandStart();
  game_Click(SuperVraskPlus);
  sd_->choose(1);
}

void Triang::addBoard() {
  std::array<int, kLines + 1> design = designColours();
  ln1_ = &addArray("ln1", Kind::Line, 1, kLines);
  for (Element& line : *ln1_) {
    placedLine(line, lay::lineAt(line.index)).BorderColor =
        design.at(static_cast<size_t>(line.index));
  }
  Shape1_ = &addArray("Shape1", Kind::Shape, 1, kCells);
  for (Element& circle : *Shape1_) placed(circle, lay::circleAt(circle.index));
  Label1_ = &addArray("Label1", Kind::Label, 1, kLines);
  for (Element& strip : *Label1_) placed(strip, lay::stripAt(strip.index));
  Label2_ = &addArray("Label2", Kind::Label, 1, kCells);
  for (Element& target : *Label2_) placed(target, lay::numberAt(target.index));
}

// `List1` is the board's working list of last moves: nothing fills it, so
// the player never sees it.
void Triang::addWorkingElements() {
  List1 = &placed(add("List1", Kind::ListBox), panel_->hidden());
  List1->Visible = false;
}

void Triang::addMenus() {
  // A second New under the round list, where the rounds are read.
  Place rounds = panel_->roundList();
  placed(add("Command7", Kind::Button), rounds.left, lay::kNewRoundTop, lay::kNewRoundWidth,
         lay::kNewRoundHeight)
      .Caption = "New game";
  addGamesMenu();
  addOptionsMenu();
  addBoardMenu();
  otherGames_ = std::make_unique<OtherGames>(
      *this, OtherGamesNames{.twoD = "fcbm", .threeD = "zcbm", .fourD = "cbm"});
  addHelpAndExit();
}

// Only Ombrel, Super Vrask and Super Vrask Plus are offered; the other slots
// of the list are there but out of a player's reach.
void Triang::addGamesMenu() {
  sks = &addMenu("sks", "", "Games Menu");
  game_ = &addMenuArray("game", "sks", 0, kGameSlots - 1);
  for (Element& entry : *game_) {
    entry.Caption = kGameCaptions.at(static_cast<size_t>(entry.index));
    entry.Visible =
        entry.index == Ombrel || entry.index == SuperVrask || entry.index == SuperVraskPlus;
  }
  // New stands on the menu bar beside the games: the games close with the
  // first move, New is there all through.
  addMenu("gmc", "", "New");
}

void Triang::addOptionsMenu() {
  ks = &addMenu("ks", "", "Options");
  ip_ = &addMenuArray("ip", "ks", 0, 3);
  for (Element& entry : *ip_) {
    entry.Caption = kPlayerCaptions.at(static_cast<size_t>(entry.index));
    entry.Visible = entry.index <= 1;
  }
  ip(0).Checked = true;
  addMenu("osep", "ks", "-");
  sd_ = std::make_unique<SuddenDeath>(*this, SuddenDeathConfig{.bar = panel_->timeBar()});
  grid_ = std::make_unique<GridSwitch>(*this, "ks", [this](bool on) { shgrid_Click(on); });
  keypad_ = std::make_unique<Keypad>(
      *this, *grid_, [this] { Command6_Click(); },
      KeypadConfig{.panel = lay::keypadUnder(panel_->keypad()), .opener = panel_->keypadOpener()});
  addOnlineEntries(*this, "ks");
}

void Triang::addBoardMenu() {
  kda = &addMenu("kda", "", "Board");
  ver_ = &addMenuArray("ver", "kda", 1, 2);
  ver(1).Caption = "Flatland";
  ver(2).Caption = "Bubbleland";
  ver(1).Checked = true;
  addMenu("ksep", "kda", "-");
  szmen_ = &addMenuArray("szmen", "kda", 1, kNormalSize);
  for (Element& entry : *szmen_) {
    entry.Caption = kSizeCaptions.at(static_cast<size_t>(entry.index));
  }
  (*szmen_)[kNormalSize].Checked = true;
}

// Help and About stay open during a game, and so does Exit.
void Triang::addHelpAndExit() {
  addMenu("hlp", "", "Help");
  addHelpEntry(*this, "rh", "hlp");
  addAboutEntry(*this, "abt", "hlp");
  addExitEntry(*this, "");
}

void Triang::registerHandlers() {
  handleIndexed("Label1_Click", [this](int line) { Label1_Click(line); });
  handleIndexed("Label2_Click", [this](int cell) { Label2_Click(cell); });
  handleIndexed("Label133_Click", [this](int size) { szmen_Click(size); });
  handleIndexed("szmen_Click", [this](int size) { szmen_Click(size); });
  handleIndexed("game_Click", [this](int index) { game_Click(index); });
  handleIndexed("ip_Click", [this](int i) { ip_Click(i); });
  handleIndexed("ver_Click", [this](int) { ver_Click(); });
  handle("gmc_Click", [this] { gmc_Click(); });
  handle("Command1_Click", [this] { gmc_Click(); });
  handle("Command7_Click", [this] { gmc_Click(); });
}

void Triang::registerVariables() {
  var("gameindex", gameindex);
  var("movestotal", movestotal);
  var("whosnext", whosnext);
  var("openerflag", openerflag);
  var("mark", mark);
  var("finished", finished);
  var("gameover", gameover);
  var("inputlock", inputlock);
  var("endgameflag", endgameflag);
  var("lastcell", lastcell);
  var("freshboard", freshboard);
  auto each = [](const auto& table) {
    return [&table](int i) { return num(table.at(static_cast<size_t>(i))); };
  };
  varArray("celltaken", 1, kCells, each(celltaken));
  varArray("cellscored", 1, kCells, each(cellscored));
  varArray("lineowner", 1, kLines, each(lineowner));
  varArray("sidecount", 1, kCells, each(sidecount));
  varArray("linecount", 1, kCells, each(linecount));
  auto perSlot = [](const auto& table) {
    return [&table](int cell, int slot) {
      return num(table.at(static_cast<size_t>(cell)).at(static_cast<size_t>(slot - 1)));
    };
  };
  varTable("celllines", {1, kCells}, {1, 3}, perSlot(celllines));
  varTable("sidemark", {1, kCells}, {1, 3}, perSlot(sidemark));
  varArray("candidates", 1, kLines, [this](int i) {
    return num(i <= static_cast<int>(candidates.size()) ? candidates[static_cast<size_t>(i - 1)]
                                                        : 0);
  });
}

// The hit areas show nothing but the numbers of the grid.
void Triang::styleClickTargets() {
  for (Element& target : *Label2_) {
    target.FontSize = kCellNumberSize;
    target.FontBold = true;
    target.ForeColor = color::Yellow;
    target.Alignment = AlignCenter;
    target.BackStyle = 0;
  }
  for (Element& strip : *Label1_) {
    strip.FontSize = kLineNumberSize;
    strip.ForeColor = color::Yellow;
    strip.Alignment = AlignCenter;
    strip.BackStyle = 0;
  }
}

// A circle at the start of a game: the board's colour inside, a black rim.
void Triang::clearCircles() {
  for (Element& circle : *Shape1_) {
    circle.FillColor = BackColor;
    circle.BackColor = BackColor;
    circle.FillStyle = 1;
    circle.BackStyle = 1;
    circle.BorderColor = color::Black;
    circle.Shape = Circle;
  }
}

void Triang::applyBubblelandStart() {
  if (shared().number(shared::kBubblelandStart) != 1) return;
  ver(1).Checked = false;
  ver(2).Checked = true;
}

}  // namespace vrask
