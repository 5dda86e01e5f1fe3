#pragma once

#include <memory>
#include <vector>

#include "layout/Layout.h"
#include "layout/LayoutChain.h"

namespace Wexa {

struct ItemSizes;

// Lines its items up in one row or one column.
class BoxLayout : public Layout {
 public:
  enum class Direction { LeftToRight = 0, RightToLeft = 1, TopToBottom = 2, BottomToTop = 3 };

  ~BoxLayout() override;

  void MarkDirty() override;
  void AddItem(LayoutItem* item) override;
  LayoutItem* ItemAt(int index) override;
  LayoutItem* TakeAt(int index) override;
  int Count() override { return static_cast<int>(entries_.size()); }
  LayoutItem* ReplaceAt(int index, LayoutItem* item) override;

  // 0 leaves it to the item's own stretch. Nothing happens for an index out of range.
  void SetStretch(int index, int stretch);
  void SetSpacing(int spacing) override;
  int Spacing() override;

  Size SizeHint() override;
  Size MinimumSize() override;
  Size MaximumSize() override;
  Orientation ExpandingDirections() override;
  void SetGeometry(const Rect& rect) override;
  void Invalidate(bool update) override;
  void Rescale(const Rescaling& rescale) override;
  bool HasHeightForWidth() override;
  int HeightForWidth(int width) override;
  int MinimumHeightForWidth(int width) override;

 protected:
  BoxLayout(Direction direction, WexaObject* parent) : Layout(parent), direction_(direction) {}

 private:
  struct Entry {
    std::unique_ptr<LayoutItem> item;
    int stretch = 0;
  };
  struct Totals;

  bool HasItem(int index) const { return index >= 0 && index < static_cast<int>(entries_.size()); }
  Orientation Axis() const;
  Entry& EntryAt(int index) { return entries_[static_cast<std::size_t>(index)]; }

  void SetUp();
  void AddToTotals(const ItemSizes& sizes, Totals& totals);
  void AddSlot(const Entry& entry, const ItemSizes& sizes, Totals& totals);
  void StoreTotals(const Totals& totals);

  std::vector<ChainSlot> TakeChainCopy();
  void Place(const Rect& inner);
  void ApplyHeights(std::vector<ChainSlot>& chain, int width);
  struct Heights {
    int hint = -1;
    int minimum = -1;
  };
  const Heights& HeightsForWidth(int width);
  static Heights HeightsOf(LayoutItem& item, int width);
  Heights HeightsOfRow(int width);
  Heights HeightsOfColumn(int width);

  Direction direction_;
  int spacing_ = -1;
  std::vector<Entry> entries_;
  std::vector<ChainSlot> chain_;
  std::vector<ChainSlot> scratch_;
  Size hint_;
  Size minimum_;
  Size maximum_;
  Margins effectiveMargins_;
  Orientation expanding_ = Orientation::None;
  bool hasHeightForWidth_ = false;
  bool dirty_ = true;
  bool relayout_ = false;  // the next geometry is carried out even if it is the present one
  int heightWidth_ = -1;   // the width for which heights_ were computed
  Heights heights_;
};

class HBoxLayout : public BoxLayout {
 public:
  // The parent is a widget, a layout or null.
  explicit HBoxLayout(WexaObject* parent = nullptr) : BoxLayout(Direction::LeftToRight, parent) {}
};

class VBoxLayout : public BoxLayout {
 public:
  explicit VBoxLayout(WexaObject* parent = nullptr) : BoxLayout(Direction::TopToBottom, parent) {}
};

}  // namespace Wexa
