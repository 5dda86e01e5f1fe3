#pragma once

#include <cstdint>

#include "Orientation.h"
#include "Rect.h"
#include "Size.h"

namespace Wexa {

class BaseGUIObject;
class Layout;
class SpacerItem;

// What a layout places: a widget, a spacer or a nested layout. All values are device pixels.
class LayoutItem {
 public:
  // The bits of an alignment word that concern an axis.
  static constexpr std::uint32_t kHorizontalAlignment = 0x1F;
  static constexpr std::uint32_t kVerticalAlignment = 0x1E0;

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
  // The item as what it is; null when it is something else.
  virtual BaseGUIObject* Widget() { return nullptr; }
  virtual Layout* AsLayout() { return nullptr; }
  virtual SpacerItem* AsSpacerItem() { return nullptr; }
  virtual bool HasHeightForWidth() { return false; }
  // -1 when the height does not depend on the width.
  virtual int HeightForWidth(int) { return -1; }

  std::uint32_t Alignment() const { return alignment_; }
  void SetAlignment(std::uint32_t alignment) { alignment_ = alignment; }

 private:
  std::uint32_t alignment_ = 0;
};

}  // namespace Wexa
