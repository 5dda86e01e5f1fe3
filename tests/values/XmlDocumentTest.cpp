#include "XmlDocument.h"

#include <gmock/gmock.h>

#include "Utf8.h"

namespace Wexa {
namespace {

using ::testing::ElementsAre;
using ::testing::Eq;
using ::testing::Optional;

template <typename Document>
int LineOfErrorIn(const typename Document::Text& text) {
  try {
    Document document(text);
  } catch (const XmlParseError& error) {
    return LineAt(text, error.Offset());
  }
  return 0;
}

// The same for the wide text and for UTF-8.
int LineOfError(const std::wstring& text) {
  const int line = LineOfErrorIn<XmlDocument>(text);
  EXPECT_EQ(LineOfErrorIn<Utf8XmlDocument>(NarrowUtf8(text)), line);
  return line;
}

std::wstring Repeat(const std::wstring& part, int count) {
  std::wstring text;
  for (int i = 0; i < count; ++i) text += part;
  return text;
}

std::wstring Nested(int depth) {
  return Repeat(L"<a>", depth) + Repeat(L"</a>", depth);
}

// Characters whose low bytes are "<", "&", quotes, blanks, "/", ">", "=", a digit and zero.
constexpr wchar_t kTrickyText[] =
    L"\u043C\u0426\u0422\u0427\u0420\u040A\u042F\u043E\u043D\u0430\u0400\u4E3C\u4E26\U0001F33C";

TEST(XmlDocument, KeepsWideCharactersEverywhere) {
  const std::wstring text(kTrickyText);
  XmlDocument document(L"<" + text + L" " + text + L"=\"" + text + L"&amp;" + text + L"\" y='" +
                       text + L"'>" + text + L"</" + text + L">");
  ASSERT_NE(document.First(text.c_str()), nullptr);
  EXPECT_EQ(TextOf(*document.First()), text);
  EXPECT_THAT(AttributeOf(*document.First(), text.c_str()), Optional(Eq(text + L"&" + text)));
  EXPECT_THAT(AttributeOf(*document.First(), L"y"), Optional(Eq(text)));
}

TEST(XmlDocument, KeepsWideCharactersAroundReferencesAndBlanks) {
  XmlDocument document(L"<a>\u0420 &lt; \u043C&#1084;&#x4E3C;&#x1F33C; </a>");
  EXPECT_EQ(TextOf(*document.First()), L"\u0420 < \u043C\u043C\u4E3C\U0001F33C ");
}

TEST(Utf8XmlDocument, KeepsWideCharactersEverywhere) {
  const std::string text = NarrowUtf8(kTrickyText);
  Utf8XmlDocument document("\xEF\xBB\xBF<" + text + " x='" + text + "&#1084;'>" + text +
                           "&#x1F33C;</" + text + ">");
  ASSERT_NE(document.First(text.c_str()), nullptr);
  EXPECT_THAT(AttributeOf(*document.First(), "x"), Optional(Eq(text + "\u043C")));
  EXPECT_EQ(TextOf(*document.First()), text + "\U0001F33C");
}

TEST(Utf8XmlDocument, HandsOverTheElementsOfTheThirdLevel) {
  std::vector<std::string> seen;
  const Utf8XmlDocument document(
      "<a x='1'><b>t<c>1</c><c/><d><c>2</c></d></b><b y='2'><e>3<!-- --></e></b></a>",
      [&](const Utf8XmlDocument& reader, const Utf8XmlNode& root, const Utf8XmlNode& parent,
          const Utf8XmlNode& element) {
        const bool second = AttributeOf(parent, "y").has_value();
        seen.push_back(std::to_string(reader.OffsetOf(element)) + root.name()[0] +
                       (second ? "2" : "1") + element.name()[0] + TextOf(element));
      });
  EXPECT_THAT(seen, ElementsAre("14a1c1", "22a1c", "26a1d", "54a2e3"));
  const auto* parent = document.First("a")->first_node("b");
  EXPECT_EQ(TextOf(*parent), "t");
  EXPECT_EQ(parent->first_node("c"), nullptr);
}

TEST(XmlDocument, RefusesReferencesToNoCharacter) {
  for (const auto* code : {L"0", L"xD800", L"xDFFF", L"x110000"}) {
    EXPECT_EQ(LineOfError(L"<a>&#" + std::wstring(code) + L";</a>"), 1) << code;
  }
}

TEST(XmlDocument, SkipsWhatIsNoElement) {
  XmlDocument document(
      L"\uFEFF<?xml version=\"1.0\"?><!DOCTYPE a [<!ENTITY b '>'>]><!-- <x> --><a>1<!-- </a> -->2"
      L"<?pi </a>?><![CDATA[<b>]]></a>");
  ASSERT_NE(document.First(L"a"), nullptr);
  EXPECT_EQ(document.First()->name(), std::wstring(L"a"));
  EXPECT_EQ(TextOf(*document.First()), L"12<b>");
}

TEST(XmlDocument, HasNoElementInAnEmptyText) {
  EXPECT_EQ(XmlDocument(L"").First(), nullptr);
  EXPECT_EQ(XmlDocument(L"<b/>").First(L"a"), nullptr);
}

TEST(XmlDocument, ErrorsNameTheLine) {
  EXPECT_EQ(LineOfError(L"<a>\n<b>\n</c>\n</a>"), 3);
  EXPECT_EQ(LineOfError(L"junk"), 1);
  EXPECT_EQ(LineOfError(L"<a\n\nb=1/>"), 3);
  EXPECT_EQ(LineOfError(L"<a\n>&amp;\n&amp;\n</a\n><b>"), 5);
  EXPECT_EQ(LineOfError(L"<a>\n\n" + std::wstring(1, L'\0') + L"</a>"), 3);
}

TEST(XmlDocument, RefusesEntitiesThatAreNotDefined) {
  const std::pair<const wchar_t*, int> kLines[] = {
      {L"<a>\n&copy;</a>", 2},
      {L"<a>\n<!-- &copy; --><b x='&nbsp;'/></a>", 2},
      {L"<a>\n<?p &copy; ?><![CDATA[&copy;]]>\n&x.1;</a>", 3},
      {L"<a>&amp;&lt;&gt;&quot;&apos;&#65; & &copy &1; &&;<!--&copy;--></a>", 0},
      {L"<!DOCTYPE a [<!ENTITY copy 'c'>]><a>&copy;</a>", 0},
      {L"<a/>\ntext", 2}};
  for (const auto& [text, line] : kLines) EXPECT_EQ(LineOfError(text), line) << text;
}

TEST(XmlDocument, EveryTruncationIsAnErrorOrADocument) {
  const std::wstring text = L"<?xml?><!DOCTYPE a><a b='&lt;'><!-- c --><![CDATA[d]]>e<f/></a>";
  for (std::size_t length = 0; length < text.size(); ++length) {
    const auto start = text.substr(0, length);
    if (LineOfError(start) == 0) {
      EXPECT_EQ(XmlDocument(start).First(), nullptr) << length;
    }
  }
}

TEST(XmlDocument, RefusesDeepNestingOnly) {
  EXPECT_EQ(LineOfError(Nested(500)), 0);
  EXPECT_EQ(LineOfError(L"\n" + Nested(501)), 2);
  EXPECT_EQ(LineOfError(L"<a>" + Repeat(L"<b/><c x='/>'></c>", 10000) + L"</a>"), 0);
}

// Each start would hide the nesting from a scan that reads tags other than the parser does.
TEST(XmlDocument, NothingHidesDeepNesting) {
  const std::wstring deep = Repeat(L"<a>", 300000);
  for (const auto* start :
       {L"<a '=''>", L"<a=\">", L"<a'>", L"<a b='>'>", L"<a><!-- \" -->", L"<a><?b ' ?>",
        L"<!DOCTYPE x ] [>] ><a>", L"<!DOCTYPE x [ </a></a> ]><a>", L"<a><![CDATA[ <!-- ]]>",
        L"<!x '><a>", L"<a><!-->--><b>", L"<\u042F\u043C>", L"<a \u0422='\"'>", L"</a></a>"}) {
    EXPECT_NE(LineOfError(start + deep), 0) << testing::PrintToString(std::wstring(start));
  }
}

TEST(XmlDocument, MarkupInCommentsIsNoNesting) {
  EXPECT_EQ(LineOfError(L"<a><!--" + Nested(600) + L"--><![CDATA[" + Nested(600) + L"]]></a>"), 0);
}

}  // namespace
}  // namespace Wexa
