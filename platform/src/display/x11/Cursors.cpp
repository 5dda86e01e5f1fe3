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

xcb_render_pictformat_t Cursors::ColorFormat() {
  if (colorFormat_) return *colorFormat_;
  colorFormat_ = 0;
  const auto* extension = xcb_get_extension_data(connection_.Get(), &xcb_render_id);
  if (!extension || !extension->present) return 0;
  const auto formats = Own(xcb_render_query_pict_formats_reply(
      connection_.Get(), xcb_render_query_pict_formats(connection_.Get()), nullptr));
  if (!formats) return 0;
  for (auto i = xcb_render_query_pict_formats_formats_iterator(formats.get()); i.rem;
       xcb_render_pictforminfo_next(&i)) {
    const xcb_render_directformat_t& bits = i.data->direct;
    if (i.data->depth == 32 && bits.alpha_mask == 0xFF && bits.alpha_shift == 24 &&
        bits.red_shift == 16 && bits.green_shift == 8 && bits.blue_shift == 0)
      colorFormat_ = i.data->id;
  }
  return *colorFormat_;
}

xcb_cursor_t Cursors::Make(const CursorPicture& picture) {
  constexpr std::uint8_t kDepth = 32;
  xcb_connection_t* server = connection_.Get();
  if (!ColorFormat()) return XCB_NONE;
  const auto width = static_cast<std::uint16_t>(picture.size.cx);
  const auto height = static_cast<std::uint16_t>(picture.size.cy);
  const xcb_pixmap_t pixmap = xcb_generate_id(server);
  xcb_create_pixmap(server, kDepth, pixmap, connection_.Screen().root, width, height);
  const xcb_gcontext_t context = xcb_generate_id(server);
  xcb_create_gc(server, context, pixmap, 0, nullptr);
  xcb_put_image(server, XCB_IMAGE_FORMAT_Z_PIXMAP, pixmap, context, width, height, 0, 0, 0, kDepth,
                static_cast<std::uint32_t>(picture.pixels.size() * sizeof(std::uint32_t)),
                reinterpret_cast<const std::uint8_t*>(picture.pixels.data()));
  const xcb_render_picture_t source = xcb_generate_id(server);
  xcb_render_create_picture(server, source, pixmap, ColorFormat(), 0, nullptr);
  const xcb_cursor_t cursor = xcb_generate_id(server);
  xcb_render_create_cursor(server, cursor, source, static_cast<std::uint16_t>(picture.hotSpot.x),
                           static_cast<std::uint16_t>(picture.hotSpot.y));
  xcb_render_free_picture(server, source);
  xcb_free_gc(server, context);
  xcb_free_pixmap(server, pixmap);
  return cursor;
}

}  // namespace display::x11
