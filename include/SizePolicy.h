#pragma once

#include <algorithm>
#include <cstdint>

#include "Orientation.h"
#include "WexaExport.h"

namespace Wexa {

// Tells a layout how willing a widget is to grow, to shrink and to take extra space, per axis. One
// 32-bit word: the stretches in the two low bytes (horizontal, vertical), then the policies in four
// bits each, and the height-for-width flag in bit 29.
class WEXA_API SizePolicy {
 public:
  // The flags that make up a policy.
  static constexpr std::uint32_t GrowBit = 1;    // may become larger than its hint
  static constexpr std::uint32_t ExpandBit = 2;  // wants all the extra space it can get
  static constexpr std::uint32_t ShrinkBit = 4;  // may become smaller than its hint
  static constexpr std::uint32_t IgnoreBit = 8;  // its hint is ignored

  enum Policy : std::uint32_t {
    Fixed = 0,
    Minimum = GrowBit,
    MinimumExpanding = GrowBit | ExpandBit,
    Maximum = ShrinkBit,
    Preferred = GrowBit | ShrinkBit,
    Expanding = GrowBit | ExpandBit | ShrinkBit,
    Ignored = GrowBit | ShrinkBit | IgnoreBit
  };

  // Fixed on both axes, without stretch.
  constexpr SizePolicy() = default;
  constexpr SizePolicy(Policy horizontal, Policy vertical)
      : word_((horizontal & kPolicyMask) << kHorizontalPolicyShift | (vertical & kPolicyMask)
                                                                         << kVerticalPolicyShift) {}

  constexpr Policy GetHorizontalPolicy() const { return PolicyAt(kHorizontalPolicyShift); }
  constexpr Policy GetVerticalPolicy() const { return PolicyAt(kVerticalPolicyShift); }

  // The weight with which the widget shares in extra space, 0 to 255. Setting clamps to that range.
  constexpr int GetHorizontalStretch() const { return StretchAt(0); }
  constexpr int GetVerticalStretch() const { return StretchAt(kVerticalStretchShift); }
  constexpr void SetHorizontalStretch(int stretch) { SetStretchAt(0, stretch); }
  constexpr void SetVerticalStretch(int stretch) { SetStretchAt(kVerticalStretchShift, stretch); }

  // Whether the widget's height depends on its width.
  constexpr bool HasHeightForWidth() const { return (word_ & kHeightForWidthBit) != 0; }
  constexpr void SetHeightForWidth(bool dependent) {
    word_ = dependent ? word_ | kHeightForWidthBit : word_ & ~kHeightForWidthBit;
  }

  // The axes on which the policy has ExpandBit.
  constexpr Orientation ExpandingDirections() const {
    const auto horizontal =
        (GetHorizontalPolicy() & ExpandBit) != 0 ? Orientation::Horizontal : Orientation::None;
    const auto vertical =
        (GetVerticalPolicy() & ExpandBit) != 0 ? Orientation::Vertical : Orientation::None;
    return horizontal | vertical;
  }

  friend constexpr bool operator==(const SizePolicy&, const SizePolicy&) = default;

 private:
  static constexpr std::uint32_t kStretchMask = 0xFF;
  static constexpr std::uint32_t kVerticalStretchShift = 8;
  static constexpr std::uint32_t kPolicyMask = 0xF;
  static constexpr std::uint32_t kHorizontalPolicyShift = 16;
  static constexpr std::uint32_t kVerticalPolicyShift = 20;
  static constexpr std::uint32_t kHeightForWidthBit = 1u << 29;

  constexpr Policy PolicyAt(std::uint32_t shift) const {
    return static_cast<Policy>(word_ >> shift & kPolicyMask);
  }
  constexpr int StretchAt(std::uint32_t shift) const {
    return static_cast<int>(word_ >> shift & kStretchMask);
  }
  constexpr void SetStretchAt(std::uint32_t shift, int stretch) {
    const auto bounded = static_cast<std::uint32_t>(std::clamp(stretch, 0, 255));
    word_ = (word_ & ~(kStretchMask << shift)) | bounded << shift;
  }

  std::uint32_t word_ = 0;
};

}  // namespace Wexa
