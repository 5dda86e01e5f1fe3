#include "Connection.h"

#include <xcb/shm.h>

#include <cstring>
#include <stdexcept>

#include "XkbProtocol.h"

namespace display::x11 {
namespace {

std::string DisplayName() {
  const char* name = std::getenv("DISPLAY");
  return name ? name : "";
}

const xcb_screen_t* ScreenAt(const xcb_setup_t* setup, int number) {
  auto screens = xcb_setup_roots_iterator(setup);
  for (; number > 0 && screens.rem > 1; --number) {
    xcb_screen_next(&screens);
  }
  return screens.data;
}

std::runtime_error Unusable(const std::string& what) {
  return std::runtime_error(what + "; WEXA_DISPLAY=offscreen needs no screen");
}

}  // namespace

Connection::Connection() : name_(DisplayName()) {
  try {
    Open();
  } catch (...) {
    xcb_disconnect(connection_);
    throw;
  }
}

Connection::~Connection() {
  xcb_disconnect(connection_);
}

void Connection::Open() {
  int number = 0;
  connection_ = xcb_connect(nullptr, &number);
  if (const int error = xcb_connection_has_error(connection_)) {
    const bool noScreen = error == XCB_CONN_CLOSED_INVALID_SCREEN;
    throw Unusable(
        (noScreen ? "there is no screen at X display \"" : "no X server answers at display \"") +
        name_ + "\"");
  }
  xcb_prefetch_extension_data(connection_, &xcb_shm_id);
  xcb_prefetch_extension_data(connection_, &xcb_xkb_id);
  atoms_.Request(connection_);
  screen_ = ScreenAt(xcb_get_setup(connection_), number);
  ChooseFormat();
  CreateHelper();
  atoms_.Collect(connection_);
}

void Connection::ChooseFormat() {
  const auto format = FindPixelFormat(*xcb_get_setup(connection_), *screen_);
  if (!format)
    throw Unusable("the X display \"" + name_ + "\" has no true colour of 24 or 30 bits");
  format_ = *format;
  colormap_ = screen_->default_colormap;
  if (format_.visual != screen_->root_visual) {
    colormap_ = xcb_generate_id(connection_);
    xcb_create_colormap(connection_, XCB_COLORMAP_ALLOC_NONE, colormap_, Root(), format_.visual);
  }
}

void Connection::CreateHelper() {
  const std::uint32_t values[] = {0, XCB_EVENT_MASK_PROPERTY_CHANGE, colormap_};
  helper_ = xcb_generate_id(connection_);
  xcb_create_window(connection_, format_.depth, helper_, Root(), -1, -1, 1, 1, 0,
                    XCB_WINDOW_CLASS_INPUT_OUTPUT, format_.visual,
                    XCB_CW_BORDER_PIXEL | XCB_CW_EVENT_MASK | XCB_CW_COLORMAP, values);
  const std::uint32_t exposures = 0;
  context_ = xcb_generate_id(connection_);
  xcb_create_gc(connection_, context_, helper_, XCB_GC_GRAPHICS_EXPOSURES, &exposures);
  const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY;
  xcb_change_window_attributes(connection_, Root(), XCB_CW_EVENT_MASK, &events);
}

Owned<xcb_generic_event_t> Connection::NextEvent() {
  auto event = Own(xcb_poll_for_event(connection_));
  if (event) passed_ = event->full_sequence;
  return event;
}

void Connection::ThrowIfLost() const {
  if (xcb_connection_has_error(connection_)) {
    throw std::runtime_error("the connection to the X display \"" + name_ + "\" is lost");
  }
}

void Connection::Synchronize() {
  Own(xcb_get_input_focus_reply(connection_, xcb_get_input_focus(connection_), nullptr));
}

bool Connection::HasPassed(unsigned sequence) const {
  return static_cast<std::int32_t>(passed_ - sequence) >= 0;
}

std::string Connection::ReadProperty(xcb_window_t window, xcb_atom_t property, bool remove,
                                     xcb_atom_t* type) {
  constexpr std::uint32_t kWholeLength = 0x1FFFFFFF;
  const auto cookie = xcb_get_property(connection_, remove, window, property,
                                       XCB_GET_PROPERTY_TYPE_ANY, 0, kWholeLength);
  const auto reply = Own(xcb_get_property_reply(connection_, cookie, nullptr));
  if (type) *type = reply ? reply->type : xcb_atom_t{XCB_ATOM_NONE};
  if (!reply) return {};
  return {static_cast<const char*>(xcb_get_property_value(reply.get())),
          static_cast<std::size_t>(xcb_get_property_value_length(reply.get()))};
}

std::vector<std::uint32_t> Connection::ReadNumbers(xcb_window_t window, xcb_atom_t property) {
  const std::string bytes = ReadProperty(window, property);
  std::vector<std::uint32_t> numbers(bytes.size() / sizeof(std::uint32_t));
  if (!numbers.empty()) {
    std::memcpy(numbers.data(), bytes.data(), numbers.size() * sizeof numbers[0]);
  }
  return numbers;
}

std::uint32_t Connection::ReadNumber(xcb_window_t window, xcb_atom_t property) {
  const auto numbers = ReadNumbers(window, property);
  return numbers.empty() ? 0 : numbers.front();
}

void Connection::Tell(xcb_window_t window, Atom message, const std::uint32_t (&data)[5]) {
  Send(window, XCB_EVENT_MASK_NO_EVENT, window, message, data);
}

void Connection::AskWindowManager(xcb_window_t window, Atom message,
                                  const std::uint32_t (&data)[5]) {
  Send(Root(), XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT, window,
       message, data);
}

void Connection::Send(xcb_window_t receiver, std::uint32_t mask, xcb_window_t window, Atom message,
                      const std::uint32_t (&data)[5]) {
  xcb_client_message_event_t event{};
  event.response_type = XCB_CLIENT_MESSAGE;
  event.format = 32;
  event.window = window;
  event.type = atoms_[message];
  std::memcpy(event.data.data32, data, sizeof data);
  xcb_send_event(connection_, 0, receiver, mask, reinterpret_cast<const char*>(&event));
}

}  // namespace display::x11
