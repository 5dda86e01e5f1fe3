#include "MFC/ScrollView.h"

#include <algorithm>

namespace Wexa {

ScrollView ScrollView::Of(Size view, Size content, int barWidth) {
  ScrollView result;
  result.hasVertical = content.Height() > view.Height();
  int width = view.Width() - (result.hasVertical ? barWidth : 0);
  result.hasHorizontal = content.Width() > width;
  int height = view.Height() - (result.hasHorizontal ? barWidth : 0);
  if (!result.hasVertical && content.Height() > height) {
    result.hasVertical = true;
    width -= barWidth;
  }
  result.room = {std::max(width, 0), std::max(height, 0)};
  result.content = content.GetInflated(result.room);
  return result;
}

int PositionToShow(int from, int to, int position, int length) {
  if (to - from > length || from < position) return from;
  return to > position + length ? to - length : position;
}

}  // namespace Wexa
