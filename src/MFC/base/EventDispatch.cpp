#include "MFC/EventDispatch.h"

#include <memory>

#include "BaseGUIObject.h"
#include "ContextMenu.h"
#include "Event.h"
#include "KeyMap.h"
#include "MFC/BaseImplMFC.h"
#include "MFC/base/DeferredCalls.h"
#include "MFC/base/InputWatch.h"
#include "WexaUtils.h"
#include "layout/Layout.h"
#include "platform/PreTranslation.h"
#include "platform/SessionState.h"
#include "platform/Theme.h"
#include "platform/VirtualKeys.h"

namespace Wexa {

namespace {

constexpr LRESULT kHandled = 1;

// Shared by all widgets: a resize event reports the size of the event before it.
struct LastResize {
  Size size;
};

// Keys that are events by themselves; all others arrive as characters.
bool IsReportedKey(int virtualKey) {
  switch (virtualKey) {
    case VK_TAB:
    case VK_RETURN:
    case VK_SHIFT:
    case VK_CONTROL:
    case VK_MENU:
    case VK_CAPITAL:
    case VK_ESCAPE:
    case VK_SNAPSHOT:
    case VK_INSERT:
    case VK_DELETE:
    case VK_NUMLOCK:
    case VK_SCROLL: return true;
    default:
      return (virtualKey >= VK_PRIOR && virtualKey <= VK_DOWN) ||
             (virtualKey >= VK_NUMPAD0 && virtualKey <= VK_F24);
  }
}

// What the top-level window hears of.
bool IsInput(UINT message, WPARAM wParam) {
  switch (message) {
    case WM_MOUSEMOVE:
    case WM_MOUSELEAVE:
    case WM_LBUTTONDOWN:
    case WM_RBUTTONDOWN:
    case WM_MOUSEWHEEL:
    case WM_MOVING: return true;
    case WM_ACTIVATE: return LOWORD(wParam) == WA_INACTIVE;
    default: return false;
  }
}

}  // namespace

// One native message on its way to one widget. The widget may die in any handler; its window then
// no longer exists, and nothing of the widget is touched after that.
class EventDispatch {
 public:
  EventDispatch(HWND window, BaseGUIObject& widget, BaseImplMFC& impl, WPARAM wParam, LPARAM lParam)
      : window_(window), widget_(widget), impl_(impl), wParam_(wParam), lParam_(lParam) {}

  LRESULT Handle(UINT message) {
    if (auto* watch = IsInput(message, wParam_) ? Watch() : nullptr)
      watch->OnInputWithin(widget_, window_, message);
    switch (message) {
      case WM_SIZE: return Finish(message, OnSize());
      case WM_ACTIVATE: return Finish(message, OnActivate());
      case WM_SETFOCUS: return OnFocusGained();
      case WM_KILLFOCUS: return Finish(message, Offer(FocusEvent(Event::FocusOut)));
      case WM_SHOWWINDOW: return Finish(message, OfferVisibility(wParam_ != 0));
      case WM_WINDOWPOSCHANGED: return Finish(message, OnPositionChanged());
      case WM_CONTEXTMENU: return Finish(message, OnContextMenu());
      case WM_GETDLGCODE: return OnDialogCode();
      case WM_KEYDOWN: return Finish(message, OnKey(Event::KeyPress));
      case WM_KEYUP: return Finish(message, OnKey(Event::KeyRelease));
      case WM_SYSKEYDOWN: return Finish(message, OnSystemKey(Event::KeyPress));
      case WM_SYSKEYUP: return Finish(message, OnSystemKey(Event::KeyRelease));
      case WM_CHAR: return Finish(message, OnChar());
      case WM_TIMER: return Finish(message, Offer(TimerEvent(static_cast<int>(wParam_))));
      case WM_MOUSEMOVE: return Finish(message, OnMouseMove());
      case WM_LBUTTONDOWN: return Finish(message, OnLeftButton(message, Event::MousePress));
      case WM_LBUTTONUP: return Finish(message, OnLeftButton(message, Event::MouseRelease));
      case WM_RBUTTONDOWN: return Finish(message, OnMouse(Event::MousePress));
      case WM_RBUTTONUP: return Finish(message, OnMouse(Event::MouseRelease));
      case WM_LBUTTONDBLCLK: return Finish(message, OnMouse(Event::MouseDoubleClick));
      case WM_MOUSEHOVER: return Finish(message, OnMouse(Event::HoverEnter));
      case WM_MOUSELEAVE: return Finish(message, OnMouseLeave());
      case WM_MOUSEWHEEL: return Finish(message, OnWheel());
      case WM_MOVING: return Finish(message, Offer(MovingEvent()));
      case WM_DROPFILES: return Finish(message, OnDropFiles());
      case WM_DPICHANGED: return Finish(message, OnResolution());
      case WM_SYSCOLORCHANGE: return Finish(message, OnSystemColors());
      case WM_PAINT: return OnPaint();
      case kUpdateLayoutsMessage: return OnUpdateLayouts();
      case kDeferredCallMessage: RunDeferredCall(&widget_, wParam_); return Default(message);
      case WM_GETCONTROLPALETTE: return OnGetPalette();
      case WM_GETCONTROLSTATE: return OnGetState();
      case WM_PRETRANSLATE: return OnPreTranslate();
      case WM_DESTROY: return OnDestroy();
      case WM_NCDESTROY: return OnFinalDestroy();
      default: return Default(message);
    }
  }

