// The front page in the real window, from the splash on its own timer to the
// square board it launches, with that board's menu and about box.
#include <QMenu>
#include <QScreen>

#include <gtest/gtest.h>

#include "launcher/title.h"
#include "tests/gui/harness.h"

namespace vrask::gui_test {

TEST(Launcher, FrontPageComesAfterTheSplashAndALabelLaunchesTheSquareBoard) {
  WindowRun run;
  run.program.open("title");
  QRect room = run.window().screen()->availableGeometry();
  QPoint middle = run.window().frameGeometry().center();
  EXPECT_NEAR(middle.x(), room.center().x(), 2);
  EXPECT_LT(middle.y(), room.center().y());
  EXPECT_GT(middle.y(), room.top() + room.height() / 4);
  run.window().resize(1100, 660);
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&run.window()));
  QTest::qWait(400);
  run.screenshot(run.window(), "title-splash");

  // `Timer2` is a real timer of six seconds.
  Element& launch = run.element("Label11", 6);
  ASSERT_TRUE(QTest::qWaitFor([&] { return launch.Visible; }, 10000));
  QTest::qWait(300);
  run.screenshot(run.window(), "title-front-page");
  QTest::mouseMove(&run.window().canvas(), run.centreOf(launch));
  QTest::qWait(20);
  EXPECT_EQ(launch.ForeColor, title::kHover);
  run.screenshot(run.window(), "title-hover");

  run.click("Label11", 6);
  ASSERT_EQ(run.form().name(), "Form1large");
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&run.window()));
  EXPECT_EQ(run.program.shared().number(shared::kBubblelandStart), 0);
  QTest::qWait(200);
  run.screenshot(run.window(), "board-after-launch");

  qt::FormWindow& board = run.window();
  QMenu* options = board.menus()->menuOf("ks");
  ASSERT_NE(options, nullptr);
  options->popup(board.mapToGlobal(QPoint(140, 20)));
  QTest::qWait(100);
  run.screenshot(*options, "board-options-menu");
  options->hide();

  // The about box is a modal dialog over the board, and OK unloads it.
  board.menus()->actionOf("abt")->trigger();
  ASSERT_EQ(run.form().name(), "AboutBox");
  EXPECT_EQ(run.window().windowTitle(), "About Super Vrask Plus 2014 Desktop");
  EXPECT_EQ(run.window().parentWidget(), &board);
  EXPECT_EQ(run.window().windowModality(), Qt::WindowModal);
  QTest::qWait(300);
  run.screenshot(run.window(), "board-about-box");
  QTest::mouseClick(run.control("Cmd_OK"), Qt::LeftButton);
  EXPECT_EQ(run.form().name(), "Form1large");
  EXPECT_EQ(&run.window(), &board);
}

}  // namespace vrask::gui_test
