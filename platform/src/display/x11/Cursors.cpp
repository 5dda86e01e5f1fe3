#include "Cursors.h"

#include <xcb/xcb_cursor.h>

#include "Connection.h"

namespace display::x11 {
namespace {

// The theme's name, then the one of the cursor font, which every theme and server has.
struct Names {
  const char* theme;
  const char* font;
};

Names NamesOf(CursorShape shape) {
  switch (shape) {
    case CursorShape::Arrow: return {"default", "left_ptr"};
    case CursorShape::Wait: return {"wait", "watch"};
    case CursorShape::IBeam: return {"text", "xterm"};
    case CursorShape::Cross: return {"crosshair", "cross"};
    case CursorShape::UpArrow: return {"up-arrow", "sb_up_arrow"};
    case CursorShape::SizeAll: return {"size_all", "fleur"};
    case CursorShape::SizeNwse: return {"nwse-resize", "bottom_right_corner"};
    case CursorShape::SizeNesw: return {"nesw-resize", "bottom_left_corner"};
    case CursorShape::SizeWe: return {"ew-resize", "sb_h_double_arrow"};
    case CursorShape::SizeNs: return {"ns-resize", "sb_v_double_arrow"};
    case CursorShape::No: return {"not-allowed", "X_cursor"};
    case CursorShape::Hand: return {"pointer", "hand2"};
  }
  return {"default", "left_ptr"};
}

}  // namespace

Cursors::~Cursors() {
  for (const auto& [shape, cursor] : loaded_) {
    if (cursor) xcb_free_cursor(connection_.Get(), cursor);
  }
  if (theme_) xcb_cursor_context_free(theme_);
}

xcb_cursor_t Cursors::Get(CursorShape shape) {
  const auto found = loaded_.find(shape);
  if (found != loaded_.end()) return found->second;
  return loaded_[shape] = Load(shape);
}

xcb_cursor_t Cursors::Load(CursorShape shape) {
  if (!theme_) {
    auto* screen = const_cast<xcb_screen_t*>(&connection_.Screen());
    if (xcb_cursor_context_new(connection_.Get(), screen, &theme_) < 0) return XCB_NONE;
  }
  const Names names = NamesOf(shape);
  const xcb_cursor_t cursor = xcb_cursor_load_cursor(theme_, names.theme);
  return cursor ? cursor : xcb_cursor_load_cursor(theme_, names.font);
}

}  // namespace display::x11
