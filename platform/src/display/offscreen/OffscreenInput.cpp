// The user of the offscreen display: what pointer, keyboard and desktop report.

#include "display/offscreen/OffscreenDisplay.h"
#include "display/offscreen/OffscreenSurface.h"
#include "platform/VirtualKeys.h"

namespace display {
namespace {

using Kind = Input::Kind;

int KeyOf(MouseButton button) {
  constexpr int kKeys[] = {VK_LBUTTON, VK_RBUTTON, VK_MBUTTON, VK_XBUTTON1, VK_XBUTTON2};
  return kKeys[static_cast<std::size_t>(button)];
}

bool IsExtended(int key) {
  return (key >= VK_PRIOR && key <= VK_DOWN) || key == VK_INSERT || key == VK_DELETE ||
         key == VK_LWIN || key == VK_RWIN || key == VK_APPS || key == VK_RCONTROL ||
         key == VK_RMENU || key == VK_DIVIDE || key == VK_NUMLOCK;
}

}  // namespace

void OffscreenDisplay::Report(Input input) {
  input.time = static_cast<std::uint32_t>(now_);
  const bool follows = !records_.empty() && records_.back().surface == input.surface &&
                       records_.back().kind == Kind::PointerMoved;
  if (follows && input.kind == Kind::PointerMoved) records_.pop_back();
  records_.push_back(std::move(input));
}

SurfaceId OffscreenDisplay::SurfaceAt(POINT screen) const {
  for (const SurfaceId id : stack_)
    if (Get(id).place.Contains(screen)) return id;
  return 0;
}

SurfaceId OffscreenDisplay::PointerTarget() const {
  if (grabbing_ != 0) return grabbing_;
  return pressedOn_ != 0 ? pressedOn_ : SurfaceAt(pointer_);
}

Input OffscreenDisplay::PointerRecord(Kind kind) const {
  return {.kind = kind, .surface = PointerTarget(), .position = pointer_};
}

void OffscreenDisplay::FollowPointer() {
  const SurfaceId target = PointerTarget();
  if (pointerOver_ != 0 && pointerOver_ != target && IsShown(pointerOver_))
    Report({.kind = Kind::PointerLeft, .surface = pointerOver_, .position = pointer_});
  pointerOver_ = target;
}

void OffscreenDisplay::MovePointer(POINT screen) {
  pointer_ = screen;
  FollowPointer();
  if (PointerTarget() != 0) Report(PointerRecord(Kind::PointerMoved));
}

void OffscreenDisplay::SetButton(MouseButton button, bool down) {
  SetKey(KeyOf(button), down);
  Input record = PointerRecord(down ? Kind::ButtonDown : Kind::ButtonUp);
  record.button = button;
  if (record.surface != 0) Report(std::move(record));
}

void OffscreenDisplay::PressButton(MouseButton button) {
  SetButton(button, true);
  if (buttonsDown_++ == 0) pressedOn_ = PointerTarget();
}

void OffscreenDisplay::ReleaseButton(MouseButton button) {
  SetButton(button, false);
  if (buttonsDown_ > 0 && --buttonsDown_ == 0) pressedOn_ = 0;
  FollowPointer();
}

void OffscreenDisplay::TurnWheel(int delta, bool horizontal) {
  Input record = PointerRecord(Kind::Wheel);
  record.wheelDelta = delta;
  record.horizontalWheel = horizontal;
  if (record.surface != 0) Report(std::move(record));
}

void OffscreenDisplay::SetKey(int virtualKey, bool down) {
  Key& key = keys_.at(static_cast<std::size_t>(virtualKey));
  if (down && !key.down) key.toggled = !key.toggled;
  key.down = down;
}

Input OffscreenDisplay::KeyRecord(Kind kind, int virtualKey) const {
  return {.kind = kind,
          .surface = focused_,
          .virtualKey = virtualKey,
          .extendedKey = IsExtended(virtualKey)};
}

void OffscreenDisplay::PressKey(int virtualKey, const std::u32string& text, bool repeated) {
  SetKey(virtualKey, true);
  if (focused_ == 0) return;
  Input record = KeyRecord(Kind::KeyDown, virtualKey);
  record.text = text;
  record.repeated = repeated;
  Report(std::move(record));
}

void OffscreenDisplay::ReleaseKey(int virtualKey) {
  SetKey(virtualKey, false);
  if (focused_ != 0) Report(KeyRecord(Kind::KeyUp, virtualKey));
}

void OffscreenDisplay::SetToggled(int virtualKey, bool toggled) {
  keys_.at(static_cast<std::size_t>(virtualKey)).toggled = toggled;
}

bool OffscreenDisplay::IsKeyDown(int virtualKey) const {
  return keys_.at(static_cast<std::size_t>(virtualKey)).down;
}

bool OffscreenDisplay::IsKeyToggled(int virtualKey) const {
  return keys_.at(static_cast<std::size_t>(virtualKey)).toggled;
}

void OffscreenDisplay::DragFiles(POINT screen) {
  const SurfaceId target = SurfaceAt(screen);
  if (target != 0) Report({.kind = Kind::FilesDragged, .surface = target, .position = screen});
}

void OffscreenDisplay::DropFiles(POINT screen, const std::vector<std::wstring>& files) {
  DragFiles(screen);
  const SurfaceId target = SurfaceAt(screen);
  if (target != 0)
    Report({.kind = Kind::FilesDropped, .surface = target, .position = screen, .files = files});
}

void OffscreenDisplay::RequestClose(SurfaceId id) {
  Report({.kind = Kind::CloseRequested, .surface = id});
}

void OffscreenDisplay::ChangeResolution(int dpi) {
  dpi_ = dpi;
  Report({.kind = Kind::ResolutionChanged, .dpi = dpi});
}

void OffscreenDisplay::ChangeScheme(SystemScheme scheme) {
  scheme_ = scheme;
  Report({.kind = Kind::ColorsChanged});
}

void OffscreenDisplay::PlaceByDesktop(SurfaceId id, const RECT& place) {
  const CRect before = Get(id).place;
  const CRect after = place;
  MoveSurface(id, place);
  if (after.left != before.left || after.top != before.top)
    Report({.kind = Kind::Moved, .surface = id, .position = after.TopLeft()});
  if (after.Width() != before.Width() || after.Height() != before.Height())
    Report({.kind = Kind::Resized, .surface = id, .size = after.Size()});
}

void OffscreenDisplay::LoseFocus() {
  GiveFocus(0);
}

}  // namespace display
