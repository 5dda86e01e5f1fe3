#include "MFC/DrawnImpl.h"

namespace Wexa {

DrawnImpl::DrawnImpl(BaseGUIObject* owner, std::shared_ptr<DrawnWnd> window)
    : BaseImplMFC(owner), window_(std::move(window)) {}

CWnd* DrawnImpl::GetCWnd() {
  return window_.get();
}

bool DrawnImpl::CreateNative(CWnd* parent) {
  return window_->Create(Creation().text, Creation().style, ScaledRect(), parent,
                         Creation().controlId, Creation().exStyle);
}

}  // namespace Wexa
