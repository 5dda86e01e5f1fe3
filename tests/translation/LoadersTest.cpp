#include <gmock/gmock.h>

#include "Utf8.h"
#include "XmlDocument.h"
#include "translation/FormTranslation.h"
#include "translation/StringsLoader.h"
#include "translation/TsLoader.h"

#include <map>
#include <rapidxml/rapidxml.hpp>
#include <stdexcept>
#include <tuple>

namespace Wexa {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;
using ::testing::UnorderedElementsAre;

std::wstring Ts(const std::wstring& messages) {
  return L"<?xml version=\"1.0\"?><!DOCTYPE TS><TS version=\"2.1\" language=\"de-DE\"><context>"
         L"<name>n</name>" +
         messages + L"</context></TS>";
}

std::optional<TSTranslationUnit> Load(const std::wstring& text) {
  TsReport report;
  return LoadTsText(NarrowUtf8(text), L"de-DE", report);
}

// What is read: "a.ui:3=text a.ui:12=other ", by the names of the files.
std::wstring Messages(const std::wstring& messages) {
  const auto unit = Load(Ts(messages));
  if (!unit) return L"(none)";
  const auto& found = unit->GetMessageMap();
  std::wstring all;
  for (const auto& [file, lines] : std::map(found.begin(), found.end()))
    for (const auto& [line, text] : lines)
      all += file + L":" + std::to_wstring(line) + L"=" + text + L" ";
  return all;
}

TEST(TsLoader, StoresTheMessagesOfContextsUnderTheirLocations) {
  const std::wstring message =
      L"<message><location filename='a.ui' line='1'/><translation>t</translation></message>";
  const std::pair<std::wstring, std::wstring> kCases[] = {
      {L"<message><location filename='forms/a.ui' line='12'/><location filename='../x/a.ui' "
       L"line='3'/><location filename='b.ui' line='7'/><source>s</source><translation "
       L"type='unfinished'>\u043C</translation></message>",
       L"a.ui:3=\u043C a.ui:12=\u043C b.ui:7=\u043C "},
      // decoded texts are escaped again
      {L"<message><translation>A &amp; B &lt;C&gt; &amp;amp;</translation><location "
       L"filename='a.ui' line='1'/></message>",
       L"a.ui:1=A &amp; B &lt;C&gt; &amp;amp; "},
      // incomplete locations and messages are dropped
      {L"<message><location line='1'/><location filename='a.ui'/><translation>t</translation>"
       L"</message><message><translation>t</translation></message>",
       L""},
      // the last translation of a message and the first of a line win
      {L"<message><location filename='a.ui' line='1'/><translation>1</translation>"
       L"<translation>2</translation></message>" +
           message + L"<message><location filename='a.ui' line='2'/></message>",
       L"a.ui:1=2 a.ui:2= "},
      {L"<group>" + message + L"</group></context>" + message + L"<context>", L""},
      {L"</context><other>" + message + L"</other><context>", L""}};
  for (const auto& [xml, messages] : kCases) EXPECT_EQ(Messages(xml), messages) << xml;
}

TEST(TsLoader, FilesOfAnotherLanguageGiveNothing) {
  EXPECT_TRUE(Load(L"<TS language='de-DE'/>"));
  EXPECT_FALSE(Load(L"<TS language='de_DE'/>"));
  EXPECT_FALSE(Load(L"<TS/>"));
  EXPECT_FALSE(Load(L"<other language='de-DE'/>"));
  EXPECT_FALSE(Load(L""));
}

TEST(TsLoader, BadLinesAndBadXmlThrow) {
  EXPECT_THROW(Messages(L"<message><location filename='a' line='x'/></message>"),
               std::invalid_argument);
  EXPECT_THROW(Messages(L"<message><location filename='a' line='99999999999'/></message>"),
               std::out_of_range);
  EXPECT_THROW(Load(L"<TS"), rapidxml::parse_error);
}

TEST(TsLoader, TellsWhereNumbersAreRelativeOrNone) {
  TsReport report;
  std::string text;
  const auto read = [&](const std::string& line) {
    report = {};
    text =
        "<TS language='de'>\n<context><message>\n<location filename='a.ui' line='1'/>\n"
        "<location filename='a.ui' line='" +
        line + "'/></message></context></TS>";
    return LoadTsText(text, L"de", report);
  };
  const auto lineAt = [&](std::size_t offset) { return LineAt(text, offset); };
  EXPECT_EQ(read("+12")->GetMessageMap().at(L"a.ui").count(12), 1u);
  EXPECT_EQ(lineAt(report.relative.value()), 4);
  EXPECT_FALSE(report.bad);
  EXPECT_THROW(read(""), std::invalid_argument);
  EXPECT_EQ(lineAt(report.bad.value()), 4);
  EXPECT_EQ(read(" 12 ")->GetMessageMap().at(L"a.ui").count(12), 1u);
  EXPECT_FALSE(report.relative || report.bad);
}

// Longer than what the parser keeps ready for one message.
TEST(TsLoader, ALongMessageIsReadAsAnyOther) {
  std::wstring locations, expected;
  for (int line = 1; line <= 2000; ++line) {
    locations += L"<location filename='a.ui' line='" + std::to_wstring(line) + L"'/>";
    expected += L"a.ui:" + std::to_wstring(line) + L"=t ";
  }
  EXPECT_EQ(Messages(L"<message>" + locations +
                     L"<translation>t</translation></message><message><location "
                     L"filename='b.ui' line='1'/><translation>u</translation></message>"),
            expected + L"b.ui:1=u ");
}

TEST(TSTranslationUnit, AppendingKeepsWhatIsThere) {
  TSTranslationUnit unit;
  unit.AddMessageFromTS(L"a.ui", 1, L"own");
  TSTranslationUnit other;
  other.AddMessageFromTS(L"a.ui", 1, L"other");
  other.AddMessageFromTS(L"a.ui", 2, L"other");
  other.AddMessageFromTS(L"A.ui", 1, L"other");
  unit.AppendTsTranslationUnit(other);
  EXPECT_THAT(unit.GetMessageMap(),
              UnorderedElementsAre(Pair(L"a.ui", ElementsAre(Pair(1, L"own"), Pair(2, L"other"))),
                                   Pair(L"A.ui", ElementsAre(Pair(1, L"other")))));
}

struct Loaded {
  std::unordered_map<std::wstring, std::wstring> texts;
  logFont font;
};

Loaded LoadStrings(const std::wstring& text) {
  Loaded loaded;
  LoadStringsText(NarrowUtf8(text), {L"de-DE", L"en-US"}, loaded.texts, loaded.font);
  return loaded;
}

TEST(StringsLoader, ReadsTextsAndTheFirstOfAnIdStays) {
  const auto loaded = LoadStrings(
      L"\uFEFF<r language='de-DE'><StringTable><string id='a'>\u0420 &amp; <!-- c -->b</string>"
      L"<string>no id</string><string id='a'>later</string><other id='b'/></StringTable></r>");
  EXPECT_THAT(loaded.texts, UnorderedElementsAre(Pair(L"a", L"\u0420 & b")));
}

TEST(StringsLoader, OnlyTheCurrentAndTheDefaultLanguageCount) {
  const std::wstring table = L"<StringTable><string id='a'>t</string></StringTable></r>";
  EXPECT_EQ(LoadStrings(L"<r language='en-US'>" + table).texts.size(), 1u);
  EXPECT_THAT(LoadStrings(L"<r language='fr-FR'>" + table).texts, IsEmpty());
  EXPECT_THAT(LoadStrings(L"<r>" + table).texts, IsEmpty());
  EXPECT_THAT(LoadStrings(L"<r language='de-DE'/>").texts, IsEmpty());
  EXPECT_THAT(LoadStrings(L"").texts, IsEmpty());
}

TEST(StringsLoader, SetsTheFontTheFileNames) {
  const auto named = LoadStrings(
      L"<r language='de-DE'><Font><PreFont FaceName='Arial' Height='110' "
      L"Charset='204'/></Font></r>");
  EXPECT_EQ(named.font.faceName, L"Arial");
  EXPECT_EQ(named.font.height, 110);
  EXPECT_EQ(named.font.charSet, 204);
  const auto partly = LoadStrings(L"<r language='de-DE'><Font><PreFont Height='80'/></Font></r>");
  EXPECT_EQ(partly.font.faceName, L"Tahoma");
  EXPECT_EQ(partly.font.height, 80);
}

TEST(StringsLoader, PassesOverFontsWithBrokenNumbers) {
  for (const auto* height : {L"", L"x", L"110x", L"99999999999", L"10001", L"-10001"}) {
    logFont font;
    std::unordered_map<std::wstring, std::wstring> texts;
    const auto file = L"<r language='de-DE'>\n<Font><PreFont FaceName='Arial' Height='" +
                      std::wstring(height) + L"'/></Font></r>";
    const auto faults = LoadStringsText(NarrowUtf8(file), {L"de-DE", L""}, texts, font);
    ASSERT_EQ(faults.size(), 1u) << height;
    EXPECT_EQ(LineAt(file, faults[0].offset), 2);
    EXPECT_EQ(faults[0].reason, L"\"Height\" is no number from -10000 to 10000");
    EXPECT_EQ(font.height, logFont().height);
    EXPECT_EQ(font.faceName, L"Arial");
  }
}

TEST(FormTranslation, ReplacesStringsWithTheirWholeLinesUpToALineWithoutOne) {
  const std::string form = "<string>1</string>\nno string\n<string>3</string>\nshort";
  const std::string twoLines = "<string>1\n2</string>\n<string>3</string>";
  const std::tuple<std::string, FormLines, std::wstring> kCases[] = {
      {"<ui>\n  <string>old</string>  \n</ui>\n",
       {{2, L"a &amp; b"}},
       L"<ui><string>a &amp; b</string></ui>"},
      {"a\n<string>1\n2\n3</string> x\nb", {{2, L"t"}}, L"a<string>t</string>b"},
      {"a\n<string>1\n2\n3", {{2, L"t"}}, L"a<string>t</string>"},
      {twoLines, {{1, L"t"}, {2, L"u"}, {3, L"v"}}, L"<string>u</string><string>v</string>"},
      {form,
       {{1, L"t"}, {2, L"u"}, {3, L"v"}},
       L"<string>t</string>no string<string>3</string>short"},
      {form, {{4, L"u"}}, TranslateForm(form, {})},
      {form, {{5, L"u"}}, TranslateForm(form, {})},
      {form, {{0, L"u"}, {1, L"u"}}, TranslateForm(form, {})},
      {"", {{1, L"t"}}, L""}};
  for (const auto& [text, lines, translated] : kCases)
    EXPECT_EQ(TranslateForm(text, lines), translated) << text;
}

TEST(FormTranslation, StringsWithoutATranslationStayUnlessAskedFor) {
  const std::string form = "<string>1</string>\nno string\n<string>3</string>\n<string>4</string>";
  const FormLines lines{{1, L""}, {2, L""}, {3, L"t"}, {4, L""}};
  EXPECT_EQ(TranslateForm(form, lines),
            L"<string>1</string>no string<string>t</string><string>4</string>");
  EXPECT_EQ(TranslateForm(form, lines, EmptyTranslations::EmptyString),
            L"<string></string>no string<string>3</string><string>4</string>");
  EXPECT_EQ(TranslateFormInPlace(*WidenUtf8(form), lines),
            L"<string>1</string>\nno string\n<string>t</string>\n<string>4</string>");
}

TEST(FormTranslation, CountsTheStringsThatTheFirstTranslationMisses) {
  const std::string form =
      "<ui>\n<string>1</string><string comment='x'>2</string>\n<stringlist/>"
      "<string notr=\"true\">3</string><string/>";
  for (const auto& [lines, count] :
       {std::pair(FormLines{}, 2u), {{{1, L"t"}}, 2}, {{{2, L""}}, 0}, {{{9, L"t"}}, 2}}) {
    EXPECT_EQ(CountUnmatched(form, lines), count);
    EXPECT_EQ(CountUnmatched(*WidenUtf8(form), lines), count);
  }
}

TEST(FormTranslation, InPlaceKeepsWhatIsAroundAString) {
  const std::wstring form =
      L"<a x='1\n2'>\n  <b><string notr=\"true\">1\n2</string></b>\r\n<string>3</string>\n";
  EXPECT_EQ(TranslateFormInPlace(form, {{3, L"t"}, {5, L"u"}}),
            L"<a x='1\n2'>\n  <b><string notr=\"true\">t</string>\n</b>\r\n<string>u</string>\n");
  EXPECT_EQ(TranslateFormInPlace(form, {}), form);
}

TEST(FormTranslation, InPlaceEndsWhereNoStringElementStarts) {
  const std::wstring strings = L"<string>1</string>\n";
  for (const auto* line :
       {L"<string/>", L"<string x='1'/>", L"<stringlist>", L"<string>1<b/></string>", L"<string>1",
        L"<string", L"none", L"<strings>1</strings>"}) {
    const std::wstring form = strings + line + L"\n" + strings;
    EXPECT_EQ(TranslateFormInPlace(form, {{1, L"t"}, {2, L"u"}, {3, L"v"}}),
              L"<string>t</string>\n" + std::wstring(line) + L"\n" + strings);
    EXPECT_EQ(TranslateFormInPlace(form, {{0, L"t"}, {1, L"u"}}), form);
  }
  EXPECT_EQ(TranslateFormInPlace(strings, {{2, L"t"}}), strings);
  EXPECT_EQ(TranslateFormInPlace(L"<string>1\n2</string>", {{1, L"t"}, {2, L"u"}}),
            L"<string>t</string>\n");
}

}  // namespace
}  // namespace Wexa
