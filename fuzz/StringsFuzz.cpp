// Any bytes as a strings file.

#include <cstddef>
#include <cstdint>
#include <rapidxml/rapidxml.hpp>
#include <string_view>

#include "Utf8Decoding.h"
#include "translation/StringsLoader.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string text(reinterpret_cast<const char*>(data), size);
  if (!Wexa::IsUtf8(text)) return 0;
  std::unordered_map<std::wstring, std::wstring> texts;
  Wexa::logFont font;
  try {
    Wexa::LoadStringsText(std::move(text), {L"de", L"en-US"}, texts, font);
  } catch (const rapidxml::parse_error&) {
  }
  return 0;
}
