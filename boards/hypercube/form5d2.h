// The HyperCube board: four cubes in a closed ring (Blue, White, Red, Black)
// joined corner to corner by connector lines, 80 lines and 72 squares, drawn
// as eight pictures. Twelve games: line games (Ombrel, Dorvel, Zorvex Lines),
// square games where a click paints a square's four lines (Vrask, Zorvex
// Squares, Super Vrask Plus with four more squares), and Line Vrask games
// where a line is painted with the lines that meet it.
//
// The handlers live in five files: form5d2.cpp (the design and the load),
// form5d2_options.cpp (menus, hints menus, New and who opens),
// form5d2_play.cpp (a person's clicks and typed numbers),
// form5d2_scoring.cpp (judging, flashes, the end of a round) and
// form5d2_computer.cpp (the computer's moves and the hint list).
#pragma once

#include <optional>

#include "boards/hypercube/computer.h"
#include "frame/expert_menu.h"
#include "frame/grid_switch.h"
#include "frame/keypad.h"
#include "frame/other_games.h"
#include "frame/round_list.h"
#include "frame/turn_flow.h"
#include "toolkit/form.h"

namespace vrask {

class form5d2 : public Form {
 public:
  explicit form5d2(Program& program) : Form(program, "form5d2") {}
  void Form_Load() override;

  // The expert's line for the side to move, as the index of its hit area;
  // kNoExpertMove outside Ombrel and Zorvex (Lines) and once the round is
  // over. Line index 0 is a line, so "none" is not 0 here.
  static constexpr int kNoExpertMove = -1;
  int expertMove();

 private:
  // --- design and load (form5d2.cpp) ---------------------------------------
  void addPictures();
  void addSegments();
  void addSquares();
  void addHitAreas();
  void addLegend();
  void addStatus();
  void addScores();
  void addHints();
  void addKey();
  void addMenus();
  void addGamesMenu();
  void addOptionsMenus();
  void registerHandlers();
  void registerVariables();

  // --- menus, New, who opens (form5d2_options.cpp) ---------------------------
  void gm_Click(int Index);
  void pl_Click();
  void shgrid_Click(bool on);
  void hintMenu_Click(Element& entry, Element* shows);
  void gmm_Click();
  void resetRound();
  void openRound();
  void showLines(bool on);
  void showSquares(bool on);
  void showLineNumbers(bool on);

  // --- a person's moves (form5d2_play.cpp) ----------------------------------
  void Label1_Click(int Index);
  void Label11_Click(int Index);
  void Command3_Click();
  void beginMove();
  void paintSides(int slot, int value);
  void paintLine(int slot, int width, int colour);
  void takeSquare(int square, int colour);
  void passTurn();
  void linevrask(int Index);
  void paintLineVrask(int slot);
  void afterLineVrask();
  void lastvrask();

  // --- judging and the end (form5d2_scoring.cpp) ------------------------------
  void checkwins();
  std::vector<int> newlyFinished();
  void announceLineScore(int n);
  void sqflash(int square);
  void sqpaint(int square);
  void judge();
  void hideNonScoringSquares();
  int lineVraskMovesLeft() const;
  void endOfRound();

  // --- the computer and the hints (form5d2_computer.cpp) -----------------------
  void computerLineMove();
  void compmov(int windex);
  void hintlist();
  void List3_Click(bool play);
  void computerSquareMove();
  void computerLineVraskMove();

  // --- the expert computer (form5d2_expert.cpp) -------------------------------
  void expertLineMove();
  bool lineScores(int slot) const;
  int expertLineChoice();
  void hint_Click();

  // --- elements by the board's own names, and what the rules ask of them ---
  Element& Label1(int i) { return (*Label1_)[i]; }
  Element& Label9(int i) { return (*Label9_)[i]; }
  // The number label of a line, by its slot.
  Element& numberOf(int slot) { return Label9(slot == hypercube::kLines ? 81 : slot + 1); }
  Element& Label11(int i) { return (*Label11_)[i]; }
  Element& Shape1(int i) { return (*Shape1_)[i]; }
  bool roundOver() const { return (*Label15_)[0].Visible; }
  Element& Label10(int i) { return (*Label10_)[i]; }
  Element& gm(int i) { return (*gm_)[i]; }
  Element& pl(int i) { return (*pl_)[i]; }
  bool onePlayer() const { return (*pl_)[1].Checked; }
  bool lineGame() const { return gamenum <= 2; }
  bool lineVraskGame() const { return gamenum == 8 || gamenum == 15; }
  bool squareGame() const { return !lineGame() && !lineVraskGame(); }
  bool plusGame() const { return gamenum >= 11 && gamenum <= 13; }
  bool classicGame() const { return gamenum == 4 || gamenum == 11; }

  // Arrays and single elements the code reaches often, found once at load.
  ElementArray *Label1_{}, *Label9_{}, *Label10_{}, *Label11_{}, *Label15_{};
  ElementArray *Shape1_{}, *Shape2_{}, *gm_{}, *pl_{};
  Element *Label3{}, *Label4{}, *Label5{}, *Label6{}, *Label12{}, *Label33{};
  Element *Label34{}, *Label36{}, *Label99{}, *Label333{}, *Label444{}, *List3{};
  Element *Image1{}, *keyText{}, *Command1{};
  // The menus that close with the first move, and the options read by the
  // rules.
  Element *pwm{}, *gmzz{}, *pme{}, *hidmov{}, *hnt{}, *shint{}, *bhint{};

  // What every board carries, made at load in the order of its menus.
  std::optional<GridSwitch> grid_;
  std::optional<Keypad> keypad_;
  std::optional<OtherGames> otherGames_;
  std::optional<RoundList> roundList_;
  std::optional<TurnFlow> flow_;
  std::optional<ExpertMenu> expert_;

  // The drawn segments of each line (slots 1..80): four for a cube line,
  // three for a connector.
  std::array<std::vector<Element*>, hypercube::kLines + 1> segments_{};
  std::array<int, hypercube::kLines + 1> designColour_{};

  // --- the game -------------------------------------------------------------
  // The board's tables, built at load, then the round on them.
  hypercube::SideTable sqln{};
  hypercube::LinePlaces places_{};
  hypercube::LineNeighbours lnnb{};
  hypercube::PlusNeighbours plusnb{};
  int gamenum = 1;
  int movesleft = hypercube::kLines;
  hypercube::LineValues lnown{};
  hypercube::SideValues sqside{};
  hypercube::SquareValues sqtaken{}, sqdone{}, sidecount{};
  // 1 when Red moves next in the line games; who opens the next round.
  int redtoplay = 0, firstturn = 0;
  // 1 while the computer captures; 1 once the round's end is written.
  int compbusy = 0, overflag = 0;
  int flashing = 0;  // 1 while a finished square shows, which lets events in
  std::vector<int> candlist;
  // The colours `sqflash` notes for the four sides of the square it shows.
  std::array<int, 5> flashColours_{};
};

}  // namespace vrask
