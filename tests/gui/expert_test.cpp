// The expert's hint in the real window: F2 reaches it during a game, when
// the game menus are closed, and it changes nothing but the status line.
#include <variant>
#include <vector>

#include <QApplication>

#include <gtest/gtest.h>

#include "tests/gui/harness.h"

namespace vrask::gui_test {

namespace {

// What a hint must leave as it was: every line as drawn, who owns it, the
// points and the last move.
struct Board {
  std::vector<int> widths, colours, owners;
  std::string blue, red, lastMove;
  bool operator==(const Board&) const = default;
};

Board boardOf(WindowRun& run) {
  Board b;
  ElementArray& lines = *run.form().findArray("ln1");
  for (Element& line : lines) {
    b.widths.push_back(line.BorderWidth);
    b.colours.push_back(line.BorderColor);
    b.owners.push_back(
        static_cast<int>(std::get<double>(run.form().variables().at("lineown").get({line.index}))));
  }
  b.blue = run.element("Label5").Caption;
  b.red = run.element("Label6").Caption;
  b.lastMove = run.element("Label18").Caption;
  return b;
}

}  // namespace

TEST(Expert, F2ShowsTheHintDuringAGameAndChangesNothingElse) {
  qputenv("VRASK_EXPERT_MS", "20");
  WindowRun run(0.01);
  run.program.open("Form1large");
  run.window().resize(1100, 820);
  run.window().activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&run.window()));
  qt::Menus& menus = *run.window().menus();
  EXPECT_EQ(menus.actionOf("hint")->shortcut(), QKeySequence(Qt::Key_F2));
  for (const char* entry : {"sizsq(5)", "game(0)", "ip(0)"}) menus.actionOf(entry)->trigger();

  // Blue's first line; the computer answers, and the game menus close.
  run.click("Label1", 1);
  ASSERT_TRUE(QTest::qWaitFor(
      [&] { return run.element("Label33").Caption == "No score    Blue's turn."; }, 5000))
      << run.element("Label33").Caption;
  ASSERT_FALSE(run.element("ks").Enabled);
  Board before = boardOf(run);

  QWidget* focus = QApplication::focusWidget();
  QTest::keyClick(focus != nullptr ? focus : &run.window(), Qt::Key_F2);
  ASSERT_TRUE(
      QTest::qWaitFor([&] { return run.element("Label33").Caption.rfind("Hint: ", 0) == 0; }, 5000))
      << run.element("Label33").Caption;
  EXPECT_EQ(boardOf(run), before);
  QTest::qWait(50);
  run.screenshot(run.window(), "expert-hint-during-a-game");
  qunsetenv("VRASK_EXPERT_MS");
}

}  // namespace vrask::gui_test
