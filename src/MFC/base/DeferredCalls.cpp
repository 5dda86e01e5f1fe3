#include "MFC/base/DeferredCalls.h"

#include <memory>
#include <mutex>
#include <unordered_map>

#include "CallbackList.h"
#include "platform/Window.h"

namespace Wexa {

namespace {

// Calls on their way through a window's queue, and the widgets that have one. The queue carries a
// token, never an address, so a call whose owner dies first is simply not found; nor does a posting
// thread look into a widget.
class CallsUnderWay {
 public:
  void AddReceiver(BaseGUIObject* receiver, HWND window) {
    std::lock_guard lock(lock_);
    receivers_[receiver] = window;
  }

  void RemoveReceiver(BaseGUIObject* receiver, HWND window) {
    std::lock_guard lock(lock_);
    auto found = receivers_.find(receiver);
    if (found != receivers_.end() && found->second == window) receivers_.erase(found);
  }

  HWND WindowOf(BaseGUIObject* receiver) {
    std::lock_guard lock(lock_);
    auto found = receivers_.find(receiver);
    return found == receivers_.end() ? nullptr : found->second;
  }

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
  std::unordered_map<BaseGUIObject*, HWND> receivers_;
  std::uintptr_t lastToken_ = 0;
};

CallsUnderWay& Calls() {
  static CallsUnderWay& calls = *new CallsUnderWay;  // threads may post to the very end
  return calls;
}

}  // namespace

void AddReceiver(BaseGUIObject* receiver, HWND window) {
  Calls().AddReceiver(receiver, window);
}

void RemoveReceiver(BaseGUIObject* receiver, HWND window) {
  Calls().RemoveReceiver(receiver, window);
}

bool CanReceiveDeferredCalls(BaseGUIObject* receiver) {
  return Calls().WindowOf(receiver) != nullptr;
}

bool PostDeferredCall(BaseGUIObject* receiver, const std::shared_ptr<DeferredCall>& call) {
  HWND window = Calls().WindowOf(receiver);
  if (!window) return false;
  std::uintptr_t token = Calls().Add(call);
  if (PostMessageW(window, kDeferredCallMessage, token, 0)) return true;
  Calls().Take(token);
  return false;
}

void RunDeferredCall(std::uintptr_t token) {
  auto call = Calls().Take(token);
  if (!call || call->done.exchange(true)) return;
  call->call();
}

}  // namespace Wexa
