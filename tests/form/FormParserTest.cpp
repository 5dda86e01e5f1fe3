#include "form/FormParser.h"

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

std::string ErrorOf(const std::wstring& text) {
  FormModel model;
  FormParser parser;
  EXPECT_FALSE(parser.Parse(text, model));
  EXPECT_EQ(model.root, nullptr);
  return parser.ErrorText();
}

std::string XmlErrorOf(const std::wstring& text) {
  FormModel model;
  try {
    FormParser().Parse(text, model);
  } catch (const rapidxml::parse_error& error) {
    EXPECT_EQ(model.root, nullptr);
    return error.what();
  }
  return "(none)";
}

TEST(FormParser, RootHasClassAndName) {
  const auto model = ParseForm(kMinimalForm);
  EXPECT_EQ(model.root->kind, FormNode::Kind::Widget);
  EXPECT_EQ(model.root->className, L"QDialog");
  EXPECT_EQ(model.root->name, L"d");
  EXPECT_EQ(model.root->parent, nullptr);
}

TEST(FormParser, ByteOrderMarkDeclarationAndCommentsMayComeFirst) {
  const auto model =
      ParseForm(L"\uFEFF<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n<!-- a form -->\r\n" +
                kMinimalForm + L"\r\n");
  EXPECT_EQ(model.root->name, L"d");
}

TEST(FormParser, TheFirstUiElementIsTheForm) {
  const auto model = ParseForm(L"<other><widget name=\"no\"/></other>" + kMinimalForm +
                               L"<ui><widget name=\"e\"/></ui>");
  EXPECT_EQ(model.root->name, L"d");
}

TEST(FormParser, TheFirstWidgetIsTheRoot) {
  const auto model =
      ParseForm(L"<ui><class>D</class><widget name=\"a\"/><widget name=\"b\"/></ui>");
  EXPECT_EQ(model.root->name, L"a");
  EXPECT_THAT(model.root->children, IsEmpty());
}

TEST(FormParser, FormWithoutUiElementIsAnError) {
  EXPECT_THAT(ErrorOf(L""), StrEq("No UI node has been found."));
  EXPECT_THAT(ErrorOf(L"<UI><widget/></UI>"), StrEq("No UI node has been found."));
}

TEST(FormParser, FormWithoutRootWidgetIsAnError) {
  EXPECT_THAT(ErrorOf(L"<ui><Widget/><layout><widget/></layout></ui>"),
              StrEq("No root widget has been found."));
}

TEST(FormParser, MalformedXmlThrowsTheXmlParsersError) {
  EXPECT_THAT(XmlErrorOf(L"form <ui/>"), StrEq("expected <"));
  EXPECT_NE(XmlErrorOf(L"<ui><widget></ui>"), "(none)");
  EXPECT_NE(XmlErrorOf(L"<ui"), "(none)");
}

TEST(FormParser, EndlesslyNestedElementsThrowTheXmlParsersError) {
  std::wstring widgets, items;
  for (int i = 0; i < 100000; ++i) {
    widgets += L"<widget>";
    items += L"<layout><item>";
  }
  EXPECT_NE(XmlErrorOf(L"<ui>" + widgets), "(none)");
  EXPECT_NE(XmlErrorOf(L"<ui><widget>" + items), "(none)");
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

std::string CellErrorOf(const std::wstring& attributes) {
  FormModel model;
  try {
    FormParser().Parse(
        L"<ui><widget><layout><item " + attributes + L"><spacer/></item></layout></widget></ui>",
        model);
  } catch (const std::logic_error& error) {
    EXPECT_EQ(model.root, nullptr);
    return error.what();
  }
  return "(none)";
}

TEST(FormParser, CellNumbersThatAreNoIntegersThrow) {
  for (const auto* name : {L"row", L"column", L"rowspan", L"colspan"}) {
    EXPECT_THAT(CellErrorOf(name + std::wstring(L"=\"one\"")), StrEq("invalid stoi argument"));
    EXPECT_THAT(CellErrorOf(name + std::wstring(L"=\"\"")), StrEq("invalid stoi argument"));
    EXPECT_THAT(CellErrorOf(name + std::wstring(L"=\"99999999999\"")),
                StrEq("stoi argument out of range"));
  }
}

}  // namespace
}  // namespace Wexa
