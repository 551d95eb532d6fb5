// The cube board: one cube of 2 by 2 by 2 small cubes drawn as a wire frame,
// in eleven games on its 54 lines, 36 squares and 8 cubes, seen from four
// sides, for two people or one against the computer.
//
// The board's own tables (`lineowner`, `squareinks`, `circlestate` ...) hold
// the game in the cube's own frame; the drawn elements are slots of the first
// view's figure, and a view says which board line or square each slot shows.
// The mover is `rednext` in Ombrel and Zorvex (Lines) and the colour of the
// status label `Label33` in every other game; the scores are the captions of
// `Label5` (Blue) and `Label6` (Red).
//
// The handlers live in seven files: zorvex.cpp (the design and the load),
// zorvex_options.cpp (menus, views, New), zorvex_play.cpp (clicks and typed
// moves), zorvex_scoring.cpp (counting and the end of a game),
// zorvex_computer.cpp (the computer's replies), zorvex_vrask.cpp (Line
// Vrask, the Vrask move and the hints) and zorvex_expert.cpp (the expert's
// moves and its hint).
#pragma once

#include <array>
#include <memory>
#include <optional>
#include <vector>

#include "boards/zorvex/computer.h"
#include "boards/zorvex/tables.h"
#include "frame/grid_switch.h"
#include "frame/keypad.h"
#include "frame/other_games.h"
#include "frame/round_list.h"
#include "frame/sudden_death.h"
#include "frame/turn_flow.h"
#include "toolkit/form.h"

namespace vrask {

class ExpertMenu;

class zorvex : public Form {
 public:
  explicit zorvex(Program& program);
  ~zorvex() override;
  void Form_Load() override;
  // The target a person clicks for the expert's move for the side to move:
  // the number of a line in Ombrel, a circle in Zorvex (Squares); 0 in the
  // other games or when none is left.
  int expertMove();

 private:
  // --- design and load (zorvex.cpp) -------------------------------------------
  void addBoard();
  void addTargets();
  void addStatus();
  void addScores();
  void addControls();
  void addMenus();
  void addGamesMenu();
  void addOptionsMenu();
  void addViewMenu();
  void addHintsMenu();
  void addCumulativePanel();
  void registerHandlers();
  void registerVariables();

  // --- menus, views, New (zorvex_options.cpp) ---------------------------------
  void game_Click(int m);
  void ip_Click(int i);
  void grid_Click(bool on);
  void hidmov_Click();
  void sskl_Click(int i);
  void newz_Click();
  void resetTables();
  void openTheGame();
  void computerOpensCircleGame();
  void Command8_Click(int i);
  void Text1_KeyDown(int keyCode);
  void voomaster();
  void drawFreeColours();
  void drawOwnedLines();
  void drawPlayedRings();
  void showViewButtons();
  void showForMode();

  // --- moves (zorvex_play.cpp) -----------------------------------------------
  void Label22_Click(int z);
  void lineClickPrelude();
  int takeLineMover();
  void Label11_Click(int n);
  void Label9_Click(int c);
  void paintSquare(int slot, int colour);
  void inkBoardLine(int L, int colour);
  void passCircleTurn();
  void ballswalls(int s);
  void Command6_Click();
  void badmove();
  void markmov(int L);

  // --- counting and the end (zorvex_scoring.cpp) -------------------------------
  void scoremove();
  std::vector<int> newFigures() const;
  void settleLineTurn(int n);
  void flashFigure(const std::vector<int>& boardLines, double seconds);
  int freeLineCount() const;
  void recount();
  int usedSquares() const;
  bool afterCircleMove();
  void countCubes();
  void gameEnd(double pause);
  void Command2_Click();
  void Command5_Click();
  void cuscore_Click();
  void hideCumulativePanel();
  void showCumulativePanel(bool on);
  void handKeypadToMover();

  // --- the computer (zorvex_computer.cpp) ----------------------------------------
  void ombrelReply();
  void playComputerLine(int L);
  void circleReply();
  int pickCircleReply();
  void carryOutReply(int s);
  void playQuietLine(int L, const cube::PerSquare& painted);
  void squaresReply();
  int pickFrom(const std::vector<int>& candidates);

  // --- the expert (zorvex_expert.cpp) ----------------------------------------------
  void expertOmbrelReply();
  bool completesSquare(const cube::PerSquare& painted, int L) const;
  int expertBoardMove(bool letEventsThrough);
  void hint_Click();

