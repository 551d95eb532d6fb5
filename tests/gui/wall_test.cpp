// The wall in the real window: launched from the front page, played by
// clicks and against the computer, at two window sizes and on every wall.
#include <variant>

#include <QListWidget>

#include <gtest/gtest.h>

#include "tests/gui/harness.h"

namespace vrask::gui_test {

TEST(Wall, LaunchedFromTheFrontPageAndPlayedOnEveryWall) {
  WindowRun run;
  run.program.open("title");
  run.form().invoke("Timer2_Timer", -1);
  run.click("Label11", 32);
  ASSERT_EQ(run.form().name(), "vraskthewall");
  run.window().resize(1100, 700);
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&run.window()));
  Form* board = &run.form();
  auto variable = [&](const std::string& name, const std::vector<int>& index = {}) {
    return std::get<double>(board->variables().at(name).get(index));
  };
  EXPECT_EQ(variable("wallsize"), 72);
  QTest::qWait(100);
  run.screenshot(run.window(), "wall-bigger-start");

  // Two players, with the numbers shown: every click on a circle is a move.
  run.form().invoke("ip_Click", 1);
  run.form().invoke("grid_Click", -1);
  for (int s : {7, 8, 57, 88, 33, 12}) {
    run.click("Label9", s);
    EXPECT_NE(variable("squaretaken", {s}), 0) << s;
  }
  QTest::qWait(100);
  run.screenshot(run.window(), "wall-bigger-two-players");
  run.window().resize(640, 400);
  QTest::qWait(100);
  run.screenshot(run.window(), "wall-bigger-small-window");

  // The Great Wall, Super Vrask Plus, against the computer to the end.
  run.form().invoke("cccbm_Click", 10);
  ASSERT_EQ(run.form().name(), "vraskthewall");
  board = &run.form();
  run.window().resize(1100, 700);
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&run.window()));
  run.form().invoke("game_Click", 7);
  for (int s = 1; s <= 110 && variable("gameover") == 0; ++s) {
    if (variable("squaretaken", {s}) != 0) continue;
    run.click("Label9", s);
    if (s == 40) run.screenshot(run.window(), "wall-great-computer");
  }
  ASSERT_EQ(variable("gameover"), 1);
  auto* list = qobject_cast<QListWidget*>(run.control("List4"));
  ASSERT_NE(list, nullptr);
  EXPECT_EQ(list->count(), 4);
  QTest::qWait(100);
  run.screenshot(run.window(), "wall-great-over");

  // The smallest wall, with its circles and their numbers.
  run.form().invoke("cccbm_Click", 8);
  board = &run.form();
  run.window().resize(1100, 700);
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&run.window()));
  EXPECT_EQ(variable("wallsize"), 42);
  run.form().invoke("grid_Click", -1);
  QTest::qWait(100);
  run.screenshot(run.window(), "wall-small-numbers");
}

}  // namespace vrask::gui_test
