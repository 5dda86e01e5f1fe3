#include "form/FormProperties.h"

#include <map>
#include <tuple>

#include "FormTestSupport.h"

namespace Wexa {
namespace {

std::unique_ptr<FormNode> NodeWith(const std::wstring& property, const std::wstring& value) {
  return ParseRootWith(L"<property name=\"" + property + L"\">" + value + L"</property>");
}

std::wstring Element(const std::wstring& name, const std::wstring& text) {
  return L"<" + name + L">" + text + L"</" + name + L">";
}

// The slots of properties with one value, by the kind of its element.
const std::map<std::wstring, std::map<std::wstring, int>> kSlots = {
    {L"enum",
     {{L"sizeConstraint", 40},
      {L"sizeType", 34},
      {L"echoMode", 30},
      {L"selectionMode", 33},
      {L"orientation", 25},
      {L"frameShape", 42},
      {L"focusPolicy", 15}}},
    {L"number",
     {{L"spacing", 35},
      {L"leftMargin", 36},
      {L"rightMargin", 37},
      {L"topMargin", 38},
      {L"bottomMargin", 39},
      {L"currentIndex", 24},
      {L"minimumContentsLength", 32},
      {L"verticalSpacing", 43},
      {L"horizontalSpacing", 44},
      {L"minimum", 22},
      {L"value", 21}}},
    {L"double", {{L"maximum", 23}, {L"sliderPosition", 21}}},
    {L"bool",
     {{L"wordWrap", 28},
      {L"readOnly", 29},
      {L"frame", 31},
      {L"sortingEnabled", 41},
      {L"default", 45}}},
    {L"string", {{L"text", 14}, {L"windowTitle", 8}, {L"title", 8}}},
    {L"set", {{L"alignment", 27}, {L"standardButtons", 26}}},
    {L"cstring", {{L"buddy", 16}}}};

TEST(FormProperties, ValuesOfTheirKindAndNoOtherFillTheirSlot) {
  for (const auto& [kind, properties] : kSlots) {
    for (const auto& [name, slot] : properties) {
      EXPECT_EQ(SlotsOf(*NodeWith(name, Element(kind, L"a &lt; b"))),
                std::to_wstring(slot) + L"=a < b");
      EXPECT_EQ(SlotsOf(*NodeWith(name, L"<date>x</date><color>y</color>")), L"") << slot;
    }
  }
}

const std::wstring kRect = L"<rect><x>1</x><y>2</y><width>3</width><height>4</height></rect>";

TEST(FormProperties, OthersFillTheSlotsOfWhatTheyState) {
  const std::wstring size = L"<size><width>3</width><height>4</height></size>";
  const std::wstring policy =
      L"<sizepolicy hsizetype=\"Preferred\" vsizetype=\"Fixed\">"
      L"<horstretch>1</horstretch><verstretch>2</verstretch></sizepolicy>";
  const std::wstring text = L"<string>text</string><number>1</number>";
  const std::tuple<std::wstring, std::wstring, std::wstring> kCases[] = {
      {L"text", L"<string/>", L"14="},
      {L"value", L"<double>2.5</double>", L"21=2.5"},
      {L"value", L"<double>2.5</double><number>3</number>", L"21=3"},
      {L"value",
       L"<number>1</number></property><property name=\"sliderPosition\"><number>2</number>",
       L"21=2"},
      {L"geometry", kRect, L"0=1 1=2 2=3 3=4"},
      {L"sizeHint", size, L"2=3 3=4"},
      {L"minimumSize", size, L"4=4 5=3"},
      {L"maximumSize", size, L"6=4 7=3"},
      {L"minimumSize", kRect, L""},
      {L"sizePolicy", policy, L"17=Preferred 18=Fixed 19=1 20=2"},
      {L"sizePolicy", L"<sizepolicy vsizetype=\"Fixed\"/>", L"18=Fixed"},
      {L"", text, L""},
      {L"zzz", text, L""},
      {L"x", text, L""},
      {L"hsizetype", text, L""},
      {L"Text", text, L""},
      {L"\u0442", text, L""}};
  for (const auto& [property, value, slots] : kCases) {
    const auto node = NodeWith(property, value);
    EXPECT_EQ(SlotsOf(*node), slots);
    EXPECT_EQ(ExtraIn(*node, property.c_str()), L"(none)");
  }
  EXPECT_EQ(SlotsOf(*ParseRootWith(L"<property><string>x</string></property>")), L"");
}

TEST(FormProperties, ANumberMissingInARectangleOrSizeDropsTheNode) {
  for (const auto* missing :
       {L"<x>1</x>", L"<y>2</y>", L"<width>3</width>", L"<height>4</height>"}) {
    auto rect = kRect;
    rect.erase(rect.find(missing), std::wstring(missing).size());
    EXPECT_EQ(NodeWith(L"geometry", rect), nullptr) << missing;
  }
  for (const auto* name : {L"minimumSize", L"maximumSize", L"sizeHint"})
    for (const auto* size : {L"<size><width>3</width></size>", L"<size/>"})
      EXPECT_EQ(NodeWith(name, size), nullptr) << name << size;
}

TEST(FormProperties, StandardButtonsAreFoundByTheirWords) {
  const std::tuple<const wchar_t*, std::uint32_t, std::vector<std::uint32_t>> kSets[] = {
      {L"QDialogButtonBox::Cancel|QDialogButtonBox::Ok", 0x400400, {0x400, 0x400000}},
      {L"QDialogButtonBox::StandardButton::Abort", 0x40000, {0x40000}},
      {L"QDialogButtonBox::Retry", 0x80000, {0x80000}},
      {L"QDialogButtonBox::Ignore", 0x100000, {0x100000}},
      {L"QDialogButtonBox::Yes", 0x4000, {0x4000}},
      {L"QDialogButtonBox::No", 0x10000, {0x10000}},
      {L"QDialogButtonBox::Reset", 0x4000000, {0x4000000}},
      {L"QDialogButtonBox::YesToAll", 0x4000, {0x4000}},
      {L"QDialogButtonBox::Close", 0, {}}};
  for (const auto& [words, flags, list] : kSets) {
    const auto node = NodeWith(L"standardButtons", Element(L"set", words));
    EXPECT_EQ(node->standardButtons.flags, flags);
    EXPECT_EQ(node->standardButtons.list, list) << flags;
  }
}

TEST(FormProperties, PropertiesWithoutASlotAreKeptByName) {
  const std::tuple<const wchar_t*, const wchar_t*, std::wstring> kCases[] = {
      {L"checked", L"<bool>true</bool>", L"true"},
      {L"toolTip", L"<string>tip</string>", L"tip"},
      {L"margin", L"<number>9</number>", L"9"},
      {L"margin", L"<bool>true</bool>", L"(none)"},
      {L"date", L"<date><year>2020</year><month>2</month><day>9</day></date>", L"2020-2-9"}};
  for (const auto& [name, value, text] : kCases)
    EXPECT_EQ(ExtraIn(*NodeWith(name, value), name), text);
}

TEST(FormNode, SlotsKeepTheirOwnTextsInAnyOrderOfSetting) {
  FormNode node(FormNode::Kind::Widget, nullptr);
  for (int i = 0; i < kPropertyCount; ++i) {
    const int slot = i * 29 % kPropertyCount;
    node.SetText(PropertyId(slot), L"old");
    node.SetText(PropertyId(slot), std::to_wstring(slot));
  }
  for (int slot = 0; slot < kPropertyCount; ++slot)
    EXPECT_EQ(*node.Text(PropertyId(slot)), std::to_wstring(slot));
}

}  // namespace
}  // namespace Wexa
