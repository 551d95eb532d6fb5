// The generic renderer on a small form: what it paints, where clicks go, and
// how controls, menus and timers follow the records.
#include <cstdlib>

#include <QApplication>
#include <QHelpEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <QToolTip>

#include <gtest/gtest.h>

#include "tests/gui/harness.h"
#include "tests/gui/sketch_form.h"

namespace vrask::gui_test {

namespace {

class Renderer : public ::testing::Test {
 protected:
  void SetUp() override {
    run.program.open("Sketch");
    run.window().resize(900, 640);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&run.window()));
  }
  SketchForm& sketch() { return static_cast<SketchForm&>(run.form()); }
  void sync() { run.windows.syncAll(); }

  WindowRun run;
};

// How many pixels in a row, from `from` in steps of `step`, have `colour`.
int runOf(const QImage& image, QPoint from, QPoint step, QColor colour) {
  int n = 0;
  for (QPoint p = from; image.rect().contains(p) && image.pixelColor(p) == colour; p += step) ++n;
  return n;
}

}  // namespace

TEST_F(Renderer, MarkedLinesAreThickFreeLinesThinAndCirclesStayRound) {
  QImage image = run.canvasImage();
  QPoint thin = run.centreOf(run.element("thin"));
  QPoint thick = run.centreOf(run.element("thick"));
  EXPECT_EQ(image.pixelColor(thin), colourOf(color::Red));
  EXPECT_NE(image.pixelColor(thin + QPoint(0, 3)), colourOf(color::Red));
  EXPECT_EQ(image.pixelColor(thick), colourOf(color::Blue));
  EXPECT_EQ(image.pixelColor(thick + QPoint(0, 5)), colourOf(color::Blue));
  EXPECT_EQ(image.pixelColor(thick - QPoint(0, 5)), colourOf(color::Blue));
  // The label under the transparent one shows its own back colour.
  QRect under = run.window().canvas().scale().toPixels(QRectF(1800, 1500, 1500, 600)).toRect();
  EXPECT_EQ(image.pixelColor(under.bottomRight() - QPoint(3, 3)), colourOf(color::Yellow));
  run.screenshot(run.window(), "sketch");

  // A wide window letterboxes the form: one scale for both directions.
  run.window().resize(1400, 420);
  QTest::qWait(50);
  image = run.canvasImage();
  QPoint middle = run.centreOf(run.element("dot"));
  QColor green = colourOf(color::Green);
  ASSERT_EQ(image.pixelColor(middle), green);
  int across = runOf(image, middle, {1, 0}, green) + runOf(image, middle, {-1, 0}, green);
  int down = runOf(image, middle, {0, 1}, green) + runOf(image, middle, {0, -1}, green);
  EXPECT_LE(std::abs(across - down), 2) << across << " across, " << down << " down";
  // The room beside the form shows the form's colour.
  EXPECT_EQ(image.pixelColor(3, 200), colourOf(color::White));
  run.screenshot(run.window(), "sketch-wide");
}

TEST_F(Renderer, ClickGoesToTheTopmostElementThatCanTakeIt) {
  run.click("over");
  EXPECT_EQ(sketch().overClicks, 1);
  EXPECT_EQ(sketch().underClicks, 0);

  run.element("over").Enabled = false;
  run.click("over");
  run.element("over").Enabled = true;
  run.element("over").Visible = false;
  run.click("over");
  EXPECT_EQ(sketch().overClicks, 1);
  EXPECT_EQ(sketch().underClicks, 2);

  // Pressed on one element and let go on another: no click at all.
  run.element("over").Visible = true;
  QTest::mousePress(&run.window().canvas(), Qt::LeftButton, {}, run.centreOf(run.element("over")));
  QTest::mouseRelease(&run.window().canvas(), Qt::LeftButton, {}, run.centreOf(run.element("dot")));
  EXPECT_EQ(sketch().overClicks, 1);

  // Inside a hidden panel nothing can be clicked.
  run.element("panel").Visible = false;
  run.click("inside");
  EXPECT_EQ(sketch().insideClicks, 0);
  run.element("panel").Visible = true;
  run.click("inside");
  EXPECT_EQ(sketch().insideClicks, 1);

  // The mouse moving over the stack is heard by the one that listens for it.
  run.hover(run.element("over"));
  EXPECT_GT(sketch().hoverMoves, 0);

  // A tip shows also on a disabled element: it may tell why it is disabled.
  run.element("over").Enabled = false;
  QPoint at = run.centreOf(run.element("over"));
  QHelpEvent help(QEvent::ToolTip, at, run.window().canvas().mapToGlobal(at));
  QApplication::sendEvent(&run.window().canvas(), &help);
  EXPECT_EQ(QToolTip::text(), "on top");
}

