#include "Label.h"

#include <algorithm>

#include "MFC/BaseImplMFC.h"
#include "MFC/WidgetColors.h"
#include "layout/WidgetLink.h"
#include "platform/ControlConstants.h"
#include "platform/Theme.h"

namespace Wexa {

namespace {

// A wrapped text asks for lines of about this width.
constexpr int kWrappedWidth = 320;

}  // namespace

class Label::impl : public BaseImplMFC {
 public:
  explicit impl(Label* owner) : BaseImplMFC(owner) {
    Creation().style |= SS_LEFTNOWORDWRAP | SS_ENDELLIPSIS | SS_CENTERIMAGE | SS_NOPREFIX;
  }

  CWnd* GetCWnd() override { return &window_; }

  Size IdealSize() override {
    SIZE line = Extent(INT32_MAX);
    if (!wraps_ || line.cx <= Scale(kWrappedWidth)) return {line.cx, line.cy};
    SIZE block = Extent(Scale(kWrappedWidth));
    return {block.cx, block.cy};
  }

  Size MinimumIdealSize() override {
    if (!wraps_) return IdealSize();
    SIZE block = Extent(1);
    return {std::min(static_cast<int>(block.cx), Scale(kWrappedWidth)), Extent(INT32_MAX).cy};
  }

  bool HasHeightForWidth() override { return wraps_; }
  int HeightForWidth(int width) override { return wraps_ ? Extent(std::max(width, 1)).cy : -1; }

  void FillPalette(ControlPalette& palette) override {
    FillCommonPalette(palette, GetSkinManager());
    palette.background = BackgroundColor();
  }
  void RefreshSkinColors() override {
    if (GetHandle()) window_.Invalidate();
  }

  using BaseImplMFC::SetText;
  using BaseImplMFC::Text;

  void SetWordWrap(bool wrap) {
    wraps_ = wrap;
    SetHorizontalStyle();
  }

  void SetAlignment(Alignment alignment) {
    alignment_ = alignment;
    SetHorizontalStyle();
  }

  void ChangeStyle(DWORD remove, DWORD add) {
    Creation().style = (Creation().style & ~remove) | add;
    if (GetHandle()) {
      window_.ModifyStyle(remove, add);
      window_.Invalidate();
    }
    InvalidateLayout();
  }

  WidgetLink buddy;

 protected:
  bool CreateNative(CWnd* parent) override {
    return window_.Create(Creation().text, Creation().style, ScaledRect(), parent,
                          Creation().controlId);
  }

 private:
  SIZE Extent(int width) {
    UINT format = wraps_ ? DT_WORDBREAK : 0;
    if (Creation().style & SS_NOPREFIX) format |= DT_NOPREFIX;
    return GetTextExtent(Font(), Text(), width, format);
  }

  // Unwrapped left-aligned texts have a style of their own.
  void SetHorizontalStyle() {
    DWORD style = SS_LEFT;
    if (alignment_ == Alignment::Center) style = SS_CENTER;
    if (alignment_ == Alignment::Right) style = SS_RIGHT;
    if (alignment_ == Alignment::Left && !wraps_) style = SS_LEFTNOWORDWRAP;
    if (!wraps_) style |= SS_ENDELLIPSIS;
    ChangeStyle(SS_TYPEMASK | SS_ENDELLIPSIS, style);
  }

  CStatic window_;
  Alignment alignment_ = Alignment::Left;
  bool wraps_ = false;
};

Label::Label() : BaseGUIObject(GuiType::Label), impl_(std::make_shared<impl>(this)) {}
Label::~Label() {
  ReleaseImpl();
}

bool Label::Create(HWND parent) {
  return impl_->Create(parent);
}
std::shared_ptr<BaseImpl> Label::GetBaseImpl() const {
  return impl_;
}
Size Label::IdealSize() {
  return impl_->IdealSize();
}
void Label::SetText(const std::wstring& text) {
  impl_->SetText(text);
}
std::wstring Label::GetText() {
  return impl_->Text();
}
void Label::SetAlignment(Alignment alignment) {
  impl_->SetAlignment(alignment);
}
void Label::SetVerticallyCentered(bool centered) {
  impl_->ChangeStyle(SS_CENTERIMAGE, centered ? SS_CENTERIMAGE : 0);
}
void Label::SetWordWrap(bool wrap) {
  impl_->SetWordWrap(wrap);
}
void Label::SetFont(const FontData& font) {
  impl_->SetFont(font);
}
void Label::SetBuddy(BaseGUIObject* buddy) {
  impl_->buddy = WidgetLink(buddy);
  impl_->ChangeStyle(SS_NOPREFIX, buddy ? 0 : SS_NOPREFIX);
}
BaseGUIObject* Label::GetBuddy() const {
  return impl_->buddy.Widget();
}

}  // namespace Wexa
