#include "Event.h"

namespace Wexa {

namespace {

using Key = Event::Key;

struct KeySpan {
  Key first;
  Key last;
};

constexpr KeySpan kSpecialKeys[] = {
    {Key::Tab, Key::Tab},       {Key::Return, Key::Control}, {Key::CapsLock, Key::CapsLock},
    {Key::Escape, Key::Escape}, {Key::PageUp, Key::Down},    {Key::PrintScreen, Key::Delete},
    {Key::Keypad0, Key::F9},    {Key::F11, Key::ScrollLock}, {Key::LeftAlt, Key::RightAlt},
};

}  // namespace

KeyEvent::KeyEvent(Type type, Key key, Modifier modifier, const std::wstring& text, int nativeKey)
    : Event(type),
      key_(key),
      modifier_(modifier),
      nativeKey_(nativeKey),
      text_(text.empty() ? std::wstring(1, static_cast<wchar_t>(nativeKey)) : text) {
  if (IsSpecialKey()) text_.clear();
}

bool KeyEvent::IsSpecialKey() const {
  for (const auto& range : kSpecialKeys) {
    if (key_ >= range.first && key_ <= range.last) return true;
  }
  return false;
}

std::wstring KeyEvent::CorrectedText(const std::wstring& text) const {
  return IsSpecialKey() ? std::wstring() : text;
}

}  // namespace Wexa
