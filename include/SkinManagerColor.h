#pragma once

#include <cstdint>

#include "WexaExport.h"

namespace Wexa {

class SkinManager;

// One colour of a skin, 0x00BBGGRR with a transparency in the top byte; 0xFFFFFFFF is no colour.
// Until it is set explicitly it resolves through its fallback, the same slot of the parent skin.
// Explicit changes tell the skin that owns it. The fallback must outlive the colour.
class WEXA_API SkinManagerColor {
 public:
  // Black, not set.
  SkinManagerColor() = default;
  // Set explicitly. Only the low 32 bits count, here and below.
  SkinManagerColor(unsigned long color) : value_(Word(color)), changed_(true) {}
  // A copy stands alone: it has the colour that the other resolves to, no fallback and no owner.
  SkinManagerColor(const SkinManagerColor& other)
      : value_(other.Resolved().value_),
        changed_(other.Resolved().changed_),
        locked_(other.locked_) {}

  // Takes over the stored value and whether it was set; ignored when this colour is locked.
  SkinManagerColor& operator=(const SkinManagerColor& other);
  // Sets the colour explicitly, locked or not.
  SkinManagerColor& operator=(unsigned long color);

  // The resolved colour: the first along the fallbacks that was set, else the last one's value.
  operator unsigned long() const { return Resolved().value_; }
  // Whether this colour or one along its fallbacks was set explicitly.
  bool IsChanged() const { return Resolved().changed_; }
  // Replaces everything and marks the colour as not set. Tells nobody.
  void SetDefaultColor(unsigned long color, const SkinManagerColor* fallback, bool locked,
                       SkinManager* owner) {
    value_ = Word(color);
    changed_ = false;
    locked_ = locked;
    fallback_ = fallback;
    owner_ = owner;
  }

  // Comparisons look at stored values only.
  bool operator==(const SkinManagerColor& other) const { return value_ == other.value_; }
  bool operator==(const int& color) const { return value_ == static_cast<std::uint32_t>(color); }
  bool operator!=(const SkinManagerColor& other) const { return !(*this == other); }
  bool operator!=(const int& color) const { return !(*this == color); }

  // These three change the colour itself; sums are modulo 2^32.
  SkinManagerColor operator+(const SkinManagerColor& other);
  SkinManagerColor operator-(const SkinManagerColor& other);
  SkinManagerColor& operator&(const unsigned long& mask);
  // A new colour; this one stays as it is. (Not const, or masks of either type would be ambiguous.)
  SkinManagerColor operator&(const int& mask) {
    return {static_cast<unsigned long>(value_ & static_cast<std::uint32_t>(mask))};
  }

 private:
  friend class SkinManager;

  static constexpr std::uint32_t Word(unsigned long color) {
    return static_cast<std::uint32_t>(color);
  }
  const SkinManagerColor& Resolved() const {
    return changed_ || fallback_ == nullptr ? *this : ResolvedByFallbacks();
  }
  const SkinManagerColor& ResolvedByFallbacks() const;
  void Set(std::uint32_t value);
  // Has the colour that it shows for its own.
  void KeepShown();

  std::uint32_t value_ = 0;
  bool changed_ = false;
  bool locked_ = false;
  const SkinManagerColor* fallback_ = nullptr;
  SkinManager* owner_ = nullptr;
};

}  // namespace Wexa
