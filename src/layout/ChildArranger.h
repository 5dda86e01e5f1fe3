#pragma once

namespace Wexa {

class BaseGUIObject;

// A widget that places its children itself, not by a layout: a splitter, a scroll area, pages. It
// may remember what they ask for.
class ChildArranger {
 public:
  // Something inside may ask for other sizes than before.
  virtual void ForgetSizes() = 0;
  // Whether the child asks for what is remembered of it, if anything is.
  virtual bool AgreesWith(BaseGUIObject& child) = 0;
  // Asks for the children to be placed again later; once until that is done.
  virtual void RequestArrangement() = 0;

 protected:
  ~ChildArranger() = default;
};

}  // namespace Wexa
