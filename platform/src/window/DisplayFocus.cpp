#include "window/DisplayFocus.h"

#include <algorithm>

#include "window/Session.h"

namespace core {

using display::SurfaceId;
void RequestDisplayFocus(SurfaceId id) {
  Session& session = CurrentSession();
  const SurfaceId coming =
      session.focusRequested.empty() ? session.focusReported : session.focusRequested.back();
  if (id == 0 || coming == id) return;
  session.focusRequested.push_back(id);
  display::Current().FocusSurface(id);
}

bool NoteFocused(SurfaceId id) {
  Session& session = CurrentSession();
  session.focusReported = id;
  auto request = std::find(session.focusRequested.begin(), session.focusRequested.end(), id);
  if (request == session.focusRequested.end()) {
    session.focusRequested.clear();
    return true;
  }
  session.focusRequested.erase(session.focusRequested.begin(), request + 1);
  return session.focusRequested.empty();
}

bool NoteUnfocused(SurfaceId id) {
  Session& session = CurrentSession();
  if (session.focusReported == id) session.focusReported = 0;
  return session.focusRequested.empty();
}

void ForgetDisplayFocus(SurfaceId id) {
  std::erase(CurrentSession().focusRequested, id);
  if (CurrentSession().focusReported == id) CurrentSession().focusReported = 0;
}

}  // namespace core
