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

#include <array>
#include <memory>
#include <vector>

#include "boards/hypercube/computer.h"
#include "boards/hypercube/tables.h"
#include "toolkit/form.h"

namespace vrask {

class GridSwitch;
class Keypad;
class OtherGames;
class RoundList;

class form5d2 : public Form {
 public:
  explicit form5d2(Program& program);
  ~form5d2() override;
  void Form_Load() override;

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
  void addHelpAndExit();
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
  void setMenusEnabled(bool on);

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
  void computerSquareMove();
  void computerLineVraskMove();

  // --- elements by the board's own names ----------------------------------
  Element& Label1(int i) { return (*Label1_)[i]; }
  Element& Label3() { return *Label3_; }
  Element& Label4() { return *Label4_; }
  Element& Label9(int i) { return (*Label9_)[i]; }
  Element& Label10(int i) { return (*Label10_)[i]; }
  Element& Label11(int i) { return (*Label11_)[i]; }
  Element& Label15(int i) { return (*Label15_)[i]; }
  Element& Shape1(int i) { return (*Shape1_)[i]; }
  Element& gm(int i) { return (*gm_)[i]; }
  Element& pl(int i) { return (*pl_)[i]; }
  // The number label of a line, by its slot.
  Element& numberOf(int slot) { return Label9(slot == hypercube::kLines ? 81 : slot + 1); }
  bool onePlayer() const { return (*pl_)[1].Checked; }
  bool lineGame() const { return gamenum <= 2; }
  bool lineVraskGame() const { return gamenum == 8 || gamenum == 15; }
  bool squareGame() const { return !lineGame() && !lineVraskGame(); }
  bool plusGame() const { return gamenum >= 11 && gamenum <= 13; }
  bool classicGame() const { return gamenum == 4 || gamenum == 11; }
  bool roundOver() const { return (*Label15_)[0].Visible; }

  ElementArray* Label1_ = nullptr;
  ElementArray* Label9_ = nullptr;
  ElementArray* Label10_ = nullptr;
  ElementArray* Label11_ = nullptr;
  ElementArray* Label15_ = nullptr;
  ElementArray* Shape1_ = nullptr;
  ElementArray* Shape2_ = nullptr;
  ElementArray* gm_ = nullptr;
  ElementArray* pl_ = nullptr;
  Element* Label3_ = nullptr;
  Element* Label4_ = nullptr;
  Element* Label5 = nullptr;
  Element* Label6 = nullptr;
  Element* Label12 = nullptr;
  Element* Label33 = nullptr;
  Element* Label34 = nullptr;
  Element* Label36 = nullptr;
  Element* Label99 = nullptr;
  Element* Label333 = nullptr;
  Element* Label444 = nullptr;
  Element* List3 = nullptr;
  Element* Image1 = nullptr;
  Element* keyText = nullptr;
  Element* Command1 = nullptr;
  Element* pwm = nullptr;
  Element* gmzz = nullptr;
  Element* pme = nullptr;
  Element* hidmov = nullptr;
  Element* hnt = nullptr;
  Element* shint = nullptr;
  Element* bhint = nullptr;

  std::unique_ptr<GridSwitch> grid_;
  std::unique_ptr<Keypad> keypad_;
  std::unique_ptr<OtherGames> otherGames_;
  std::unique_ptr<RoundList> roundList_;

  // The drawn segments of each line (slots 1..80): four for a cube line,
  // three for a connector.
  std::array<std::vector<Element*>, hypercube::kLines + 1> segments_{};
  std::array<int, hypercube::kLines + 1> designColour_{};

  // --- the game -------------------------------------------------------------
  int gamenum = 1;
  int movesleft = hypercube::kLines;
  int redtoplay = 0;
  int firstturn = 0;
  int compbusy = 0;
  int overflag = 0;
  int flashing = 0;  // 1 while a finished square shows, which lets events in
  hypercube::SideTable sqln{};
  hypercube::LinePlaces places_{};
  hypercube::LineNeighbours lnnb{};
  hypercube::PlusNeighbours plusnb{};
  hypercube::LineValues lnown{};
  hypercube::SideValues sqside{};
  hypercube::SquareValues sqtaken{};
  hypercube::SquareValues sqdone{};
  hypercube::SquareValues sidecount{};
  std::vector<int> candlist;
  // The colours `sqflash` notes for the four sides of the square it shows.
  std::array<int, 5> flashColours_{};
};

}  // namespace vrask
