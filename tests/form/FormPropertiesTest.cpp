#include "form/FormProperties.h"

#include "FormTestSupport.h"

namespace Wexa {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::unique_ptr<FormNode> NodeWith(const std::wstring& property, const std::wstring& value) {
  return ParseRootWith(L"<property name=\"" + property + L"\">" + value + L"</property>").root;
}

std::wstring Element(const std::wstring& name, const std::wstring& text) {
  return L"<" + name + L">" + text + L"</" + name + L">";
}

struct SimpleProperty {
  std::wstring name;
  std::wstring element;
  int slot;
};

const SimpleProperty kSimpleProperties[] = {{L"sizeConstraint", L"enum", 40},
                                            {L"sizeType", L"enum", 34},
                                            {L"echoMode", L"enum", 30},
                                            {L"selectionMode", L"enum", 33},
                                            {L"orientation", L"enum", 25},
                                            {L"frameShape", L"enum", 42},
                                            {L"focusPolicy", L"enum", 15},
                                            {L"spacing", L"number", 35},
                                            {L"leftMargin", L"number", 36},
                                            {L"rightMargin", L"number", 37},
                                            {L"topMargin", L"number", 38},
                                            {L"bottomMargin", L"number", 39},
                                            {L"currentIndex", L"number", 24},
                                            {L"minimumContentsLength", L"number", 32},
                                            {L"verticalSpacing", L"number", 43},
                                            {L"horizontalSpacing", L"number", 44},
                                            {L"minimum", L"number", 22},
                                            {L"maximum", L"double", 23},
                                            {L"value", L"number", 21},
                                            {L"sliderPosition", L"double", 21},
                                            {L"wordWrap", L"bool", 28},
                                            {L"readOnly", L"bool", 29},
                                            {L"frame", L"bool", 31},
                                            {L"sortingEnabled", L"bool", 41},
                                            {L"default", L"bool", 45},
                                            {L"text", L"string", 14},
                                            {L"windowTitle", L"string", 8},
                                            {L"title", L"string", 8},
                                            {L"alignment", L"set", 27},
                                            {L"standardButtons", L"set", 26},
                                            {L"buddy", L"cstring", 16}};

TEST(FormProperties, ValuesOfTheirKindFillTheirSlot) {
  for (const auto& property : kSimpleProperties) {
    const auto node = NodeWith(property.name, Element(property.element, L"a &lt; b"));
    EXPECT_EQ(TextIn(*node, PropertyId(property.slot)), L"a < b") << property.slot;
  }
}

TEST(FormProperties, ValuesOfAnotherKindAreSkipped) {
  for (const auto& property : kSimpleProperties) {
    const auto node = NodeWith(property.name, Element(L"date", L"x") + Element(L"color", L"y"));
    ASSERT_NE(node, nullptr);
    EXPECT_EQ(node->Text(PropertyId(property.slot)), nullptr) << property.slot;
  }
}

TEST(FormProperties, EmptyTextIsThere) {
  EXPECT_EQ(TextIn(*NodeWith(L"text", L"<string/>"), PropertyId::Text), L"");
}

TEST(FormProperties, NumberWinsOverDouble) {
  EXPECT_EQ(TextIn(*NodeWith(L"value", L"<double>2.5</double>"), PropertyId::Value), L"2.5");
  EXPECT_EQ(
      TextIn(*NodeWith(L"value", L"<double>2.5</double><number>3</number>"), PropertyId::Value),
      L"3");
}

TEST(FormProperties, TheLastPropertyOfANameWins) {
  const auto model = ParseRootWith(
      L"<property name=\"value\"><number>1</number></property>"
      L"<property name=\"sliderPosition\"><number>2</number></property>");
  EXPECT_EQ(TextIn(*model.root, PropertyId::Value), L"2");
}

const std::wstring kRect = L"<x>1</x><y>2</y><width>3</width><height>4</height>";

TEST(FormProperties, GeometryFillsItsFourSlots) {
  const auto node = NodeWith(L"geometry", Element(L"rect", kRect));
  EXPECT_EQ(TextIn(*node, PropertyId::X), L"1");
  EXPECT_EQ(TextIn(*node, PropertyId::Y), L"2");
  EXPECT_EQ(TextIn(*node, PropertyId::Width), L"3");
  EXPECT_EQ(TextIn(*node, PropertyId::Height), L"4");
}

TEST(FormProperties, SizesFillTheirSlots) {
  const auto size = Element(L"size", L"<width>3</width><height>4</height>");
  const auto minimum = NodeWith(L"minimumSize", size);
  EXPECT_EQ(TextIn(*minimum, PropertyId(5)), L"3");
  EXPECT_EQ(TextIn(*minimum, PropertyId(4)), L"4");
  const auto maximum = NodeWith(L"maximumSize", size);
  EXPECT_EQ(TextIn(*maximum, PropertyId(7)), L"3");
  EXPECT_EQ(TextIn(*maximum, PropertyId(6)), L"4");
  const auto hint = NodeWith(L"sizeHint", size);
  EXPECT_EQ(TextIn(*hint, PropertyId(2)), L"3");
  EXPECT_EQ(TextIn(*hint, PropertyId(3)), L"4");
}

TEST(FormProperties, ANumberMissingInARectangleOrSizeDropsTheNode) {
  for (const auto* missing :
       {L"<x>1</x>", L"<y>2</y>", L"<width>3</width>", L"<height>4</height>"}) {
    auto rect = kRect;
    rect.erase(rect.find(missing), std::wstring(missing).size());
    EXPECT_EQ(NodeWith(L"geometry", Element(L"rect", rect)), nullptr) << missing;
  }
  for (const auto* name : {L"minimumSize", L"maximumSize", L"sizeHint"}) {
    EXPECT_EQ(NodeWith(name, L"<size><width>3</width></size>"), nullptr) << name;
    EXPECT_EQ(NodeWith(name, L"<size/>"), nullptr) << name;
    EXPECT_NE(NodeWith(name, Element(L"rect", kRect)), nullptr) << name;
  }
}

TEST(FormProperties, SizePolicyFillsTheSlotsItStates) {
  const auto whole = NodeWith(L"sizePolicy",
                              L"<sizepolicy hsizetype=\"Preferred\" vsizetype=\"Fixed\">"
                              L"<horstretch>1</horstretch><verstretch>2</verstretch></sizepolicy>");
  EXPECT_EQ(TextIn(*whole, PropertyId::HSizeType), L"Preferred");
  EXPECT_EQ(TextIn(*whole, PropertyId::VSizeType), L"Fixed");
  EXPECT_EQ(TextIn(*whole, PropertyId::HorStretch), L"1");
  EXPECT_EQ(TextIn(*whole, PropertyId::VerStretch), L"2");
  const auto part = NodeWith(L"sizePolicy", L"<sizepolicy vsizetype=\"Fixed\"/>");
  EXPECT_EQ(part->Text(PropertyId::HSizeType), nullptr);
  EXPECT_EQ(TextIn(*part, PropertyId::VSizeType), L"Fixed");
}

TEST(FormProperties, StandardButtonsAreFoundByTheirWords) {
  const auto node =
      NodeWith(L"standardButtons", L"<set>QDialogButtonBox::Cancel|QDialogButtonBox::Ok</set>");
  EXPECT_EQ(node->standardButtons.flags, 0x400400u);
  EXPECT_THAT(node->standardButtons.list, ElementsAre(0x400u, 0x400000u));
}

TEST(FormProperties, EveryStandardButtonHasItsFlag) {
  const std::pair<std::wstring, std::uint32_t> kFlags[] = {
      {L"Ok", 0x400},        {L"Cancel", 0x400000}, {L"Abort", 0x40000}, {L"Retry", 0x80000},
      {L"Ignore", 0x100000}, {L"Yes", 0x4000},      {L"No", 0x10000},    {L"Reset", 0x4000000}};
  for (const auto& [word, flag] : kFlags) {
    const auto node =
        NodeWith(L"standardButtons", Element(L"set", L"QDialogButtonBox::StandardButton::" + word));
    EXPECT_THAT(node->standardButtons.list, ElementsAre(flag));
  }
}

TEST(FormProperties, WordsThatContainAStandardButtonCountAsIt) {
  EXPECT_EQ(
      NodeWith(L"standardButtons", L"<set>QDialogButtonBox::YesToAll</set>")->standardButtons.flags,
      0x4000u);
  const auto close = NodeWith(L"standardButtons", L"<set>QDialogButtonBox::Close</set>");
  EXPECT_EQ(close->standardButtons.flags, 0u);
  EXPECT_THAT(close->standardButtons.list, IsEmpty());
}

TEST(FormProperties, PropertiesWithoutASlotAreKeptByName) {
  EXPECT_EQ(ExtraIn(*NodeWith(L"checked", L"<bool>true</bool>"), L"checked"), L"true");
  EXPECT_EQ(ExtraIn(*NodeWith(L"toolTip", L"<string>tip</string>"), L"toolTip"), L"tip");
  EXPECT_EQ(ExtraIn(*NodeWith(L"margin", L"<number>9</number>"), L"margin"), L"9");
  EXPECT_EQ(ExtraIn(*NodeWith(L"margin", L"<bool>true</bool>"), L"margin"), L"(none)");
  EXPECT_EQ(
      ExtraIn(*NodeWith(L"date", L"<date><year>2020</year><month>2</month><day>9</day></date>"),
              L"date"),
      L"2020-2-9");
}

TEST(FormProperties, UnknownPropertiesAreIgnored) {
  for (const auto* name : {L"", L"zzz", L"x", L"hsizetype", L"Text", L"\u0442"}) {
    const auto node = NodeWith(name, L"<string>text</string><number>1</number>");
    ASSERT_NE(node, nullptr);
    for (int slot = 0; slot < kPropertyCount; ++slot)
      EXPECT_EQ(node->Text(PropertyId(slot)), nullptr);
    EXPECT_EQ(node->Extra(name), nullptr);
  }
  EXPECT_NE(ParseRootWith(L"<property><string>x</string></property>").root, nullptr);
}

TEST(FormNode, SlotsKeepTheirOwnTextsInAnyOrderOfSetting) {
  FormNode node(FormNode::Kind::Widget, nullptr);
  for (int i = 0; i < kPropertyCount; ++i) {
    const int slot = i * 29 % kPropertyCount;
    node.SetText(PropertyId(slot), L"old");
    node.SetText(PropertyId(slot), std::to_wstring(slot));
  }
  for (int slot = 0; slot < kPropertyCount; ++slot)
    EXPECT_EQ(TextIn(node, PropertyId(slot)), std::to_wstring(slot));
}

TEST(PropertyId, EveryNameHasItsNumber) {
  const std::pair<const wchar_t*, int> kNumbers[] = {{L"x", 0},
                                                     {L"minHeight", 4},
                                                     {L"title", 8},
                                                     {L"text", 14},
                                                     {L"hsizetype", 17},
                                                     {L"minimum", 22},
                                                     {L"sizeConstraint", 40},
                                                     {L"default", 45},
                                                     {L"", 46},
                                                     {L"Default", 46},
                                                     {L"zzz", 46}};
  for (const auto& [name, number] : kNumbers)
    EXPECT_EQ(static_cast<int>(PropertyIdOf(name)), number) << name;
}

}  // namespace
}  // namespace Wexa
