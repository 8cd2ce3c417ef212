#pragma once

// A dynamic_cast whose answer is kept per most-derived class.
//
// The stand-in's classes live in several libraries, so a dynamic_cast between
// them compares type names as text at every step of the search, tens of
// nanoseconds a cast; a traversal makes several per node and per element.
// For one most-derived class the answer never changes: the cast fails, or it
// moves the pointer by the same offset. cachedCast finds that answer by the
// address of the object's type_info in a small table without a lock, and
// makes the real cast only the first time it meets a class (or when the table
// is full).

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <typeinfo>

namespace tk {

class CastTable {
 public:
  static constexpr std::ptrdiff_t kFails = PTRDIFF_MIN;

  // The offset of the target within an object of that most-derived class,
  // kFails when the cast fails, or false when the class has no answer yet.
  bool find(const std::type_info* type, std::ptrdiff_t& offset) const noexcept {
    for (std::size_t i = hash(type), n = 0; n < kSlots; i = (i + 1) % kSlots, ++n) {
      const std::type_info* t = slots[i].type.load(std::memory_order_acquire);
      if (t == nullptr) return false;
      if (t == type) {
        if (!slots[i].ready.load(std::memory_order_acquire)) return false;
        offset = slots[i].offset;
        return true;
      }
    }
    return false;
  }

  // Keeps the answer for that class (the first one kept wins; all are equal).
  void keep(const std::type_info* type, std::ptrdiff_t offset) noexcept {
    for (std::size_t i = hash(type), n = 0; n < kSlots; i = (i + 1) % kSlots, ++n) {
      const std::type_info* expected = nullptr;
      if (slots[i].type.compare_exchange_strong(expected, type, std::memory_order_acq_rel)) {
        slots[i].offset = offset;
        slots[i].ready.store(true, std::memory_order_release);
        return;
      }
      if (expected == type) return;
    }
  }

 private:
  static constexpr std::size_t kSlots = 512;
  static std::size_t hash(const std::type_info* type) noexcept {
    return (reinterpret_cast<std::uintptr_t>(type) >> 4) % kSlots;
  }
  struct Slot {
    std::atomic<const std::type_info*> type{nullptr};
    std::ptrdiff_t offset = 0;
    std::atomic<bool> ready{false};
  };
  Slot slots[kSlots];
};

// dynamic_cast<Target*>(object), answered from the table after the first
// object of each most-derived class. Target and Source are the classes as
// written (const included).
template <class Target, class Source>
Target* cachedCast(Source* object) {
  if (object == nullptr) return nullptr;
  static CastTable table;
  const std::type_info* type = &typeid(*object);
  const char* base = static_cast<const char*>(dynamic_cast<const void*>(object));
  std::ptrdiff_t offset;
  if (!table.find(type, offset)) {
    Target* target = dynamic_cast<Target*>(object);
    offset = target == nullptr ? CastTable::kFails
                               : reinterpret_cast<const char*>(target) - base;
    table.keep(type, offset);
    return target;
  }
  if (offset == CastTable::kFails) return nullptr;
  return reinterpret_cast<Target*>(const_cast<char*>(base) + offset);
}

}  // namespace tk
