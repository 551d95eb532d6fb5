// The triangular board: a hexagon of 54 triangles and their 90 sides, in
// three sizes, in Flatland or with its opposite rims joined (Bubbleland), in
// one game on lines (Ombrel) and two on circles (Super Vrask, Super Vrask
// Plus), for two people or one against the computer.
//
// The drawn elements are the game state: a line is drawn when its width is
// 8, its colour says whose it is in the circle games, the colour of the
// status label `Label33` is the colour the next circle move paints in, and
// the points are the captions of `Label5(0)` and `Label6`.
//
// The handlers live in five files: Triang.cpp (the design and the load),
// Triang_options.cpp (menus, sizes, worlds, New), Triang_play.cpp (clicks
// and typed moves), Triang_scoring.cpp (judging and the end of a game) and
// Triang_computer.cpp (the computer's moves).
#pragma once

#include <array>
#include <memory>
#include <vector>

#include "boards/triangular/tables.h"
#include "frame/cell_board.h"
#include "toolkit/form.h"

namespace vrask {

class GridSwitch;
class Keypad;
class OtherGames;
class RoundList;
class SidePanel;
class SuddenDeath;
class TurnFlow;

class Triang : public Form {
 public:
  explicit Triang(Program& program);
  ~Triang() override;
  void Form_Load() override;

 private:
  // --- design and load (Triang.cpp) --------------------------------------------
  void addBoard();
  void addWorkingElements();
  void addMenus();
  void addGamesMenu();
  void addOptionsMenu();
  void addBoardMenu();
  void addHelpAndExit();
  void registerHandlers();
  void registerVariables();
  void styleClickTargets();
  void clearCircles();
  void applyBubblelandStart();

  // --- menus, sizes, worlds, New (Triang_options.cpp) ------------------------------
  void game_Click(int index);
  void ip_Click(int i);
  void szmen_Click(int size);
  void ver_Click();
  void shgrid_Click(bool on);
  void gmc_Click();
  void resetBoard();
  void computerOpensCircleGame();
  void showOnBoard(ElementArray& targets, const std::vector<int>& hidden, bool inPlay);
  void showSizeControls(bool on);
  int checkedSize() const;
  bool bubbleland() const;
  bool onePlayer() const;

  // --- moves (Triang_play.cpp) --------------------------------------------------------
  void Label1_Click(int line);
  void Label2_Click(int cell);
  void Command6_Click();
  void markSides(int line, int mark);
  void paintCell(int cell, int colour);
  void paintExtension(int cell, int colour);
  void paintLine(int line, int colour);

  // --- judging and the end (Triang_scoring.cpp) ---------------------------------------
  void checkwins();
  void judgeLines();
  std::vector<int> newlyClosed();
  void settleLineTurn(int newly);
  void flash(const std::vector<int>& cells);
  int linesTakenOrHidden() const;
  void chackmoves();
  void passCircleTurn();
  struct FreeCells {
    int count;
    int last;
  };
  FreeCells countFreeCells();
  void judgeCells();
  void claimCell(int cell, int colour);
  void playLastCell(int cell);
  void outtahere();
  void recordRound();

  // --- the computer (Triang_computer.cpp) ------------------------------------------
  void computerLineMove();
  void drawComputerLine(int line);
  void bbland(int line);
  void redchack();
  void paintRedExtension(int cell);
  void compmove(int cell);

  // --- elements by the board's own names ------------------------------------------
  Element& ln1(int i) { return (*ln1_)[i]; }
  Element& Label1(int i) { return (*Label1_)[i]; }
  Element& Shape1(int i) { return (*Shape1_)[i]; }
  Element& Label2(int i) { return (*Label2_)[i]; }
  Element& game(int i) { return (*game_)[i]; }
  Element& ip(int i) { return (*ip_)[i]; }
  Element& ver(int i) { return (*ver_)[i]; }
  bool lineShows(int line) const { return (*ln1_)[line].Visible; }
  bool cellShows(int cell) const { return (*Shape1_)[cell].Visible; }
  bool drawn(int line) const;

  ElementArray* ln1_ = nullptr;
  ElementArray* Label1_ = nullptr;
  ElementArray* Shape1_ = nullptr;
  ElementArray* Label2_ = nullptr;
  ElementArray* game_ = nullptr;
  ElementArray* ip_ = nullptr;
  ElementArray* ver_ = nullptr;
  ElementArray* szmen_ = nullptr;
  Element* Label13 = nullptr;
  Element* Label33 = nullptr;
  Element* Label36 = nullptr;
  Element* List1 = nullptr;
  Element* sks = nullptr;
  Element* ks = nullptr;
  Element* kda = nullptr;

  std::unique_ptr<SidePanel> panel_;
  std::unique_ptr<SuddenDeath> sd_;
  std::unique_ptr<GridSwitch> grid_;
  std::unique_ptr<Keypad> keypad_;
  std::unique_ptr<OtherGames> otherGames_;
  std::unique_ptr<RoundList> roundList_;
  std::unique_ptr<TurnFlow> flow_;

  // --- the game -----------------------------------------------------------------------
  int gameindex = triangular::SuperVraskPlus;
  int movestotal = triangular::kCells;
  int whosnext = 0;    // line games: 1 = Red draws the next line
  int openerflag = 1;  // turned over by every New
  // Line games: the mark of the last person to draw a line, 1 Red, 2 Blue.
  // The computer's lines mark their sides with it too; before anybody has
  // drawn it is Red's, so a computer that opens the first game marks its own.
  int mark = 1;
  int finished = 0;
  int gameover = 0;
  int inputlock = 0;  // 1 while the computer draws a line
  int endgameflag = 0;
  int lastcell = 0;
  int freshboard = 0;
  triangular::CellLines celllines{};
  CellBoard board_;
  triangular::CellFlags celltaken{};
  triangular::CellFlags cellscored{};
  triangular::LineValues lineowner{};
  triangular::SideMarks sidemark{};
  Counts sidecount = Counts(triangular::kCells + 1, 0);
  Counts linecount = Counts(triangular::kCells + 1, 0);
  std::vector<int> candidates;
};

}  // namespace vrask
