#pragma once

#include <memory>
#include <type_traits>
#include <typeinfo>
#include <utility>

#include "WexaExport.h"

namespace Wexa {

// Thrown by any_cast when the value is of another type, or missing.
class WEXA_API bad_any_cast : public std::bad_cast {
 public:
  const char* what() const noexcept override;
};

// Holds at most one copyable value of any type: the item data of lists and combo boxes.
class WEXA_API any {
 public:
  // What a holder of any type answers.
  class WEXA_API placeholder {
   public:
    virtual ~placeholder();
    virtual const std::type_info& type() const = 0;
    // A new copy of the holder and its value.
    virtual placeholder* clone() const = 0;
  };

  template <typename T>
  class holder : public placeholder {
   public:
    explicit holder(const T& value) : held(value) {}
    explicit holder(T&& value) : held(std::move(value)) {}
    const std::type_info& type() const override { return typeid(T); }
    placeholder* clone() const override { return new holder(held); }

    T held;
  };

  // Empty.
  any() = default;
  template <typename T>
  requires(!std::is_same_v<std::decay_t<T>, any>) any(T&& value)
      : content_(new holder<std::decay_t<T>>(std::forward<T>(value))) {}
  any(const any& other) : content_(other.empty() ? nullptr : other.content_->clone()) {}
  any(any&&) noexcept = default;
  any& operator=(const any& other) { return *this = any(other); }
  any& operator=(any&&) noexcept = default;

  // Whether there is no value.
  bool empty() const { return content_ == nullptr; }
  // typeid(void) when empty.
  const std::type_info& type() const { return empty() ? typeid(void) : content_->type(); }

 private:
  template <typename T>
  friend T any_cast(const any& value);

  std::unique_ptr<placeholder> content_;
};

// The held value, which must be exactly a T; throws bad_any_cast otherwise.
template <typename T>
T any_cast(const any& value) {
  if (value.type() != typeid(T)) throw bad_any_cast();
  return static_cast<const any::holder<T>&>(*value.content_).held;
}

}  // namespace Wexa
