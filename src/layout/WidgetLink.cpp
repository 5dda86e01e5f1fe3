#include "layout/WidgetLink.h"

#include "BaseGUIObject.h"
#include "MFC/BaseImpl.h"

namespace Wexa {

WidgetLink::WidgetLink(BaseGUIObject* widget) : widget_(widget) {
  if (!widget) return;
  const auto impl = widget->GetBaseImpl();
  impl_ = impl.get();
  life_ = impl;
}

// A running operation may hold the implementation of a widget that is gone.
WidgetLink::operator bool() const {
  return !life_.expired() && !impl_->Links().released;
}

}  // namespace Wexa
