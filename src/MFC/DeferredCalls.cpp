#include "MFC/DeferredCalls.h"

#include <memory>
#include <mutex>
#include <unordered_map>

#include "BaseGUIObject.h"
#include "CallbackList.h"
#include "platform/Window.h"

namespace Wexa {

namespace {

// Calls on their way through a window's queue. The queue carries a token, never an address, so a
// call whose owner dies first is simply not found.
class CallsUnderWay {
 public:
  std::uintptr_t Add(const std::shared_ptr<DeferredCall>& call) {
    std::lock_guard lock(lock_);
    calls_.emplace(++lastToken_, call);
    return lastToken_;
  }

  std::shared_ptr<DeferredCall> Take(std::uintptr_t token) {
    std::lock_guard lock(lock_);
    auto found = calls_.find(token);
    if (found == calls_.end()) return nullptr;
    auto call = found->second.lock();
    calls_.erase(found);
    return call;
  }

 private:
  std::mutex lock_;
  std::unordered_map<std::uintptr_t, std::weak_ptr<DeferredCall>> calls_;
  std::uintptr_t lastToken_ = 0;
};

CallsUnderWay& Calls() {
  static CallsUnderWay calls;
  return calls;
}

}  // namespace

bool CanReceiveDeferredCalls(BaseGUIObject* receiver) {
  return receiver && receiver->GetPlatformHandle() != nullptr;
}

bool PostDeferredCall(BaseGUIObject* receiver, const std::shared_ptr<DeferredCall>& call) {
  HWND window = receiver ? receiver->GetPlatformHandle() : nullptr;
  if (!window) return false;
  std::uintptr_t token = Calls().Add(call);
  if (PostMessageW(window, kDeferredCallMessage, token, 0)) return true;
  Calls().Take(token);
  return false;
}

void RunDeferredCall(std::uintptr_t token) {
  auto call = Calls().Take(token);
  if (!call || call->done) return;
  call->done = true;
  call->call();
}

}  // namespace Wexa
