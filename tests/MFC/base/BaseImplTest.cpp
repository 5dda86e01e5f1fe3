#include "MFC/BaseImplMFC.h"

#include "Edit.h"
#include "Event.h"
#include "Label.h"
#include "WexaException.h"
#include "WexaUtils.h"
#include "platform/Font.h"
#include "support/FormTest.h"
#include "support/Printers.h"

namespace Wexa {
namespace {

// The widgets of a form and what their event procedures got.
class WidgetTest : public FormTest {
 protected:
  void Listen(BaseGUIObject& widget, bool handled = false) {
    widget.SetEventProcedure([this, handled](BaseGUIObject*, Event* event) {
      if (event->GetType() == Event::PostPaint || event->GetType() == Event::Paint) return false;
      types_.push_back(event->GetType());
      if (event->GetType() == Event::Resize) oldSize_ = static_cast<ResizeEvent*>(event)->OldSize();
      return handled;
    });
  }

  bool Got(Event::Type type) const {
    return std::find(types_.begin(), types_.end(), type) != types_.end();
  }

  std::vector<Event::Type> types_;
  Size oldSize_;
};

TEST_F(WidgetTest, ARememberedDisableOutlivesATemporaryEnable) {
  Open(ColumnForm(WidgetItem("QLineEdit", "edit")));
  auto& edit = Find<BaseGUIObject>(L"edit");
  edit.Enable(false, true);
  edit.Enable(true, false);
  EXPECT_FALSE(edit.IsEnabled());
  edit.Enable(true, true);
  EXPECT_TRUE(edit.IsEnabled());
}

TEST_F(WidgetTest, WhatNeedsAWindowSaysThatThereIsNone) {
  Edit edit;
  const std::function<void()> operations[] = {
      [&] { edit.Show(true, false); },
      [&] { edit.Enable(true, true); },
      [&] { edit.IsEnabled(); },
      [&] { edit.GetWindowRect(); },
      [&] { edit.GetWindowRectUnscaled(); },
      [&] { edit.GetClientRect(); },
      [&] { edit.ScreenToClient(Point()); },
      [&] { edit.ClientToScreen(Point()); },
      [&] { edit.MoveWindow(0, 0, 1, 1, true); },
      [&] { edit.MoveWindowUnscaled(0, 0, 1, 1, true); },
      [&] { edit.GetFrarmeWidth(); },
      [&] { edit.GetLogicalPixelsX(); },
      [&] { edit.GetLogicalPixelsY(); },
      [&] { edit.SetTimer(1, 1); },
      [&] { edit.KillTimer(1); },
      [&] { edit.Update(); },
      [&] { edit.Update(Region()); },
      [&] { edit.Repaint(); },
      [&] { edit.Repaint(Region()); },
      [&] { edit.SetTrackMouseEvent(); },
  };
  for (std::size_t i = 0; i < std::size(operations); ++i) {
    try {
      operations[i]();
      ADD_FAILURE() << "operation " << i;
    } catch (const WexaException& error) {
      EXPECT_NE(std::string(error.what()).find("Control is not valid."), std::string::npos);
    }
  }
  edit.SetAcceptDrops(true);
  EXPECT_FALSE(edit.IsAcceptDrops());
  EXPECT_EQ(edit.GetPlatformHandle(), nullptr);
  EXPECT_EQ(ImplOf(&edit)->BaseImplMFC::IdealSize(), Size(-1, -1));
  EXPECT_EQ(ImplOf(&edit)->HeightForWidth(50), -1);
}

TEST_F(WidgetTest, MetricsAreThoseOfTheWindow) {
  Open(ColumnForm(WidgetItem("QLineEdit", "edit")));
  const Rect window = dialog_->GetWindowRect();
  const Rect client = dialog_->GetClientRect();
  EXPECT_GT(dialog_->GetFrarmeWidth(), 0);
  EXPECT_EQ(dialog_->GetFrarmeWidth(), (window.Width() - client.Width()) / 2);
  const DWORD style = dialog_->GetPlatformWindow()->GetStyle();
  EXPECT_EQ(WexaUtils::DialogFrameWidth(style),
            static_cast<unsigned>(window.Width() - client.Width()));
  EXPECT_EQ(WexaUtils::DialogFrameHeight(style),
            static_cast<unsigned>(window.Height() - client.Height()));
  EXPECT_EQ(WexaUtils::DialogFrameHeight(WS_POPUP), 0u);
  EXPECT_EQ(dialog_->GetLogicalPixelsX(), 96);
  EXPECT_EQ(dialog_->GetLogicalPixelsY(), 96);
  EXPECT_EQ(dialog_->ScreenToClient(dialog_->ClientToScreen(Point(3, 4))), Point(3, 4));
  CWnd* object = Find<BaseGUIObject>(L"edit").GetPlatformWindow();
  EXPECT_EQ(WexaUtils::GetHandleFromWndPtr(object), Find<Edit>(L"edit").GetPlatformHandle());
  EXPECT_EQ(WexaUtils::GetWndPtrFromHandle(object->GetSafeHwnd()), object);
  EXPECT_EQ(WexaUtils::GetHandleFromWndPtr(nullptr), nullptr);
  EXPECT_EQ(WexaUtils::GetWndPtrFromHandle(nullptr), nullptr);
  robot_.MoveTo(POINT{31, 17});
  EXPECT_EQ(WexaUtils::GetCursorPosition(), Point(31, 17));
}

TEST(CursorTypes, HaveTheirNativeIdentifiers) {
  constexpr wchar_t kArrow = 32512;
  const wchar_t natives[] = {kArrow, kArrow, 32514, 32513, 32515, 32516, 32640, kArrow,
                             32642,  32643,  32644, 32645, 32646, 32648, 32649, kArrow};
  for (int type = 0; type < 16; ++type) {
    wchar_t* native = WexaUtils::GetPlattformCursorType(static_cast<WexaUtils::CursorTypes>(type));
    EXPECT_EQ(native[0], natives[type]) << type;
  }
}

TEST_F(WidgetTest, UnscaledPlacesAndLimitsAreIn96thsOfAnInch) {
  Open(FormXml(WidgetXml("QLineEdit", "edit"), 300, 200));
  auto& edit = Find<BaseGUIObject>(L"edit");
  SetScreenDpi(144);
  edit.MoveWindowUnscaled(10, 11, 51, 20, true);
  EXPECT_EQ(PlaceOf(L"edit"), Rect(15, 16, 76, 30));
  EXPECT_EQ(edit.GetWindowRectUnscaled().Width(), 50) << "cut off, as all metrics";
  edit.SetMaximumSize(Size(33, 100));
  EXPECT_EQ(edit.MaximumSize(), Size(50, 150)) << "rounded";
  SetScreenDpi(96);
}

TEST_F(WidgetTest, TextIsMeasuredInTheWidgetsFontOrAnother) {
  Open(ColumnForm(WidgetItem("QLineEdit", "edit")));
  auto& edit = Find<BaseGUIObject>(L"edit");
  std::wstring text = L"Some words";
  FontData large;
  large.faceName = L"DejaVu Sans";
  large.pointSize = 30;
  const int usual = edit.GetWidthForText(text, nullptr);
  const int wide = edit.GetWidthForText(text, &large);
  EXPECT_GT(usual, 20);
  EXPECT_GT(wide, 2 * usual);
  ImplOf(&edit)->SetFont(large);
  EXPECT_EQ(edit.GetWidthForText(text, nullptr), wide);
}

TEST_F(WidgetTest, EachWayToRedrawPaintsOnce) {
  Open(ColumnForm(WidgetItem("QLineEdit", "edit")));
  auto& edit = Find<BaseGUIObject>(L"edit");
  int paints = 0;
  edit.SetEventProcedure([&](BaseGUIObject*, Event* event) {
    if (event->GetType() == Event::Paint) ++paints;
    return false;
  });
  const Region corner(Rect(0, 0, 4, 4), RegionType::Rectangular);
  const std::function<void()> ways[] = {[&] { edit.Update(); }, [&] { edit.Update(corner); },
                                        [&] { edit.Repaint(); }, [&] { edit.Repaint(corner); }};
  for (const auto& redraw : ways) {
    paints = 0;
    redraw();
    Robot::PumpAll();
    EXPECT_EQ(paints, 1);
  }
}

TEST_F(WidgetTest, MovesAreKeptWithinTheLimitsAndTheMinimumWins) {
  Open(FormXml(WidgetXml("QLineEdit", "edit"), 300, 200));
  auto& edit = Find<BaseGUIObject>(L"edit");
  edit.SetMaximumSize(Size(100, 20));
  edit.MoveWindow(10, 10, 150, 15, true);
  EXPECT_EQ(edit.GetWindowRect().Width(), 100);
  edit.SetMinimumSize(Size(120, 10));
  edit.MoveWindow(10, 10, 50, 15, true);
  EXPECT_EQ(edit.GetWindowRect().Width(), 120);
}

TEST_F(WidgetTest, AMoveToTheSamePlaceMakesNoNativeCall) {
  Open(FormXml(WidgetXml("QLineEdit", "edit"), 300, 200));
  auto& edit = Find<BaseGUIObject>(L"edit");
  edit.MoveWindow(10, 10, 50, 20, true);
  Listen(edit);
  edit.MoveWindow(10, 10, 50, 20, true);
  EXPECT_FALSE(Got(Event::Resize));
  edit.MoveWindow(10, 10, 60, 20, true);
  EXPECT_TRUE(Got(Event::Resize));
}

TEST_F(WidgetTest, ResizeEventsShareOneOldSize) {
  Open(FormXml(WidgetXml("QLineEdit", "a") + WidgetXml("QLineEdit", "b"), 300, 200));
  Listen(Find<BaseGUIObject>(L"a"));
  Listen(Find<BaseGUIObject>(L"b"));
  Find<BaseGUIObject>(L"a").MoveWindow(0, 0, 71, 33, true);
  Size first = Find<BaseGUIObject>(L"a").GetClientRect().GetSize();
  Find<BaseGUIObject>(L"b").MoveWindow(0, 40, 90, 20, true);
  EXPECT_EQ(oldSize_.Width(), first.Width());
  EXPECT_EQ(oldSize_.Height(), first.Height());
}

TEST_F(WidgetTest, AHandledCharacterDoesNotReachTheEdit) {
  Open(ColumnForm(WidgetItem("QLineEdit", "edit")));
  auto& edit = Find<BaseGUIObject>(L"edit");
  dialog_->SetFocusToCtrl(&edit);
  robot_.Type(L"x");
  Listen(edit, true);
  robot_.Type(L"y");
  EXPECT_EQ(static_cast<BaseImplMFC*>(edit.GetBaseImpl().get())->GetCWnd()->GetWindowText(), L"x");
}

TEST_F(WidgetTest, AHandledPaintSuppressesTheNativeOneAndEnds) {
  Open(ColumnForm(WidgetItem("QLineEdit", "edit")));
  auto& edit = Find<BaseGUIObject>(L"edit");
  int paints = 0;
  int postPaints = 0;
  edit.SetEventProcedure([&](BaseGUIObject*, Event* event) {
    if (event->GetType() == Event::Paint) return ++paints > 0;
    if (event->GetType() == Event::PostPaint) ++postPaints;
    return false;
  });
  int above = 0;
  dialog_->SetEventProcedure([&](BaseGUIObject*, Event* event) {
    if (event->GetType() == Event::PostPaint) ++above;
    return false;
  });
  edit.Repaint();
  Robot::PumpAll();
  EXPECT_EQ(paints, 1);
  EXPECT_EQ(postPaints, 1);
  EXPECT_EQ(above, 1) << "the notice climbs to the dialog";
}

TEST_F(WidgetTest, TimersComeWithTheirIds) {
  Open(ColumnForm(WidgetItem("QLineEdit", "edit")));
  auto& edit = Find<BaseGUIObject>(L"edit");
  int fired = 0;
  edit.SetEventProcedure([&](BaseGUIObject* widget, Event* event) {
    if (event->GetType() != Event::Timer) return false;
    if (static_cast<TimerEvent*>(event)->TimerId() == 77) ++fired;
    if (fired == 3) widget->KillTimer(77);
    return true;
  });
  edit.SetTimer(77, 100);
  robot_.AdvanceTime(1000);
  EXPECT_EQ(fired, 3);
}

TEST_F(WidgetTest, AChangedTextLaysOutOnceAndMovesItsNeighbour) {
  Open(FormXml(RowXml(TextWidget("QLabel", "label", "a") + WidgetItem("QLineEdit", "edit")), 300,
               60));
  int before = PlaceOf(L"edit").Left();
  int layouts = 0;
  dialog_->SetEventProcedure([&](BaseGUIObject*, Event* event) {
    if (event->GetType() == Event::LayoutsUpdated) ++layouts;
    return false;
  });
  Find<Label>(L"label").SetText(L"a longer text");
  Find<Label>(L"label").SetText(L"a longer text still");
  Robot::PumpAll();
  EXPECT_EQ(layouts, 1);
  EXPECT_GT(PlaceOf(L"edit").Left(), before + 50);
}

TEST_F(WidgetTest, DestroyedIsFiredWithTheWidget) {
  Open(ColumnForm(WidgetItem("QLineEdit", "edit")));
  BaseGUIObject* dead = nullptr;
  auto& edit = Find<BaseGUIObject>(L"edit");
  edit.Destroyed.Connect([&](BaseGUIObject* widget) { dead = widget; });
  dialog_->Done(Dialog::Rejected);
  EXPECT_EQ(dead, &edit);
}

}  // namespace
}  // namespace Wexa
