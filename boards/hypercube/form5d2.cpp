#include "boards/hypercube/form5d2.h"

#include <string>

#include "boards/hypercube/captions.h"
#include "boards/hypercube/layout.h"
#include "boards/hypercube/look.h"
#include "frame/helpers.h"
#include "frame/session_menu.h"
#include "launcher/shared_state.h"

namespace vrask {

namespace lay = hypercube::layout;
using namespace hypercube;

namespace {

// A light grey behind the band of controls, a mid grey behind the pictures
// (the white, black, blue and dark red cubes all show on it), an open circle
// pale with the square's number in black on it, and black for the grid
// numbers of the lines that no rule gives a colour.
enum Palette : int {
  kFormColour = 0xC8C8C8,
  kPictureColour = 0x8C8C8C,
  kPictureCaptionColour = 0x202020,
  kCircleColour = 0xE0F8FF,
  kOtherNumbers = color::Black,
};
// The grid numbers, on the lines and on the circles.
constexpr double kNumberSize = 8;

// A table of the game by its own indexes, 1 up (index 0 of the array is
// unused), read live.
template <size_t N>
void exposeList(Form& form, const std::string& name, const std::array<int, N>& values) {
  form.varArray(name, 1, static_cast<int>(N) - 1,
                [&values](int i) { return num(values.at(static_cast<size_t>(i))); });
}

// A table of squares by their four sides, 1 to 4.
void exposeSides(Form& form, const std::string& name, const SideTable& values) {
  form.varTable(name, {1, kSquares}, {1, 4}, [&values](int s, int k) {
    return num(values.at(static_cast<size_t>(s)).at(static_cast<size_t>(k)));
  });
}

// Entry i (from 1) of a list, 0 past its end.
int nth(const std::vector<int>& list, int i) {
  return i <= static_cast<int>(list.size()) ? list.at(static_cast<size_t>(i - 1)) : 0;
}

// The line a number label belongs to: `Label9(n)` carries the number n of
// the line of index n - 1, and `Label9(81)` the number 1 of index 0.
int indexOfNumber(int n) {
  return n == 81 ? 0 : n - 1;
}

}  // namespace

void form5d2::Form_Load() {
  Width = lay::kFormWidth;
  Height = lay::kFormHeight;
  openAboveCentre = 300;
  BackColor = kFormColour;
  designColour_ = designColours();
  Caption = shared().text(shared::kProductTitle);
  addPictures();
  addSegments();
  addHitAreas();
  // Circles over the numbers: Zorvex Squares shows the line numbers.
  addSquares();
  addLegend();
  addStatus();
  addScores();
  addHints();
  addKey();
  addMenus();
  roundList_.emplace(
      *this, RoundListConfig{
                 .blueHeader = 7, .redHeader = 8, .place = {lay::kRoundList.x, lay::kRoundList.y}});
  flow_.emplace(*this, *roundList_, *keypad_,
                TurnFlowNames{.bluePoints{"Label5", std::nullopt},
                              .redPoints{"Label6", std::nullopt},
                              .blueTurn{"Label4", std::nullopt},
                              .redTurn{"Label3", std::nullopt},
                              .lastMove = "Label12",
                              .gameMenus{"pwm", "gmzz", "pme"}});
  registerHandlers();
  registerVariables();

  for (int n = 2; n <= 81; ++n) {
    int index = indexOfNumber(n);
    int colour = kOtherNumbers;
    if (index < 12) colour = kBlueNumbers;
    if (index >= 24 && index < 36) colour = color::White;
    if (index >= 36 && index < 48) colour = kRedCube;
    Label9(n).ForeColor = colour;
  }
  gamenum = 1;
  redtoplay = 0;
  sqln = startr();
  places_ = placesOf(sqln);
  lnnb = lineNeighbours();
  plusnb = plusNeighbours();
  gm_Click(8);
  // The first New after the board opens lets the computer open.
  firstturn = 1;
}

void form5d2::addPictures() {
  ElementArray& pictures = addArray("Picture3", Kind::Picture, 0, 7);
  ElementArray& captions = addArray("Label2", Kind::Label, 0, 7);
  for (int i = 0; i < 8; ++i) {
    const lay::Picture& p = lay::kPictures.at(i);
    placed(pictures[i], p.box).BackColor = kPictureColour;
    placed(captioned(captions[i], p.caption, 9, true),
           {p.box.left, p.box.top, p.box.width, lay::kPictureCaptionHeight})
        .Alignment = AlignCenter;
    captions[i].ForeColor = kPictureCaptionColour;
  }
}

// One array per cube edge (`c1backtop` ...) holding that edge of all four
// cubes at 10 c + 0..3, and one per connector (`t1leftfront` ...) with its
// three segments. The indexes between the cubes' are not drawn.
void form5d2::addSegments() {
  for (int e = 0; e < kEdges; ++e) {
    ElementArray& edge = addArray(segmentArrayName(e), Kind::Line, 0, 33);
    for (Element& segment : edge) segment.Visible = false;
    for (int c = 0; c < kCubes; ++c) {
      int slot = slotOf(cubeLine(c, e));
      for (int set : lay::kSegmentSets) {
        Element& segment = edge[10 * c + set];
        placedLine(segment, lay::cubeSegment(e, 10 * c + set)).BorderColor = designColour_.at(slot);
        segment.Visible = true;
        segments_.at(slot).push_back(&segment);
      }
    }
  }
  for (int step = 0; step < kCubes; ++step) {
    for (int k = 0; k < kCorners; ++k) {
      int index = kSteps.at(step).base + k;
      ElementArray& connector = addArray(segmentArrayName(index), Kind::Line, 0, 2);
      for (Element& segment : connector) {
        placedLine(segment, lay::connectorSegment(step, k, segment.index)).BorderColor =
            designColour_.at(index);
        segments_.at(index).push_back(&segment);
      }
    }
  }
}

// The ring `Shape1(s)` and over it the circle `Label11(s)` a player clicks.
void form5d2::addSquares() {
  Shape1_ = &addRings(*this, kSquares, lay::ringAt, kCircleColour);
  for (Element& ring : *Shape1_) {
    ring.BorderColor = color::Black;
    ring.Visible = false;
  }
  Label11_ = &addArray("Label11", Kind::Label, 1, kSquares);
  for (Element& circle : *Label11_) {
    placed(captioned(circle, "", kNumberSize, true), lay::circleAt(circle.index));
    circle.Alignment = AlignCenter;
    circle.ForeColor = color::Black;
    circle.Visible = false;
  }
}

// `Label1(i)` over line index i, with four second hit areas at ten times the
// index; the indexes between them are not on the board. The numbers `Label9`
// stand over the hit areas.
void form5d2::addHitAreas() {
  Label1_ = &addArray("Label1", Kind::Label, 0, lay::kSecondHitAreas.back());
  for (Element& area : *Label1_) {
    area.BackStyle = 0;
    area.Visible = false;
  }
  for (int index = 0; index < kLines; ++index) placed(Label1(index), lay::hitArea(index));
  for (int copy : lay::kSecondHitAreas) placed(Label1(copy), lay::secondHitArea(copy / 10));
  Label9_ = &addArray("Label9", Kind::Label, 2, 81);
  for (Element& number : *Label9_) {
    int index = indexOfNumber(number.index);
    placed(captioned(number, std::to_string(index + 1), kNumberSize, true), lay::hitArea(index));
    number.Alignment = AlignCenter;
    number.Visible = false;
  }
}

// The ring at the left, cube by cube, and the first-time hint under it.
void form5d2::addLegend() {
  Label10_ = &addArray("Label10", Kind::Label, 0, 9);
  const std::array<const char*, 10> captions{
      "White cube", "|", "Red cube", "|", "Black cube", "|", "Blue cube", "White cube", "", ""};
  for (Element& label : *Label10_) {
    // The name that closes the ring stands under the last bar.
    double row = label.index == 7 ? 4 : label.index / 2.0;
    placed(captioned(label, captions.at(label.index), 9, true), lay::legendRow(row));
    label.Alignment = AlignCenter;
  }
  // Blue to White closes the ring: the bar between the last two names.
  Label10(8).Caption = std::string("|");
  placed(Label10(8), lay::legendRow(3.5));
  placed(captioned(Label10(9), kFirstTimeHint, 8), lay::kFirstTimeHint);
  Label10(9).ForeColor = color::Blue;
}

void form5d2::addStatus() {
  const lay::StatusColumn& at = lay::kStatusColumn;
  Label36 = &captioned(placed(add("Label36", Kind::Label), at.gameName), "", 10, true);
  Label33 = &captioned(placed(add("Label33", Kind::Label), at.status), "", 11, true);
  // Its colour is the mover's, Black included, so it stands on white.
  Label33->BackStyle = 1;
  Label33->BackColor = color::White;
  Label33->ForeColor = color::Blue;
  Label33->Alignment = AlignCenter;
  Label99 = &captioned(placed(add("Label99", Kind::Label), at.movesLeft), "");
  Label12 = &captioned(placed(add("Label12", Kind::Label), at.lastMove), kLastMove);
  Command1 = &placed(add("Command1", Kind::Button), at.newGame);
  Command1->Caption = "New game";
  Label15_ = &addArray("Label15", Kind::Label, 0, 3);
  for (Element& label : *Label15_) {
    int row = label.index / 2;
    int column = label.index % 2;
    const lay::Rect& cell = at.gameOverCell;
    placed(
        captioned(label, column == 0 ? "GAME" : "OVER", 20, true),
        {cell.left + column * cell.width, cell.top + row * cell.height, cell.width, cell.height});
    label.ForeColor = color::Red;
    label.Alignment = AlignCenter;
    label.Visible = false;
  }
}

// Blue's column on the left, Red's on the right: a heading with a swatch of
// the colour a finished square's lines take (`Label333`, `Label444`), the
// points, and "Your turn" (`Label4` Blue's, `Label3` Red's).
void form5d2::addScores() {
  ElementArray& headings = addArray("Label8", Kind::Label, 0, 1);
  Label333 = &add("Label333", Kind::Label);
  Label444 = &add("Label444", Kind::Label);
  Label5 = &add("Label5", Kind::Label);
  Label6 = &add("Label6", Kind::Label);
  Label4 = &add("Label4", Kind::Label);
  Label3 = &add("Label3", Kind::Label);
  struct Side {
    Element &heading, &swatch, &points, &yourTurn;
    const char* name;
    int colour, swatchColour;
  };
  std::array<Side, 2> sides{
      {{headings[0], *Label333, *Label5, *Label4, "Blue", color::Blue, color::Blue},
       {headings[1], *Label444, *Label6, *Label3, "Red", color::Red, kDarkRed}}};
  for (size_t i = 0; i < sides.size(); ++i) {
    Side& side = sides.at(i);
    const lay::ScoreColumns& at = lay::kScores;
    double left = at.left + at.gap * static_cast<double>(i);
    auto shifted = [left](lay::Rect r) { return r.left += left, r; };
    placed(captioned(side.heading, side.name, 10, true), shifted(at.heading));
    placed(side.swatch, shifted(at.swatch)).BackColor = side.swatchColour;
    placed(captioned(side.points, "0", 26, true), shifted(at.points));
    placed(captioned(side.yourTurn, kYourTurn, 10, true), shifted(at.yourTurn));
    for (Element* e : {&side.heading, &side.points, &side.yourTurn}) {
      e->ForeColor = side.colour;
      e->Alignment = AlignCenter;
    }
  }
  Label3->Visible = false;
}

void form5d2::addHints() {
  Label34 = &captioned(placed(add("Label34", Kind::Label), lay::kSafeCount), "", 9, true);
  Label34->Visible = false;
  List3 = &placed(add("List3", Kind::ListBox), lay::kSafeList);
  List3->BackColor = color::White;
  List3->Visible = false;
}

// What a Super Vrask Plus move takes, shown beside the board in those games.
void form5d2::addKey() {
  Shape2_ = &addArray("Shape2", Kind::Shape, 0, 1);
  const lay::Rect& box = lay::kKey;
  placed((*Shape2_)[0], box).BorderColor = color::Black;
  placed((*Shape2_)[1], {box.left + 60, box.top + 60, box.width - 120, box.height - 120})
      .BorderColor = color::Yellow;
  Image1 = &placed(add("Image1", Kind::Image), box);
  keyText = &placed(add("Label35", Kind::Label),
                    {box.left + 150, box.top + 150, box.width - 300, box.height - 300});
  captioned(*keyText,
            "Super Vrask Plus: a click paints its square's four lines and takes four more squares "
            "with it. A face takes the four connecting squares that stand on its edges toward the "
            "cube before it in the ring; a connecting square takes the matching face of both its "
            "cubes and two squares beside it.",
            8);
  for (Element* e : {&(*Shape2_)[0], &(*Shape2_)[1], Image1, keyText}) e->Visible = false;
}

// Help, About and Exit stay at hand during a round, as do the other boards.
void form5d2::addMenus() {
  addGamesMenu();
  addOptionsMenus();
  otherGames_.emplace(*this, OtherGamesNames{"cbm", "fcbm", "zcbm"});
  addMenu("hlp", "", "Help");
  addHelpEntry(*this, "hmen", "hlp");
  addAboutEntry(*this, "abt", "hlp");
  addExitEntry(*this, "");
}

void form5d2::addGamesMenu() {
  ElementArray& gmm = addMenuArray("gmm", "", 1, 1);
  gmm[1].Caption = "New Game";
  gmzz = &addMenu("gmzz", "", "Games");
  gm_ = &addMenuArray("gm", "gmzz", 0, 15);
  for (Element& entry : *gm_) entry.Caption = std::string("-");  // a separator
  for (const GameEntry& game : kGames) gm(game.index).Caption = game.title.entry;
}

// Players and options close with the first move of a round; the grid, the
// keypad and the hints stay at hand.
void form5d2::addOptionsMenus() {
  pwm = &addMenu("pwm", "", "Players");
  pl_ = &addMenuArray("pl", "pwm", 1, 2);
  for (Element& entry : *pl_) entry.Caption = entry.index == 1 ? "One player" : "Two Player";
  pl(1).Checked = true;
  pme = &addMenu("pme", "", "Options");
  hidmov = &addMenu("hidmov", "pme", "Hide non-scoring moves in Vrask games");
  hnt = &addMenu("hnt", "pme", "Hint when no good moves left (computer)");
  expert_.emplace(*this, "pme", [this] { hint_Click(); });
  addMenu("hnts", "", "Hints");
  shint = &addMenu("shint", "hnts", "Super Hint: How many non-scoring moves left (your turn)");
  bhint = &addMenu("bhint", "hnts", "Best Hint: Tell you what non-scoring moves are left");
  grid_.emplace(*this, "", [this](bool on) { shgrid_Click(on); });
  addMenu("kpm", "", "Keypad");
  keypad_.emplace(
      *this, *grid_, [this] { Command3_Click(); },
      KeypadConfig{
          .parentMenu = "kpm",
          .enterButton = "Command3",
          .openerButton = "Command4",
          .panel = {lay::kKeypad.x, lay::kKeypad.y},
          .opener = {lay::kStatusColumn.keypadOpener.x, lay::kStatusColumn.keypadOpener.y}});
  addOnlineEntries(*this, "kpm");
}

void form5d2::registerHandlers() {
  handleIndexed("Label1_Click", [this](int i) { Label1_Click(i); });
  handleIndexed("Label9_Click", [this](int i) { Label1_Click(i - 1); });
  handleIndexed("Label11_Click", [this](int i) { Label11_Click(i); });
  handleIndexed("gm_Click", [this](int i) { gm_Click(i); });
  handleIndexed("pl_Click", [this](int) { pl_Click(); });
  handleIndexed("gmm_Click", [this](int) { gmm_Click(); });
  handle("Command1_Click", [this] { gmm_Click(); });
  handle("hidmov_Click", [this] { hidmov->Checked = !hidmov->Checked; });
  handle("hnt_Click", [this] { hintMenu_Click(*hnt, nullptr); });
  handle("shint_Click", [this] { hintMenu_Click(*shint, Label34); });
  handle("bhint_Click", [this] { hintMenu_Click(*bhint, List3); });
  handle("List3_Click", [this] { List3_Click(false); });
  handle("List3_DblClick", [this] { List3_Click(true); });
}

void form5d2::registerVariables() {
  for (auto [name, value] : {std::pair{"gamenum", &gamenum},
                             {"movesleft", &movesleft},
                             {"redtoplay", &redtoplay},
                             {"firstturn", &firstturn},
                             {"compbusy", &compbusy},
                             {"overflag", &overflag}}) {
    var(name, *value);
  }
  exposeList(*this, "lnown", lnown);
  exposeList(*this, "sqtaken", sqtaken);
  exposeList(*this, "sqdone", sqdone);
  exposeList(*this, "sidecount", sidecount);
  exposeSides(*this, "sqln", sqln);
  exposeSides(*this, "sqside", sqside);
  varTable("plusnb", {1, kSquares}, {1, 4}, [this](int s, int k) {
    return num(plusnb.at(static_cast<size_t>(s)).at(static_cast<size_t>(k - 1)));
  });
  varTable("lnnb", {1, kLines}, {1, 8},
           [this](int slot, int j) { return num(nth(lnnb.at(slot), j)); });
  varArray("candlist", 1, kLines, [this](int i) { return num(nth(candlist, i)); });
}

}  // namespace vrask
