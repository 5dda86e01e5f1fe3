#pragma once

#include <cstdint>
#include <functional>
#include <list>
#include <memory>
#include <mutex>
#include <utility>

#include "WexaExport.h"

namespace Wexa {

class BaseGUIObject;

// A call on its way to the receiver's window: run there once, later.
struct DeferredCall {
  std::function<void()> call;
  bool done = false;
};

// Posts the call to the receiver's native window; it is dropped when the window dies first or when
// nobody but the window's queue still holds it. False when the receiver has no native window.
// Any thread.
WEXA_API bool PostDeferredCall(BaseGUIObject* receiver, const std::shared_ptr<DeferredCall>& call);
// Whether the receiver's implementation has a native window.
WEXA_API bool CanReceiveDeferredCalls(BaseGUIObject* receiver);

enum class ConnectionMode { Direct = 0, Queued = 1 };

// A widget's list of callables for one notification. Connections are called in the order in which
// they were made: at once, or posted to their receiver's window. A list that dies while it fires, or
// with posted calls under way, drops what is left.
template <typename... Args>
class CallbackList {
 public:
  using Callback = std::function<void(Args...)>;
  using ConnectionId = std::uint64_t;

  CallbackList() : state_(std::make_shared<State>()) {}
  CallbackList(const CallbackList&) = delete;
  CallbackList& operator=(const CallbackList&) = delete;
  ~CallbackList() { state_->alive = false; }

  // Calls `callback` at once with every firing. An empty callable makes firing throw
  // std::bad_function_call. Returns the id for Disconnect, never 0.
  ConnectionId Connect(Callback callback) {
    return Add({ConnectionMode::Direct, std::move(callback), nullptr});
  }
  // Posts each call to the receiver's window, to run after the current handler. Calls are dropped
  // while the receiver has no window. The receiver must live as long as the connection.
  ConnectionId Connect(BaseGUIObject* receiver, Callback callback) {
    return Add({ConnectionMode::Queued, std::move(callback), receiver});
  }
  // Nothing happens for an id that is not connected.
  void Disconnect(ConnectionId id) {
    std::lock_guard lock(state_->lock);
    state_->connections.remove_if([id](const auto& c) { return c->id == id; });
  }
  // While blocked, firing does nothing.
  void Block(bool blocked) { state_->blocked = blocked; }
  bool IsBlocked() const { return state_->blocked; }
  bool IsEmpty() const { return state_->connections.empty(); }

  // Fires the list. A direct callable must not fire the same list again.
  void operator()(Args... args) const {
    if (state_->blocked || state_->connections.empty()) return;
    Fire(state_, args...);
  }

 private:
  struct Connection {
    ConnectionMode mode;
    Callback callback;
    BaseGUIObject* receiver;
    ConnectionId id = 0;
  };

  struct State {
    std::list<std::shared_ptr<Connection>> connections;
    std::recursive_mutex lock;
    std::list<std::shared_ptr<DeferredCall>> pending;
    ConnectionId lastId = 0;
    bool blocked = false;
    bool alive = true;
  };

  ConnectionId Add(Connection connection) {
    std::lock_guard lock(state_->lock);
    connection.id = ++state_->lastId;
    state_->connections.push_back(std::make_shared<Connection>(std::move(connection)));
    return state_->lastId;
  }

  // Works on a share of the state: a callable may destroy the list, or change its connections.
  static void Fire(const std::shared_ptr<State> state, const Args&... args) {
    std::lock_guard lock(state->lock);
    const auto connections = state->connections;
    for (const auto& connection : connections) {
      if (!state->alive) return;
      if (connection->mode == ConnectionMode::Direct) {
        connection->callback(args...);
      } else {
        Post(*state, *connection, args...);
      }
    }
  }

  static void Post(State& state, const Connection& connection, const Args&... args) {
    if (!CanReceiveDeferredCalls(connection.receiver)) return;
    state.pending.remove_if([](const auto& call) { return call->done; });
    auto call = std::make_shared<DeferredCall>();
    call->call = [callback = connection.callback, args...] { callback(args...); };
    state.pending.push_back(call);
    PostDeferredCall(connection.receiver, call);
  }

  std::shared_ptr<State> state_;
};

}  // namespace Wexa
