#include "Button.h"

#include "ButtonBox.h"
#include "CheckBox.h"
#include "Event.h"
#include "MFC/base/ControlIds.h"
#include "MFC/base/WidgetColors.h"
#include "RadioButton.h"
#include "platform/Classes.h"
#include "platform/ControlConstants.h"
#include "platform/VirtualKeys.h"
#include "support/FormTest.h"

namespace Wexa {
namespace {

std::string ButtonXml(const std::string& name, const std::string& more = "") {
  return TextWidget("QPushButton", name, name, more);
}

std::string RadioXml(const std::string& name, const std::string& group,
                     const std::string& more = "") {
  return TextWidget("QRadioButton", name, name, more + AttributeXml("buttonGroup", group));
}

class ButtonTest : public FormTest {
 protected:
  void Click(const wchar_t* name) {
    robot_.ClickCentreOf(Find<BaseGUIObject>(name).GetPlatformHandle());
  }
};

TEST_F(ButtonTest, AClickReachesClickedOnceOnRelease) {
  Open(ColumnForm(ButtonXml("ok") + ButtonXml("other")));
  int clicks = 0;
  Find<Button>(L"ok").Clicked.Connect([&] { ++clicks; });
  HWND window = Find<Button>(L"ok").GetPlatformHandle();
  robot_.Press(window);
  EXPECT_EQ(clicks, 0);
  robot_.Release();
  EXPECT_EQ(clicks, 1);
  robot_.Press(window);
  robot_.MoveTo(Find<Button>(L"other").GetPlatformHandle());
  robot_.Release();
  EXPECT_EQ(clicks, 1) << "released outside";
}

TEST_F(ButtonTest, SetCheckedMakesAToggleOnceInPlace) {
  Open(ColumnForm(ButtonXml("first") + ButtonXml("toggle")));
  auto& toggle = Find<Button>(L"toggle");
  Rect before = toggle.GetWindowRect();
  dialog_->SetFocusToCtrl(&toggle);
  int heard = 0;
  toggle.SetEventProcedure([&](BaseGUIObject*, Event*) { return ++heard == 0; });
  const auto destroyed = toggle.Destroyed.Connect([&](BaseGUIObject*) { ++heard; });
  toggle.SetChecked(true);
  EXPECT_EQ(heard, 0) << "the button is still the same";
  toggle.SetEventProcedure({});
  toggle.Destroyed.Disconnect(destroyed);
  EXPECT_EQ(dialog_->GetFocusedCtrlPtr(), &toggle);
  HWND window = toggle.GetPlatformHandle();
  toggle.SetChecked(true);
  EXPECT_EQ(toggle.GetPlatformHandle(), window);
  EXPECT_TRUE(toggle.GetCheck());
  EXPECT_EQ(toggle.GetWindowRect(), before);
  EXPECT_EQ(toggle.GetText(), L"toggle");
  int clicks = 0;
  toggle.Clicked.Connect([&] { ++clicks; });
  Click(L"toggle");
  EXPECT_FALSE(toggle.GetCheck());
  EXPECT_EQ(clicks, 1);
  robot_.Key(VK_TAB);
  EXPECT_EQ(dialog_->GetFocusedCtrlPtr(), &Find<Button>(L"first")) << "its place in the tab order";
}

TEST_F(ButtonTest, AnAdoptedNativeButtonGivesEvents) {
  Open(ColumnForm(ButtonXml("ok")));
  const auto native = std::make_shared<CButton>();
  native->Create(L"native", WS_VISIBLE, CRect(0, 0, 50, 20), CWnd::FromHandle(dialog_->GetHandle()),
                 77);
  int presses = 0;
  Button adopted(native);
  adopted.SetEventProcedure([&](BaseGUIObject*, Event* event) {
    presses += event->GetType() == Event::MousePress;
    return false;
  });
  robot_.ClickCentreOf(native->GetSafeHwnd());
  EXPECT_EQ(presses, 1);
}

// A toggle made by its form, before it is shown and after, native and drawn by the library.
TEST_F(ButtonTest, ATogglesCheckFollowsClicksInEveryStyleAndStays) {
  using Style = Button::ButtonStyle;
  struct Case {
    const char* properties;
    bool setBefore;
    std::vector<Style> stylesBefore;
    std::vector<Style> stylesAfter;
  };
  const std::string byForm = BoolXml("checkable") + BoolXml("checked");
  const Case kCases[] = {{byForm.c_str(), false, {}, {}},
                         {"", true, {}, {}},
                         {"", true, {Style::Framed}, {}},
                         {"", true, {}, {Style::Flat}},
                         {"", true, {Style::Framed}, {Style::Native}}};
  for (const Case& c : kCases) {
    dialog_ = Make(ColumnForm(ButtonXml("toggle", c.properties)));
    auto& toggle = Find<Button>(L"toggle");
    if (c.setBefore) toggle.SetChecked(true);
    for (const Style style : c.stylesBefore) toggle.SetStyle(style);
    EXPECT_TRUE(toggle.GetCheck()) << "before it has a window";
    dialog_->DoModeless(true);
    Robot::PumpAll();
    for (const Style style : c.stylesAfter) toggle.SetStyle(style);
    const auto* native = static_cast<CButton*>(toggle.GetPlatformWindow());
    EXPECT_EQ((native->GetButtonStyle() & BS_TYPEMASK) == BS_OWNERDRAW,
              toggle.GetStyle() != Style::Native);
    EXPECT_TRUE(toggle.GetCheck());
    Click(L"toggle");
    EXPECT_FALSE(toggle.GetCheck());
    Click(L"toggle");
    EXPECT_TRUE(toggle.GetCheck());
    dialog_->Done(Dialog::Accepted);
    EXPECT_TRUE(toggle.GetCheck()) << "kept";
    dialog_->DoModeless(true);
    EXPECT_TRUE(toggle.GetCheck()) << "shown again";
  }
}

TEST_F(ButtonTest, BorderColorsKeepTheirAlphaFromStyleFourOn) {
  Open(ColumnForm(ButtonXml("ok")));
  auto& button = Find<Button>(L"ok");
  RGBColor half(10, 20, 30, 128);
  button.SetStyle(Button::ButtonStyle::Framed);
  button.SetBorderColor(half, half, half);
  EXPECT_EQ(RGBColor(button.GetSkinManager().Slot(Slot::kButtonBorder)).GetA(), 255);
  button.SetStyle(Button::ButtonStyle::IconAndText);
  button.SetBorderColor(half, half, half);
  EXPECT_EQ(RGBColor(button.GetSkinManager().Slot(Slot::kButtonBorder)).GetA(), 128);
}

TEST_F(ButtonTest, ReturnOnALibraryDrawnButtonClicksIt) {
  Open(ColumnForm(ButtonXml("first") + ButtonXml("drawn")));
  auto& drawn = Find<Button>(L"drawn");
  drawn.SetStyle(Button::ButtonStyle::Framed);
  drawn.SetBackgroundColor(0x1E1EC8u, true);
  int clicks = 0;
  drawn.Clicked.Connect([&] { ++clicks; });
  dialog_->SetFocusToCtrl(&drawn);
  robot_.Key(VK_RETURN);
  EXPECT_EQ(clicks, 1);
  Size size = drawn.GetClientRect().GetSize();
  EXPECT_EQ(Robot::PixelAt(drawn.GetPlatformHandle(), 5, size.Height() / 2), 0xC81E1Eu);
}

TEST_F(ButtonTest, ABoxHasItsButtonsInTheFixedOrder) {
  Open(ColumnForm(ItemXml(WidgetXml(
      "QDialogButtonBox", "box",
      PropertyXml("standardButtons", "set", "QDialogButtonBox::Cancel|QDialogButtonBox::Ok")))));
  auto& box = Find<ButtonBox>(L"box");
  auto ok = box.GetButton(StandardButton::OK);
  auto cancel = box.GetButton(StandardButton::Cancel);
  ASSERT_TRUE(ok && cancel);
  EXPECT_EQ(box.GetButton(StandardButton::Yes), nullptr);
  EXPECT_LT(ok->GetWindowRect().Right(), cancel->GetWindowRect().Left());
  EXPECT_EQ(cancel->GetWindowRect().Right(), box.GetWindowRect().Right());
  EXPECT_EQ(ok->GetText(), L"OK");
  ok->SetText(L"A much longer caption than before");
  Robot::PumpAll();
  EXPECT_GT(ok->GetWindowRect().Width(), 150) << "the box lays out again";
}

TEST_F(ButtonTest, CheckBoxesKeepTheirStateThroughTheDialogsEnd) {
  Open(ColumnForm(TextWidget("QCheckBox", "check", "On")));
  auto& check = Find<CheckBox>(L"check");
  Click(L"check");
  EXPECT_EQ(check.GetCheck(), WexaUtils::Checked);
  check.SetBorderRadius(4);
  check.SetBorderRadius(-1);
  EXPECT_EQ(check.GetBorderRadius(), 4);
  check.SetTristate(true);
  Click(L"check");
  EXPECT_EQ(check.GetCheck(), WexaUtils::PartiallyChecked);
  dialog_->Done(Dialog::Accepted);
  EXPECT_EQ(check.GetPlatformHandle(), nullptr);
  EXPECT_EQ(check.GetCheck(), WexaUtils::PartiallyChecked);
  EXPECT_EQ(check.GetText(), L"On");
}

// -- Groups of radio buttons

class RadioGroupTest : public ButtonTest {
 protected:
  RadioButton& Radio(const wchar_t* name) { return Find<RadioButton>(name); }
  // The checked ones of all groups.
  std::wstring Checked() {
    std::wstring names;
    for (const wchar_t* name : {L"a1", L"a2", L"b1", L"b2"})
      if (Radio(name).Checked()) names += name + std::wstring(L" ");
    return names;
  }
  // Every GroupChanged and Clicked.
  void Listen() {
    for (const wchar_t* name : {L"a1", L"a2", L"b1", L"b2"}) {
      Radio(name).Clicked.Connect([this, name] { heard_ += name + std::wstring(L" "); });
      Radio(name).GroupChanged.Connect([this] { heard_ += L"changed "; });
    }
  }
  std::wstring HeardOfClick(const wchar_t* name) {
    heard_.clear();
    Click(name);
    return heard_;
  }

