#include "DrawElement.h"

#include "platform/Painter.h"
#include "support/FormTest.h"

namespace Wexa {
namespace {

class DrawElementTest : public FormTest {
 protected:
  DrawElement& OpenCanvas() {
    Open(ColumnForm(WidgetItem("DrawElement", "canvas") + WidgetItem("QLineEdit", "edit")));
    return Find<DrawElement>(L"canvas");
  }
  std::uint32_t Pixel() {
    return Robot::PixelAt(Find<DrawElement>(L"canvas").GetPlatformHandle(), 5, 5);
  }
};

TEST_F(DrawElementTest, TheProcedurePaintsOnTheBackground) {
  DrawElement& canvas = OpenCanvas();
  std::uint32_t background = Pixel();
  Rect given;
  canvas.SetPaintProcedure([&](Painter& painter, const Rect& area) {
    given = area;
    painter.FillRect(RECT{0, 0, 10, 10}, RGB(1, 2, 3));
  });
  Robot::PumpAll();
  EXPECT_EQ(Pixel(), 0x010203u);
  EXPECT_EQ(given, canvas.GetClientRect());
  canvas.SetPaintProcedure({});
  Robot::PumpAll();
  EXPECT_EQ(Pixel(), background);
}

TEST_F(DrawElementTest, TakesTheFocusOnlyWhenItShould) {
  DrawElement& canvas = OpenCanvas();
  HWND window = canvas.GetPlatformHandle();
  robot_.ClickCentreOf(window);
  EXPECT_NE(GetFocus(), window);
  canvas.SetFocusable(true);
  EXPECT_TRUE(canvas.IsFocusable());
  robot_.ClickCentreOf(window);
  EXPECT_EQ(GetFocus(), window);
  robot_.Tab();
  robot_.Tab();
  EXPECT_EQ(GetFocus(), window);
  EXPECT_TRUE(Robot::HasInk(window, {0, 0, 30, 2})) << "the focus shows";
}

}  // namespace
}  // namespace Wexa
