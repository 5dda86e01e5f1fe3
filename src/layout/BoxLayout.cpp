#include "layout/BoxLayout.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "layout/Axis.h"
#include "layout/ItemSizes.h"
#include "layout/Rescaling.h"
#include "layout/SizeLimits.h"

namespace Wexa {

BoxLayout::~BoxLayout() {
  for (Entry& entry : entries_) LetGo(*entry.item);
}

Orientation BoxLayout::Axis() const {
  const bool isRow = direction_ == Direction::LeftToRight || direction_ == Direction::RightToLeft;
  return isRow ? Orientation::Horizontal : Orientation::Vertical;
}

// -- Items ----------------------------------------------------------------------------------------

void BoxLayout::AddItem(LayoutItem* item) {
  if (!item) return;
  entries_.push_back({std::unique_ptr<LayoutItem>(item), 0});
  Adopt(*item);
  Invalidate(true);
}

LayoutItem* BoxLayout::ItemAt(int index) {
  return HasItem(index) ? EntryAt(index).item.get() : nullptr;
}

LayoutItem* BoxLayout::TakeAt(int index) {
  if (!HasItem(index)) return nullptr;
  LayoutItem* item = EntryAt(index).item.release();
  entries_.erase(entries_.begin() + index);
  LetGo(*item);
  Invalidate(true);
  return item;
}

LayoutItem* BoxLayout::ReplaceAt(int index, LayoutItem* item) {
  if (!HasItem(index) || !item) return nullptr;
  LayoutItem* old = EntryAt(index).item.release();
  EntryAt(index).item.reset(item);
  LetGo(*old);
  Adopt(*item);
  Invalidate(true);
  return old;
}

void BoxLayout::SetStretch(int index, int stretch) {
  if (!HasItem(index) || EntryAt(index).stretch == stretch) return;
  EntryAt(index).stretch = stretch;
  Invalidate(true);
}

void BoxLayout::SetSpacing(int spacing) {
  spacing_ = spacing;
  Invalidate(true);
}

int BoxLayout::Spacing() {
  return spacing_ >= 0 ? spacing_ : DefaultSpacing();
}

void BoxLayout::MarkDirty() {
  chain_.clear();
  dirty_ = true;
  relayout_ = true;
}

void BoxLayout::Rescale(const Rescaling& rescale) {
  Layout::Rescale(rescale);
  spacing_ = rescale.Length(spacing_);
}

void BoxLayout::Invalidate(bool update) {
  MarkDirty();
  Layout::Invalidate(update);
}

// -- Set-up: the items' sizes become the chain and the layout's own sizes -------------------------

struct BoxLayout::Totals {
  std::vector<ChainSlot> chain;
  int spacing = 0;
  ChainSlot* previous = nullptr;  // the last slot that is not empty
  std::int64_t minimum = 0;
  std::int64_t hint = 0;
  std::int64_t maximum = 0;
  bool expansive = false;
  int crossMinimum = 0;
  int crossHint = 0;
  CrossMaximum cross;
};

void BoxLayout::SetUp() {
  if (!dirty_) return;
  Totals totals;
  totals.chain = std::exchange(chain_, {});
  totals.chain.clear();
  totals.chain.reserve(entries_.size());
  totals.spacing = Spacing();
  totals.cross.maximum = LayoutSizeLimit();
  hasHeightForWidth_ = false;
  for (const Entry& entry : entries_) {
    const ItemSizes sizes = ItemSizes::Of(*entry.item);
    AddSlot(entry, sizes, totals);
    AddToTotals(sizes, totals);
    hasHeightForWidth_ = hasHeightForWidth_ || sizes.hasHeightForWidth;
  }
  StoreTotals(totals);
  chain_ = std::move(totals.chain);
  heightWidth_ = -1;
  dirty_ = false;
}

void BoxLayout::AddSlot(const Entry& entry, const ItemSizes& sizes, Totals& totals) {
  ChainSlot slot;
  slot.stretch = entry.stretch != 0 ? entry.stretch : StretchAlong(Axis(), sizes.policy);
  slot.sizeHint = Along(Axis(), sizes.hint);
  slot.maximumSize = Along(Axis(), sizes.maximum);
  slot.minimumSize = Along(Axis(), sizes.minimum);
  slot.expansive = Contains(sizes.expanding, Axis()) || entry.stretch > 0;
  slot.empty = sizes.empty;
  totals.chain.push_back(slot);
}

void BoxLayout::AddToTotals(const ItemSizes& sizes, Totals& totals) {
  ChainSlot& slot = totals.chain.back();
  int spacing = 0;
  if (!slot.empty) {
    if (totals.previous && totals.spacing >= 0) spacing = totals.spacing;
    if (totals.previous) totals.previous->spacing = spacing;
    totals.previous = &slot;
  }
  totals.minimum += std::int64_t{spacing} + slot.minimumSize;
  totals.hint += std::int64_t{spacing} + slot.sizeHint;
  totals.maximum += std::int64_t{spacing} + slot.maximumSize;
  totals.expansive = totals.expansive || slot.expansive;
  if (sizes.ignored) return;
  const Orientation across = AcrossOf(Axis());
  totals.cross.empty = true;
  totals.cross.Merge(Along(across, sizes.maximum), Contains(sizes.expanding, across), sizes.empty);
  totals.crossMinimum = std::max(totals.crossMinimum, Along(across, sizes.minimum));
  totals.crossHint = std::max(totals.crossHint, Along(across, sizes.hint));
}

void BoxLayout::StoreTotals(const Totals& totals) {
  const Orientation axis = Axis();
  const Size minimum = SizeFrom(axis, Saturated(totals.minimum), totals.crossMinimum);
  const Size maximum =
      SizeFrom(axis, Saturated(totals.maximum), totals.cross.maximum).GetInflated(minimum);
  const Size hint = SizeFrom(axis, Saturated(totals.hint), totals.crossHint)
                        .GetInflated(minimum)
                        .GetDeflated(maximum);
  effectiveMargins_ = ResolvedMargins();
  minimum_ = WithMargins(minimum, effectiveMargins_);
  maximum_ = WithMargins(maximum, effectiveMargins_);
  hint_ = WithMargins(hint, effectiveMargins_);
  expanding_ = (totals.expansive ? axis : Orientation::None) |
               (totals.cross.expansive ? AcrossOf(axis) : Orientation::None);
}

Size BoxLayout::SizeHint() {
  SetUp();
  return hint_;
}

Size BoxLayout::MinimumSize() {
  SetUp();
  return minimum_;
}

Size BoxLayout::MaximumSize() {
  SetUp();
  return BoundedByLayoutLimit(maximum_);
}

Orientation BoxLayout::ExpandingDirections() {
  SetUp();
  return expanding_;
}

bool BoxLayout::HasHeightForWidth() {
  SetUp();
  return hasHeightForWidth_;
}

// -- Placement ------------------------------------------------------------------------------------

void BoxLayout::SetGeometry(const Rect& rect) {
  if (!dirty_ && !relayout_ && rect == Geometry()) return;
  Layout::SetGeometry(rect);
  SetUp();
  Place(WithoutMargins(rect, effectiveMargins_));
}

// The caller hands the vector back to scratch_, so that it is not allocated again. It is not used
// in place: placing an item may run another pass over this layout.
std::vector<ChainSlot> BoxLayout::TakeChainCopy() {
  std::vector<ChainSlot> chain = std::exchange(scratch_, {});
  chain.assign(chain_.begin(), chain_.end());
  return chain;
}

void BoxLayout::Place(const Rect& inner) {
  const bool isRow = Axis() == Orientation::Horizontal;
  std::vector<ChainSlot> chain = TakeChainCopy();
  if (!isRow && hasHeightForWidth_) ApplyHeights(chain, inner.Width());
  Distribute(chain, isRow ? inner.Left() : inner.Top(), Along(Axis(), inner.GetSize()));

  Watch watch(*this);
  for (std::size_t i = 0; i < std::min(chain.size(), entries_.size()); ++i) {
    const int from = chain[i].position;
    const int to = SaturatedSum(from, chain[i].size);
    PlaceItem(*entries_[i].item, isRow ? RectFromEdges(from, inner.Top(), to, inner.Bottom())
                                       : RectFromEdges(inner.Left(), from, inner.Right(), to));
    if (watch.IsGone()) return;
  }
  scratch_ = std::move(chain);
  relayout_ = false;
}

// In a column, what has height for width takes exactly the height it needs at the column's width.
void BoxLayout::ApplyHeights(std::vector<ChainSlot>& chain, int width) {
  for (std::size_t i = 0; i < chain.size(); ++i) {
    LayoutItem& item = *entries_[i].item;
    if (!item.HasHeightForWidth()) continue;
    const int bounded =
        std::max(std::min(width, item.MaximumSize().Width()), item.MinimumSize().Width());
    chain[i].sizeHint = item.HeightForWidth(bounded);
    chain[i].minimumSize = chain[i].sizeHint;
  }
}

// -- Height for width -----------------------------------------------------------------------------

int BoxLayout::HeightForWidth(int width) {
  return HasHeightForWidth() ? HeightsForWidth(width).hint : -1;
}

int BoxLayout::MinimumHeightForWidth(int width) {
  return HasHeightForWidth() ? HeightsForWidth(width).minimum : -1;
}

const BoxLayout::Heights& BoxLayout::HeightsForWidth(int width) {
  const Margins& margins = effectiveMargins_;
  const int inner = SaturatedSum(width, -SaturatedSum(margins.left, margins.right));
  if (inner != heightWidth_) {
    const int around = SaturatedSum(margins.top, margins.bottom);
    heights_ = Axis() == Orientation::Horizontal ? HeightsOfRow(inner) : HeightsOfColumn(inner);
    heights_ = {SaturatedSum(heights_.hint, around), SaturatedSum(heights_.minimum, around)};
    heightWidth_ = inner;
  }
  return heights_;
}

BoxLayout::Heights BoxLayout::HeightsOf(LayoutItem& item, int width) {
  if (item.HasHeightForWidth())
    return {item.HeightForWidth(width), item.MinimumHeightForWidth(width)};
  return {item.SizeHint().Height(), item.MinimumSize().Height()};
}

BoxLayout::Heights BoxLayout::HeightsOfRow(int width) {
  std::vector<ChainSlot> chain = TakeChainCopy();
  Distribute(chain, 0, width);
  Heights row{0, 0};
  for (std::size_t i = 0; i < chain.size(); ++i) {
    const Heights item = HeightsOf(*entries_[i].item, chain[i].size);
    row = {std::max(row.hint, item.hint), std::max(row.minimum, item.minimum)};
  }
  scratch_ = std::move(chain);
  return row;
}

BoxLayout::Heights BoxLayout::HeightsOfColumn(int width) {
  std::int64_t hint = 0;
  std::int64_t minimum = 0;
  for (std::size_t i = 0; i < chain_.size(); ++i) {
    const Heights item = HeightsOf(*entries_[i].item, width);
    hint += std::int64_t{chain_[i].spacing} + item.hint;
    minimum += std::int64_t{chain_[i].spacing} + item.minimum;
  }
  return {Saturated(hint), Saturated(minimum)};
}

}  // namespace Wexa
