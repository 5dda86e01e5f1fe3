#include "ProgressBar.h"

#include "Event.h"
#include "support/FormTest.h"

namespace Wexa {
namespace {

class ProgressBarTest : public FormTest {
 protected:
  ProgressBar& OpenBar(const std::string& properties = "") {
    Open(ColumnForm(WidgetItem("QProgressBar", "bar", properties)));
    return Find<ProgressBar>(L"bar");
  }
  std::uint32_t PixelAt(double part) {
    ProgressBar& bar = Find<ProgressBar>(L"bar");
    int width = bar.GetClientRect().Width();
    return Robot::PixelAt(bar.GetPlatformHandle(), static_cast<int>(part * width), 3);
  }
  int Paints(std::uint64_t milliseconds) {
    int paints = 0;
    Find<ProgressBar>(L"bar").SetEventProcedure([&](BaseGUIObject*, Event* event) {
      if (event->GetType() == Event::Paint) ++paints;
      return false;
    });
    robot_.AdvanceTime(milliseconds);
    Find<ProgressBar>(L"bar").SetEventProcedure({});
    return paints;
  }
};

TEST_F(ProgressBarTest, FillsItsShareAndTellsIt) {
  ProgressBar& bar = OpenBar(NumberXml("maximum", 200));
  bar.SetValue(50);
  Robot::PumpAll();
  EXPECT_EQ(PixelAt(0.1), PixelAt(0.2));
  EXPECT_NE(PixelAt(0.2), PixelAt(0.3));
  EXPECT_EQ(bar.GetText(), L"25%");
  bar.SetFormat(L"%v of %m (%p%)");
  EXPECT_EQ(bar.GetText(), L"50 of 200 (25%)");
  bar.SetValue(999);
  EXPECT_EQ(bar.GetText(), L"200 of 200 (100%)");
  bar.SetTextVisible(false);
  EXPECT_EQ(bar.GetText(), L"");
}

TEST_F(ProgressBarTest, MovesOnlyWhileItIsIndeterminate) {
  ProgressBar& bar = OpenBar();
  EXPECT_EQ(Paints(500), 0);
  bar.SetIndeterminate(true);
  EXPECT_GT(Paints(500), 5);
  EXPECT_EQ(bar.GetText(), L"");
  bar.Show(false, false);
  robot_.AdvanceTime(500);
  EXPECT_EQ(Paints(500), 0) << "nobody sees it";
  bar.Show(true, false);
  EXPECT_GT(Paints(500), 5);
  bar.SetIndeterminate(false);
  Robot::PumpAll();
  EXPECT_EQ(Paints(500), 0);
}

TEST_F(ProgressBarTest, ARangeWithoutStepsIsIndeterminate) {
  ProgressBar& bar = OpenBar(NumberXml("maximum", 0));
  EXPECT_TRUE(bar.IsIndeterminate());
  EXPECT_GT(Paints(500), 5);
  bar.SetRange(0, 10);
  Robot::PumpAll();
  EXPECT_FALSE(bar.IsIndeterminate());
  EXPECT_EQ(Paints(500), 0);
}

}  // namespace
}  // namespace Wexa
