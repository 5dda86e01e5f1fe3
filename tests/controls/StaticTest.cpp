#include "controls/ControlsTest.h"

class StaticTest : public ControlsTest {};

TEST_F(StaticTest, ATextLetsClicksThroughUnlessItNotifies) {
  const HWND text = AddRow(WC_STATIC, 0, 10, L"text");
  EXPECT_EQ(WindowFromPoint(CentreOf(text)), dialog_.m_hWnd);
  const HWND notifying = AddRow(WC_STATIC, SS_NOTIFY, 11, L"text");
  robot_.ClickCentreOf(notifying);
  EXPECT_EQ(dialog_.TakeCodesOf(11), std::vector{STN_CLICKED});
}

TEST_F(StaticTest, IdealSizeFollowsTextAndWrapping) {
  CStatic text;
  text.Create(L"some words that need room", WS_VISIBLE, CRect(), &dialog_, 10);
  const CSize line = text.GetIdealSize();
  const CSize wrapped = text.GetIdealSize(line.cx / 2);
  EXPECT_GE(wrapped.cy, 2 * line.cy);
  EXPECT_LE(wrapped.cx, line.cx / 2);
  text.ModifyStyle(SS_TYPEMASK, SS_LEFTNOWORDWRAP);
  EXPECT_EQ(CSize(text.GetIdealSize(line.cx / 2)).cy, line.cy);
  text.SetWindowText(L"");
  EXPECT_EQ(text.GetIdealSize().cx, 0);
  EXPECT_EQ(text.GetIdealSize().cy, GetFontMetrics(text.GetFont()).height) << "of a line";
}
