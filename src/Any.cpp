#include "Any.h"

namespace Wexa {

const char* bad_any_cast::what() const noexcept {
  return "wexa::bad_any_cast: failed conversion using std::any_cast";
}

any::placeholder::~placeholder() = default;

}  // namespace Wexa
