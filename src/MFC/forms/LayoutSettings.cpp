#include "MFC/forms/LayoutSettings.h"

#include <algorithm>
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

// Calls set(position, number) for each number of a list.
template <typename Set>
void ForEachNumber(const FormNode& node, PropertyId list, Set set) {
  int position = 0;
  for (const int number : node.Integers(list)) set(position++, number);
}

void ApplyMargins(Layout& layout, const FormNode& node) {
  int sides[4];
  layout.GetContentsMargins(&sides[0], &sides[1], &sides[2], &sides[3]);
  constexpr PropertyId kSides[4] = {PropertyId::LeftMargin, PropertyId::TopMargin,
                                    PropertyId::RightMargin, PropertyId::BottomMargin};
  for (int i = 0; i < 4; ++i) {
    const auto own = node.Integer(kSides[i]);
    const auto margin = own ? own : node.Integer(kOldMargin);
    if (margin) sides[i] = Scale(*margin);
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
  ForEachNumber(node, PropertyId::RowStretch,
                [&](int row, int value) { grid.SetRowStretch(row, value); });
  ForEachNumber(node, PropertyId::ColumnStretch,
                [&](int column, int value) { grid.SetColumnStretch(column, value); });
  ForEachNumber(node, PropertyId::RowMinimumHeight,
                [&](int row, int value) { grid.SetRowMinimumHeight(row, Scale(value)); });
  ForEachNumber(node, PropertyId::ColumnMinimumWidth,
                [&](int column, int value) { grid.SetColumnMinimumWidth(column, Scale(value)); });
}

struct AlignmentWord {
  std::wstring_view word;
  std::uint32_t bits;
};

// In a window from right to left the leading side is the right one, and so is "left".
constexpr AlignmentWord kAlignmentWords[] = {
    {L"Qt::AlignLeft", LayoutItem::kAlignLeft},
    {L"Qt::AlignLeading", LayoutItem::kAlignLeft},
    {L"Qt::AlignRight", LayoutItem::kAlignRight},
    {L"Qt::AlignTrailing", LayoutItem::kAlignRight},
    {L"Qt::AlignHCenter", LayoutItem::kAlignHCenter},
    {L"Qt::AlignTop", LayoutItem::kAlignTop},
    {L"Qt::AlignBottom", LayoutItem::kAlignBottom},
    {L"Qt::AlignVCenter", LayoutItem::kAlignVCenter},
    {L"Qt::AlignCenter", LayoutItem::kAlignHCenter | LayoutItem::kAlignVCenter},
};

}  // namespace

std::uint32_t ItemAlignmentOf(const FormNode& node) {
  const std::wstring* text = node.Extra(L"itemAlignment");
  std::uint32_t alignment = 0;
  if (!text) return alignment;
  for (const auto& [word, bits] : kAlignmentWords)
    if (HasEnumWord(*text, word)) alignment |= bits;
  return alignment;
}

void ApplyLayoutSettings(Layout& layout, const FormNode& node) {
  if (const auto spacing = node.Integer(PropertyId::Spacing)) layout.SetSpacing(Scale(*spacing));
  ApplyMargins(layout, node);
  if (auto* grid = dynamic_cast<GridLayout*>(&layout)) {
    if (const auto vertical = node.Integer(PropertyId::VerticalSpacing))
      grid->SetVerticalSpacing(Scale(*vertical));
    if (const auto horizontal = node.Integer(PropertyId::HorizontalSpacing))
      grid->SetHorizontalSpacing(Scale(*horizontal));
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
  ForEachNumber(node, PropertyId::Stretch,
                [&](int entry, int value) { box.SetStretch(entry, value); });
}

}  // namespace Wexa
