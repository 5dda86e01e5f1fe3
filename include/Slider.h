#pragma once

#include "RangeControl.h"

namespace Wexa {

// A handle on a track. Vertical ones grow upwards.
class WEXA_API Slider : public RangeControl {
 public:
  Slider();

  // Marks beside the track at every such step of the value; 0 for none.
  void SetTickInterval(int interval);
  int GetTickInterval() const;
};

}  // namespace Wexa
