#include "window/WindowTest.h"

#include <algorithm>
#include <map>

#include "platform/Painter.h"
#include "window/WindowObject.h"

namespace {

constexpr wchar_t kClass[] = L"WindowTest";

const std::map<UINT, std::string>& MessageNames() {
  static const std::map<UINT, std::string> names{{WM_NCCREATE, "NCCREATE"},
                                                 {WM_NCCALCSIZE, "NCCALCSIZE"},
                                                 {WM_CREATE, "CREATE"},
                                                 {WM_SIZE, "SIZE"},
                                                 {WM_MOVE, "MOVE"},
                                                 {WM_SHOWWINDOW, "SHOWWINDOW"},
                                                 {WM_WINDOWPOSCHANGING, "POSCHANGING"},
                                                 {WM_WINDOWPOSCHANGED, "POSCHANGED"},
                                                 {WM_DESTROY, "DESTROY"},
                                                 {WM_NCDESTROY, "NCDESTROY"},
                                                 {WM_ACTIVATE, "ACTIVATE"},
                                                 {WM_NCACTIVATE, "NCACTIVATE"},
                                                 {WM_SETFOCUS, "SETFOCUS"},
                                                 {WM_KILLFOCUS, "KILLFOCUS"},
                                                 {WM_ENABLE, "ENABLE"},
                                                 {WM_CANCELMODE, "CANCELMODE"},
                                                 {WM_CAPTURECHANGED, "CAPTURECHANGED"},
                                                 {WM_PAINT, "PAINT"},
                                                 {WM_NCPAINT, "NCPAINT"},
                                                 {WM_ERASEBKGND, "ERASE"},
                                                 {WM_LBUTTONDOWN, "LDOWN"},
                                                 {WM_LBUTTONUP, "LUP"},
                                                 {WM_LBUTTONDBLCLK, "LDBL"},
                                                 {WM_MOUSEMOVE, "MOVE"},
                                                 {WM_MOUSELEAVE, "LEAVE"},
                                                 {WM_MOUSEHOVER, "HOVER"},
                                                 {WM_MOUSEWHEEL, "WHEEL"},
                                                 {WM_CONTEXTMENU, "CONTEXTMENU"},
                                                 {WM_KEYDOWN, "KEYDOWN"},
                                                 {WM_KEYUP, "KEYUP"},
                                                 {WM_SYSKEYDOWN, "SYSKEYDOWN"},
                                                 {WM_SYSCHAR, "SYSCHAR"},
                                                 {WM_CHAR, "CHAR"},
                                                 {WM_TIMER, "TIMER"},
                                                 {WM_CLOSE, "CLOSE"},
                                                 {WM_ENTERSIZEMOVE, "ENTERSIZEMOVE"},
                                                 {WM_EXITSIZEMOVE, "EXITSIZEMOVE"},
                                                 {WM_MOVING, "MOVING"},
                                                 {WM_SYSCOLORCHANGE, "SYSCOLORCHANGE"},
                                                 {WM_DPICHANGED, "DPICHANGED"},
                                                 {WM_USER, "USER"}};
  return names;
}

}  // namespace

std::ostream& operator<<(std::ostream& out, const RECT& rect) {
  return out << "(" << rect.left << "," << rect.top << " " << rect.right << "," << rect.bottom
             << ")";
}

bool operator==(const RECT& a, const RECT& b) {
  return EqualRect(&a, &b);
}

WindowTest* WindowTest::current_ = nullptr;

WindowTest::WindowTest() {
  current_ = this;
  display::SetCurrent(std::make_unique<display::OffscreenDisplay>(96));
  const WNDCLASSW description{kClass, Procedure, 8, nullptr};
  RegisterClassW(&description);
}

WindowTest::~WindowTest() {
  handler = nullptr;
  for (const HWND window : GetTopLevelWindows()) DestroyWindow(window);
  current_ = nullptr;
}

LRESULT WindowTest::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (current_) {
    WindowTest& test = *current_;
    if (std::find(test.watched_.begin(), test.watched_.end(), message) != test.watched_.end())
      test.notes_.push_back(MessageNames().at(message) + test.NameOf(window));
    const auto handler = test.handler;
    if (const auto answer = handler ? handler(window, message, wParam, lParam) : std::nullopt)
      return *answer;
  }
  return DefWindowProcW(window, message, wParam, lParam);
}

std::string WindowTest::NameOf(HWND window) const {
  for (const auto& [handle, name] : names_)
    if (handle == window) return "@" + name;
  return "";
}

HWND WindowTest::MakeWindow(DWORD style, CRect place, HWND owner, DWORD exStyle) {
  return CreateWindowExW(exStyle, kClass, L"window", style, place.left, place.top, place.Width(),
                         place.Height(), owner, nullptr, nullptr);
}

HWND WindowTest::MakeChild(HWND parent, CRect place, DWORD style, int id) {
  return CreateWindowExW(0, kClass, L"child", WS_CHILD | style, place.left, place.top,
                         place.Width(), place.Height(), parent,
                         reinterpret_cast<HMENU>(static_cast<std::intptr_t>(id)), nullptr);
}

HWND WindowTest::ShowWindowAt(CRect place, DWORD style) {
  const HWND window = MakeWindow(style, place);
  ShowWindow(window, SW_SHOW);
  Robot::PumpAll();
  TakePresented(window);
  notes_.clear();
  return window;
}

void WindowTest::Watch(std::initializer_list<UINT> messages) {
  watched_ = messages;
  notes_.clear();
}

void WindowTest::Name(HWND window, const std::string& name) {
  names_.emplace_back(window, name);
}

display::SurfaceId WindowTest::SurfaceOf(HWND window) {
  return core::Find(window)->top->surfaceId;
}

std::vector<CRect> WindowTest::TakePresented(HWND window) {
  const auto& presented = Robot::Screen().Presented(SurfaceOf(window));
  std::vector<CRect> rects(presented.begin(), presented.end());
  Robot::Screen().ForgetPresented();
  return rects;
}

CRect WindowTest::PlaceOf(HWND window) {
  CRect rect;
  GetWindowRect(window, &rect);
  return rect;
}
