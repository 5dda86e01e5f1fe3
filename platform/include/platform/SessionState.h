#pragma once

// What lasts as long as the display, for those who keep state beside the window core's own.

#include <memory>
#include <typeindex>

#pragma GCC visibility push(default)  // hosts may use all of this

// The place of a type's state; empty until the state is made, and again with another display.
std::shared_ptr<void>& SessionStateOf(std::type_index type);

// The session's one object of this type, made at the first call. User-interface thread only.
template <typename State>
State& SessionState() {
  std::shared_ptr<void>& place = SessionStateOf(typeid(State));
  if (!place) place = std::make_shared<State>();
  return *static_cast<State*>(place.get());
}

#pragma GCC visibility pop
