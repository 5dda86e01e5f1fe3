// What hosts get of the robot, beyond what all other tests use.

#include "testing/Robot.h"

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
    Open(ColumnForm(LineEdit("name") + TextWidget("QLabel", "label", "before"), 200, 100));
  }
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
}

}  // namespace
}  // namespace Wexa
