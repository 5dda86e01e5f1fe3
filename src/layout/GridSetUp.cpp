// How a grid's items become the sizes of its rows and columns.

#include <algorithm>
#include <cstddef>

#include "layout/GridLayout.h"
#include "layout/SizeLimits.h"

namespace Wexa {

namespace {

constexpr int kNoBox = -1;

}  // namespace

void GridLayout::SetUp() {
  if (!needsSetUp_) return;
  ReadItems();
  MapCells();
  SetUpLines(columns_, Orientation::Horizontal,
             horizontalSpacing_ >= 0 ? horizontalSpacing_ : DefaultSpacing());
  SetUpLines(rows_, Orientation::Vertical,
             verticalSpacing_ >= 0 ? verticalSpacing_ : DefaultSpacing());
  effectiveMargins_ = ResolvedMargins();
  rowsWidth_ = -1;
  needsSetUp_ = false;
}

void GridLayout::ReadItems() {
  sizes_.clear();
  hasHeightForWidth_ = false;
  for (const Box& box : boxes_) {
    sizes_.push_back(ItemSizes::Of(*box.item));
    hasHeightForWidth_ = hasHeightForWidth_ || sizes_.back().hasHeightForWidth;
  }
}

void GridLayout::MapCells() {
  const auto columns = static_cast<std::size_t>(ColumnCount());
  cells_.assign(static_cast<std::size_t>(RowCount()) * columns, kNoBox);
  for (std::size_t i = 0; i < boxes_.size(); ++i) {
    const GridSpan rows = RowsOf(boxes_[i]);
    const GridSpan across = ColumnsOf(boxes_[i]);
    for (int row = rows.first; row <= rows.last; ++row) {
      const auto start = cells_.begin() + std::ptrdiff_t{row} * ColumnCount();
      std::fill(start + across.first, start + across.last + 1, static_cast<int>(i));
    }
  }
}

int GridLayout::BoxInCell(int row, int column) const {
  return cells_[static_cast<std::size_t>(row) * static_cast<std::size_t>(ColumnCount()) +
                static_cast<std::size_t>(column)];
}

void GridLayout::SetUpLines(GridLines& lines, Orientation axis, int spacing) {
  lines.Reset();
  for (std::size_t i = 0; i < boxes_.size(); ++i) {
    const GridSpan span = SpanOf(boxes_[i], axis);
    if (span.IsSingle()) {
      lines.AddItem(span.first, sizes_[i]);
    } else {
      lines.AddSpan(span);
    }
  }
  SetUpGaps(lines, axis, spacing);
  FitSpans(lines, axis);
  lines.Finish();
}

// A gap opens between two lines where, somewhere across, they do not belong to one box. Above an
// empty box no gap is needed.
void GridLayout::SetUpGaps(GridLines& lines, Orientation axis, int spacing) {
  const bool areRows = axis == Orientation::Vertical;
  const int across = areRows ? ColumnCount() : RowCount();
  for (int other = 0; other < across; ++other) {
    int previousLine = -1;
    int previousBox = kNoBox;
    for (int line = 0; line < lines.Count(); ++line) {
      if (lines.Slot(line).empty) continue;
      const int box = areRows ? BoxInCell(line, other) : BoxInCell(other, line);
      const bool isAboveEmpty =
          areRows && box != kNoBox && sizes_[static_cast<std::size_t>(box)].empty;
      if (previousLine >= 0 && (box == kNoBox || box != previousBox))
        lines.WidenGap(previousLine, isAboveEmpty ? 0 : spacing);
      previousLine = line;
      previousBox = box;
    }
  }
}

void GridLayout::FitSpans(GridLines& lines, Orientation axis) {
  for (std::size_t i = 0; i < boxes_.size(); ++i) {
    const GridSpan span = SpanOf(boxes_[i], axis);
    if (!span.IsSingle()) lines.FitSpan(span, sizes_[i]);
  }
}

// -- The grid's own sizes -------------------------------------------------------------------------

Size GridLayout::Total(int GridLines::Sums::*value) const {
  const Size size(columns_.Total().*value, rows_.Total().*value);
  return WithMargins(BoundedByLayoutLimit(size), effectiveMargins_);
}

Size GridLayout::SizeHint() {
  SetUp();
  return Total(&GridLines::Sums::hint);
}

Size GridLayout::MinimumSize() {
  SetUp();
  return Total(&GridLines::Sums::minimum);
}

Size GridLayout::MaximumSize() {
  SetUp();
  return BoundedByLayoutLimit(Total(&GridLines::Sums::maximum));
}

Orientation GridLayout::ExpandingDirections() {
  SetUp();
  return (columns_.IsExpansive() ? Orientation::Horizontal : Orientation::None) |
         (rows_.IsExpansive() ? Orientation::Vertical : Orientation::None);
}

bool GridLayout::HasHeightForWidth() {
  SetUp();
  return hasHeightForWidth_;
}

}  // namespace Wexa
