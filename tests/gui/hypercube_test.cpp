// The HyperCube board in the real window: launched from the front page,
// played by clicks on its lines and circles, looked at in two sizes.
#include <variant>

#include <gtest/gtest.h>

#include "tests/gui/harness.h"

namespace vrask::gui_test {

TEST(HyperCube, LaunchedFromTheFrontPageAndPlayedByClicks) {
  WindowRun run;
  run.program.open("title");
  Element& launch = run.element("Label11", 52);
  ASSERT_TRUE(QTest::qWaitFor([&] { return launch.Visible; }, 10000));
  run.click("Label11", 52);
  ASSERT_EQ(run.form().name(), "form5d2");
  run.window().resize(1400, 960);
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&run.window()));
  QTest::qWait(100);
  Form& board = run.form();
  auto variable = [&](const std::string& name, const std::vector<int>& index = {}) {
    return std::get<double>(board.variables().at(name).get(index));
  };

  // Super Vrask Plus by two people: a click on a face, one on a connecting
  // square, each taking four more squares with it.
  qt::Menus& menus = *run.window().menus();
  menus.actionOf("pl(2)")->trigger();
  menus.actionOf("gm(12)")->trigger();
  menus.actionOf("shgrid")->trigger();
  run.click("Label11", 21);
  EXPECT_EQ(run.element("Shape1", 21).BorderColor, 16711680);
  run.click("Label11", 61);
  EXPECT_EQ(run.element("Shape1", 61).BorderColor, 255);
  EXPECT_EQ(run.element("Label6").Caption, "6");
  QTest::qWait(100);
  run.screenshot(run.window(), "hypercube-super-vrask-plus");

  // Line Vrask against the computer; a game just chosen opens with Blue. Each
  // click paints a line with the lines that meet it, and the computer answers.
  QTest::mouseClick(run.control("Command1"), Qt::LeftButton);
  menus.actionOf("gm(8)")->trigger();
  menus.actionOf("pl(1)")->trigger();
  menus.actionOf("shgrid")->trigger();
  QTest::mouseClick(run.control("Command1"), Qt::LeftButton);
  run.click("Label1", 11);
  EXPECT_EQ(variable("lnown", {11}), 16711680);
  EXPECT_LT(variable("movesleft"), 80 - 9);
  QTest::qWait(100);
  run.screenshot(run.window(), "hypercube-line-vrask");
  run.window().resize(900, 620);
  QTest::qWait(100);
  run.screenshot(run.window(), "hypercube-small-window");
}

}  // namespace vrask::gui_test
