#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "Point.h"
#include "Size.h"
#include "WexaExport.h"

namespace Wexa {

// What happened to a widget, as its event procedure gets it. The type tells which class the record
// is of; records are plain values. Positions are pixels.
class WEXA_API Event {
 public:
  enum Type : std::int32_t {
    Timer = 1,
    MousePress = 2,
    MouseRelease = 3,
    MouseDoubleClick = 4,
    MouseMove = 5,
    KeyPress = 6,
    KeyRelease = 7,
    FocusIn = 8,
    FocusOut = 9,
    MouseLeave = 11,
    Paint = 12,
    Resize = 14,
    Show = 17,
    Hide = 18,
    WindowActivate = 24,
    WindowDeactivate = 25,
    Wheel = 31,
    ApplicationPaletteChange = 38,  // the desktop's colours: dialogs get it
    Drop = 63,
    LayoutRequest = 76,
    LayoutsUpdated = 77,
    ContextMenu = 82,
    HoverEnter = 127,
    DpiChange = 1001,
    Moving = 1002,
    PostPaint = 2000
  };

  // Bits of the modifiers.
  enum Modifier : std::uint32_t {
    NoModifier = 0,
    ShiftModifier = 0x02000000,
    ControlModifier = 0x04000000,
    AltModifier = 0x08000000
  };

  // Bits of the mouse buttons.
  enum MouseButton : std::uint32_t {
    LeftButton = 1,
    RightButton = 2,
    MiddleButton = 4,
    ExtraButton1 = 8,
    ExtraButton2 = 16
  };

  // The keys of the keyboard, numbered densely; Oem keys carry what the keyboard's layout gives
  // them.
  enum class Key : std::int32_t {
    None,
    Backspace = 1,
    Tab,
    Clear,
    Return,
    Shift,
    Control,
    Alt,
    Pause,
    CapsLock,
    Kana,
    Junja = 12,
    Final,
    Hanja,
    Escape = 17,
    Convert,
    NonConvert,
    Accept,
    ModeChange,
    Space,
    PageUp,
    PageDown,
    End,
    Home,
    Left,
    Up,
    Right,
    Down,
    Select,
    Print,
    Execute,
    PrintScreen,
    Insert,
    Delete,
    Help,
    Digit0,
    Digit1,
    Digit2,
    Digit3,
    Digit4,
    Digit5,
    Digit6,
    Digit7,
    Digit8,
    Digit9,
    A = 48,
    B,
    C,
    D,
    E,
    F,
    G,
    H,
    I,
    J,
    K,
    L,
    M,
    N,
    O,
    P,
    Q,
    R,
    S,
    T,
    U,
    V,
    W,
    X,
    Y,
    Z,
    Windows = 74,
    Applications,
    Sleep,
    Keypad0 = 77,
    Keypad1,
    Keypad2,
    Keypad3,
    Keypad4,
    Keypad5,
    Keypad6,
    Keypad7,
    Keypad8,
    Keypad9,
    KeypadMultiply,
    KeypadAdd,
    KeypadSeparator,
    KeypadSubtract,
    KeypadDecimal,
    KeypadDivide,
    F1 = 93,
    F2,
    F3,
    F4,
    F5,
    F6,
    F7,
    F8,
    F9,
    F10,
    F11,
    F12,
    F13,
    F14,
    F15,
    F16,
    F17,
    F18,
    F19,
    F20,
    F21,
    F22,
    F23,
    F24,
    NumLock = 117,
    ScrollLock,
    Oem93,
    Oem94,
    LeftShift = 121,
    RightShift,
    LeftControl,
    RightControl,
    LeftAlt,
    RightAlt,
    BrowserBack,
    BrowserForward,
    BrowserRefresh,
    BrowserStop,
    BrowserSearch,
    BrowserFavorites,
    BrowserHome,
    VolumeMute,
    VolumeDown,
    VolumeUp,
    MediaNext,
    MediaPrevious,
    MediaStop,
    MediaPlayPause,
    LaunchMail,
    LaunchMedia,
    LaunchApplication1,
    LaunchApplication2,
    Oem1 = 145,
    Plus,
    Comma,
    Minus,
    Period,
    Oem2,
    Oem3,
    Oem4 = 152,
    Oem5,
    Oem6,
    Oem7,
    Oem8,
    OemE1 = 157,
    Oem102,
    IcoHelp,
    Ico00,
    Process,
    IcoClear,
    Packet
  };

  explicit Event(Type type) : type_(type) {}

  Type GetType() const { return type_; }

 private:
  Type type_;
};

// -- Mouse
// -----------------------------------------------------------------------------------------

// Presses, releases, double clicks, moves and hovering, in client coordinates. Modifiers are those
// of Shift and Control.
class WEXA_API MouseEvent : public Event {
 public:
  MouseEvent(Type type, const Point& position, unsigned int buttons, unsigned int modifiers)
      : Event(type), position_(position), buttons_(buttons), modifiers_(modifiers) {}

