#pragma once

#include <cstdint>
#include <memory>
#include <utility>

namespace Wexa {

template <typename... Args>
class CallbackList;

// What a connection asks of its list.
class ConnectionOwner {
 public:
  virtual void Disconnect(std::uint64_t id) = 0;

 protected:
  ~ConnectionOwner() = default;
};

// A connection of a CallbackList that ends with this object. The list may be gone by then.
//   ScopedConnection clicks(button.Clicked, button.Clicked.Connect([] { ... }));
class ScopedConnection {
 public:
  ScopedConnection() = default;
  template <typename... Args>
  ScopedConnection(const CallbackList<Args...>& list, std::uint64_t id)
      : list_(list.state_), id_(id) {}
  ScopedConnection(ScopedConnection&& other) noexcept
      : list_(std::exchange(other.list_, {})), id_(other.id_) {}
  ScopedConnection& operator=(ScopedConnection&& other) noexcept {
    if (this == &other) return *this;
    Disconnect();
    list_ = std::exchange(other.list_, {});
    id_ = other.id_;
    return *this;
  }
  ~ScopedConnection() { Disconnect(); }

  // Ends the connection now. Nothing happens the second time.
  void Disconnect() {
    if (auto list = std::exchange(list_, {}).lock()) list->Disconnect(id_);
  }
  // Leaves the connection in its list for as long as the list lives.
  void Release() { list_.reset(); }

 private:
  std::weak_ptr<ConnectionOwner> list_;
  std::uint64_t id_ = 0;
};

}  // namespace Wexa
