#include "TrString.h"

#include "Translator.h"
#include "WexaConfig.h"

namespace Wexa {

TrString::TrString(const std::wstring& name, const std::wstring& id, const std::wstring& fallback)
    : text_(Translator::GetInstance().GetText(name, id, GetCurrentLanguage())),
      fallback_(fallback) {
  if (text_.empty()) text_ = Translator::GetInstance().GetDefaultText(name, id);
}

}  // namespace Wexa
