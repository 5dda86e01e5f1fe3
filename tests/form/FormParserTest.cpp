#include "form/FormParser.h"

#include <gmock/gmock.h>

#include <rapidxml/rapidxml.hpp>
#include <stdexcept>

#include "FormTestSupport.h"

namespace Wexa {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;
using ::testing::StrEq;

const std::wstring kMinimalForm = L"<ui><widget class=\"QDialog\" name=\"d\"/></ui>";

// Why there is no model: the text of the parser's error or of its exception.
std::string ErrorOf(const std::wstring& text) {
  FormModel model;
  FormParser parser;
  std::string error = "(none)";
  try {
    if (!parser.Parse(text, model)) error = parser.ErrorText();
  } catch (const std::exception& exception) {
    error = exception.what();
  }
  EXPECT_EQ(model.root == nullptr, error != "(none)");
  return error;
}

TEST(FormParser, RootHasClassAndName) {
  const auto model = ParseForm(kMinimalForm);
  EXPECT_EQ(model.root->kind, FormNode::Kind::Widget);
  EXPECT_EQ(model.root->className, L"QDialog");
  EXPECT_EQ(model.root->name, L"d");
  EXPECT_EQ(model.root->parent, nullptr);
  EXPECT_THAT(model.root->children, IsEmpty());
}

TEST(FormParser, TheFirstWidgetOfTheFirstUiElementIsTheRoot) {
  for (const std::wstring& form :
       {L"\uFEFF<?xml version=\"1.0\"?>\r\n<!-- a form -->\r\n" + kMinimalForm + L"\r\n",
        L"<other><widget name=\"no\"/></other>" + kMinimalForm + L"<ui><widget name=\"e\"/></ui>",
        std::wstring(L"<ui><class>D</class><widget name=\"d\"/><widget name=\"e\"/></ui>")})
    EXPECT_EQ(ParseForm(form).root->name, L"d");
}

TEST(FormParser, WhatIsNoFormSaysWhy) {
  EXPECT_THAT(ErrorOf(L""), StrEq("No UI node has been found."));
  EXPECT_THAT(ErrorOf(L"<UI><widget/></UI>"), StrEq("No UI node has been found."));
  EXPECT_THAT(ErrorOf(L"<ui><Widget/><layout><widget/></layout></ui>"),
              StrEq("No root widget has been found."));
  EXPECT_THAT(ErrorOf(L"form <ui/>"), StrEq("expected <"));
  FormModel model;
  for (const auto* text : {L"<ui><widget></ui>", L"<ui"})
    EXPECT_THROW(FormParser().Parse(text, model), rapidxml::parse_error);
}

TEST(FormParser, EndlesslyNestedElementsThrowTheXmlParsersError) {
  FormModel model;
  for (const std::wstring element : {L"<widget>", L"<layout><item>"}) {
    std::wstring form = L"<ui><widget>";
    for (int i = 0; i < 100000; ++i) form += element;
    EXPECT_THROW(FormParser().Parse(form, model), rapidxml::parse_error);
  }
}

TEST(FormParser, ParsingAgainReplacesModelAndError) {
  FormModel model;
  FormParser parser;
  EXPECT_FALSE(parser.Parse(L"", model));
  EXPECT_TRUE(parser.Parse(kMinimalForm, model));
  EXPECT_THAT(parser.ErrorText(), IsEmpty());
  EXPECT_FALSE(parser.Parse(L"", model));
  EXPECT_EQ(model.root, nullptr);
}

TEST(FormParser, TabStopsKeepTheOrderOfTheFirstList) {
  const auto model = ParseForm(
      L"<ui><tabstops><tabstop>b</tabstop><other/><tabstop>a</tabstop></tabstops>"
      L"<tabstops><tabstop>c</tabstop></tabstops><widget/></ui>");
  EXPECT_THAT(model.tabOrder, ElementsAre(L"b", L"a"));
}

TEST(FormParser, CustomClassesNameTheirBase) {
  const auto model = ParseForm(
      L"<ui><widget/><customwidgets>"
      L"<customwidget><class>AmountField</class><extends>QWidget</extends><header>a.h</header></"
      L"customwidget>"
      L"<customwidget><class>Odd</class></customwidget></customwidgets></ui>");
  EXPECT_THAT(model.customClasses, ElementsAre(Pair(L"AmountField", L"QWidget")));
}

TEST(FormParser, SizeWithoutANumberDropsTheWholeTreeButNotTheTabOrder) {
  const auto model = ParseForm(
      L"<ui><widget><layout><item><widget><property name=\"geometry\"><rect>"
      L"<x>0</x><y>0</y><width>9</width></rect></property></widget></item></layout></widget>"
      L"<tabstops><tabstop>a</tabstop></tabstops></ui>");
  EXPECT_EQ(model.root, nullptr);
  EXPECT_THAT(model.tabOrder, ElementsAre(L"a"));
}

TEST(FormParser, CellNumbersThatAreNoIntegersThrow) {
  for (const std::wstring name : {L"row", L"column", L"rowspan", L"colspan"}) {
    const auto errorOf = [&](const std::wstring& number) {
      return ErrorOf(L"<ui><widget><layout><item " + name + L"=\"" + number +
                     L"\"><spacer/></item></layout></widget></ui>");
    };
    EXPECT_THAT(errorOf(L"one"), StrEq("invalid stoi argument"));
    EXPECT_THAT(errorOf(L""), StrEq("invalid stoi argument"));
    EXPECT_THAT(errorOf(L"99999999999"), StrEq("stoi argument out of range"));
  }
}

}  // namespace
}  // namespace Wexa
