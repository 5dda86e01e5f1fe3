#pragma once

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <functional>
#include <list>
#include <memory>
#include <mutex>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

#include "ScopedConnection.h"
#include "WexaExport.h"

namespace Wexa {

class BaseGUIObject;

// A call on its way to the receiver's window: run there once, later.
struct DeferredCall {
  std::function<void()> call;
  std::atomic<bool> done = false;
};

// Posts the call to the receiver's native window; it is dropped when the window dies first or when
// nobody but the window's queue still holds it. False when the receiver has no native window, or is
// gone. Any thread.
WEXA_API bool PostDeferredCall(BaseGUIObject* receiver, const std::shared_ptr<DeferredCall>& call);
// Whether the receiver has a native window. Any thread.
WEXA_API bool CanReceiveDeferredCalls(BaseGUIObject* receiver);

enum class ConnectionMode { Direct = 0, Queued = 1 };

// A widget's list of callables for one notification. Connections are called in the order in which
// they were made: at once, or posted to their receiver's window. A list that dies while it fires,
// or with posted calls under way, drops what is left. Other threads fire through a Sender.
template <typename... Args>
class CallbackList {
 private:
  struct State;

 public:
  using Callback = std::function<void(Args...)>;
  using ConnectionId = std::uint64_t;

  // Fires a list from any thread for as long as the list lives, and does nothing after that. Direct
  // connections run on the thread that fires.
  class Sender {
   public:
    void operator()(Args... args) const { Fire(state_, args...); }

   private:
    friend class CallbackList;
    explicit Sender(std::shared_ptr<State> state) : state_(std::move(state)) {}
    std::shared_ptr<State> state_;
  };

  CallbackList() : state_(std::make_shared<State>()) {}
  CallbackList(const CallbackList&) = delete;
  CallbackList& operator=(const CallbackList&) = delete;
  ~CallbackList() { state_->alive = false; }

  // Calls `callback` at once with every firing. An empty callable makes firing throw
  // std::bad_function_call. Returns the id for Disconnect, never 0.
  ConnectionId Connect(Callback callback) {
    return state_->Add(ConnectionMode::Direct, std::move(callback), nullptr);
  }
  // Posts each call to the receiver's window, to run after the current handler, with copies of the
  // arguments, those passed by reference too. Calls are dropped while the receiver has no window,
  // and when it is gone.
  ConnectionId Connect(BaseGUIObject* receiver, Callback callback) {
    return state_->Add(ConnectionMode::Queued, std::move(callback), receiver);
  }
  // Also while the list fires: the connection is not called any more. Nothing happens for an id
  // that is not connected.
  void Disconnect(ConnectionId id) { state_->Disconnect(id); }
  // While blocked, firing does nothing.
  void Block(bool blocked) { state_->blocked = blocked; }
  bool IsBlocked() const { return state_->blocked; }
  bool IsEmpty() const { return state_->connectionCount == 0; }
  Sender GetSender() const { return Sender(state_); }

  // Fires the list. A direct callable must not fire the same list again.
  void operator()(Args... args) const {
    if (IsEmpty()) return;
    Fire(state_, args...);
  }

 private:
  friend class ScopedConnection;

  struct Connection {
    Connection(ConnectionMode m, Callback c, BaseGUIObject* r, ConnectionId i)
        : mode(m), callback(std::move(c)), receiver(r), id(i) {}
    ConnectionMode mode;
    Callback callback;
    BaseGUIObject* receiver;
    ConnectionId id;
    std::atomic<bool> connected = true;
  };
  using Connections = std::vector<std::shared_ptr<Connection>>;

  // Connections are replaced as a whole, so that a firing works on those it began with.
  struct State final : ConnectionOwner {
    ConnectionId Add(ConnectionMode mode, Callback callback, BaseGUIObject* receiver) {
      std::lock_guard guard(lock);
      auto changed = std::make_shared<Connections>(*connections);
      changed->push_back(
          std::make_shared<Connection>(mode, std::move(callback), receiver, ++lastId));
      Replace(std::move(changed));
      return lastId;
    }

    void Disconnect(ConnectionId id) override {
      std::lock_guard guard(lock);
      auto changed = std::make_shared<Connections>(*connections);
      std::erase_if(*changed, [id](const auto& connection) {
        if (connection->id == id) connection->connected = false;
        return connection->id == id;
      });
      Replace(std::move(changed));
    }

    void Replace(std::shared_ptr<const Connections> changed) {
      connectionCount = changed->size();
      connections = std::move(changed);
    }

    void Post(const Connection& connection, const Args&... args) {
      if (!CanReceiveDeferredCalls(connection.receiver)) return;
      while (!pending.empty() && pending.front()->done) pending.pop_front();
      auto call = std::make_shared<DeferredCall>();
      call->call = [callback = connection.callback,
                    values = std::tuple<std::decay_t<Args>...>(args...)]() mutable {
        std::apply(callback, values);
      };
      pending.push_back(call);
      PostDeferredCall(connection.receiver, call);
    }

    std::recursive_mutex lock;
    std::shared_ptr<const Connections> connections = std::make_shared<Connections>();
    std::list<std::shared_ptr<DeferredCall>> pending;
    ConnectionId lastId = 0;
    std::atomic<std::size_t> connectionCount = 0;
    std::atomic<bool> blocked = false;
    std::atomic<bool> alive = true;
  };

  // Works on a share of the state: a callable may destroy the list, or change its connections.
  static void Fire(const std::shared_ptr<State> state, const Args&... args) {
    if (state->blocked) return;
    std::lock_guard guard(state->lock);
    const auto connections = state->connections;
    for (const auto& connection : *connections) {
      if (!state->alive) return;
      if (!connection->connected) continue;
      if (connection->mode == ConnectionMode::Direct) {
        connection->callback(args...);
      } else {
        state->Post(*connection, args...);
      }
    }
  }

  std::shared_ptr<State> state_;
};

}  // namespace Wexa