  // --- Line Vrask, the Vrask move, hints (zorvex_vrask.cpp) --------------------------
  void lineVraskClick(int slot, bool byComputer);
  void lineVraskMove(int slot, int colour);
  void passLineVraskTurn();
  int countWidthOneLines() const;
  void lineVraskRecount();
  void fixedOpening();
  void outtahere();
  void outtathere();
  void hnt_Click();
  void shint_Click();
  void bhint_Click();
  bool ombrelOnly(Element& entry);
  void hintscan(const cube::PerSquare& before);
  void List3_Click(bool play);

  // --- elements by the board's own names -----------------------------------
  static Element& item(ElementArray* array, int i) { return (*array)[i]; }
  Element& LN(int i) { return item(LN_, i); }
  Element& Label22(int i) { return item(Label22_, i); }
  Element& Label11(int i) { return item(Label11_, i); }
  Element& Shape1(int i) { return item(Shape1_, i); }
  Element& Label9(int i) { return item(Label9_, i); }
  // The diagonal of square s is `Line2(10 s)`.
  Element& Line2(int s) { return item(Line2_, 10 * s); }
  Element& game(int i) { return item(game_, i); }
  Element& ip(int i) { return item(ip_, i); }
  Element& sskl(int i) { return item(sskl_, i); }
  bool onePlayer() const { return (*ip_)[0].Checked; }
  bool gridOn() const;
  int mover() const { return Label33->ForeColor; }
  int slotLine(int L) const { return cube::slotOfLine(viewno, L); }
  int slotSquare(int s) const { return cube::slotOfSquare(viewno, s); }

  ElementArray* LN_ = nullptr;
  ElementArray* Label22_ = nullptr;
  ElementArray* Label11_ = nullptr;
  ElementArray* Shape1_ = nullptr;
  ElementArray* Label9_ = nullptr;
  ElementArray* Line2_ = nullptr;
  ElementArray* Line3_ = nullptr;
  ElementArray* Label15_ = nullptr;
  ElementArray* Command8_ = nullptr;
  ElementArray* game_ = nullptr;
  ElementArray* ip_ = nullptr;
  ElementArray* sskl_ = nullptr;
  ElementArray* Label7_ = nullptr;
  ElementArray* Label20_ = nullptr;
  Element* Label1 = nullptr;
  Element* Label2 = nullptr;
  Element* Label3 = nullptr;
  Element* Label4 = nullptr;
  Element* Label5 = nullptr;
  Element* Label6 = nullptr;
  Element* Label8 = nullptr;
  Element* Label12 = nullptr;
  Element* Label13 = nullptr;
  Element* Label14 = nullptr;
  Element* Label33 = nullptr;
  Element* Label34 = nullptr;
  Element* Label35 = nullptr;
  Element* Label36 = nullptr;
  Element* List3 = nullptr;
  Element* List4 = nullptr;
  Element* Command2 = nullptr;
  Element* Command5 = nullptr;
  Element* Command7 = nullptr;
  Element* xq = nullptr;
  Element* sdz = nullptr;
  Element* hnt = nullptr;
  Element* shint = nullptr;
  Element* bhint = nullptr;
  Element* hidmov = nullptr;
  Element* cuscore = nullptr;

  // The frame's services under this form's names: the menus' ...
  std::optional<OtherGames> otherGames_{};
  std::optional<SuddenDeath> sd_{};
  std::optional<GridSwitch> grid_{};
  // ... the keypad and the round list, and the flow of a game, which reads
  // the elements of all of them.
  std::optional<Keypad> keypad_{};
  std::optional<RoundList> roundList_{};
  std::optional<TurnFlow> flow_{};
  std::unique_ptr<ExpertMenu> expert_;

  // --- the game -------------------------------------------------------------
  cube::Tables tables;
  int gamemode = cube::VraskClassic;
  int viewno = 1;
  int rednext = 0;
  int moverid = 2;
  int openerflag = 1;
  int busy = 0;
  int started = 0;   // a New has been made since the form loaded
  int gameover = 0;  // the last move is made; only New goes on
  cube::PerLine lineowner{};
  cube::SquareInks squareinks{};
  std::array<std::array<int, 13>, cube::kCubes + 1> cubeinks{};
  cube::CubeFaces cubefaces{};
  cube::PerSquare scoredflags{};
  cube::PerSquare circlestate{};
  cube::PerCube cubescored{};
  cube::PerLine hitlines{};
  std::array<int, 13> flashlist{};
  std::array<int, 13> flashsave{};
  std::vector<int> movepick;
  std::array<int, cube::kLines + 1> numbercolour{};  // Label11's design colour, by number
};

}  // namespace vrask
