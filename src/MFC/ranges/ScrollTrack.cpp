#include "MFC/ranges/ScrollTrack.h"

#include <algorithm>

namespace Wexa {

ScrollTrack::ScrollTrack(const ValueRange& range, int length, int arrowLength, int shortestThumb)
    : range_(range), length_(std::max(length, 0)), arrow_(std::min(arrowLength, length_ / 2)) {
  int track = length_ - 2 * arrow_;
  if (range.Span() > 0 && track > shortestThumb) {
    auto page = static_cast<double>(range.PageStep());
    int share = static_cast<int>(page / (page + static_cast<double>(range.Span())) * track);
    thumbLength_ = std::max(share, shortestThumb);
  }
  thumbStart_ = arrow_ + range.PlaceOn(Room());
}

ScrollTrack::Part ScrollTrack::PartAt(int place) const {
  if (place < 0 || place >= length_) return Part::None;
  if (place < arrow_) return Part::LineBack;
  if (place >= length_ - arrow_) return Part::LineForward;
  if (place < thumbStart_) return Part::PageBack;
  return place < thumbStart_ + thumbLength_ ? Part::Thumb : Part::PageForward;
}

std::int64_t ScrollTrack::ValueAt(int thumbStart) const {
  return range_.ValueAt(thumbStart - arrow_, Room());
}

}  // namespace Wexa
