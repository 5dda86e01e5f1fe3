#pragma once

#include "RangeControl.h"

namespace Wexa {

// A scroll bar of its own: arrows at its ends, a thumb as long as a page is of the whole range.
class WEXA_API ScrollBar : public RangeControl {
 public:
  ScrollBar();
};

}  // namespace Wexa
