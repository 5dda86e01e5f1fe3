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

const wchar_t* WexaUtils::GetPlattformCursorType(CursorTypes type) {
  switch (type) {
    case Wait: return IDC_WAIT;
    case IBeam: return IDC_IBEAM;
    case Cross: return IDC_CROSS;
    case UpArrow: return IDC_UPARROW;
    case SizeCursor: return IDC_SIZE;
    case SizeNWSE: return IDC_SIZENWSE;
    case SizeNESW: return IDC_SIZENESW;
    case SizeWE: return IDC_SIZEWE;
    case SizeNS: return IDC_SIZENS;
    case SizeAll: return IDC_SIZEALL;
    case No: return IDC_NO;
    case Hand: return IDC_HAND;
    default: return IDC_ARROW;
  }
}
