#include "support/x11/DragSource.h"

namespace support {

DragSource::DragSource(XTestDriver& driver, xcb_window_t target)
    : driver_(driver), c_(driver.Connection()), target_(target), window_(driver.CreateWindow()) {
  xcb_set_selection_owner(c_, window_, driver.Atom("XdndSelection"), XCB_CURRENT_TIME);
}

void DragSource::Enter(const std::vector<const char*>& types) {
  constexpr std::uint32_t kVersion = 5u << 24;
  std::vector<std::uint32_t> atoms;
  for (const char* type : types) atoms.push_back(driver_.Atom(type));
  driver_.SetWords(window_, "XdndTypeList", XCB_ATOM_ATOM, atoms);
  const bool isLong = atoms.size() > 3;
  atoms.resize(3);
  Send("XdndEnter", {window_, kVersion | std::uint32_t{isLong}, atoms[0], atoms[1], atoms[2]});
}

void DragSource::Move(POINT position) {
  const auto place = static_cast<std::uint32_t>(position.x << 16 | position.y);
  Send("XdndPosition", {window_, 0, place, XCB_CURRENT_TIME, driver_.Atom("XdndActionMove")});
}

void DragSource::Send(const char* message, const Words& data, std::uint8_t format) {
  driver_.Send(target_, message, data, XCB_EVENT_MASK_NO_EVENT, format);
}

std::optional<DragSource::Words> DragSource::Take(const char* message) {
  const auto answer = driver_.TakeMessage(message);
  return answer ? std::optional(answer->data) : std::nullopt;
}

bool DragSource::Give(const std::string& bytes) {
  return Answer([&](const Request& request) {
    Write(request, bytes);
    return request.property;
  });
}

bool DragSource::Refuse() {
  return Answer([](const Request&) { return xcb_atom_t{XCB_ATOM_NONE}; });
}

bool DragSource::BeginPieces() {
  return Answer([&](const Request& request) {
    const std::uint32_t least = 1;
    xcb_change_property(c_, XCB_PROP_MODE_REPLACE, request.requestor, request.property,
                        driver_.Atom("INCR"), 32, 1, &least);
    pieces_ = request;
    return request.property;
  });
}

void DragSource::GivePiece(const std::string& bytes) {
  Write(pieces_, bytes);
  driver_.Sync();
}

void DragSource::Write(const Request& request, const std::string& bytes) {
  xcb_change_property(c_, XCB_PROP_MODE_REPLACE, request.requestor, request.property,
                      request.target, 8, static_cast<std::uint32_t>(bytes.size()), bytes.data());
}

bool DragSource::Answer(const std::function<xcb_atom_t(const Request&)>& give) {
  bool asked = false;
  driver_.ForEachEvent([&](const xcb_generic_event_t& event) {
    if ((event.response_type & 0x7F) != XCB_SELECTION_REQUEST) return;
    const auto& request = reinterpret_cast<const Request&>(event);
    asked = true;
    xcb_selection_notify_event_t answer{};
    answer.response_type = XCB_SELECTION_NOTIFY;
    answer.requestor = request.requestor;
    answer.selection = request.selection;
    answer.target = request.target;
    answer.property = give(request);
    xcb_send_event(c_, 0, request.requestor, 0, reinterpret_cast<const char*>(&answer));
  });
  driver_.Sync();
  return asked;
}

}  // namespace support
