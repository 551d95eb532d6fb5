// The 4D triangular board: a cube whose eight corners are joined to three
// apex points, every edge of the cube with its two spokes to one apex being a
// triangle that scores. Two levels (one cube, or two cubes sharing a third)
// and five games: the line game Ombrel and four circle games.
//
// The handlers live in five files: form5d.cpp (the design and the load),
// form5d_options.cpp (menus, levels, New and who opens), form5d_play.cpp
// (clicks and typed moves), form5d_scoring.cpp (what a move scores, the Vrask
// move and the end of a round) and form5d_computer.cpp (the computer and the
// hints).
#pragma once

#include <array>
#include <memory>
#include <utility>
#include <vector>

#include "boards/tetra4d/rules.h"
#include "frame/grid_switch.h"
#include "frame/keypad.h"
#include "frame/other_games.h"
#include "frame/round_list.h"
#include "frame/sudden_death.h"
#include "frame/turn_flow.h"
#include "toolkit/form.h"

namespace vrask {

class ExpertMenu;

class form5d : public Form {
 public:
  explicit form5d(Program& program);
  ~form5d() override;
  void Form_Load() override;
  // The number of the line the expert would draw for the side to move; 0
  // outside Ombrel or when the round is over.
  int expertMove();

 private:
  // --- design and load (form5d.cpp) ---------------------------------------
  void addFigures();
  void addCube(int cube);
  void addSpokes(int apex);
  void addHitAreas();
  void addCircles();
  void addScores();
  void addStatus();
  void addBelowFigures();
  void addMenus();
  void registerHandlers();
  void registerVariables();
  Element& addSegment(const std::string& name, int lo, int hi, int design);

  // --- menus, levels, New (form5d_options.cpp) -------------------------------
  void game_Click(int i);
  void lvm_Click(int i);
  void pl_Click(int i);
  void Option1_Click(int i);
  void showNumbers(bool on);
  void hint_Click(Element& entry, Element* shows);
  void gmm_Click();
  void resetRound();
  void openRound();
  void showLinesOfLevel();
  void showGameElements();
  void setMenusEnabled(bool on);

  // --- moves (form5d_play.cpp) -------------------------------------------------
  void Label1_Click(int index);
  void Label9_Click(int n);
  void Label99_Click(int index);
  void Command4_Click();
  void playLine(int slot);
  void passLineTurn();
  void countDownMoves();
  void circleMove(int t);

  // --- scoring and the end (form5d_scoring.cpp) ----------------------------
  void griddle(int slot);
  void flash(int t);
  void judgeCircles();
  void newflash(int t);
  void outtahere();
  void endRound();

  // --- the computer and the hints (form5d_computer.cpp) ----------------------
  void compmove();
  void flmove(int slot);
  void slable(int index);
  void compcheck();
  void List3_Click();
  void List3_DblClick();
  void computerCircleMove();

  // --- the expert (form5d_expert.cpp) -----------------------------------------
  int expertLineChoice();
  void expertTurn();
  void expertHint_Click();

  // --- the drawn lines ------------------------------------------------------
  // Every segment that shows line `slot` now, in every figure.
  std::vector<Element*> segmentsOf(int slot);
  // The segments of triangle t in the figure of its apex.
  std::vector<Element*> triangleSegments(int t);
  void paintLine(int slot, int colour, int width);
  int moverColour() const;

  // Triangle t's ring and circle; the level and player entries.
  Element& ring(int t) { return (*Shape1_)[t - 1]; }
  Element& Label99(int i) { return (*Label99_)[i]; }
  Element& lvm(int i) { return (*lvm_)[i]; }
  Element& pl(int i) { return (*pl_)[i]; }

  // The drawn segments: the two cubes (views 0 and 1), the middle cube
  // (view 1) and the spokes of the three apexes, by edge and corner.
  std::array<std::array<ElementArray*, tetra4d::kEdges + 1>, 3> cubes_{};
  std::array<ElementArray*, tetra4d::kEdges + 1> middle_{};
  std::array<std::array<ElementArray*, tetra4d::kSpokes>, 4> spokes_{};
  std::vector<std::pair<Element*, int>> designColours_;

  ElementArray* Label1_ = nullptr;
  ElementArray* Label9_ = nullptr;
  ElementArray* Label99_ = nullptr;
  ElementArray* Shape1_ = nullptr;
  ElementArray* Label15_ = nullptr;
  ElementArray* Option1_ = nullptr;
  ElementArray* game_ = nullptr;
  ElementArray* lvm_ = nullptr;
  ElementArray* pl_ = nullptr;
  // Scores and turn, the status lines, the hints, New.
  Element *Label3 = nullptr, *Label4 = nullptr, *Label5 = nullptr, *Label6 = nullptr;
  Element *Label8 = nullptr, *Label10 = nullptr, *Label12 = nullptr, *Label33 = nullptr,
          *Label36 = nullptr;
  Element *Label34 = nullptr, *List3 = nullptr, *Command1 = nullptr;
  // Menus the first move closes, and the options read during play.
  Element *gamz = nullptr, *pwm = nullptr, *pme = nullptr, *shint = nullptr, *bhint = nullptr;
  Element *hnt = nullptr, *hidmov = nullptr;

  // The frame's services, in the order the load makes them.
  std::unique_ptr<RoundList> roundList_;
  std::unique_ptr<GridSwitch> grid_;
  std::unique_ptr<Keypad> keypad_;
  std::unique_ptr<SuddenDeath> sd_;
  std::unique_ptr<OtherGames> otherGames_;
  std::unique_ptr<ExpertMenu> expert_;

  // --- the game -------------------------------------------------------------
  tetra4d::Board board_;
  // The status, points and turn markers, the last move, the end of a round.
  std::unique_ptr<TurnFlow> flow_;
  tetra4d::LineTriangles lntri_;
  // The round: its game, who plays, who opened it.
  int gamenum = tetra4d::kOmbrel, players = 1, firstturn = 1;
  // The turn: the mover, the moves left, whether the last move scored.
  int curplayer = tetra4d::kBlue, movesleft = 36, scoredflag = 0;
  // The computer at work, and the round written into the round list.
  int compbusy = 0, compflash = 0, overflag = 0;
};

}  // namespace vrask
