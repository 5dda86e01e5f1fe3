#pragma once

#include <ostream>

#include "Rect.h"
#include "Size.h"

// Failing tests show values instead of bytes.
namespace Wexa {

inline std::ostream& operator<<(std::ostream& out, const Size& size) {
  return out << size.Width() << "x" << size.Height();
}

inline std::ostream& operator<<(std::ostream& out, const Rect& rect) {
  return out << "(" << rect.Left() << "," << rect.Top() << " " << rect.GetSize() << ")";
}

}  // namespace Wexa
