#include "MFC/base/DeferredCalls.h"

#include <memory>
#include <mutex>
#include <unordered_map>

#include "CallbackList.h"
#include "platform/Window.h"

namespace Wexa {

namespace {

// The widgets that have a window, and the calls on their way through its queue. The queue carries a
// token, never an address, so a call whose owner dies first is simply not found; nor does a posting
// thread look into a widget.
class CallsUnderWay {
 public:
  void AddReceiver(BaseGUIObject* receiver, HWND window) {
    RemoveReceiver(receiver);
    std::lock_guard lock(lock_);
    receivers_[receiver].window = window;
  }

  // What its window's queue still carries will never run.
  void RemoveReceiver(BaseGUIObject* receiver) {
    for (const auto& [token, waiting] : TakeOut(receiver).calls)
      if (const auto call = waiting.lock()) call->done = true;
  }

  HWND WindowOf(BaseGUIObject* receiver) {
    std::lock_guard lock(lock_);
    auto found = receivers_.find(receiver);
    return found == receivers_.end() ? nullptr : found->second.window;
  }

  bool Post(BaseGUIObject* receiver, const std::shared_ptr<DeferredCall>& call) {
    std::lock_guard lock(lock_);
    auto found = receivers_.find(receiver);
    if (found == receivers_.end()) return false;
    if (!PostMessageW(found->second.window, kDeferredCallMessage, ++lastToken_, 0)) return false;
    found->second.calls.emplace(lastToken_, call);
    return true;
  }

  std::shared_ptr<DeferredCall> Take(BaseGUIObject* receiver, std::uintptr_t token) {
    std::lock_guard lock(lock_);
    auto found = receivers_.find(receiver);
    if (found == receivers_.end()) return nullptr;
    auto waiting = found->second.calls.extract(token);
    return waiting ? waiting.mapped().lock() : nullptr;
  }

 private:
  struct Receiver {
    HWND window = nullptr;
    std::unordered_map<std::uintptr_t, std::weak_ptr<DeferredCall>> calls;
  };

  Receiver TakeOut(BaseGUIObject* receiver) {
    std::lock_guard lock(lock_);
    auto found = receivers_.extract(receiver);
    return found ? std::move(found.mapped()) : Receiver{};
  }

  std::mutex lock_;
  std::unordered_map<BaseGUIObject*, Receiver> receivers_;
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
  if (Calls().WindowOf(receiver) == window) Calls().RemoveReceiver(receiver);
}

bool CanReceiveDeferredCalls(BaseGUIObject* receiver) {
  return Calls().WindowOf(receiver) != nullptr;
}

bool PostDeferredCall(BaseGUIObject* receiver, const std::shared_ptr<DeferredCall>& call) {
  return Calls().Post(receiver, call);
}

void RunDeferredCall(BaseGUIObject* receiver, std::uintptr_t token) {
  auto call = Calls().Take(receiver, token);
  if (!call || call->done.exchange(true)) return;
  call->call();
}

}  // namespace Wexa
