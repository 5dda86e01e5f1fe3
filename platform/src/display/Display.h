#pragma once

// The seam to the screen. The window core asks (create, move, show, present); a display reports
// plain records and never calls a window. Two displays: offscreen and x11; the factory alone
// names them.

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/OffscreenScreen.h"
#include "platform/SystemColors.h"
#include "platform/Types.h"

namespace display {

using SurfaceId = std::uint32_t;  // chosen by the window core, never 0, never reused

enum class SurfaceKind { Dialog, PopUp, ToolTip };

enum class CursorShape {
  Arrow,
  Wait,
  IBeam,
  Cross,
  UpArrow,
  SizeAll,
  SizeNwse,
  SizeNesw,
  SizeWe,
  SizeNs,
  No,
  Hand
};

// A cursor of the host's own: pixels of 0xAARRGGBB, multiplied with their alpha, rows from top to
// bottom.
struct CursorPicture {
  std::vector<std::uint32_t> pixels;
  SIZE size{};
  POINT hotSpot{};  // within the picture
};

// The pixels of a surface: 32 bits each, 0xAARRGGBB, rows of `stride` bytes. Valid until the
// surface is resized or destroyed.
struct Pixels {
  std::uint32_t* data = nullptr;
  int width = 0;
  int height = 0;
  int stride = 0;
};

using offscreen::MouseButton;

// One thing the user or the desktop did. Positions are screen pixels.
struct Input {
  enum class Kind {
    PointerMoved,
    PointerLeft,
    ButtonDown,
    ButtonUp,
    Wheel,
    KeyDown,
    KeyUp,
    FocusIn,
    FocusOut,
    CloseRequested,
    Exposed,
    Moved,
    Resized,
    ResolutionChanged,
    FilesDragged,
    FilesDropped,
    ColorsChanged
  };
  Kind kind;
  SurfaceId surface = 0;
  POINT position{};      // pointer events, files; Moved: the new corner
  SIZE size{};           // Resized
  RECT area{};           // Exposed, in the surface
  MouseButton button{};  // ButtonDown, ButtonUp
  int wheelDelta = 0;    // 120 a notch, positive away from the user
  bool horizontalWheel = false;
  int virtualKey = 0;        // KeyDown, KeyUp: native virtual-key code
  int scanCode = 0;          // set-1 scan code of the key's place
  bool extendedKey = false;  // arrows, right Control and their like
  bool repeated = false;     // KeyDown by auto-repeat
  std::u32string text{};     // KeyDown: the characters the layout gives, composed; may be empty
  int dpi = 0;               // ResolutionChanged
  std::vector<std::wstring> files{};  // FilesDropped
  std::uint32_t time = 0;             // milliseconds of the display's clock
};

class Display {
 public:
  virtual ~Display() = default;

  virtual int Dpi() const = 0;
  virtual RECT WorkArea() const = 0;

  // The rectangle is the whole window in screen pixels: windows draw their own frame.
  virtual void CreateSurface(SurfaceId id, SurfaceKind kind, SurfaceId owner,
                             const RECT& place) = 0;
  virtual void DestroySurface(SurfaceId id) = 0;
  virtual void MoveSurface(SurfaceId id, const RECT& place) = 0;
  virtual void ShowSurface(SurfaceId id, bool show) = 0;
  virtual void SetTitle(SurfaceId id, const std::wstring& title) = 0;
  virtual void SetResizable(SurfaceId id, bool resizable, SIZE minimum, SIZE maximum) = 0;
  virtual void SetModal(SurfaceId id, bool modal) = 0;
  virtual void SetCursor(SurfaceId id, CursorShape shape) = 0;
  virtual void SetCursorPicture(SurfaceId id, const CursorPicture& picture) = 0;
  virtual void RaiseSurface(SurfaceId id) = 0;
  virtual void FocusSurface(SurfaceId id) = 0;
  // Hands an interactive move or resize (edge = HTCAPTION, HTLEFT, HTBOTTOMRIGHT ...) to the
  // window manager; false where there is none: the caller then follows the pointer itself.
  virtual bool BeginMoveSize(SurfaceId id, int edge) = 0;
  // While grabbed, all pointer input is reported for this surface (capture beyond its edges).
  virtual void GrabPointer(SurfaceId id) = 0;
  virtual void UngrabPointer() = 0;

  virtual Pixels LockPixels(SurfaceId id) = 0;
  virtual void Present(SurfaceId id, const RECT* damaged, std::size_t count) = 0;

  // The next record, or none at once. Moves of the pointer in a row, with the same buttons and
  // modifiers held, come as one. Throws std::runtime_error when the server is lost.
  virtual std::optional<Input> Poll() = 0;
  // Returns when there may be input, when Wake was called, or at `deadline` (clock milliseconds).
  // Offscreen there is no one to wait for: time jumps to the deadline; without one it returns
  // false, for nothing could ever happen.
  virtual bool Wait(std::optional<std::uint64_t> deadline) = 0;
  // Ends a Wait; may be called from any thread.
  virtual void Wake() = 0;
  virtual std::uint64_t Now() const = 0;  // milliseconds, monotonic

  virtual POINT PointerPosition() const = 0;
  virtual bool IsKeyDown(int virtualKey) const = 0;  // mouse buttons included (VK_LBUTTON ...)
  virtual bool IsKeyToggled(int virtualKey) const = 0;
  virtual std::uint32_t DoubleClickTime() const { return 500; }
  // The colours that the desktop asks for; ColorsChanged tells of a change.
  virtual SystemScheme Scheme() const = 0;

  // Says whether the place takes files that the last record FilesDragged of the surface asked
  // about. Files are dropped only where it does.
  virtual void AnswerDrag(SurfaceId id, bool takesFiles) = 0;

  virtual void SetClipboardText(const std::wstring& text) = 0;
  virtual std::wstring ClipboardText() = 0;
};

// The process's display, opened on first use: WEXA_DISPLAY=offscreen|x11, else x11 where DISPLAY is
// set, else offscreen. Throws std::runtime_error naming an unknown value, or the server that does
// not answer or whose screen cannot be used. WEXA_DPI overrides the resolution.
Display& Current();
// Replaces the process's display; for tests. What was shown on it goes first.
void SetCurrent(std::unique_ptr<Display> display);
// Sets what is told before a display is replaced.
void BeforeExchange(void (*told)());

}  // namespace display
