#pragma once

// All that the window core remembers, but for its classes and what other threads post. It is made
// with the first window and exchanged with the display.

#include <array>
#include <exception>
#include <optional>
#include <string>
#include <typeindex>
#include <unordered_map>
#include <vector>

#include "graphics/HandleTable.h"
#include "window/CreationHook.h"
#include "window/Frame.h"
#include "window/WindowObject.h"

namespace core {

class Passage;

struct Key {
  bool down = false;
  bool toggled = false;
};

// The latest key message and the characters that it gives.
struct KeyStroke {
  MSG message{};
  std::u32string text;
};

struct Click {
  HWND window = nullptr;
  display::MouseButton button{};
  CPoint place;
  std::uint32_t time = 0;
};

// What TrackMouseEvent asked for.
struct Tracking {
  HWND window = nullptr;
  bool leave = false;
  bool hover = false;
  UINT hoverTime = 0;
  CPoint restingPlace;
  std::uint64_t hoverDue = 0;
};

struct CursorState {
  const wchar_t* shown = IDC_ARROW;
  HCURSOR picture = nullptr;  // shown instead
  HWND root = nullptr;        // under the pointer
};

// A press on a frame that is not yet let go.
struct FrameGrab {
  HWND root = nullptr;
  int part = HTNOWHERE;
  CPoint start;
  CRect place;
  SizeLimits limits{};
};

struct Timer {
  HWND window;
  UINT_PTR id;
  UINT period;
  std::uint64_t due;
};

struct Drop {
  HWND window;
  POINT point;
  std::vector<std::wstring> files;
};

struct Session {
  HandleTable<HWND, Window> windows;
  std::vector<Window*> topLevels;  // topmost first
  HWND desktop = nullptr;          // not yet made: null
  display::SurfaceId lastSurface = 0;

  Passage* innermost = nullptr;  // of the messages on their way
  CreationHook creationHook = nullptr;

  HWND active = nullptr;
  HWND focused = nullptr;
  HWND captured = nullptr;
  display::SurfaceId focusReported = 0;
  std::vector<display::SurfaceId> focusRequested;  // and not yet reported, the latest last

  static constexpr int kKeyCount = 256;
  std::array<Key, kKeyCount> keys;
  KeyStroke latestKey;
  bool keyboardUsedLast = false;

  HWND hoveredRoot = nullptr;
  HWND pointerOver = nullptr;
  CPoint pointerPlace;
  Click latestClick;
  Tracking tracking;
  CursorState cursor;
  FrameGrab frameGrab;

  std::optional<MSG> peeked;  // looked at and left in the queue
  std::optional<int> quit;
  std::exception_ptr postponed;
  std::vector<Timer> timers;
  HandleTable<HDROP, Drop> drops;
  std::vector<HDROP> untakenDrops;
  std::optional<SystemScheme> scheme;  // that all windows know of

  std::unordered_map<std::type_index, std::shared_ptr<void>> others;  // what SessionState keeps
};

Session& CurrentSession();

}  // namespace core
