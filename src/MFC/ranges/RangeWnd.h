#pragma once

#include <functional>

#include "MFC/drawn/InteractiveWnd.h"
#include "MFC/ranges/ValueRange.h"

namespace Wexa {

// A window that shows a value in a range and lets its user change it by keys, wheel and mouse. Its
// owner may die in a callback.
class RangeWnd : public InteractiveWnd {
 public:
  // Both with the new value: while the thumb is dragged, and after every change.
  std::function<void(int)> onTracked;
  std::function<void(int)> onChanged;

  bool vertical = false;

  const ValueRange& Range() const { return range_; }
  void SetRange(int minimum, int maximum);
  void SetSteps(int single, int page);
  void SetValue(std::int64_t value);
  // By so many single steps or pages.
  void MoveLines(int lines) { SetValue(range_.After(lines, range_.SingleStep())); }
  void MovePages(int pages) { SetValue(range_.After(pages, range_.PageStep())); }
  // Whichever window the key or the turn of the wheel reached. True when the key is one of the
  // bar's.
  bool MoveByKey(int virtualKey);
  void MoveByWheel(int delta);

 protected:
  // +1 when the value grows upwards, -1 when it grows downwards.
  virtual int UpSign() const = 0;

  bool OnKey(int virtualKey) override { return MoveByKey(virtualKey); }
  bool OnWheel(int delta, bool horizontal) override;
  LRESULT DialogCode(const MSG* message) const override;
  // The user drags the thumb to this value.
  void TrackValue(std::int64_t value);
  int Along(POINT point) const { return vertical ? point.y : point.x; }

 private:
  ValueRange range_;
  int wheelRest_ = 0;
};

}  // namespace Wexa
