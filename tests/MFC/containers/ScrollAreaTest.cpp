#include <algorithm>

#include "ScrollArea.h"

#include "platform/Theme.h"
#include "platform/VirtualKeys.h"
#include "support/FormTest.h"

namespace Wexa {
namespace {

std::string RowsXml(int count, const std::string& className) {
  std::string rows;
  for (int i = 0; i < count; ++i)
    rows += WidgetItem(className, "row" + std::to_string(i), TextXml("row " + std::to_string(i)));
  return ColumnXml(rows);
}

class ScrollAreaTest : public FormTest {
 protected:
  void OpenRows(int count, const std::string& className = "QPushButton",
                const std::string& properties = "", const std::string& below = "") {
    Open(ColumnForm(
        WidgetItem("QScrollArea", "area",
                   properties + WidgetXml("QWidget", "content", RowsXml(count, className))) +
            below,
        300, 200));
  }
  Rect Content() { return Find<BaseGUIObject>(L"content").GetWindowRect(); }
  Rect Area() { return Find<BaseGUIObject>(L"area").GetWindowRect(); }
  // How far the content is scrolled down.
  int Scrolled() { return Area().Top() + 1 - Content().Top(); }
  bool IsInside(const wchar_t* name) {
    Rect row = Find<BaseGUIObject>(name).GetWindowRect();
    return row.Top() >= Area().Top() && row.Bottom() <= Area().Bottom();
  }
  void Focus(const wchar_t* name) { dialog_->SetFocusToCtrl(&Find<BaseGUIObject>(name)); }
  POINT InVerticalBar(int fromTop) {
    return {Area().Right() - 1 - Theme::ScrollBarWidth() / 2, Area().Top() + fromTop};
  }
};

TEST_F(ScrollAreaTest, SmallContentFillsTheView) {
  OpenRows(2);
  const Rect content = Content();
  EXPECT_EQ(content.Width(), Area().Width() - 2);
  EXPECT_EQ(content.Height(), Area().Height() - 2);
  robot_.Wheel(-1);
  EXPECT_EQ(Scrolled(), 0);
}

TEST_F(ScrollAreaTest, LargeContentIsScrolledByTheBar) {
  OpenRows(20);
  const Rect content = Content();
  EXPECT_GT(content.Height(), 400);
  EXPECT_EQ(content.Width(), Area().Width() - 2 - Theme::ScrollBarWidth());
  robot_.Click(InVerticalBar(Area().Height() - 5));
  int line = Scrolled();
  EXPECT_GT(line, 0);
  robot_.Click(InVerticalBar(Area().Height() - Theme::ScrollBarWidth() - 6));
  EXPECT_GT(Scrolled(), line + 100) << "a page";
  robot_.Drag(InVerticalBar(Area().Height() / 2), InVerticalBar(2000));
  EXPECT_TRUE(IsInside(L"row19"));
  robot_.Press(InVerticalBar(5));
  robot_.AdvanceTime(3000);
  robot_.Release();
  EXPECT_EQ(Scrolled(), 0) << "a held arrow repeats";
}

TEST_F(ScrollAreaTest, WheelAndPageKeysScrollFromInside) {
  OpenRows(20);
  Focus(L"row0");
  robot_.Wheel(-1);
  int notch = Scrolled();
  EXPECT_GT(notch, 0);
  robot_.Key(VK_NEXT);
  EXPECT_GT(Scrolled(), notch + 50);
  robot_.Key(VK_PRIOR);
  EXPECT_EQ(Scrolled(), notch);
  robot_.Wheel(9);
  EXPECT_EQ(Scrolled(), 0);
}

TEST_F(ScrollAreaTest, TheWheelTurnsTheAreaUnderThePointer) {
  OpenRows(20, "QPushButton", "", WidgetItem("QLineEdit", "outside"));
  Focus(L"outside");
  robot_.MoveTo({Area().Left() + 20, Area().Top() + 20});
  robot_.Wheel(-1);
  EXPECT_GT(Scrolled(), 0);
  EXPECT_EQ(dialog_->GetFocusedCtrlPtr(), &Find<BaseGUIObject>(L"outside"));
  robot_.MoveTo({Area().Left() + 20, Area().Bottom() + 20});
  const int before = Scrolled();
  robot_.Wheel(-1);
  EXPECT_EQ(Scrolled(), before) << "the pointer is beside it";
}

TEST_F(ScrollAreaTest, AFormSaysWhenBarsShowAndWhetherThereIsAFrame) {
  const auto policy = [](const std::string& axis, const std::string& word) {
    return PropertyXml(axis + "ScrollBarPolicy", "enum", "Qt::ScrollBar" + word);
  };
  OpenRows(20, "QPushButton", policy("vertical", "AlwaysOff"));
  EXPECT_EQ(Content().Width(), Area().Width() - 2);
  Focus(L"row19");
  EXPECT_TRUE(IsInside(L"row19")) << "it scrolls without a bar";
  OpenRows(1, "QPushButton",
           policy("vertical", "AlwaysOn") + policy("horizontal", "AlwaysOn") +
               EnumXml("frameShape", "QFrame::NoFrame"));
  EXPECT_EQ(Content().Width(), Area().Width() - Theme::ScrollBarWidth());
  EXPECT_EQ(Content().Height(), Area().Height() - Theme::ScrollBarWidth());
}

TEST_F(ScrollAreaTest, AFormSaysWhetherTheContentFollowsTheView) {
  OpenRows(2, "QTextEdit", PropertyXml("widgetResizable", "bool", "true"));
  const auto& content = [this]() -> BaseGUIObject& { return Find<BaseGUIObject>(L"content"); };
  EXPECT_GT(content().IdealSize().Height(), Area().Height());
  EXPECT_EQ(Content().Height(), Area().Height() - 2) << "cut down to the view";
  dialog_->MoveWindow(0, 0, 150, 100, true);
  EXPECT_EQ(Content().Height(), content().MinimumIdealSize().Height());
  OpenRows(2, "QPushButton", PropertyXml("widgetResizable", "bool", "false"));
  EXPECT_EQ(Content().GetSize(), content().IdealSize());
}

TEST_F(ScrollAreaTest, TheAreaLikesToShowTheBarBesideItsContent) {
  OpenRows(20);
  const int content = Find<BaseGUIObject>(L"content").IdealSize().Width();
  EXPECT_EQ(Find<BaseGUIObject>(L"area").IdealSize().Width(),
            std::max(content + 2 + Theme::ScrollBarWidth(), 72));
}

TEST_F(ScrollAreaTest, WhatGetsTheFocusIsScrolledIntoView) {
  OpenRows(20);
  Focus(L"row19");
  EXPECT_TRUE(IsInside(L"row19"));
  EXPECT_FALSE(IsInside(L"row0"));
  robot_.Tab();
  EXPECT_TRUE(IsInside(L"row0"));
}

TEST_F(ScrollAreaTest, ContentWithoutTabStopsIsScrolledThroughItsBar) {
  OpenRows(20, "QLabel");
  robot_.Tab();
  robot_.Key(VK_DOWN);
  EXPECT_GT(Scrolled(), 0);
  robot_.Key(VK_END);
  EXPECT_TRUE(IsInside(L"row19"));
}

TEST_F(ScrollAreaTest, MoreRoomScrollsBack) {
  OpenRows(20);
  Focus(L"row19");
  dialog_->MoveWindow(0, 0, 400, 900, true);
  Robot::PumpAll();
  EXPECT_EQ(Scrolled(), 0);
  EXPECT_TRUE(IsInside(L"row0") && IsInside(L"row19"));
}

TEST_F(ScrollAreaTest, RowsThatGoMakeTheBarGo) {
  OpenRows(8);
  int withBar = Content().Width();
  for (const wchar_t* row : {L"row3", L"row4", L"row5", L"row6", L"row7"})
    Find<BaseGUIObject>(row).Show(false, true);
  Robot::PumpAll();
  EXPECT_EQ(Content().Width(), withBar + Theme::ScrollBarWidth());
}

}  // namespace
}  // namespace Wexa
