#include "Event.h"

#include <gtest/gtest.h>

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

// The key of each native code, 16 in a row.
constexpr int kKeys[256] = {
    0,   0,   0,   0,   0,   0,   0,   0,   1,   2,   0,   0,   3,   4,   0,   0,    // 00
    5,   6,   7,   8,   9,   10,  0,   12,  13,  14,  0,   17,  18,  19,  20,  21,   // 10
    22,  23,  24,  25,  26,  27,  28,  29,  30,  31,  32,  33,  34,  35,  36,  37,   // 20
    38,  39,  40,  41,  42,  43,  44,  45,  46,  47,  0,   0,   0,   0,   0,   0,    // 30
    0,   48,  49,  50,  51,  52,  53,  54,  55,  56,  57,  58,  59,  60,  61,  62,   // 40
    63,  64,  65,  66,  67,  68,  69,  70,  71,  72,  73,  74,  74,  75,  0,   76,   // 50
    77,  78,  79,  80,  81,  82,  83,  84,  85,  86,  87,  88,  89,  90,  91,  92,   // 60
    93,  94,  95,  96,  97,  98,  99,  100, 101, 102, 103, 104, 105, 106, 107, 108,  // 70
    109, 110, 111, 112, 113, 114, 115, 116, 0,   0,   0,   0,   0,   0,   0,   0,    // 80
    117, 118, 0,   119, 120, 0,   0,   0,   0,   0,   0,   0,   0,   0,   0,   0,    // 90
    121, 122, 123, 124, 125, 126, 127, 128, 129, 130, 131, 132, 133, 134, 135, 136,  // A0
    137, 138, 139, 140, 141, 142, 143, 144, 0,   0,   145, 146, 147, 148, 149, 150,  // B0
    151, 0,   0,   0,   0,   0,   0,   0,   0,   0,   0,   0,   0,   0,   0,   0,    // C0
    0,   0,   0,   0,   0,   0,   0,   0,   0,   0,   0,   152, 153, 154, 155, 156,  // D0
    0,   157, 158, 159, 160, 161, 162, 163, 0,   0,   0,   0,   0,   0,   0,   0,    // E0
};

TEST(KeyMap, NumbersTheKeysDensely) {
  for (int code = 0; code < 256; ++code) EXPECT_EQ(KeyNumber(code), kKeys[code]) << code;
  for (int code : {-1, 256, 0x10041}) EXPECT_EQ(KeyNumber(code), 0) << code;
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

TEST(Event, RecordsHaveTheirTypes) {
  const std::pair<Event::Type, int> types[] = {
      {TimerEvent(3).GetType(), 1},
      {MouseEvent(Event::MouseMove, {}, 0, 0).GetType(), 5},
      {MouseLeaveEvent().GetType(), 11},
      {PaintEvent().GetType(), 12},
      {ShowEvent().GetType(), 17},
      {HideEvent().GetType(), 18},
      {WindowActivateEvent().GetType(), 24},
      {WindowDeactivateEvent().GetType(), 25},
      {MouseWheelEvent(0, {}, 0, 0).GetType(), 31},
      {ApplicationPaletteChangeEvent().GetType(), 38},
      {LayoutsUpdatedEvent().GetType(), 77},
      {ContextMenuEvent().GetType(), 82},
      {DpiChangeEvent(120).GetType(), 1001},
      {MovingEvent().GetType(), 1002},
      {PostPaintEvent().GetType(), 2000}};
  for (const auto& [type, number] : types) EXPECT_EQ(type, number);
}

}  // namespace
}  // namespace Wexa
