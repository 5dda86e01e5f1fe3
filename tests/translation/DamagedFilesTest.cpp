// Files with damage at random places, the same in every run: each reader gives something or
// nothing, or throws what it announces.

#include <fstream>
#include <random>
#include <rapidxml/rapidxml.hpp>
#include <stdexcept>

#include "Encrypter.h"
#include "Utf8.h"
#include "Utf8Decoding.h"
#include "WexaUtils.h"
#include "data/TestData.h"
#include "translation/EncrypterAccess.h"
#include "translation/FormTranslation.h"
#include "translation/StringsLoader.h"
#include "translation/TsLoader.h"

namespace Wexa {
namespace {

class Damage {
 public:
  // A part of the bytes with some characters changed, doubled or left out.
  std::string Of(const std::string& bytes) {
    std::string copy = bytes.substr(0, 200) + bytes.substr(Random(bytes.size()));
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

std::wstring Write(const std::string& bytes) {
  const std::string path = testing::TempDir() + "/damaged_file";
  std::ofstream(path, std::ios::binary) << bytes;
  return *WidenUtf8(path);
}

void ReadTs(const std::string& bytes) {
  TsReport report;
  if (IsUtf8(bytes)) LoadTsText(bytes, L"de_DE", report);
}

void ReadStrings(const std::string& bytes) {
  std::unordered_map<std::wstring, std::wstring> texts;
  logFont font;
  if (IsUtf8(bytes)) LoadStringsText(bytes, {L"de", L"ja"}, texts, font);
}

void Translate(const std::string& bytes) {
  const auto text = WidenUtf8(bytes);
  FormLines lines;
  for (unsigned n = 1; text && lines.size() < 12; n += 11) {
    lines[n] = L"t";
    TranslateForm(bytes, lines);
    TranslateFormInPlace(*text, lines);
  }
}

void ReadPacked(const std::string& bytes) {
  EXPECT_EQ(Encrypter::ReadAndDecryptFile(Write(bytes)), L"");
}

void ReadVersion(const std::string& bytes) {
  PluginVersionInfo info;
  WexaUtils::GetPluginVersionInfo(Write(bytes), info);
}

constexpr const char* kStrings =
    "<r language='de'><Font><PreFont FaceName='x' Height='9'/></Font><StringTable><string "
    "id='a'>t &amp; u</string>\n<string id='b'>&#1084;</string><!-- c --></StringTable></r>";
constexpr const char* kVersion =
    "<?xml version='1.0'?><Ostrel><language>de</language><version>1.2</version><VerDes><e "
    "name='a' value='b &amp; &#1084;'/><e name='c'/></VerDes><VerLeg><x name='n' value='v'/>"
    "<!-- c --><![CDATA[d]]></VerLeg></Ostrel>";

TEST(DamagedFiles, GiveSomethingOrAnAnnouncedException) {
  constexpr int kCopies = 100;
  const std::string form = testdata::BytesOf(testdata::Form("preferences.ui"));
  const auto packed = EncrypterAccess::Pack(form);
  const std::pair<std::string, void (*)(const std::string&)> kReaders[] = {
      {testdata::BytesOf(testdata::TsFile("de")), ReadTs},
      {kStrings, ReadStrings},
      {form, Translate},
      {{packed.begin(), packed.end()}, ReadPacked},
      {kVersion, ReadVersion}};
  Damage damage;
  for (const auto& [sound, read] : kReaders) {
    for (int n = 0; n < kCopies; ++n) {
      try {
        read(damage.Of(sound));
      } catch (const rapidxml::parse_error&) {
      } catch (const std::invalid_argument&) {
      } catch (const std::out_of_range&) {
      }
    }
  }
}

}  // namespace
}  // namespace Wexa
