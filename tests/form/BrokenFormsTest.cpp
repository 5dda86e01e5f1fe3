// Real forms with damage: each gives a model or an error, and nothing else.

#include <algorithm>
#include <rapidxml/rapidxml.hpp>
#include <stdexcept>

#include "FormTestSupport.h"
#include "RealForms.h"
#include "form/FormText.h"

namespace Wexa {
namespace {

enum class Outcome { Tree, NoTree, Error, Exception };

Outcome ParseDamaged(const std::wstring& text) {
  FormModel model;
  FormParser parser;
  try {
    if (parser.Parse(text, model)) return model.root != nullptr ? Outcome::Tree : Outcome::NoTree;
    EXPECT_EQ(model.root, nullptr);
    EXPECT_FALSE(parser.ErrorText().empty());
    return Outcome::Error;
  } catch (const rapidxml::parse_error&) {
  } catch (const std::invalid_argument&) {
  } catch (const std::out_of_range&) {
  }
  EXPECT_EQ(model.root, nullptr);
  return Outcome::Exception;
}

// Whole passes over large forms cost the square of their size, so that these are sampled.
constexpr std::size_t kSamples = 150;

std::size_t Stride(std::size_t count, std::size_t least) {
  return std::max(least, count / kSamples);
}

TEST(BrokenForms, CutAnywhereGiveAnErrorUnlessTheFormWasComplete) {
  for (const auto& form : RealForms()) {
    const auto end = form.bytes.rfind("</ui>");
    for (std::size_t length = 0; length < end; length += Stride(form.bytes.size(), 7)) {
      const auto text = PlainFormText(std::string_view(form.bytes).substr(0, length));
      if (!text) continue;
      const auto outcome = ParseDamaged(*text);
      EXPECT_TRUE(outcome == Outcome::Error || outcome == Outcome::Exception)
          << form.path << " cut after " << length;
    }
  }
}

struct Span {
  std::size_t start;
  std::size_t length;
};

// The attributes of all elements, each with the blank before it.
std::vector<Span> AttributesIn(const std::wstring& text) {
  std::vector<Span> spans;
  for (auto at = text.find(L"=\""); at != text.npos; at = text.find(L"=\"", at + 1)) {
    const auto start = text.find_last_of(L" \n", at);
    const auto end = text.find(L'"', at + 2);
    if (start != text.npos && end != text.npos) spans.push_back({start, end + 1 - start});
  }
  return spans;
}

// The numbers that are the whole text of an element or an attribute.
std::vector<Span> NumbersIn(const std::wstring& text) {
  std::vector<Span> spans;
  for (std::size_t at = text.find_first_of(L">\""); at != text.npos;
       at = text.find_first_of(L">\"", at + 1)) {
    const auto end = text.find_first_not_of(L"-0123456789", at + 1);
    const bool closed = end != text.npos && (text[end] == L'<' || text[end] == L'"');
    if (closed && end > at + 1) spans.push_back({at + 1, end - at - 1});
  }
  return spans;
}

template <typename Check>
void ReplaceEach(const std::vector<Span>& spans, const std::wstring& text,
                 const std::wstring& replacement, Check check) {
  for (std::size_t i = 0; i < spans.size(); i += Stride(spans.size(), 1)) {
    auto damaged = text;
    damaged.replace(spans[i].start, spans[i].length, replacement);
    check(ParseDamaged(std::move(damaged)));
  }
}

TEST(BrokenForms, WithoutAnAttributeStillParse) {
  for (const auto& form : RealForms()) {
    const auto attributes = AttributesIn(form.text);
    ASSERT_FALSE(attributes.empty());
    ReplaceEach(attributes, form.text, L"",
                [&](Outcome outcome) { EXPECT_EQ(outcome, Outcome::Tree) << form.path; });
  }
}

TEST(BrokenForms, WithTextOrHugeNumbersGiveAModelOrAnException) {
  for (const auto& form : RealForms()) {
    const auto numbers = NumbersIn(form.text);
    for (const auto* replacement : {L"text", L"99999999999999999999", L"-2147483648", L""}) {
      ReplaceEach(numbers, form.text, replacement, [&](Outcome outcome) {
        EXPECT_TRUE(outcome == Outcome::Tree || outcome == Outcome::Exception) << form.path;
      });
    }
  }
}

}  // namespace
}  // namespace Wexa