  static std::string Boxed(const std::string& items) {
    return ItemXml(
        WidgetXml("QGroupBox", "", "<layout class=\"QVBoxLayout\">" + items + "</layout>"));
  }
  // Two groups, both over two group boxes.
  static std::string Form() {
    return ColumnForm(Boxed(RadioXml("a1", "a") + RadioXml("b1", "b")) +
                      Boxed(RadioXml("a2", "a") + RadioXml("b2", "b")));
  }

 private:
  std::wstring heard_;
};

TEST_F(RadioGroupTest, OneOfAGroupIsCheckedWhereverItsButtonsStand) {
  Open(Form());
  Listen();
  EXPECT_EQ(Checked(), L"");
  EXPECT_EQ(HeardOfClick(L"b1"), L"b1 changed ");
  EXPECT_EQ(HeardOfClick(L"a1"), L"a1 changed ");
  EXPECT_EQ(HeardOfClick(L"a2"), L"a2 changed ");
  EXPECT_EQ(Checked(), L"a2 b1 ");
  EXPECT_EQ(HeardOfClick(L"a2"), L"a2 ") << "it was the checked one already";
}

TEST_F(RadioGroupTest, AClickAfterTheProgramsCheckIsToldAsAChange) {
  Open(Form());
  Listen();
  Click(L"a1");
  Radio(L"a2").SetCheck();
  EXPECT_EQ(Checked(), L"a2 ");
  EXPECT_EQ(HeardOfClick(L"a2"), L"a2 ");
  Radio(L"a1").SetCheck();
  EXPECT_EQ(HeardOfClick(L"a2"), L"a2 changed ");
}

TEST_F(RadioGroupTest, ChecksCountBeforeTheDialogIsShownAndAfterItsEnd) {
  dialog_ = Make(Form());
  Radio(L"a1").SetCheck();
  Radio(L"a2").SetCheck();
  Radio(L"b1").SetCheck();
  EXPECT_EQ(Checked(), L"a2 b1 ");
  for (int showing = 0; showing < 2; ++showing) {
    dialog_->DoModeless(true);
    EXPECT_EQ(Checked(), L"a2 b1 ") << showing;
    dialog_->Done(Dialog::Accepted);
    EXPECT_EQ(Checked(), L"a2 b1 ") << showing;
  }
}

TEST_F(RadioGroupTest, TheLastOneThatTheFormChecksIsChecked) {
  Open(ColumnForm(RadioXml("a1", "a", BoolXml("checked")) +
                  RadioXml("a2", "a", BoolXml("checked")) +
                  RadioXml("b1", "b", BoolXml("checked")) + RadioXml("b2", "b")));
  EXPECT_EQ(Checked(), L"a2 b1 ");
}

TEST_F(RadioGroupTest, IdsMayBeginAgainWithinAGroup) {
  constexpr UINT kWidgetIds = 6;  // each widget takes one before the groups take theirs
  while (NextControlId() != 65535 - kWidgetIds - 1) {
  }
  Open(Form());
  Listen();
  EXPECT_GT(Radio(L"a1").GetGroupInfo()->firstId, Radio(L"a2").GetGroupInfo()->lastId);
  EXPECT_EQ(HeardOfClick(L"a1"), L"a1 changed ");
  EXPECT_EQ(HeardOfClick(L"a2"), L"a2 changed ");
  EXPECT_EQ(Checked(), L"a2 ");
}

}  // namespace
}  // namespace Wexa
