// The window as a desktop application: its keys, its focus, the input a
// pause holds back, its smallest size, and where its help page is found.
#include <filesystem>
#include <fstream>
#include <functional>
#include <variant>

#include <qpa/qwindowsysteminterface.h>
#include <QApplication>
#include <QFontMetricsF>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolButton>

#include <gtest/gtest.h>

#include "app/help_folder.h"
#include "frame/session_menu.h"
#include "tests/gui/harness.h"
#include "toolkit/qt/element_painter.h"

namespace vrask::gui_test {

namespace {

// A played circle keeps a green rim; one closed by its neighbours' moves does not.
int circlesPlayed(WindowRun& run) {
  int played = 0;
  for (int s = 1; s <= 81; ++s) played += run.element("Shape1", s).BorderColor == color::Green;
  return played;
}

void openActive(WindowRun& run, const std::string& form) {
  run.program.open(form);
  run.window().resize(1100, 820);
  run.window().activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&run.window()));
}

// A key as the keyboard gives it: to whatever has the focus.
void press(WindowRun& run, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
  QWidget* focus = QApplication::focusWidget();
  QTest::keyClick(focus != nullptr ? focus : &run.window(), key, modifiers);
}

// The text of the message box that comes up while `act` runs, closed at once.
std::string messageDuring(const std::function<void()>& act) {
  std::string text;
  QTimer poll;
  QObject::connect(&poll, &QTimer::timeout, [&] {
    if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
      text = box->text().toStdString();
      box->accept();
    }
  });
  poll.start(20);
  act();
  EXPECT_TRUE(QTest::qWaitFor([&] { return !text.empty(); }, 3000)) << "no message came";
  return text;
}

}  // namespace

TEST(Desktop, ShortcutsStandBesideTheirEntriesAndWork) {
  WindowRun run;
  openActive(run, "Form1large");
  qt::Menus& menus = *run.window().menus();
  EXPECT_EQ(menus.actionOf("rh")->shortcut(), QKeySequence(Qt::Key_F1));
  EXPECT_EQ(menus.actionOf("gmc")->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_N));
  EXPECT_EQ(menus.actionOf("ex")->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_Q));
  EXPECT_TRUE(menus.actionOf("ex")->toolTip().contains("Ctrl+Q"));
  QMenu* help = menus.menuOf("hlp");
  help->popup(run.window().mapToGlobal(QPoint(300, 20)));
  QTest::qWait(100);
  run.screenshot(*help, "desktop-help-menu");
  help->hide();

  run.click("Label2", 41);
  ASSERT_EQ(circlesPlayed(run), 2);
  // The next game may open with the computer's move.
  press(run, Qt::Key_N, Qt::ControlModifier);
  EXPECT_LT(circlesPlayed(run), 2);

  // No browser can be started: the player is told where the page is.
  QTemporaryDir noBrowser;
  std::ofstream(noBrowser.filePath("xdg-open").toStdString()) << "#!/bin/sh\nexit 3\n";
  std::filesystem::permissions(noBrowser.filePath("xdg-open").toStdString(),
                               std::filesystem::perms::owner_all);
  QByteArray path = qgetenv("PATH");
  qputenv("PATH", noBrowser.path().toUtf8());
  std::string message = messageDuring([&] { press(run, Qt::Key_F1); });
  qputenv("PATH", path);
  std::string page = std::filesystem::absolute(kHelpFile).string();
  EXPECT_NE(message.find(page), std::string::npos) << message;
  EXPECT_FALSE(run.program.ended());

  run.window().activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&run.window()));
  press(run, Qt::Key_Q, Qt::ControlModifier);
  EXPECT_TRUE(run.program.ended());
}

TEST(Desktop, EnterAndSpaceNeitherEndTheProgramNorThrowTheGameAway) {
  WindowRun run;
  openActive(run, "title");
  press(run, Qt::Key_Return);
  press(run, Qt::Key_Space);
  EXPECT_FALSE(run.program.ended());

  openActive(run, "Form1large");
  QTest::mouseClick(run.control("Command1"), Qt::LeftButton);
  run.click("Label2", 41);
  int played = circlesPlayed(run);
  ASSERT_GE(played, 2);
  press(run, Qt::Key_Space);
  press(run, Qt::Key_Return);
  EXPECT_EQ(circlesPlayed(run), played);

  // Tabbed to, a button shows that it has the keyboard.
  auto* button = qobject_cast<QPushButton*>(run.control("Command1"));
  QRect around = button->geometry().adjusted(-6, -6, 6, 6);
  QImage resting = run.window().canvas().grab(around).toImage();
  for (int tab = 0; tab < 40 && QApplication::focusWidget() != button; ++tab) {
    press(run, Qt::Key_Tab);
  }
  ASSERT_EQ(QApplication::focusWidget(), button);
  QImage focused = run.window().canvas().grab(around).toImage();
  run.screenshot(run.window(), "desktop-tabbed-to-new-game");
  // A mark round the button, where nothing is drawn otherwise.
  int marked = 0;
  QRect inside = QRect(QPoint(6, 6), button->size());
  for (int y = 0; y < resting.height(); ++y) {
    for (int x = 0; x < resting.width(); ++x) {
      marked += !inside.contains(x, y) && resting.pixel(x, y) != focused.pixel(x, y) ? 1 : 0;
    }
  }
  EXPECT_GT(marked, button->width() + button->height());
  // There, Space is the player's choice.
  press(run, Qt::Key_Space);
  EXPECT_LT(circlesPlayed(run), played);
}

