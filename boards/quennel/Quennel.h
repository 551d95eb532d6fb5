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
#include <optional>
#include <string>
#include <vector>

#include "boards/quennel/computer.h"
#include "boards/quennel/tables.h"
#include "frame/grid_switch.h"
#include "frame/keypad.h"
#include "frame/other_games.h"
#include "frame/round_list.h"
#include "frame/turn_flow.h"
#include "toolkit/form.h"

namespace vrask {

class ExpertMenu;

class Quennel : public Form {
 public:
  explicit Quennel(Program& program);
  ~Quennel() override;
  void Form_Load() override;
  // The line the expert would draw for the side to move, by its number on
  // the screen; 0 outside Ombrel or when the game is over.
  int expertMove();

 private:
  // --- design and load (Quennel.cpp) ----------------------------------------
  void addSidePanel();
  void addSolid();
  void addStatus();
  void addScores();
  void addScoreColumn(const std::array<Element*, 3>& column, const std::string& name, int colour,
                      double left);
  void addViewAndNew();
  void addMenus();
  void addGamesMenu();
  void addPlayerEntries();
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
  void takeQuietLine(int line);
  void faceBrain();

  // --- the expert (Quennel_expert.cpp) ----------------------------------------
  int expertLineChoice();
  void expertLineMove();
  void expertHint_Click();

  // --- elements by the board's own names ------------------------------------
  // The board's arrays: lines, their numbers, the faces' circles and theirs.
  Element& LN(int i) { return (*LN_)[i]; }
  Element& sdfx(int i) { return (*sdfx_)[i]; }
  Element& Shape1(int i) { return (*Shape1_)[i]; }
  Element& Label12(int i) { return (*Label12_)[i]; }
  ElementArray *LN_{}, *sdfx_{}, *Shape1_{}, *Label12_{};
  // "GAME OVER", the view buttons.
  ElementArray *Label15_{}, *Command8_{};
  // Menu entries: games, players, sizes.
  Element& ga(int i) { return (*ga_)[i]; }
  Element& ip(int i) { return (*ip_)[i]; }
  Element& tetsize(int i) { return (*tetsize_)[i]; }
  ElementArray *ga_{}, *ip_{}, *tetsize_{};
  // The turn flags: Red's "Your turn", Blue's; the points: Blue's, Red's.
  Element *Label3{}, *Label4{}, *Label5{}, *Label6{};
  // The view, the last move, the status (in the colour face moves paint),
  // the moves left, the game.
  Element *Label13{}, *Label20{}, *Label33{}, *Label34{}, *Label36{};
  // Behind "GAME OVER"; New game; the introduction's timer.
  Element *Picture3{}, *Command3{}, *Timer1{};
  // Menus: games, its sizes, options, help, New; the entry "Hide non-scoring
  // made moves".
  Element *kkj{}, *sublmenu{}, *zw{}, *gg{}, *newMenu{}, *hidmov{};

  std::unique_ptr<GridSwitch> grid_;
  std::unique_ptr<Keypad> keypad_;
  std::unique_ptr<OtherGames> otherGames_;
  std::unique_ptr<RoundList> roundList_;
  std::unique_ptr<TurnFlow> flow_;
  std::unique_ptr<ExpertMenu> expert_;

  // --- the board ------------------------------------------------------------
  quennel::CellLines celllines{};
  quennel::Turn turn{};
  // What a Super move paints beyond each face, and how each screen line is
  // drawn while it is free; both fixed at load.
  std::array<std::optional<std::array<int, 2>>, quennel::kFaces + 1> beyond{};
  std::array<int, quennel::kLines + 1> designWidth{}, designColour{};
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
  quennel::LineValues linetaken{}, linecolour{};
  quennel::SideMarks sidemark{};
  quennel::FaceCounts facescored{}, facetaken{}, sidecount{};
  std::vector<int> candidates, dangerlines;

  const quennel::Game& game() const;
  int faces() const { return quennel::facesOfSize(levelfull); }
  int lines() const { return quennel::linesOfSize(levelfull); }
  bool lineGame() const { return quennel::playsLines(gamecode); }
  bool onePlayer() { return ip(0).Checked; }
};

}  // namespace vrask
