#include "window/DisplayFocus.h"

#include <algorithm>

namespace core {
namespace {

using display::SurfaceId;

struct State {
  SurfaceId reported = 0;
  std::vector<SurfaceId> requested;  // and not yet reported, the latest last
};

State& Focus() {
  static State state;
  return state;
}

}  // namespace

void RequestDisplayFocus(SurfaceId id) {
  State& focus = Focus();
  const SurfaceId coming = focus.requested.empty() ? focus.reported : focus.requested.back();
  if (id == 0 || coming == id) return;
  focus.requested.push_back(id);
  display::Current().FocusSurface(id);
}

bool NoteFocused(SurfaceId id) {
  State& focus = Focus();
  focus.reported = id;
  auto request = std::find(focus.requested.begin(), focus.requested.end(), id);
  if (request == focus.requested.end()) {
    focus.requested.clear();
    return true;
  }
  focus.requested.erase(focus.requested.begin(), request + 1);
  return focus.requested.empty();
}

bool NoteUnfocused(SurfaceId id) {
  State& focus = Focus();
  if (focus.reported == id) focus.reported = 0;
  return focus.requested.empty();
}

void ForgetDisplayFocus(SurfaceId id) {
  std::erase(Focus().requested, id);
  if (Focus().reported == id) Focus().reported = 0;
}

}  // namespace core
