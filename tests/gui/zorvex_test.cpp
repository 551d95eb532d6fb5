// The cube board in the real window: opened from the front page, a circle
// game and a line game played by mouse and keypad, the view turned, and the
// window at two sizes.
#include <variant>

#include <QLineEdit>

#include <gtest/gtest.h>

#include "tests/gui/harness.h"

namespace vrask::gui_test {

TEST(Zorvex, OpensFromTheFrontPageAndPlaysInEveryView) {
  WindowRun run;
  run.program.open("title");
  Element& launch = run.element("Label11", 30);
  ASSERT_TRUE(QTest::qWaitFor([&] { return launch.Visible; }, 10000));
  run.click("Label11", 30);
  ASSERT_EQ(run.form().name(), "zorvex");
  run.window().resize(1200, 680);
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&run.window()));
  Form& board = run.form();
  auto variable = [&](const std::string& name, const std::vector<int>& index = {}) {
    return std::get<double>(board.variables().at(name).get(index));
  };

  // Vrask (Classic) against the computer: the circle clicked is played, and
  // Red answers.
  QTest::mouseClick(run.control("Command7"), Qt::LeftButton);
  run.click("Label9", 14);
  EXPECT_NE(variable("circlestate", {14}), 0);
  EXPECT_EQ(run.element("Label33").Caption, "Blue player's turn");
  QTest::qWait(50);
  run.screenshot(run.window(), "zorvex-vrask");

  // Two people in Ombrel, picked on a board where Blue opens (the computer
  // opens every other game), the second line typed on the keypad in view 2,
  // where the number names the board line whatever its place.
  QTest::mouseClick(run.control("Command7"), Qt::LeftButton);
  QTest::mouseClick(run.control("Command7"), Qt::LeftButton);
  run.program.userEvent(board, run.element("ip", 1), "ip_Click");
  run.program.userEvent(board, run.element("game", 1), "game_Click");
  run.click("Label22", 0);
  EXPECT_EQ(run.element("Label12").Caption, "Last move: 1");
  QTest::mouseClick(run.control("Command8(1)"), Qt::LeftButton);
  EXPECT_EQ(run.element("Label13").Caption, "View 2");
  auto* text = qobject_cast<QLineEdit*>(run.control("Text1"));
  ASSERT_NE(text, nullptr);
  QTest::keyClicks(text, "22");
  QTest::keyClick(text, Qt::Key_Return);
  EXPECT_EQ(variable("lineowner", {13}), 1);
  QTest::qWait(50);
  run.screenshot(run.window(), "zorvex-ombrel-view2");
  run.window().resize(760, 440);
  QTest::qWait(50);
  run.screenshot(run.window(), "zorvex-small");
}

}  // namespace vrask::gui_test
