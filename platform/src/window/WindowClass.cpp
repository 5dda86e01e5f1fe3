#include "window/WindowClass.h"

#include <algorithm>
#include <cwctype>

#include "window/WindowObject.h"

namespace core {
namespace {

using ClassMap = std::unordered_map<std::wstring, std::unique_ptr<WindowClass>>;

ClassMap& Classes() {
  static auto& classes = *new ClassMap;  // outlives static objects
  return classes;
}

std::wstring Folded(std::wstring name) {
  for (wchar_t& c : name) c = static_cast<wchar_t>(std::towlower(static_cast<wint_t>(c)));
  return name;
}

}  // namespace

const WindowClass* FindClass(const wchar_t* name) {
  if (!name) return nullptr;
  auto found = Classes().find(Folded(name));
  return found == Classes().end() ? nullptr : found->second.get();
}

}  // namespace core

ATOM RegisterClassW(const WNDCLASSW* description) {
  if (!description || !description->lpszClassName || !description->lpfnWndProc) return 0;
  const std::wstring name = description->lpszClassName;
  if (core::FindClass(name.c_str())) return 0;
  const int extra = std::max(description->cbWndExtra, 0);
  core::Classes()[core::Folded(name)] = std::make_unique<core::WindowClass>(
      core::WindowClass{name, description->lpfnWndProc, static_cast<std::size_t>(extra),
                        description->cursor ? description->cursor : IDC_ARROW, description->moves,
                        description->paintsFrame});
  return static_cast<ATOM>(0xC000 + core::Classes().size());
}

int GetClassNameW(HWND window, wchar_t* buffer, int count) {
  const core::Window* w = core::Find(window);
  if (!w || !buffer || count <= 0) return 0;
  const std::wstring& name = w->windowClass->name;
  const std::size_t length = name.copy(buffer, static_cast<std::size_t>(count) - 1);
  buffer[length] = 0;
  return static_cast<int>(length);
}
