// Dialogs from right to left: keys, scroll bars and alignment are mirrored, texts are not.

#include "RangeControl.h"
#include "WexaConfig.h"
#include "platform/ControlConstants.h"
#include "platform/Theme.h"
#include "platform/Window.h"
#include "support/DialogTest.h"

namespace Wexa {
namespace {

class RightToLeftTest : public DialogTest {
 protected:
  RightToLeftTest() { SetLayoutRTL(true); }
  ~RightToLeftTest() override { SetLayoutRTL(false); }

  void OpenRow(const std::string& items) { Open(FormXml(RowXml(items), 300, 60)); }
  // Places on the screen.
  CRect Area(const wchar_t* name) {
    CRect place;
    ::GetWindowRect(Find<BaseGUIObject>(name).GetPlatformHandle(), &place);
    return place;
  }
  int CaretX() {
    HWND edit = ::GetFocus();
    DWORD caret = 0;
    SendMessageW(edit, EM_GETSEL, 0, reinterpret_cast<LPARAM>(&caret));
    POINT place{GET_X_LPARAM(SendMessageW(edit, EM_POSFROMCHAR, caret, 0)), 0};
    ::ClientToScreen(edit, &place);
    return place.x;
  }
};

TEST_F(RightToLeftTest, TheCaretGoesToTheSideItsKeyPointsTo) {
  for (const std::string text : {"abcdef", "אבגדהו", "ab אבג 12"}) {
    OpenRow(TextWidget("QLineEdit", "edit", text));
    Focus(L"edit");
    for (std::size_t i = 0; i < text.size(); ++i) robot_.Key(VK_LEFT);
    const int left = CaretX();
    int before = left;
    int steps = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
      robot_.Key(VK_RIGHT);
      EXPECT_GE(CaretX(), before) << text;
      steps += CaretX() > before;
      before = CaretX();
    }
    EXPECT_GE(steps, 6) << text;
    EXPECT_GT(before, Area(L"edit").right - 10) << "a text begins at the right";
    robot_.Key(VK_LEFT);
    EXPECT_LT(CaretX(), before) << text;
  }
}

TEST_F(RightToLeftTest, APressSetsTheCaretBesideTheCharacterThatIsSeenThere) {
  OpenRow(TextWidget("QLineEdit", "edit", "אבגדהו"));
  Focus(L"edit");
  robot_.Key(VK_HOME);
  EXPECT_GT(CaretX(), Area(L"edit").right - 10);
  robot_.Key(VK_END);
  const int end = CaretX();
  robot_.Click({Area(L"edit").right - 3, Area(L"edit").top + 10});
  EXPECT_GT(CaretX(), end + 20);
  robot_.Type(L"x");
  EXPECT_EQ(GetWindowTextString(::GetFocus()), L"xאבגדהו");
}

TEST_F(RightToLeftTest, ArrowsChooseTheRadioButtonBeside) {
  OpenRow(TextWidget("QRadioButton", "a", "a") + TextWidget("QRadioButton", "b", "b"));
  robot_.ClickCentreOf(Find<BaseGUIObject>(L"a").GetPlatformHandle());
  robot_.Key(VK_LEFT);
  EXPECT_EQ(FocusedName(), L"b");
  EXPECT_LT(Area(L"b").right, Area(L"a").left + 1);
}

TEST_F(RightToLeftTest, HorizontalRangesGrowToTheLeft) {
  for (const std::string className : {"QScrollBar", "QSlider"}) {
    OpenRow(WidgetItem(className, "range", EnumXml("orientation", "Qt::Horizontal")));
    auto& range = Find<RangeControl>(L"range");
    SetFocus(range.GetPlatformHandle());
    robot_.Key(VK_LEFT);
    EXPECT_EQ(range.GetValue(), 1) << className;
    robot_.Key(VK_RIGHT);
    EXPECT_EQ(range.GetValue(), 0) << className;
    const CRect area = Area(L"range");
    const LONG middle = (area.top + area.bottom) / 2;
    robot_.Click({area.left + 3, middle});
    EXPECT_GT(range.GetValue(), 0) << className;
    robot_.Click({area.right - 3, middle});
    EXPECT_EQ(range.GetValue(), 0) << className;
  }
}

TEST_F(RightToLeftTest, AreasAreScrolledByABarAtTheirLeft) {
  std::string rows;
  for (int i = 0; i < 20; ++i) rows += PushButton("row" + std::to_string(i));
  Open(ColumnForm(
      WidgetItem("QScrollArea", "area", WidgetXml("QWidget", "content", ColumnXml(rows)))));
  const int bar = Theme::ScrollBarWidth();
  const CRect area = Area(L"area");
  const CRect content = Area(L"content");
  EXPECT_EQ(content.left, area.left + 1 + bar);
  EXPECT_EQ(content.right, area.right - 1);
  robot_.Click({area.left + 1 + bar / 2, area.bottom - 5});
  EXPECT_LT(Area(L"content").top, content.top);
}

TEST_F(RightToLeftTest, LeadingItemsStandAtTheRightOfTheirCells) {
  Open(ColumnForm(ItemXml(WidgetXml("QLabel", "leading"), "alignment=\"Qt::AlignLeft\"") +
                  ItemXml(WidgetXml("QPushButton", "trailing"), "alignment=\"Qt::AlignTrailing\"") +
                  ItemXml(WidgetXml("QLineEdit", "wide"))));
  EXPECT_EQ(Area(L"leading").right, Area(L"wide").right);
  EXPECT_EQ(Area(L"trailing").left, Area(L"wide").left);
  EXPECT_LT(Area(L"trailing").Width(), Area(L"wide").Width());
}

TEST_F(RightToLeftTest, TextsBeginAtTheRight) {
  for (const std::string className : {"QLabel", "QLineEdit", "QCheckBox"}) {
    OpenRow(TextWidget(className, "widget", "שלום"));
    HWND window = Find<BaseGUIObject>(L"widget").GetPlatformHandle();
    const CRect area = Area(L"widget");
    // Client coordinates begin at the right as well.
    const RECT start{4, 4, 60, area.Height() - 4};
    const RECT end{area.Width() / 2, 4, area.Width() - 4, area.Height() - 4};
    EXPECT_TRUE(Robot::HasInk(window, start)) << className;
    EXPECT_FALSE(Robot::HasInk(window, end)) << className;
  }
}

}  // namespace
}  // namespace Wexa
