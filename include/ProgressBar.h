#pragma once

#include <memory>
#include <string>

#include "BaseGUIObject.h"

namespace Wexa {

// A bar that shows how far something has come, or only that it goes on.
class WEXA_API ProgressBar : public BaseGUIObject {
 public:
  class impl;

  // Without a native window: the dialog that holds the widget makes it.
  ProgressBar();
  ~ProgressBar() override;

  // As BaseGUIObject says. IdealSize is what the content asks for at the widget's font.
  bool Create(HWND parent) override;
  std::shared_ptr<BaseImpl> GetBaseImpl() const override;
  Size IdealSize() override;

  // The value is kept within the range. From 0 to 0 the bar is indeterminate.
  void SetRange(int minimum, int maximum);
  // Repaints only when the bar looks different.
  void SetValue(int value);
  // As set, kept within the range.
  int GetValue() const;
  int GetMinimum() const;
  int GetMaximum() const;
  // A part of the bar moves along while nobody knows how far things have come.
  void SetIndeterminate(bool indeterminate);
  bool IsIndeterminate() const;

  // The text on horizontal bars, shown unless told otherwise: "%p" stands for the percentage, "%v"
  // for the value and "%m" for the number of steps in the range. "%p%" at first.
  void SetFormat(const std::wstring& format);
  void SetTextVisible(bool visible);
  // The text as shown; empty for an indeterminate bar.
  std::wstring GetText() const;

 private:
  std::shared_ptr<impl> impl_;
};

}  // namespace Wexa
