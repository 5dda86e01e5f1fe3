#include "window/Timers.h"

#include <algorithm>

#include "window/Session.h"
#include "window/WindowObject.h"

namespace core {
namespace {

std::vector<Timer>& Timers() {
  return CurrentSession().timers;
}

std::vector<Timer>::iterator FindTimer(HWND window, UINT_PTR id) {
  return std::find_if(Timers().begin(), Timers().end(),
                      [&](const Timer& t) { return t.window == window && t.id == id; });
}

std::vector<Timer>::iterator Earliest() {
  return std::min_element(Timers().begin(), Timers().end(),
                          [](const Timer& a, const Timer& b) { return a.due < b.due; });
}

}  // namespace

std::optional<MSG> TakeDueTimer() {
  auto timer = Earliest();
  if (timer == Timers().end()) return std::nullopt;
  const std::uint64_t now = display::Current().Now();
  if (timer->due > now) return std::nullopt;
  timer->due = now + timer->period;
  return MSG{timer->window,
             WM_TIMER,
             timer->id,
             0,
             static_cast<DWORD>(now),
             display::Current().PointerPosition()};
}

std::optional<std::uint64_t> NextTimer() {
  auto timer = Earliest();
  if (timer == Timers().end()) return std::nullopt;
  return timer->due;
}

void ForgetTimers(HWND window) {
  std::erase_if(Timers(), [&](const Timer& t) { return t.window == window; });
}

}  // namespace core

UINT_PTR SetTimer(HWND window, UINT_PTR id, UINT milliseconds) {
  if (!core::Find(window)) return 0;
  const UINT period = std::max(milliseconds, 1U);
  const core::Timer timer{window, id, period, display::Current().Now() + period};
  auto known = core::FindTimer(window, id);
  if (known == core::Timers().end())
    core::Timers().push_back(timer);
  else
    *known = timer;
  return std::max<UINT_PTR>(id, 1);
}

BOOL KillTimer(HWND window, UINT_PTR id) {
  auto timer = core::FindTimer(window, id);
  if (timer == core::Timers().end()) return FALSE;
  core::Timers().erase(timer);
  return TRUE;
}

DWORD GetTickCount() {
  return static_cast<DWORD>(display::Current().Now());
}
