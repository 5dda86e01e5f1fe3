#pragma once

#include <memory>
#include <vector>

#include "BaseGUIObject.h"

namespace Wexa {

// Widgets side by side, or one above the other, that share its area as in a box layout. The views
// belong to the dialog that built them.
class WEXA_API Splitter : public BaseGUIObject {
 public:
  class impl;

  Splitter();
  ~Splitter() override;

  bool Create(HWND parent) override;
  std::shared_ptr<BaseImpl> GetBaseImpl() const override;

  // Counts for views added later.
  void SetOrientation(bool vertical);
  void AddView(BaseGUIObject* view);
  std::vector<BaseGUIObject*> GetViews();
  // The gap between views, in 96-DPI units.
  void SetHandleWidth(int width);

 private:
  std::shared_ptr<impl> impl_;
};

}  // namespace Wexa
