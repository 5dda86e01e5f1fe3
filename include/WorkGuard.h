#pragma once

#include "WexaExport.h"

namespace Wexa {

// Held by a thread that will still fire queued connections:
//   std::thread worker([guard = WorkGuard(), done = list.GetSender()] { done(Compute()); });
// On a display that nobody sees (WEXA_DISPLAY=offscreen, or no DISPLAY) a dialog's DoModal returns
// as soon as nothing can happen any more; it waits while a guard lives. On a screen, where the user
// ends the dialog, guards change nothing. Made before the thread starts, copied and destroyed in
// any thread.
class WEXA_API WorkGuard {
 public:
  WorkGuard();
  WorkGuard(const WorkGuard&) : WorkGuard() {}
  WorkGuard& operator=(const WorkGuard&) { return *this; }
  ~WorkGuard();
};

}  // namespace Wexa
