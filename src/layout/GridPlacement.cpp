// How a grid's rows and columns become the places of its items.

#include <algorithm>
#include <utility>

#include "layout/Axis.h"
#include "layout/GridLayout.h"
#include "layout/SizeLimits.h"

namespace Wexa {

namespace {

// The stretch of the lines of a span, from the start of the first to the end of the last.
struct Stretch {
  int from;
  int to;

  static Stretch Of(const std::vector<ChainSlot>& chain, const GridSpan& span) {
    const ChainSlot& last = chain[static_cast<std::size_t>(span.last)];
    return {chain[static_cast<std::size_t>(span.first)].position,
            SaturatedSum(last.position, last.size)};
  }
};

}  // namespace

void GridLayout::SetGeometry(const Rect& rect) {
  if (!needsSetUp_ && rect == Geometry()) return;
  SetUp();
  const Rect inner = WithoutMargins(rect, effectiveMargins_);
  const Rect before = Geometry();
  const bool grows = inner.Bottom() > before.Bottom() ||
                     (inner.Bottom() == before.Bottom() && inner.Right() > before.Right());
  Layout::SetGeometry(rect);
  Place(inner, grows);
}

// Works on copies of the chains: placing an item may run another pass over this layout.
void GridLayout::Place(const Rect& inner, bool fromLast) {
  if (hasHeightForWidth_) SetUpRowsForWidth(inner.Width());
  const GridLines& lines = hasHeightForWidth_ ? rowsForWidth_ : rows_;
  std::vector<ChainSlot> columns = std::exchange(columnScratch_, {});
  std::vector<ChainSlot> rows = std::exchange(rowScratch_, {});
  columns.assign(columns_.Chain().begin(), columns_.Chain().end());
  rows.assign(lines.Chain().begin(), lines.Chain().end());
  Distribute(columns, inner.Left(), inner.Width());
  Distribute(rows, inner.Top(), inner.Height());

  Watch watch(*this);
  const int count = Count();
  for (int i = 0; i < count; ++i) {
    const int index = fromLast ? count - 1 - i : i;
    if (!HasItem(index)) continue;
    const Stretch x = Stretch::Of(columns, ColumnsOf(BoxAt(index)));
    const Stretch y = Stretch::Of(rows, RowsOf(BoxAt(index)));
    PlaceItem(*BoxAt(index).item, RectFromEdges(x.from, y.from, x.to, y.to));
    if (watch.IsGone()) return;
  }
  columnScratch_ = std::move(columns);
  rowScratch_ = std::move(rows);
}

// -- Height for width -----------------------------------------------------------------------------

int GridLayout::HeightForWidth(int width) {
  return HasHeightForWidth() ? RowsForWidth(width, &GridLines::Sums::hint) : -1;
}

int GridLayout::MinimumHeightForWidth(int width) {
  return HasHeightForWidth() ? RowsForWidth(width, &GridLines::Sums::minimum) : -1;
}

int GridLayout::RowsForWidth(int width, int GridLines::Sums::*value) {
  // The sum of the rows is bounded at any scale.
  constexpr int kLargestHeight = 524287;
  const Margins& margins = effectiveMargins_;
  SetUpRowsForWidth(SaturatedSum(width, -SaturatedSum(margins.left, margins.right)));
  return SaturatedSum(std::min(rowsForWidth_.Total().*value, kLargestHeight),
                      SaturatedSum(margins.top, margins.bottom));
}

// The rows again, with the heights that the items need in columns of the given width.
void GridLayout::SetUpRowsForWidth(int width) {
  if (rowsWidth_ == width) return;
  std::vector<ChainSlot> columns = std::exchange(columnScratch_, {});
  columns.assign(columns_.Chain().begin(), columns_.Chain().end());
  Distribute(columns, 0, width);
  rowsForWidth_ = rows_;
  rowsForWidth_.ResetSizes();
  for (const bool spans : {false, true}) {
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
      if (RowsOf(boxes_[i]).IsSingle() == !spans) AddRowsForWidth(i, columns);
    }
  }
  columnScratch_ = std::move(columns);
  rowsWidth_ = width;
}

void GridLayout::AddRowsForWidth(std::size_t index, const std::vector<ChainSlot>& columns) {
  const Box& box = boxes_[index];
  const GridSpan rows = RowsOf(box);
  ItemSizes sizes = sizes_[index];
  if (sizes.hasHeightForWidth) {
    const Stretch x = Stretch::Of(columns, ColumnsOf(box));
    const int across = SaturatedSum(x.to, -x.from);
    sizes.minimum.SetHeight(box.item->MinimumHeightForWidth(across));
    sizes.hint.SetHeight(box.item->HeightForWidth(across));
  }
  if (rows.IsSingle()) {
    rowsForWidth_.RaiseSizes(rows.first, sizes.minimum.Height(), sizes.hint.Height());
  } else {
    rowsForWidth_.FitSpan(rows, sizes);
  }
}

}  // namespace Wexa
