#include "window/Queue.h"

#include <algorithm>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <optional>
#include <utility>

#include "platform/Postponed.h"
#include "platform/SystemColors.h"
#include "window/Dispatch.h"
#include "window/InputRouting.h"
#include "window/MouseTracking.h"
#include "window/PaintPass.h"
#include "window/Session.h"
#include "window/Timers.h"

namespace core {
namespace {

struct PostedMessages {
  std::mutex mutex;
  std::deque<MSG> messages;
  display::Display* waiting = nullptr;  // to be woken
  int expected = 0;                     // threads that will still post
  std::condition_variable changed;
};

// Posting threads may outlive the statics of the main thread, so this is never destroyed.
PostedMessages& Posted() {
  static PostedMessages& posted = *new PostedMessages;
  return posted;
}

std::optional<MSG> TakePosted() {
  PostedMessages& posted = Posted();
  std::lock_guard lock(posted.mutex);
  while (!posted.messages.empty()) {
    MSG message = posted.messages.front();
    posted.messages.pop_front();
    if (message.hwnd && !IsWindow(message.hwnd)) continue;
    message.time = GetTickCount();
    GetCursorPos(&message.pt);
    return message;
  }
  return std::nullopt;
}

std::optional<MSG> TakePeeked() {
  std::optional<MSG> message = std::exchange(CurrentSession().peeked, std::nullopt);
  const bool stale = message && message->hwnd && !IsWindow(message->hwnd);
  return stale ? std::nullopt : message;
}

std::optional<MSG> TakeQuit() {
  if (!CurrentSession().quit || HasPosted()) return std::nullopt;
  const int code = *std::exchange(CurrentSession().quit, std::nullopt);
  return MSG{nullptr, WM_QUIT, static_cast<WPARAM>(code), 0, GetTickCount(), {}};
}

std::optional<MSG> TakeQueued() {
  if (auto message = TakePeeked()) return message;
  if (auto message = TakePosted()) return message;
  if (auto message = TakeQuit()) return message;
  if (auto message = TakeInput()) return message;
  return TakePosted();  // by what the input caused
}

// One round through the sources, in their order.
std::optional<MSG> TakeMessage() {
  ThrowPostponed();
  BroadcastSchemeChange();
  if (auto message = TakeQueued()) return message;
  if (PaintNow())
    if (auto message = TakeQueued()) return message;
  PostDueHover();
  if (auto message = TakePosted()) return message;
  return TakeDueTimer();
}

std::optional<std::uint64_t> Deadline() {
  if (IsPaintDue()) return display::Current().Now();
  const auto timer = NextTimer();
  const auto hover = NextHover();
  if (!timer || !hover) return timer ? timer : hover;
  return std::min(*timer, *hover);
}

class Waiting {
 public:
  Waiting() {
    std::lock_guard lock(Posted().mutex);
    Posted().waiting = &display::Current();
  }
  ~Waiting() {
    std::lock_guard lock(Posted().mutex);
    Posted().waiting = nullptr;
  }
  Waiting(const Waiting&) = delete;
  Waiting& operator=(const Waiting&) = delete;
};

// Until a thread posts, or none will any more: then false.
bool WaitForPost() {
  PostedMessages& posted = Posted();
  std::unique_lock lock(posted.mutex);
  posted.changed.wait(lock, [&] { return !posted.messages.empty() || posted.expected == 0; });
  return !posted.messages.empty();
}

// False when nothing can happen any more.
bool WaitForMessage() {
  Waiting waiting;
  if (HasPosted()) return true;
  return display::Current().Wait(Deadline()) || WaitForPost();
}

void ExpectMore(int change) {
  PostedMessages& posted = Posted();
  std::lock_guard lock(posted.mutex);
  posted.expected += change;
  posted.changed.notify_one();
}

}  // namespace

void ThrowPostponed() {
  if (CurrentSession().postponed)
    std::rethrow_exception(std::exchange(CurrentSession().postponed, nullptr));
}

void DropPosted() {
  std::lock_guard lock(Posted().mutex);
  Posted().messages.clear();
}

bool HasPosted() {
  std::lock_guard lock(Posted().mutex);
  return !Posted().messages.empty();
}

}  // namespace core

BOOL PostMessageW(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (window && core::OnWindowThread() && !IsWindow(window)) return FALSE;
  core::PostedMessages& posted = core::Posted();
  std::lock_guard lock(posted.mutex);
  posted.messages.push_back({window, message, wParam, lParam, 0, {}});
  if (posted.waiting) posted.waiting->Wake();
  posted.changed.notify_one();
  return TRUE;
}

void ExpectPosts() {
  core::ExpectMore(1);
}

void ExpectNoMorePosts() {
  core::ExpectMore(-1);
}

// The message wakes a pump that waits.
void PostponeException(std::exception_ptr exception) {
  if (!core::CurrentSession().postponed) core::CurrentSession().postponed = std::move(exception);
  PostMessageW(nullptr, WM_NULL, 0, 0);
}

void PostQuitMessage(int exitCode) {
  core::CurrentSession().quit = exitCode;
}

BOOL GetMessageW(MSG* message) {
  if (!message) return FALSE;
  for (;;) {
    if (auto taken = core::TakeMessage()) {
      *message = *taken;
      return taken->message != WM_QUIT;
    }
    if (!core::WaitForMessage()) return FALSE;
  }
}

BOOL PeekMessageW(MSG* message, UINT flags) {
  if (!message) return FALSE;
  auto taken = core::TakeMessage();
  if (!taken) return FALSE;
  *message = *taken;
  if (!(flags & PM_REMOVE)) core::CurrentSession().peeked = taken;
  return TRUE;
}
