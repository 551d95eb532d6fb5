#include "launcher/suite.h"

#include "boards/flatland/Form1large.h"
#include "boards/flatland/play.h"
#include "boards/hypercube/form5d2.h"
#include "boards/hypercube/play.h"
#include "boards/quennel/Quennel.h"
#include "boards/quennel/play.h"
#include "boards/tetra4d/form5d.h"
#include "boards/tetra4d/play.h"
#include "boards/triangular/Triang.h"
#include "boards/triangular/play.h"
#include "boards/wall/play.h"
#include "boards/wall/vraskthewall.h"
#include "boards/zorvex/play.h"
#include "boards/zorvex/zorvex.h"
#include "frame/about_box.h"
#include "launcher/title.h"

namespace vrask {

namespace {

template <typename F>
Program::Factory factory() {
  return [](Program& p) { return std::make_unique<F>(p); };
}

}  // namespace

// One line a board. A launcher label or "Other Games" entry of a board not
// listed here shows "Not yet available".
const std::vector<Board>& boards() {
  static const std::vector<Board> list{
      {factory<Form1large>(), flatland::play()}, {factory<Triang>(), triangular::play()},
      {factory<zorvex>(), cube::play()},         {factory<vraskthewall>(), wall::play()},
      {factory<form5d2>(), hypercube::play()},   {factory<Quennel>(), quennel::play()},
      {factory<form5d>(), tetra4d::play()},
  };
  return list;
}

const Board* findBoard(const std::string& form) {
  for (const Board& board : boards()) {
    if (board.play.form == form) return &board;
  }
  return nullptr;
}

void registerSuite(Program& program, const std::string& onlyBoard) {
  shared::defineSharedValues(program.shared());
  program.registerForm("title", factory<title>());
  program.registerForm("AboutBox", factory<AboutBox>());
  for (const Board& board : boards()) {
    if (onlyBoard.empty() || board.play.form == onlyBoard) {
      program.registerForm(board.play.form, board.factory);
    }
  }
}

}  // namespace vrask
