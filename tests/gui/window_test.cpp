// The windows as a whole: message boxes, dialogs over a form, moving to
// another form, and the end of the program.
#include <QApplication>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include "tests/gui/harness.h"
#include "tests/gui/sketch_form.h"

namespace vrask::gui_test {

namespace {

// Answers the next message box as a person would, noting what it said.
struct MessageReader {
  QString title;
  QString text;
  void answerNext() {
    QTimer::singleShot(50, [this] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (box == nullptr) return;
      title = box->windowTitle();
      text = box->text();
      box->accept();
    });
  }
};

}  // namespace

TEST(Windows, MessageBoxWithoutATitleCarriesTheProductTitle) {
  WindowRun run;
  run.program.open("Sketch");
  MessageReader reader;
  reader.answerNext();
  run.form().MsgBox("Invalid move!");
  EXPECT_EQ(reader.text, "Invalid move!");
  EXPECT_EQ(reader.title, "Super Vrask Plus 2014 Desktop");
  reader.answerNext();
  run.form().MsgBox("Vrask zorvex help.htm was not found in program directory.", "No help");
  EXPECT_EQ(reader.title, "No help");
}

TEST(Windows, AboutBoxIsAModalDialogThatUnloadsItself) {
  WindowRun run;
  run.program.open("Sketch");
  QPointer<qt::FormWindow> board = &run.window();
  run.window().menus()->actionOf("abt")->trigger();

  ASSERT_EQ(run.form().name(), "AboutBox");
  qt::FormWindow& about = run.window();
  EXPECT_EQ(about.windowTitle(), "About Super Vrask Plus 2014 Desktop");
  EXPECT_EQ(about.parentWidget(), board.data());
  EXPECT_EQ(about.windowModality(), Qt::WindowModal);
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&about));
  // Its star field runs on its own timer.
  EXPECT_TRUE(WindowRun::waitFor([&] { return !run.element("stars").drawing.empty(); }, 2000));

  QTest::mouseClick(run.control("Cmd_OK"), Qt::LeftButton);
  EXPECT_EQ(run.form().name(), "Sketch");
  EXPECT_EQ(&run.window(), board.data());

  // Closing the box by its frame unloads it; the program goes on.
  run.window().menus()->actionOf("abt")->trigger();
  QPointer<qt::FormWindow> second = &run.window();
  second->close();
  EXPECT_EQ(run.form().name(), "Sketch");
  EXPECT_FALSE(run.program.ended());
  EXPECT_TRUE(WindowRun::waitFor([&] { return second.isNull(); }, 1000));
}

TEST(Windows, MovingToAnotherFormReplacesTheWindow) {
  WindowRun run;
  run.program.open("Sketch");
  QPointer<qt::FormWindow> first = &run.window();
  run.window().menus()->actionOf("next")->trigger();

  EXPECT_EQ(run.form().name(), "Sketch2");
  EXPECT_EQ(run.window().windowTitle(), "Sketch two");
  EXPECT_TRUE(run.window().isVisible());
  EXPECT_TRUE(WindowRun::waitFor([&] { return first.isNull(); }, 1000));
}

TEST(Windows, ClosingTheMainWindowEndsTheProgramEvenInAWait) {
  WindowRun run(1.0);
  run.program.open("Sketch");
  auto& sketch = static_cast<SketchForm&>(run.form());
  QTimer::singleShot(200, [&] { run.window().close(); });
  QElapsedTimer clock;
  clock.start();
  // The button's handler waits 30 seconds, letting events through.
  QTest::mouseClick(run.control("Command4"), Qt::LeftButton);

  EXPECT_LT(clock.elapsed(), 5000);
  EXPECT_TRUE(sketch.longWaitReturned);
  EXPECT_TRUE(run.program.ended());
  EXPECT_TRUE(run.quit);
  EXPECT_FALSE(run.window().isVisible());
}

}  // namespace vrask::gui_test
