// Any bytes as a TS file of the languages the seeds have.

#include <cstddef>
#include <cstdint>
#include <rapidxml/rapidxml.hpp>
#include <stdexcept>
#include <string_view>

#include "Utf8Decoding.h"
#include "translation/TsLoader.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  if (!Wexa::IsUtf8(text)) return 0;
  for (const auto* language : {L"de", L"ar", L"pt_BR", L"ja"}) {
    Wexa::TsReport report;
    try {
      if (const auto unit = Wexa::LoadTsText(text, language, report)) {
        TSTranslationUnit all;
        all.AppendTsTranslationUnit(*unit);
      }
    } catch (const rapidxml::parse_error&) {
      break;  // in every language
    } catch (const std::invalid_argument&) {
    } catch (const std::out_of_range&) {
    }
  }
  return 0;
}