 private:
  bool IsAlive() const { return IsWindow(window_); }
  InputWatch* Watch() { return dynamic_cast<InputWatch*>(widget_.GetTopLevelDlg()); }
  LRESULT Default(UINT message) { return DefSubclassProc(window_, message, wParam_, lParam_); }

  LRESULT Finish(UINT message, bool handled) {
    if (handled || !IsAlive()) return kHandled;
    return Default(message);
  }

  bool HasProcedure() const { return static_cast<bool>(*widget_.eventProcedure_); }

  template <typename Record>
  bool Offer(Record record) {
    if (!HasProcedure()) return false;
    const auto procedure = widget_.eventProcedure_;
    return (*procedure)(&widget_, &record);
  }

  // What holds the widget hears of the focus first, and may bring it into view.
  LRESULT OnFocusGained() {
    auto* holder = static_cast<BaseGUIObject*>(widget_.GetParent());
    while (holder && IsAlive()) {
      auto* next = static_cast<BaseGUIObject*>(holder->GetParent());
      const auto impl = holder->GetBaseImpl();
      static_cast<BaseImplMFC&>(*impl).OnFocusWithin(window_);
      holder = next;
    }
    if (!IsAlive()) return kHandled;
    return Finish(WM_SETFOCUS, Offer(FocusEvent(Event::FocusIn)));
  }

  bool IsEdit() const {
    using enum BaseGUIObject::GuiType;
    return widget_.Type() == Edit || widget_.Type() == MultiLineEdit || widget_.Type() == RichEdit;
  }

  // Keyboard input that text widgets take as characters.
  bool IsTextWidget() const {
    using enum BaseGUIObject::GuiType;
    if (IsEdit()) return true;
    switch (widget_.Type()) {
      case SpinEdit:
      case DoubleSpinEdit:
      case ListBox:
      case ComboBox: return true;
      default: return false;
    }
  }

  static Event::Modifier CurrentModifiers() {
    unsigned modifiers = 0;
    if (GetKeyState(VK_SHIFT) < 0) modifiers |= Event::ShiftModifier;
    if (GetKeyState(VK_CONTROL) < 0) modifiers |= Event::ControlModifier;
    if (GetKeyState(VK_MENU) < 0) modifiers |= Event::AltModifier;
    return static_cast<Event::Modifier>(modifiers);
  }

  bool OnSize() {
    Size size(LOWORD(lParam_), HIWORD(lParam_));
    if (Layout* layout = impl_.Links().layout) {
      ResizeEvent event(size, size);
      layout->WidgetEvent(&event);
    }
    if (!IsAlive() || !HasProcedure()) return false;
    const bool handled = Offer(ResizeEvent(SessionState<LastResize>().size, size));
    SessionState<LastResize>().size = size;
    return handled;
  }

  bool OnActivate() {
    return LOWORD(wParam_) == WA_INACTIVE ? Offer(WindowDeactivateEvent())
                                          : Offer(WindowActivateEvent());
  }

  bool OfferVisibility(bool shown) { return shown ? Offer(ShowEvent()) : Offer(HideEvent()); }

