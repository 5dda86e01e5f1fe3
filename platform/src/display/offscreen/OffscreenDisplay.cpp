#include "display/offscreen/OffscreenDisplay.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "display/offscreen/OffscreenSurface.h"

namespace display {

OffscreenDisplay::OffscreenDisplay(int dpi) : dpi_(dpi) {}

OffscreenDisplay::~OffscreenDisplay() = default;

OffscreenDisplay::Surface* OffscreenDisplay::Find(SurfaceId id) const {
  auto found = surfaces_.find(id);
  return found == surfaces_.end() ? nullptr : found->second.get();
}

const OffscreenDisplay::Surface& OffscreenDisplay::Get(SurfaceId id) const {
  return *surfaces_.at(id);
}

RECT OffscreenDisplay::WorkArea() const {
  constexpr int kWidth = 1920, kHeight = 1080;
  return {0, 0, kWidth * dpi_ / 96, kHeight * dpi_ / 96};
}

void OffscreenDisplay::CreateSurface(SurfaceId id, SurfaceKind kind, SurfaceId owner,
                                     const RECT& place) {
  auto surface = std::make_unique<Surface>(Surface{.kind = kind, .owner = owner, .place = place});
  surface->Allocate();
  surfaces_[id] = std::move(surface);
}

void OffscreenDisplay::DestroySurface(SurfaceId id) {
  ShowSurface(id, false);
  surfaces_.erase(id);
  if (pressedOn_ == id) pressedOn_ = 0;
  if (grabbing_ == id) grabbing_ = 0;
}

void OffscreenDisplay::MoveSurface(SurfaceId id, const RECT& place) {
  Surface* surface = Find(id);
  if (!surface) return;
  const CRect before = std::exchange(surface->place, CRect(place));
  if (before.Width() != surface->place.Width() || before.Height() != surface->place.Height())
    surface->Allocate();
}

void OffscreenDisplay::ShowSurface(SurfaceId id, bool show) {
  const Surface* surface = Find(id);
  if (!surface || IsShown(id) == show) return;
  if (show) {
    stack_.insert(stack_.begin(), id);
    if (surface->kind == SurfaceKind::Dialog) GiveFocus(id);
  } else {
    std::erase(stack_, id);
    if (focused_ == id) GiveFocus(0);
  }
}

void OffscreenDisplay::SetTitle(SurfaceId id, const std::wstring& title) {
  if (Surface* surface = Find(id)) surface->title = title;
}

void OffscreenDisplay::SetResizable(SurfaceId id, bool resizable, SIZE, SIZE) {
  if (Surface* surface = Find(id)) surface->resizable = resizable;
}

void OffscreenDisplay::SetModal(SurfaceId id, bool modal) {
  if (Surface* surface = Find(id)) surface->modal = modal;
}

void OffscreenDisplay::SetCursor(SurfaceId id, CursorShape shape) {
  Surface* surface = Find(id);
  if (!surface) return;
  surface->cursor = shape;
  surface->cursorPicture.reset();
}

void OffscreenDisplay::SetCursorPicture(SurfaceId id, const CursorPicture& picture) {
  if (Surface* surface = Find(id)) surface->cursorPicture = picture;
}

void OffscreenDisplay::RaiseSurface(SurfaceId id) {
  if (std::erase(stack_, id)) stack_.insert(stack_.begin(), id);
}

void OffscreenDisplay::FocusSurface(SurfaceId id) {
  if (IsShown(id)) GiveFocus(id);
}

void OffscreenDisplay::GiveFocus(SurfaceId id) {
  if (focused_ == id) return;
  if (focused_ != 0) Report({.kind = Input::Kind::FocusOut, .surface = focused_});
  focused_ = id;
  if (focused_ != 0) Report({.kind = Input::Kind::FocusIn, .surface = focused_});
}

Pixels OffscreenDisplay::LockPixels(SurfaceId id) {
  Surface* surface = Find(id);
  if (!surface || surface->room == 0) return {};
  const int width = surface->place.Width();
  return {surface->pixels.get(), width, surface->place.Height(),
          width * static_cast<int>(sizeof(std::uint32_t))};
}

void OffscreenDisplay::Present(SurfaceId id, const RECT* damaged, std::size_t count) {
  Surface* surface = Find(id);
  if (surface) surface->presented.insert(surface->presented.end(), damaged, damaged + count);
}

std::optional<Input> OffscreenDisplay::Poll() {
  if (records_.empty()) return std::nullopt;
  Input record = std::move(records_.front());
  records_.pop_front();
  return record;
}

bool OffscreenDisplay::Wait(std::optional<std::uint64_t> deadline) {
  if (woken_.exchange(false) || !records_.empty()) return true;
  if (!deadline) return false;
  now_ = std::max(now_, *deadline);
  return true;
}

bool OffscreenDisplay::IsShown(SurfaceId id) const {
  return std::find(stack_.begin(), stack_.end(), id) != stack_.end();
}

RECT OffscreenDisplay::PlaceOf(SurfaceId id) const {
  return Get(id).place;
}

std::wstring OffscreenDisplay::TitleOf(SurfaceId id) const {
  return Get(id).title;
}

CursorShape OffscreenDisplay::CursorOf(SurfaceId id) const {
  return Get(id).cursor;
}

const std::optional<CursorPicture>& OffscreenDisplay::CursorPictureOf(SurfaceId id) const {
  return Get(id).cursorPicture;
}

bool OffscreenDisplay::IsModal(SurfaceId id) const {
  return Get(id).modal;
}

bool OffscreenDisplay::IsResizable(SurfaceId id) const {
  return Get(id).resizable;
}

SurfaceKind OffscreenDisplay::KindOf(SurfaceId id) const {
  return Get(id).kind;
}

std::uint32_t OffscreenDisplay::PixelAt(SurfaceId id, int x, int y) const {
  const Surface& surface = Get(id);
  if (!CRect(0, 0, surface.place.Width(), surface.place.Height()).Contains(POINT{x, y})) return 0;
  return surface
      .pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(surface.place.Width()) +
              static_cast<std::size_t>(x)];
}

const std::vector<RECT>& OffscreenDisplay::Presented(SurfaceId id) const {
  return Get(id).presented;
}

void OffscreenDisplay::ForgetPresented() {
  for (auto& [id, surface] : surfaces_) surface->presented.clear();
}

}  // namespace display
