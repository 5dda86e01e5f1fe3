#include "Surface.h"

#include <algorithm>

#include "Connection.h"
#include "WindowProperties.h"

namespace display::x11 {
namespace {

constexpr std::uint32_t kEvents =
    XCB_EVENT_MASK_KEY_PRESS | XCB_EVENT_MASK_KEY_RELEASE | XCB_EVENT_MASK_BUTTON_PRESS |
    XCB_EVENT_MASK_BUTTON_RELEASE | XCB_EVENT_MASK_POINTER_MOTION | XCB_EVENT_MASK_ENTER_WINDOW |
    XCB_EVENT_MASK_LEAVE_WINDOW | XCB_EVENT_MASK_FOCUS_CHANGE | XCB_EVENT_MASK_EXPOSURE |
    XCB_EVENT_MASK_STRUCTURE_NOTIFY | XCB_EVENT_MASK_OWNER_GRAB_BUTTON |
    XCB_EVENT_MASK_KEYMAP_STATE | XCB_EVENT_MASK_PROPERTY_CHANGE;

// The server knows no empty windows, nor any beyond 16 bits.
RECT Legal(const RECT& place) {
  constexpr LONG kMost = 32767;
  const LONG width = std::clamp(place.right - place.left, 1, kMost);
  const LONG height = std::clamp(place.bottom - place.top, 1, kMost);
  return {place.left, place.top, place.left + width, place.top + height};
}

SIZE SizeOf(const RECT& place) {
  return {place.right - place.left, place.bottom - place.top};
}

}  // namespace

Surface::Surface(Connection& connection, SurfaceId id, SurfaceKind kind, const RECT& place)
    : connection_(connection),
      id_(id),
      kind_(kind),
      place_(Legal(place)),
      canvas_(connection, SizeOf(place_)) {
  Create();
}

Surface::~Surface() {
  xcb_destroy_window(connection_.Get(), window_);
}

// No background: the server would fill with it before our pixels come.
void Surface::Create() {
  const std::uint32_t values[] = {XCB_BACK_PIXMAP_NONE,         0,       XCB_GRAVITY_NORTH_WEST,
                                  kind_ != SurfaceKind::Dialog, kEvents, connection_.Colormap()};
  window_ = xcb_generate_id(connection_.Get());
  xcb_create_window(connection_.Get(), connection_.Format().depth, window_, connection_.Root(),
                    static_cast<std::int16_t>(place_.left), static_cast<std::int16_t>(place_.top),
                    static_cast<std::uint16_t>(Size().cx), static_cast<std::uint16_t>(Size().cy), 0,
                    XCB_WINDOW_CLASS_INPUT_OUTPUT, connection_.Format().visual,
                    XCB_CW_BACK_PIXMAP | XCB_CW_BORDER_PIXEL | XCB_CW_BIT_GRAVITY |
                        XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK | XCB_CW_COLORMAP,
                    values);
}

void Surface::Move(const RECT& place) {
  const RECT old = place_;
  place_ = Legal(place);
  canvas_.Resize(Size());
  if (std::equal(&old.left, &old.bottom + 1, &place_.left)) return;
  WriteLimits();
  const std::uint32_t values[] = {
      static_cast<std::uint32_t>(place_.left), static_cast<std::uint32_t>(place_.top),
      static_cast<std::uint32_t>(Size().cx), static_cast<std::uint32_t>(Size().cy)};
  constexpr auto kParts = XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y | XCB_CONFIG_WINDOW_WIDTH |
                          XCB_CONFIG_WINDOW_HEIGHT;
  moved_ = xcb_configure_window(connection_.Get(), window_, kParts, values).sequence;
}

void Surface::Show(bool show) {
  if (show == shown_) return;
  shown_ = show;
  if (show) WriteLimits();
  show ? xcb_map_window(connection_.Get(), window_) : xcb_unmap_window(connection_.Get(), window_);
}

void Surface::Raise() {
  const std::uint32_t above = XCB_STACK_MODE_ABOVE;
  xcb_configure_window(connection_.Get(), window_, XCB_CONFIG_WINDOW_STACK_MODE, &above);
}

void Surface::SetCursor(xcb_cursor_t cursor) {
  xcb_change_window_attributes(connection_.Get(), window_, XCB_CW_CURSOR, &cursor);
}

void Surface::SetLimits(bool resizable, SIZE minimum, SIZE maximum) {
  resizable_ = resizable;
  minimum_ = minimum;
  maximum_ = maximum;
  if (shown_) WriteLimits();
}

void Surface::WriteLimits() {
  if (kind_ != SurfaceKind::Dialog) return;
  const SIZE fixed = Size();
  WriteSizeHints(connection_, window_, place_, resizable_ ? minimum_ : fixed,
                 resizable_ ? maximum_ : fixed);
}

bool Surface::Accept(const xcb_configure_notify_event_t& event, unsigned sequence) {
  if (moved_ && static_cast<std::int32_t>(sequence - *moved_) < 0) return false;
  const POINT corner = Corner(event);
  place_ = {corner.x, corner.y, corner.x + event.width, corner.y + event.height};
  return true;
}

// What the server itself reports counts from the frame around the window; what a window manager
// sends in its name counts from the screen's corner.
POINT Surface::Corner(const xcb_configure_notify_event_t& event) const {
  const bool sent = event.response_type & 0x80;
  if (sent || !framed_) return {event.x, event.y};
  xcb_connection_t* c = connection_.Get();
  const auto cookie = xcb_translate_coordinates(c, window_, connection_.Root(), 0, 0);
  const auto reply = Own(xcb_translate_coordinates_reply(c, cookie, nullptr));
  return reply ? POINT{reply->dst_x, reply->dst_y} : POINT{place_.left, place_.top};
}

void Surface::Reparented(xcb_window_t parent) {
  framed_ = parent != connection_.Root();
}

}  // namespace display::x11
