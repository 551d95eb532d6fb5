#include "boards/quennel/Quennel.h"

#include <array>

#include "boards/quennel/captions.h"
#include "boards/quennel/layout.h"
#include "boards/quennel/look.h"
#include "frame/expert_menu.h"
#include "frame/grid_switch.h"
#include "frame/handler_table.h"
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

// A label in `box` on the form's background.
Element& label(Element& e, const Rect& box, const std::string& caption, double points = 10,
               bool bold = false) {
  return captioned(placed(e, box), caption, points, bold);
}

// The form's array `name`, read from `table`, which counts from 1.
template <size_t N>
void registerTable(Form& form, const char* name, const std::array<int, N>& table) {
  form.varArray(name, 1, static_cast<int>(N) - 1,
                [&table](int i) { return num(table.at(static_cast<size_t>(i))); });
}

}  // namespace

// The design first, in paint order; then everything is hidden for the
// introduction, which ends by opening the first game.
void Quennel::Form_Load() {
  Caption = shared().text(shared::kProductTitle);
  Width = lay::kFormWidth;
  Height = lay::kFormHeight;
  openAboveCentre = 300;
  addSidePanel();
  addSolid();
  addStatus();
  addScores();
  addViewAndNew();
  addMenus();
  roundList_ = std::make_unique<RoundList>(
      *this, RoundListConfig{
                 .list = "List4", .firstRow = "", .afterWinner = "\t\t", .place = lay::kRoundList});
  flow_ = std::make_unique<TurnFlow>(*this, *roundList_, *keypad_,
                                     TurnFlowNames{.bluePoints = {"Label5", {}},
                                                   .redPoints = {"Label6", {}},
                                                   .blueTurn = {"Label4", {}},
                                                   .redTurn = {"Label3", {}},
                                                   .lastMove = "Label20",
                                                   .newButton = "Command3",
                                                   .gameMenus = {"opts", "zw", "kkj"}});
  registerHandlers();
  registerVariables();

  celllines = startgrids();
  turn = turned(celllines);
  for (int f = 1; f <= kFaces; ++f) beyond.at(static_cast<size_t>(f)) = extension(celllines, f);
  for (const Element& line : *LN_) {
    designWidth.at(static_cast<size_t>(line.index)) = line.BorderWidth;
    designColour.at(static_cast<size_t>(line.index)) = line.BorderColor;
  }
  ga_Click(kFirstGame);
  Label33->Caption.clear();
  for (Element& circle : *Shape1_) circle.Visible = false;
  for (Element& number : *Label12_) number.Visible = false;
  Label13->Visible = false;
  for (Element& button : *Command8_) button.Visible = false;
  setStartMenusEnabled(false);
  otherGames_->menu().Enabled = false;
  Timer1->Enabled = true;
}

// The solid stands on grey at the left, the game's state on the pale panel
// at the right.
void Quennel::addSidePanel() {
  BackColor = kBoardColour;
  placed(add("Picture2", Kind::Picture), lay::kSidePanel).BackColor = kPanelColour;
}

// The lines, the circles of the faces, and the two kinds of number label,
// which are also what a player clicks.
void Quennel::addSolid() {
  LN_ = &addArray("LN", Kind::Line, 1, kLines);
  for (Element& line : *LN_) {
    const Ends& ends = lineEnds().at(static_cast<size_t>(line.index));
    const Vertex& from = vertices().at(static_cast<size_t>(ends.from));
    const Vertex& to = vertices().at(static_cast<size_t>(ends.to));
    line.X1 = from.x;
    line.Y1 = from.y;
    line.X2 = to.x;
    line.Y2 = to.y;
    line.BorderWidth = lay::lineWidth(line.index);
    line.BorderColor = kTetrahedronColours.at(static_cast<size_t>(tetrahedronOf(line.index)));
  }
  Shape1_ = &addArray("Shape1", Kind::Shape, 1, kFaces);
  for (Element& circle : *Shape1_) {
    placed(circle, lay::faceCircleAt(circle.index)).Shape = Circle;
    circle.FillStyle = 0;  // a solid disc
    circle.FillColor = kCircleFill;
  }
  Label12_ = &addArray("Label12", Kind::Label, 1, kFaces);
  for (Element& number : *Label12_) {
    label(number, lay::faceCircleAt(number.index), std::to_string(number.index), 9, true);
    number.ForeColor = kNumbers;
    number.Alignment = AlignCenter;
    number.Top += 90;  // the number stands in the middle of the circle
    number.Height -= 90;
  }
  sdfx_ = &addArray("sdfx", Kind::Label, 1, kLines);
  // A line's number stands on a dark patch, so that it reads over the lines
  // that cross behind it.
  for (Element& number : *sdfx_) {
    label(number, lay::lineLabelAt(number.index), std::to_string(number.index), 8, true);
    number.ForeColor = kNumbers;
    number.BackStyle = 1;
    number.BackColor = kCircleFill;
    number.Alignment = AlignCenter;
  }
}

