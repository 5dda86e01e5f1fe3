#pragma once

#include <unordered_map>

#include "MFC/ContainerImpl.h"
#include "layout/ChildArranger.h"
#include "layout/WidgetSizes.h"

namespace Wexa {

// Containers that place their children themselves. What a child asks for is read once, until
// something inside it changes: containers in containers would else ask it again at each level.
class ArrangingImpl : public ContainerImpl, public ChildArranger {
 public:
  using ContainerImpl::ContainerImpl;

  ChildArranger* AsArranger() override { return this; }
  void ForgetSizes() override { sizes_.clear(); }
  bool AgreesWith(BaseGUIObject& child) override;
  void RequestArrangement() override;
  void PlaceAsRequested() override;
  void ForgetChild(BaseGUIObject& child) override;

 protected:
  const WidgetSizes& SizesOf(BaseGUIObject& child);

 private:
  std::unordered_map<const BaseGUIObject*, WidgetSizes> sizes_;
  bool isRequested_ = false;
};

}  // namespace Wexa
