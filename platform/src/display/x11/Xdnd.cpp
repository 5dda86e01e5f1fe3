#include "Xdnd.h"

#include <algorithm>

#include "Connection.h"
#include "Records.h"
#include "Surfaces.h"
#include "UriList.h"
#include "Waker.h"

namespace display::x11 {
namespace {

POINT PositionIn(std::uint32_t word) {
  return {static_cast<std::int16_t>(word >> 16), static_cast<std::int16_t>(word & 0xFFFF)};
}

}  // namespace

void Xdnd::Received(const xcb_client_message_event_t& message) {
  const Connection& atoms = connection_;
  if (message.type == atoms[Atom::XdndEnter]) return Enter(message);
  if (message.data.data32[0] != drag_.source || message.window != drag_.window) return;
  if (message.type == atoms[Atom::XdndPosition]) Move(message);
  if (message.type == atoms[Atom::XdndDrop]) Drop(message);
  if (message.type == atoms[Atom::XdndLeave]) drag_ = {};
}

// A drop whose files have not come by now never gets them.
void Xdnd::Enter(const xcb_client_message_event_t& message) {
  if (drag_.isDropped) End(false);
  drag_ = {message.data.data32[0], message.window, OffersFiles(message)};
}

// Up to three types stand in the message, more in a property of the source.
bool Xdnd::OffersFiles(const xcb_client_message_event_t& enter) {
  const auto& data = enter.data.data32;
  const bool isLong = data[1] & 1;
  const std::vector<std::uint32_t> types =
      isLong ? connection_.ReadNumbers(data[0], connection_[Atom::XdndTypeList])
             : std::vector<std::uint32_t>(data + 2, data + 5);
  return std::ranges::find(types, connection_[Atom::TextUriList]) != types.end();
}

void Xdnd::Move(const xcb_client_message_event_t& message) {
  if (drag_.isDropped) return;
  drag_.position = PositionIn(message.data.data32[2]);
  if (!drag_.hasFiles || !Report(Input::Kind::FilesDragged)) Answer(drag_.window, false);
}

void Xdnd::Answer(xcb_window_t window, bool taken) {
  if (window != drag_.window || drag_.isDropped) return;
  constexpr std::uint32_t kTellEveryMove = 2;
  drag_.isTaken = taken;
  connection_.Tell(drag_.source, Atom::XdndStatus,
                   {window, kTellEveryMove | std::uint32_t{taken}, 0, 0, Action()});
}

void Xdnd::Drop(const xcb_client_message_event_t& message) {
  if (drag_.isDropped) return;
  if (!drag_.isTaken) return End(false);
  drag_.isDropped = true;
  reader_.Begin(drag_.window, connection_[Atom::XdndSelection], connection_[Atom::TextUriList],
                message.data.data32[2]);
}

void Xdnd::Answered(const xcb_selection_notify_event_t& answer) {
  reader_.Answered(answer);
  DeliverWhenHere();
}

void Xdnd::PropertyChanged(const xcb_property_notify_event_t& event) {
  reader_.PropertyChanged(event);
  DeliverWhenHere();
}

void Xdnd::DeliverWhenHere() {
  if (!drag_.isDropped || reader_.IsOpen()) return;
  auto files = reader_.IsDone() ? FilesOf(reader_.Bytes()) : std::vector<std::wstring>();
  End(!files.empty() && Report(Input::Kind::FilesDropped, std::move(files)));
}

void Xdnd::End(bool taken) {
  drag_.isTaken = taken;
  connection_.Tell(drag_.source, Atom::XdndFinished, {drag_.window, taken, Action(), 0, 0});
  reader_.Abandon();
  drag_ = {};
}

// False when the window is gone.
bool Xdnd::Report(Input::Kind kind, std::vector<std::wstring> files) {
  const Surface* surface = surfaces_.FindWindow(drag_.window);
  if (!surface) return false;
  Input input{};
  input.kind = kind;
  input.surface = surface->Id();
  input.position = drag_.position;
  input.files = std::move(files);
  input.time = static_cast<std::uint32_t>(Waker::Now());
  records_.Push({std::move(input), std::nullopt});
  return true;
}

std::uint32_t Xdnd::Action() const {
  return drag_.isTaken ? connection_[Atom::XdndActionCopy] : xcb_atom_t{XCB_ATOM_NONE};
}

}  // namespace display::x11