  bool OnPositionChanged() {
    const auto* change = reinterpret_cast<const WINDOWPOS*>(lParam_);
    const UINT flags = change ? change->flags : 0;
    bool handled = false;
    if (flags & SWP_SHOWWINDOW) handled = Offer(ShowEvent());
    if (IsAlive() && (flags & SWP_HIDEWINDOW)) handled = Offer(HideEvent()) || handled;
    return handled;
  }

  // A widget without a menu lets the request climb to its parent.
  bool OnContextMenu() {
    if (Offer(ContextMenuEvent())) return true;
    const auto menu = IsAlive() && !IsEdit() ? widget_.GetContextMenu() : nullptr;
    if (menu) menu->Show(true);
    return menu != nullptr;
  }

  // A Tab that the host handles stays with the widget: the focus does not move on.
  LRESULT OnDialogCode() {
    if (!AsksForTab()) return Default(WM_GETDLGCODE);
    KeyEvent tab(Event::KeyPress, Event::Key::Tab, CurrentModifiers(), L"", VK_TAB);
    if (Offer(tab) || !IsAlive()) return DLGC_WANTTAB;
    return Default(WM_GETDLGCODE);
  }

  bool AsksForTab() const {
    const auto* message = reinterpret_cast<const MSG*>(lParam_);
    return message && message->message == WM_KEYDOWN && message->wParam == VK_TAB;
  }

  bool OnKey(Event::Type type) {
    if (!HasProcedure()) return false;
    int virtualKey = static_cast<int>(wParam_);
    bool reported = virtualKey == VK_SPACE ? !IsTextWidget() : IsReportedKey(virtualKey);
    if (!reported) return false;
    return Offer(KeyEvent(type, KeyOfVirtualKey(virtualKey), CurrentModifiers(), L"", virtualKey));
  }

  bool OnSystemKey(Event::Type type) { return wParam_ == VK_MENU && OnKey(type); }

  bool OnChar() {
    if (!HasProcedure()) return false;
    auto character = static_cast<wchar_t>(wParam_);
    if (character == L' ' && !IsTextWidget()) return false;
    constexpr UINT kScanCodeToKey = 1;
    UINT scanCode = (static_cast<UINT>(lParam_) >> 16) & 0xFF;
    auto virtualKey = static_cast<int>(MapVirtualKeyW(scanCode, kScanCodeToKey));
    return Offer(KeyEvent(Event::KeyPress, KeyOfVirtualKey(virtualKey), CurrentModifiers(),
                          std::wstring(1, character), static_cast<int>(character)));
  }

  bool OnMouse(Event::Type type) {
    if (!HasProcedure()) return false;
    unsigned buttons = 0;
    unsigned modifiers = 0;
    WexaUtils::MapMouseKeys(static_cast<unsigned>(wParam_), buttons, modifiers);
    Point position(GET_X_LPARAM(lParam_), GET_Y_LPARAM(lParam_));
    return Offer(MouseEvent(type, position, buttons, modifiers));
  }

  bool OnMouseMove() {
    if (!impl_.IsMouseTracked()) impl_.SetTrackMouseEvent();
    return OnLeftButton(WM_MOUSEMOVE, Event::MouseMove);
  }

  bool OnLeftButton(UINT message, Event::Type type) {
    if (OnMouse(type)) return true;
    if (auto* watch = IsAlive() ? Watch() : nullptr)
      watch->OnUntakenInputWithin(widget_, window_, message);
    return false;
  }

  bool OnResolution() {
    impl_.OnResolutionChanged();
    return !IsAlive() || Offer(DpiChangeEvent(HIWORD(wParam_)));
  }

  bool OnSystemColors() {
    impl_.OnSystemColorsChanged();
    return Offer(ApplicationPaletteChangeEvent());
  }

  bool OnMouseLeave() {
    impl_.SetMouseTracked(false);
    return Offer(MouseLeaveEvent());
  }

  bool OnWheel() {
    if (!HasProcedure()) return false;
    unsigned buttons = 0;
    unsigned modifiers = 0;
    WexaUtils::MapMouseKeys(LOWORD(wParam_), buttons, modifiers);
    Point position(GET_X_LPARAM(lParam_), GET_Y_LPARAM(lParam_));
    return Offer(
        MouseWheelEvent(static_cast<short>(HIWORD(wParam_)), position, buttons, modifiers));
  }

