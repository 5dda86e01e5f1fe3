#include "SkinManagerColor.h"

#include "SkinManager.h"

namespace Wexa {

SkinManagerColor& SkinManagerColor::operator=(const SkinManagerColor& other) {
  if (this == &other || locked_) return *this;
  value_ = other.value_;
  changed_ = other.changed_;
  if (owner_ && changed_) owner_->SetColorChangeFlag(true);
  return *this;
}

SkinManagerColor& SkinManagerColor::operator=(unsigned long color) {
  Set(Word(color));
  return *this;
}

SkinManagerColor SkinManagerColor::operator+(const SkinManagerColor& other) {
  Set(value_ + other.value_);
  return *this;
}

SkinManagerColor SkinManagerColor::operator-(const SkinManagerColor& other) {
  Set(value_ - other.value_);
  return *this;
}

SkinManagerColor& SkinManagerColor::operator&(const unsigned long& mask) {
  Set(value_ & Word(mask));
  return *this;
}

void SkinManagerColor::Set(std::uint32_t value) {
  value_ = value;
  changed_ = true;
  if (owner_) owner_->SetColorChangeFlag(true);
}

void SkinManagerColor::KeepShown() {
  const SkinManagerColor& shown = Resolved();
  value_ = shown.value_;
  changed_ = shown.changed_;
  fallback_ = nullptr;
}

// Skins that are each other's parents make a ring. A marker that moves on after 1, 2, 4 ... steps
// meets itself there; the colour then falls back on nothing.
const SkinManagerColor& SkinManagerColor::ResolvedByFallbacks() const {
  const SkinManagerColor* color = this;
  const SkinManagerColor* marker = this;
  for (unsigned steps = 1, limit = 1; !color->changed_ && color->fallback_; ++steps) {
    color = color->fallback_;
    if (color == marker) return *this;
    if (steps == limit) {
      marker = color;
      limit *= 2;
      steps = 0;
    }
  }
  return *color;
}

}  // namespace Wexa
