#include "window/ScanCodes.h"

#include "platform/VirtualKeys.h"
#include "platform/Window.h"

namespace core {
namespace {

struct Place {
  int scanCode;
  int virtualKey;
};

// In the order of the scan codes. Keys that share a code differ in the extended flag: the first
// one listed is what the code alone means.
constexpr Place kPlaces[] = {{0x01, VK_ESCAPE},
                             {0x02, '1'},
                             {0x03, '2'},
                             {0x04, '3'},
                             {0x05, '4'},
                             {0x06, '5'},
                             {0x07, '6'},
                             {0x08, '7'},
                             {0x09, '8'},
                             {0x0A, '9'},
                             {0x0B, '0'},
                             {0x0C, VK_OEM_MINUS},
                             {0x0D, VK_OEM_PLUS},
                             {0x0E, VK_BACK},
                             {0x0F, VK_TAB},
                             {0x10, 'Q'},
                             {0x11, 'W'},
                             {0x12, 'E'},
                             {0x13, 'R'},
                             {0x14, 'T'},
                             {0x15, 'Y'},
                             {0x16, 'U'},
                             {0x17, 'I'},
                             {0x18, 'O'},
                             {0x19, 'P'},
                             {0x1A, VK_OEM_4},
                             {0x1B, VK_OEM_6},
                             {0x1C, VK_RETURN},
                             {0x1D, VK_LCONTROL},
                             {0x1D, VK_RCONTROL},
                             {0x1E, 'A'},
                             {0x1F, 'S'},
                             {0x20, 'D'},
                             {0x21, 'F'},
                             {0x22, 'G'},
                             {0x23, 'H'},
                             {0x24, 'J'},
                             {0x25, 'K'},
                             {0x26, 'L'},
                             {0x27, VK_OEM_1},
                             {0x28, VK_OEM_7},
                             {0x29, VK_OEM_3},
                             {0x2A, VK_LSHIFT},
                             {0x2B, VK_OEM_5},
                             {0x2C, 'Z'},
                             {0x2D, 'X'},
                             {0x2E, 'C'},
                             {0x2F, 'V'},
                             {0x30, 'B'},
                             {0x31, 'N'},
                             {0x32, 'M'},
                             {0x33, VK_OEM_COMMA},
                             {0x34, VK_OEM_PERIOD},
                             {0x35, VK_OEM_2},
                             {0x35, VK_DIVIDE},
                             {0x36, VK_RSHIFT},
                             {0x37, VK_MULTIPLY},
                             {0x38, VK_LMENU},
                             {0x38, VK_RMENU},
                             {0x39, VK_SPACE},
                             {0x3A, VK_CAPITAL},
                             {0x3B, VK_F1},
                             {0x3C, VK_F1 + 1},
                             {0x3D, VK_F1 + 2},
                             {0x3E, VK_F4},
                             {0x3F, VK_F1 + 4},
                             {0x40, VK_F1 + 5},
                             {0x41, VK_F1 + 6},
                             {0x42, VK_F1 + 7},
                             {0x43, VK_F1 + 8},
                             {0x44, VK_F10},
                             {0x45, VK_NUMLOCK},
                             {0x45, VK_PAUSE},
                             {0x46, VK_SCROLL},
                             {0x47, VK_HOME},
                             {0x47, VK_NUMPAD0 + 7},
                             {0x48, VK_UP},
                             {0x48, VK_NUMPAD0 + 8},
                             {0x49, VK_PRIOR},
                             {0x49, VK_NUMPAD9},
                             {0x4A, VK_SUBTRACT},
                             {0x4B, VK_LEFT},
                             {0x4B, VK_NUMPAD0 + 4},
                             {0x4C, VK_CLEAR},
                             {0x4C, VK_NUMPAD0 + 5},
                             {0x4D, VK_RIGHT},
                             {0x4D, VK_NUMPAD0 + 6},
                             {0x4E, VK_ADD},
                             {0x4F, VK_END},
                             {0x4F, VK_NUMPAD0 + 1},
                             {0x50, VK_DOWN},
                             {0x50, VK_NUMPAD0 + 2},
                             {0x51, VK_NEXT},
                             {0x51, VK_NUMPAD0 + 3},
                             {0x52, VK_INSERT},
                             {0x52, VK_NUMPAD0},
                             {0x53, VK_DELETE},
                             {0x53, VK_DECIMAL},
                             {0x54, VK_SNAPSHOT},
                             {0x56, VK_OEM_102},
                             {0x57, VK_F10 + 1},
                             {0x58, VK_F10 + 2},
                             {0x5B, VK_LWIN},
                             {0x5C, VK_RWIN},
                             {0x5D, VK_APPS}};

constexpr int SideOf(int virtualKey) {
  switch (virtualKey) {
    case VK_SHIFT: return VK_LSHIFT;
    case VK_CONTROL: return VK_LCONTROL;
    case VK_MENU: return VK_LMENU;
    default: return virtualKey;
  }
}

}  // namespace

int ScanCodeOf(int virtualKey) {
  const int key = SideOf(virtualKey);
  for (const Place& place : kPlaces)
    if (place.virtualKey == key) return place.scanCode;
  return 0;
}

int KeyOfScanCode(int scanCode) {
  for (const Place& place : kPlaces)
    if (place.scanCode == scanCode) return place.virtualKey;
  return 0;
}

int EitherSide(int virtualKey) {
  switch (virtualKey) {
    case VK_LSHIFT:
    case VK_RSHIFT: return VK_SHIFT;
    case VK_LCONTROL:
    case VK_RCONTROL: return VK_CONTROL;
    case VK_LMENU:
    case VK_RMENU: return VK_MENU;
    default: return virtualKey;
  }
}

}  // namespace core

UINT MapVirtualKeyW(UINT code, UINT mapType) {
  constexpr UINT kToScanCode = 0, kToKey = 1, kToSidedKey = 3;
  const int value = static_cast<int>(code);
  switch (mapType) {
    case kToScanCode: return static_cast<UINT>(core::ScanCodeOf(value));
    case kToKey: return static_cast<UINT>(core::EitherSide(core::KeyOfScanCode(value)));
    case kToSidedKey: return static_cast<UINT>(core::KeyOfScanCode(value));
    default: return 0;
  }
}