void Quennel::addStatus() {
  Label36 = &label(add("Label36", Kind::Label), lay::kGameName, "", 10, true);
  Label33 = &label(add("Label33", Kind::Label), lay::kStatus, "", 11, true);
  // Its colour is the mover's, black included, so it stands on white.
  Label33->BackStyle = 1;
  Label33->BackColor = color::White;
  Label33->ForeColor = color::Blue;
  Label33->Alignment = AlignCenter;
  Label34 = &label(add("Label34", Kind::Label), lay::kMovesLeft, "20");
  Label34->Left += 1500;
  Label34->Width -= 1500;
  label(add("Label9", Kind::Label), lay::kMovesLeft, "Moves left:");
  Label20 = &label(add("Label20", Kind::Label), lay::kLastMove, kLastMove);
}

// Blue's column on the left, Red's on the right: a heading, the points, and
// the "Your turn" flag of the side to move.
void Quennel::addScores() {
  ElementArray& names = addArray("Label8", Kind::Label, 0, 1);
  Label5 = &add("Label5", Kind::Label);
  Label6 = &add("Label6", Kind::Label);
  Label4 = &add("Label4", Kind::Label);
  Label3 = &add("Label3", Kind::Label);
  addScoreColumn({&names[0], Label5, Label4}, "Blue", color::Blue, lay::kScoreLefts[0]);
  addScoreColumn({&names[1], Label6, Label3}, "Red", kFaceRed, lay::kScoreLefts[1]);
  Label3->Visible = false;
}

// A player's name, points and "Your turn" flag, one under the other in the
// player's colour.
void Quennel::addScoreColumn(const std::array<Element*, 3>& column, const std::string& name,
                             int colour, double left) {
  const std::array<const std::string, 3> captions{name, "0", "Your turn"};
  for (size_t i = 0; i < column.size(); ++i) {
    Rect box{left, lay::kScoreTops.at(i), lay::kScoreWidth, lay::kScoreHeights.at(i)};
    Element& e = label(*column.at(i), box, captions.at(i), i == 1 ? 28 : 10, true);
    e.ForeColor = colour;
    e.Alignment = AlignCenter;
  }
}

void Quennel::addViewAndNew() {
  Label13 = &add("Label13", Kind::Label);
  label(*Label13, lay::kViewLabel, viewText(1), 11, true).Alignment = AlignCenter;
  Command8_ = &addArray("Command8", Kind::Button, 0, 1);
  placed((*Command8_)[0], lay::kViewDown).Caption = "<<";
  placed((*Command8_)[1], lay::kViewUp).Caption = ">>";
  Command3 = &placed(add("Command3", Kind::Button), lay::kNewGame);
  Command3->Caption = "New game";

  Picture3 = &placed(add("Picture3", Kind::Picture), lay::kGameOver);
  Picture3->BackColor = color::White;
  Picture3->Visible = false;
  Label15_ = &addArray("Label15", Kind::Label, 0, 3);
  for (Element& over : *Label15_) {
    int row = over.index / 2;
    int column = over.index % 2;
    Rect box{lay::kGameOver.left + column * (lay::kColumnWidth - lay::kGameOverWidth),
             lay::kGameOver.top + 30 + row * lay::kGameOverRow, lay::kGameOverWidth,
             lay::kGameOverRow};
    label(over, box, column == 0 ? "GAME" : "OVER", 24, true).ForeColor = color::Red;
    over.Alignment = AlignCenter;
    over.Visible = false;
  }
  Timer1 = &add("Timer1", Kind::Timer);
  Timer1->Interval = static_cast<int>(kIntroTick);
  Timer1->Enabled = false;
}

void Quennel::addMenus() {
  addGamesMenu();
  addOptionsMenu();
  expert_ = std::make_unique<ExpertMenu>(*this, "zw", [this] { expertHint_Click(); });
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
  for (Element& entry : *tetsize_) entry.Caption = kSizeNames.at(static_cast<size_t>(entry.index));
}

// "1 player verus the computer" (ticked) and "2 Players"; the two entries
// for other players stand in the menu unseen.
void Quennel::addPlayerEntries() {
  ip_ = &addMenuArray("ip", "zw", 0, 3);
  for (Element& entry : *ip_) entry.Caption = kPlayerCaptions.at(static_cast<size_t>(entry.index));
  ip(0).Checked = true;
  ip(2).Visible = false;
  ip(3).Visible = false;
}

void Quennel::addOptionsMenu() {
  zw = &addMenu("zw", "", "Options");
  addPlayerEntries();
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
  bindHandlers(*this,
               {{"sdfx_Click", &Quennel::sdfx_Click},
                {"Label12_Click", &Quennel::Label12_Click},
                {"ga_Click", &Quennel::ga_Click},
                {"tetsize_Click", &Quennel::tetsize_Click},
                {"ip_Click", &Quennel::ip_Click},
                {"Command8_Click", &Quennel::Command8_Click}},
               {{"hidmov_Click", &Quennel::hidmov_Click},
                {"new_Click", &Quennel::new_Click},
                {"Command3_Click", &Quennel::new_Click},
                {"Timer1_Timer", &Quennel::Timer1_Timer}});
  handle("howmany_Click", [this] { MsgBox(kPyramids, kPyramidsTitle); });
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
  for (auto [name, table] : std::initializer_list<std::pair<const char*, const LineValues*>>{
           {"linetaken", &linetaken}, {"linecolour", &linecolour}}) {
    registerTable(*this, name, *table);
  }
  for (auto [name, table] : std::initializer_list<std::pair<const char*, const FaceCounts*>>{
           {"facescored", &facescored}, {"facetaken", &facetaken}, {"sidecount", &sidecount}}) {
    registerTable(*this, name, *table);
  }
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
