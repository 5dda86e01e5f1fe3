#include "form/FormReader.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "form/FormTestSupport.h"

namespace Wexa {
namespace {

const std::wstring kForm =
    LR"(<property name="wordWrap"><bool>true</bool></property>
        <property name="textVisible"><bool>false</bool></property>
        <property name="checked"><bool>TRUE</bool></property>
        <property name="toolTip"><string>&lt;p&gt;a &lt;b&gt;b&lt;/b&gt;&lt;/p&gt;</string></property>
        <property name="suffix"><string> &lt; 3</string></property>
        <property name="orientation"><enum>Qt::Orientation::Vertical</enum></property>
        <property name="singleStep"><number>7</number></property>
        <property name="minimum"><double>-2.5</double></property>
        <property name="value"><number>99999999999</number></property>
        <property name="maximum"><double>nan</double></property>
        <property name="decimals"><number>many</number></property>)";

TEST(FormReaderTest, ConvertsWhatTheFormStates) {
  const auto root = ParseRootWith(kForm);
  const FormReader form(*root);
  EXPECT_TRUE(form.Flag(PropertyId::WordWrap, false));
  EXPECT_FALSE(form.Flag(L"textVisible", true));
  EXPECT_FALSE(form.Flag(L"checked", false)) << "only \"true\" is true";
  EXPECT_EQ(form.PlainText(L"toolTip"), L"a b");
  EXPECT_EQ(form.PlainText(L"suffix"), L" < 3");
  EXPECT_TRUE(form.IsVertical());
  EXPECT_EQ(form.Integer(L"singleStep", 1), 7);
  EXPECT_EQ(form.Number(PropertyId::Minimum, 0), -2.5);
  const FormReader::Range range = form.RangeOr(0, 99);
  EXPECT_EQ(range.minimum, -2);
  EXPECT_EQ(range.maximum, 99);
  EXPECT_EQ(range.value, 2147483647);
  EXPECT_THROW(form.Integer(L"decimals", 0), std::invalid_argument);
}

TEST(FormReaderTest, AnswersWithWhatItIsGivenForAbsentProperties) {
  const auto root = ParseRootWith(L"");
  const FormReader form(*root);
  for (const bool absent : {false, true}) EXPECT_EQ(form.Flag(L"checked", absent), absent);
  EXPECT_EQ(form.Find(L"toolTip"), nullptr);
  EXPECT_EQ(form.PlainText(L"toolTip"), std::nullopt);
  EXPECT_EQ(form.Text(PropertyId::Text, L"-"), L"-");
  EXPECT_EQ(form.Integer(PropertyId::X, 3), 3);
  EXPECT_EQ(form.RangeOr(4, 9).value, 4);
}

TEST(FormReaderTest, KnowsAlignmentsByAnyOfTheirWords) {
  const std::pair<const wchar_t*, int> kCases[] = {
      {L"Qt::AlignLeft|Qt::AlignTop", 0},
      {L"Qt::AlignCenter", 1},
      {L"Qt::AlignHCenter|Qt::AlignTop", 1},
      {L"Qt::AlignRight|Qt::AlignTrailing|Qt::AlignVCenter", 2},
      {L"Qt::AlignTrailing", 2},
      {L"Qt::AlignmentFlag::AlignRight", 2}};
  for (const auto& [set, expected] : kCases) {
    const auto root = ParseRootWith(L"<property name=\"alignment\"><set>" + std::wstring(set) +
                                    L"</set></property>");
    EXPECT_EQ(FormReader(*root).HorizontalAlignment(), expected) << expected;
  }
}

}  // namespace
}  // namespace Wexa
