#pragma once

#include <string>

#include "MFC/FieldImpl.h"

namespace Wexa {

// A number field with arrows.
class SpinFieldImpl : public LineFieldImpl {
 public:
  using LineFieldImpl::LineFieldImpl;
  void SetRange(double minimum, double maximum);
  void SetValue(double value);
  double GetValue() const { return value_; }
  void SetPrefix(const std::wstring& prefix);
  void SetSuffix(const std::wstring& suffix);
  void SetDecimals(int digits);

 protected:
  int decimals = 0;
  // Prefix and suffix.
  void ReadFixes(const FormReader& form);
  std::wstring ShownText() override { return TextOf(value_); }
  int ContentWidth() override;
  void PaintEnd(Painter& painter, const CRect& end, const ControlPalette& palette) override;

 private:
  std::wstring TextOf(double value) const;
  void ContentChanged();

  double minimum_ = 0;
  double maximum_ = 99;
  double value_ = 0;
  std::wstring prefix_;
  std::wstring suffix_;
};

}  // namespace Wexa
