#include "Edit.h"

#include "MFC/BaseImplMFC.h"
#include "platform/ControlConstants.h"
#include "platform/Theme.h"
#include "support/FormTest.h"

namespace Wexa {
namespace {

class EditTest : public FormTest {
 protected:
  EditTest() { Open(ColumnForm(ItemXml(WidgetXml("QLineEdit", "edit")))); }
  Edit& Subject() { return Find<Edit>(L"edit"); }
  DWORD Style(int index = GWL_STYLE) {
    return static_cast<DWORD>(GetWindowLongPtrW(Subject().GetPlatformHandle(), index));
  }
};

TEST_F(EditTest, WhatTheUserEditsIsToldBeforeTheChange) {
  std::wstring told;
  Subject().TextChanged.Connect(
      [&](const std::wstring& text) { told += L"changed " + text + L";"; });
  Subject().TextEdited.Connect([&](const std::wstring& text) { told += L"edited " + text + L";"; });
  Subject().SetText(L"a");
  EXPECT_EQ(told, L"changed a;");
  told.clear();
  robot_.ClickCentreOf(Subject().GetPlatformHandle());
  robot_.Type(L"b");
  EXPECT_EQ(told, L"edited ab;changed ab;");
  Subject().TextEdited.Connect([&](const std::wstring&) { dialog_.reset(); });
  robot_.Type(L"c");
  EXPECT_EQ(told, L"edited ab;changed ab;edited abc;") << "the edit is gone";
}

TEST_F(EditTest, AlignmentsBeyondTheCentreAreRight) {
  const std::pair<int, DWORD> all[] = {{0, ES_LEFT},  {1, ES_CENTER}, {2, ES_RIGHT},
                                       {3, ES_RIGHT}, {4, ES_RIGHT},  {-1, ES_RIGHT}};
  for (const auto& [value, style] : all) {
    Subject().SetTextAlign(static_cast<Edit::TextAlign>(value));
    EXPECT_EQ(Style() & (ES_CENTER | ES_RIGHT), style) << value;
  }
}

TEST_F(EditTest, TheFrameGoesAndDoesNotComeBack) {
  HWND window = Subject().GetPlatformHandle();
  SetWindowLongPtrW(window, GWL_EXSTYLE, Style(GWL_EXSTYLE) | WS_EX_CLIENTEDGE);
  const std::uint32_t face = Robot::PixelAt(window, 3, 3);
  EXPECT_NE(Robot::PixelAt(window, 0, 3), face);
  for (const bool framed : {false, true}) {
    Subject().SetFrameMode(framed);
    Robot::PumpAll();
    EXPECT_EQ(Style(GWL_EXSTYLE) & WS_EX_CLIENTEDGE, 0u);
    EXPECT_EQ(Robot::PixelAt(window, 0, 3), face);
    EXPECT_EQ(Subject().GetFrameMode(), framed);
  }
}

TEST_F(EditTest, ItsIdealSizeHoldsSeventeenLetters) {
  const SIZE x = GetTextExtent(ImplOf(&Subject())->Font(), L"x");
  EXPECT_EQ(Subject().IdealSize(), Size(17 * x.cx + 8, x.cy + 2 * Theme::FieldPadding().cy));
  SendMessageW(Subject().GetPlatformHandle(), EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN,
               MAKELPARAM(3, 5));
  EXPECT_EQ(Subject().IdealSize().Width(), 17 * x.cx + 16);
  Subject().SetMinimumSize({400, 50});
  EXPECT_EQ(Subject().IdealSize(), Size(400, 50));
}

}  // namespace
}  // namespace Wexa
