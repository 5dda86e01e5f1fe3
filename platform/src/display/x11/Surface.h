#pragma once

// One top-level window on the server.

#include <xcb/xcb.h>

#include <optional>

#include "Canvas.h"
#include "display/Display.h"

namespace display::x11 {

class Connection;

class Surface {
 public:
  Surface(Connection& connection, SurfaceId id, SurfaceKind kind, const RECT& place);
  ~Surface();
  Surface(const Surface&) = delete;
  Surface& operator=(const Surface&) = delete;

  SurfaceId Id() const { return id_; }
  SurfaceKind Kind() const { return kind_; }
  xcb_window_t Window() const { return window_; }
  // Where the window is, as far as the server has told.
  const RECT& Place() const { return place_; }
  SIZE Size() const { return {place_.right - place_.left, place_.bottom - place_.top}; }
  bool IsShown() const { return shown_; }
  Canvas& Image() { return canvas_; }

  void Move(const RECT& place);
  void Show(bool show);
  void Raise();
  void SetCursor(xcb_cursor_t cursor);
  // The size limits told to the window manager; 0 is no limit.
  void SetLimits(bool resizable, SIZE minimum, SIZE maximum);

  // Takes over what the server says of the window's place. False for an answer to an older request
  // than the last Move.
  bool Accept(const xcb_configure_notify_event_t& event, unsigned sequence);
  void Reparented(xcb_window_t parent);

 private:
  void Create();
  void WriteLimits();
  POINT Corner(const xcb_configure_notify_event_t& event) const;

  Connection& connection_;
  SurfaceId id_;
  SurfaceKind kind_;
  RECT place_;
  Canvas canvas_;
  xcb_window_t window_ = 0;
  bool shown_ = false;
  bool framed_ = false;            // the window manager has put the window into a frame of its own
  std::optional<unsigned> moved_;  // the last request to move
  bool resizable_ = false;
  SIZE minimum_{};
  SIZE maximum_{};
};

}  // namespace display::x11
