#pragma once

#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

// Objects behind handles. A handle holds a slot's index and the generation of its object, so one
// that outlived its object is recognised. Handle is one of the opaque pointer types of Types.h.
template <typename Handle, typename Object>
class HandleTable {
 public:
  Handle Add(std::unique_ptr<Object> object) {
    std::uint32_t index = TakeSlot();
    slots_[index].object = std::move(object);
    return Encode(index, slots_[index].generation);
  }

  Object* Find(Handle handle) const {
    const Slot* slot = SlotOf(handle);
    return slot ? slot->object.get() : nullptr;
  }

  // Takes the object out; the handle is stale from now on. Null for a stale handle.
  std::unique_ptr<Object> Remove(Handle handle) {
    Slot* slot = const_cast<Slot*>(SlotOf(handle));
    if (!slot) return nullptr;
    ++slot->generation;
    free_.push_back(static_cast<std::uint32_t>(slot - slots_.data()));
    return std::move(slot->object);
  }

  std::size_t Count() const { return slots_.size() - free_.size(); }

 private:
  struct Slot {
    std::unique_ptr<Object> object;
    std::uint32_t generation = 1;
  };

  static constexpr int kIndexBits = 24;

  static Handle Encode(std::uint32_t index, std::uint32_t generation) {
    auto value = (static_cast<std::uintptr_t>(generation) << kIndexBits) | (index + 1);
    return reinterpret_cast<Handle>(value);
  }

  const Slot* SlotOf(Handle handle) const {
    auto value = reinterpret_cast<std::uintptr_t>(handle);
    std::uintptr_t index = (value & ((std::uintptr_t{1} << kIndexBits) - 1)) - 1;
    if (index >= slots_.size()) return nullptr;
    const Slot& slot = slots_[index];
    bool alive = slot.object && slot.generation == static_cast<std::uint32_t>(value >> kIndexBits);
    return alive ? &slot : nullptr;
  }

  std::uint32_t TakeSlot() {
    if (free_.empty()) {
      slots_.emplace_back();
      return static_cast<std::uint32_t>(slots_.size() - 1);
    }
    std::uint32_t index = free_.back();
    free_.pop_back();
    return index;
  }

  std::vector<Slot> slots_;
  std::vector<std::uint32_t> free_;
};
