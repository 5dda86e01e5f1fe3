#include "WexaUtils.h"
#include "platform/Classes.h"

// The utilities that need windows.

namespace {

// What the frame of a window without menu adds to an empty client area.
CRect FrameOf(unsigned long style) {
  CRect frame;
  AdjustWindowRectEx(&frame, static_cast<DWORD>(style), FALSE, 0);
  return frame;
}

}  // namespace

unsigned int WexaUtils::DialogFrameWidth(unsigned long style) {
  return static_cast<unsigned int>(FrameOf(style).Width());
}

unsigned int WexaUtils::DialogFrameHeight(unsigned long style) {
  return static_cast<unsigned int>(FrameOf(style).Height());
}

HWND WexaUtils::GetHandleFromWndPtr(CWnd* window) {
  return window ? window->GetSafeHwnd() : nullptr;
}

CWnd* WexaUtils::GetWndPtrFromHandle(HWND handle) {
  return handle ? CWnd::FromHandle(handle) : nullptr;
}

Wexa::Point WexaUtils::GetCursorPosition() {
  POINT position{};
  GetCursorPos(&position);
  return Wexa::Point(position);
}

namespace {

const wchar_t* CursorOf(WexaUtils::CursorTypes type) {
  switch (type) {
    case WexaUtils::Wait: return IDC_WAIT;
    case WexaUtils::IBeam: return IDC_IBEAM;
    case WexaUtils::Cross: return IDC_CROSS;
    case WexaUtils::UpArrow: return IDC_UPARROW;
    case WexaUtils::SizeCursor: return IDC_SIZE;
    case WexaUtils::SizeNWSE: return IDC_SIZENWSE;
    case WexaUtils::SizeNESW: return IDC_SIZENESW;
    case WexaUtils::SizeWE: return IDC_SIZEWE;
    case WexaUtils::SizeNS: return IDC_SIZENS;
    case WexaUtils::SizeAll: return IDC_SIZEALL;
    case WexaUtils::No: return IDC_NO;
    case WexaUtils::Hand: return IDC_HAND;
    default: return IDC_ARROW;
  }
}

}  // namespace

wchar_t* WexaUtils::GetPlattformCursorType(CursorTypes type) {
  return const_cast<wchar_t*>(CursorOf(type));  // an identifier: nothing is behind it
}
