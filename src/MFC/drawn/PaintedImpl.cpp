#include "MFC/PaintedImpl.h"

#include "BaseGUIObject.h"
#include "MFC/EventDispatch.h"
#include "platform/Painter.h"
#include "platform/Theme.h"

namespace Wexa {

namespace {

constexpr wchar_t kWindowClass[] = L"WexaWidget";

void RegisterOnce() {
  static const WNDCLASSW description{kWindowClass, DefWindowProcW, 0, nullptr,
                                     MoveInterest::SizeOnly};
  static const ATOM registered = RegisterClassW(&description);
  static_cast<void>(registered);
}

}  // namespace

BOOL PaintedWnd::Create(const CreationRecord& record, DWORD exStyle, const CRect& rect,
                        CWnd* parent) {
  RegisterOnce();
  return CreateEx(exStyle, kWindowClass, record.text.c_str(), record.style, rect, parent,
                  record.controlId);
}

LRESULT PaintedWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_PAINT && lParam != kPostPaint) {
    OnPaint();
    return 0;
  }
  LRESULT result = 0;
  if (impl_.OnMessage(message, wParam, lParam, result)) return result;
  return CWnd::WindowProc(message, wParam, lParam);
}

BOOL PaintedWnd::PreTranslateMessage(MSG* message) {
  BaseGUIObject* owner = impl_.Owner();
  const auto held = owner ? owner->GetBaseImpl() : nullptr;  // a handler may destroy the widget
  return impl_.OnPreTranslate(*message);
}

void PaintedWnd::OnPaint() {
  CPaintDC dc(m_hWnd);
  Painter painter(dc);
  ControlPalette palette = SystemPalette();
  SendMessage(WM_GETCONTROLPALETTE, 0, reinterpret_cast<LPARAM>(&palette));
  impl_.Paint(painter, GetClientRect(), palette);
}

PaintedImpl::PaintedImpl(BaseGUIObject* owner) : BaseImplMFC(owner), window_(*this) {}
PaintedImpl::~PaintedImpl() = default;

bool PaintedImpl::CreateNative(CWnd* parent) {
  return window_.Create(Creation(), ExtendedStyle(), ScaledRect(), parent);
}

}  // namespace Wexa
