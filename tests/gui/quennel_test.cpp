// The tetrahedron board in the real window: opened from the front page, a
// face game played in two views, then a line game of the mirrored size.
#include <tuple>
#include <variant>

#include <QAction>

#include <gtest/gtest.h>

#include "tests/gui/harness.h"

namespace vrask::gui_test {

TEST(Quennel, OpensFromTheFrontPageAndPlaysFacesAndLinesInTurnedViews) {
  WindowRun run;
  run.program.open("title");
  run.windows.timerTick(run.form(), run.element("Timer2"));
  run.click("Label11", 100);
  ASSERT_EQ(run.form().name(), "Quennel");
  Form& board = run.form();
  run.window().resize(1000, 690);
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&run.window()));
  auto variable = [&](const std::string& name, const std::vector<int>& index = {}) {
    return std::get<double>(board.variables().at(name).get(index));
  };
  // The introduction brings the circles in one by one, then opens the game.
  for (int tick = 0; tick < 24; ++tick) run.windows.timerTick(board, run.element("Timer1"));
  EXPECT_TRUE(run.element("Command3").Enabled);
  QTest::qWait(100);
  run.screenshot(run.window(), "quennel-start");

  run.click("Label12", 13);
  EXPECT_EQ(variable("facetaken", {13}), 1);
  // The view turns by a third: screen circle 1 now stands for face 5.
  QTest::mouseClick(run.control("Command8(1)"), Qt::LeftButton);
  EXPECT_EQ(run.element("Label13").Caption, "View 2");
  int before = static_cast<int>(variable("facetaken", {5}));
  run.click("Label12", 1);
  EXPECT_EQ(variable("facetaken", {5}), before == 0 ? 1 : before);
  QTest::qWait(100);
  run.screenshot(run.window(), "quennel-faces-view-2");

  // The menus open again with New; at the next the computer opens, which
  // closes them, and at the one after Blue does.
  QTest::mouseClick(run.control("Command3"), Qt::LeftButton);
  EXPECT_FALSE(run.element("kkj").Enabled);
  QTest::mouseClick(run.control("Command3"), Qt::LeftButton);
  run.window().menus()->actionOf("tetsize(2)")->trigger();
  run.window().menus()->actionOf("ga(2)")->trigger();
  QTest::mouseClick(run.control("Command3"), Qt::LeftButton);
  EXPECT_EQ(variable("gamecode"), 2);
  for (int line : {37, 25, 11}) run.click("sdfx", line);
  EXPECT_NE(variable("linetaken", {37}), 0);
  QTest::mouseClick(run.control("Command8(0)"), Qt::LeftButton);
  for (auto [width, height, name] : {std::tuple{1000, 690, "quennel-lines-view-3"},
                                     std::tuple{640, 460, "quennel-lines-small"}}) {
    run.window().resize(width, height);
    QTest::qWait(100);
    run.screenshot(run.window(), name);
  }
}

}  // namespace vrask::gui_test
