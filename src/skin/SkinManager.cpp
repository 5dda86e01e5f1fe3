#include "SkinManager.h"

#include <optional>

#include "MFC/BaseImpl.h"
#include "SlotTable.h"
#include "WexaUtils.h"
#include "platform/SystemColors.h"

namespace Wexa {

namespace {

constexpr std::uint32_t kNoColor = 0xFFFFFFFF;

PaletteEntry SlotRow::*PaletteOf(SkinMode mode) {
  switch (mode) {
    case SkinMode::Dark: return &SlotRow::dark;
    case SkinMode::HCMDark: return &SlotRow::highContrast;
    default: return &SlotRow::light;
  }
}

}  // namespace

SkinManager::SkinManager(BaseImpl* owner, SkinMode mode) : owner_(owner) {
  for (auto& slot : slots_) {
    slot.value_ = kNoColor;
    slot.changed_ = true;
    slot.owner_ = this;
  }
  LoadSkin(mode, false, false);
}

SkinManager::SkinManager(SkinMode mode) : SkinManager(nullptr, mode) {}

SkinManager::SkinManager(const SkinManager& other) {
  CopySlots(other);
  CopyState(other);
}

SkinManager& SkinManager::operator=(const SkinManager& other) {
  if (this == &other) return *this;
  const SkinManager* oldParent = Parent();
  slots_ = other.slots_;
  CopyState(other);
  if (Parent() == this) parent_.PointTo(nullptr);
  if (Parent() != oldParent) SetParentFallbacks();
  return *this;
}

// As they are, locks and fallbacks included. Slots of a skin that falls back on this one show what
// they showed.
void SkinManager::CopySlots(const SkinManager& other) {
  const bool fallsBackHere = other.fallbacks_.Target() == this;
  for (std::size_t n = 0; n < slots_.size(); ++n) {
    const SkinManagerColor& source = other.slots_[n];
    const SkinManagerColor& shown = fallsBackHere ? source.Resolved() : source;
    slots_[n].value_ = shown.value_;
    slots_[n].changed_ = shown.changed_;
    slots_[n].locked_ = source.locked_;
    slots_[n].fallback_ = fallsBackHere ? nullptr : source.fallback_;
    slots_[n].owner_ = this;
  }
  fallbacks_.PointTo(fallsBackHere ? nullptr : other.fallbacks_.Target());
}

void SkinManager::CopyState(const SkinManager& other) {
  parent_.PointTo(other.Parent());
  mode_ = other.mode_;
  requestedMode_ = other.requestedMode_;
  keyMapApplied_ = other.keyMapApplied_;
  lockColors_ = other.lockColors_;
  initDone_ = other.initDone_;
  colorChangeFlag_ = colorChangeFlag_ || other.colorChangeFlag_;
}

void SkinManager::SetParentFallbacks() {
  for (std::size_t n = 0; n < slots_.size(); ++n) slots_[n].fallback_ = FallbackOf(n);
  fallbacks_.PointTo(Parent());
}

const SkinManagerColor* SkinManager::FallbackOf(std::size_t slot) const {
  return Parent() && Parent() != this ? &Parent()->slots_[slot] : nullptr;
}

// -- Palettes
// ----------------------------------------------------------------------------------------

bool SkinManager::LoadSkin(SkinMode mode, bool lockColors, bool detach) {
  lockColors_ = lockColors;
  if (mode < SkinMode::Default || mode > SkinMode::HCMDark) return false;
  if (!LoadInSystem(mode, detach)) return false;
  requestedMode_ = mode;
  return true;
}

bool SkinManager::LoadInSystem(SkinMode mode, bool detach) {
  if (WexaUtils::IsSystemHighContrastMode()) {
    LoadHCMDarkSkin(detach);
  } else if (mode == SkinMode::XML) {
    if (Parent() == nullptr) return false;
    LoadXMLSkin(detach);
  } else if (mode == SkinMode::Dark) {
    LoadDarkSkin(detach);
  } else {
    LoadDefaultSkin(detach);
  }
  return true;
}

bool SkinManager::SetSkinMode(SkinMode mode) {
  return LoadSkin(mode, false, true);
}

bool SkinManager::SetCustomSkin(const SkinManager& other) {
  if (this != &other) {
    CopySlots(other);
    CopyState(other);
    if (Parent() == this) parent_.PointTo(nullptr);
    SetColorChangeFlag(true);
  }
  mode_ = SkinMode::Custom;
  requestedMode_ = SkinMode::Custom;
  return true;
}

void SkinManager::ReloadPalette() {
  std::array<std::optional<std::uint32_t>, kSlotCount> explicitColors;
  for (std::size_t n = 0; n < slots_.size(); ++n) {
    const SkinManagerColor& slot = slots_[n];
    if (slot.changed_ && slot.value_ != kNoColor) explicitColors[n] = slot.value_;
  }
  if (!LoadSkin(requestedMode_, lockColors_, false)) return;
  for (std::size_t n = 0; n < slots_.size(); ++n) {
    if (!explicitColors[n]) continue;
    slots_[n].value_ = *explicitColors[n];
    slots_[n].changed_ = true;
  }
}

bool SkinManager::InitSkinManager(const SkinManager* parent, SkinMode mode) {
  if (parent == this) {
    parent_.PointTo(nullptr);
    if (initDone_) return true;
  } else {
    parent_.PointTo(parent);
  }
  const bool loaded = LoadSkin(mode, false, false);
  initDone_ = true;
  return loaded;
}

void SkinManager::LoadDefaultSkin(bool detach) {
  LoadPalette(SkinMode::Default, detach);
}
void SkinManager::LoadDarkSkin(bool detach) {
  LoadPalette(SkinMode::Dark, detach);
}
void SkinManager::LoadHCMDarkSkin(bool detach) {
  LoadPalette(SkinMode::HCMDark, detach);
}

// Slots that the palette leaves as they are let go of a parent that does not count any more.
void SkinManager::BeginLoad(SkinMode mode, bool detach) {
  mode_ = mode;
  requestedMode_ = mode;
  if (detach) parent_.PointTo(nullptr);
  if (fallbacks_.Target() == Parent()) return;
  for (std::size_t n = 0; n < slots_.size(); ++n) {
    if (!slots_[n].fallback_) continue;
    if (detach) slots_[n].KeepShown();
    slots_[n].fallback_ = FallbackOf(n);
  }
  fallbacks_.PointTo(Parent());
}

void SkinManager::LoadPalette(SkinMode mode, bool detach) {
  BeginLoad(mode, detach);
  const auto palette = PaletteOf(mode);
  const auto systemColors = GetSysColors();
  const SkinManagerColor* fallbacks = FallbackOf(0);
  const bool locked = lockColors_;
  for (std::size_t n = 0; n < slots_.size(); ++n) {
    const PaletteEntry& entry = kSlotTable[n].*palette;
    unsigned long color = entry.value;
    switch (entry.kind) {
      case PaletteEntry::Kind::Unchanged: continue;
      case PaletteEntry::Kind::Color: break;
      case PaletteEntry::Kind::System: color = systemColors[entry.value]; break;
      case PaletteEntry::Kind::SameAs: color = slots_[entry.value]; break;
    }
    slots_[n].SetDefaultColor(color, fallbacks ? fallbacks + n : nullptr, locked, this);
  }
}

void SkinManager::LoadXMLSkin(bool detach) {
  const SkinManager* source = Parent();
  if (source == nullptr) return;
  BeginLoad(SkinMode::XML, detach);
  for (std::size_t n = 0; n < slots_.size(); ++n) {
    slots_[n].SetDefaultColor(source->slots_[n], FallbackOf(n), lockColors_, this);
  }
}

// -- Changes
// -----------------------------------------------------------------------------------------

void SkinManager::SetColorChangeFlag(bool changed) {
  if (owner_ && changed) owner_->OnSkinColorsChanged();
  colorChangeFlag_ = changed;
}

void SkinManager::UpdateCustomColors() {
  if (!colorChangeFlag_) return;
  if (owner_) owner_->RefreshSkinColors();
  colorChangeFlag_ = false;
}

}  // namespace Wexa
