#pragma once

// Where an exception of a host's handler goes that may not leave where it was thrown, because a
// destructor called the handler.

#include <exception>

#pragma GCC visibility push(default)  // hosts may use all of this

// Keeps the exception for the pump: the next call of GetMessageW, PeekMessageW or AfxPumpMessage
// throws it. Of several the first counts until it is thrown. User-interface thread only.
void PostponeException(std::exception_ptr exception);

// Runs a step of a destructor; what it throws is postponed.
template <typename Step>
void RunPostponing(Step step) noexcept {
  try {
    step();
  } catch (...) {
    PostponeException(std::current_exception());
  }
}

#pragma GCC visibility pop
