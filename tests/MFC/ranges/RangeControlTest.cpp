#include "RangeControl.h"

#include "ScrollBar.h"
#include "Slider.h"
#include "platform/Theme.h"
#include "platform/VirtualKeys.h"
#include "support/FormTest.h"

namespace Wexa {
namespace {

std::string RangeXml(const std::string& className, const std::string& orientation,
                     const std::string& more = "") {
  return WidgetItem(
             className, "range",
             EnumXml("orientation", "Qt::" + orientation) + NumberXml("maximum", 100) + more) +
         WidgetItem("QLineEdit", "edit");
}

class RangeControlTest : public FormTest {
 protected:
  void OpenRange(const std::string& className, const std::string& orientation = "Horizontal",
                 const std::string& more = "") {
    Open(ColumnForm(RangeXml(className, orientation, more), 320, 240));
    changes_.clear();
    Range().ValueChanged.Connect([this](int value) { changes_.push_back(value); });
    Range().SliderMoved.Connect([this](int value) { moves_.push_back(value); });
  }
  RangeControl& Range() { return Find<RangeControl>(L"range"); }
  Rect Place() { return Range().GetWindowRect(); }
  POINT At(int fromLeft) {
    return {Place().Left() + fromLeft, Place().Top() + Place().Height() / 2};
  }

  std::vector<int> changes_;
  std::vector<int> moves_;
};

TEST_F(RangeControlTest, ASliderFollowsTheKeys) {
  OpenRange("QSlider", "Horizontal", NumberXml("singleStep", 2) + NumberXml("pageStep", 25));
  Range().SetValue(50);
  SetFocus(Range().GetPlatformHandle());
  for (int key : {VK_RIGHT, VK_UP, VK_LEFT, VK_NEXT, VK_PRIOR, VK_HOME, VK_END, VK_END})
    robot_.Key(key);
  EXPECT_EQ(changes_, (std::vector{50, 52, 54, 52, 27, 52, 0, 100}));
  EXPECT_TRUE(moves_.empty()) << "nothing was dragged";
}

TEST_F(RangeControlTest, AVerticalSliderGrowsUpwardsAndABarDownwards) {
  OpenRange("QSlider", "Vertical");
  SetFocus(Range().GetPlatformHandle());
  robot_.Key(VK_UP);
  EXPECT_EQ(Range().GetValue(), 1);
  robot_.Wheel(1);
  EXPECT_EQ(Range().GetValue(), 4);
  OpenRange("QScrollBar", "Vertical");
  SetFocus(Range().GetPlatformHandle());
  robot_.Key(VK_DOWN);
  EXPECT_EQ(Range().GetValue(), 1);
  robot_.Wheel(-1);
  EXPECT_EQ(Range().GetValue(), 4);
}

TEST_F(RangeControlTest, ADraggedThumbFollowsThePointerAndIsReported) {
  OpenRange("QSlider");
  int thumb = Theme::SliderThumbLength();
  robot_.Drag(At(thumb / 2), At(Place().Width() / 2));
  EXPECT_EQ(Range().GetValue(), 50);
  EXPECT_EQ(moves_, changes_);
  EXPECT_EQ(moves_.size(), 2u);
  robot_.Drag(At(Place().Width() / 2), {10000, 0});
  EXPECT_EQ(Range().GetValue(), 100);
}

TEST_F(RangeControlTest, APressBesideTheThumbMovesAPage) {
  OpenRange("QSlider");
  robot_.Click(At(Place().Width() - 10));
  EXPECT_EQ(Range().GetValue(), 10);
  EXPECT_EQ(GetFocus(), Range().GetPlatformHandle());
}

TEST_F(RangeControlTest, AnInterruptedDragPutsTheValueBack) {
  for (const char* className : {"QSlider", "QScrollBar"}) {
    OpenRange(className);
    int inThumb = className[1] == 'S' && className[2] == 'l' ? 5 : Theme::ScrollBarWidth() + 5;
    robot_.Press(At(inThumb));
    robot_.MoveTo(At(150));
    EXPECT_GT(Range().GetValue(), 20);
    ReleaseCapture();
    robot_.Release();
    EXPECT_EQ(Range().GetValue(), 0) << className;
  }
}

TEST_F(RangeControlTest, ABarsArrowsAndPagesRepeatWhileHeld) {
  OpenRange("QScrollBar");
  robot_.Press(At(Place().Width() - 3));
  EXPECT_EQ(Range().GetValue(), 1);
  robot_.AdvanceTime(1000);
  EXPECT_GT(Range().GetValue(), 5);
  robot_.Release();
  int value = Range().GetValue();
  robot_.AdvanceTime(1000);
  EXPECT_EQ(Range().GetValue(), value);
  Range().SetValue(0);
  robot_.Press(At(Place().Width() / 2));
  robot_.AdvanceTime(5000);
  EXPECT_LT(Range().GetValue(), 70) << "a page press ends under the pointer";
  robot_.Release();
}

TEST_F(RangeControlTest, TheHostIsToldOnceAndOnlyOfChanges) {
  OpenRange("QSlider");
  Range().SetValue(30);
  Range().SetValue(30);
  Range().SetRange(40, 60);
  Range().SetRange(40, 70);
  EXPECT_EQ(changes_, (std::vector{30, 40}));
  Range().SetSingleStep(0);
  EXPECT_EQ(Range().GetSingleStep(), 1);
}

TEST_F(RangeControlTest, ADisabledOneTakesNoInput) {
  OpenRange("QSlider");
  Range().Enable(false, true);
  robot_.Click(At(Place().Width() - 10));
  EXPECT_EQ(Range().GetValue(), 0);
}

TEST_F(RangeControlTest, TicksAreDrawnBesideTheTrack) {
  OpenRange("QSlider");
  RECT below{0, Place().Height() - 3, Place().Width(), Place().Height()};
  EXPECT_FALSE(Robot::HasInk(Range().GetPlatformHandle(), below));
  Find<Slider>(L"range").SetTickInterval(25);
  Robot::PumpAll();
  EXPECT_TRUE(Robot::HasInk(Range().GetPlatformHandle(), below));
}

}  // namespace
}  // namespace Wexa
