#pragma once

#include <functional>
#include <memory>

#include "BaseGUIObject.h"

class Painter;

namespace Wexa {

// An area that its host paints: with a paint procedure, or in the paint event.
class WEXA_API DrawElement : public BaseGUIObject {
 public:
  class impl;
  // Gets the area to paint in device pixels; the background is there already.
  using PaintProcedure = std::function<void(Painter&, const Rect&)>;

  // Without a native window: the dialog that holds the widget makes it.
  DrawElement();
  ~DrawElement() override;

  // As BaseGUIObject says. IdealSize is what the content asks for at the widget's font.
  bool Create(HWND parent) override;
  std::shared_ptr<BaseImpl> GetBaseImpl() const override;
  Size IdealSize() override;

  // Replaces the procedure, an empty one for none, and repaints.
  void SetPaintProcedure(const PaintProcedure& procedure);
  // A focusable element takes the focus by Tab and by a click, and shows that it has it. Off at
  // first.
  void SetFocusable(bool focusable);
  bool IsFocusable() const;

 private:
  std::shared_ptr<impl> impl_;
};

}  // namespace Wexa