TEST_F(Renderer, ControlsFollowTheRecordsAndReportWhatAPersonDoes) {
  auto* text = qobject_cast<QLineEdit*>(run.control("Text1"));
  auto* press = qobject_cast<QPushButton*>(run.control("Command1"));
  auto* off = qobject_cast<QPushButton*>(run.control("Command5"));
  auto* list = qobject_cast<QListWidget*>(run.control("List1"));
  ASSERT_TRUE(text && press && off && list);
  EXPECT_TRUE(text->isVisible() && press->isVisible());
  EXPECT_EQ(press->text(), "press");
  EXPECT_TRUE(press->isDefault());
  EXPECT_FALSE(off->isEnabled());
  EXPECT_EQ(list->count(), 2);
  EXPECT_EQ(list->item(0)->text(), "Round 1 -Blue\t5\t3");
  // Controls stand where the form has them, also after the window changes size.
  run.window().resize(700, 900);
  QTest::qWait(20);
  EXPECT_LE((press->geometry().center() - run.centreOf(run.element("Command1"))).manhattanLength(),
            2);
  EXPECT_TRUE(run.window().canvas().rect().contains(press->geometry()));

  // Typing writes the record; each key and Enter reach the KeyDown handler.
  QTest::keyClicks(text, "42");
  QTest::keyClick(text, Qt::Key_Return);
  EXPECT_EQ(run.element("Text1").Text, "42");
  EXPECT_EQ(sketch().keys, (std::vector<int>{52, 50, 13}));

  // The form's own changes show in the widgets.
  run.element("Text1").Text.clear();
  run.element("List1").AddItem("  Subtotal -Blue\t5\t3");
  run.form().focus = "Text1";
  sync();
  EXPECT_EQ(text->text(), "");
  EXPECT_EQ(list->count(), 3);
  EXPECT_EQ(run.window().focusWidget(), text);

  QTest::mouseClick(press, Qt::LeftButton);
  QTest::mouseClick(off, Qt::LeftButton);
  EXPECT_EQ(sketch().buttonClicks, 1);
  // Enter on the form presses the default button.
  QTest::keyClick(&run.window(), Qt::Key_Return);
  EXPECT_EQ(sketch().buttonClicks, 2);

  run.element("panel").Visible = false;
  sync();
  EXPECT_FALSE(text->isVisible() || press->isVisible());
}

TEST_F(Renderer, MenusMirrorTheRecords) {
  qt::Menus& menus = *run.window().menus();
  QAction* opt = menus.actionOf("opt");
  QAction* gone = menus.actionOf("gone");
  ASSERT_TRUE(opt && gone);
  EXPECT_EQ(menus.actionOf("file")->text(), "File");
  EXPECT_TRUE(menus.actionOf("sep")->isSeparator());
  EXPECT_FALSE(opt->isChecked());
  EXPECT_FALSE(opt->isCheckable());

  opt->trigger();
  EXPECT_TRUE(run.element("opt").Checked);
  EXPECT_TRUE(opt->isChecked());
  opt->trigger();
  EXPECT_FALSE(run.element("opt").Checked);
  EXPECT_FALSE(opt->isChecked());

  EXPECT_FALSE(gone->isEnabled());
  gone->trigger();
  EXPECT_EQ(sketch().buttonClicks, 0);
  run.element("gone").Enabled = true;
  run.element("gone").Caption = "Back";
  sync();
  EXPECT_TRUE(gone->isEnabled());
  EXPECT_EQ(gone->text(), "Back");

  opt->trigger();
  QMenu* file = menus.menuOf("file");
  file->popup(run.window().mapToGlobal(QPoint(10, 10)));
  QTest::qWait(100);
  run.screenshot(*file, "sketch-menu");
  file->hide();
}

TEST(RendererTimers, TicksArriveForRealButAPlainWaitHoldsThemBack) {
  WindowRun run(1.0);
  run.program.open("Sketch");
  auto& sketch = static_cast<SketchForm&>(run.form());
  EXPECT_TRUE(WindowRun::waitFor([&] { return sketch.ticks >= 3; }, 2000));

  QTest::mouseClick(run.control("Command2"), Qt::LeftButton);
  EXPECT_EQ(sketch.ticksInPlainWait, 0);
  QTest::mouseClick(run.control("Command3"), Qt::LeftButton);
  EXPECT_GT(sketch.ticksInPumpingWait, 0);

  run.element("Timer1").Enabled = false;
  run.windows.syncAll();
  int stopped = sketch.ticks;
  QTest::qWait(150);
  EXPECT_EQ(sketch.ticks, stopped);
}

}  // namespace vrask::gui_test
