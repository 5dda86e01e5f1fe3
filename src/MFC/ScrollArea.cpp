#include "ScrollArea.h"

#include <algorithm>

#include "MFC/ContainerImpl.h"
#include "MFC/WidgetColors.h"
#include "platform/Painter.h"
#include "platform/Theme.h"

namespace Wexa {

namespace {

constexpr int kBorder = 1;
constexpr int kLargestWidth = 480;
constexpr int kLargestHeight = 320;
constexpr int kSmallestSide = 72;

}  // namespace

class ScrollArea::impl : public ContainerImpl {
 public:
  using ContainerImpl::ContainerImpl;

  Size IdealSize() override {
    Size content = content_ ? content_->IdealSize() : Size();
    Size framed(content.Width() + 2 * Border(), content.Height() + 2 * Border());
    return framed.GetDeflated(Scale(kLargestWidth, kLargestHeight)).GetInflated(MinimumIdealSize());
  }
  Size MinimumIdealSize() override { return Scale(kSmallestSide, kSmallestSide); }

  void UpdateLayout() override {
    if (!content_ || !content_->GetPlatformHandle()) return;
    Size least = content_->MinimumIdealSize();
    Rect view = GetClientRect().MarginsAdded(-Border(), -Border(), -Border(), -Border());
    content_->MoveWindow(view.Left(), view.Top(), std::max(view.Width(), least.Width()),
                         std::max(view.Height(), least.Height()), true);
  }

  void Paint(Painter& painter, const CRect& client, const ControlPalette& palette) override {
    ContainerImpl::Paint(painter, client, palette);
    painter.FrameRect(client, palette.border, Border());
  }

  void SetContent(BaseGUIObject* content) {
    content_ = content;
    if (content) Children().push_back(content);
    InvalidateLayout();
  }

 private:
  static int Border() { return std::max(1, Scale(kBorder)); }

  BaseGUIObject* content_ = nullptr;
};

ScrollArea::ScrollArea()
    : BaseGUIObject(GuiType::ScrollArea), impl_(std::make_shared<impl>(this)) {}
ScrollArea::~ScrollArea() {
  ReleaseImpl();
}

bool ScrollArea::Create(HWND parent) {
  return impl_->Create(parent);
}
std::shared_ptr<BaseImpl> ScrollArea::GetBaseImpl() const {
  return impl_;
}
Size ScrollArea::IdealSize() {
  return impl_->IdealSize();
}
void ScrollArea::SetContent(BaseGUIObject* content) {
  impl_->SetContent(content);
}

}  // namespace Wexa
