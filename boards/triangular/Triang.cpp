#include "boards/triangular/Triang.h"

#include <array>
#include <string>

#include "boards/triangular/captions.h"
#include "boards/triangular/layout.h"
#include "boards/triangular/look.h"
#include "frame/expert_menu.h"
#include "frame/session_menu.h"
#include "launcher/shared_state.h"

namespace vrask {

using namespace triangular;
namespace lay = triangular::layout;

namespace {

constexpr double kCellNumberSize = 12;

std::string sizeNumber(int size) {
  return std::to_string(size);
}

}  // namespace

Triang::Triang(Program& program) : Form(program, "Triang") {}

Triang::~Triang() = default;

// The tables first, then the design in paint order, then the load.
void Triang::Form_Load() {
  celllines = start();
  cells_ = cellBoard(celllines);
  designBoardWindow(*this, lay::kFormWidth, lay::kFormHeight);
  panel_ = std::make_unique<SidePanel>(*this, SidePanelConfig{.left = lay::kSidePanelLeft,
                                                              .movesLeft = "Label13",
                                                              .lastMove = "Label12",
                                                              .sizeButtons = "Label133",
                                                              .firstSize = 1,
                                                              .lastSize = kNormalSize,
                                                              .sizeCaption = sizeNumber});
  addBoard();
  addPanelColumn();
  addMenus();
  addRoundsAndFlow(*this, "Label12");
  registerNames();

  clearCircles();
  sd_->choose(1);
  applyBubblelandStart();
  game_Click(SuperVraskPlus);
}

void Triang::addBoard() {
  std::array<int, kLines + 1> design = designColours();
  board_ = addBoardElements(
      *this, kLines, kCells,
      {.line = lay::lineAt,
       .colour = [design](int line) { return design.at(static_cast<size_t>(line)); },
       .strip = lay::stripAt,
       .circle = lay::circleAt,
       .target = lay::numberAt,
       .cellNumberSize = kCellNumberSize,
       .boldCellNumbers = true});
}

// The panel's column over the board's side, and the labels the rules write.
void Triang::addPanelColumn() {
  panel_->addColumn();
  Label33 = &panel_->status();
  Label36 = &panel_->gameName();
  Label13 = &panel_->movesLeft();
  addWorkingElements();
}

// `List1` is the board's working list of last moves: nothing fills it, so
// the player never sees it.
void Triang::addWorkingElements() {
  List1 = &placed(add("List1", Kind::ListBox), panel_->hidden());
  List1->Visible = false;
}

void Triang::addMenus() {
  // A second New under the round list, where the rounds are read.
  placed(add("Command7", Kind::Button), lay::newRoundUnder(panel_->roundList())).Caption =
      "New game";
  addGamesMenu();
  addOptionsMenu(
      *this, [this](bool on) { shgrid_Click(on); }, [this] { Command6_Click(); },
      lay::keypadUnder(panel_->keypad()));
  expert_ = std::make_unique<ExpertMenu>(*this, "ks", [this] { hint_Click(); });
  addBoardMenu();
  otherGames_ = std::make_unique<OtherGames>(
      *this, OtherGamesNames{.twoD = "fcbm", .threeD = "zcbm", .fourD = "cbm"});
  addHelpAboutExit(*this);
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

void Triang::addBoardMenu() {
  kda = &addMenu("kda", "", "Board");
  ver_ = &addWorldEntries(*this, "kda");
  szmen_ = &addMenuArray("szmen", "kda", 1, kNormalSize);
  for (Element& entry : *szmen_) {
    entry.Caption = kSizeCaptions.at(static_cast<size_t>(entry.index));
  }
  (*szmen_)[kNormalSize].Checked = true;
}

// Handlers and state by the program's names.
void Triang::registerNames() {
  registerHandlers();
  registerVariables();
}

// The indexed handlers with their element's index, and the three ways to New.
void Triang::registerHandlers() {
  using Indexed = void (Triang::*)(int);
  const std::pair<const char*, Indexed> kIndexed[] = {
      {"Label1_Click", &Triang::Label1_Click},  {"Label2_Click", &Triang::Label2_Click},
      {"Label133_Click", &Triang::szmen_Click}, {"szmen_Click", &Triang::szmen_Click},
      {"game_Click", &Triang::game_Click},      {"ip_Click", &Triang::ip_Click}};
  for (const auto& entry : kIndexed) {
    Indexed handler = entry.second;
    handleIndexed(entry.first, [this, handler](int i) { (this->*handler)(i); });
  }
  handleIndexed("ver_Click", [this](int) { ver_Click(); });
  for (const char* name : {"gmc_Click", "Command1_Click", "Command7_Click"}) {
    handle(name, [this] { gmc_Click(); });
  }
}

// The game's state by the program's names; `celllines` and `sidemark` by
// cell and slot 1..3.
void Triang::registerVariables() {
  for (auto [name, value] : {std::pair{"gameindex", &gameindex},
                             {"movestotal", &movestotal},
                             {"whosnext", &whosnext},
                             {"openerflag", &openerflag},
                             {"mark", &mark},
                             {"finished", &finished},
                             {"gameover", &gameover},
                             {"inputlock", &inputlock},
                             {"endgameflag", &endgameflag},
                             {"lastcell", &lastcell},
                             {"freshboard", &freshboard}}) {
    var(name, *value);
  }
  varArrayOf("celltaken", 1, kCells, celltaken);
  varArrayOf("cellscored", 1, kCells, cellscored);
  varArrayOf("lineowner", 1, kLines, lineowner);
  varArrayOf("sidecount", 1, kCells, sidecount);
  varArrayOf("linecount", 1, kCells, linecount);
  varTableOf("celllines", {1, kCells}, {1, 3}, celllines, 1);
  varTableOf("sidemark", {1, kCells}, {1, 3}, sidemark, 1);
  varArray("candidates", 1, kLines, [this](int i) {
    auto at = static_cast<size_t>(i);
    return num(at <= candidates.size() ? candidates[at - 1] : 0);
  });
}

// A circle at the start of a game: the board's colour inside, a black rim.
void Triang::clearCircles() {
  for (Element& circle : *board_.circles) {
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
  (*ver_)[1].Checked = false;
  (*ver_)[2].Checked = true;
}

}  // namespace vrask
