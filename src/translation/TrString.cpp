#include "TrString.h"

#include "Configuration.h"
#include "Translator.h"

namespace Wexa {

TrString::TrString(const std::wstring& name, const std::wstring& id, const std::wstring& fallback)
    : text_(Translator::GetInstance().GetText(name, id, WexaConfig::Instance().localeName)),
      fallback_(fallback) {
  if (text_.empty()) text_ = Translator::GetInstance().GetDefaultText(name, id);
}

}  // namespace Wexa
