// The 4D triangular board in the real window: opened from the front page,
// a few lines against the computer, then a circle game, at two sizes.
#include <variant>

#include <gtest/gtest.h>

#include "tests/gui/harness.h"

namespace vrask::gui_test {

TEST(Tetra4d, OpensFromTheFrontPageAndPlaysLinesAndCircles) {
  WindowRun run;
  run.program.open("title");
  run.program.timerTick(run.form(), run.element("Timer2"));
  run.click("Label11", 51);
  ASSERT_EQ(run.form().name(), "form5d");
  run.window().resize(1280, 760);
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&run.window()));
  Form& board = run.form();
  auto variable = [&](const std::string& name, const std::vector<int>& index = {}) {
    return std::get<double>(board.variables().at(name).get(index));
  };

  run.window().menus()->actionOf("shgrid")->trigger();
  QTest::qWait(100);
  run.screenshot(run.window(), "tetra4d-lines-grid");

  // Fronttop by a click on its line, then a spoke by its number.
  run.click("Label1", 3);
  EXPECT_EQ(variable("lnstate", {4}), 1);
  EXPECT_EQ(variable("curplayer"), 1) << "the computer has replied";
  run.click("Label9", 13);
  EXPECT_EQ(variable("lnstate", {25}), 1);
  QTest::qWait(100);
  run.screenshot(run.window(), "tetra4d-lines-played");

  // Two new rounds (the computer opens the first, Blue the second), two
  // players, the circle game with the Vrask move, numbers in the circles.
  run.window().menus()->actionOf("gmm(1)")->trigger();
  run.window().menus()->actionOf("gmm(1)")->trigger();
  run.window().menus()->actionOf("pl(2)")->trigger();
  run.window().menus()->actionOf("game(7)")->trigger();
  run.window().menus()->actionOf("shgrid")->trigger();
  ASSERT_EQ(variable("gamenum"), 7);
  for (int i : {0, 12, 24, 5}) {
    run.click("Label99", i);
    EXPECT_EQ(run.element("Shape1", i).BorderWidth, 8) << "circle " << i + 1;
  }
  run.window().resize(900, 560);
  QTest::qWait(100);
  run.screenshot(run.window(), "tetra4d-circles-small");
  run.window().resize(1600, 920);
  QTest::qWait(100);
  run.screenshot(run.window(), "tetra4d-circles-large");
}

}  // namespace vrask::gui_test
