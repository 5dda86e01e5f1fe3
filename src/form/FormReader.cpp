#include "form/FormReader.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "form/FormText.h"
#include "form/RichText.h"

namespace Wexa {

const std::wstring* FormReader::Find(Property property) const {
  return property.name_.empty() ? node_.Text(property.id_) : node_.Extra(property.name_);
}

std::wstring FormReader::Text(Property property, const std::wstring& absent) const {
  const std::wstring* text = Find(property);
  return text ? *text : absent;
}

std::optional<std::wstring> FormReader::PlainText(Property property) const {
  const std::wstring* text = Find(property);
  if (!text) return std::nullopt;
  std::int32_t bold = 0;
  return IsRichText(*text) ? PlainTextOf(*text, bold) : *text;
}

bool FormReader::Flag(Property property, bool absent) const {
  const std::wstring* text = Find(property);
  if (!text) return absent;
  return absent ? *text != L"false" : *text == L"true";
}

bool FormReader::Has(Property property, std::wstring_view word) const {
  const std::wstring* text = Find(property);
  return text && HasEnumWord(*text, word);
}

int FormReader::HorizontalAlignment() const {
  const auto has = [this](std::wstring_view word) { return Has(PropertyId::Alignment, word); };
  if (has(L"Qt::AlignCenter") || has(L"Qt::AlignHCenter")) return 1;
  return has(L"Qt::AlignRight") || has(L"Qt::AlignTrailing") ? 2 : 0;
}

int FormReader::Integer(Property property, int absent) const {
  const auto number =
      property.name_.empty() ? node_.Integer(property.id_) : node_.Integer(property.name_);
  return number.value_or(absent);
}

double FormReader::Number(PropertyId id, double absent) const {
  const double number = node_.Number(id).value_or(absent);
  return std::isfinite(number) ? number : absent;
}

int FormReader::Clamped(PropertyId id, int absent) const {
  using Limits = std::numeric_limits<int>;
  return static_cast<int>(std::clamp<double>(Number(id, absent), Limits::min(), Limits::max()));
}

FormReader::Range FormReader::RangeOr(int minimum, int maximum) const {
  return {Clamped(PropertyId::Minimum, minimum), Clamped(PropertyId::Maximum, maximum),
          Clamped(PropertyId::Value, minimum)};
}

}  // namespace Wexa
