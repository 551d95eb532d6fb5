// The expert computer: with "Expert computer" ticked, the computer's lines in
// Ombrel come from the expert's search instead of the line brain; the pauses,
// the yellow lines and the judging around them are the same. The face games
// keep the face brain: the expert plays the line games only. "Hint" shows a
// player the line the expert would draw.
#include <algorithm>
#include <string>

#include "boards/quennel/Quennel.h"
#include "boards/quennel/expert_view.h"
#include "boards/quennel/look.h"
#include "frame/expert_menu.h"

namespace vrask {

using namespace quennel;

Quennel::Quennel(Program& program) : Form(program, "Quennel") {}
Quennel::~Quennel() = default;

// The real line the expert draws for the side to move; 0 when none is free.
// The search works on a copy, so that the window can paint while it runs.
int Quennel::expertLineChoice() {
  auto think = [view = expertLinesOf(celllines, linetaken, faces())] {
    return view.bestLine(expert::Budget::forMillis(expertMillis()));
  };
  // The line brain's pauses let nothing through either.
  return expert_->decide(think, false);
}

// Red's line, drawn as the line brain draws one. A line that closes a face is
// judged, and Red goes again; one that closes none hands the turn to Blue.
void Quennel::expertLineMove() {
  whosnext = 0;
  sidecount = countMarkedSides(sidemark, faces());
  std::vector<int> closable = facesToClose(sidecount, faces());
  int line = expertLineChoice();
  if (line == 0) return;
  bool closes = std::any_of(closable.begin(), closable.end(), [this, line](int f) {
    const auto& sides = celllines.at(static_cast<size_t>(f));
    return std::find(sides.begin() + 1, sides.end(), line) != sides.end();
  });
  if (closes) {
    computerTakesLine(line);
    linecheck();
    return;
  }
  takeQuietLine(line);
}

int Quennel::expertMove() {
  if (finished == 1 || !lineGame()) return 0;
  int line = expertLineChoice();
  return line == 0 ? 0 : screenLine(line);
}

// The line the expert would draw for the side to move shows in yellow for a
// moment, and its number as the screen shows it stays in the status line;
// nothing of the game changes. Outside Ombrel there is no line to show.
void Quennel::expertHint_Click() {
  int screen = expertMove();
  if (screen == 0) return;
  expert_->showMove({&LN(screen)}, kTaken);
  flow_->say("Hint: " + std::to_string(screen), flow_->moverColour());
}

}  // namespace vrask
