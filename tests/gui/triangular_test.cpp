// The triangular board in the real window, opened from the front page: a
// few moves by click in Bubbleland against the computer, then Ombrel on the
// smaller board with the grid numbers, at two window sizes.
#include <variant>

#include <gtest/gtest.h>

#include "tests/gui/harness.h"

namespace vrask::gui_test {

TEST(Triangular, OpensFromTheFrontPageAndPlaysByClick) {
  WindowRun run(0.01);
  run.program.open("title");
  run.window().resize(1100, 660);
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&run.window()));
  run.program.timerTick(run.form(), run.element("Timer2"));
  QTest::qWait(50);
  run.click("Label11", 5);
  ASSERT_EQ(run.form().name(), "Triang");
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&run.window()));
  EXPECT_TRUE(run.element("ver", 2).Checked);
  Form& board = run.form();
  auto variable = [&](const std::string& name, const std::vector<int>& index = {}) {
    return std::get<double>(board.variables().at(name).get(index));
  };

  run.window().resize(1180, 680);
  QTest::qWait(100);
  run.screenshot(run.window(), "triangular-start");
  run.click("Label2", 20);
  EXPECT_EQ(variable("celltaken", {20}), 1);
  EXPECT_EQ(run.element("Label12").Caption.rfind("Last move: ", 0), 0u);
  for (int cell = 1; cell <= 54; ++cell) {
    if (variable("celltaken", {cell}) == 0 && run.element("Label2", cell).Visible) {
      run.click("Label2", cell);
      EXPECT_EQ(variable("celltaken", {cell}), 1) << "cell " << cell;
      break;
    }
  }
  QTest::qWait(100);
  run.screenshot(run.window(), "triangular-bubbleland-moves");

  // New, then Ombrel on the smaller board with the numbers on, in a window
  // of another shape.
  QTest::mouseClick(run.control("Command1"), Qt::LeftButton);
  QTest::mouseClick(run.control("Command1"), Qt::LeftButton);
  for (const char* entry : {"game(0)", "szmen(2)", "shgrid"}) {
    run.window().menus()->actionOf(entry)->trigger();
  }
  run.window().resize(760, 900);
  QTest::qWait(100);
  run.click("Label1", 17);
  EXPECT_NE(variable("lineowner", {17}), 0);
  EXPECT_EQ(run.element("Label1", 17).Caption, "17");
  QTest::qWait(100);
  run.screenshot(run.window(), "triangular-ombrel-grid");
}

}  // namespace vrask::gui_test
