#pragma once

#include "BaseGUIObject.h"

namespace Wexa {

// What sliders and scroll bars have in common: a value in a range that their user moves by single
// steps (arrow keys, wheel) and by pages (page keys, a click beside the thumb), or drags.
class WEXA_API RangeControl : public BaseGUIObject {
 public:
  class impl;

  ~RangeControl() override;

  // Fired with the new value after every change, whoever made it.
  CallbackList<int> ValueChanged;
  // Fired with the new value while the user drags the thumb.
  CallbackList<int> SliderMoved;

  // As BaseGUIObject says. IdealSize is what the content asks for at the widget's font.
  bool Create(HWND parent) override;
  std::shared_ptr<BaseImpl> GetBaseImpl() const override;
  Size IdealSize() override;

  // The value is kept within the range; a maximum below the minimum counts as the minimum.
  void SetRange(int minimum, int maximum);
  // 0 to 100 at first.
  int GetMinimum() const;
  int GetMaximum() const;
  // Fires ValueChanged when the value is another.
  void SetValue(int value);
  int GetValue() const;
  // Steps are at least 1. A scroll bar's thumb is as long as a page is of its whole range.
  void SetSingleStep(int step);
  void SetPageStep(int step);
  int GetSingleStep() const;
  int GetPageStep() const;

 protected:
  RangeControl(GuiType type, std::shared_ptr<impl> (*make)(RangeControl*));

  std::shared_ptr<impl> impl_;
};

}  // namespace Wexa
