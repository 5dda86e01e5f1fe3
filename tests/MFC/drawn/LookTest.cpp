// What the windows that draw themselves show of focus, mnemonics and corners, whoever draws them.

#include "Button.h"
#include "CheckBox.h"
#include "RadioButton.h"
#include "WexaConfig.h"
#include "platform/Theme.h"
#include "support/FormTest.h"
#include "support/PictureFiles.h"

namespace Wexa {
namespace {

using Picture = std::vector<std::uint32_t>;

Picture PictureOf(HWND window) {
  CRect client;
  GetClientRect(window, &client);
  Picture pixels;
  for (int y = 0; y < client.Height(); ++y)
    for (int x = 0; x < client.Width(); ++x) pixels.push_back(Robot::PixelAt(window, x, y));
  return pixels;
}

void StyleButton(BaseGUIObject& widget) {
  static_cast<Button&>(widget).SetStyle(Button::ButtonStyle::Framed);
}

void LoadRadioPicture(BaseGUIObject& widget) {
  const auto bytes = pictures::BmpFile(8, 8, pictures::Always(0x12C834));
  static_cast<RadioButton&>(widget).LoadPicture(bytes.data(), static_cast<int>(bytes.size()),
                                                WexaUtils::BMP, WexaUtils::KeepSize, 0);
}

struct Kind {
  std::string name;
  std::string className;
  std::string inner;
  void (*prepare)(BaseGUIObject&) = nullptr;
  bool hasMnemonic = true;
};

const std::string kText = TextXml("&amp;Hello");
const std::string kPage =
    "<widget class=\"QWidget\" name=\"page\"><attribute name=\"title\"><string>&amp;Hello</string>"
    "</attribute></widget>";

class LookTest : public FormTest, public testing::WithParamInterface<Kind> {
 protected:
  ~LookTest() override {
    SetCheckboxRadius(0);
    SetEditRadius(0);
  }

  // The window in the widget that takes the focus.
  HWND Target() {
    HWND window = Find<BaseGUIObject>(L"w").GetPlatformHandle();
    return GetParam().className == "QTabWidget" ? GetWindow(window, GW_CHILD) : window;
  }
  HWND Edit() { return Find<BaseGUIObject>(L"edit").GetPlatformHandle(); }
  Picture Look() {
    robot_.MoveTo(Edit());
    return PictureOf(Target());
  }
};

TEST_P(LookTest, CuesShowToUsersOfTheKeyboardOnly) {
  const Kind& kind = GetParam();
  Open(ColumnForm(WidgetItem("QLineEdit", "edit") + WidgetItem(kind.className, "w", kind.inner)));
  if (kind.prepare) kind.prepare(Find<BaseGUIObject>(L"w"));
  for (int i = 0; i < 2; ++i) robot_.ClickCentreOf(Target());  // a check box is as before
  const bool takesFocus = GetFocus() == Target();
  const Picture clicked = Look();
  robot_.ClickCentreOf(Edit());
  EXPECT_EQ(Look(), clicked) << "the mouse gave it the focus";
  robot_.Tab();
  const Picture focused = Look();
  robot_.ShiftTab();
  const Picture marked = Look();
  EXPECT_EQ(marked != clicked, kind.hasMnemonic) << "its mnemonic";
  EXPECT_EQ(focused != marked, takesFocus) << "its frame";
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, LookTest,
    testing::Values(Kind{"Button", "QPushButton", kText},
                    Kind{"StyledButton", "QPushButton", kText, StyleButton},
                    Kind{"CheckBox", "QCheckBox", kText},
                    Kind{"RadioButton", "QRadioButton", kText},
                    Kind{"RadioPicture", "QRadioButton", kText, LoadRadioPicture},
                    Kind{"Tabs", "QTabWidget", kPage},
                    Kind{"Group", "QGroupBox", PropertyXml("title", "string", "&amp;Hello")},
                    Kind{"Slider", "QSlider", "", nullptr, false}),
    [](const auto& kind) { return kind.param.name; });

class ButtonLookTest : public FormTest {};

TEST_F(ButtonLookTest, ADisabledFocusRectangleIsNotShownToTheKeyboardEither) {
  for (const auto style : {Button::ButtonStyle::Native, Button::ButtonStyle::Framed}) {
    Open(ColumnForm(WidgetItem("QLineEdit", "edit") + WidgetItem("QPushButton", "w", kText)));
    auto& button = Find<Button>(L"w");
    if (style != Button::ButtonStyle::Native) button.SetStyle(style);
    robot_.Tab();
    const Picture framed = PictureOf(button.GetPlatformHandle());
    button.DisableFocusRect(true);
    Robot::PumpAll();
    const Picture plain = PictureOf(button.GetPlatformHandle());
    EXPECT_NE(plain, framed);
    robot_.ShiftTab();
    robot_.Tab();
    EXPECT_EQ(PictureOf(button.GetPlatformHandle()), plain);
  }
}

TEST_F(ButtonLookTest, CornersAreAsRoundAsTheWidgetOrTheConfigurationSays) {
  const std::string form =
      ColumnForm(WidgetItem("QPushButton", "button", kText) +
                 WidgetItem("QCheckBox", "check", kText) + WidgetItem("QLineEdit", "edit"));
  const auto corner = [this](const wchar_t* name) {
    auto& widget = Find<BaseGUIObject>(name);
    const bool isCheck = widget.Type() == BaseGUIObject::GuiType::CheckBox;
    const int room = widget.GetClientRect().Height() - Theme::CheckSize();
    const int top = isCheck ? room / 2 : 0;
    return Robot::PixelAt(widget.GetPlatformHandle(), 0, top);
  };
  Open(form);
  const std::uint32_t face = Robot::PixelAt(dialog_->GetHandle(), 2, 2);
  for (const wchar_t* name : {L"button", L"check", L"edit"}) EXPECT_NE(corner(name), face);
  Find<Button>(L"button").SetRoundedButtonCornerRadius(6);
  Find<CheckBox>(L"check").SetBorderRadius(6);
  EXPECT_EQ(corner(L"button"), face);
  EXPECT_EQ(corner(L"check"), face);
  SetCheckboxRadius(6);
  SetEditRadius(6);
  Open(form);
  SetCheckboxRadius(0);
  SetEditRadius(0);
  EXPECT_EQ(corner(L"check"), face);
  EXPECT_EQ(corner(L"edit"), face);
}

}  // namespace
}  // namespace Wexa
