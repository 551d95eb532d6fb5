// The window on a small sketch form: scaling, where clicks land, what a wait
// lets through, and navigation and the end leaving nothing half done.
#include <algorithm>
#include <string>
#include <vector>

#include <QElapsedTimer>
#include <QListWidget>
#include <QPointer>
#include <QTimer>

#include <gtest/gtest.h>

#include "frame/helpers.h"
#include "tests/gui/harness.h"

namespace vrask::gui_test {

namespace {

std::string formAfterGoTo;  // the current form as the navigating handler saw it

struct Sketch : Form {
  explicit Sketch(Program& program) : Form(program, "Sketch") {}

  int underClicks = 0, overClicks = 0, ticks = 0;
  // Command1 waits `seconds`, letting events through when `pump`, and notes
  // what arrived meanwhile.
  bool pump = false, waitReturned = false;
  double seconds = 0.3;
  int ticksInWait = -1, clicksInWait = -1;
  std::vector<std::string> rowEvents;  // "Click 1": a list event and the ListIndex it saw

  void Form_Load() override {
    Width = 7200;
    Height = 4800;
    BackColor = color::White;
    Element& dot = placed(add("dot", Kind::Shape), 600, 1500, 900, 900);
    dot.Shape = Circle;
    dot.FillStyle = 0;
    dot.FillColor = color::Green;
    // A transparent label over one with a back colour.
    placed(add("under", Kind::Label), 1800, 1500, 1500, 600).BackColor = color::Yellow;
    handle("under_Click", [this] { ++underClicks; });
    placed(add("over", Kind::Label), 1800, 1500, 1500, 600).BackStyle = 0;
    handle("over_Click", [this] { ++overClicks; });
    placed(add("next", Kind::Label), 600, 600, 1500, 420).Caption = "next";
    handle("next_Click", [this] {
      goTo("title");
      formAfterGoTo = program().current()->name();
    });

    Element& timer = add("Timer1", Kind::Timer);
    timer.Interval = 20;
    timer.Enabled = true;
    handle("Timer1_Timer", [this] { ++ticks; });
    placed(add("Command1", Kind::Button), 4200, 3900, 1500, 420).Caption = "wait";
    handle("Command1_Click", [this] {
      int ticksBefore = ticks, clicksBefore = overClicks;
      pump ? waitWithEvents(seconds) : wait(seconds);
      ticksInWait = ticks - ticksBefore;
      clicksInWait = overClicks - clicksBefore;
      waitReturned = true;
    });

    Element& list = placed(add("List1", Kind::ListBox), 4200, 600, 1500, 1200);
    for (const char* row : {"a", "b", "c"}) list.AddItem(row);
    for (std::string event : {"Click", "DblClick"}) {
      handle("List1_" + event, [this, event, &list] {
        rowEvents.push_back(event + " " + std::to_string(list.ListIndex));
      });
    }
  }
};

Sketch& openSketch(WindowRun& run) {
  run.program.registerForm("Sketch", [](Program& p) { return std::make_unique<Sketch>(p); });
  run.program.open("Sketch");
  run.window().resize(900, 640);
  EXPECT_TRUE(QTest::qWaitForWindowExposed(&run.window()));
  return static_cast<Sketch&>(run.form());
}

// How many pixels in a row, from `from` in steps of `step`, have `colour`.
int runOf(const QImage& image, QPoint from, QPoint step, QColor colour) {
  int n = 0;
  for (QPoint p = from; image.rect().contains(p) && image.pixelColor(p) == colour; p += step) ++n;
  return n;
}

}  // namespace

TEST(Window, TheDrawingScalesWithTheWindowAndKeepsItsShape) {
  WindowRun run;
  openSketch(run);
  // A wide window letterboxes the form: one scale for both directions.
  run.window().resize(1400, 420);
  QTest::qWait(50);
  QImage image = run.window().canvas().grab().toImage();
  QPoint middle = run.centreOf(run.element("dot"));
  const QColor green(Qt::green);
  ASSERT_EQ(image.pixelColor(middle), green);
  int across = runOf(image, middle, {1, 0}, green) + runOf(image, middle, {-1, 0}, green);
  int down = runOf(image, middle, {0, 1}, green) + runOf(image, middle, {0, -1}, green);
  QSize size = run.window().canvas().size();
  double factor = std::min(size.width() / 7200.0, size.height() / 4800.0);
  EXPECT_NEAR(across, 900 * factor, 3);
  EXPECT_NEAR(down, 900 * factor, 3);
  // The room beside the form shows the form's colour; controls keep their place.
  EXPECT_EQ(image.pixelColor(3, 200), QColor(Qt::white));
  QWidget* button = run.control("Command1");
  EXPECT_LE((button->geometry().center() - run.centreOf(run.element("Command1"))).manhattanLength(),
            2);
  run.screenshot(run.window(), "sketch-wide");
}

TEST(Window, AClickGoesToTheTopmostElementThatCanTakeIt) {
  WindowRun run;
  Sketch& sketch = openSketch(run);
  run.click("over");
  EXPECT_EQ(sketch.overClicks, 1);
  EXPECT_EQ(sketch.underClicks, 0);
  // A disabled or hidden element lets the click through to the one under it.
  run.element("over").Enabled = false;
  run.click("over");
  run.element("over").Enabled = true;
  run.element("over").Visible = false;
  run.click("over");
  EXPECT_EQ(sketch.overClicks, 1);
  EXPECT_EQ(sketch.underClicks, 2);

  // Pressed on one element and let go on another: no click at all.
  run.element("over").Visible = true;
  QTest::mousePress(&run.window().canvas(), Qt::LeftButton, {}, run.centreOf(run.element("over")));
  QTest::mouseRelease(&run.window().canvas(), Qt::LeftButton, {}, run.centreOf(run.element("dot")));
  EXPECT_EQ(sketch.overClicks + sketch.underClicks, 3);
}

TEST(Window, AClickOnAListRowSelectsItBeforeItsHandlerRuns) {
  WindowRun run;
  Sketch& sketch = openSketch(run);
  auto* list = qobject_cast<QListWidget*>(run.control("List1"));
  ASSERT_NE(list, nullptr);
  auto centreOfRow = [list](int row) { return list->visualItemRect(list->item(row)).center(); };
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, centreOfRow(1));
  // A person's double click: a click, then the double click, and no click after it.
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, centreOfRow(2));
  QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, centreOfRow(2));
  EXPECT_EQ(sketch.rowEvents, (std::vector<std::string>{"Click 1", "Click 2", "DblClick 2"}));
  // Emptied by the form's code, the list has no selected row, here and on screen.
  run.element("List1").Clear();
  run.windows.syncAll();
  EXPECT_EQ(run.element("List1").ListIndex, -1);
  EXPECT_EQ(list->currentRow(), -1);
}

