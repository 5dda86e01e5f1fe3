#include "testing/Keyboard.h"

#include "platform/OffscreenScreen.h"
#include "platform/VirtualKeys.h"

namespace Wexa::Testing {

namespace {

std::u32string LetterText(int key) {
  const bool control = offscreen::IsKeyDown(VK_CONTROL);
  const bool upper = offscreen::IsKeyDown(VK_SHIFT);
  const int letter = control ? key - 'A' + 1 : upper ? key : key - 'A' + 'a';
  return {static_cast<char32_t>(letter)};
}

}  // namespace

KeyStroke StrokeOf(wchar_t c) {
  struct Pair {
    int virtualKey;
    const wchar_t* characters;  // plain and with Shift
  };
  constexpr Pair kPairs[] = {
      {'1', L"1!"},           {'2', L"2@"},      {'3', L"3#"},          {'4', L"4$"},
      {'5', L"5%"},           {'6', L"6^"},      {'7', L"7&"},          {'8', L"8*"},
      {'9', L"9("},           {'0', L"0)"},      {VK_OEM_MINUS, L"-_"}, {VK_OEM_PLUS, L"=+"},
      {VK_OEM_1, L";:"},      {VK_OEM_2, L"/?"}, {VK_OEM_3, L"`~"},     {VK_OEM_4, L"[{"},
      {VK_OEM_5, L"\\|"},     {VK_OEM_6, L"]}"}, {VK_OEM_7, L"'\""},    {VK_OEM_COMMA, L",<"},
      {VK_OEM_PERIOD, L".>"}, {VK_SPACE, L"  "}, {VK_RETURN, L"\r\n"},  {VK_TAB, L"\t\t"}};
  if (c >= L'a' && c <= L'z') return KeyStroke{static_cast<int>(c - L'a') + 'A', false};
  if (c >= L'A' && c <= L'Z') return KeyStroke{static_cast<int>(c), true};
  for (const Pair& pair : kPairs) {
    if (pair.characters[0] == c) return KeyStroke{pair.virtualKey, false};
    if (pair.characters[1] == c) return KeyStroke{pair.virtualKey, c != L'\n'};
  }
  constexpr int kPacket = 0xE7;
  return {kPacket, false};
}

std::u32string TextOf(int key) {
  if (key >= 'A' && key <= 'Z') return LetterText(key);
  switch (key) {
    case VK_RETURN: return U"\r";
    case VK_TAB: return U"\t";
    case VK_BACK: return offscreen::IsKeyDown(VK_CONTROL) ? U"\x7f" : U"\b";
    case VK_ESCAPE: return U"\x1b";
    case VK_SPACE: return U" ";
    default: break;
  }
  if (key >= '0' && key <= '9') return {static_cast<char32_t>(key)};
  return {};
}

}  // namespace Wexa::Testing
