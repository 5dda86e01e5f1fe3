// Real files with damage at random places, the same in every run: each reader gives something or
// nothing, or throws what it announces.

#include <random>
#include <rapidxml/rapidxml.hpp>
#include <stdexcept>

#include "RealFiles.h"
#include "Utf8.h"
#include "translation/FormTranslation.h"
#include "translation/StringsLoader.h"
#include "translation/TsLoader.h"

namespace Wexa {
namespace {

constexpr int kDamagedCopies = 30;
constexpr std::size_t kLongestText = 40000;  // of a copy, so that the run stays short

class Damage {
 public:
  // A part of the bytes with some characters changed, doubled or left out.
  std::string Of(const std::string& bytes) {
    std::string copy = bytes.substr(0, 200);
    copy += bytes.substr(Random(bytes.size()), kLongestText);
    for (std::size_t times = Random(20); times > 0; --times) Change(copy);
    return copy;
  }

 private:
  std::size_t Random(std::size_t end) { return generator_() % std::max<std::size_t>(end, 1); }

  void Change(std::string& text) {
    constexpr std::string_view kMarks = "<>&\"'/=;#!?[]-+\n\r \0x\xFF\xD0";
    const std::size_t at = Random(text.size());
    const std::size_t length = Random(30);
    switch (Random(4)) {
      case 0: text[at] = kMarks[Random(kMarks.size())]; break;
      case 1: text.insert(at, 1, kMarks[Random(kMarks.size())]); break;
      case 2: text.erase(at, length); break;
      default: text.insert(at, text.substr(Random(text.size()), length));
    }
  }

  std::mt19937 generator_{20240607};
};

template <typename Read>
void ReadDamagedCopies(const std::string& extension, Read read) {
  Damage damage;
  for (const auto& file : RealFiles(extension)) {
    for (int n = 0; n < kDamagedCopies; ++n) {
      try {
        read(damage.Of(file.bytes));
      } catch (const rapidxml::parse_error&) {
      } catch (const std::invalid_argument&) {
      } catch (const std::out_of_range&) {
      }
    }
  }
}

TEST(DamagedFiles, GiveTranslationsOrAnAnnouncedException) {
  for (const auto* language : {L"de", L"ar", L"pt_BR", L"ja"}) {
    ReadDamagedCopies(".ts", [&](const std::string& bytes) {
      TsLines lines;
      if (auto text = WidenUtf8(bytes)) LoadTsText(std::move(*text), language, lines);
    });
  }
}

TEST(DamagedFiles, GiveTextsOrAnAnnouncedException) {
  ReadDamagedCopies(".ts", [](const std::string& bytes) {
    std::unordered_map<std::wstring, std::wstring> texts;
    logFont font;
    auto text = WidenUtf8(bytes);
    if (text) LoadStringsText(std::move(*text), {L"de", L"ja"}, texts, font);
  });
}

TEST(DamagedFiles, AreTranslatedByAnyLines) {
  ReadDamagedCopies(".ui", [](const std::string& bytes) {
    const auto text = WidenUtf8(bytes);
    FormLines lines;
    for (unsigned n = 1; text && n < 2000; n += static_cast<unsigned>(bytes.size()) % 5 + 1) {
      lines[n] = L"t";
      TranslateForm(*text, lines);
      TranslateFormInPlace(*text, lines);
      if (lines.size() > 40) break;
    }
  });
}

}  // namespace
}  // namespace Wexa