  bool OnDropFiles() {
    constexpr UINT kCountFiles = 0xFFFFFFFF;
    constexpr UINT kLongestName = 520;
    auto drop = reinterpret_cast<HDROP>(wParam_);
    POINT point{};
    DragQueryPoint(drop, &point);
    std::vector<std::wstring> files;
    UINT count = DragQueryFileW(drop, kCountFiles, nullptr, 0);
    for (UINT i = 0; i < count; ++i) {
      std::wstring name(kLongestName + 1, L'\0');
      name.resize(DragQueryFileW(drop, i, name.data(), kLongestName + 1));
      files.push_back(std::move(name));
    }
    DragFinish(drop);
    Offer(DropEvent(Point(point.x, point.y), std::move(files), Event::Drop));
    return true;
  }

  // The system's paint message is followed by one of the library's own, which climbs the parents,
  // so that a host can draw over what its children painted.
  LRESULT OnPaint() {
    if (lParam_ == kPostPaint) return OnPostPaint();
    impl_.GetSkinManager().SetColorChangeFlag(false);  // what is painted is up to date
    bool handled = Offer(PaintEvent());
    if (!IsAlive()) return kHandled;
    LRESULT result = kHandled;
    if (handled) {
      CPaintDC validated(window_);
    } else {
      result = Default(WM_PAINT);
    }
    if (IsAlive()) SendMessageW(window_, WM_PAINT, 0, kPostPaint);
    return result;
  }

  LRESULT OnPostPaint() {
    Offer(PostPaintEvent());
    if (!IsAlive()) return kHandled;
    HWND parent = GetParent(window_);
    bool isChild = (GetWindowLongPtrW(window_, GWL_STYLE) & WS_CHILD) != 0;
    if (parent && isChild) SendMessageW(parent, WM_PAINT, 0, kPostPaint);
    return kHandled;
  }

  LRESULT OnUpdateLayouts() {
    impl_.PlaceAsRequested();
    if (!IsAlive()) return kHandled;
    return Offer(LayoutsUpdatedEvent()) ? kHandled : 0;
  }

  LRESULT OnGetPalette() {
    if (lParam_) impl_.ReadPalette(*reinterpret_cast<ControlPalette*>(lParam_));
    return kHandled;
  }

  LRESULT OnGetState() {
    const LRESULT result = Default(WM_GETCONTROLSTATE);
    if (lParam_) impl_.RefineState(*reinterpret_cast<ControlState*>(lParam_));
    return result;
  }

  LRESULT OnPreTranslate() {
    const auto procedure = widget_.PreTranslateMessage();  // it may replace itself
    if (!procedure) return PRETRANSLATE_GOON;
    switch (procedure(reinterpret_cast<MSG*>(lParam_))) {
      case 1: return PRETRANSLATE_USED;
      case 0: return PRETRANSLATE_DISPATCH;
      default: return PRETRANSLATE_GOON;
    }
  }

  LRESULT OnDestroy() {
    impl_.KeepState();
    widget_.Destroyed(&widget_);
    return Default(WM_DESTROY);
  }

  LRESULT OnFinalDestroy() {
    DetachWindowProcedure(widget_, window_);
    return Default(WM_NCDESTROY);
  }

  HWND window_;
  BaseGUIObject& widget_;
  BaseImplMFC& impl_;
  WPARAM wParam_;
  LPARAM lParam_;
};

LRESULT WexaWindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                            DWORD_PTR data) {
  auto& widget = *reinterpret_cast<BaseGUIObject*>(data);
  const auto impl = widget.GetBaseImpl();  // outlives a widget that dies in its own handler
  return EventDispatch(window, widget, static_cast<BaseImplMFC&>(*impl), wParam, lParam)
      .Handle(message);
}

void AttachWindowProcedure(BaseGUIObject& widget, HWND window) {
  SetWindowSubclass(window, WexaWindowProcedure, kWindowProcedureId,
                    reinterpret_cast<DWORD_PTR>(&widget), MoveInterest::SizeOnly);
  AddReceiver(&widget, window);
}

void DetachWindowProcedure(BaseGUIObject& widget, HWND window) {
  RemoveReceiver(&widget, window);
  RemoveWindowSubclass(window, WexaWindowProcedure, kWindowProcedureId);
}

}  // namespace Wexa
