#pragma once

#include <array>
#include <cstdint>

#include "SkinManager.h"

namespace Wexa {

// What a palette gives a slot.
struct PaletteEntry {
  enum class Kind : std::uint8_t {
    Unchanged,  // the slot keeps what it has
    Color,      // value: the colour
    System,     // value: the index of a system colour
    SameAs      // value: a slot with a lower number, whose resolved colour it is
  };

  Kind kind = Kind::Unchanged;
  std::uint32_t value = 0;
};

// The names of colours that slots are bound to.
enum class ColorKey : std::uint8_t;

// One slot: its name among those for buttons and among those for inputs, and its palettes.
struct SlotRow {
  ColorKey buttonKey;
  ColorKey inputKey;
  PaletteEntry light;
  PaletteEntry dark;
  PaletteEntry highContrast;
};

extern const std::array<SlotRow, SkinManager::kSlotCount> kSlotTable;

inline constexpr int kColorKeyCount = 37;
extern const std::array<const wchar_t*, kColorKeyCount> kColorKeyNames;

}  // namespace Wexa
