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
// The handlers live in six files: Triang.cpp (the design and the load),
// Triang_options.cpp (menus, sizes, worlds, New), Triang_play.cpp (clicks
// and typed moves), Triang_scoring.cpp (judging and the end of a game),
// Triang_computer.cpp (the computer's moves) and Triang_expert.cpp (the
// expert's lines and the hint).
#pragma once

#include <array>
#include <memory>
#include <vector>

#include "boards/triangular/tables.h"
#include "frame/board_design.h"
#include "frame/board_frame.h"
#include "frame/cell_board.h"
#include "toolkit/form.h"

namespace vrask {

class ExpertMenu;

class Triang : public Form, private BoardFrame {
 public:
  explicit Triang(Program& program);
  ~Triang() override;
  void Form_Load() override;
  // The line the expert would draw for the side to move in Ombrel, 0 in the
  // circle games or when none is left.
  int expertMove();

 private:
  // --- design and load (Triang.cpp) --------------------------------------------
  void addBoard();
  void addPanelColumn();
  void addWorkingElements();
  void addMenus();
  void addGamesMenu();
  void addBoardMenu();
  void registerNames();
  void registerHandlers();
  void registerVariables();
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

  // --- Ombrel: a person's line (Triang_play.cpp), its judging (Triang_scoring.cpp)
  void Label1_Click(int line);
  int passLineTurn();
  void markSides(int line, int mark);
  int linesTakenOrHidden() const;
  // after each line: the cells it closed, who goes next, their flash
  void checkwins();
  void judgeLines();
  std::vector<int> newlyClosed();
  void settleLineTurn(int newly);
  void flash(const std::vector<int>& cells);

  // --- circle games: a person's circle (Triang_play.cpp), the judging and
  // the end (Triang_scoring.cpp)
  void Label2_Click(int cell);
  void paintCell(int cell, int colour);
  void paintExtension(int cell, int colour);
  void paintLine(int line, int colour);
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

  // --- a typed number (Triang_play.cpp)
  void Command6_Click();

  // --- the computer (Triang_computer.cpp) ------------------------------------------
  void computerLineMove();
  void closeCell(int cell);
  void drawSafeLine();
  void drawLineAndPass(int line);
  void drawComputerLine(int line);
  void bbland(int line);
  void redchack();
  void paintRedExtension(int cell);
  void compmove(int cell);

  // --- the expert (Triang_expert.cpp) ---------------------------------------------
  void expertLineMove();
  bool closesCell(int line) const;
  int expertLineChoice(bool letEventsThrough);
  void hint_Click();

  // --- elements by the board's own names ----------------------------------------
  Element& ln1(int i) { return (*board_.lines)[i]; }
  Element& Shape1(int i) { return (*board_.circles)[i]; }
  Element& Label2(int i) { return (*board_.targets)[i]; }
  bool lineShows(int line) const { return (*board_.lines)[line].Visible; }
  bool cellShows(int cell) const { return (*board_.circles)[cell].Visible; }
  bool drawn(int line) const;

  BoardElements board_{};  // ln1, Shape1, Label1, Label2
  std::unique_ptr<ExpertMenu> expert_;
  ElementArray *game_ = nullptr, *ver_ = nullptr, *szmen_ = nullptr;
  // The status, the game's name, moves left, and the menus by the sides of
  // the panel.
  Element *Label33 = nullptr, *Label36 = nullptr, *Label13 = nullptr, *List1 = nullptr;
  Element *sks = nullptr, *kda = nullptr;

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
  CellBoard cells_;
  triangular::CellFlags celltaken{};
  triangular::CellFlags cellscored{};
  triangular::LineValues lineowner{};
  triangular::SideMarks sidemark{};
  Counts sidecount = Counts(triangular::kCells + 1, 0);
  Counts linecount = Counts(triangular::kCells + 1, 0);
  std::vector<int> candidates;
};

}  // namespace vrask
