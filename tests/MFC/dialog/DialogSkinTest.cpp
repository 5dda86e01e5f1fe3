// Skins of dialogs.

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

}  // namespace
}  // namespace Wexa
