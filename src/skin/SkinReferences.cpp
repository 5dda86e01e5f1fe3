// Skins know which skins refer to them, so that none is read after it is gone.

#include "SkinManager.h"

namespace Wexa {

void SkinManager::Reference::PointTo(const SkinManager* target) {
  if (target == target_) return;
  if (target_) {
    *place_ = next_;
    if (next_) next_->place_ = place_;
  }
  target_ = target;
  next_ = target ? target->references_ : nullptr;
  place_ = target ? &target->references_ : nullptr;
  if (next_) next_->place_ = &next_;
  if (target) target->references_ = this;
}

SkinManager::~SkinManager() {
  while (references_) {
    Reference& reference = *references_;
    reference.Holder().KeepColorsOf(*this);
    reference.PointTo(nullptr);
  }
}

// Slots that show a colour of the leaving skin have it for their own.
void SkinManager::KeepColorsOf(const SkinManager& leaving) {
  if (fallbacks_.Target() != &leaving) return;
  for (SkinManagerColor& slot : slots_) slot.KeepShown();
}

}  // namespace Wexa
