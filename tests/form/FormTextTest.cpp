#include "form/FormText.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <tuple>

namespace Wexa {
namespace {

TEST(FormText, EnumWordsAreFoundInBothSpellingsAnywhereInASet) {
  enum Found { No, InASet, Alone };
  const auto* set = L"Qt::AlignmentFlag::AlignRight|Qt::AlignTrailing|Qt::AlignmentFlag::AlignTop";
  const std::tuple<const wchar_t*, const wchar_t*, Found> kCases[] = {
      {L"Qt::Vertical", L"Qt::Vertical", Alone},
      {L"Qt::Orientation::Vertical", L"Qt::Vertical", Alone},
      {L"QSizePolicy::Policy::Expanding", L"QSizePolicy::Expanding", Alone},
      {set, L"Qt::AlignRight", InASet},
      {set, L"Qt::AlignTrailing", InASet},
      {set, L"Qt::AlignTop", InASet},
      {set, L"Qt::AlignLeft", No},
      {L"", L"Qt::Vertical", No},
      {L"Vertical", L"Qt::Vertical", No},
      {L"Qt::", L"Qt::Vertical", No},
      {L"QFrame::Vertical", L"Qt::Vertical", No},
      {L"Qt::a::b::Vertical", L"Qt::Vertical", No},
      {L"QFrame::Shape::Boxed", L"QFrame::Box", InASet},
      {L"QSizePolicy::MinimumExpanding", L"QSizePolicy::Expanding", No}};
  for (const auto& [text, word, found] : kCases) {
    EXPECT_EQ(HasEnumWord(text, word), found != No) << text << " " << word;
    EXPECT_EQ(IsEnumWord(text, word), found == Alone) << text << " " << word;
  }
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
  for (const char* none :
       {"", " \n", "\xEF\xBB\xBF", "x<ui/>", "<ui>\xC3</ui>", "<ui>\xED\xA0\x80</ui>", "\xFF\xFE<"})
    EXPECT_EQ(PlainFormText(none), std::nullopt) << none;
}

TEST(FormText, IntegersMayBeFollowedByAnything) {
  EXPECT_EQ(FormInteger(L" -12,3"), -12);
  EXPECT_THROW(FormInteger(L"x1"), std::invalid_argument);
  EXPECT_THROW(FormInteger(L"2147483648"), std::out_of_range);
}

}  // namespace
}  // namespace Wexa
