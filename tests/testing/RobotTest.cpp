// What hosts get of the robot, beyond what all other tests use.

#include "testing/Robot.h"

#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "Edit.h"
#include "Label.h"
#include "platform/SystemColors.h"
#include "platform/VirtualKeys.h"
#include "support/DialogTest.h"

namespace Wexa {
namespace {

class RobotTest : public DialogTest {
 protected:
  RobotTest() {
    std::filesystem::remove_all(folder_);
    std::filesystem::create_directories(folder_);
    Open(ColumnForm(LineEdit("name") + TextWidget("QLabel", "label", "before"), 200, 100));
  }
  ~RobotTest() override { std::filesystem::remove_all(folder_); }

  std::string FileAt(const std::string& name) const { return (folder_ / name).string(); }
  bool Exists(const std::string& name) const { return std::filesystem::exists(folder_ / name); }
  // Keeps what the dialog shows as the picture it should look like.
  void Keep() {
    EXPECT_FALSE(Testing::LooksLike(*dialog_, FileAt("dialog.png")));
    std::filesystem::rename(folder_ / "dialog-shown.png", folder_ / "dialog.png");
  }

  std::filesystem::path folder_ = std::filesystem::path(::testing::TempDir()) / "wexa-robot";
};

TEST_F(RobotTest, FindsWidgetsOfTheirType) {
  EXPECT_EQ(Testing::Find<Label>(*dialog_, L"label").GetText(), L"before");
  EXPECT_THROW(Testing::Find<Edit>(*dialog_, L"label"), std::runtime_error);
  EXPECT_THROW(Testing::Find(*dialog_, L"nothing"), std::runtime_error);
}

TEST_F(RobotTest, AimsAtWhatIsShownOnly) {
  auto& edit = Testing::Find<Edit>(*dialog_, L"name");
  robot_.Click(edit);
  EXPECT_EQ(dialog_->GetFocusedCtrlPtr(), &edit);
  edit.Show(false, true);
  EXPECT_THROW(robot_.Click(edit), std::runtime_error);
}

TEST_F(RobotTest, HoldsKeysAroundAnother) {
  auto& edit = Testing::Find<Edit>(*dialog_, L"name");
  robot_.Click(edit);
  robot_.Type(L"first");
  robot_.Key('A', {VK_CONTROL});
  robot_.Type(L"Second");
  robot_.Key(VK_HOME, {VK_CONTROL, VK_SHIFT});
  robot_.Key('C', {VK_CONTROL});
  robot_.Key(VK_END);
  robot_.Key('V', {VK_CONTROL});
  EXPECT_EQ(edit.GetText(), L"SecondSecond");
}

TEST_F(RobotTest, ChangesTheDesktop) {
  SetSystemScheme(std::nullopt);
  PreferSystemScheme(std::nullopt);
  for (const auto scheme : {SystemScheme::Dark, SystemScheme::Light}) {
    robot_.SetDesktopColors(scheme);
    EXPECT_EQ(GetSystemScheme(), scheme);
  }
  const int width = PlaceOf(L"name").Width();
  robot_.SetResolution(144);
  EXPECT_GT(PlaceOf(L"name").Width(), width);
  robot_.SetResolution(96);
  EXPECT_EQ(PlaceOf(L"name").Width(), width);
  EXPECT_THROW(robot_.SetResolution(47), std::invalid_argument);
}

TEST_F(RobotTest, ComparesPictures) {
  Keep();
  EXPECT_TRUE(Testing::LooksLike(*dialog_, FileAt("dialog.png")));
  EXPECT_FALSE(Exists("dialog-shown.png"));

  Find<Label>(L"label").SetText(L"after");
  Robot::PumpAll();
  EXPECT_FALSE(Testing::LooksLike(*dialog_, FileAt("dialog.png")));
  EXPECT_TRUE(Exists("dialog-shown.png") && Exists("dialog-difference.png"));
  EXPECT_TRUE(Testing::LooksLike(*dialog_, FileAt("dialog.png"), {.share = 0.1}));
  EXPECT_TRUE(Testing::LooksLike(*dialog_, FileAt("dialog.png"), {.channel = 255}));
}

TEST_F(RobotTest, RefusesWhatIsNoPicture) {
  std::ofstream(FileAt("dialog.png")) << "no picture";
  EXPECT_THROW(Testing::LooksLike(*dialog_, FileAt("dialog.png")), std::runtime_error);
  EXPECT_THROW(Testing::LooksLike(HWND{}, FileAt("none.png")), std::runtime_error);
}

}  // namespace
}  // namespace Wexa
