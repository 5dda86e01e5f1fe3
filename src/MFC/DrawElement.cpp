#include "DrawElement.h"

#include "MFC/PaintedImpl.h"
#include "platform/Painter.h"
#include "platform/Theme.h"

namespace Wexa {

class DrawElement::impl : public PaintedImpl {
 public:
  using PaintedImpl::PaintedImpl;

  void Paint(Painter& painter, const CRect& client, const ControlPalette& palette) override {
    painter.FillRect(client, palette.background);
  }
};

DrawElement::DrawElement()
    : BaseGUIObject(GuiType::DrawElement), impl_(std::make_shared<impl>(this)) {}
DrawElement::~DrawElement() {
  ReleaseImpl();
}

bool DrawElement::Create(HWND parent) {
  return impl_->Create(parent);
}
std::shared_ptr<BaseImpl> DrawElement::GetBaseImpl() const {
  return impl_;
}
Size DrawElement::IdealSize() {
  return impl_->IdealSize();
}

}  // namespace Wexa
