#include "form/RichText.h"

#include <gtest/gtest.h>

namespace Wexa {
namespace {

std::wstring Plain(std::wstring_view richText) {
  std::int32_t bold = 0;
  return PlainTextOf(richText, bold);
}

TEST(RichText, EntitiesAndWhiteSpaceAreReadAsMarkUp) {
  const std::pair<const wchar_t*, const wchar_t*> kTexts[] = {
      {L"<p>&copy; &#169;&#xa9; &AMP; &amp;lt; &Alpha;&zwnj;&euro;</p>",
       L"\u00A9 \u00A9\u00A9 &AMP; &lt; \u0391\u200C\u20AC"},
      {L"<b>&none; &; & &#0; &#xD800; &#x110000; &#12x; &thetasym",
       L"&none; &; & &#0; &#xD800; &#x110000; &#12x; &thetasym"},
      {L"<p> a \t\r\n <b> b</b>  <i> c </i>\n</p>\n <p>d</p> ", L"a b c\nd"},
      {L"<p>a&nbsp;&nbsp; b&emsp;\u2003c<br/> d</p>", L"a\u00A0\u00A0 b\u2003\u2003c\nd"},
      {L"<head><style>p{}</style></head>a<style/>b<style>c</style>d<style>e", L"abd"}};
  for (const auto& [rich, plain] : kTexts) EXPECT_EQ(Plain(rich), plain) << rich;
}

// These took minutes when each tag looked for its end again.
TEST(RichText, TagsThatNeverCloseAreReadOnce) {
  for (const std::wstring tag : {L"<style>", L"<head>", L"<b", L"<", L"&"}) {
    std::wstring text = L"a";
    while (text.size() < 1'000'000) text += tag;
    EXPECT_EQ(Plain(text).front(), L'a') << tag;
  }
}

}  // namespace
}  // namespace Wexa
