#include "MFC/containers/ScrollView.h"

#include <algorithm>

namespace Wexa {

namespace {

bool Needs(BarPolicy policy, int wanted, int room) {
  return policy == BarPolicy::AsNeeded && wanted > room;
}

}  // namespace

ScrollView ScrollView::Of(Size view, const std::function<Size(int)>& wantedAt, int barWidth,
                          BarPolicies policies) {
  ScrollView result;
  result.hasVertical = policies.vertical == BarPolicy::AlwaysOn;
  result.hasHorizontal = policies.horizontal == BarPolicy::AlwaysOn;
  for (;;) {
    const int width = view.Width() - (result.hasVertical ? barWidth : 0);
    const int height = view.Height() - (result.hasHorizontal ? barWidth : 0);
    result.room = {std::max(width, 0), std::max(height, 0)};
    result.wanted = wantedAt(result.room.Width());
    const bool vertical = Needs(policies.vertical, result.wanted.Height(), height);
    const bool horizontal = Needs(policies.horizontal, result.wanted.Width(), width);
    if (vertical <= result.hasVertical && horizontal <= result.hasHorizontal) return result;
    result.hasVertical = result.hasVertical || vertical;
    result.hasHorizontal = result.hasHorizontal || horizontal;
  }
}

int PositionToShow(int from, int to, int position, int length) {
  if (to - from > length || from < position) return from;
  return to > position + length ? to - length : position;
}

}  // namespace Wexa
