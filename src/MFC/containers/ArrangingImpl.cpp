#include "MFC/containers/ArrangingImpl.h"

#include "BaseGUIObject.h"

namespace Wexa {

const WidgetSizes& ArrangingImpl::SizesOf(BaseGUIObject& child) {
  const auto known = sizes_.find(&child);
  if (known != sizes_.end()) return known->second;
  return sizes_.emplace(&child, WidgetSizes::Of(child)).first->second;
}

bool ArrangingImpl::AgreesWith(BaseGUIObject& child) {
  const auto known = sizes_.find(&child);
  return known == sizes_.end() || known->second == WidgetSizes::Of(child);
}

void ArrangingImpl::RequestArrangement() {
  if (!isRequested_) isRequested_ = PostLayoutRequest();
}

void ArrangingImpl::PlaceAsRequested() {
  isRequested_ = false;
  UpdateLayout();
}

void ArrangingImpl::ForgetChild(BaseGUIObject& child) {
  ContainerImpl::ForgetChild(child);
  ForgetSizes();
  RequestArrangement();
}

}  // namespace Wexa
