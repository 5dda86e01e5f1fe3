#include "HyperLinkElement.h"

#include "MFC/base/WidgetColors.h"
#include "platform/VirtualKeys.h"
#include "support/FormTest.h"
#include "window/WindowObject.h"

namespace Wexa {
namespace {

class HyperLinkElementTest : public FormTest {
 protected:
  HyperLinkElement& OpenLink() {
    Open(ColumnForm(WidgetItem("HyperLinkElement", "link", TextXml("Read more about it")) +
                    WidgetItem("QLineEdit", "edit")));
    Link().Clicked.Connect([this] { ++clicks_; });
    return Link();
  }
  HyperLinkElement& Link() { return Find<HyperLinkElement>(L"link"); }
  POINT OnText() {
    Rect place = Link().GetWindowRect();
    return {place.Left() + 10, place.Top() + place.Height() / 2};
  }
  POINT BesideText() {
    Rect place = Link().GetWindowRect();
    return {place.Right() - 3, place.Top() + place.Height() / 2};
  }
  // The colour of the line under the text, as 0x00RRGGBB.
  std::uint32_t Ink() {
    constexpr int kGap = 2;
    int height = Link().IdealSize().Height() - 2 * kGap;
    int top = (Link().GetClientRect().Height() - height) / 2;
    return Robot::PixelAt(Link().GetPlatformHandle(), kGap, top + height - 1);
  }
  void Color(int slot, int color) {
    Link().GetSkinManager().Slot(slot) = static_cast<unsigned long>(SwapRedAndBlue(color));
  }

  int clicks_ = 0;
};

TEST_F(HyperLinkElementTest, IsUsedByClickReturnAndSpace) {
  OpenLink();
  robot_.Click(OnText());
  EXPECT_EQ(clicks_, 1);
  EXPECT_EQ(GetFocus(), Link().GetPlatformHandle());
  robot_.Key(VK_RETURN);
  robot_.Key(VK_SPACE);
  EXPECT_EQ(clicks_, 3);
  EXPECT_NE(dialog_->GetHandle(), nullptr) << "Return did not reach the dialog";
}

TEST_F(HyperLinkElementTest, ReleaseOutsideDoesNotClick) {
  OpenLink();
  robot_.Drag(OnText(), BesideText());
  robot_.Click(BesideText());
  EXPECT_EQ(clicks_, 0);
}

TEST_F(HyperLinkElementTest, EachStateHasItsSlot) {
  OpenLink();
  Color(Slot::kLinkText, 0x102030);
  Color(Slot::kLinkPressed, 0x405060);
  Color(Slot::kLinkHover, 0x708090);
  Color(Slot::kLinkDisabled, 0xA0B0C0);
  Link().Repaint();
  Robot::PumpAll();
  EXPECT_EQ(Ink(), 0x102030u);
  robot_.MoveTo(OnText());
  EXPECT_EQ(Ink(), 0x708090u);
  robot_.Press(OnText());
  EXPECT_EQ(Ink(), 0x405060u);
  robot_.MoveTo(BesideText());
  EXPECT_EQ(Ink(), 0x102030u);
  robot_.Release();
  Link().Enable(false, true);
  Robot::PumpAll();
  EXPECT_EQ(Ink(), 0xA0B0C0u);
  robot_.Click(OnText());
  EXPECT_EQ(clicks_, 0);
}

TEST_F(HyperLinkElementTest, TheHandShowsOverTheTextOnly) {
  OpenLink();
  auto cursor = [this] {
    return Robot::Screen().CursorOf(core::Find(dialog_->GetHandle())->top->surfaceId);
  };
  robot_.MoveTo(OnText());
  EXPECT_EQ(cursor(), display::CursorShape::Hand);
  robot_.MoveTo(BesideText());
  EXPECT_EQ(cursor(), display::CursorShape::Arrow);
}

}  // namespace
}  // namespace Wexa