  int GetX() const { return position_.x; }
  int GetY() const { return position_.y; }
  unsigned int GetButtons() const { return buttons_; }
  unsigned int GetModifiers() const { return modifiers_; }

 private:
  Point position_;
  unsigned int buttons_;
  unsigned int modifiers_;
};

// In screen coordinates. The delta is 120 for one notch away from the user.
class WEXA_API MouseWheelEvent : public Event {
 public:
  MouseWheelEvent(short delta, Point position, unsigned int buttons, unsigned int modifiers)
      : Event(Wheel),
        delta_(delta),
        position_(position),
        buttons_(buttons),
        modifiers_(modifiers) {}

  short GetDelta() const { return delta_; }
  Point GetPos() const { return position_; }
  unsigned int GetButtons() const { return buttons_; }
  unsigned int GetModifiers() const { return modifiers_; }

 private:
  short delta_;
  Point position_;
  unsigned int buttons_;
  unsigned int modifiers_;
};

// -- Keyboard and focus
// ----------------------------------------------------------------------------

class WEXA_API KeyEvent : public Event {
 public:
  // An empty text becomes the character with the native code. Special keys have no text.
  KeyEvent(Type type, Key key, Modifier modifier, const std::wstring& text, int nativeKey);

  Key GetKey() const { return key_; }
  Modifier GetModifier() const { return modifier_; }
  const std::wstring& GetText() const { return text_; }
  // The virtual-key code, or the character's code for a character.
  int GetKeyOrigPlatform() const { return nativeKey_; }
  // Whether the key acts rather than types: navigation, function and keypad keys, most modifiers.
  bool IsSpecialKey() const;
  // The text, or nothing for a special key.
  std::wstring CorrectedText(const std::wstring& text) const;

 private:
  Key key_;
  Modifier modifier_;
  int nativeKey_;
  std::wstring text_;
};

class WEXA_API FocusEvent : public Event {
 public:
  explicit FocusEvent(Type type) : Event(type) {}

  bool GotFocus() const { return GetType() == FocusIn; }
  bool LostFocus() const { return GetType() == FocusOut; }
};

// -- Window
// ----------------------------------------------------------------------------------------

class WEXA_API ResizeEvent : public Event {
 public:
  ResizeEvent(const Size& oldSize, const Size& newSize)
      : Event(Resize), oldSize_(oldSize), newSize_(newSize) {}

  // The new size of the last resize event sent to any widget.
  const Size& OldSize() const { return oldSize_; }
  const Size& NewSize() const { return newSize_; }

 private:
  Size oldSize_;
  Size newSize_;
};

class WEXA_API DpiChangeEvent : public Event {
 public:
  explicit DpiChangeEvent(int dpi) : Event(DpiChange), dpi_(dpi) {}

  int GetCurDpi() const { return dpi_; }

 private:
  int dpi_;
};

// Files dropped on the widget, in client coordinates.
class WEXA_API DropEvent : public Event {
 public:
  DropEvent(Point position, std::vector<std::wstring> filePaths, Type type)
      : Event(type), position_(position), filePaths_(std::move(filePaths)) {}

  Point GetPosition() const { return position_; }
  const std::vector<std::wstring>& GetFilePaths() const { return filePaths_; }

 private:
  Point position_;
  std::vector<std::wstring> filePaths_;
};

class WEXA_API TimerEvent : public Event {
 public:
  explicit TimerEvent(int id) : Event(Timer), id_(id) {}

  int TimerId() const { return id_; }

 private:
  int id_;
};

// -- Events that carry nothing but their type
// ------------------------------------------------------

struct WEXA_API ShowEvent : Event {
  ShowEvent() : Event(Show) {}
};
struct WEXA_API HideEvent : Event {
  HideEvent() : Event(Hide) {}
};
struct WEXA_API PaintEvent : Event {
  PaintEvent() : Event(Paint) {}
};
struct WEXA_API PostPaintEvent : Event {
  PostPaintEvent() : Event(PostPaint) {}
};
struct WEXA_API MouseLeaveEvent : Event {
  MouseLeaveEvent() : Event(MouseLeave) {}
};
struct WEXA_API MovingEvent : Event {
  MovingEvent() : Event(Moving) {}
};
struct WEXA_API ContextMenuEvent : Event {
  ContextMenuEvent() : Event(ContextMenu) {}
};
struct WEXA_API WindowActivateEvent : Event {
  WindowActivateEvent() : Event(WindowActivate) {}
};
struct WEXA_API WindowDeactivateEvent : Event {
  WindowDeactivateEvent() : Event(WindowDeactivate) {}
};
struct WEXA_API LayoutsUpdatedEvent : Event {
  LayoutsUpdatedEvent() : Event(LayoutsUpdated) {}
};
struct WEXA_API ApplicationPaletteChangeEvent : Event {
  ApplicationPaletteChangeEvent() : Event(ApplicationPaletteChange) {}
};

}  // namespace Wexa
