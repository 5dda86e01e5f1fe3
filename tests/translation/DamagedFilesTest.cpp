// Real files with damage at random places, the same in every run: each reader gives something or
// nothing, or throws what it announces.

#include <random>
#include <rapidxml/rapidxml.hpp>
#include <stdexcept>

#include "RealFiles.h"
#include "Utf8.h"
#include "Utf8Decoding.h"
#include "WexaUtils.h"
#include "translation/EncrypterAccess.h"
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
      TsPlaces places;
      if (IsUtf8(bytes)) LoadTsText(bytes, language, places);
    });
  }
}

TEST(DamagedFiles, GiveTextsOrAnAnnouncedException) {
  ReadDamagedCopies(".ts", [](const std::string& bytes) {
    std::unordered_map<std::wstring, std::wstring> texts;
    logFont font;
    if (IsUtf8(bytes)) LoadStringsText(bytes, {L"de", L"ja"}, texts, font);
  });
}

TEST(DamagedFiles, AreTranslatedByAnyLines) {
  ReadDamagedCopies(".ui", [](const std::string& bytes) {
    const auto text = WidenUtf8(bytes);
    FormLines lines;
    for (unsigned n = 1; text && n < 2000; n += static_cast<unsigned>(bytes.size()) % 5 + 1) {
      lines[n] = L"t";
      TranslateForm(bytes, lines);
      TranslateFormInPlace(*text, lines);
      if (lines.size() > 40) break;
    }
  });
}

class DamagedFilesOnDisk : public testing::Test {
 protected:
  ~DamagedFilesOnDisk() override { std::filesystem::remove(path_); }
  std::wstring Write(const std::string& bytes) {
    std::ofstream(path_, std::ios::binary) << bytes;
    return *WidenUtf8(path_);
  }

 private:
  std::string path_ = testing::TempDir() + "/damaged_file";
};

TEST_F(DamagedFilesOnDisk, AreNotTakenForEncryptedOnes) {
  Damage damage;
  for (const auto& form : RealFiles(".ui")) {
    const auto packed = EncrypterAccess::Pack(form.bytes);
    const std::string damaged = damage.Of({packed.begin(), packed.end()});
    EXPECT_EQ(Encrypter::ReadAndDecryptFile(Write(damaged)), L"") << form.path;
  }
}

TEST_F(DamagedFilesOnDisk, DescribeAVersionOrAreRefused) {
  const std::string sound =
      "<?xml version='1.0'?><Ostrel><language>de</language><version>1.2</version><VerDes><e "
      "name='a' value='b &amp; &#1084;'/><e name='c'/></VerDes><VerLeg><x name='n' value='v'/>"
      "<!-- c --><![CDATA[d]]></VerLeg></Ostrel>";
  Damage damage;
  for (int n = 0; n < 500; ++n) {
    const auto path = Write(damage.Of(sound));
    PluginVersionInfo info;
    try {
      WexaUtils::GetPluginVersionInfo(path, info);
    } catch (const rapidxml::parse_error&) {
    }
  }
}

}  // namespace
}  // namespace Wexa
