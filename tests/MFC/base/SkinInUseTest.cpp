#include <functional>
#include <map>
#include <set>

#include "Button.h"
#include "ButtonBox.h"
#include "Configuration.h"
#include "Event.h"
#include "Label.h"
#include "MFC/BaseImplMFC.h"
#include "MFC/base/WidgetColors.h"
#include "WexaConfig.h"
#include "platform/SystemColors.h"
#include "support/FormTest.h"
#include "window/PaintPass.h"

namespace Wexa {
namespace {

// 0x00RRGGBB, as pixels are.
std::uint32_t Pixel(COLORREF color) {
  return SwapRedAndBlue(static_cast<int>(color));
}

class SkinInUseTest : public FormTest {
 protected:
  ~SkinInUseTest() override {
    SetSystemScheme(SystemScheme::Light);
    WexaConfig::Instance().FollowSystemColors();
    WexaConfig::Instance().globalSkin.SetSkinMode(SkinMode::Default);
  }

  BaseGUIObject& Widget(const wchar_t* name) { return Find<BaseGUIObject>(name); }
  SkinManagerColor& SlotOf(const wchar_t* name, int slot) {
    return Widget(name).GetSkinManager().Slot(slot);
  }
  std::uint32_t FaceOf(const wchar_t* name) {
    return Robot::PixelAt(Widget(name).GetPlatformHandle(), 10, 3);
  }
  std::uint32_t DialogFace() { return Robot::PixelAt(dialog_->GetHandle(), 2, 2); }

