// The frame's parts where the behaviour scripts do not reach them.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "frame/other_games.h"
#include "frame/session_menu.h"
#include "frame/star_field.h"
#include "launcher/suite.h"
#include "toolkit/headless_host.h"
#include "toolkit/program.h"

namespace vrask {
namespace {

struct Wall : Form {
  using Form::Form;
  void Form_Load() override { other = std::make_unique<OtherGames>(*this); }
  std::unique_ptr<OtherGames> other;
};

struct FrameFixture : ::testing::Test {
  // The square board, and a stand-in wall; the other boards not built.
  FrameFixture() {
    registerSuite(program, "Form1large");
    program.registerForm("vraskthewall",
                         [](Program& p) { return std::make_unique<Wall>(p, "vraskthewall"); });
    program.open("Form1large");
  }
  Form& board() { return *program.current(); }
  Element& el(const std::string& name, int i = 0) { return (*board().findArray(name))[i]; }
  Program::Outcome event(const std::string& name, int i = 0, const std::string& what = "Click",
                         int key = 0) {
    return program.userEvent(board(), el(name, i), name + "_" + what, key).outcome;
  }
  bool played(int s) { return std::get<double>(board().variables().at("sqdone").get({s})) != 0; }
  HeadlessHost host;
  Program program{host};
};

TEST_F(FrameFixture, KeypadEntryLeavesAGridThatWasOnAndTheEnterKeyPlaysTheNumberAtTheHead) {
  event("shgrid");
  event("shwkey");
  EXPECT_TRUE(el("shgrid").Checked);
  event("shwkey");
  EXPECT_FALSE(el("shgrid").Checked) << "the keypad takes the grid away with it";
  event("Command3");
  el("Text1").Text = "4.1e1x";
  event("Text1", 0, "KeyDown", key::Digit0 + 5);
  EXPECT_FALSE(played(41));
  event("Text1", 0, "KeyDown", key::Enter);
  EXPECT_TRUE(played(41));
}

TEST_F(FrameFixture, OtherGamesOffersOnlyBuiltBoardsAndCarriesOnlyTheWallLevel) {
  EXPECT_FALSE(el("fcbm", 12).Enabled);
  EXPECT_EQ(el("fcbm", 12).ToolTipText, "Not yet available");
  EXPECT_EQ(event("fcbm", 12), Program::Outcome::Ignored);
  event("zcbm", 9);
  ASSERT_EQ(board().name(), "vraskthewall");
  EXPECT_EQ(program.shared().number(shared::kWallLevel), 2);
  EXPECT_EQ(el("zcbm", 9).Caption, "3D - Vrask a Bigger Wall  (THIS VERSION!)");
  EXPECT_EQ(el("zcbm", 8).Caption, "3D - Vrask the Wall");
  EXPECT_EQ(el("cbm", 3).Caption, "2D - Super Vrask Plus in Flatland and Bubbleland");
}

TEST_F(FrameFixture, HelpOpensThePageInTheCurrentDirectory) {
  namespace fs = std::filesystem;
  fs::path before = fs::current_path(), dir = fs::temp_directory_path() / "vrask-frame-help-test";
  fs::create_directories(dir);
  fs::current_path(dir);
  std::ofstream(kHelpFile) << "<html></html>";
  event("rh");
  fs::current_path(before);
  EXPECT_EQ(host.documentsOpened(), std::vector<std::string>{(dir / kHelpFile).string()});
}

TEST_F(FrameFixture, StarsFleeLopsidedCentresAndAreDealtAnewWhenTheyLeave) {
  auto at = [](int x, int y) {
    StarField::Star s = StarField::moved({x, y});
    return std::pair(s.x, s.y);
  };
  EXPECT_EQ(at(1000, 1000), std::pair(952, 919));
  EXPECT_EQ(at(10000, 6000), std::pair(10143, 6043));
  // Between 2952 and 8410 a star is drawn right, towards the far centre.
  EXPECT_EQ(at(5000, 4251), std::pair(5052, 4251));
  Element picture;
  picture.Width = StarField::kWidth;
  picture.Height = StarField::kHeight;
  StarField field(picture);
  host.random().pin(0.5);
  host.random().pin(0.25);
  field.tick(board());  // every star starts in the corner and leaves at once
  ASSERT_EQ(picture.drawing.size(), 30U);
  const Stroke& first = picture.drawing[0];
  EXPECT_EQ(std::vector<double>({first.x1, first.x2, first.y1, first.y2, 1.0 * first.color}),
            std::vector<double>({3726, 3726, 4206, 4226, color::White}));
}

}  // namespace
}  // namespace vrask
