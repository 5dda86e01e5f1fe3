#include "Event.h"

#include <map>
#include <set>

#include "KeyMap.h"
#include "platform/VirtualKeys.h"

namespace Wexa {
namespace {

using Key = Event::Key;

int KeyNumber(int virtualKey) {
  return static_cast<int>(KeyOfVirtualKey(virtualKey));
}

KeyEvent Pressed(int key, const std::wstring& text, int nativeKey) {
  return {Event::KeyPress, static_cast<Key>(key), Event::NoModifier, text, nativeKey};
}

// Runs of native codes and the first key of each.
const std::map<std::pair<int, int>, int> kRuns = {
    {{8, 8}, 1},       {{9, 9}, 2},       {{12, 13}, 3},     {{16, 21}, 5},     {{23, 25}, 12},
    {{27, 57}, 17},    {{65, 90}, 48},    {{91, 91}, 74},    {{92, 92}, 74},    {{93, 93}, 75},
    {{95, 95}, 76},    {{96, 135}, 77},   {{144, 145}, 117}, {{147, 148}, 119}, {{160, 183}, 121},
    {{186, 192}, 145}, {{219, 223}, 152}, {{225, 231}, 157}};

TEST(KeyMap, NumbersTheKeysDensely) {
  std::map<int, int> expected;
  for (const auto& [codes, key] : kRuns) {
    for (int code = codes.first; code <= codes.second; ++code)
      expected[code] = key + code - codes.first;
  }
  for (int code = -10; code < 400; ++code) {
    EXPECT_EQ(KeyNumber(code), expected.contains(code) ? expected[code] : 0) << code;
  }
}

TEST(KeyMap, NamesFitTheNativeKeys) {
  EXPECT_EQ(KeyOfVirtualKey(VK_ESCAPE), Key::Escape);
  EXPECT_EQ(KeyOfVirtualKey(VK_SPACE), Key::Space);
  EXPECT_EQ(KeyOfVirtualKey(VK_DELETE), Key::Delete);
  EXPECT_EQ(KeyOfVirtualKey('9'), Key::Digit9);
  EXPECT_EQ(KeyOfVirtualKey('Z'), Key::Z);
  EXPECT_EQ(KeyOfVirtualKey(VK_DIVIDE), Key::KeypadDivide);
  EXPECT_EQ(KeyOfVirtualKey(VK_F10), Key::F10);
  EXPECT_EQ(KeyOfVirtualKey(VK_F24), Key::F24);
  EXPECT_EQ(KeyOfVirtualKey(VK_RMENU), Key::RightAlt);
  EXPECT_EQ(KeyOfVirtualKey(VK_OEM_COMMA), Key::Comma);
  EXPECT_EQ(KeyOfVirtualKey(VK_OEM_102), Key::Oem102);
}

TEST(KeyEvent, SpecialKeysAreThese) {
  std::set<int> special = {2, 4, 5, 6, 9, 17, 125, 126};
  for (int key = 23; key <= 30; ++key) special.insert(key);
  for (int key = 34; key <= 36; ++key) special.insert(key);
  for (int key = 77; key <= 118; ++key) special.insert(key);
  special.erase(102);
  for (int key = -1; key <= 170; ++key) {
    EXPECT_EQ(Pressed(key, L"x", 0).IsSpecialKey(), special.contains(key)) << key;
  }
}

TEST(KeyEvent, TextComesFromTheNativeKey) {
  EXPECT_EQ(Pressed(48, L"", 65).GetText(), L"A");
  EXPECT_EQ(Pressed(48, L"\u00E9", 65).GetText(), L"\u00E9");
  EXPECT_EQ(Pressed(KeyNumber(VK_F10), L"", VK_F10).GetText(), std::wstring(1, 121));
  EXPECT_EQ(Pressed(KeyNumber(VK_F10 - 1), L"", VK_F10 - 1).GetText(), L"");
  EXPECT_EQ(Pressed(KeyNumber(VK_RETURN), L"\r", 13).GetText(), L"");
}

TEST(KeyEvent, CorrectedTextIsEmptyForSpecialKeys) {
  EXPECT_EQ(Pressed(48, L"", 65).CorrectedText(L"abc"), L"abc");
  EXPECT_EQ(Pressed(2, L"", 9).CorrectedText(L"abc"), L"");
}

TEST(Event, RecordsCarryTheirFields) {
  const MouseEvent mouse(Event::MouseMove, {-1, 2}, Event::LeftButton, Event::ShiftModifier);
  EXPECT_EQ(mouse.GetType(), 5);
  EXPECT_EQ(mouse.GetX(), -1);
  EXPECT_EQ(mouse.GetY(), 2);
  EXPECT_EQ(mouse.GetButtons(), 1u);
  EXPECT_EQ(mouse.GetModifiers(), 0x02000000u);
  const MouseWheelEvent wheel(-120, {3, 4}, 2, Event::ControlModifier);
  EXPECT_EQ(wheel.GetType(), 31);
  EXPECT_EQ(wheel.GetDelta(), -120);
  EXPECT_EQ(wheel.GetPos(), Point(3, 4));
  const DropEvent drop({1, 2}, {L"a", L"b"}, Event::Drop);
  EXPECT_EQ(drop.GetFilePaths().size(), 2u);
  EXPECT_EQ(ResizeEvent({1, 2}, {3, 4}).OldSize(), Size(1, 2));
  EXPECT_TRUE(FocusEvent(Event::FocusIn).GotFocus());
  EXPECT_TRUE(FocusEvent(Event::FocusOut).LostFocus());
}

TEST(Event, RecordsWithoutFieldsHaveTheirTypes) {
  EXPECT_EQ(ShowEvent().GetType(), 17);
  EXPECT_EQ(HideEvent().GetType(), 18);
  EXPECT_EQ(PaintEvent().GetType(), 12);
  EXPECT_EQ(PostPaintEvent().GetType(), 2000);
  EXPECT_EQ(MouseLeaveEvent().GetType(), 11);
  EXPECT_EQ(MovingEvent().GetType(), 1002);
  EXPECT_EQ(ContextMenuEvent().GetType(), 82);
  EXPECT_EQ(WindowActivateEvent().GetType(), 24);
  EXPECT_EQ(WindowDeactivateEvent().GetType(), 25);
  EXPECT_EQ(LayoutsUpdatedEvent().GetType(), 77);
  EXPECT_EQ(ApplicationPaletteChangeEvent().GetType(), 38);
  EXPECT_EQ(TimerEvent(3).GetType(), 1);
  EXPECT_EQ(DpiChangeEvent(120).GetType(), 1001);
}

}  // namespace
}  // namespace Wexa
