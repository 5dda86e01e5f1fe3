#include "MFC/forms/LayoutSettings.h"

#include <string>
#include <string_view>

#include "MFC/BaseImplMFC.h"
#include "form/FormModel.h"
#include "form/FormText.h"
#include "layout/BoxLayout.h"
#include "layout/GridLayout.h"

namespace Wexa {

namespace {

constexpr wchar_t kOldMargin[] = L"margin";

// Calls set(position, number) for each number of a comma-separated list.
template <typename Set>
void ForEachNumber(const std::wstring* list, Set set) {
  if (!list || list->empty()) return;
  int position = 0;
  for (std::size_t start = 0; start <= list->size(); ++position) {
    std::size_t end = std::min(list->find(L',', start), list->size());
    set(position, FormInteger(list->substr(start, end - start)));
    start = end + 1;
  }
}

void ApplyMargins(Layout& layout, const FormNode& node) {
  int sides[4];
  layout.GetContentsMargins(&sides[0], &sides[1], &sides[2], &sides[3]);
  constexpr PropertyId kSides[4] = {PropertyId::LeftMargin, PropertyId::TopMargin,
                                    PropertyId::RightMargin, PropertyId::BottomMargin};
  for (int i = 0; i < 4; ++i) {
    const std::wstring* margin = node.Text(kSides[i]);
    if (!margin) margin = node.Extra(kOldMargin);
    if (margin) sides[i] = Scale(FormInteger(*margin));
  }
  layout.SetContentsMargins(sides[0], sides[1], sides[2], sides[3]);
}

// Newer forms name the enumeration as well.
std::wstring WithoutEnumName(std::wstring text) {
  constexpr std::wstring_view kEnumName = L"SizeConstraint::";
  const auto at = text.find(kEnumName);
  return at == text.npos ? text : text.erase(at, kEnumName.size());
}

void ApplyGridLists(GridLayout& grid, const FormNode& node) {
  ForEachNumber(node.Text(PropertyId::RowStretch),
                [&](int row, int value) { grid.SetRowStretch(row, value); });
  ForEachNumber(node.Text(PropertyId::ColumnStretch),
                [&](int column, int value) { grid.SetColumnStretch(column, value); });
  ForEachNumber(node.Text(PropertyId::RowMinimumHeight),
                [&](int row, int value) { grid.SetRowMinimumHeight(row, Scale(value)); });
  ForEachNumber(node.Text(PropertyId::ColumnMinimumWidth),
                [&](int column, int value) { grid.SetColumnMinimumWidth(column, Scale(value)); });
}

}  // namespace

void ApplyLayoutSettings(Layout& layout, const FormNode& node) {
  if (const std::wstring* spacing = node.Text(PropertyId::Spacing))
    layout.SetSpacing(Scale(FormInteger(*spacing)));
  ApplyMargins(layout, node);
  if (auto* grid = dynamic_cast<GridLayout*>(&layout)) {
    if (const std::wstring* vertical = node.Text(PropertyId::VerticalSpacing))
      grid->SetVerticalSpacing(Scale(FormInteger(*vertical)));
    if (const std::wstring* horizontal = node.Text(PropertyId::HorizontalSpacing))
      grid->SetHorizontalSpacing(Scale(FormInteger(*horizontal)));
  }
  if (const std::wstring* text = node.Text(PropertyId::SizeConstraint))
    if (auto constraint = SizeConstraintFromText(WithoutEnumName(*text)))
      layout.SetSizeConstraint(*constraint);
}

void ApplyLayoutLists(Layout& layout, const FormNode& node) {
  if (auto* grid = dynamic_cast<GridLayout*>(&layout)) {
    // Forms of labels and fields: the fields take the extra width.
    if (node.className == L"QFormLayout" && !node.Text(PropertyId::ColumnStretch))
      grid->SetColumnStretch(1, 1);
    return ApplyGridLists(*grid, node);
  }
  auto& box = static_cast<BoxLayout&>(layout);
  ForEachNumber(node.Text(PropertyId::Stretch),
                [&](int entry, int value) { box.SetStretch(entry, value); });
}

}  // namespace Wexa
