// Forms and TS files of published applications: translated, and packed and read back.

#include <algorithm>
#include <map>

#include "RealFiles.h"
#include "Utf8.h"
#include "XmlDocument.h"
#include "support/AbsoluteLines.h"
#include "translation/EncrypterAccess.h"
#include "translation/FormTranslation.h"
#include "translation/TsLoader.h"

namespace Wexa {
namespace {

TSTranslationUnit UnitOf(std::string ts, const std::wstring& language) {
  TsPlaces places;
  return LoadTsText(std::move(ts), language, places).value();
}

std::string TsFile(const std::string& path) {
  return BytesOf(WEXA_SHARED_DIR "/forms/" + path);
}

std::size_t CountOf(const std::wstring& text, const std::wstring& part) {
  std::size_t count = 0;
  for (auto at = text.find(part); at != text.npos; at = text.find(part, at + 1)) ++count;
  return count;
}

// How many strings of each form a mark takes the place of. The lines of both ways must agree.
std::map<std::string, std::size_t> ReplacedStrings(const std::string& folder,
                                                   const TSTranslationUnit& unit) {
  std::map<std::string, std::size_t> counts;
  for (const auto& form : RealFiles(".ui", folder)) {
    const auto text = *WidenUtf8(form.bytes);
    auto lines = unit.GetMessageMap().at(*WidenUtf8(form.Name()));
    for (auto& [line, translation] : lines) translation = L"[mark]";
    const auto joined = TranslateForm(form.bytes, lines);
    const auto inPlace = TranslateFormInPlace(text, lines);
    EXPECT_NO_THROW(XmlDocument{joined}) << form.path;
    EXPECT_NO_THROW(XmlDocument{inPlace}) << form.path;
    EXPECT_EQ(std::ranges::count(inPlace, L'\n'), std::ranges::count(text, L'\n')) << form.path;
    EXPECT_EQ(CountOf(joined, L"[mark]"), CountOf(inPlace, L"[mark]")) << form.path;
    counts[form.Name()] = CountOf(inPlace, L"<string>[mark]</string>");
  }
  return counts;
}

TEST(RealTsFiles, TranslateFormsUpToTheFirstLineThatDiffers) {
  EXPECT_EQ(
      ReplacedStrings("pybitmessage", UnitOf(TsFile("pybitmessage/bitmessage_ja.ts"), L"ja")),
      (std::map<std::string, std::size_t>{
          {"iconglossary.ui", 4}, {"newaddressdialog.ui", 19}, {"regenerateaddresses.ui", 10}}));
}

TEST(RealTsFiles, OfTheSameRevisionTranslateEveryStringTheyName) {
  const auto unit = UnitOf(WithAbsoluteLines(TsFile("gridcoin/bitcoin_de.ts")), L"de");
  const auto replaced = ReplacedStrings("gridcoin", unit);
  EXPECT_EQ(replaced.size(), 7u);
  for (const auto& [form, count] : replaced)
    EXPECT_EQ(count, unit.GetMessageMap().at(*WidenUtf8(form)).size()) << form;
}

TEST(RealTsFiles, OfAnotherRevisionEndWhereTheFormDiffers) {
  EXPECT_EQ(ReplacedStrings("savvycan", UnitOf(TsFile("savvycan/SavvyCAN_pt_BR.ts"), L"pt_BR")),
            (std::map<std::string, std::size_t>{{"bisectwindow.ui", 17},
                                                {"firmwareuploaderwindow.ui", 8},
                                                {"frameplaybackwindow.ui", 20},
                                                {"mainsettingsdialog.ui", 12},
                                                {"mainwindow.ui", 60},
                                                {"newconnectiondialog.ui", 17},
                                                {"snifferwindow.ui", 14}}));
}

TEST(RealTsFiles, WithRelativeLinesTranslateTheFirstStringOfEachForm) {
  for (const auto& [form, count] :
       ReplacedStrings("gridcoin", UnitOf(TsFile("gridcoin/bitcoin_de.ts"), L"de"))) {
    EXPECT_EQ(count, 1u) << form;
  }
}

// Every pair of a form with the lines of another: wrong texts at most, and never a broken read.
TEST(RealTsFiles, WithTheLinesOfAnotherFormChangeStringsOnly) {
  const auto unit = UnitOf(TsFile("savvycan/SavvyCAN_pt_BR.ts"), L"pt_BR");
  for (const auto& form : RealFiles(".ui")) {
    const auto text = *WidenUtf8(form.bytes);
    for (const auto& [name, lines] : unit.GetMessageMap()) {
      TranslateForm(form.bytes, lines);
      EXPECT_NO_THROW(XmlDocument{TranslateFormInPlace(text, lines)}) << form.path;
    }
  }
}

class PackedRealFiles : public testing::Test {
 protected:
  ~PackedRealFiles() override { std::filesystem::remove(path_); }
  std::wstring Read(const std::vector<unsigned char>& bytes) {
    std::ofstream(path_, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()), static_cast<long>(bytes.size()));
    return Encrypter::ReadAndDecryptFile(*WidenUtf8(path_));
  }
  static std::vector<RealFile> All() {
    auto files = RealFiles(".ui");
    for (auto& file : RealFiles(".ts")) files.push_back(std::move(file));
    return files;
  }

 private:
  std::string path_ = testing::TempDir() + "/packed_real_file";
};

TEST_F(PackedRealFiles, AreReadBackByteForByte) {
  for (const auto& file : All())
    EXPECT_EQ(NarrowUtf8(Read(EncrypterAccess::Pack(file.bytes))), file.bytes) << file.path;
}

TEST_F(PackedRealFiles, GiveNothingWithAnyByteChanged) {
  constexpr std::size_t kBytesTried = 40;  // of a file, its digest besides
  for (const auto& file : All()) {
    auto packed = EncrypterAccess::Pack(file.bytes);
    const std::size_t stride = file.bytes.size() / kBytesTried + 1;
    for (std::size_t at = 0; at < packed.size(); at += at < file.bytes.size() ? stride : 1) {
      packed[at] ^= static_cast<unsigned char>(1 + at % 255);
      EXPECT_TRUE(Read(packed).empty()) << file.path << " at " << at;
      packed[at] ^= static_cast<unsigned char>(1 + at % 255);
    }
  }
}

}  // namespace
}  // namespace Wexa
