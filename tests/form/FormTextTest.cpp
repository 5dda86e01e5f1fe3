#include "form/FormText.h"

#include <stdexcept>

namespace Wexa {
namespace {

TEST(FormText, EnumWordsMatchInBothSpellings) {
  const std::pair<const wchar_t*, const wchar_t*> kSpellings[] = {
      {L"Qt::Vertical", L"Qt::Orientation::Vertical"},
      {L"Qt::AlignRight", L"Qt::AlignmentFlag::AlignRight"},
      {L"QFrame::Box", L"QFrame::Shape::Box"},
      {L"QLineEdit::Password", L"QLineEdit::EchoMode::Password"},
      {L"QSizePolicy::Expanding", L"QSizePolicy::Policy::Expanding"},
      {L"QLayout::SetFixedSize", L"QLayout::SizeConstraint::SetFixedSize"},
      {L"QDialogButtonBox::Ok", L"QDialogButtonBox::StandardButton::Ok"}};
  for (const auto& [word, scoped] : kSpellings) {
    EXPECT_TRUE(HasEnumWord(word, word)) << word;
    EXPECT_TRUE(HasEnumWord(scoped, word)) << word;
    EXPECT_TRUE(IsEnumWord(word, word)) << word;
    EXPECT_TRUE(IsEnumWord(scoped, word)) << word;
  }
}

TEST(FormText, EnumWordsAreFoundAnywhereInASet) {
  const auto* set = L"Qt::AlignmentFlag::AlignRight|Qt::AlignTrailing|Qt::AlignmentFlag::AlignTop";
  EXPECT_TRUE(HasEnumWord(set, L"Qt::AlignRight"));
  EXPECT_TRUE(HasEnumWord(set, L"Qt::AlignTrailing"));
  EXPECT_TRUE(HasEnumWord(set, L"Qt::AlignTop"));
  EXPECT_FALSE(HasEnumWord(set, L"Qt::AlignLeft"));
  EXPECT_FALSE(IsEnumWord(set, L"Qt::AlignRight"));
}

TEST(FormText, OtherScopesAndNamesDoNotMatch) {
  EXPECT_FALSE(HasEnumWord(L"", L"Qt::Vertical"));
  EXPECT_FALSE(HasEnumWord(L"Vertical", L"Qt::Vertical"));
  EXPECT_FALSE(HasEnumWord(L"Qt::", L"Qt::Vertical"));
  EXPECT_FALSE(HasEnumWord(L"QFrame::Vertical", L"Qt::Vertical"));
  EXPECT_FALSE(HasEnumWord(L"Qt::a::b::Vertical", L"Qt::Vertical"));
  EXPECT_FALSE(HasEnumWord(L"QSizePolicy::MinimumExpanding", L"QSizePolicy::Expanding"));
  EXPECT_FALSE(IsEnumWord(L"QFrame::Shape::Boxed", L"QFrame::Box"));
}

TEST(FormText, LongWordsAreReadOnce) {
  const std::wstring letters(1'000'000, L'f');
  EXPECT_FALSE(HasEnumWord(letters, L"true"));
  EXPECT_TRUE(HasEnumWord(letters + L"true", L"true"));
  EXPECT_FALSE(HasEnumWord(L"Qt::" + letters, L"Qt::Vertical"));
}

TEST(FormText, PlainFormsStartWithAnElement) {
  EXPECT_EQ(PlainFormText("<ui/>"), L"<ui/>");
  EXPECT_EQ(PlainFormText("\xEF\xBB\xBF \t\r\n<a>\xD0\x96\xF0\x9F\x98\x80"),
            L" \t\r\n<a>\u0416\U0001F600");
  EXPECT_EQ(PlainFormText(""), std::nullopt);
  EXPECT_EQ(PlainFormText(" \n"), std::nullopt);
  EXPECT_EQ(PlainFormText("\xEF\xBB\xBF"), std::nullopt);
  EXPECT_EQ(PlainFormText("x<ui/>"), std::nullopt);
}

TEST(FormText, BytesThatAreNoUtf8AreNoPlainForm) {
  EXPECT_EQ(PlainFormText("<ui>\xC3</ui>"), std::nullopt);
  EXPECT_EQ(PlainFormText("<ui>\xED\xA0\x80</ui>"), std::nullopt);
  EXPECT_EQ(PlainFormText("\xFF\xFE<\0u\0"), std::nullopt);
}

TEST(FormText, IntegersMayBeFollowedByAnything) {
  EXPECT_EQ(FormInteger(L" -12,3"), -12);
  EXPECT_THROW(FormInteger(L"x1"), std::invalid_argument);
  EXPECT_THROW(FormInteger(L"2147483648"), std::out_of_range);
}

}  // namespace
}  // namespace Wexa
