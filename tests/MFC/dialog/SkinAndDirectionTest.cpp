// Skins of dialogs, and dialogs from right to left.

#include "Label.h"
#include "WexaConfig.h"
#include "support/DialogTest.h"

namespace Wexa {
namespace {

class DialogSkinTest : public DialogTest {
 protected:
  std::uint32_t DialogPixel() { return Robot::PixelAt(dialog_->GetHandle(), 2, 2); }
  std::uint32_t PixelOf(const wchar_t* name) {
    return Robot::PixelAt(Find<BaseGUIObject>(name).GetPlatformHandle(), 3, 3);
  }
};

TEST_F(DialogSkinTest, TheDarkSkinReachesTheDialogAndAllWithinIt) {
  Open(ColumnForm(LineEdit("edit") + PushButton("button") +
                  WidgetItem("QGroupBox", "group", ColumnXml(LineEdit("inner")))));
  const auto all = [&] {
    return std::vector{DialogPixel(), PixelOf(L"edit"), PixelOf(L"button"), PixelOf(L"inner")};
  };
  const auto light = all();
  EXPECT_TRUE(dialog_->SetSkinMode(SkinMode::Dark, true));
  const auto dark = all();
  for (std::size_t i = 0; i < light.size(); ++i) EXPECT_NE(light[i], dark[i]) << i;
  EXPECT_TRUE(dialog_->SetSkinMode(SkinMode::Default, true));
  EXPECT_EQ(all(), light);
}

TEST_F(DialogSkinTest, ACustomSkinIsTakenOver) {
  Open(ColumnForm(LineEdit("edit")));
  const auto before = DialogPixel();
  const auto edit = PixelOf(L"edit");
  dialog_->SetSkinManager(SkinManager(SkinMode::Dark), true);
  EXPECT_NE(DialogPixel(), before);
  EXPECT_NE(PixelOf(L"edit"), edit);
}

TEST_F(DialogSkinTest, ABackgroundColourIsShownAndReadBack) {
  Open(ColumnForm(LineEdit("edit")));
  dialog_->SetBackgroundColor(0x123456);
  EXPECT_EQ(dialog_->GetBackgroundColor(), 0x123456);
  EXPECT_EQ(DialogPixel(), 0x123456u);
}

class DirectionTest : public DialogTest {
 protected:
  void TearDown() override {
    DialogTest::TearDown();
    SetLayoutRTL(false);
  }
};

TEST_F(DirectionTest, FromRightToLeftEverythingIsMirrored) {
  const std::string form =
      FormXml(RowXml(TextWidget("QLabel", "label", "Name") + LineEdit("edit")), 321, 100);
  Open(form);
  const Rect label = PlaceOf(L"label");
  EXPECT_LT(label.Left(), PlaceOf(L"edit").Left());
  const int width = dialog_->GetClientRect().Width();
  const LONG left = dialog_->GetWindowRect().Left();
  SetLayoutRTL(true);
  Open(form);
  const auto& mirrored = Find<Label>(L"label");
  RECT place{};
  ::GetWindowRect(mirrored.GetPlatformHandle(), &place);
  POINT corner{0, 0};  // the last pixel of the client area's row
  ::ClientToScreen(dialog_->GetHandle(), &corner);
  EXPECT_EQ(corner.x + 1 - place.right, label.Left());
  EXPECT_EQ(place.right - place.left, label.Width());
  EXPECT_EQ(dialog_->GetClientRect().Width(), width);
  EXPECT_EQ(dialog_->GetWindowRect().Left(), left);
}

}  // namespace
}  // namespace Wexa
