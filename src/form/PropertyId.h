#pragma once

#include <cstdint>
#include <string_view>

namespace Wexa {

// The slots of a form node, one for each property or layout attribute the builder reads.
enum class PropertyId : std::uint8_t {
  X,
  Y,
  Width,
  Height,
  MinHeight,
  MinWidth,
  MaxHeight,
  MaxWidth,
  Title,
  RowStretch,
  ColumnStretch,
  RowMinimumHeight,
  ColumnMinimumWidth,
  Stretch,
  Text,
  FocusPolicy,
  Buddy,
  HSizeType,
  VSizeType,
  HorStretch,
  VerStretch,
  Value,
  Minimum,
  Maximum,
  CurrentIndex,
  Orientation,
  StandardButtons,
  Alignment,
  WordWrap,
  ReadOnly,
  EchoMode,
  Frame,
  MinimumContentsLength,
  SelectionMode,
  SizeType,
  Spacing,
  LeftMargin,
  RightMargin,
  TopMargin,
  BottomMargin,
  SizeConstraint,
  SortingEnabled,
  FrameShape,
  VerticalSpacing,
  HorizontalSpacing,
  Default,
  Other  // every name without a slot of its own
};

inline constexpr int kPropertyCount = static_cast<int>(PropertyId::Other) + 1;

// The slot of a name as form files write it; Other for a name without one.
PropertyId PropertyIdOf(std::wstring_view name);
// The name of a slot; empty for Other.
std::wstring_view PropertyNameOf(PropertyId id);

}  // namespace Wexa
