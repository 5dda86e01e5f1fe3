#pragma once

// One window as the core keeps it, and the table of all of them.

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "display/Display.h"
#include "graphics/PixelRegion.h"
#include "graphics/Surface.h"
#include "platform/Theme.h"
#include "platform/Window.h"

namespace core {

struct WindowClass;

struct Subclass {
  SUBCLASSPROC procedure;  // null: removed while a message was on its way
  UINT_PTR id;
  DWORD_PTR data;
  MoveInterest moves;
};

// What only a top-level window has.
struct TopLevel {
  display::SurfaceId surfaceId = 0;  // 0: not made yet
  CRect place;                       // of the surface, as the display knows it
  std::unique_ptr<Surface> pixels;
  PixelRegion damage;  // painted, not yet presented
  bool active = false;
  FramePart hovered = FramePart::None;
  FramePart pressed = FramePart::None;
};

// A sibling that lies over another one, by their places in the z-order.
struct Overlap {
  std::uint32_t below;
  std::uint32_t above;
};

struct Window {
  HWND handle = nullptr;
  bool alive = true;
  int holds = 0;    // users of the memory; the last one frees a dead window
  int running = 0;  // messages on their way through the subclass chain
  const WindowClass* windowClass = nullptr;
  std::vector<Subclass> subclasses;  // the newest, called first, is last
  bool chainChanged = false;         // it holds removed entries

  Window* parent = nullptr;       // of a child window
  HWND owner = nullptr;           // of a top-level window
  std::vector<Window*> children;  // topmost first
  std::unique_ptr<TopLevel> top;  // null for a child

  DWORD style = 0;
  DWORD exStyle = 0;
  LONG_PTR id = 0;
  LONG_PTR userData = 0;
  std::unique_ptr<std::byte[]> extra;
  std::wstring text;
  int hiddenCues = UISF_HIDEFOCUS | UISF_HIDEACCEL;

  CRect rect;    // with its frame, in the parent's client area (mirrored with it) or on the screen
  CRect client;  // inside the window: from its top left corner, in unmirrored pixels

  // Areas in unmirrored pixels from the window's top left corner.
  PixelRegion update;      // to be painted by this window
  PixelRegion deepUpdate;  // to be painted by its children too, though it clips them
  PixelRegion painting;    // what the paint pass asks of the window just now
  bool eraseDue = false;
  bool subtreeDirty = false;  // it or a descendant has something to paint
  bool redraw = true;         // off between WM_SETREDRAW messages
  bool destroying = false;    // nobody may begin it again
  bool destroyTold = false;   // WM_DESTROY was sent
  bool endTold = false;       // WM_NCDESTROY was sent
  bool classToldEnd = false;  // and its class has got it

  int scrollPositions[2] = {};  // SB_HORZ, SB_VERT
  bool allDue = false;          // the update region covers the whole window

  std::vector<Overlap> overlaps;  // of the children
  bool overlapsKnown = false;

  bool Is(DWORD styles) const { return (style & styles) == styles; }
  bool IsVisible() const { return Is(WS_VISIBLE); }
  bool IsEnabled() const { return !Is(WS_DISABLED); }
  bool IsMirrored() const { return (exStyle & WS_EX_LAYOUTRTL) != 0; }
  bool ClipsChildren() const { return Is(WS_CLIPCHILDREN); }
  CRect Bounds() const { return {0, 0, rect.Width(), rect.Height()}; }
};

// Keeps a window's memory while messages are sent, for their handlers may destroy it.
class Hold {
 public:
  explicit Hold(Window* window) : window_(window) {
    if (window_) ++window_->holds;
  }
  ~Hold();
  Hold(const Hold&) = delete;
  Hold& operator=(const Hold&) = delete;
  bool Alive() const { return window_ && window_->alive; }

 private:
  Window* window_;
};

// Null for a stale or null handle.
Window* Find(HWND window);
// Whether this thread makes windows: the others may only post, and know no window.
bool OnWindowThread();
Window& AddWindow(std::unique_ptr<Window> window);
// The handle becomes stale; the memory goes with its last holder.
void RemoveWindow(Window& window);

// Top-level windows, topmost first.
std::vector<Window*>& TopLevels();
// The list a window stands in: its parent's children or the top-level windows.
std::vector<Window*>& Siblings(Window& window);
Window& Root(Window& window);
bool IsInside(const Window& ancestor, const Window* window);  // itself or below it
bool IsShown(const Window& window);                           // itself and all its ancestors
bool CanTakeInput(const Window& window);                      // likewise, for being enabled
Window* FindBySurface(display::SurfaceId id);

}  // namespace core
