#pragma once

// The pointer's shapes, from the user's cursor theme, else from the server's cursor font.

#include <xcb/render.h>
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
  // The caller frees it. None on a server that cannot show coloured cursors.
  xcb_cursor_t Make(const CursorPicture& picture);

 private:
  xcb_cursor_t Load(CursorShape shape);
  // Of 32 bits with alpha; 0 when the server has none.
  xcb_render_pictformat_t ColorFormat();

  Connection& connection_;
  xcb_cursor_context_t* theme_ = nullptr;
  std::unordered_map<CursorShape, xcb_cursor_t> loaded_;
  std::optional<xcb_render_pictformat_t> colorFormat_;
};

}  // namespace display::x11