TEST(Desktop, AClickDuringTheComputersPauseIsNotPlayedAfterIt) {
  WindowRun run(1.0);
  openActive(run, "Form1large");
  // Sent as the window system sends it, to be handled when events are.
  QWindow* window = run.window().windowHandle();
  QPointF at = run.window().canvas().mapTo(&run.window(), run.centreOf(run.element("Label2", 1)));
  QTimer::singleShot(150, [&] {
    for (QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
      Qt::MouseButtons held = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
      QWindowSystemInterface::handleMouseEvent<QWindowSystemInterface::AsynchronousDelivery>(
          window, at, window->mapToGlobal(at), held, Qt::LeftButton, type);
    }
  });
  run.click("Label2", 41);
  QTest::qWait(200);
  EXPECT_EQ(circlesPlayed(run), 2);
}

TEST(Desktop, AWindowKeepsItsCaptionsReadableAndItsMenusInView) {
  WindowRun run;
  openActive(run, "title");
  run.program.timerTick(run.form(), run.element("Timer2"));  // the front page, now
  run.window().resize(400, 300);
  QTest::qWait(100);
  run.screenshot(run.window(), "desktop-title-smallest");
  QSize shown = run.window().size();
  EXPECT_GT(shown.width(), 400);
  EXPECT_GT(shown.height(), 300);
  // The longest launch label keeps to one line.
  const Element& launch = run.element("Label11", 6);
  qt::ViewScale scale = run.window().canvas().scale();
  QFont font = qt::scaledFont(run.window().canvas().font(), launch.FontSize, launch.FontBold, scale,
                              run.window().canvas().logicalDpiY());
  QFontMetricsF metrics(font, &run.window().canvas());
  EXPECT_LE(metrics.horizontalAdvance(QString::fromStdString(launch.Caption)),
            scale.toPixels(launch.Width));
  EXPECT_GE(metrics.height(), qt::kSmallestTextPixels);

  openActive(run, "Form1large");
  run.window().resize(400, 300);
  QTest::qWait(100);
  run.screenshot(run.window(), "desktop-board-smallest");
  auto* overflow = run.window().menuBar()->findChild<QToolButton*>();
  EXPECT_TRUE(overflow == nullptr || !overflow->isVisible());
  EXPECT_GE(run.window().canvas().scale().toPixels(8 * 20), qt::kSmallestTextPixels);
}

// The columns of the title band that hold at least three pixels of `colour`.
std::pair<int, int> spanOf(const QImage& image, int top, int bottom, QColor colour) {
  int first = image.width(), last = -1;
  for (int x = 0; x < image.width(); ++x) {
    int hits = 0;
    for (int y = top; y < bottom; ++y) hits += image.pixelColor(x, y) == colour ? 1 : 0;
    if (hits >= 3) first = std::min(first, x), last = std::max(last, x);
  }
  return {first, last};
}

TEST(Desktop, TheTitlesShadowIsTheTitleMovedLeft) {
  WindowRun run;
  openActive(run, "title");
  run.window().resize(1100, 660);
  run.program.timerTick(run.form(), run.element("Timer2"));
  QTest::qWait(300);
  // The whole window, as a screenshot takes it: the canvas is painted as a
  // part of it.
  qt::Canvas& canvas = run.window().canvas();
  QImage image = run.window().grab().toImage();
  QRectF band = canvas.scale().toPixels(qt::Placement(run.form()).rectOf(run.element("Runner", 1)));
  band.translate(canvas.mapTo(&run.window(), QPoint()));
  auto title = spanOf(image, int(band.top()), int(band.bottom()), QColor(255, 255, 0));
  auto shadow = spanOf(image, int(band.top()), int(band.bottom()), QColor(0x40, 0x40, 0x40));
  double shift = canvas.scale().toPixels(240);
  EXPECT_NEAR(title.first - shadow.first, shift, 2);
  // The title stands over the shadow's last letter.
  EXPECT_LE(shadow.second, title.second - shift + 2);
}

TEST(Desktop, TheHelpPageIsFoundWhereverTheProgramStarts) {
  QTemporaryDir root;
  std::filesystem::path top = root.path().toStdString();
  std::filesystem::path bin = top / "bin", data = top / "share" / "vrask", home = top / "home";
  for (const auto& folder : {bin, data, home}) std::filesystem::create_directories(folder);
  EXPECT_EQ(helpFolder(home, bin), std::nullopt);
  std::ofstream(data / kHelpFile) << "<html></html>";
  EXPECT_EQ(helpFolder(home, bin), data);
  std::ofstream(bin / kHelpFile) << "<html></html>";
  EXPECT_EQ(helpFolder(home, bin), bin);
  std::ofstream(home / kHelpFile) << "<html></html>";
  EXPECT_EQ(helpFolder(home, bin), home);
}

}  // namespace vrask::gui_test
