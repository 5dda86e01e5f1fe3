#pragma once

#include <string>

#include "WexaExport.h"

namespace Wexa {

// A text of a component in the current language, else in the default language, else as given.
class WEXA_API TrString {
 public:
  // `name` is the component, a strings file without its path and ending; `id` the text's key there.
  TrString(const std::wstring& name, const std::wstring& id, const std::wstring& fallback);

  // Looked up once, when the object was made: a later change of the language needs a new one.
  operator std::wstring() const { return text_.empty() ? fallback_ : text_; }

 private:
  std::wstring text_;
  std::wstring fallback_;
};

}  // namespace Wexa
