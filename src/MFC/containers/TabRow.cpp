#include "MFC/containers/TabRow.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace Wexa {

void TabRow::SetTabs(std::vector<int> widths) {
  widths_ = std::move(widths);
  Scroll(0);
}

void TabRow::SetRoom(int length, int arrows) {
  length_ = std::max(length, 0);
  arrows_ = arrows;
  Scroll(0);
}

int TabRow::WidthOf(int from, int to) const {
  return std::accumulate(widths_.begin() + from, widths_.begin() + to, 0);
}

int TabRow::TotalWidth() const {
  return WidthOf(0, Count());
}

bool TabRow::Scrolls() const {
  return TotalWidth() > length_ && Count() > 1;
}

int TabRow::LastFirst() const {
  int first = std::max(Count() - 1, 0);
  while (first > 0 && WidthOf(first - 1, Count()) <= Visible()) --first;
  return first;
}

void TabRow::Scroll(int tabs) {
  first_ = Scrolls() ? std::clamp(first_ + tabs, 0, LastFirst()) : 0;
}

void TabRow::BringIntoView(int index) {
  if (index < 0 || index >= Count() || !Scrolls() || Visible() <= 0) return;
  first_ = std::min(first_, index);
  while (first_ < index && WidthOf(first_, index + 1) > Visible()) ++first_;
}

TabRow::Span TabRow::TabSpan(int index) const {
  if (index < first_ || index >= Count()) return {};
  int from = WidthOf(first_, index);
  int width = widths_[static_cast<std::size_t>(index)];
  int to = Scrolls() ? std::min(from + width, Visible()) : from + width;
  return {from, to};
}

int TabRow::TabAt(int place) const {
  for (int i = first_; i < Count(); ++i)
    if (TabSpan(i).Contains(place)) return i;
  return -1;
}

TabRow::Span TabRow::BackArrow() const {
  if (!Scrolls()) return {};
  return {length_ - arrows_, length_ - arrows_ / 2};
}

TabRow::Span TabRow::ForwardArrow() const {
  if (!Scrolls()) return {};
  return {length_ - arrows_ / 2, length_};
}

}  // namespace Wexa
