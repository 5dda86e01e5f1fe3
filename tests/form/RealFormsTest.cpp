#include "RealForms.h"

#include <algorithm>
#include <array>

#include "FormTestSupport.h"
#include "form/FormText.h"

namespace Wexa {
namespace {

using ::testing::Contains;
using ::testing::Not;
using ::testing::SizeIs;

using KindCounts = std::array<int, 3>;

int Occurrences(const std::wstring& text, const std::wstring& word) {
  int count = 0;
  for (auto at = text.find(word); at != text.npos; at = text.find(word, at + 1)) ++count;
  return count;
}

void CountKinds(const FormNode& node, KindCounts& counts) {
  ++counts[static_cast<std::size_t>(node.kind)];
  for (const auto& child : node.children) {
    EXPECT_EQ(child->parent, &node);
    CountKinds(*child, counts);
  }
}

TEST(RealForms, HaveEveryWidgetLayoutAndSpacerOfTheFile) {
  ASSERT_THAT(RealForms(), SizeIs(36));
  for (const auto& form : RealForms()) {
    const auto model = ParseForm(PlainFormText(form.bytes).value());
    ASSERT_NE(model.root, nullptr) << form.path;
    KindCounts counts{};
    CountKinds(*model.root, counts);
    EXPECT_EQ(counts,
              (KindCounts{Occurrences(form.text, L"<widget "), Occurrences(form.text, L"<layout "),
                          Occurrences(form.text, L"<spacer")}))
        << form.path;
    EXPECT_THAT(model.tabOrder, SizeIs(Occurrences(form.text, L"<tabstop>"))) << form.path;
    EXPECT_THAT(model.customClasses, SizeIs(Occurrences(form.text, L"<customwidget>")))
        << form.path;
  }
}

TEST(RealForms, ReadTheSameWithEitherLineEnd) {
  for (const auto& form : RealForms()) {
    std::wstring unixEnds = form.text;
    std::erase(unixEnds, L'\r');
    std::wstring dosEnds;
    for (const wchar_t c : unixEnds) dosEnds += c == L'\n' ? L"\r\n" : std::wstring(1, c);
    KindCounts a{}, b{};
    CountKinds(*ParseForm(unixEnds).root, a);
    CountKinds(*ParseForm(dosEnds).root, b);
    EXPECT_EQ(a, b) << form.path;
  }
}

const FormNode* FindNode(const FormNode& node, std::wstring_view name) {
  if (node.name == name) return &node;
  for (const auto& child : node.children)
    if (const auto* found = FindNode(*child, name)) return found;
  return nullptr;
}

const RealForm& FormNamed(const std::string& ending) {
  const auto found = std::ranges::find_if(
      RealForms(), [&](const RealForm& form) { return form.path.ends_with(ending); });
  return found != RealForms().end() ? *found : throw std::out_of_range(ending);
}

TEST(RealForms, ValuesOfASampledFormAreThoseOfTheFile) {
  const auto model = ParseForm(FormNamed("bitcoin-gui/optionsdialog.ui").text);
  EXPECT_EQ(TextIn(*model.root, PropertyId::Title), L"Options");
  const auto* tabs = FindNode(*model.root, L"tabWidget");
  ASSERT_NE(tabs, nullptr);
  EXPECT_EQ(tabs->className, L"QTabWidget");
  EXPECT_EQ(tabs->children.front()->titleAttribute, L"&Main");
}

}  // namespace
}  // namespace Wexa