TEST(Window, APlainWaitHoldsBackClicksAndTicksAPumpingWaitLetsThemThrough) {
  WindowRun run(1.0);
  Sketch& sketch = openSketch(run);
  EXPECT_TRUE(QTest::qWaitFor([&] { return sketch.ticks >= 3; }, 2000));  // real ticks
  for (bool pump : {false, true}) {
    sketch.pump = pump;
    QTimer::singleShot(100, [&] { run.click("over"); });
    QTest::mouseClick(run.control("Command1"), Qt::LeftButton);
    EXPECT_EQ(sketch.ticksInWait > 0, pump);
    EXPECT_EQ(sketch.clicksInWait, pump ? 1 : 0);
    QTest::qWait(50);  // a click refused in a plain wait does not come later either
    EXPECT_EQ(sketch.overClicks, pump ? 1 : 0);
  }
}

TEST(Window, NavigationWaitsForTheHandlerAndThenReplacesTheWindow) {
  WindowRun run;
  openSketch(run);
  QPointer<qt::FormWindow> first = &run.window();
  run.click("next");
  EXPECT_EQ(formAfterGoTo, "Sketch");
  EXPECT_EQ(run.form().name(), "title");
  EXPECT_TRUE(run.window().isVisible());
  EXPECT_TRUE(QTest::qWaitFor([&] { return first.isNull(); }, 1000));
}

TEST(Window, ClosingTheWindowEndsTheProgramEvenInAWait) {
  WindowRun run(1.0);
  Sketch& sketch = openSketch(run);
  sketch.pump = true;
  sketch.seconds = 30;
  QTimer::singleShot(200, [&] { run.window().close(); });
  QElapsedTimer clock;
  clock.start();
  QTest::mouseClick(run.control("Command1"), Qt::LeftButton);
  EXPECT_LT(clock.elapsed(), 5000);
  EXPECT_TRUE(sketch.waitReturned);
  EXPECT_TRUE(run.program.ended());
  EXPECT_TRUE(run.quit);
  EXPECT_FALSE(run.window().isVisible());
}

}  // namespace vrask::gui_test
