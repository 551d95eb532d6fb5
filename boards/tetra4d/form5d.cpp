#include "boards/tetra4d/form5d.h"

#include <array>
#include <string>
#include <string_view>

#include "boards/tetra4d/captions.h"
#include "boards/tetra4d/layout.h"
#include "boards/tetra4d/look.h"
#include "frame/expert_menu.h"
#include "frame/grid_switch.h"
#include "frame/handler_table.h"
#include "frame/helpers.h"
#include "frame/keypad.h"
#include "frame/other_games.h"
#include "frame/round_list.h"
#include "frame/session_menu.h"
#include "frame/sudden_death.h"
#include "launcher/shared_state.h"

namespace vrask {

using namespace tetra4d;
namespace lay = tetra4d::layout;

namespace {

constexpr int kGridNumbers = color::Yellow;
constexpr double kNumberDrop = 60;
// The second hit areas of the three spokes of the back bottom right corner,
// by apex.
constexpr std::array<int, 3> kSecondHitAreas{300, 470, 390};
constexpr int kLastHitArea = 470;

constexpr std::array<const char*, 8> kGameCaptions{"",
                                                   "Ombrel",
                                                   "-",
                                                   "Vrask  (Classic)",
                                                   "Vrask  (Set count)",
                                                   "-",
                                                   "Vrask  (Classic with Vrask move)",
                                                   "Vrask  (Set count with Vrask move)"};

// A label at its place, with its caption on the form's background.
Element& label(Element& e, const Rect& r, std::string_view caption, double fontSize = 10,
               bool bold = false) {
  return captioned(placed(e, r), std::string(caption), fontSize, bold);
}

// The drawn segments of a line are named for their cube or apex and the
// edge or corner: `c1fronttop`, `c5lefttop`, `t3rightback`.
std::string lineName(std::string_view kind, int number, std::string_view part) {
  std::string name(kind);
  name += std::to_string(number);
  name += part;
  return name;
}

// The uprights of a cube: leftfront, rightfront, leftback, rightback.
bool isUpright(int e) {
  return e == 5 || e == 6 || e == 10 || e == 11;
}

// Apexes by the index of their second hit area.
int apexOfSecondHitArea(int index) {
  for (int apex = 1; apex <= 3; ++apex) {
    if (kSecondHitAreas.at(static_cast<size_t>(apex - 1)) == index) return apex;
  }
  return 0;
}

}  // namespace

// The design in paint order, then the state of a form just loaded: the
// single cube, the line game, no time limit.
void form5d::Form_Load() {
  addFigures();
  addCircles();
  addHitAreas();
  addScores();
  addStatus();
  addBelowFigures();
  addMenus();
  flow_ = std::make_unique<TurnFlow>(*this, *roundList_, *keypad_,
                                     TurnFlowNames{.bluePoints = {"Label5", std::nullopt},
                                                   .redPoints = {"Label6", std::nullopt},
                                                   .blueTurn = {"Label4", std::nullopt},
                                                   .redTurn = {"Label3", std::nullopt},
                                                   .lastMove = "Label12",
                                                   .lastMoveCaption = std::string(kLastMove),
                                                   .gameMenus = {"pwm", "gamz", "pme"}});
  registerHandlers();
  registerVariables();
  Caption = shared().text(shared::kProductTitle);
  Width = lay::kFormWidth;
  Height = lay::kFormHeight;
  BackColor = kBoardColour;
  openAboveCentre = 300;

  lvm_Click(kSingleCube);
  lntri_ = lineTriangles(board_.triln);
  game_Click(kOmbrel);
  sd_->choose(1);
}

// The figures are painted first, so that circles, numbers and hit areas lie
// over them.
void form5d::addFigures() {
  addCube(1);
  addCube(2);
  for (int e = 1; e <= kEdges; ++e) {
    Element& line = addSegment(lineName("c", 5, kEdgeNames.at(static_cast<size_t>(e))), 1, 1,
                               isUpright(e) ? kMiddleUpright : color::White);
    placedLine(line, lay::edgeIn(3, e));
    middle_.at(static_cast<size_t>(e)) = findArray(line.name);
  }
  for (int apex = 1; apex <= 3; ++apex) addSpokes(apex);
}

// Views 0 and 1 of a cube stand in one place: the line game shows view 0 of
// the first cube, the circle games view 1; the right figure shows the second
// cube's own lines (view 0) in the larger level and the first cube's (view 1)
// in the smaller.
void form5d::addCube(int cube) {
  for (int e = 1; e <= kEdges; ++e) {
    std::string name = lineName("c", cube, kEdgeNames.at(static_cast<size_t>(e)));
    addSegment(name, 0, 1, color::White);
    ElementArray* views = findArray(name);
    for (Element& line : *views) placedLine(line, lay::edgeIn(cube, e));
    cubes_.at(static_cast<size_t>(cube)).at(static_cast<size_t>(e)) = views;
  }
}

void form5d::addSpokes(int apex) {
  for (int k = 0; k < kSpokes; ++k) {
    std::string name = lineName("t", apex, kSpokeNames.at(static_cast<size_t>(k)));
    placedLine(addSegment(name, 0, 0, spokeColour(apex, k)), lay::spokeIn(apex, k));
    spokes_.at(static_cast<size_t>(apex)).at(static_cast<size_t>(k)) = findArray(name);
  }
}

Element& form5d::addSegment(const std::string& name, int lo, int hi, int design) {
  ElementArray& views = addArray(name, Kind::Line, lo, hi);
  for (Element& line : views) {
    line.BorderColor = design;
    designColours_.emplace_back(&line, design);
  }
  return views[lo];
}

void form5d::addCircles() {
  Shape1_ = &addArray("Shape1", Kind::Shape, 0, kTriangles - 1);
  Label99_ = &addArray("Label99", Kind::Label, 0, kTriangles - 1);
  for (int t = 1; t <= kTriangles; ++t) {
    Element& r = placed(ring(t), lay::ringOf(t));
    r.Shape = Circle;
    r.FillStyle = 0;
    r.FillColor = kCircleFill;
    r.BorderColor = color::WindowText;
    r.Visible = false;
    // A caption stands at the top of its label: the circle's label starts a
    // little down the ring so that the number sits in its middle.
    lay::Rect inside = lay::ringOf(t);
    inside.top += kNumberDrop;
    inside.height -= kNumberDrop;
    Element& circle = label(Label99(t - 1), inside, "", 9, true);
    circle.Alignment = AlignCenter;
    circle.ForeColor = color::Black;
    circle.Visible = false;
  }
}

// Each line is hit at one place in its figure (a spoke of the back bottom
// right corner, hidden behind the cube, at a second place too); the grid
// number of a line stands on its hit area.
void form5d::addHitAreas() {
  Label1_ = &addArray("Label1", Kind::Label, 0, kLastHitArea);
  for (Element& area : *Label1_) {
    area.BackStyle = 0;
    area.Visible = false;
    int apex = apexOfSecondHitArea(area.index);
    if (area.index < kSlots) {
      placed(area, lay::hitArea(area.index + 1));
      area.Visible = !isSecondCube(area.index + 1);
    } else if (apex != 0) {
      placed(area, lay::hitArea(spokeSlot(apex, 6), true));
      area.Visible = true;
    }
  }
  Label9_ = &addArray("Label9", Kind::Label, 1, kLastNumber);
  for (Element& number : *Label9_) {
    label(number, lay::hitArea(slotOfNumber(number.index)), std::to_string(number.index), 8, true);
    number.ForeColor = kGridNumbers;
    number.Alignment = AlignCenter;
    number.Visible = false;
  }
}

// Blue on the left, Red on the right: a name plate, the points, and "Your
// turn" under the side to move.
void form5d::addScores() {
  Element& blue =
      label(add("Label333", Kind::Label), lay::kBlueName, "Player 1  -  Blue", 10, true);
  Element& red = label(add("Label444", Kind::Label), lay::kRedName, "Player 2  -  Red", 10, true);
  blue.BackColor = kBlueColour;
  red.BackColor = kRedColour;
  for (Element* plate : {&blue, &red}) {
    plate->BackStyle = 1;
    plate->ForeColor = color::White;
    plate->Alignment = AlignCenter;
  }
  Label5 = &label(add("Label5", Kind::Label), lay::kBluePoints, "0", 28, true);
  Label6 = &label(add("Label6", Kind::Label), lay::kRedPoints, "0", 28, true);
  Label4 = &label(add("Label4", Kind::Label), lay::kBlueTurn, "Your turn", 10, true);
  Label3 = &label(add("Label3", Kind::Label), lay::kRedTurn, "Your turn", 10, true);
  Label5->ForeColor = Label4->ForeColor = kBlueColour;
  Label6->ForeColor = Label3->ForeColor = kRedColour;
  for (Element* e : {Label5, Label6, Label4, Label3}) e->Alignment = AlignCenter;
  Label3->Visible = false;
}

void form5d::addStatus() {
  Label36 = &label(add("Label36", Kind::Label), lay::kGameName, "", 11, true);
  Label33 = &label(add("Label33", Kind::Label), lay::kStatus, "", 12, true);
  // Its colour is the mover's, black included, so it stands on white.
  Label33->BackStyle = 1;
  Label33->BackColor = color::White;
  Label33->ForeColor = kBlueColour;
  Label8 = &label(add("Label8", Kind::Label), lay::kMovesLeft, movesLeft(36), 10, true);
  Label12 = &label(add("Label12", Kind::Label), lay::kLastMove, kLastMove, 10);
  Label10 = &label(add("Label10", Kind::Label), lay::kNote, kDualCubeNote, 9);
  Label10->ForeColor = color::Yellow;
  Label10->Visible = false;
  Label34 = &label(add("Label34", Kind::Label), lay::kHintCount, "", 10, true);
  Label34->ForeColor = color::Yellow;
  Label34->Visible = false;
  for (Element* e : {Label36, Label33, Label8, Label12, Label10, Label34})
    e->Alignment = AlignCenter;
}

void form5d::addBelowFigures() {
  roundList_ = std::make_unique<RoundList>(*this, RoundListConfig{.place = lay::kRoundList});
  (*findArray("Label7"))[2].ForeColor = kRedColour;
  Command1 = &placed(add("Command1", Kind::Button), lay::kNewGame);
  Command1->Caption = "New game";
  Option1_ = &addArray("Option1", Kind::Label, 0, 1);
  label((*Option1_)[0], lay::kGridOff, "Grid off");
  label((*Option1_)[1], lay::kGridOn, "Grid on");
  label(add("Label16", Kind::Label), lay::kTimeHeading, "Time for a move");

  // "GAME" "OVER" twice, in two rows.
  Label15_ = &addArray("Label15", Kind::Label, 0, 3);
  const lay::Rect& over = lay::kGameOver;
  for (Element& word : *Label15_) {
    double half = over.width / 2;
    double row = over.height / 2;
    lay::Rect place{over.left + (word.index % 2) * half, over.top + (word.index >= 2 ? row : 0.0),
                    half, row};
    label(word, place, word.index % 2 == 0 ? "GAME" : "OVER", 24, true).ForeColor = kRedColour;
    word.Alignment = AlignCenter;
    word.Visible = false;
  }
  List3 = &placed(add("List3", Kind::ListBox), lay::kHintList);
  List3->BackColor = color::White;
  List3->Visible = false;
}

void form5d::addMenus() {
  addMenu("gmg", "", "Game");
  addMenuArray("gmm", "gmg", 1, 1)[1].Caption = "New Game";
  addMenu("gsep", "gmg", "-");
  addExitEntry(*this, "gmg");

  gamz = &addMenu("gamz", "", "Games");
  game_ = &addMenuArray("game", "gamz", kOmbrel, kSetCountVraskMove);
  for (Element& entry : *game_) entry.Caption = kGameCaptions.at(static_cast<size_t>(entry.index));

  pwm = &addMenu("pwm", "", "Players");
  pl_ = &addMenuArray("pl", "pwm", 1, 2);
  pl(1).Caption = "1 player verus the computer";
  pl(2).Caption = "2 Players";
  pl(1).Checked = true;

  pme = &addMenu("pme", "", "Level");
  lvm_ = &addMenuArray("lvm", "pme", kSingleCube, kDualCube);
  lvm(kSingleCube).Caption = "Single Cube (Simple)";
  lvm(kDualCube).Caption = "Dual Cube (more complex)";
  lvm(kSingleCube).Checked = true;

  addMenu("ks", "", "Options");
  grid_ = std::make_unique<GridSwitch>(*this, "ks", [this](bool on) { showNumbers(on); });
  keypad_ = std::make_unique<Keypad>(
      *this, *grid_, [this] { Command4_Click(); },
      KeypadConfig{.enterButton = "Command4", .panel = lay::kKeypad, .opener = lay::kKeypadOpener});
  hidmov = &addMenu("hidmov", "ks", "Hide the rings of played circles that score for nobody");
  addMenu("osep", "ks", "-");
  sd_ = std::make_unique<SuddenDeath>(*this,
                                      SuddenDeathConfig{.interval = 100, .bar = lay::kTimeBar});
  addOnlineEntries(*this, "ks");
  expert_ = std::make_unique<ExpertMenu>(*this, "ks", [this] { expertHint_Click(); });

  addMenu("hntm", "", "Hints");
  hnt = &addMenu("hnt", "hntm", "Hint when no good (non-scoring) moves are left (computer's turn)");
  shint = &addMenu("shint", "hntm", "Super Hint: How many non-scoring moves left (your turn)");
  bhint = &addMenu("bhint", "hntm", "Best Hint: Tell you what non-scoring moves are left");

  otherGames_ = std::make_unique<OtherGames>(*this);

  addMenu("hlp", "", "Help");
  addHelpEntry(*this, "heme", "hlp");
  addAboutEntry(*this, "abt", "hlp");
}

void form5d::registerHandlers() {
  bindHandlers(*this, {{"Label1_Click", &form5d::Label1_Click},
                       {"Label9_Click", &form5d::Label9_Click},
                       {"Label99_Click", &form5d::Label99_Click},
                       {"game_Click", &form5d::game_Click},
                       {"lvm_Click", &form5d::lvm_Click},
                       {"pl_Click", &form5d::pl_Click},
                       {"Option1_Click", &form5d::Option1_Click}});
  // New stands in the menu and as the button under the round list.
  handleIndexed("gmm_Click", [this](int) { gmm_Click(); });
  handle("Command1_Click", [this] { gmm_Click(); });
  handle("shint_Click", [this] { hint_Click(*shint, Label34); });
  handle("bhint_Click", [this] { hint_Click(*bhint, List3); });
  handle("hnt_Click", [this] { hint_Click(*hnt, nullptr); });
  handle("hidmov_Click", [this] { hidmov->Checked = !hidmov->Checked; });
  handle("List3_Click", [this] { List3_Click(); });
  handle("List3_DblClick", [this] { List3_DblClick(); });
}

void form5d::registerVariables() {
  const std::array<std::pair<const char*, int*>, 9> counters{{{"gamenum", &gamenum},
                                                              {"curplayer", &curplayer},
                                                              {"players", &players},
                                                              {"movesleft", &movesleft},
                                                              {"scoredflag", &scoredflag},
                                                              {"firstturn", &firstturn},
                                                              {"compbusy", &compbusy},
                                                              {"overflag", &overflag},
                                                              {"compflash", &compflash}}};
  for (const auto& [name, value] : counters) var(name, *value);
  var("level", [this] { return num(board_.level); });
  varArray("lnstate", 1, kSlots,
           [this](int slot) { return num(board_.lnstate.at(static_cast<size_t>(slot))); });
  varTable("triside", {1, kTriangles}, {1, 3}, [this](int t, int s) {
    return num(board_.triside.at(static_cast<size_t>(t)).at(static_cast<size_t>(s)));
  });
  varTable("triln", {1, kRows}, {1, 3}, [this](int row, int s) {
    return num(board_.triln.at(static_cast<size_t>(row)).at(static_cast<size_t>(s)));
  });
  varTable("lntri", {0, kSlots - 1}, {1, 6}, [this](int index, int k) {
    const std::vector<int>& rows = lntri_.at(static_cast<size_t>(index));
    return num(k <= static_cast<int>(rows.size()) ? rows.at(static_cast<size_t>(k - 1)) : 0);
  });
}

}  // namespace vrask
