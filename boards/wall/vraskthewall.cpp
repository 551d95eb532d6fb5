#include "boards/wall/vraskthewall.h"

#include <algorithm>
#include <array>

#include "boards/wall/captions.h"
#include "boards/wall/layout.h"
#include "boards/wall/look.h"
#include "frame/grid_switch.h"
#include "frame/handler_table.h"
#include "frame/keypad.h"
#include "frame/other_games.h"
#include "frame/round_list.h"
#include "frame/session_menu.h"
#include "frame/turn_flow.h"
#include "launcher/shared_state.h"

namespace vrask {

using namespace wall;
namespace lay = wall::layout;

namespace {

// The lines of the front are 1..30 and 97..126; the rest lie behind it or
// run from front to back.
bool onFront(int line) {
  auto ends = endsOf(line);
  return ends[0].depth == 0 && ends[1].depth == 0;
}

}  // namespace

vraskthewall::vraskthewall(Program& program) : Form(program, "vraskthewall") {
  BackColor = kColours.board;
  Width = lay::kFormWidth;
  Height = lay::kFormHeight;
  openAboveCentre = 300;
}

vraskthewall::~vraskthewall() = default;

// The design first, in paint order, then the load: the wall the launcher
// asked for, the first game of the list, Blue to move.
void vraskthewall::Form_Load() {
  Caption = shared().text(shared::kProductTitle);
  placed(add("Picture2", Kind::Picture), lay::kSidePanel).BackColor = kColours.panel;
  addBoard();
  addStatus();
  addScores();
  addLevelButtons();
  addMenus();
  roundList_ = std::make_unique<RoundList>(
      *this, RoundListConfig{
                 .list = "List4", .firstRow = "", .afterWinner = "\t\t", .place = lay::kRoundList});
  flow_ = std::make_unique<TurnFlow>(*this, *roundList_, *keypad_,
                                     TurnFlowNames{.bluePoints = {"Label5", std::nullopt},
                                                   .redPoints = {"Label6", std::nullopt},
                                                   .blueTurn = {"Label4", std::nullopt},
                                                   .redTurn = {"Label3", std::nullopt},
                                                   .lastMove = "Label12",
                                                   .gameMenus = {"zx", "xq"}});
  registerHandlers();
  registerVariables();

  celllines = startwall();
  game_Click(Classic);
  bd_Click(std::clamp(shared().number(shared::kWallLevel), 1, kLevels));
  flow_->say(kClickACircle, color::Blue);
  flow_->showTurn(Side::Blue);
}

void vraskthewall::addBoard() {
  wallshade = &add("wallshade", Kind::Picture);
  wallshade->BackColor = kColours.board;
  wallfront = &add("wallfront", Kind::Shape);
  wallfront->FillStyle = 0;
  wallfront->FillColor = kColours.front;
  wallfront->BorderColor = kColours.front;

  a_ = &addArray("a", Kind::Line, 1, kLines);
  for (Element& edge : *a_)
    edge.BorderColor = onFront(edge.index) ? kColours.frontEdge : kColours.backEdge;
  Line3_ = &addArray("Line3", Kind::Line, 1, kLines);
  for (Element& line : *Line3_) {
    line.Visible = false;
    line.BorderColor = color::Black;
  }
  Shape1_ = &addArray("Shape1", Kind::Shape, 10, 10 * kSquares);
  for (Element& circle : *Shape1_) {
    circle.Visible = circle.index % 10 == 0;
    circle.Shape = Circle;
    circle.FillStyle = 0;
    circle.FillColor = kColours.circle;
    circle.BorderColor = color::WindowText;
  }
  Label9_ = &addArray("Label9", Kind::Label, 1, kSquares);
  for (Element& target : *Label9_) {
    target.BackStyle = 0;
    target.Alignment = AlignCenter;
    target.ForeColor = kColours.number;
    target.FontBold = true;
  }
}

// Where the wall of level `bd` stands: every level fills the same room.
void vraskthewall::placeWall(int bd) {
  placed(*wallshade, {lay::kBoardLeft, lay::kBoardTop, lay::kBoardSpan, lay::kBoardSpan});
  wallshade->Cls();
  auto shade = [&](const std::vector<Segment>& strokes, int colour) {
    for (const Segment& s : strokes) {
      wallshade->drawing.push_back({s.x1 - lay::kBoardLeft, s.y1 - lay::kBoardTop,
                                    s.x2 - lay::kBoardLeft, s.y2 - lay::kBoardTop, colour});
    }
  };
  shade(lay::topStrokes(bd), kColours.top);
  shade(lay::endStrokes(bd), kColours.end);
  placed(*wallfront, lay::frontOf(bd));

  std::array<bool, kLines + 1> onThisWall{};
  for (int s = 1; s <= kSquares; ++s) {
    if (!onWall(s, bd)) continue;
    for (int k = 1; k <= 4; ++k) onThisWall.at(celllines.at(s).at(k)) = true;
  }
  for (int line = 1; line <= kLines; ++line) {
    Segment s = lay::lineAt(line, bd);
    placedLine((*a_)[line], s);
    placedLine(Line3(line), s);
    (*a_)[line].Visible = onThisWall.at(line);
  }
  for (int s = 1; s <= kSquares; ++s) {
    placed(circleOf(s), lay::circleAt(s, bd));
    placed(Label9(s), lay::targetAt(s, bd)).FontSize = lay::numberSizeOf(bd);
  }
}

void vraskthewall::addStatus() {
  Label36 = &captioned(placed(add("Label36", Kind::Label), lay::kGameName), "", 10, true);
  Element& status = captioned(placed(add("Label33", Kind::Label), lay::kStatus), "", 11, true);
  // Its colour is the mover's, so it stands on white.
  status.BackStyle = 1;
  status.BackColor = color::White;
  status.Alignment = AlignCenter;
  Label34 =
      &captioned(placed(add("Label34", Kind::Label), lay::kMovesLeftHeading), kMovesLeftHeading);
  Label35 = &captioned(placed(add("Label35", Kind::Label), lay::kMovesLeft), "");
  captioned(placed(add("Label12", Kind::Label), lay::kLastMove), kLastMove);
}

// Blue's column on the left, Red's on the right: a heading, the points, and
// the flag of the side to move (`Label4` Blue's, `Label3` Red's).
void vraskthewall::addScores() {
  ElementArray& headings = addArray("Label10", Kind::Label, 0, 1);
  std::array<std::array<Element*, 3>, 2> columns{
      {{&headings[0], &add("Label5", Kind::Label), &add("Label4", Kind::Label)},
       {&headings[1], &add("Label6", Kind::Label), &add("Label3", Kind::Label)}}};
  for (size_t red = 0; red <= 1; ++red) {
    auto [heading, points, flag] = columns.at(red);
    double left = red == 1 ? lay::kRedScoreLeft : lay::kColumnLeft;
    const lay::ScoreColumn& at = lay::kScores;
    placed(captioned(*heading, red == 1 ? "Red" : "Blue", 10, true),
           {left, at.headingTop, at.width, lay::kLineHeight});
    placed(captioned(*points, "0", 28, true), {left, at.pointsTop, at.width, at.pointsHeight});
    placed(captioned(*flag, "Your turn", 10, true), {left, at.flagTop, at.width, lay::kLineHeight});
    for (Element* e : columns.at(red)) {
      e->ForeColor = red == 1 ? color::Red : color::Blue;
      e->Alignment = AlignCenter;
    }
  }
}

// The buttons of the three walls, "3", "4" and "5" cubes a side, New below
// them, and "GAME" "OVER" below that.
void vraskthewall::addLevelButtons() {
  Label14 = &captioned(placed(add("Label14", Kind::Label), lay::kLevelHeading), "Wall size");
  Label13_ = &addArray("Label13", Kind::Label, 1, kLevels);
  for (Element& button : *Label13_) {
    const lay::Row& row = lay::kLevelButtons;
    placed(captioned(button, std::to_string(sideOf(button.index)), 10, true),
           {lay::kColumnLeft + row.step * (button.index - 1), row.top, row.width, row.height});
    button.BackStyle = 1;
    button.Alignment = AlignCenter;
  }
  placed(add("Command1", Kind::Button), lay::kNewGame).Caption = "New game";
  for (Element& label : addArray("Label15", Kind::Label, 0, 3)) {
    int row = label.index / 2;
    int column = label.index % 2;
    const lay::Row& block = lay::kGameOver;
    placed(captioned(label, column == 0 ? "GAME" : "OVER", 24, true),
           {lay::kColumnLeft + column * (lay::kColumnWidth - block.width),
            block.top + row * block.step, block.width, block.height});
    label.ForeColor = color::Red;
    label.Alignment = AlignCenter;
    label.Visible = false;
  }
}

void vraskthewall::addMenus() {
  addGamesMenu();
  addMenu("new", "", "&New");
  addOptionsMenu();
  otherGames_ = std::make_unique<OtherGames>(
      *this, OtherGamesNames{.twoD = "cbm", .threeD = "cccbm", .fourD = "ccccbm"});
  // Help and About stay open during a game, and so does Exit.
  addMenu("hlp", "", "Help");
  addHelpEntry(*this, "rulec", "hlp");
  addAboutEntry(*this, "abt", "hlp");
  addExitEntry(*this, "");
}

// The games and, below them, the three walls. Both close with the first
// move of a game.
void vraskthewall::addGamesMenu() {
  addMenu("zx", "", "Games Menu");
  game_ = &addMenuArray("game", "zx", 0, static_cast<int>(kGameCaptions.size()) - 1);
  for (Element& entry : *game_) {
    entry.Caption = kGameCaptions.at(static_cast<size_t>(entry.index));
    entry.Visible =
        std::find(kGameCodes.begin(), kGameCodes.end(), entry.index) != kGameCodes.end();
  }
  addMenu("zsep", "zx", "-");
  bd_ = &addMenuArray("bd", "zx", 1, kLevels);
  for (Element& entry : *bd_)
    entry.Caption = kLevelCaptions.at(static_cast<size_t>(entry.index - 1));
}

void vraskthewall::addOptionsMenu() {
  addMenu("xq", "", "Options");
  ip_ = &addMenuArray("ip", "xq", 0, static_cast<int>(kPlayerCaptions.size()) - 1);
  for (Element& entry : *ip_) {
    entry.Caption = kPlayerCaptions.at(static_cast<size_t>(entry.index));
    entry.Visible = entry.index <= 1;
    entry.Checked = entry.index == 0;
  }
  addMenu("osep", "xq", "-");
  hidmov = &addMenu("hidmov", "xq", "Hide non-scoring moves in Vrask games");
  ch = &addMenu("ch", "xq", "Show number of moves left");
  ch->Checked = true;
  grid_ = std::make_unique<GridSwitch>(
      *this, "xq", [this](bool on) { showNumbers(on); }, "grid");
  keypad_ = std::make_unique<Keypad>(
      *this, *grid_, [this] { Command4_Click(); },
      KeypadConfig{.parentMenu = "xq",
                   .enterButton = "Command4",
                   .panel = lay::kKeypad,
                   .opener = lay::kKeypadOpener});
  addOnlineEntries(*this, "xq");
}

// The clicks the wall answers, by the handlers' own names.
void vraskthewall::registerHandlers() {
  bindHandlers(*this,
               {{"Label9_Click", &vraskthewall::Label9_Click},
                {"Label13_Click", &vraskthewall::bd_Click},
                {"bd_Click", &vraskthewall::bd_Click},
                {"game_Click", &vraskthewall::game_Click},
                {"ip_Click", &vraskthewall::ip_Click}},
               {{"ch_Click", &vraskthewall::ch_Click},
                {"hidmov_Click", &vraskthewall::hidmov_Click},
                {"new_Click", &vraskthewall::new_Click},
                {"Command1_Click", &vraskthewall::new_Click}});
}

void vraskthewall::registerVariables() {
  for (auto [name, value] : {std::pair<const char*, int*>{"gamecode", &gamecode},
                             {"wallsize", &wallsize},
                             {"openerflag", &openerflag},
                             {"compbusy", &compbusy},
                             {"gameover", &gameover}}) {
    var(name, *value);
  }
  varArray("squaretaken", 1, kSquares,
           [this](int s) { return num(squaretaken.at(static_cast<size_t>(s))); });
  varTable("celllines", {1, kSquares}, {1, 4}, [this](int s, int k) {
    return num(celllines.at(static_cast<size_t>(s)).at(static_cast<size_t>(k)));
  });
}

}  // namespace vrask
