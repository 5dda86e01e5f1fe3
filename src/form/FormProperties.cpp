#include "form/FormProperties.h"

#include <algorithm>
#include <cstdint>
#include <cwchar>
#include <initializer_list>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

#include "form/FormModel.h"
#include "form/FormText.h"
#include "form/RefusedForm.h"

namespace Wexa {
namespace {

// How one property is read: `element` is the value kind looked for, `id` the slot it fills.
struct PropertyRule {
  using Reader = void (*)(const PropertyRule& rule, const XmlNode& property, FormNode& node);

  std::wstring_view name;
  Reader read;
  const wchar_t* element = nullptr;
  PropertyId id = PropertyId::Other;
};

struct NumberSlot {
  const wchar_t* element;
  PropertyId id;
};

void CopyText(const XmlNode* value, FormNode& node, PropertyId id) {
  if (value != nullptr) node.SetText(id, TextOf(*value));
}

[[noreturn]] void FailWithout(const wchar_t* number, std::wstring_view property,
                              const FormNode& node) {
  throw RefusedForm<std::runtime_error>(
      node.Diagnose(property, std::wstring(L"the ") + number + L" is missing"), "Expected number");
}

// All numbers of a rectangle or a size have to be there.
void CopyNumbers(const PropertyRule& rule, const XmlNode* value, FormNode& node,
                 std::initializer_list<NumberSlot> slots) {
  if (value == nullptr) return;
  for (const auto& slot : slots) {
    const auto* number = value->first_node(slot.element);
    if (number == nullptr) FailWithout(slot.element, rule.name, node);
    node.SetText(slot.id, TextOf(*number));
  }
}

void ReadText(const PropertyRule& rule, const XmlNode& property, FormNode& node) {
  CopyText(property.first_node(rule.element), node, rule.id);
}

void ReadExtra(const PropertyRule& rule, const XmlNode& property, FormNode& node) {
  const auto* value = property.first_node(rule.element);
  if (value != nullptr) node.SetExtra(rule.name, TextOf(*value));
}

void ReadNumberOrDouble(const PropertyRule& rule, const XmlNode& property, FormNode& node) {
  const auto* number = property.first_node(L"number");
  CopyText(number != nullptr ? number : property.first_node(L"double"), node, rule.id);
}

void ReadGeometry(const PropertyRule& rule, const XmlNode& property, FormNode& node) {
  CopyNumbers(rule, property.first_node(L"rect"), node,
              {{L"x", PropertyId::X},
               {L"y", PropertyId::Y},
               {L"width", PropertyId::Width},
               {L"height", PropertyId::Height}});
}

void ReadMinimumSize(const PropertyRule& rule, const XmlNode& property, FormNode& node) {
  CopyNumbers(rule, property.first_node(L"size"), node,
              {{L"width", PropertyId::MinWidth}, {L"height", PropertyId::MinHeight}});
}

void ReadMaximumSize(const PropertyRule& rule, const XmlNode& property, FormNode& node) {
  CopyNumbers(rule, property.first_node(L"size"), node,
              {{L"width", PropertyId::MaxWidth}, {L"height", PropertyId::MaxHeight}});
}

void ReadSizeHint(const PropertyRule& rule, const XmlNode& property, FormNode& node) {
  CopyNumbers(rule, property.first_node(L"size"), node,
              {{L"width", PropertyId::Width}, {L"height", PropertyId::Height}});
}

void ReadSizePolicy(const PropertyRule&, const XmlNode& property, FormNode& node) {
  const auto* policy = property.first_node(L"sizepolicy");
  if (policy == nullptr) return;
  const auto copyAttribute = [&](const wchar_t* name, PropertyId id) {
    if (const auto text = AttributeOf(*policy, name)) node.SetText(id, std::wstring(*text));
  };
  copyAttribute(L"hsizetype", PropertyId::HSizeType);
  copyAttribute(L"vsizetype", PropertyId::VSizeType);
  CopyText(policy->first_node(L"horstretch"), node, PropertyId::HorStretch);
  CopyText(policy->first_node(L"verstretch"), node, PropertyId::VerStretch);
}

// Buttons are found by their words wherever these occur: "YesToAll" brings "Yes" too.
FormNode::StandardButtons FindStandardButtons(std::wstring_view set) {
  struct ButtonWord {
    std::wstring_view word;
    std::uint32_t flag;
  };
  static constexpr ButtonWord kButtons[] = {
      {L"Ok", 0x400},        {L"Cancel", 0x400000}, {L"Abort", 0x40000}, {L"Retry", 0x80000},
      {L"Ignore", 0x100000}, {L"Yes", 0x4000},      {L"No", 0x10000},    {L"Reset", 0x4000000}};
  FormNode::StandardButtons found;
  for (const auto& [word, flag] : kButtons) {
    if (set.find(word) == set.npos) continue;
    found.flags |= flag;
    found.list.push_back(flag);
  }
  return found;
}

void ReadStandardButtons(const PropertyRule& rule, const XmlNode& property, FormNode& node) {
  const auto* set = property.first_node(rule.element);
  if (set == nullptr) return;
  auto text = TextOf(*set);
  node.standardButtons = FindStandardButtons(text);
  node.SetText(rule.id, std::move(text));
}

// Kept as "year-month-day".
void ReadDate(const PropertyRule& rule, const XmlNode& property, FormNode& node) {
  const auto* date = property.first_node(L"date");
  if (date == nullptr) return;
  std::wstring text;
  for (const auto* part : {L"year", L"month", L"day"}) {
    const auto* number = date->first_node(part);
    if (number == nullptr) return;
    if (!text.empty()) text += L'-';
    text += TextOf(*number);
  }
  node.SetExtra(rule.name, std::move(text));
}

std::int32_t FlagIn(const XmlNode& font, const wchar_t* name) {
  const auto* flag = font.first_node(name);
  if (flag == nullptr) return -1;
  return TextOf(*flag) == L"true" ? 1 : 0;
}

// Weights are numbers of 0 to 99 in older forms, and words in newer ones.
std::int32_t BoldIn(const XmlNode& font) {
  constexpr int kDemiBold = 63;
  if (font.first_node(L"bold") != nullptr) return FlagIn(font, L"bold");
  if (const auto* weight = font.first_node(L"weight"))
    return std::wcstol(TextOf(*weight).c_str(), nullptr, 10) >= kDemiBold ? 1 : 0;
  const auto* word = font.first_node(L"fontweight");
  if (word == nullptr) return -1;
  const std::wstring text = TextOf(*word);
  return text.find(L"Bold") != text.npos || text == L"Black" ? 1 : 0;
}

void ReadFont(const PropertyRule& rule, const XmlNode& property, FormNode& node) {
  const auto* font = property.first_node(L"font");
  if (font == nullptr) return;
  if (const auto* family = font->first_node(L"family")) node.font.faceName = TextOf(*family);
  if (const auto* size = font->first_node(L"pointsize")) {
    node.font.pointSize = ConvertOrRefuse(TextOf(*size), FormNumber, [&](std::wstring reason) {
      return node.Diagnose(rule.name, std::move(reason));
    });
  }
  node.font.bold = BoldIn(*font);
  node.font.italic = FlagIn(*font, L"italic");
  node.font.underline = FlagIn(*font, L"underline");
}

// In the order of their names.
constexpr PropertyRule kRules[] = {
    {L"alignment", ReadText, L"set", PropertyId::Alignment},
    {L"bottomMargin", ReadText, L"number", PropertyId::BottomMargin},
    {L"buddy", ReadText, L"cstring", PropertyId::Buddy},
    {L"checkable", ReadExtra, L"bool"},
    {L"checked", ReadExtra, L"bool"},
    {L"currentIndex", ReadText, L"number", PropertyId::CurrentIndex},
    {L"currentText", ReadExtra, L"string"},
    {L"date", ReadDate},
    {L"decimals", ReadExtra, L"number"},
    {L"default", ReadText, L"bool", PropertyId::Default},
    {L"echoMode", ReadText, L"enum", PropertyId::EchoMode},
    {L"editable", ReadExtra, L"bool"},
    {L"enabled", ReadExtra, L"bool"},
    {L"flat", ReadExtra, L"bool"},
    {L"focusPolicy", ReadText, L"enum", PropertyId::FocusPolicy},
    {L"font", ReadFont},
    {L"format", ReadExtra, L"string"},
    {L"frame", ReadText, L"bool", PropertyId::Frame},
    {L"frameShape", ReadText, L"enum", PropertyId::FrameShape},
    {L"geometry", ReadGeometry},
    {L"handleWidth", ReadExtra, L"number"},
    {L"horizontalScrollBarPolicy", ReadExtra, L"enum"},
    {L"horizontalSpacing", ReadText, L"number", PropertyId::HorizontalSpacing},
    {L"html", ReadExtra, L"string"},
    {L"indent", ReadExtra, L"number"},
    {L"leftMargin", ReadText, L"number", PropertyId::LeftMargin},
    {L"margin", ReadExtra, L"number"},
    {L"maximum", ReadNumberOrDouble, nullptr, PropertyId::Maximum},
    {L"maximumSize", ReadMaximumSize},
    {L"minimum", ReadNumberOrDouble, nullptr, PropertyId::Minimum},
    {L"minimumContentsLength", ReadText, L"number", PropertyId::MinimumContentsLength},
    {L"minimumSize", ReadMinimumSize},
    {L"opaqueResize", ReadExtra, L"bool"},
    {L"orientation", ReadText, L"enum", PropertyId::Orientation},
    {L"pageStep", ReadExtra, L"number"},
    {L"pixmap", ReadExtra, L"pixmap"},
    {L"placeholderText", ReadExtra, L"string"},
    {L"plainText", ReadExtra, L"string"},
    {L"prefix", ReadExtra, L"string"},
    {L"readOnly", ReadText, L"bool", PropertyId::ReadOnly},
    {L"rightMargin", ReadText, L"number", PropertyId::RightMargin},
    {L"scaledContents", ReadExtra, L"bool"},
    {L"selectionMode", ReadText, L"enum", PropertyId::SelectionMode},
    {L"singleStep", ReadExtra, L"number"},
    {L"sizeConstraint", ReadText, L"enum", PropertyId::SizeConstraint},
    {L"sizeHint", ReadSizeHint},
    {L"sizePolicy", ReadSizePolicy},
    {L"sizeType", ReadText, L"enum", PropertyId::SizeType},
    {L"sliderPosition", ReadNumberOrDouble, nullptr, PropertyId::Value},
    {L"sortingEnabled", ReadText, L"bool", PropertyId::SortingEnabled},
    {L"spacing", ReadText, L"number", PropertyId::Spacing},
    {L"standardButtons", ReadStandardButtons, L"set", PropertyId::StandardButtons},
    {L"suffix", ReadExtra, L"string"},
    {L"tabPosition", ReadExtra, L"enum"},
    {L"text", ReadText, L"string", PropertyId::Text},
    {L"textFormat", ReadExtra, L"enum"},
    {L"textVisible", ReadExtra, L"bool"},
    {L"tickInterval", ReadExtra, L"number"},
    {L"tickPosition", ReadExtra, L"enum"},
    {L"title", ReadText, L"string", PropertyId::Title},
    {L"toolTip", ReadExtra, L"string"},
    {L"topMargin", ReadText, L"number", PropertyId::TopMargin},
    {L"tristate", ReadExtra, L"bool"},
    {L"value", ReadNumberOrDouble, nullptr, PropertyId::Value},
    {L"verticalScrollBarPolicy", ReadExtra, L"enum"},
    {L"verticalSpacing", ReadText, L"number", PropertyId::VerticalSpacing},
    {L"visible", ReadExtra, L"bool"},
    {L"widgetResizable", ReadExtra, L"bool"},
    {L"windowTitle", ReadText, L"string", PropertyId::Title},
    {L"wordWrap", ReadText, L"bool", PropertyId::WordWrap},
};
static_assert(std::ranges::is_sorted(kRules, {}, &PropertyRule::name));

}  // namespace

void ReadProperty(const XmlNode& property, int line, FormNode& node) {
  const auto name = AttributeOf(property, L"name");
  if (!name) return;
  const auto* rule = std::ranges::lower_bound(kRules, *name, {}, &PropertyRule::name);
  if (rule == std::end(kRules) || rule->name != *name) return;
  node.SetLine(rule->name, line);
  rule->read(*rule, property, node);
}

void ReadAttribute(const XmlNode& attribute, FormNode& node) {
  const auto name = AttributeOf(attribute, L"name");
  const auto* text = attribute.first_node(L"string");
  const auto* flag = attribute.first_node(L"bool");
  if (name == L"title" && text != nullptr) node.titleAttribute = TextOf(*text);
  if (name == L"buttonGroup" && text != nullptr) node.buttonGroup = TextOf(*text);
  if (name == L"headerVisible" && flag != nullptr) node.headerVisible = TextOf(*flag) != L"false";
}

}  // namespace Wexa
