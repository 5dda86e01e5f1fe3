#include "MFC/DrawnWnd.h"

#include "MFC/EventDispatch.h"

namespace Wexa {

namespace {

constexpr wchar_t kWindowClass[] = L"WexaDrawn";

void RegisterOnce() {
  static const WNDCLASSW description{kWindowClass, DefWindowProcW, 0, nullptr,
                                     MoveInterest::SizeOnly};
  static const ATOM registered = RegisterClassW(&description);
  static_cast<void>(registered);
}

}  // namespace

BOOL DrawnWnd::Create(const std::wstring& text, DWORD style, const RECT& rect, CWnd* parent,
                      UINT id, DWORD exStyle) {
  RegisterOnce();
  return CreateEx(exStyle, kWindowClass, text.c_str(), style, rect, parent, id);
}

// The notice that follows a paint climbs the parents; what is no widget only passes it on.
LRESULT DrawnWnd::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  const bool isPostPaint = message == WM_PAINT && lParam == kPostPaint;
  const bool asksForColors = message == WM_GETCONTROLPALETTE;
  if (asksForColors && fillPalette) {
    if (lParam) fillPalette(*reinterpret_cast<ControlPalette*>(lParam));
    return TRUE;
  }
  if (isPostPaint || asksForColors) return GetParent()->SendMessage(message, wParam, lParam);
  return SelfDrawn::Handle(message, wParam, lParam);
}

}  // namespace Wexa
