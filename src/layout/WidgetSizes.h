#pragma once

#include <cstdint>

#include "Size.h"
#include "SizePolicy.h"

namespace Wexa {

class BaseGUIObject;

// What a widget says of its sizes, in one reading, and what a layout makes of it.
struct WidgetSizes {
  Size hint;
  Size minimumHint;
  Size minimum;
  Size maximum;
  SizePolicy policy;

  static WidgetSizes Of(BaseGUIObject& widget);

  Size SmartHint() const;
  // The hint, also where the policy ignores it.
  Size Preferred() const;
  Size SmartMinimum() const;
  friend bool operator==(const WidgetSizes&, const WidgetSizes&) = default;

  // An axis on which the item is aligned may grow without bound.
  Size SmartMaximum(std::uint32_t alignment) const;
};

}  // namespace Wexa
