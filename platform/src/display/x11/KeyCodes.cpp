#include "KeyCodes.h"

#include <xkbcommon/xkbcommon-keysyms.h>

#include <algorithm>
#include <iterator>

#include "platform/VirtualKeys.h"

namespace display::x11 {
namespace {

constexpr int kFirstKeyCode = 8;    // the server's codes are the kernel's, shifted
constexpr int kLastSamePlace = 88;  // up to here the kernel's codes are the scan codes
constexpr int kNumLock = 69;

struct Place {
  int code;
  int scanCode;
  bool extended;
};

constexpr Place kPlaces[] = {
    {kNumLock, 0x45, true}, {89, 0x73, false},  {92, 0x79, false},  {93, 0x70, false},
    {94, 0x7B, false},      {96, 0x1C, true},   {97, 0x1D, true},   {98, 0x35, true},
    {99, 0x37, true},       {100, 0x38, true},  {102, 0x47, true},  {103, 0x48, true},
    {104, 0x49, true},      {105, 0x4B, true},  {106, 0x4D, true},  {107, 0x4F, true},
    {108, 0x50, true},      {109, 0x51, true},  {110, 0x52, true},  {111, 0x53, true},
    {117, 0x59, false},     {119, 0x45, false}, {121, 0x7E, false}, {124, 0x7D, false},
    {125, 0x5B, true},      {126, 0x5C, true},  {127, 0x5D, true},  {183, 0x64, false},
    {184, 0x65, false},     {185, 0x66, false}, {186, 0x67, false}, {187, 0x68, false},
    {188, 0x69, false},     {189, 0x6A, false}, {190, 0x6B, false}, {191, 0x6C, false},
    {192, 0x6D, false},     {193, 0x6E, false}, {194, 0x76, false}};

struct SymbolKey {
  xkb_keysym_t symbol;
  int virtualKey;
};

// Sorted by symbol.
constexpr SymbolKey kSymbols[] = {{XKB_KEY_space, VK_SPACE},
                                  {XKB_KEY_plus, VK_OEM_PLUS},
                                  {XKB_KEY_comma, VK_OEM_COMMA},
                                  {XKB_KEY_minus, VK_OEM_MINUS},
                                  {XKB_KEY_period, VK_OEM_PERIOD},
                                  {XKB_KEY_ISO_Left_Tab, VK_TAB},
                                  {XKB_KEY_BackSpace, VK_BACK},
                                  {XKB_KEY_Tab, VK_TAB},
                                  {XKB_KEY_Clear, VK_CLEAR},
                                  {XKB_KEY_Return, VK_RETURN},
                                  {XKB_KEY_Pause, VK_PAUSE},
                                  {XKB_KEY_Scroll_Lock, VK_SCROLL},
                                  {XKB_KEY_Sys_Req, VK_SNAPSHOT},
                                  {XKB_KEY_Escape, VK_ESCAPE},
                                  {XKB_KEY_Home, VK_HOME},
                                  {XKB_KEY_Left, VK_LEFT},
                                  {XKB_KEY_Up, VK_UP},
                                  {XKB_KEY_Right, VK_RIGHT},
                                  {XKB_KEY_Down, VK_DOWN},
                                  {XKB_KEY_Prior, VK_PRIOR},
                                  {XKB_KEY_Next, VK_NEXT},
                                  {XKB_KEY_End, VK_END},
                                  {XKB_KEY_Print, VK_SNAPSHOT},
                                  {XKB_KEY_Insert, VK_INSERT},
                                  {XKB_KEY_Menu, VK_APPS},
                                  {XKB_KEY_Break, VK_PAUSE},
                                  {XKB_KEY_Num_Lock, VK_NUMLOCK},
                                  {XKB_KEY_KP_Enter, VK_RETURN},
                                  {XKB_KEY_KP_Home, VK_HOME},
                                  {XKB_KEY_KP_Left, VK_LEFT},
                                  {XKB_KEY_KP_Up, VK_UP},
                                  {XKB_KEY_KP_Right, VK_RIGHT},
                                  {XKB_KEY_KP_Down, VK_DOWN},
                                  {XKB_KEY_KP_Prior, VK_PRIOR},
                                  {XKB_KEY_KP_Next, VK_NEXT},
                                  {XKB_KEY_KP_End, VK_END},
                                  {XKB_KEY_KP_Begin, VK_CLEAR},
                                  {XKB_KEY_KP_Insert, VK_INSERT},
                                  {XKB_KEY_KP_Delete, VK_DELETE},
                                  {XKB_KEY_KP_Multiply, VK_MULTIPLY},
                                  {XKB_KEY_KP_Add, VK_ADD},
                                  {XKB_KEY_KP_Separator, VK_SEPARATOR},
                                  {XKB_KEY_KP_Subtract, VK_SUBTRACT},
                                  {XKB_KEY_KP_Decimal, VK_DECIMAL},
                                  {XKB_KEY_KP_Divide, VK_DIVIDE},
                                  {XKB_KEY_Shift_L, VK_SHIFT},
                                  {XKB_KEY_Shift_R, VK_SHIFT},
                                  {XKB_KEY_Control_L, VK_CONTROL},
                                  {XKB_KEY_Control_R, VK_CONTROL},
                                  {XKB_KEY_Caps_Lock, VK_CAPITAL},
                                  {XKB_KEY_Alt_L, VK_MENU},
                                  {XKB_KEY_Alt_R, VK_MENU},
                                  {XKB_KEY_Super_L, VK_LWIN},
                                  {XKB_KEY_Super_R, VK_RWIN},
                                  {XKB_KEY_Delete, VK_DELETE}};
static_assert(std::ranges::is_sorted(kSymbols, {}, &SymbolKey::symbol));

// The virtual keys of the places 1 to 53 on a keyboard of the United States, for keys whose own
// symbol says nothing: layouts of other scripts, shifted digits, punctuation.
constexpr int kByPlace[] = {
    0,   0,        '1',          '2',           '3',      '4',          '5',
    '6', '7',      '8',          '9',           '0',      VK_OEM_MINUS, VK_OEM_PLUS,
    0,   0,        'Q',          'W',           'E',      'R',          'T',
    'Y', 'U',      'I',          'O',           'P',      VK_OEM_4,     VK_OEM_6,
    0,   0,        'A',          'S',           'D',      'F',          'G',
    'H', 'J',      'K',          'L',           VK_OEM_1, VK_OEM_7,     VK_OEM_3,
    0,   VK_OEM_5, 'Z',          'X',           'C',      'V',          'B',
    'N', 'M',      VK_OEM_COMMA, VK_OEM_PERIOD, VK_OEM_2};
constexpr int kDigitPlaces[] = {2, 11};
constexpr int k102ndKey = 86;

int BySymbol(xkb_keysym_t symbol) {
  if (symbol >= XKB_KEY_F1 && symbol <= XKB_KEY_F24) {
    return VK_F1 + static_cast<int>(symbol - XKB_KEY_F1);
  }
  if (symbol >= XKB_KEY_KP_0 && symbol <= XKB_KEY_KP_9) {
    return VK_NUMPAD0 + static_cast<int>(symbol - XKB_KEY_KP_0);
  }
  const auto* found = std::ranges::lower_bound(kSymbols, symbol, {}, &SymbolKey::symbol);
  return found != std::end(kSymbols) && found->symbol == symbol ? found->virtualKey : 0;
}

// Letters and digits are their own virtual keys.
int ByCharacter(xkb_keysym_t symbol) {
  if (symbol >= XKB_KEY_a && symbol <= XKB_KEY_z) return 'A' + static_cast<int>(symbol - XKB_KEY_a);
  if (symbol >= XKB_KEY_0 && symbol <= XKB_KEY_9) return '0' + static_cast<int>(symbol - XKB_KEY_0);
  return 0;
}

int ByPlace(int code) {
  if (code == k102ndKey) return VK_OEM_102;
  return code >= 0 && code < static_cast<int>(std::size(kByPlace)) ? kByPlace[code] : 0;
}

bool IsOnNumberPad(xkb_keysym_t symbol) {
  return symbol >= XKB_KEY_KP_Space && symbol <= XKB_KEY_KP_Equal;
}

}  // namespace

KeyPlace PlaceOf(xcb_keycode_t key) {
  const int code = key - kFirstKeyCode;
  const auto* found = std::ranges::find(kPlaces, code, &Place::code);
  if (found != std::end(kPlaces)) return {found->scanCode, found->extended};
  return {code > 0 && code <= kLastSamePlace ? code : 0, false};
}

int VirtualKeyOf(xkb_keysym_t base, xkb_keysym_t effective, xcb_keycode_t key) {
  const int code = key - kFirstKeyCode;
  if (const int letter = ByCharacter(base); letter >= 'A') return letter;
  if (code >= kDigitPlaces[0] && code <= kDigitPlaces[1]) return ByPlace(code);
  if (const int digit = ByCharacter(base)) return digit;
  const int symbol = BySymbol(IsOnNumberPad(base) ? effective : base);
  return symbol ? symbol : ByPlace(code);
}

bool IsLevelShift(xkb_keysym_t symbol) {
  return symbol == XKB_KEY_Mode_switch ||
         (symbol >= XKB_KEY_ISO_Lock && symbol <= XKB_KEY_ISO_Level5_Lock);
}

}  // namespace display::x11
