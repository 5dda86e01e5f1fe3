#pragma once

#include "MFC/ranges/ValueRange.h"

namespace Wexa {

// Where the parts of a scroll bar lie along it, in pixels from its start: an arrow at each end and,
// between them, the thumb, as long as a page is of all that is scrolled.
class ScrollTrack {
 public:
  enum class Part { None, LineBack, PageBack, Thumb, PageForward, LineForward };

  ScrollTrack(const ValueRange& range, int length, int arrowLength, int shortestThumb);

  Part PartAt(int place) const;
  int ArrowLength() const { return arrow_; }
  int ThumbStart() const { return thumbStart_; }
  int ThumbLength() const { return thumbLength_; }
  // The value whose thumb starts nearest to that place.
  std::int64_t ValueAt(int thumbStart) const;

 private:
  int Room() const { return length_ - 2 * arrow_ - thumbLength_; }

  ValueRange range_;
  int length_;
  int arrow_;
  int thumbLength_ = 0;
  int thumbStart_ = 0;
};

}  // namespace Wexa
