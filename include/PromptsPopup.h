#pragma once

#include <memory>
#include <string>

#include "WexaExport.h"

namespace Wexa {

class BaseGUIObject;

// A text beside a widget that tells the user what is wrong or what is expected there. It points at
// the widget, like a balloon tip, and goes with it; one of either is shown at a time.
class WEXA_API PromptsPopup {
 public:
  // Lines are broken at `width`, in 96-DPI units; 0 stands for the usual width. The popup goes
  // after so many milliseconds, unless they are 0, and with the next key or press when
  // `closesOnInput`.
  PromptsPopup(const std::wstring& text, int width, int milliseconds, bool closesOnInput);
  ~PromptsPopup();
  PromptsPopup(const PromptsPopup&) = delete;
  PromptsPopup& operator=(const PromptsPopup&) = delete;

  const std::wstring& GetText() const;
  // Counts from the next Show.
  void SetText(const std::wstring& text);

  // False when there is no text or the widget is not to be seen.
  bool Show(BaseGUIObject& widget);
  void Hide();
  bool IsShown() const;

 private:
  struct impl;
  std::unique_ptr<impl> impl_;
};

}  // namespace Wexa
