#include "support/x11/XTestDriver.h"

#include <poll.h>
#include <xcb/xtest.h>

#include <chrono>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <stdexcept>

namespace support {
namespace {

struct FreeDeleter {
  void operator()(void* memory) const { std::free(memory); }
};

template <typename T>
std::unique_ptr<T, FreeDeleter> Own(T* memory) {
  return std::unique_ptr<T, FreeDeleter>(memory);
}

using Clock = std::chrono::steady_clock;

// The pixel of a screen with 10 bits a colour.
std::uint32_t FromTenBits(std::uint32_t pixel) {
  const auto channel = [pixel](int shift) { return (pixel >> shift & 0x3FF) >> 2; };
  return channel(20) << 16 | channel(10) << 8 | channel(0);
}

}  // namespace

XTestDriver::XTestDriver() : connection_(xcb_connect(nullptr, nullptr)) {
  const auto* extension = xcb_get_extension_data(connection_, &xcb_test_id);
  if (!extension || !extension->present) {
    xcb_disconnect(connection_);
    throw std::runtime_error("no X server with the test extension");
  }
  screen_ = xcb_setup_roots_iterator(xcb_get_setup(connection_)).data;
  const std::uint32_t events = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
  xcb_change_window_attributes(connection_, Root(), XCB_CW_EVENT_MASK, &events);
  Sync();
}

XTestDriver::~XTestDriver() {
  xcb_disconnect(connection_);
}

void XTestDriver::Sync() {
  Own(xcb_get_input_focus_reply(connection_, xcb_get_input_focus(connection_), nullptr));
}

void XTestDriver::Fake(int type, int detail, POINT position) {
  xcb_test_fake_input(connection_, static_cast<std::uint8_t>(type),
                      static_cast<std::uint8_t>(detail), XCB_CURRENT_TIME, Root(),
                      static_cast<std::int16_t>(position.x), static_cast<std::int16_t>(position.y),
                      0);
  Sync();
}

void XTestDriver::MovePointer(POINT position) {
  Fake(XCB_MOTION_NOTIFY, 0, position);
}

void XTestDriver::ButtonDown(int button) {
  Fake(XCB_BUTTON_PRESS, button);
}

void XTestDriver::ButtonUp(int button) {
  Fake(XCB_BUTTON_RELEASE, button);
}

void XTestDriver::Click(int button) {
  ButtonDown(button);
  ButtonUp(button);
}

void XTestDriver::ClickAt(POINT position, int button) {
  MovePointer(position);
  Click(button);
}

XTestDriver::KeyPlace XTestDriver::FindKey(std::uint32_t symbol) {
  const xcb_setup_t* setup = xcb_get_setup(connection_);
  const int count = setup->max_keycode - setup->min_keycode + 1;
  const auto cookie =
      xcb_get_keyboard_mapping(connection_, setup->min_keycode, static_cast<std::uint8_t>(count));
  const auto reply = Own(xcb_get_keyboard_mapping_reply(connection_, cookie, nullptr));
  if (!reply) throw std::runtime_error("the keyboard cannot be read");
  const xcb_keysym_t* symbols = xcb_get_keyboard_mapping_keysyms(reply.get());
  for (int level = 0; level < 2; ++level) {
    for (int key = 0; key < count; ++key) {
      if (symbols[key * reply->keysyms_per_keycode + level] != symbol) continue;
      return {static_cast<std::uint8_t>(setup->min_keycode + key), level == 1};
    }
  }
  throw std::runtime_error("no key has the symbol " + std::to_string(symbol));
}

void XTestDriver::KeyDown(std::uint32_t symbol) {
  KeyDownCode(FindKey(symbol).code);
}

void XTestDriver::KeyUp(std::uint32_t symbol) {
  KeyUpCode(FindKey(symbol).code);
}

void XTestDriver::KeyDownCode(int code) {
  Fake(XCB_KEY_PRESS, code);
}

void XTestDriver::KeyUpCode(int code) {
  Fake(XCB_KEY_RELEASE, code);
}

void XTestDriver::Key(std::uint32_t symbol) {
  const KeyPlace place = FindKey(symbol);
  if (place.shifted) KeyDown(XKB_KEY_Shift_L);
  KeyDownCode(place.code);
  KeyUpCode(place.code);
  if (place.shifted) KeyUp(XKB_KEY_Shift_L);
}

void XTestDriver::Key(std::uint32_t modifier, std::uint32_t symbol) {
  KeyDown(modifier);
  Key(symbol);
  KeyUp(modifier);
}

void XTestDriver::TypeText(const std::u32string& text) {
  constexpr std::uint32_t kUnicode = 0x1000000;  // symbols beyond Latin-1 are characters, marked
  for (const char32_t c : text) {
    Key(c <= 0xFF ? c : kUnicode | c);
  }
}

XTestDriver::Attributes XTestDriver::AttributesOf(xcb_window_t window) {
  const auto reply = Own(xcb_get_window_attributes_reply(
      connection_, xcb_get_window_attributes(connection_, window), nullptr));
  if (!reply) return {};
  return {reply->map_state == XCB_MAP_STATE_VIEWABLE, !reply->override_redirect};
}

std::vector<xcb_window_t> XTestDriver::ShownWindows() {
  const auto tree =
      Own(xcb_query_tree_reply(connection_, xcb_query_tree(connection_, Root()), nullptr));
  if (!tree) return {};
  const xcb_window_t* children = xcb_query_tree_children(tree.get());
  std::vector<xcb_window_t> shown(children, children + xcb_query_tree_children_length(tree.get()));
  std::erase_if(shown, [this](xcb_window_t window) { return !AttributesOf(window).isShown; });
  return {shown.rbegin(), shown.rend()};
}

xcb_window_t XTestDriver::FindWindow(const std::string& title) {
  for (const xcb_window_t window : ShownWindows()) {
    if (title.empty() || Property(window, "_NET_WM_NAME") == title) return window;
  }
  return 0;
}

bool XTestDriver::WaitUntil(const std::function<bool()>& done, int timeout) {
  const auto deadline = Clock::now() + std::chrono::milliseconds(timeout);
  while (!done()) {
    if (Own(xcb_poll_for_event(connection_))) continue;
    using std::chrono::milliseconds;
    const auto rest = std::chrono::duration_cast<milliseconds>(deadline - Clock::now()).count();
    if (rest <= 0 || xcb_connection_has_error(connection_)) return false;
    pollfd file{xcb_get_file_descriptor(connection_), POLLIN, 0};
    poll(&file, 1, static_cast<int>(rest));
  }
  return true;
}

xcb_window_t XTestDriver::WaitForWindow(const std::string& title, int timeout) {
  xcb_window_t found = 0;
  WaitUntil([&] { return (found = FindWindow(title)) != 0; }, timeout);
  return found;
}

bool XTestDriver::WaitForClose(xcb_window_t window, int timeout) {
  return WaitUntil([&] { return !AttributesOf(window).isShown; }, timeout);
}

bool XTestDriver::IsManaged(xcb_window_t window) {
  return AttributesOf(window).isManaged;
}

RECT XTestDriver::Place(xcb_window_t window) {
  const auto size =
      Own(xcb_get_geometry_reply(connection_, xcb_get_geometry(connection_, window), nullptr));
  const auto corner = Own(xcb_translate_coordinates_reply(
      connection_, xcb_translate_coordinates(connection_, window, Root(), 0, 0), nullptr));
  if (!size || !corner) return {};
  return {corner->dst_x, corner->dst_y, corner->dst_x + size->width, corner->dst_y + size->height};
}

xcb_window_t XTestDriver::FocusedWindow() {
  const auto reply =
      Own(xcb_get_input_focus_reply(connection_, xcb_get_input_focus(connection_), nullptr));
  return reply ? reply->focus : 0;
}

void XTestDriver::Resize(xcb_window_t window, SIZE size) {
  const std::uint32_t values[] = {static_cast<std::uint32_t>(size.cx),
                                  static_cast<std::uint32_t>(size.cy)};
  xcb_configure_window(connection_, window, XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT,
                       values);
  Sync();
}

void XTestDriver::Move(xcb_window_t window, POINT corner) {
  const std::uint32_t values[] = {static_cast<std::uint32_t>(corner.x),
                                  static_cast<std::uint32_t>(corner.y)};
  xcb_configure_window(connection_, window, XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y, values);
  Sync();
}

void XTestDriver::Close(xcb_window_t window) {
  Send(window, "WM_PROTOCOLS", {Atom("WM_DELETE_WINDOW")});
}

void XTestDriver::Disconnect(xcb_window_t window) {
  xcb_kill_client(connection_, window);
  Sync();
}

std::vector<std::uint32_t> XTestDriver::Screenshot(xcb_window_t window, const RECT& area) {
  const auto cookie = xcb_get_image(
      connection_, XCB_IMAGE_FORMAT_Z_PIXMAP, window, static_cast<std::int16_t>(area.left),
      static_cast<std::int16_t>(area.top), static_cast<std::uint16_t>(area.right - area.left),
      static_cast<std::uint16_t>(area.bottom - area.top), ~0u);
  const auto reply = Own(xcb_get_image_reply(connection_, cookie, nullptr));
  if (!reply) return {};
  std::vector<std::uint32_t> pixels(
      static_cast<std::size_t>(xcb_get_image_data_length(reply.get())) / 4);
  std::memcpy(pixels.data(), xcb_get_image_data(reply.get()), pixels.size() * 4);
  for (auto& pixel : pixels) pixel = reply->depth == 30 ? FromTenBits(pixel) : pixel & 0xFFFFFF;
  return pixels;
}

std::uint32_t XTestDriver::PixelAt(POINT position) {
  const auto pixels = Screenshot(Root(), {position.x, position.y, position.x + 1, position.y + 1});
  return pixels.empty() ? 0 : pixels.front();
}

xcb_window_t XTestDriver::CreateWindow(const RECT& place) {
  const xcb_window_t window = xcb_generate_id(connection_);
  xcb_create_window(connection_, XCB_COPY_FROM_PARENT, window, Root(),
                    static_cast<std::int16_t>(place.left), static_cast<std::int16_t>(place.top),
                    static_cast<std::uint16_t>(place.right - place.left),
                    static_cast<std::uint16_t>(place.bottom - place.top), 0,
                    XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
  Sync();
  return window;
}

void XTestDriver::Send(xcb_window_t window, const std::string& message, const Words& data,
                       std::uint32_t mask, std::uint8_t format) {
  xcb_client_message_event_t event{};
  event.response_type = XCB_CLIENT_MESSAGE;
  event.format = format;
  event.window = window;
  event.type = Atom(message);
  std::memcpy(event.data.data32, data.data(), sizeof event.data.data32);
  xcb_send_event(connection_, 0, window, mask, reinterpret_cast<const char*>(&event));
  Sync();
}

std::optional<XTestDriver::Message> XTestDriver::TakeMessage(const std::string& message) {
  const xcb_atom_t type = Atom(message);
  std::optional<Message> taken;
  ForEachEvent([&](const xcb_generic_event_t& event) {
    const auto& sent = reinterpret_cast<const xcb_client_message_event_t&>(event);
    if ((event.response_type & 0x7F) != XCB_CLIENT_MESSAGE || sent.type != type) return;
    taken = {sent.window, {}};
    std::memcpy(taken->data.data(), sent.data.data32, sizeof sent.data.data32);
  });
  return taken;
}

void XTestDriver::ForEachEvent(const std::function<void(const xcb_generic_event_t&)>& action) {
  Sync();
  while (const auto event = Own(xcb_poll_for_event(connection_))) action(*event);
}

void XTestDriver::SetWords(xcb_window_t window, const std::string& property, xcb_atom_t type,
                           const std::vector<std::uint32_t>& words) {
  xcb_change_property(connection_, XCB_PROP_MODE_REPLACE, window, Atom(property), type, 32,
                      static_cast<std::uint32_t>(words.size()), words.data());
  Sync();
}

void XTestDriver::SetRootProperty(const std::string& name, const std::string& text) {
  xcb_change_property(connection_, XCB_PROP_MODE_REPLACE, Root(), Atom(name), XCB_ATOM_STRING, 8,
                      static_cast<std::uint32_t>(text.size()), text.data());
  Sync();
}

std::string XTestDriver::Property(xcb_window_t window, const std::string& name) {
  const auto cookie =
      xcb_get_property(connection_, 0, window, Atom(name), XCB_GET_PROPERTY_TYPE_ANY, 0, 1 << 20);
  const auto reply = Own(xcb_get_property_reply(connection_, cookie, nullptr));
  if (!reply) return {};
  return {static_cast<const char*>(xcb_get_property_value(reply.get())),
          static_cast<std::size_t>(xcb_get_property_value_length(reply.get()))};
}

std::uint32_t XTestDriver::Number(xcb_window_t window, const std::string& name) {
  const std::string bytes = Property(window, name);
  std::uint32_t number = 0;
  if (bytes.size() >= sizeof number) std::memcpy(&number, bytes.data(), sizeof number);
  return number;
}

xcb_atom_t XTestDriver::Atom(const std::string& name) {
  const auto cookie =
      xcb_intern_atom(connection_, 0, static_cast<std::uint16_t>(name.size()), name.data());
  const auto reply = Own(xcb_intern_atom_reply(connection_, cookie, nullptr));
  return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

}  // namespace support
