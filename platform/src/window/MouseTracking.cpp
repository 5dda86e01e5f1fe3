#include "window/MouseTracking.h"

#include <utility>

#include "window/Coordinates.h"
#include "window/KeyState.h"
#include "window/Session.h"

namespace core {
namespace {

Tracking& Request() {
  return CurrentSession().tracking;
}

void StartHover(Tracking& request) {
  request.restingPlace = CurrentSession().pointerPlace;
  request.hoverDue = display::Current().Now() + request.hoverTime;
}

bool HasMovedAway(const Tracking& request, POINT screen) {
  const int reach = ScaleUnits(4) / 2;
  return std::abs(screen.x - request.restingPlace.x) > reach ||
         std::abs(screen.y - request.restingPlace.y) > reach;
}

void Leave() {
  const Tracking left = std::exchange(Request(), {});
  if (left.leave && Find(left.window)) PostMessageW(left.window, WM_MOUSELEAVE, 0, 0);
}

}  // namespace

void NotePointerOver(const Window* window, POINT screen) {
  CurrentSession().pointerOver = window ? window->handle : nullptr;
  CurrentSession().pointerPlace = screen;
  Tracking& request = Request();
  if (!request.window) return;
  if (request.window != CurrentSession().pointerOver)
    Leave();
  else if (request.hover && HasMovedAway(request, screen))
    StartHover(request);
}

std::optional<std::uint64_t> NextHover() {
  if (!Request().hover || !Find(Request().window)) return std::nullopt;
  return Request().hoverDue;
}

void PostDueHover() {
  const auto due = NextHover();
  if (!due || *due > display::Current().Now()) return;
  Tracking& request = Request();
  request.hover = false;
  const POINT p = ToClient(*Find(request.window), CurrentSession().pointerPlace);
  PostMessageW(request.window, WM_MOUSEHOVER, MouseKeys(), MAKELPARAM(p.x, p.y));
  if (!request.leave) request = {};
}

}  // namespace core

BOOL TrackMouseEvent(TRACKMOUSEEVENT* request) {
  constexpr DWORD kDefaultHover = 0xFFFFFFFF;
  constexpr UINT kHoverTime = 400;
  if (!request || !core::Find(request->hwndTrack)) return FALSE;
  core::Tracking& tracking = core::Request();
  if (tracking.window != request->hwndTrack) tracking = {};
  tracking.window = request->hwndTrack;
  const bool ownTime = request->dwHoverTime != kDefaultHover && request->dwHoverTime != 0;
  tracking.leave |= (request->dwFlags & TME_LEAVE) != 0;
  if (request->dwFlags & TME_HOVER) {
    tracking.hover = true;
    tracking.hoverTime = ownTime ? request->dwHoverTime : kHoverTime;
    core::StartHover(tracking);
  }
  if (core::CurrentSession().pointerOver != request->hwndTrack) core::Leave();
  return TRUE;
}
