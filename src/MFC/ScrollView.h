#pragma once

#include "Size.h"

namespace Wexa {

// Which scroll bars a view needs for its content, and what room is left; all in pixels.
struct ScrollView {
  bool hasVertical = false;
  bool hasHorizontal = false;
  Size room;     // the view without the bars
  Size content;  // at least the room

  // One bar may make the other necessary.
  static ScrollView Of(Size view, Size content, int barWidth);
};

// The scroll position, nearest to the current one, at which [from, to) of the content shows in a
// view of this length: its start when it does not fit.
int PositionToShow(int from, int to, int position, int length);

}  // namespace Wexa