  // Counts the paints of the widget.
  std::shared_ptr<int> CountPaints(BaseGUIObject& widget) {
    auto paints = std::make_shared<int>(0);
    widget.SetEventProcedure([paints](BaseGUIObject*, Event* event) {
      if (event->GetType() == Event::Paint) ++*paints;
      return false;
    });
    return paints;
  }
};

TEST_F(SkinInUseTest, AChangedSlotIsOnePaintPassOfItsWidgetOnly) {
  Open(ColumnForm(WidgetItem("QLineEdit", "a") + WidgetItem("QLineEdit", "b")));
  auto a = CountPaints(Widget(L"a"));
  auto b = CountPaints(Widget(L"b"));
  Robot::PumpAll();
  EXPECT_EQ(*a, 0);
  SlotOf(L"a", Slot::kInputFace) = 0x102030UL;
  SlotOf(L"a", Slot::kInputBorder) = 0x405060UL;
  EXPECT_TRUE(PaintNow());
  EXPECT_FALSE(core::IsPaintDue()) << "one pass shows it";
  EXPECT_EQ(*a, 1);
  EXPECT_EQ(*b, 0);
  EXPECT_EQ(FaceOf(L"a"), Pixel(0x102030));
  EXPECT_NE(FaceOf(L"b"), Pixel(0x102030));
}

// All slots have colours of their own: those that a widget shows tell what it paints with. Lines
// that are smoothed all along show none.
TEST_F(SkinInUseTest, WidgetsPaintWithTheirSlotsAndNoOther) {
  const std::string text = TextXml("HELLO");
  const std::string off = text + BoolXml("enabled", false);
  const std::string page =
      "<widget class=\"QWidget\" name=\"page\"><attribute name=\"title\"><string>HELLO</string>"
      "</attribute></widget>";
  struct Painted {
    std::string className;
    std::string name;
    std::string inner;
    std::set<int> slots;
  };
  const Painted all[] = {
      {"QLineEdit", "edit", text, {0, 2, 6, 95, 96}},
      {"QLineEdit", "edit off", off, {1, 5, 74}},
      {"QLineEdit", "field", text, {0, 2, 4}},
      {"QPushButton", "button", text, {20, 24, 32}},
      {"QPushButton", "button off", off, {21, 23, 25}},
      {"QCheckBox", "check", text, {28, 33, 36, 74}},
      {"QCheckBox", "check off", off, {34, 36, 42, 74}},
      {"QRadioButton", "radio", text, {33, 36, 74}},
      {"QLabel", "label", text, {74, 93}},
      {"QLabel", "label off", off, {13, 74}},
      {"QTabWidget", "tabs", page, {32, 74, 91, 93}},
      {"QScrollArea", "area", "", {74, 91}},
      {"QScrollBar", "bar", "", {45, 47}},
      {"QSlider", "slider", "", {4, 6, 74, 96}},
      {"Line", "line", "", {74, 87}},
  };
  std::string rows;
  for (const Painted& w : all) rows += WidgetItem(w.className, w.name, w.inner);
  Open(ColumnForm(rows, 100, 600));
  std::map<std::uint32_t, int> slotOf;
  for (int slot = 0; slot < SkinManager::kSlotCount; ++slot) {
    const COLORREF color = (static_cast<COLORREF>(slot) + 1) * 0x9E3779 & 0xFFFFFF;
    slotOf[Pixel(color)] = slot;
    dialog_->GetSkinManager().Slot(slot) = static_cast<unsigned long>(color);
  }
  Robot::PumpAll();
  for (const Painted& w : all) {
    auto& widget = Widget(std::wstring(w.name.begin(), w.name.end()).c_str());
    const Rect client = widget.GetClientRect();
    std::set<int> shown;
    for (int y = 0; y < client.Height(); ++y)
      for (int x = 0; x < client.Width(); ++x)
        if (const auto slot = slotOf.find(Robot::PixelAt(widget.GetPlatformHandle(), x, y));
            slot != slotOf.end())
          shown.insert(slot->second);
    EXPECT_EQ(shown, w.slots) << w.name;
  }
}

TEST_F(SkinInUseTest, ASlotOfTheDialogReachesChildrenInContainers) {
  Open(ColumnForm(WidgetItem("QGroupBox", "group", ColumnXml(WidgetItem("QLineEdit", "deep"))) +
                  WidgetItem("QLineEdit", "flat")));
  auto paints = CountPaints(Widget(L"deep"));
  dialog_->GetSkinManager().Slot(Slot::kInputFace) = 0x102030UL;
  Robot::PumpAll();
  EXPECT_EQ(FaceOf(L"deep"), Pixel(0x102030));
  EXPECT_EQ(FaceOf(L"flat"), Pixel(0x102030));
  EXPECT_EQ(*paints, 1);
}

TEST_F(SkinInUseTest, ColorsOfTheDialogReachItsWidgetsInEveryMode) {
  Open(ColumnForm(WidgetItem("QLineEdit", "a") +
                  WidgetItem("QDialogButtonBox", "box",
                             PropertyXml("standardButtons", "set", "QDialogButtonBox::Ok"))));
  const HWND button = Find<ButtonBox>(L"box").GetButton(StandardButton::OK)->GetPlatformHandle();
  unsigned long color = 0x102030;
  for (const SkinMode mode : {SkinMode::Dark, SkinMode::HCMDark, SkinMode::Default}) {
    ASSERT_TRUE(dialog_->SetSkinMode(mode, true));
    color += 0x101010;
    for (int slot : {Slot::kInputFace, Slot::kButtonFace})
      dialog_->GetSkinManager().Slot(slot) = color;
    Robot::PumpAll();
    EXPECT_EQ(FaceOf(L"a"), Pixel(static_cast<COLORREF>(color)));
    EXPECT_EQ(Robot::PixelAt(button, 10, 4), Pixel(static_cast<COLORREF>(color)));
  }
}

TEST_F(SkinInUseTest, SwitchingToDarkCostsOnePaintOfEachWidget) {
  const std::function<bool(SkinMode)> switches[] = {
      [this](SkinMode mode) { return dialog_->SetSkinMode(mode, true); }, SetGlobalSkinMode};
  for (const auto& switchTo : switches) {
    Open(ColumnForm(WidgetItem("QLineEdit", "a") + WidgetItem("QLineEdit", "b")));
    auto a = CountPaints(Widget(L"a"));
    auto dialog = CountPaints(*dialog_);
    EXPECT_TRUE(switchTo(SkinMode::Dark));
    Robot::PumpAll();
    EXPECT_EQ(*a, 1);
    EXPECT_EQ(*dialog, 1);
    EXPECT_EQ(FaceOf(L"a"), 0x333333u);
    EXPECT_EQ(DialogFace(), 0x4A4A4Au);
  }
}

TEST_F(SkinInUseTest, HighContrastComesAndGoesWhileADialogIsOpen) {
  SetGlobalSkinMode(SkinMode::Dark);
  Open(ColumnForm(WidgetItem("QLineEdit", "a") + WidgetItem("QLineEdit", "set")));
  SlotOf(L"set", Slot::kInputFace) = 0x102030UL;
  Robot::PumpAll();
  auto paints = CountPaints(Widget(L"a"));
  int told = 0;
  dialog_->SetEventProcedure([&](BaseGUIObject*, Event* event) {
    if (event->GetType() == Event::ApplicationPaletteChange) ++told;
    return false;
  });
  SetSystemScheme(SystemScheme::HighContrast);
  Robot::PumpAll();
  EXPECT_EQ(FaceOf(L"a"), Pixel(GetSysColor(COLOR_BTNFACE)));
  EXPECT_EQ(FaceOf(L"set"), Pixel(0x102030)) << "what was set stays";
  EXPECT_EQ(DialogFace(), Pixel(GetSysColor(COLOR_BTNFACE)));
  EXPECT_EQ(*paints, 1);
  EXPECT_EQ(told, 1);
  const auto other = Make(ColumnForm(""));
  EXPECT_EQ(other->GetSkinManager().GetSkinMode(), SkinMode::HCMDark) << "made after the change";
  SetSystemScheme(SystemScheme::Light);
  Robot::PumpAll();
  EXPECT_EQ(FaceOf(L"a"), 0x333333u) << "the dark skin is back";
}

TEST_F(SkinInUseTest, AGlobalCustomSkinShowsOverEveryMode) {
  SkinManager custom(SkinMode::Default);
  custom.Slot(Slot::kInputFace) = 0x102030UL;
  SetGlobalSkinMode(SkinMode::Dark);
  SetGlobalCustomSkin(custom);
  Open(ColumnForm(WidgetItem("QLineEdit", "a")));
  EXPECT_EQ(DialogFace(), Pixel(GetSysColor(COLOR_BTNFACE)));
  EXPECT_EQ(FaceOf(L"a"), Pixel(0x102030));
}

TEST_F(SkinInUseTest, TheDesktopMakesThemDarkUntilTheHostChooses) {
  SetSystemScheme(std::nullopt);
  PreferSystemScheme(std::nullopt);
  WexaConfig::Instance().isGlobalSkinChosen = false;
  using Look = std::pair<std::uint32_t, std::uint32_t>;  // of the face and of the caption
  const Look light{0xF0F0F0, 0xFFFFFF};
  const Look dark{0x4A4A4A, 0x202020};
  std::unique_ptr<Dialog> later;
  const auto look = [&] {
    Robot::PumpAll();
    later = Make(ColumnForm(WidgetItem("QLineEdit", "a")));
    later->DoModeless(true);
    Robot::PumpAll();
    const HWND window = later->GetHandle();
    EXPECT_EQ(DialogFace(), Robot::PixelAt(window, 2, 2)) << "an older one looks like a new one";
    return Look(DialogFace(), Robot::PixelAt(window, 100, -4));
  };
  Open(ColumnForm(WidgetItem("QLineEdit", "a")));
  EXPECT_EQ(look(), light);
  Robot::Screen().ChangeScheme(SystemScheme::Dark);
  EXPECT_EQ(look(), dark);
  SetGlobalSkinMode(SkinMode::Default);
  EXPECT_EQ(look(), light) << "on a dark desktop, too";
  Robot::Screen().ChangeScheme(SystemScheme::Light);
  SetGlobalSkinMode(SkinMode::Dark);
  EXPECT_EQ(look(), dark);
  Robot::Screen().ChangeScheme(SystemScheme::HighContrast);
  EXPECT_EQ(look(), Look(0, 0)) << "stands above all";
  Robot::Screen().ChangeScheme(SystemScheme::Light);
}

// -- Key maps

class KeyMapTest : public SkinInUseTest {
 protected:
  KeyMapTest() { WexaConfig::Instance().keyMapSkin = SkinManager(SkinMode::Default); }
  ~KeyMapTest() override { WexaConfig::Instance().keyMapSkin = SkinManager(SkinMode::Default); }
};

TEST_F(KeyMapTest, WithoutAKeyMapTheModeIsRefusedAndNothingChanges) {
  Open(ColumnForm(WidgetItem("QLineEdit", "a")));
  const auto before = std::pair(FaceOf(L"a"), DialogFace());
  EXPECT_FALSE(dialog_->SetSkinMode(SkinMode::XML, true));
  Robot::PumpAll();
  EXPECT_EQ(dialog_->GetSkinManager().GetSkinMode(), SkinMode::Default);
  EXPECT_EQ(std::pair(FaceOf(L"a"), DialogFace()), before);
}

TEST_F(KeyMapTest, BothMapsColorTheWidgetsOfADialog) {
  for (SkinMap map : {SkinMap::Inputs, SkinMap::Buttons}) {
    Open(ColumnForm(WidgetItem("QLineEdit", "a")));
    const unsigned long face = map == SkinMap::Inputs ? 0x102030 : 0x405060;
    InitSkinColorByMap(map, {{L"input_bg", face}, {L"Active_BG", face + 1}});
    ASSERT_TRUE(dialog_->SetSkinMode(SkinMode::XML, true));
    Robot::PumpAll();
    EXPECT_EQ(FaceOf(L"a"), Pixel(static_cast<COLORREF>(face)));
    EXPECT_EQ(DialogFace(), Pixel(static_cast<COLORREF>(face + 1)));
    InitSkinColorByMap(map, {{L"input_bg", face + 2}});
    Robot::PumpAll();
    EXPECT_EQ(FaceOf(L"a"), Pixel(static_cast<COLORREF>(face + 2))) << "a map that came later";
  }
}

TEST_F(KeyMapTest, HighContrastOverridesAKeyMapAndGivesItBack) {
  InitSkinColorByMap(SkinMap::Inputs, {{L"Input_BG", 0x102030UL}});
  Open(ColumnForm(WidgetItem("QLineEdit", "a")));
  ASSERT_TRUE(dialog_->SetSkinMode(SkinMode::XML, true));
  SetSystemScheme(SystemScheme::HighContrast);
  Robot::PumpAll();
  EXPECT_EQ(FaceOf(L"a"), Pixel(GetSysColor(COLOR_BTNFACE)));
  SetSystemScheme(SystemScheme::Light);
  Robot::PumpAll();
  EXPECT_EQ(FaceOf(L"a"), Pixel(0x102030));
  EXPECT_EQ(dialog_->GetSkinManager().GetSkinMode(), SkinMode::XML);
  ASSERT_TRUE(dialog_->SetSkinMode(SkinMode::Dark, true));
  Robot::PumpAll();
  EXPECT_EQ(FaceOf(L"a"), 0x333333u) << "a mode detaches from the map";
}

}  // namespace
}  // namespace Wexa
