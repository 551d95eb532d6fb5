// The tetrahedron board: a solid of small tetrahedra drawn in perspective, of
// 20 faces or, mirrored below its base, 36; line games (Ombrel) where a
// closed face scores, and face games (Vrask, Super Vrask) where a move paints
// the lines of a face and the score is read from the colours. The solid turns
// by thirds of a full turn in three views.
//
// The logic and its tables work in real numbers, the numbers of the first
// view; a view only changes which screen element shows which real element.
// So the form keeps the look of every real line and face, and draws each
// screen element from the real element its number stands for in the view.
//
// The handlers live in five files: Quennel.cpp (the design and the load),
// Quennel_options.cpp (menus, sizes, views, New), Quennel_play.cpp (clicks
// and typed moves), Quennel_scoring.cpp (judging and the end of a game) and
// Quennel_computer.cpp (the computer's moves).
#pragma once

#include <array>
#include <memory>
#include <string>
#include <vector>

#include "boards/quennel/computer.h"
#include "boards/quennel/tables.h"
#include "toolkit/form.h"

namespace vrask {

class GridSwitch;
class Keypad;
class OtherGames;
class RoundList;

class Quennel : public Form {
 public:
  explicit Quennel(Program& program);
  ~Quennel() override;
  void Form_Load() override;

 private:
  // --- design and load (Quennel.cpp) ----------------------------------------
  void addSidePanel();
  void addSolid();
  void addStatus();
  void addScores();
  void addViewAndNew();
  void addMenus();
  void addGamesMenu();
  void addOptionsMenu();
  void addHelpMenu();
  void registerHandlers();
  void registerVariables();
  void Timer1_Timer();
  void setStartMenusEnabled(bool on);

  // --- menus, sizes, views, New (Quennel_options.cpp) ------------------------
  void ga_Click(int index);
  void tetsize_Click(int index);
  void shonull();
  void shofull();
  void ip_Click(int i);
  void hidmov_Click();
  void grid_Click(bool on);
  void Command8_Click(int step);
  void new_Click();
  void resetGame();
  void openTheGame();
  void setMenusEnabled(bool on);

  // --- the view: real elements on the screen ----------------------------------
  void drawView();
  void drawLine(int real);
  void drawFace(int real);
  int screenLine(int real) const;
  int screenFace(int real) const;
  int realLine(int screen) const;
  int realFace(int screen) const;

  // --- moves (Quennel_play.cpp) ---------------------------------------------
  void sdfx_Click(int n);
  void keyedmove(int screen);
  void takeLine(int line, int colour, int mark);
  void Label12_Click(int screen);
  void paintLine(int line, int colour);
  void paintFace(int face, int colour);
  void Command6_Click();
  void focusTypedMoves();

  // --- judging and the end (Quennel_scoring.cpp) -------------------------------
  void linecheck();
  void announceLineScore(int newFaces);
  void flash(const std::vector<int>& faces);
  void afterFaceMove(int face, bool computersOwn);
  void passFaceTurn();
  void readSides();
  void countPoints();
  void hideNonScoring();
  int countMovesLeft();
  void outtahere();
  void recordRound();

  // --- the computer (Quennel_computer.cpp) --------------------------------------
  void lineBrain();
  void computerTakesLine(int line);
  void faceBrain();

  // --- elements by the board's own names ------------------------------------
  Element& LN(int i) { return (*LN_)[i]; }
  Element& sdfx(int i) { return (*sdfx_)[i]; }
  Element& Shape1(int i) { return (*Shape1_)[i]; }
  Element& Label12(int i) { return (*Label12_)[i]; }
  Element& ga(int i) { return (*ga_)[i]; }
  Element& ip(int i) { return (*ip_)[i]; }
  Element& tetsize(int i) { return (*tetsize_)[i]; }

  ElementArray* LN_ = nullptr;
  ElementArray* sdfx_ = nullptr;
  ElementArray* Shape1_ = nullptr;
  ElementArray* Label12_ = nullptr;
  ElementArray* Label15_ = nullptr;
  ElementArray* Command8_ = nullptr;
  ElementArray* ga_ = nullptr;
  ElementArray* ip_ = nullptr;
  ElementArray* tetsize_ = nullptr;
  Element* Label3 = nullptr;    // Red's "Your turn"
  Element* Label4 = nullptr;    // Blue's "Your turn"
  Element* Label5 = nullptr;    // Blue's points
  Element* Label6 = nullptr;    // Red's points
  Element* Label13 = nullptr;   // the view
  Element* Label20 = nullptr;   // the last move
  Element* Label33 = nullptr;   // the status, in the colour face moves paint
  Element* Label34 = nullptr;   // moves left
  Element* Label36 = nullptr;   // the game
  Element* Picture3 = nullptr;  // behind "GAME OVER"
  Element* Command3 = nullptr;  // New game
  Element* Timer1 = nullptr;    // the introduction
  Element* kkj = nullptr;       // Games Menu
  Element* sublmenu = nullptr;  // its sizes
  Element* zw = nullptr;        // Options
  Element* gg = nullptr;        // Help
  Element* newMenu = nullptr;   // New
  Element* hidmov = nullptr;

  std::unique_ptr<GridSwitch> grid_;
  std::unique_ptr<Keypad> keypad_;
  std::unique_ptr<OtherGames> otherGames_;
  std::unique_ptr<RoundList> roundList_;

  // --- the board ------------------------------------------------------------
  quennel::CellLines celllines{};
  quennel::Turn turn{};
  // How each real face shows, whatever screen circle stands for it now.
  struct FaceLook {
    int rim = color::Black;
    int rimWidth = 1;
    bool shown = true;
    bool numbered = true;  // its number label still shows the number
  };
  std::array<FaceLook, quennel::kFaces + 1> facelook{};
  std::array<bool, quennel::kLines + 1> linedrawn{};  // painted or taken, whatever the colour

  // --- the game -------------------------------------------------------------
  int gamecode = quennel::kFirstGame;
  int levelfull = 0;
  int viewnum = 1;
  int whosnext = 0;    // 1: Red moves next
  int openerflag = 1;  // turned over by every New
  int markplayer = 0;  // line games: the last mover, 1 Red, 2 Blue
  int movesleft = 20;
  int finished = 0;
  int openingmove = 0;
  int introticks = 0;
  bool computersOwn = false;  // the face being played is the computer's
  quennel::LineValues linetaken{};
  quennel::LineValues linecolour{};
  quennel::SideMarks sidemark{};
  quennel::FaceCounts facescored{};
  quennel::FaceCounts facetaken{};
  quennel::FaceCounts sidecount{};
  std::vector<int> candidates;
  std::vector<int> dangerlines;

  const quennel::Game& game() const;
  int faces() const { return quennel::facesOfSize(levelfull); }
  int lines() const { return quennel::linesOfSize(levelfull); }
  bool lineGame() const { return quennel::playsLines(gamecode); }
  bool onePlayer() { return ip(0).Checked; }
};

}  // namespace vrask
