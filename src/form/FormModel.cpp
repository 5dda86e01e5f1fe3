#include "form/FormModel.h"

#include <algorithm>
#include <bit>
#include <utility>

namespace Wexa {
namespace {

constexpr std::uint64_t BitOf(PropertyId id) {
  static_assert(kPropertyCount <= 64);
  return std::uint64_t{1} << static_cast<int>(id);
}

}  // namespace

std::size_t FormNode::IndexOf(PropertyId id) const {
  return static_cast<std::size_t>(std::popcount(present_ & (BitOf(id) - 1)));
}

const std::wstring* FormNode::Text(PropertyId id) const {
  return (present_ & BitOf(id)) != 0 ? &texts_[IndexOf(id)] : nullptr;
}

void FormNode::SetText(PropertyId id, std::wstring text) {
  const auto at = texts_.begin() + static_cast<std::ptrdiff_t>(IndexOf(id));
  if ((present_ & BitOf(id)) != 0) {
    *at = std::move(text);
    return;
  }
  texts_.insert(at, std::move(text));
  present_ |= BitOf(id);
}

const std::wstring* FormNode::Extra(std::wstring_view name) const {
  const auto found = std::ranges::find(extras_, name, &NamedText::name);
  return found != extras_.end() ? &found->text : nullptr;
}

void FormNode::SetExtra(std::wstring_view name, std::wstring text) {
  const auto found = std::ranges::find(extras_, name, &NamedText::name);
  if (found != extras_.end()) {
    found->text = std::move(text);
  } else {
    extras_.push_back({name, std::move(text)});
  }
}

}  // namespace Wexa
