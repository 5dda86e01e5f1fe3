#pragma once

// A robot that uses a program's dialogs as a person would, for the program's tests. It works on the
// screen in memory: set WEXA_DISPLAY=offscreen before the first window. Link Wexa::Testing, or
// pkg-config's wexa-testing.

#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

#include "../Dialog.h"
#include "../Utf8.h"

enum class SystemScheme;
namespace offscreen {
enum class MouseButton;
}

namespace Wexa::Testing {

using offscreen::MouseButton;

// The dialog's widget of this name and type. Throws std::runtime_error naming what is not there.
//   Find<Wexa::Edit>(dialog, L"nameEdit").GetText()
template <typename Widget = BaseGUIObject>
Widget& Find(Dialog& dialog, const std::wstring& name) {
  auto* widget = dynamic_cast<Widget*>(dialog.GetElementByName(name).get());
  if (!widget) throw std::runtime_error(NarrowUtf8(name) + ": no widget of this type.");
  return *widget;
}

// Every step puts input where a real screen's comes from and lets all of it be handled, so that
// focus, capture, tab order and event procedures count as they do for a person: what is disabled or
// covered is not clicked. Places are pixels of the screen; a window or a widget stands for its
// centre. All steps but PumpAll throw std::logic_error on a real screen.
class Robot {
 public:
  // Handles everything that waits; time stands still. Exceptions of handlers pass through.
  static void PumpAll();
  // Lets so much time go by, millisecond by millisecond: timers, hovering and tips come in their
  // order.
  void AdvanceTime(std::uint64_t milliseconds);

  // On the screen; {0, 0} without a window.
  static POINT CentreOf(HWND window);
  // Throws std::runtime_error naming a widget that is not shown.
  static POINT CentreOf(BaseGUIObject& widget) {
    if (!widget.IsVisible()) throw std::runtime_error(NarrowUtf8(widget.GetName()) + " is hidden.");
    return CentreOf(widget.GetPlatformHandle());
  }

  // -- Mouse

  void MoveTo(POINT screen);
  // Moves there and presses; Release lets go where the pointer is then. The left button, or one
  // that platform/OffscreenScreen.h names.
  void Press(POINT screen, MouseButton button = MouseButton{});
  void Release(MouseButton button = MouseButton{});
  // Long enough after the last click not to be a double click with it.
  void Click(POINT screen);
  void DoubleClick(POINT screen);
  void RightClick(POINT screen);
  // Presses, moves on the way and at the end, releases there.
  void Drag(POINT from, POINT to);
  // Turns the wheel where the pointer is; positive away from the user, or to the right.
  void Wheel(int notches, bool horizontal = false);

  void MoveTo(HWND window) { MoveTo(CentreOf(window)); }
  void MoveTo(BaseGUIObject& widget) { MoveTo(CentreOf(widget)); }
  void Press(HWND window) { Press(CentreOf(window)); }
  void Press(BaseGUIObject& widget) { Press(CentreOf(widget)); }
  void Click(HWND window) { Click(CentreOf(window)); }
  void Click(BaseGUIObject& widget) { Click(CentreOf(widget)); }
  void DoubleClick(BaseGUIObject& widget) { DoubleClick(CentreOf(widget)); }

  // -- Keyboard: virtual-key codes of platform/VirtualKeys.h, letters and digits as capitals

  void KeyDown(int virtualKey);
  void KeyUp(int virtualKey);
  // Down and up, with the keys of `held` down meanwhile:
  //   robot.Key('C', {VK_CONTROL})
  void Key(int virtualKey, const std::vector<int>& held = {});
  void ControlKey(int virtualKey);
  void AltKey(wchar_t letter);  // a mnemonic
  void Tab();
  void ShiftTab();
  // Types the text on an American keyboard; characters that this lacks come without a key.
  void Type(const std::wstring& text);

  // -- Desktop

  // In open windows, too; 96 dots an inch are 100 %. Throws std::invalid_argument below 48 and
  // above 960.
  void SetResolution(int dpi);
  // What the desktop asks for, one of platform/SystemColors.h. What WEXA_HIGH_CONTRAST or the
  // program itself chose stands above it.
  void SetDesktopColors(SystemScheme scheme);

 private:
  void TypeCharacter(wchar_t c);
};

// -- Pictures

struct PictureTolerance {
  int channel = 0;     // how far a pixel's red, green or blue may be off, of 255
  double share = 0.0;  // which part of the pixels may be further off, of 1
};

// Whether a top-level window, its frame included, looks like the picture in a file. If it does not,
// what it shows is written beside the file as NAME-shown.png and, where the sizes are equal,
// NAME-difference.png, with the pixels that are off in red. Without the file the answer is false,
// too: look at NAME-shown.png, and keep it as NAME.png. Throws std::runtime_error naming a file
// that cannot be written or is no picture, and for a window that is none.
bool LooksLike(HWND window, const std::string& file, PictureTolerance tolerance = {});
inline bool LooksLike(const Dialog& dialog, const std::string& file,
                      PictureTolerance tolerance = {}) {
  return LooksLike(dialog.GetHandle(), file, tolerance);
}

}  // namespace Wexa::Testing
