#pragma once

// The pointer's shapes, from the user's cursor theme, else from the server's cursor font.

#include <xcb/xcb.h>

#include <optional>
#include <unordered_map>

#include "display/Display.h"

struct xcb_cursor_context_t;

namespace display::x11 {

class Connection;

class Cursors {
 public:
  explicit Cursors(Connection& connection) : connection_(connection) {}
  ~Cursors();
  Cursors(const Cursors&) = delete;
  Cursors& operator=(const Cursors&) = delete;

  // Made on first use; the server's own shape when there is none such.
  xcb_cursor_t Get(CursorShape shape);

 private:
  xcb_cursor_t Load(CursorShape shape);

  Connection& connection_;
  xcb_cursor_context_t* theme_ = nullptr;
  std::unordered_map<CursorShape, xcb_cursor_t> loaded_;
};

}  // namespace display::x11
