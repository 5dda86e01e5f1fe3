#include "window/Session.h"

#include "platform/Postponed.h"
#include "platform/SessionState.h"
#include "window/Queue.h"

namespace core {
namespace {

// Never destroyed at exit: windows that outlive main still find it.
std::unique_ptr<Session>& Instance() {
  static auto& instance = *new std::unique_ptr<Session>(std::make_unique<Session>());
  return instance;
}

// The windows go with their display. No later window takes over a handle of theirs.
void BeginAnew() {
  for (const HWND window : GetTopLevelWindows()) RunPostponing([=] { DestroyWindow(window); });
  if (Window* desktop = Find(CurrentSession().desktop)) RemoveWindow(*desktop);
  DropPosted();
  auto next = std::make_unique<Session>();
  next->windows = std::move(CurrentSession().windows);
  Instance() = std::move(next);
}

[[maybe_unused]] const bool exchanges = [] {
  display::BeforeExchange(BeginAnew);
  return true;
}();

}  // namespace

Session& CurrentSession() {
  return *Instance();
}

}  // namespace core

std::shared_ptr<void>& SessionStateOf(std::type_index type) {
  return core::CurrentSession().others[type];
}
