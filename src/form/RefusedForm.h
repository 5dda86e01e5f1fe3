#pragma once

#include <stdexcept>
#include <string>
#include <utility>

#include "FormError.h"

namespace Wexa {

// An exception of a type that hosts know, which also says what is wrong with the form.
template <typename Exception>
class RefusedForm : public Exception, public FormError {
 public:
  template <typename... Arguments>
  explicit RefusedForm(FormDiagnostic what, const Arguments&... arguments)
      : Exception(arguments...), FormError(std::move(what)) {}
};

// The number that a text is converted to. `describe` makes the diagnostic when it is none.
template <typename Convert, typename Describe>
auto ConvertOrRefuse(const std::wstring& text, Convert convert, Describe describe) try {
  return convert(text);
} catch (const std::invalid_argument& error) {
  throw RefusedForm<std::invalid_argument>(describe(L'"' + text + L"\" is no number"),
                                           error.what());
} catch (const std::out_of_range& error) {
  throw RefusedForm<std::out_of_range>(describe(text + L" is out of range"), error.what());
}

}  // namespace Wexa
