#include "Translator.h"

#include "TrString.h"
#include "support/LanguageFolder.h"
#include "translation/EncrypterAccess.h"

namespace Wexa {
namespace {

// A folder of language files of its own, and a translator that starts empty in "de-DE".
class TranslatorTest : public testing::Test, protected LanguageFolder {
 protected:
  TranslatorTest() { SetCurrentLanguage(L"de-DE", false); }

  void WriteTs(const std::wstring& name, const std::string& translation) {
    Write(GetTranslationFilePath(name),
          "<TS language='" + NarrowUtf8(GetCurrentLanguage()) +
              "'><context><message><location filename='f.ui' line='2'/><translation>" +
              translation + "</translation></message></context></TS>");
  }
  std::wstring TranslateForm() {
    const auto packed = EncrypterAccess::Pack("<ui>\n <string>old</string>\n</ui>");
    const std::wstring path = GetWorkingDirPath() + L"forms\\f.ui.kv";
    Write(path, {packed.begin(), packed.end()});
    return translator_.TranslateUIFile(path);
  }
  std::wstring Text(const std::wstring& name, const std::wstring& id) {
    return TrString(name, id, L"fallback");
  }

  Translator& translator_ = Translator::GetInstance();
};

TEST_F(TranslatorTest, NamesTheFiles) {
  const std::wstring home = GetWorkingDirPath();
  SetCurrentLanguage(L"pt_BR", true);
  EXPECT_EQ(GetTranslationDirPath(false), home + L"lang\\pt-BR\\");
  EXPECT_EQ(GetTranslationDirPath(true), home + L"lang\\en-US\\");
  EXPECT_EQ(GetStringsFilePath(L"options", false),
            home + L"lang\\pt-BR\\options_strings_pt-BR.xml.kv");
  EXPECT_EQ(GetStringsFilePath(L"", true), home + L"lang\\en-US\\strings_en-US.xml.kv");
  EXPECT_EQ(GetTranslationFilePath(L"options"), home + L"lang\\pt-BR\\options_pt-BR.ts.kv");
}

TEST_F(TranslatorTest, ALanguageSetsTheDecimalCharacter) {
  EXPECT_EQ(GetDecimalChar(), ',');
  SetCurrentLanguage(L"ja-JP", false);
  EXPECT_EQ(GetDecimalChar(), '.');
}

TEST_F(TranslatorTest, TheCurrentLanguageAgainChangesNothing) {
  WriteStrings(L"", false, "<string id='a'>t</string>");
  translator_.LoadStrings(L"");
  SetCurrentLanguage(L"de-DE", true);
  EXPECT_FALSE(ExpectsEncryptedLanguageFiles());
  EXPECT_EQ(Text(L"", L"a"), L"t");
  SetCurrentLanguage(L"fr-FR", false);
  SetCurrentLanguage(L"de-DE", false);
  EXPECT_EQ(Text(L"", L"a"), L"fallback");
}

TEST_F(TranslatorTest, TextsFallBackToTheDefaultLanguageAndTheCaller) {
  WriteStrings(L"c", false, "<string id='a'>aktuell</string>");
  WriteStrings(L"c", true, "<string id='a'>current</string><string id='b'>default</string>");
  WriteStrings(L"", false, "<string id='common'>gemeinsam</string>");
  translator_.LoadStrings(L"c");
  EXPECT_EQ(Text(L"c", L"a"), L"aktuell");
  EXPECT_EQ(Text(L"c", L"b"), L"default");
  EXPECT_EQ(Text(L"c", L"common"), L"fallback");
  EXPECT_EQ(Text(L"", L"common"), L"gemeinsam");
  EXPECT_EQ(translator_.GetText(L"c", L"b", L""), L"");
}

TEST_F(TranslatorTest, FilesWithTextsAreReadOnceAndAppendedOnesReplaceNoText) {
  translator_.LoadStrings(L"c");
  for (const std::string text : {"own", "later"}) {
    WriteStrings(L"c", false, "<string id='a'>" + text + "</string>");
    translator_.LoadStrings(L"c");
  }
  WriteStrings(L"d", false, "<string id='a'>other</string><string id='b'>other</string>");
  translator_.AppendStrings(L"c", L"d");
  EXPECT_EQ(Text(L"c", L"a"), L"own");
  EXPECT_EQ(Text(L"c", L"b"), L"other");
  EXPECT_EQ(Text(L"d", L"b"), L"fallback");
}

TEST_F(TranslatorTest, FormsTakeTheTranslationOfTheirLineAnEmptyOneOnRequest) {
  EXPECT_EQ(TranslateForm(), L"<ui> <string>old</string></ui>");
  WriteTs(L"c", "a &amp;amp; b");
  translator_.LoadStrings(L"c");
  EXPECT_EQ(TranslateForm(), L"<ui><string>a &amp;amp; b</string></ui>");
  translator_.ResetStringsTable();
  WriteTs(L"c", "");
  translator_.LoadStrings(L"c");
  EXPECT_EQ(TranslateForm(), L"<ui> <string>old</string></ui>");
  translator_.SetEmptyTranslationsApplied(true);
  EXPECT_EQ(TranslateForm(), L"<ui><string></string></ui>");
  translator_.SetEmptyTranslationsApplied(false);
}

TEST_F(TranslatorTest, TheDefaultLanguageReadsFormTranslationsOnlyWhenAppended) {
  SetCurrentLanguage(L"en-US", false);
  WriteTs(L"c", "new");
  translator_.LoadStrings(L"c");
  EXPECT_EQ(TranslateForm(), L"<ui> <string>old</string></ui>");
  translator_.AppendStrings(L"", L"c");
  EXPECT_EQ(TranslateForm(), L"<ui><string>new</string></ui>");
}

TEST_F(TranslatorTest, EncryptedFilesAreReadWhereTheyAreExpected) {
  SetCurrentLanguage(L"fr-FR", true);
  const auto packed = EncrypterAccess::Pack(
      "<r language='fr-FR'><StringTable><string id='a'>\xD0\xBC</string>"
      "</StringTable></r>");
  Write(GetStringsFilePath(L"c", false), {packed.begin(), packed.end()});
  WriteStrings(L"c", true, "<string id='a'>plain</string>");
  translator_.LoadStrings(L"c");
  EXPECT_EQ(Text(L"c", L"a"), L"\u043C");
  EXPECT_EQ(translator_.GetDefaultText(L"c", L"a"), L"");
}

TEST_F(TranslatorTest, PlainFormsAreKnownByTheirWholeName) {
  WriteTs(L"c", "new");
  translator_.LoadStrings(L"c");
  const std::wstring form = L"<ui>\n <string>old</string>\n</ui>";
  EXPECT_EQ(translator_.TranslateUIText(L"forms\\f.ui", form),
            L"<ui>\n <string>new</string>\n</ui>");
  EXPECT_EQ(translator_.TranslateUIText(L"forms\\f.ui.kv", form), form);
}

TEST_F(TranslatorTest, BrokenStringsFilesGiveNothingAndAReason) {
  Write(GetStringsFilePath(L"c", false), "<r language='de-DE'>\n<StringTable><string id='a'>t</r>");
  WriteStrings(L"c", true, "<string id='a'>default</string>");
  Write(GetStringsFilePath(L"", false), "<r language='de-DE'>\xFF</r>");
  translator_.LoadStrings(L"c");
  translator_.LoadStrings(L"c");
  EXPECT_EQ(Text(L"c", L"a"), L"default");
  const auto& diagnostics = translator_.GetDiagnostics();
  ASSERT_EQ(diagnostics.size(), 2u);
  EXPECT_EQ(diagnostics[0].file, GetStringsFilePath(L"c", false));
  EXPECT_EQ(diagnostics[0].line, 2);
  EXPECT_EQ(diagnostics[0].reason, L"invalid closing tag name");
  EXPECT_EQ(diagnostics[1].file, GetStringsFilePath(L"", false));
  EXPECT_EQ(diagnostics[1].line, 1);
  EXPECT_EQ(diagnostics[1].reason, L"not UTF-8");
  translator_.ResetStringsTable();
  EXPECT_TRUE(translator_.GetDiagnostics().empty());
}

TEST_F(TranslatorTest, BrokenTsFilesDisturbNoOther) {
  WriteTs(L"c", "good");
  translator_.LoadStrings(L"c");
  const std::string location =
      "<TS language='de-DE'><context><message><location filename='f.ui' line='2'/>"
      "<translation>bad</translation></message>\n<message><location filename='f.ui' line=";
  Write(GetTranslationFilePath(L"d"), location + "'x'/></message></context></TS>");
  Write(GetTranslationFilePath(L"e"), location + "'3'/></message></context>");
  Write(GetTranslationFilePath(L"f"), location + "'99999999999'/></message></context></TS>");
  for (const auto* name : {L"d", L"e", L"f"}) translator_.LoadStrings(name);
  EXPECT_EQ(TranslateForm(), L"<ui><string>good</string></ui>");
  EXPECT_EQ(translator_.GetDiagnostics().size(), 3u);
  for (const auto& diagnostic : translator_.GetDiagnostics()) EXPECT_EQ(diagnostic.line, 2);
}

TEST_F(TranslatorTest, FilesThatMatchNoTextSayWhy) {
  const std::string location = "<location filename='f.ui' line='";
  const std::pair<std::string, std::wstring> kFiles[] = {
      {" language='de_DE'>",
       L"for \"de_DE\", not for de-DE|the language file is for another language"},
      {">", L"names no language; it must be de-DE|the language file is for another language"},
      {" language='de-DE'><context><message/></context>",
       L"none of its messages has a location|the messages have no locations"},
      {" language='de-DE'><context><message>" + location + "1'/></message></context>",
       L"|the messages are for other lines"},
      {" language='de-DE'>", L"|no message is for this form"},
      {" language='de-DE'><context><message>" + location + "2'/></message></context>", L""}};
  for (const auto& [ts, reasons] : kFiles) {
    translator_.ResetStringsTable();
    Write(GetTranslationFilePath(L"c"), "<TS" + ts + "</TS>");
    translator_.LoadStrings(L"c");
    TranslateForm();
    std::wstring said;
    for (const auto& diagnostic : translator_.GetDiagnostics()) {
      const bool isForm = diagnostic.file.ends_with(L"f.ui.kv");
      EXPECT_EQ(diagnostic.reason.starts_with(L"0 of 1 texts of f.ui matched: "), isForm);
      said += isForm ? L"|" + diagnostic.reason.substr(30) : diagnostic.reason;
    }
    EXPECT_EQ(said, reasons) << ts;
  }
}

TEST_F(TranslatorTest, PlainOrMissingFormsGiveNothing) {
  Write(GetWorkingDirPath() + L"plain.ui", "<ui>a plain form, long enough</ui>");
  EXPECT_EQ(translator_.TranslateUIFile(GetWorkingDirPath() + L"plain.ui"), L"");
  EXPECT_EQ(translator_.TranslateUIFile(L""), L"");
  const auto packed = EncrypterAccess::Pack("<ui>not UTF-8: \xFF</ui>");
  Write(GetWorkingDirPath() + L"odd.ui.kv", {packed.begin(), packed.end()});
  EXPECT_EQ(translator_.TranslateUIFile(GetWorkingDirPath() + L"odd.ui.kv"), L"");
}

}  // namespace
}  // namespace Wexa
