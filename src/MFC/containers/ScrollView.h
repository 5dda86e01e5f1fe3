#pragma once

#include <functional>

#include "Size.h"

namespace Wexa {

// When a scroll bar shows.
enum class BarPolicy { AsNeeded, AlwaysOff, AlwaysOn };

struct BarPolicies {
  BarPolicy vertical = BarPolicy::AsNeeded;
  BarPolicy horizontal = BarPolicy::AsNeeded;
};

// Which scroll bars a view has for its content, and what room is left; all in pixels.
struct ScrollView {
  bool hasVertical = false;
  bool hasHorizontal = false;
  Size room;    // the view without the bars
  Size wanted;  // by the content in a room of that width

  // One bar may make the other necessary, and a narrower room the content higher.
  static ScrollView Of(Size view, const std::function<Size(int)>& wantedAt, int barWidth,
                       BarPolicies policies);
  // At least the room.
  Size Content() const { return wanted.GetInflated(room); }
};

// The scroll position, nearest to the current one, at which [from, to) of the content shows in a
// view of this length: its start when it does not fit.
int PositionToShow(int from, int to, int position, int length);

}  // namespace Wexa
