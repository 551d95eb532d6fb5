// The front page in the real window: the splash gives way to the labels on
// its own timer, a label lights up under the mouse, and a click launches.
#include <QMenu>
#include <QPushButton>
#include <QScreen>
#include <QTest>

#include <gtest/gtest.h>

#include "launcher/title.h"
#include "tests/gui/harness.h"

namespace vrask::gui_test {

TEST(Launcher, FrontPageComesAfterTheSplashAndALabelLaunchesTheSquareBoard) {
  WindowRun run;
  run.program.open("title");
  // Centred across the screen and a little above its middle.
  QRect room = run.window().screen()->availableGeometry();
  QPoint middle = run.window().frameGeometry().center();
  EXPECT_NEAR(middle.x(), room.center().x(), 2);
  EXPECT_LT(middle.y(), room.center().y());
  run.window().resize(1100, 660);
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&run.window()));
  QTest::qWait(400);
  run.screenshot(run.window(), "title-splash");

  // `Timer2` is a real timer of six seconds.
  Element& launch = run.element("Label11", 6);
  ASSERT_TRUE(WindowRun::waitFor([&] { return launch.Visible; }, 10000));
  QTest::qWait(300);
  run.screenshot(run.window(), "title-front-page");

  run.hover(launch);
  EXPECT_EQ(launch.ForeColor, title::kHover);
  run.screenshot(run.window(), "title-hover");

  run.click(launch);
  ASSERT_EQ(run.form().name(), "Form1large");
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&run.window()));
  EXPECT_EQ(run.program.shared().bubbleland_start, 0);
  QTest::qWait(200);
  run.screenshot(run.window(), "board-after-launch");

  // The board's menus, and its about box over it.
  QMenu* options = run.window().menus()->menuOf("ks");
  ASSERT_NE(options, nullptr);
  options->popup(run.window().mapToGlobal(QPoint(140, 20)));
  QTest::qWait(100);
  run.screenshot(*options, "board-options-menu");
  options->hide();
  run.window().menus()->actionOf("abt")->trigger();
  ASSERT_EQ(run.form().name(), "AboutBox");
  QTest::qWait(300);
  run.screenshot(run.window(), "board-about-box");
  QTest::mouseClick(run.control("Cmd_OK"), Qt::LeftButton);
  EXPECT_EQ(run.form().name(), "Form1large");
}

TEST(Launcher, ExitButtonEndsTheProgram) {
  WindowRun run;
  run.program.open("title");
  QTest::mouseClick(run.control("Command3"), Qt::LeftButton);
  EXPECT_TRUE(run.program.ended());
  EXPECT_TRUE(run.quit);
}

}  // namespace vrask::gui_test
