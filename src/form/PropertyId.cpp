#include "form/PropertyId.h"

#include <algorithm>
#include <array>

namespace Wexa {
namespace {

struct NamedProperty {
  std::wstring_view name;
  PropertyId id = PropertyId::Other;
};

constexpr std::array<std::wstring_view, kPropertyCount - 1> kNames = {
    L"x",
    L"y",
    L"width",
    L"height",
    L"minHeight",
    L"minWidth",
    L"maxHeight",
    L"maxWidth",
    L"title",
    L"rowstretch",
    L"columnstretch",
    L"rowminimumheight",
    L"columnminimumwidth",
    L"stretch",
    L"text",
    L"focusPolicy",
    L"buddy",
    L"hsizetype",
    L"vsizetype",
    L"horstretch",
    L"verstretch",
    L"value",
    L"minimum",
    L"maximum",
    L"currentIndex",
    L"orientation",
    L"standardButtons",
    L"alignment",
    L"wordWrap",
    L"readOnly",
    L"echoMode",
    L"frame",
    L"minimumContentsLength",
    L"selectionMode",
    L"sizeType",
    L"spacing",
    L"leftMargin",
    L"rightMargin",
    L"topMargin",
    L"bottomMargin",
    L"sizeConstraint",
    L"sortingEnabled",
    L"frameShape",
    L"verticalSpacing",
    L"horizontalSpacing",
    L"default",
};

constexpr auto SortedByName() {
  std::array<NamedProperty, kNames.size()> sorted;
  for (std::size_t i = 0; i < kNames.size(); ++i) sorted[i] = {kNames[i], PropertyId(i)};
  std::ranges::sort(sorted, {}, &NamedProperty::name);
  return sorted;
}

constexpr auto kByName = SortedByName();

}  // namespace

PropertyId PropertyIdOf(std::wstring_view name) {
  const auto found = std::ranges::lower_bound(kByName, name, {}, &NamedProperty::name);
  return found != kByName.end() && found->name == name ? found->id : PropertyId::Other;
}

std::wstring_view PropertyNameOf(PropertyId id) {
  const auto index = static_cast<std::size_t>(id);
  return index < kNames.size() ? kNames[index] : std::wstring_view();
}

}  // namespace Wexa
