#include "TabView.h"

#include "ChildDialog.h"
#include "platform/DialogManager.h"
#include "platform/Theme.h"
#include "platform/VirtualKeys.h"
#include "support/FormTest.h"

namespace Wexa {
namespace {

std::string PageXml(const std::string& name, const std::string& title, const std::string& inner) {
  return "<widget class=\"QWidget\" name=\"" + name + "\"><attribute name=\"title\"><string>" +
         title + "</string></attribute><layout class=\"QVBoxLayout\" name=\"" + name + "Layout\">" +
         ItemXml(inner) + "</layout></widget>";
}

std::string ThreePages(const std::string& properties = "") {
  return WidgetItem("QTabWidget", "tabs",
                    properties + PageXml("one", "&amp;One", WidgetXml("QLineEdit", "edit1")) +
                        PageXml("two", "&amp;Two", WidgetXml("QLineEdit", "edit2")) +
                        PageXml("three", "T&amp;hree", WidgetXml("QLabel", "label3"))) +
         WidgetItem("QLineEdit", "outside");
}

class TabViewTest : public FormTest {
 protected:
  TabView& Tabs() { return Find<TabView>(L"tabs"); }
  HWND Strip() { return GetWindow(Tabs().GetPlatformHandle(), GW_CHILD); }
  bool IsShown(const wchar_t* page) { return Find<BaseGUIObject>(page).IsVisible(); }
  void Focus(const wchar_t* name) { dialog_->SetFocusToCtrl(&Find<BaseGUIObject>(name)); }
  bool HasFocus(const wchar_t* name) {
    return GetFocus() == Find<BaseGUIObject>(name).GetPlatformHandle();
  }
  // The middle of a tab on the screen; all tabs fit.
  POINT TabPoint(int index) {
    POINT point{0, 8};
    for (int i = 0; i <= index; ++i) {
      int width = GetTextExtent(nullptr, Tabs().GetTabText(i), INT32_MAX, DT_SINGLELINE).cx +
                  2 * Theme::TabPadding().cx;
      point.x += i < index ? width : width / 2;
    }
    ClientToScreen(Strip(), &point);
    return point;
  }
};

TEST_F(TabViewTest, AClickShowsThePageAndTellsTheHost) {
  Open(ColumnForm(ThreePages()));
  std::vector<int> changes;
  Tabs().CurrentChanged.Connect([&](int index) { changes.push_back(index); });
  robot_.Click(TabPoint(1));
  EXPECT_EQ(Tabs().GetCurrentIndex(), 1);
  EXPECT_TRUE(IsShown(L"two"));
  EXPECT_FALSE(IsShown(L"one"));
  robot_.Click(TabPoint(1));
  EXPECT_EQ(changes, std::vector<int>{1});
  EXPECT_EQ(GetFocus(), Strip());
}

TEST_F(TabViewTest, NextAndPreviousGoRound) {
  Open(ColumnForm(ThreePages()));
  Tabs().ActivatePreviousTab();
  EXPECT_EQ(Tabs().GetCurrentIndex(), 2);
  Tabs().ActivateNextTab();
  EXPECT_EQ(Tabs().GetCurrentIndex(), 0);
  Tabs().SetCurrentIndex(9);
  Tabs().SetCurrentIndex(-1);
  EXPECT_EQ(Tabs().GetCurrentIndex(), 0);
  TabView empty;
  empty.ActivateNextTab();
  empty.ActivatePreviousTab();
  empty.EnablePage(0, false, true);
  EXPECT_EQ(empty.GetCurrentIndex(), -1);
  EXPECT_EQ(empty.GetTabText(0), L"");
}

TEST_F(TabViewTest, ArrowsHomeAndEndMoveWithTheFocusOnTheStrip) {
  Open(ColumnForm(ThreePages()));
  SetFocus(Strip());
  robot_.Key(VK_RIGHT);
  EXPECT_EQ(Tabs().GetCurrentIndex(), 1);
  robot_.Key(VK_END);
  EXPECT_EQ(Tabs().GetCurrentIndex(), 2);
  robot_.Key(VK_RIGHT);
  EXPECT_EQ(Tabs().GetCurrentIndex(), 2) << "it does not go round";
  robot_.Key(VK_HOME);
  EXPECT_EQ(Tabs().GetCurrentIndex(), 0);
  EXPECT_EQ(GetFocus(), Strip());
  robot_.Tab();
  EXPECT_TRUE(HasFocus(L"edit1"));
  robot_.ShiftTab();
  EXPECT_EQ(GetFocus(), Strip());
}

TEST_F(TabViewTest, ControlTabTurnsThePagesFromInside) {
  Open(ColumnForm(ThreePages()));
  Focus(L"edit1");
  robot_.ControlKey(VK_TAB);
  EXPECT_EQ(Tabs().GetCurrentIndex(), 1);
  EXPECT_TRUE(HasFocus(L"edit2")) << "the focus leaves the hidden page";
  robot_.ControlKey(VK_TAB);
  EXPECT_EQ(GetFocus(), Strip()) << "nothing in the page takes it";
  robot_.KeyDown(VK_SHIFT);
  robot_.ControlKey(VK_TAB);
  robot_.KeyUp(VK_SHIFT);
  EXPECT_EQ(Tabs().GetCurrentIndex(), 1);
  Focus(L"outside");
  robot_.ControlKey(VK_TAB);
  EXPECT_EQ(Tabs().GetCurrentIndex(), 1) << "only from inside";
}

TEST_F(TabViewTest, DisabledPagesAreSkippedAndNotClicked) {
  Open(ColumnForm(ThreePages()));
  Tabs().EnablePage(1, false, true);
  robot_.Click(TabPoint(1));
  EXPECT_EQ(Tabs().GetCurrentIndex(), 0);
  robot_.Key(VK_RIGHT);
  EXPECT_EQ(Tabs().GetCurrentIndex(), 2);
  robot_.AltKey(L'T');
  EXPECT_EQ(Tabs().GetCurrentIndex(), 2);
  Tabs().EnablePage(1, true, true);
  robot_.AltKey(L'T');
  EXPECT_EQ(Tabs().GetCurrentIndex(), 1);
}

TEST_F(TabViewTest, MnemonicsOfCaptionsWorkFromAnywhere) {
  Open(ColumnForm(ThreePages()));
  Focus(L"outside");
  robot_.AltKey(L'H');
  EXPECT_EQ(Tabs().GetCurrentIndex(), 2);
  EXPECT_EQ(GetFocus(), Strip());
}

TEST_F(TabViewTest, TabsThatDoNotFitAreScrolled) {
  std::string pages;
  for (int i = 0; i < 9; ++i)
    pages += PageXml("p" + std::to_string(i), "A long caption", WidgetXml("QLabel", "l"));
  Open(ColumnForm(WidgetItem("QTabWidget", "tabs", pages), 320, 120));
  EXPECT_LT(Tabs().GetWindowRect().Width(), 320);
  RECT strip{};
  GetWindowRect(Strip(), &strip);
  POINT forward{strip.right - 5, strip.top + 8};
  POINT first{strip.left + 5, strip.top + 8};
  robot_.Click(forward);
  robot_.Click(forward);
  robot_.Click(first);
  EXPECT_EQ(Tabs().GetCurrentIndex(), 2) << "the tab that was scrolled to the start";
  Tabs().SetCurrentIndex(0);
  robot_.Click(first);
  EXPECT_EQ(Tabs().GetCurrentIndex(), 0) << "the current tab is brought into view";
}

TEST_F(TabViewTest, TabsStandAtAnyEdgeOfTheirPages) {
  struct Side {
    const char* word;
    RECT room;  // which the strip leaves, as fractions of its thickness at each side
  };
  for (const auto& [word, room] : {Side{"North", {0, 1, 0, 0}}, Side{"South", {0, 0, 0, 1}},
                                   Side{"West", {1, 0, 0, 0}}, Side{"East", {0, 0, 1, 0}}}) {
    Open(ColumnForm(ThreePages(EnumXml("tabPosition", std::string("QTabWidget::") + word))));
    RECT strip{};
    GetWindowRect(Strip(), &strip);
    const bool upright = room.left + room.right > 0;
    const int thickness = upright ? strip.right - strip.left : strip.bottom - strip.top;
    const auto font = reinterpret_cast<HFONT>(SendMessageW(Strip(), WM_GETFONT, 0, 0));
    for (int i = 0; upright && i < Tabs().GetItemCount(); ++i) {
      const SIZE text = GetTextExtent(font, Tabs().GetTabText(i), INT32_MAX, DT_SINGLELINE);
      EXPECT_GT(thickness, text.cx + 2 * Theme::TabPadding().cx) << "room for the inner line";
    }
    const auto margin = [&](LONG share) { return share ? thickness : 1; };
    Rect page = Find<BaseGUIObject>(L"one").GetWindowRect();
    Rect view = Tabs().GetWindowRect();
    EXPECT_EQ(page.Left() - view.Left(), margin(room.left)) << word;
    EXPECT_EQ(page.Top() - view.Top(), margin(room.top)) << word;
    EXPECT_EQ(view.Right() - page.Right(), margin(room.right)) << word;
    EXPECT_EQ(view.Bottom() - page.Bottom(), margin(room.bottom)) << word;
    const int next = upright ? GetFontMetrics(nullptr).height + 2 * Theme::TabPadding().cy : 0;
    robot_.Click(upright ? POINT{strip.left + 8, strip.top + next + next / 2}
                         : POINT{TabPoint(1).x, strip.top + 8});
    EXPECT_EQ(Tabs().GetCurrentIndex(), 1) << word;
    robot_.Key(upright ? VK_DOWN : VK_RIGHT);
    EXPECT_EQ(Tabs().GetCurrentIndex(), 2) << word;
  }
}

TEST_F(TabViewTest, CaptionsAreCutAt255Characters) {
  Open(ColumnForm(ThreePages()));
  Tabs().SetTabText(0, std::wstring(300, L'x'));
  EXPECT_EQ(Tabs().GetTabText(0).size(), 255u);
  Tabs().SetTabText(-1, L"no");
  Tabs().SetTabText(3, L"no");
  EXPECT_EQ(Tabs().GetItemCount(), 3);
}

TEST_F(TabViewTest, RightToLeftMirrorsTabsAndArrows) {
  Open(ColumnForm(ThreePages()));
  POINT leftToRight = TabPoint(0);
  CRect window;
  GetWindowRect(Strip(), &window);
  EXPECT_LT(leftToRight.x, (window.left + window.right) / 2);
  for (HWND mirrored : {Tabs().GetPlatformHandle(), Strip()})
    SetWindowLongPtrW(mirrored, GWL_EXSTYLE,
                      GetWindowLongPtrW(mirrored, GWL_EXSTYLE) | WS_EX_LAYOUTRTL);
  SetFocus(Strip());
  robot_.Key(VK_LEFT);
  EXPECT_EQ(Tabs().GetCurrentIndex(), 1) << "the next tab stands to the left";
  robot_.Click(TabPoint(2));
  EXPECT_EQ(Tabs().GetCurrentIndex(), 2);
  EXPECT_GT(TabPoint(0).x, (window.left + window.right) / 2);
}

}  // namespace
}  // namespace Wexa
