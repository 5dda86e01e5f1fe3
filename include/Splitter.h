#pragma once

#include <list>
#include <memory>
#include <vector>

#include "BaseGUIObject.h"

namespace Wexa {

// Widgets side by side, or one above the other, with handles between them that share out the room:
// dragged by the mouse, or reached by Tab and moved by arrow keys. No view becomes smaller than its
// minimum. The views belong to the dialog that built them.
class WEXA_API Splitter : public BaseGUIObject {
 public:
  class impl;

  // Without a native window: the dialog that holds the widget makes it.
  Splitter();
  ~Splitter() override;

  // As BaseGUIObject says. IdealSize is what the content asks for at the widget's font.
  bool Create(HWND parent) override;
  std::shared_ptr<BaseImpl> GetBaseImpl() const override;
  Size IdealSize() override;

  void SetOrientation(bool vertical);
  // Appends a view.
  void AddView(BaseGUIObject* view);
  std::vector<BaseGUIObject*> GetViews();
  // Whether views follow a handle while it is dragged, as they do at first, or when it is let go; a
  // line then shows where the handle will be.
  void SetDynamicResizing(bool dynamic);
  bool DynamicResizing() const;
  // The handles' width in 96-DPI units; 0 or less leaves nothing to drag.
  void SetHandleWidth(int width);
  int GetHandleWidth() const;
  // The views' sizes in their order, in 96-DPI units; they are kept in proportion when the room is
  // another. Views past the end of the list keep theirs.
  void SetSizes(const std::list<int>& sizes);

 private:
  std::shared_ptr<impl> impl_;
};

}  // namespace Wexa
