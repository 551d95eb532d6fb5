#include "boards/zorvex/zorvex.h"

#include <tuple>

#include "boards/zorvex/captions.h"
#include "boards/zorvex/layout.h"
#include "boards/zorvex/look.h"
#include "frame/expert_menu.h"
#include "frame/grid_switch.h"
#include "frame/handler_table.h"
#include "frame/keypad.h"
#include "frame/other_games.h"
#include "frame/round_list.h"
#include "frame/session_menu.h"
#include "frame/sudden_death.h"
#include "frame/turn_flow.h"

namespace vrask {

namespace {

constexpr int kRingFill = 0xE8E8E8;
constexpr double kNumberSize = 8;
constexpr double kCircleNumberSize = 11;

}  // namespace

using namespace cube;
namespace lay = cube::layout;

zorvex::zorvex(Program& program) : Form(program, "zorvex") {}

zorvex::~zorvex() = default;

// The design in paint order, then the load in its own order.
void zorvex::Form_Load() {
  Caption = kWindowTitle;
  Width = lay::kForm.width;
  Height = lay::kForm.height;
  openAboveCentre = 300;
  BackColor = kBoardColour;
  placed(add("Picture3", Kind::Picture), lay::kSidePanel).BackColor = kPanelColour;
  addBoard();
  addTargets();
  addStatus();
  addScores();
  addControls();
  addMenus();
  addCumulativePanel();
  flow_.emplace(*this, *roundList_, *keypad_,
                TurnFlowNames{.bluePoints = {"Label5", std::nullopt},
                              .redPoints = {"Label6", std::nullopt},
                              .blueTurn = {"Label4", std::nullopt},
                              .redTurn = {"Label3", std::nullopt},
                              .lastMove = "Label12",
                              .newButton = "Command7",
                              .gameMenus = {"sdz", "xq"}});
  registerHandlers();
  registerVariables();

  gamemode = VraskClassic;
  game(VraskClassic).Checked = true;
  Label36->Caption = modeText(VraskClassic).name;
  openerflag = 1;
  tables = settables();
  for (int n = 1; n <= kLines; ++n) {
    numbercolour.at(static_cast<size_t>(n)) = designColour(lineIndexOfNumber(n));
  }
  for (Element& e : *Label9_) e.Visible = false;
  for (Element& e : *Shape1_) e.Visible = false;
  for (Element& e : *Label11_) e.Visible = false;
  for (Element& e : *Label22_) {
    e.BackStyle = 0;
    e.Caption.clear();
  }
  Label33->Caption = kPleaseWait;
  flow_->setGameMenusEnabled(false);
  sd_->choose(1);
  voomaster();
}

void zorvex::addBoard() {
  LN_ = &addArray("LN", Kind::Line, 1, kLines + 36);
  for (int slot = 1; slot <= kLines; ++slot) {
    placedLine(LN(slot), lay::lineAt(slot)).BorderColor = designColour(slot);
  }
  int i = kLines;
  for (const Strand& strand : strands()) {
    Element& e = placedLine(LN(++i), lay::strandAt(strand.line, strand.offset));
    e.BorderColor = strand.colour;
  }
  Line2_ = &addArray("Line2", Kind::Line, 10, 10 * kSquares);
  for (Element& e : *Line2_) e.Visible = false;
  for (int s = 1; s <= kSquares; ++s) {
    placedLine(Line2(s), lay::diagonalAt(s)).BorderWidth = 3;
  }
  Line3_ = &addArray("Line3", Kind::Line, 0, 2 * kViews - 1);
  for (Element& e : *Line3_) {
    placedLine(e, lay::viewMarkerAt(e.index));
    e.BorderColor = color::Yellow;
    e.BorderWidth = 3;
    e.Visible = false;
  }
  Shape1_ = &addRings(*this, kSquares, lay::ringAt, kRingFill);
}

// The hit zones over the lines, the numbers beside them and the circles on
// top: a click reaches the topmost of them.
void zorvex::addTargets() {
  Label22_ = &addArray("Label22", Kind::Label, 0, lay::kZones - 1);
  for (Element& zone : *Label22_) placed(zone, lay::zoneAt(zone.index));
  Label11_ = &addArray("Label11", Kind::Label, 1, kLines);
  for (Element& number : *Label11_) {
    placed(captioned(number, "", kNumberSize, true),
           lay::numberAt(lineIndexOfNumber(number.index)));
    number.Alignment = AlignCenter;
  }
  Label9_ = &addArray("Label9", Kind::Label, 0, kSquares);
  for (Element& circle : *Label9_) {
    placed(captioned(circle, "", kCircleNumberSize, true),
           circle.index == 0 ? lay::kSecondCircle30 : lay::circleAt(circle.index));
    circle.Alignment = AlignCenter;
    circle.ForeColor = color::Black;
  }
}

void zorvex::addStatus() {
  Label36 = &captioned(placed(add("Label36", Kind::Label), lay::kGameName), "", 10, true);
  Label36->Alignment = AlignCenter;
  Label33 = &captioned(placed(add("Label33", Kind::Label), lay::kStatus), "", 10, true);
  // The mover's colour, Black included, reads on white.
  std::tie(Label33->BackStyle, Label33->BackColor, Label33->ForeColor, Label33->Alignment) =
      std::tuple(1, color::White, color::Blue, static_cast<int>(AlignCenter));
  Label34 = &captioned(placed(add("Label34", Kind::Label), lay::kMovesLeft), "");
  Label35 = &captioned(placed(add("Label35", Kind::Label), lay::kNonScoring), "");
  Label12 = &captioned(placed(add("Label12", Kind::Label), lay::kLastMove), kLastMove, 10, true);
}

// Blue on the left, Red on the right: the player, the points and the "Your
// turn" marker of the side to move.
void zorvex::addScores() {
  Label1 = &captioned(add("Label1", Kind::Label), " Player 1:", 10, true);
  Label2 = &captioned(add("Label2", Kind::Label), " Player 2:", 10, true);
  Label5 = &captioned(add("Label5", Kind::Label), "0", 26, true);
  Label6 = &captioned(add("Label6", Kind::Label), "0", 26, true);
  Label4 = &captioned(add("Label4", Kind::Label), "Your turn", 10, true);
  Label3 = &captioned(add("Label3", Kind::Label), "Your turn", 10, true);
  struct Side {
    Element* player;
    Element* points;
    Element* yourTurn;
    int colour;
    double left;
  };
  for (const Side& side : {Side{Label1, Label5, Label4, color::Blue, lay::kColumnLeft},
                           Side{Label2, Label6, Label3, color::Red, lay::kRightHalf}}) {
    const auto& rows = lay::kPlayerRows;
    placed(*side.player, side.left, rows.player, lay::kHalf, lay::kLineHeight);
    placed(*side.points, side.left, rows.points, lay::kHalf, rows.pointsHeight);
    placed(*side.yourTurn, side.left, rows.yourTurn, lay::kHalf, lay::kLineHeight);
    for (Element* e : {side.player, side.points, side.yourTurn}) {
      e->ForeColor = side.colour;
      e->Alignment = AlignCenter;
    }
  }
  Label3->Visible = false;
  // `badmove` blanks it; the player never sees it.
  Label8 = &placed(add("Label8", Kind::Label), lay::kHidden);
  Label8->Visible = false;
}

void zorvex::addControls() {
  Label13 = &captioned(placed(add("Label13", Kind::Label), lay::kViewLabel), "View 1", 11, true);
  Label13->Alignment = AlignCenter;
  Command8_ = &addArray("Command8", Kind::Button, 0, 1);
  placed((*Command8_)[0], lay::kViewDown).Caption = "<<";
  placed((*Command8_)[1], lay::kViewUp).Caption = ">>";
  Command7 = &placed(add("Command7", Kind::Button), lay::kNewGame);
  Command7->Caption = "New Game";
  Label15_ = &addArray("Label15", Kind::Label, 0, 3);
  for (Element& label : *Label15_) {
    int column = label.index % 2;
    int row = label.index / 2;
    placed(captioned(label, column == 0 ? "GAME" : "OVER", 22, true),
           Rect{column == 0 ? lay::kColumnLeft : lay::kRightHalf,
                lay::kGameOverTop + row * lay::kGameOverRow, lay::kHalf, lay::kGameOverRow});
    label.ForeColor = color::Red;
    label.Alignment = AlignCenter;
    label.Visible = false;
  }
  List3 = &placed(add("List3", Kind::ListBox), lay::kHintList);
  List3->BackColor = color::White;
  List3->Visible = false;
  captioned(placed(add("Label16", Kind::Label), lay::kTimeHeading), "Time for a move");
}

void zorvex::addMenus() {
  addMenu("newz", "", "&New");
  addGamesMenu();
  addOptionsMenu();
  expert_ = std::make_unique<ExpertMenu>(*this, "sdz", [this] { hint_Click(); });
  addViewMenu();
  addHintsMenu();
  otherGames_.emplace(*this, OtherGamesNames{.twoD = "cbm", .threeD = "cccbm", .fourD = "ccccbm"});
  (*findArray("cccbm"))[7].Caption = std::string(kOwnEntry) + "  (THIS VERSION!)";
  addMenu("hlp", "", "Help");
  addHelpEntry(*this, "rulen", "hlp");
  addAboutEntry(*this, "abt", "hlp");
  addOnlineEntries(*this, "hlp");
  addExitEntry(*this, "");
}

void zorvex::addGamesMenu() {
  xq = &addMenu("xq", "", "Games");
  game_ = &addMenuArray("game", "xq", kFirstMode, kLastMode);
  for (Element& entry : *game_) {
    if (isSeparator(entry.index)) entry.Caption.assign(1, '-');
    entry.Visible = entry.index != ZorvexLines && entry.index != OldVraskClassic &&
                    entry.index != OldVraskSetCount;
  }
  for (const GameEntry& mode : kModeTexts) game(mode.index).Caption = mode.title.entry;
}

void zorvex::addOptionsMenu() {
  sdz = &addMenu("sdz", "", "Options");
  ip_ = &addMenuArray("ip", "sdz", 0, 1);
  for (Element& entry : *ip_) {
    entry.Caption = std::to_string(entry.index + 1).insert(0, "&") + " Player";
    entry.Checked = entry.index == 0;
  }
  addMenu("osep", "sdz", "-");
  sd_.emplace(*this, SuddenDeathConfig{.parentMenu = "sdz",
                                       .entries = 10,
                                       .timer = "Timer5",
                                       .interval = 100,
                                       .limitVar = "sdlimit",
                                       .leftVar = "sdclock",
                                       .readout = "Label10",
                                       .bar = lay::kTimeBar});
  hidmov = &addMenu("hidmov", "sdz", "Hide non-scoring made moves in Vrask games");
  hidmov->Checked = true;
  // The skill levels stay in the menu, out of sight: Beginner is the level.
  Element& skill = addMenu("sskm", "sdz", "Super Vrask Skill Level");
  skill.Visible = false;
  sskl_ = &addMenuArray("sskl", "sskm", 1, 3);
  sskl(1).Caption = "Beginner";
  sskl(2).Caption = "Intermediate";
  sskl(3).Caption = "Advanced";
  sskl(1).Checked = true;
}

// The view menu stays open all through a game: the numbers, the keypad and
// the cumulative score are wanted at any time.
void zorvex::addViewMenu() {
  addMenu("vue", "", "View");
  grid_.emplace(
      *this, "vue", [this](bool on) { grid_Click(on); }, "grid");
  keypad_.emplace(
      *this, *grid_, [this] { Command6_Click(); },
      KeypadConfig{.parentMenu = "vue",
                   .closeButton = "Command9",
                   .panel = lay::kKeypad,
                   .opener = lay::kKeypadOpener});
  keypad_->panel().Visible = false;
  cuscore = &addMenu("cuscore", "vue", "Show Cumulative score");
}

void zorvex::addHintsMenu() {
  addMenu("hnts", "", "Hints");
  hnt = &addMenu("hnt", "hnts", kHintCaption);
  shint = &addMenu("shint", "hnts", kSuperHintCaption);
  bhint = &addMenu("bhint", "hnts", kBestHintCaption);
}

// The rounds, the totals and their headers; hidden until asked for or until
// a game ends. "<<<" closes it.
void zorvex::addCumulativePanel() {
  Command2 = &placed(add("Command2", Kind::Button), lay::kShowRounds);
  Command2->Caption = "Show Cumulative score";
  roundList_.emplace(*this, RoundListConfig{.list = "List4",
                                            .labels = "Label7",
                                            .headerLabels = "Label20",
                                            .blueHeader = 1,
                                            .redHeader = 2,
                                            .firstRow = "",
                                            .afterWinner = "\t\t",
                                            .betweenScores = "\t\t",
                                            .place = lay::kRoundList});
  List4 = &roundList_->list();
  Label7_ = findArray("Label7");
  Label20_ = findArray("Label20");
  Command5 = &placed(add("Command5", Kind::Button), lay::kHideRounds);
  Command5->Caption = "<<<";
  // The panel's title closes it too.
  Label14 = &captioned(placed(add("Label14", Kind::Label), lay::kRoundsTitle),
                       "Cumulative score <<<", 9, true);
  hideCumulativePanel();
}

void zorvex::registerHandlers() {
  bindHandlers(*this,
               {{"Label22_Click", &zorvex::Label22_Click},
                {"Label11_Click", &zorvex::Label11_Click},
                {"Label9_Click", &zorvex::Label9_Click},
                {"game_Click", &zorvex::game_Click},
                {"ip_Click", &zorvex::ip_Click},
                {"sskl_Click", &zorvex::sskl_Click},
                {"Command8_Click", &zorvex::Command8_Click}},
               {{"hidmov_Click", &zorvex::hidmov_Click},
                {"newz_Click", &zorvex::newz_Click},
                {"Command7_Click", &zorvex::newz_Click},
                {"Command2_Click", &zorvex::Command2_Click},
                {"Command5_Click", &zorvex::Command5_Click},
                {"Label14_Click", &zorvex::Command5_Click},
                {"cuscore_Click", &zorvex::cuscore_Click},
                {"hnt_Click", &zorvex::hnt_Click},
                {"shint_Click", &zorvex::shint_Click},
                {"bhint_Click", &zorvex::bhint_Click}});
  handle("List3_Click", [this] { List3_Click(false); });
  handle("List3_DblClick", [this] { List3_Click(true); });
  handleKey("Text1_KeyDown", [this](int, int keyCode) { Text1_KeyDown(keyCode); });
}

void zorvex::registerVariables() {
  const std::pair<const char*, int*> scalars[] = {
      {"gamemode", &gamemode}, {"viewno", &viewno},         {"rednext", &rednext},
      {"moverid", &moverid},   {"openerflag", &openerflag}, {"busy", &busy},
      {"started", &started},   {"gameover", &gameover}};
  for (const auto& [name, value] : scalars) var(name, *value);
  // A table of the board is read by its own numbers.
  auto list = [](const auto& table) {
    return [&table](int i) { return num(table.at(static_cast<size_t>(i))); };
  };
  auto grid = [](const auto& table) {
    return [&table](int row, int k) { return num(table.at(static_cast<size_t>(row))[k]); };
  };
  varArray("lineowner", 1, kLines, list(lineowner));
  varArray("hitlines", 1, kLines, list(hitlines));
  varArray("scoredflags", 1, kSquares, list(scoredflags));
  varArray("circlestate", 1, kSquares, list(circlestate));
  varArray("cubescored", 1, kCubes, list(cubescored));
  varArray("flashlist", 1, 12, list(flashlist));
  varArray("flashsave", 1, 12, list(flashsave));
  varTable("squarelines", {1, kSquares}, {1, 4}, grid(tables.squarelines));
  varTable("cubesquares", {1, kCubes}, {1, 6}, grid(tables.cubesquares));
  varTable("cubelines", {1, kCubes}, {1, 12}, grid(tables.cubelines));
  varTable("squareinks", {1, kSquares}, {1, 4}, grid(squareinks));
  varTable("cubeinks", {1, kCubes}, {1, 12}, grid(cubeinks));
  varTable("cubefaces", {1, kCubes}, {1, 6}, grid(cubefaces));
  varArray("movepick", 1, 60, [this](int i) {
    auto at = static_cast<size_t>(i - 1);
    return num(at < movepick.size() ? movepick[at] : 0);
  });
}

}  // namespace vrask
