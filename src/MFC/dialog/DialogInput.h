#pragma once

#include "layout/WidgetLink.h"
#include "platform/Classes.h"

namespace Wexa {

class Button;
class DialogElements;

// What keys and the wheel do in a dialog as a whole: its default button, mnemonics of what is drawn
// and is no native control, areas that scroll under the pointer.
class DialogInput {
 public:
  DialogInput(const DialogElements& elements, CDialogEx& window)
      : elements_(elements), window_(window) {}

  // The button that Return clicks, now and in each later showing.
  void SetDefaultButton(Button* button);
  // Tells a new window of the dialog its default button: the host's, else the form's, else the OK
  // of a button box, else the first.
  void ApplyDefaultButton();
  // Input on its way to a window of the dialog; true when it is used up. A handler may have
  // destroyed the dialog then.
  bool OnInput(const MSG& message);

 private:
  Button* ChoiceOfForm() const;
  void TellWindow(Button* button);
  bool FollowMnemonic(const MSG& message);
  bool TurnHoveredArea(const MSG& message);

  const DialogElements& elements_;
  CDialogEx& window_;
  WidgetLink default_;
};

}  // namespace Wexa
