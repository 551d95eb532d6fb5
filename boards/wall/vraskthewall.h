// The wall board: a slab one cube thick of 3 by 3, 4 by 4 or 5 by 5 cubes,
// drawn as a solid, whose square faces are played. A move on a square's
// circle claims the square and paints its four lines in the mover's colour,
// over whatever stood there; in Super Vrask Plus the square's neighbours go
// with it. The points are read again from the lines after every move. Two
// people play, or one against the computer.
//
// The drawn elements are the game state: a line is drawn when its width is
// 8, its colour says whose it is, the mover's colour is the colour of the
// status label `Label33` and the points are the captions of `Label5` and
// `Label6`.
//
// The handlers live in four files: vraskthewall.cpp (the design and the
// load), vraskthewall_options.cpp (menus, levels, New),
// vraskthewall_play.cpp (a person's moves, judging and the end of a game)
// and vraskthewall_computer.cpp (the computer's moves).
#pragma once

#include <memory>

#include "boards/wall/computer.h"
#include "boards/wall/tables.h"
#include "frame/grid_switch.h"
#include "frame/keypad.h"
#include "frame/other_games.h"
#include "frame/round_list.h"
#include "frame/turn_flow.h"
#include "toolkit/form.h"

namespace vrask {

class vraskthewall : public Form {
 public:
  explicit vraskthewall(Program& program);
  ~vraskthewall() override;
  void Form_Load() override;

 private:
  // --- design and load (vraskthewall.cpp) ------------------------------------
  void addBoard();
  void addStatus();
  void addScores();
  void addLevelButtons();
  void addMenus();
  void addGamesMenu();
  void addOptionsMenu();
  void registerHandlers();
  void registerVariables();
  void placeWall(int bd);

  // --- menus, levels, New (vraskthewall_options.cpp) --------------------------
  void bd_Click(int level);
  void game_Click(int index);
  void ip_Click(int i);
  void ch_Click();
  void hidmov_Click();
  void showNumbers(bool on);
  void new_Click();
  void clearBoard();
  void openGame();
  void showLevelButtons(bool on);
  int checkedLevel() const;

  // --- a person's moves, judging and the end (vraskthewall_play.cpp) ----------
  void Label9_Click(int n);
  void Command4_Click();
  void takeSquare(int s, int colour);
  void passTurn();
  int drawnLines(int s);
  int judge();
  void endOfGame();

  // --- the computer (vraskthewall_computer.cpp) -------------------------------
  void computerMove();
  void paintComputerSquare(int s);

  // --- elements by the board's own names ---------------------------------------
  Element& Line3(int i) { return (*Line3_)[i]; }
  Element& Shape1(int i) { return (*Shape1_)[i]; }
  // The circle of square s is `Shape1(10 s)`.
  Element& circleOf(int s) { return (*Shape1_)[10 * s]; }
  Element& Label9(int i) { return (*Label9_)[i]; }
  Element& lineOf(int s, int k) { return Line3(celllines.at(s).at(k)); }
  Element& ip(int i) { return (*ip_)[i]; }
  bool onWallNow(int s) const { return (*Label9_)[s].Visible; }

  // --- the game ------------------------------------------------------------------
  int gamecode = wall::Classic;
  int wallsize = 0;
  wall::CellLines celllines{};
  int openerflag = 0;  // turned over by New: 1 when Red opens
  // 1 while the computer moves: clicks, typed moves and New wait for it.
  int compbusy = 0;
  // 1 from the end of a game until New: the finished wall takes no more moves.
  int gameover = 0;
  wall::SquareMarks squaretaken{};

  // --- the elements the rules use -------------------------------------------------
  // The edges of the empty wall (a picture only), the lines, the circles and
  // their click targets.
  ElementArray *a_ = nullptr, *Line3_ = nullptr, *Shape1_ = nullptr, *Label9_ = nullptr;
  // The level buttons, and the menus of games, walls and players.
  ElementArray *Label13_ = nullptr, *game_ = nullptr, *bd_ = nullptr, *ip_ = nullptr;
  // The top and the end of the solid, and its front.
  Element *wallshade = nullptr, *wallfront = nullptr;
  // The heading of the level buttons, moves left with its heading, the game.
  Element *Label14 = nullptr, *Label34 = nullptr, *Label35 = nullptr, *Label36 = nullptr;
  Element *ch = nullptr, *hidmov = nullptr;

  // --- the frame's services -------------------------------------------------------
  std::unique_ptr<GridSwitch> grid_;
  std::unique_ptr<Keypad> keypad_;
  std::unique_ptr<OtherGames> otherGames_;
  std::unique_ptr<RoundList> roundList_;
  std::unique_ptr<TurnFlow> flow_;
};

}  // namespace vrask
