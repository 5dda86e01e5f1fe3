#include "form/FormModel.h"

#include <algorithm>
#include <bit>
#include <utility>

#include "form/FormText.h"
#include "form/RefusedForm.h"

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

// -- Numbers

template <typename Convert>
auto FormNode::Converted(std::wstring_view property, const std::wstring& text,
                         Convert convert) const {
  return ConvertOrRefuse(
      text, convert, [&](std::wstring reason) { return Diagnose(property, std::move(reason)); });
}

std::optional<int> FormNode::Integer(PropertyId id) const {
  const auto* text = Text(id);
  return text ? std::optional(Converted(PropertyOf(id), *text, FormInteger)) : std::nullopt;
}

std::optional<int> FormNode::Integer(std::wstring_view extra) const {
  const auto* text = Extra(extra);
  return text ? std::optional(Converted(extra, *text, FormInteger)) : std::nullopt;
}

std::optional<double> FormNode::Number(PropertyId id) const {
  const auto* text = Text(id);
  return text ? std::optional(Converted(PropertyOf(id), *text, FormNumber)) : std::nullopt;
}

std::vector<int> FormNode::Integers(PropertyId id) const {
  std::vector<int> numbers;
  const auto* list = Text(id);
  if (!list || list->empty()) return numbers;
  for (std::size_t start = 0; start <= list->size();) {
    const auto end = std::min(list->find(L',', start), list->size());
    numbers.push_back(Converted(PropertyOf(id), list->substr(start, end - start), FormInteger));
    start = end + 1;
  }
  return numbers;
}

// -- Places

void FormNode::SetLine(std::wstring_view property, int lineOfProperty) {
  lines_.push_back({property, lineOfProperty});
}

FormDiagnostic FormNode::Diagnose(std::wstring_view property, std::wstring reason) const {
  const auto found = std::ranges::find(lines_, property, &PropertyLine::name);
  return {{},
          found != lines_.end() ? found->line : line,
          name,
          std::wstring(property),
          std::move(reason)};
}

std::wstring_view FormNode::PropertyOf(PropertyId id) const {
  switch (id) {
    case PropertyId::X:
    case PropertyId::Y: return L"geometry";
    case PropertyId::Width:
    case PropertyId::Height: return kind == Kind::Spacer ? L"sizeHint" : L"geometry";
    case PropertyId::MinWidth:
    case PropertyId::MinHeight: return L"minimumSize";
    case PropertyId::MaxWidth:
    case PropertyId::MaxHeight: return L"maximumSize";
    case PropertyId::HorStretch:
    case PropertyId::VerStretch: return L"sizePolicy";
    default: return PropertyNameOf(id);
  }
}

}  // namespace Wexa
