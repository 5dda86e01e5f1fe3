#include "Splitter.h"

#include "WexaConfig.h"
#include "WexaUtils.h"
#include "platform/VirtualKeys.h"
#include "support/FormTest.h"

namespace Wexa {
namespace {

std::string EditorXml(const std::string& name, int minimumWidth = 40) {
  return WidgetXml("QTextEdit", name,
                   "<property name=\"minimumSize\"><size><width>" + std::to_string(minimumWidth) +
                       "</width><height>20</height></size></property>");
}

class SplitterTest : public FormTest {
 protected:
  void OpenThree(const std::string& properties = "") {
    Open(ColumnForm(WidgetItem("QSplitter", "split",
                               EnumXml("orientation", "Qt::Horizontal") + properties +
                                   EditorXml("a") + EditorXml("b") + EditorXml("c")),
                    600, 200));
  }
  Splitter& Split() { return Find<Splitter>(L"split"); }
  int WidthOf(const wchar_t* name) { return PlaceOf(name).Width(); }
  // Between two views, on the screen.
  POINT HandleAfter(const wchar_t* view) {
    Rect place = Find<BaseGUIObject>(view).GetWindowRect();
    return {place.Right() + 3, place.Top() + 10};
  }
  void DragHandle(const wchar_t* view, int by) {
    POINT from = HandleAfter(view);
    robot_.Drag(from, {from.x + by, from.y});
  }
};

TEST_F(SplitterTest, ADraggedHandleMovesTheBorderAndNoOther) {
  OpenThree();
  int a = WidthOf(L"a");
  int b = WidthOf(L"b");
  int c = WidthOf(L"c");
  DragHandle(L"a", 30);
  EXPECT_EQ(WidthOf(L"a"), a + 30);
  EXPECT_EQ(WidthOf(L"b"), b - 30);
  EXPECT_EQ(WidthOf(L"c"), c);
}

TEST_F(SplitterTest, MinimumsHoldAndPushTheNextPane) {
  OpenThree();
  DragHandle(L"a", 1000);
  EXPECT_EQ(WidthOf(L"b"), 40);
  EXPECT_EQ(WidthOf(L"c"), 40);
  DragHandle(L"b", -1000);
  EXPECT_EQ(WidthOf(L"a"), 40);
}

TEST_F(SplitterTest, ViewsFollowAtOnceOrOnRelease) {
  OpenThree();
  for (bool dynamic : {true, false}) {
    Split().SetDynamicResizing(dynamic);
    EXPECT_EQ(Split().DynamicResizing(), dynamic);
    int a = WidthOf(L"a");
    POINT from = HandleAfter(L"a");
    robot_.Press(from);
    robot_.MoveTo({from.x + 20, from.y});
    EXPECT_EQ(WidthOf(L"a"), dynamic ? a + 20 : a);
    robot_.Release();
    EXPECT_EQ(WidthOf(L"a"), a + 20);
  }
}

TEST_F(SplitterTest, ALineShowsWhereTheHandleWillBe) {
  OpenThree(BoolXml("opaqueResize", false));
  POINT from = HandleAfter(L"a");
  POINT to{from.x + 40, from.y};
  POINT there = to;
  ScreenToClient(dialog_->GetHandle(), &there);
  robot_.Press(from);
  auto before = Robot::PixelAt(dialog_->GetHandle(), there.x, there.y);
  robot_.MoveTo(to);
  EXPECT_NE(Robot::PixelAt(dialog_->GetHandle(), there.x, there.y), before);
  dialog_->SetFocusToCtrl(&Find<BaseGUIObject>(L"b"));
  robot_.Release();
}

TEST_F(SplitterTest, AnInterruptedDragIsTakenBack) {
  OpenThree();
  int a = WidthOf(L"a");
  POINT from = HandleAfter(L"a");
  robot_.Press(from);
  robot_.MoveTo({from.x + 25, from.y});
  ReleaseCapture();
  robot_.Release();
  EXPECT_EQ(WidthOf(L"a"), a);
}

TEST_F(SplitterTest, TheKeyboardReachesAndMovesHandles) {
  OpenThree();
  Split().SetSizes({200, 200, 200});
  HWND handle = WindowFromPoint(HandleAfter(L"a"));
  for (int i = 0; i < 8 && GetFocus() != handle; ++i) robot_.Tab();
  ASSERT_EQ(GetFocus(), handle);
  int a = WidthOf(L"a");
  robot_.Key(VK_RIGHT);
  EXPECT_GT(WidthOf(L"a"), a);
  robot_.Key(VK_LEFT);
  EXPECT_EQ(WidthOf(L"a"), a);
  robot_.Key(VK_HOME);
  EXPECT_EQ(WidthOf(L"a"), 40);
}

TEST_F(SplitterTest, SizesKeepTheirProportionsWhenTheDialogGrows) {
  OpenThree();
  Split().SetSizes({300, 100, 100});
  dialog_->MoveWindow(0, 0, 1000, 300, true);
  Robot::PumpAll();
  EXPECT_NEAR(WidthOf(L"a"), 3 * WidthOf(L"b"), 3);
  EXPECT_NEAR(WidthOf(L"b"), WidthOf(L"c"), 1);
}

TEST_F(SplitterTest, TheHandleWidthIsInUnits) {
  OpenThree();
  Split().SetHandleWidth(12);
  Robot::PumpAll();
  Rect a = Find<BaseGUIObject>(L"a").GetWindowRect();
  Rect b = Find<BaseGUIObject>(L"b").GetWindowRect();
  EXPECT_EQ(b.Left() - a.Right(), static_cast<int>(12 * WexaUtils::GetScaleFactor()));
}

TEST_F(SplitterTest, AHiddenViewTakesItsHandleAlong) {
  OpenThree();
  Find<BaseGUIObject>(L"b").Show(false, true);
  Robot::PumpAll();
  Rect a = Find<BaseGUIObject>(L"a").GetWindowRect();
  Rect c = Find<BaseGUIObject>(L"c").GetWindowRect();
  EXPECT_EQ(c.Left() - a.Right(), static_cast<int>(6 * WexaUtils::GetScaleFactor()));
  EXPECT_EQ(c.Right(), Split().GetWindowRect().Right());
}

TEST_F(SplitterTest, NestedSplittersMoveApart) {
  Open(ColumnForm(WidgetItem("QSplitter", "outer",
                             EnumXml("orientation", "Qt::Horizontal") + EditorXml("a") +
                                 WidgetXml("QSplitter", "inner",
                                           EnumXml("orientation", "Qt::Vertical") + EditorXml("b") +
                                               EditorXml("c"))),
                  600, 300));
  Rect b = Find<BaseGUIObject>(L"b").GetWindowRect();
  POINT between{b.Left() + 10, b.Bottom() + 3};
  int a = WidthOf(L"a");
  robot_.Drag(between, {between.x, between.y - 30});
  EXPECT_EQ(Find<BaseGUIObject>(L"b").GetWindowRect().Height(), b.Height() - 30);
  EXPECT_EQ(WidthOf(L"a"), a);
  DragHandle(L"a", 15);
  EXPECT_EQ(WidthOf(L"a"), a + 15);
}

TEST_F(SplitterTest, ViewsAreGivenAsACopy) {
  OpenThree();
  auto views = Split().GetViews();
  ASSERT_EQ(views.size(), 3u);
  EXPECT_EQ(views[1], &Find<BaseGUIObject>(L"b"));
  views.clear();
  EXPECT_EQ(Split().GetViews().size(), 3u);
  Splitter alone;
  alone.AddView(nullptr);
  alone.SetSizes({1, 2, 3});
  EXPECT_TRUE(alone.GetViews().empty());
}

TEST_F(SplitterTest, FromRightToLeftHandlesFollowPointerAndArrows) {
  SetLayoutRTL(true);
  OpenThree();
  SetLayoutRTL(false);
  const int a = WidthOf(L"a");
  const Rect b = Find<BaseGUIObject>(L"b").GetWindowRect();
  const POINT handle{b.Right() + 3, b.Top() + 10};
  EXPECT_GT(Find<BaseGUIObject>(L"a").GetWindowRect().Left(), b.Left());
  robot_.Drag(handle, {handle.x - 30, handle.y});
  EXPECT_EQ(WidthOf(L"a"), a + 30);
  SetFocus(WindowFromPoint({handle.x - 30, handle.y}));
  robot_.Key(VK_RIGHT);
  EXPECT_LT(WidthOf(L"a"), a + 30);
}

}  // namespace
}  // namespace Wexa
