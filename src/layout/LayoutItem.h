#pragma once

#include <cstdint>

#include "Orientation.h"
#include "Rect.h"
#include "Size.h"

namespace Wexa {

class BaseGUIObject;
class Layout;
class Rescaling;
class SpacerItem;

// What a layout places: a widget, a spacer or a nested layout. All values are device pixels.
class LayoutItem {
 public:
  // The bits of an alignment word that concern an axis.
  static constexpr std::uint32_t kHorizontalAlignment = 0x1F;
  static constexpr std::uint32_t kVerticalAlignment = 0x1E0;
  static constexpr std::uint32_t kAlignLeft = 0x1;
  static constexpr std::uint32_t kAlignRight = 0x2;
  static constexpr std::uint32_t kAlignHCenter = 0x4;
  static constexpr std::uint32_t kAlignTop = 0x20;
  static constexpr std::uint32_t kAlignBottom = 0x40;
  static constexpr std::uint32_t kAlignVCenter = 0x80;

  LayoutItem() = default;
  LayoutItem(const LayoutItem&) = delete;
  LayoutItem& operator=(const LayoutItem&) = delete;
  virtual ~LayoutItem() = default;

  virtual Size SizeHint() = 0;
  virtual Size MinimumSize() = 0;
  virtual Size MaximumSize() = 0;
  // The axes on which the item wants all the extra space.
  virtual Orientation ExpandingDirections() = 0;
  virtual void SetGeometry(const Rect& rect) = 0;
  virtual Rect Geometry() = 0;
  // An empty item takes no part in placement.
  virtual bool IsEmpty() = 0;
  // Forgets what was computed. With update, the layouts are asked for a new pass.
  virtual void Invalidate(bool) {}
  // The resolution changed: what was set in pixels counts the same number of units.
  virtual void Rescale(const Rescaling&) {}
  // The item as what it is; null when it is something else.
  virtual BaseGUIObject* Widget() { return nullptr; }
  virtual Layout* AsLayout() { return nullptr; }
  virtual SpacerItem* AsSpacerItem() { return nullptr; }
  virtual bool HasHeightForWidth() { return false; }
  // -1 when the height does not depend on the width.
  virtual int HeightForWidth(int) { return -1; }
  // The least height at that width; -1 likewise.
  virtual int MinimumHeightForWidth(int) { return -1; }

  // Where the item stands in a cell that is larger than it; 0 fills the cell.
  std::uint32_t Alignment() const { return alignment_; }
  bool IsAligned(Orientation axis) const {
    const auto bits = axis == Orientation::Horizontal ? kHorizontalAlignment : kVerticalAlignment;
    return (alignment_ & bits) != 0;
  }
  void SetAlignment(std::uint32_t alignment) { alignment_ = alignment; }

 private:
  std::uint32_t alignment_ = 0;
};

}  // namespace Wexa
