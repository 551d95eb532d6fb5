// The square board: grids of 5 by 5 to 9 by 9 squares in Flatland, or the 9
// by 9 grid with its opposite edges joined (Bubbleland), in one line game
// (Ombrel) and four Vrask games, for two people or one against the computer.
//
// The drawn elements are the game state: a line is taken when its width is 8,
// its colour says whose it is in the Vrask games, the mover's colour is the
// colour of the status label `Label33` and the scores are the captions of
// `Label5(0)` and `Label6`. The tables beside them are the board's own.
//
// The handlers live in five files: Form1large.cpp (the design and the load),
// Form1large_options.cpp (menus, sizes, worlds, New), Form1large_play.cpp
// (clicks and typed moves), Form1large_scoring.cpp (judging and the end of a
// game) and Form1large_computer.cpp (the computer's moves).
#pragma once

#include <array>
#include <memory>
#include <string>
#include <vector>

#include "boards/flatland/computer.h"
#include "boards/flatland/tables.h"
#include "frame/board_frame.h"
#include "toolkit/form.h"

namespace vrask {

class ExpertMenu;

class Form1large : public Form, private BoardFrame {
 public:
  explicit Form1large(Program& program);
  ~Form1large() override;
  void Form_Load() override;
  // The line or circle the expert would play for the side to move, 0 when
  // the game has none; the game does not change.
  int expertMove();

 private:
  // --- design and load (Form1large.cpp) -----------------------------------
  void addSidePanel();
  void addBoard();
  void addWorkingElements();
  void addMenus();
  void addGamesMenu();
  void addBoardMenu();
  void registerHandlers();
  void registerVariables();
  void saveDesignColours();
  void clearCircles();
  void applyBubblelandStart();

  // --- menus, sizes, worlds, New (Form1large_options.cpp) -------------------
  void game_Click(int m);
  void ip_Click(int i);
  void sizsq_Click(int n);
  void ver_Click();
  void shgrid_Click(bool on);
  void gmc_Click();
  void resetBoard();
  void hideBeyondSize(int n);
  void showOnBoard(ElementArray& targets, const std::vector<int>& hidden);
  void showSizeLabels(bool on);
  int checkedSize() const;
  int checkedGame() const;
  bool bubbleland() const;

  // --- moves (Form1large_play.cpp) --------------------------------------------
  void Label1_Click(int L);
  void bbland(int L);
  void Label2_Click(int s);
  void Command6_Click();
  void ownSides(int line, int owner);
  void paintPattern(int s, int colour);
  void passVraskTurn();

  // --- judging and the end (Form1large_scoring.cpp) ---------------------------
  void checkwins();
  std::vector<int> newlyScored();
  void settleLineTurn(int newly);
  void flash(const std::vector<int>& squares);
  void chackmoves();
  struct OpenCircles {
    int open;
    int lastopen;
  };
  OpenCircles countOpenCircles();
  void playVraskMove(int lastopen);
  void judgeVraskSquares();
  void claimSquare(int s, Side side);
  void endOfGame();

  // --- the computer (Form1large_computer.cpp) --------------------------------
  void computerLineMove();
  void takeLine(int L);
  void computerVraskTurn();
  void compmove(int s);
  void handBackToBlue();

  // --- the expert (Form1large_expert.cpp) -------------------------------------
  void expertLineMove();
  bool lineScores(int L);
  int expertLineChoice(bool letEventsThrough);
  int expertCircleChoice();
  void hint_Click();

  // --- elements by the board's own names ------------------------------------
  Element& ln1(int i) { return (*ln1_)[i]; }
  Element& Label1(int i) { return (*Label1_)[i]; }
  Element& Shape1(int i) { return (*Shape1_)[i]; }
  Element& Label2(int i) { return (*Label2_)[i]; }
  Element& game(int i) { return (*game_)[i]; }
  Element& ip(int i) { return (*ip_)[i]; }
  Element& ver(int i) { return (*ver_)[i]; }
  bool lineShows(int L) const { return (*ln1_)[L].Visible; }
  bool squareShows(int s) const { return (*Shape1_)[s].Visible; }

  ElementArray* ln1_ = nullptr;
  ElementArray* Label1_ = nullptr;
  ElementArray* Shape1_ = nullptr;
  ElementArray* Label2_ = nullptr;
  ElementArray* game_ = nullptr;
  ElementArray* ver_ = nullptr;
  ElementArray* sizsq_ = nullptr;
  Element* Label8 = nullptr;
  Element* Label12 = nullptr;
  Element* Label18 = nullptr;
  Element* Label33 = nullptr;
  Element* Label36 = nullptr;
  Element* List1 = nullptr;
  Element* sks = nullptr;
  Element* kda = nullptr;

  std::unique_ptr<ExpertMenu> expert_;

  // --- the game -------------------------------------------------------------
  int gamemode = flatland::SuperVraskPlus;
  int boardsize = flatland::kSide;
  int turnflag = 0;  // line games: 1 = the next line is Red's
  // Line games: the last person to move, 1 Red, 2 Blue. The computer's
  // lines take this owner too; before anybody has moved it is Red's, so a
  // computer that opens the first game owns the sides of its lines.
  int moverid = 1;
  int starterflag = 1;  // flipped by every New
  int compbusy = 0;     // 1 while the computer takes a line
  int gameover = 0;
  flatland::SideTable sqline{};
  CellBoard board_;  // sqline as cells and their sides
  flatland::LineOwners lineown{};
  flatland::SideOwners sqowner{};
  flatland::SquareCounts sqdone{};
  flatland::SquareCounts sqscored{};
  Counts sidecount = Counts(flatland::kSquares + 1, 0);
  std::array<int, flatland::kLines + 1> linecolor0{};
  std::vector<int> candlist;
};

}  // namespace vrask
