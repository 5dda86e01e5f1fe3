#include "layout/GridLines.h"

#include <algorithm>
#include <cstdint>
#include <span>

#include "layout/Axis.h"
#include "layout/ItemSizes.h"
#include "layout/Rescaling.h"
#include "layout/SizeLimits.h"

namespace Wexa {

void GridLines::GrowTo(int count) {
  if (count <= Count()) return;
  stretches_.resize(Index(count), 0);
  minimums_.resize(Index(count), 0);
}

void GridLines::Rescale(const Rescaling& rescale) {
  for (int& minimum : minimums_) minimum = rescale.Length(minimum);
}

void GridLines::Reset() {
  chain_.assign(stretches_.size(), ChainSlot());
  for (std::size_t i = 0; i < chain_.size(); ++i) {
    ChainSlot& slot = chain_[i];
    slot.stretch = stretches_[i];
    slot.sizeHint = minimums_[i];
    slot.minimumSize = minimums_[i];
    slot.maximumSize = stretches_[i] != 0 ? LayoutSizeLimit() : minimums_[i];
  }
}

void GridLines::AddItem(int line, const ItemSizes& sizes) {
  if (sizes.ignored) return;
  ChainSlot& slot = chain_[Index(line)];
  if (stretches_[Index(line)] == 0)
    slot.stretch = std::max(slot.stretch, StretchAlong(axis_, sizes.policy));
  RaiseSizes(line, Along(axis_, sizes.minimum), Along(axis_, sizes.hint));
  CrossMaximum cross{slot.maximumSize, slot.expansive, slot.empty};
  cross.Merge(Along(axis_, sizes.maximum), Contains(sizes.expanding, axis_), sizes.empty);
  slot.maximumSize = cross.maximum;
  slot.expansive = cross.expansive;
  slot.empty = cross.empty;
}

void GridLines::AddSpan(const GridSpan& span) {
  for (int line = span.first; line <= span.last; ++line) {
    ChainSlot& slot = chain_[Index(line)];
    if (slot.empty && slot.maximumSize == 0) slot.maximumSize = WidgetSizeLimit();
    slot.empty = false;
  }
}

void GridLines::WidenGap(int line, int spacing) {
  int& gap = chain_[Index(line)].spacing;
  gap = std::max(gap, spacing);
}

void GridLines::Finish() {
  for (ChainSlot& slot : chain_) slot.expansive = slot.expansive || slot.stretch > 0;
}

void GridLines::ResetSizes() {
  for (std::size_t i = 0; i < chain_.size(); ++i) {
    chain_[i].sizeHint = minimums_[i];
    chain_[i].minimumSize = minimums_[i];
  }
}

void GridLines::RaiseSizes(int line, int minimum, int hint) {
  ChainSlot& slot = chain_[Index(line)];
  slot.minimumSize = std::max(slot.minimumSize, minimum);
  slot.sizeHint = std::max(slot.sizeHint, hint);
}

// -- Spans ----------------------------------------------------------------------------------------

void GridLines::FitSpan(const GridSpan& span, const ItemSizes& sizes) {
  const int minimum = Along(axis_, sizes.minimum);
  const int hint = Along(axis_, sizes.hint);
  for (int line = span.first; line <= span.last; ++line) {
    int& stretch = chain_[Index(line)].stretch;
    if (stretches_[Index(line)] == 0)
      stretch = std::max(stretch, StretchAlong(axis_, sizes.policy));
  }
  const Sums before = SumOf(span, 0);
  if (before.maximum < minimum) {
    DistributeSpan(span, minimum);
    RaiseToPlaces(span, minimum);
  } else if (before.minimum < minimum) {
    DistributeSpan(span, minimum);
    for (int line = span.first; line <= span.last; ++line)
      RaiseSizes(line, Slot(line).size, Slot(line).sizeHint);
  }
  if (before.hint >= hint) return;
  DistributeSpan(span, hint);
  for (int line = span.first; line <= span.last; ++line)
    RaiseSizes(line, Slot(line).minimumSize, Slot(line).size);
}

void GridLines::DistributeSpan(const GridSpan& span, int space) {
  const auto count = Index(span.last - span.first + 1);
  Distribute(std::span(chain_).subspan(Index(span.first), count), 0, space);
}

// The lines' maximums leave space over, which lies in the gaps: each line takes all up to the next.
void GridLines::RaiseToPlaces(const GridSpan& span, int space) {
  int place = 0;
  for (int line = span.first; line <= span.last; ++line) {
    ChainSlot& slot = chain_[Index(line)];
    const bool isLast = line == span.last;
    const int next = isLast ? space : Slot(line + 1).position;
    const int gap = isLast ? 0 : slot.spacing;
    slot.minimumSize = std::max(slot.minimumSize, SaturatedSum(next - place, -gap));
    slot.maximumSize = std::max(slot.maximumSize, slot.minimumSize);
    place = next;
  }
}

// -- Sums -----------------------------------------------------------------------------------------

GridLines::Sums GridLines::SumOf(const GridSpan& span, int lastGap) const {
  std::int64_t gaps = lastGap;
  std::int64_t minimum = 0;
  std::int64_t hint = 0;
  std::int64_t maximum = 0;
  for (int line = span.first; line <= span.last; ++line) {
    const ChainSlot& slot = Slot(line);
    minimum += slot.minimumSize;
    hint += slot.sizeHint;
    maximum += slot.maximumSize;
    if (line != span.last) gaps += slot.spacing;
  }
  return {Saturated(minimum + gaps), Saturated(hint + gaps), Saturated(maximum + gaps)};
}

bool GridLines::IsExpansive() const {
  return std::any_of(chain_.begin(), chain_.end(), [](const auto& slot) { return slot.expansive; });
}

}  // namespace Wexa
