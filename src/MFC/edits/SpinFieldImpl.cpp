#include "MFC/SpinFieldImpl.h"

#include <algorithm>
#include <cstdio>

#include "WexaConfig.h"
#include "form/FormReader.h"
#include "platform/Theme.h"

namespace Wexa {

namespace {

constexpr int kMostDecimals = 15;
// Texts of huge ranges do not widen the field any further.
constexpr double kWidestValue = 1e9;

}  // namespace

void SpinFieldImpl::SetRange(double minimum, double maximum) {
  minimum_ = minimum;
  maximum_ = std::max(minimum, maximum);
  SetValue(value_);
}

void SpinFieldImpl::SetValue(double value) {
  value_ = std::clamp(value, minimum_, maximum_);
  ContentChanged();
}

void SpinFieldImpl::SetPrefix(const std::wstring& prefix) {
  prefix_ = prefix;
  ContentChanged();
}

void SpinFieldImpl::SetSuffix(const std::wstring& suffix) {
  suffix_ = suffix;
  ContentChanged();
}

void SpinFieldImpl::ReadFixes(const FormReader& form) {
  SetPrefix(form.Text(L"prefix"));
  SetSuffix(form.Text(L"suffix"));
}

void SpinFieldImpl::SetDecimals(int digits) {
  decimals = std::clamp(digits, 0, kMostDecimals);
  ContentChanged();
}

void SpinFieldImpl::ContentChanged() {
  InvalidateLayout();
  if (GetHandle()) GetCWnd()->Invalidate();
}

std::wstring SpinFieldImpl::TextOf(double value) const {
  char digits[352];  // the largest double with its decimals
  std::snprintf(digits, sizeof digits, "%.*f", decimals, value);
  std::wstring number(digits, digits + std::char_traits<char>::length(digits));
  std::replace(number.begin(), number.end(), L'.', static_cast<wchar_t>(GetDecimalChar()));
  return prefix_ + number + suffix_;
}

int SpinFieldImpl::ContentWidth() {
  int lowest = GetTextExtent(Font(), TextOf(std::max(minimum_, -kWidestValue))).cx;
  int highest = GetTextExtent(Font(), TextOf(std::min(maximum_, kWidestValue))).cx;
  return std::max(lowest, highest);
}

void SpinFieldImpl::PaintEnd(Painter& painter, const CRect& end, const ControlPalette& palette) {
  Theme::DrawSpinArrows(painter, end, Shown().State(), palette);
}

}  // namespace Wexa
