#include "Label.h"

#include <algorithm>
#include <functional>
#include <utility>

#include "MFC/BaseImplMFC.h"
#include "MFC/EventDispatch.h"
#include "MFC/base/WidgetColors.h"
#include "MFC/texts/LabelPicture.h"
#include "WexaConfig.h"
#include "form/FormReader.h"
#include "form/RichText.h"
#include "layout/WidgetLink.h"
#include "platform/ControlConstants.h"
#include "platform/DialogManager.h"
#include "platform/Painter.h"
#include "platform/Theme.h"

namespace Wexa {

namespace {

// A wrapped text asks for lines of about this width.
constexpr int kWrappedWidth = 320;
constexpr int kUnlimited = 1 << 24;

// The native text, or what is painted in its place.
class LabelWnd : public CStatic {
 public:
  std::function<void()> paint;  // null for the text
  RECT indent{};                // around the text, in pixels

 protected:
  MoveInterest Moves() const override {
    const bool isIndented = indent.left > 0 || indent.top > 0 || indent.right > 0;
    return isIndented ? MoveInterest::Steps : CStatic::Moves();
  }

  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
    if (message == WM_NCCALCSIZE) return Indent(message, wParam, lParam);
    if (message != WM_PAINT || lParam == kPostPaint || !paint)
      return CStatic::WindowProc(message, wParam, lParam);
    paint();
    return 0;
  }

 private:
  // The rectangle is the first in the record of either form.
  LRESULT Indent(UINT message, WPARAM wParam, LPARAM lParam) {
    const LRESULT result = CStatic::WindowProc(message, wParam, lParam);
    if (lParam == 0) return result;
    RECT sides = indent;  // the rectangle is one of the screen
    if (GetWindowLongPtrW(GetSafeHwnd(), GWL_EXSTYLE) & WS_EX_LAYOUTRTL)
      std::swap(sides.left, sides.right);
    auto& client = *reinterpret_cast<RECT*>(lParam);
    client.left = std::min(client.left + sides.left, client.right);
    client.top = std::min(client.top + sides.top, client.bottom);
    client.right = std::max(client.right - sides.right, client.left);
    return result;
  }
};

}  // namespace

class Label::impl : public BaseImplMFC {
 public:
  explicit impl(Label* owner) : BaseImplMFC(owner) {
    Creation().style |= SS_LEFTNOWORDWRAP | SS_ENDELLIPSIS | SS_CENTERIMAGE | SS_NOPREFIX;
  }

  CWnd* GetCWnd() override { return &window_; }

  Size IdealSize() override {
    if (picture_) return {picture_.IdealSize().cx, picture_.IdealSize().cy};
    SIZE line = Extent(kUnlimited);
    if (!wraps_ || line.cx <= Scale(kWrappedWidth)) return {line.cx, line.cy};
    SIZE block = Extent(Scale(kWrappedWidth));
    return {block.cx, block.cy};
  }

  Size MinimumIdealSize() override {
    if (picture_) return picture_.IsFitted() ? Size(0, 0) : IdealSize();
    if (!wraps_) return IdealSize();
    SIZE block = Extent(1);
    return {std::min(static_cast<int>(block.cx), Scale(kWrappedWidth)), Extent(kUnlimited).cy};
  }

  void SetIndent(int units) {
    indent_ = Scale(std::max(units, 0));
    UpdateIndent();
  }

  bool HasHeightForWidth() override { return wraps_ && !picture_; }
  int HeightForWidth(int width) override {
    return HasHeightForWidth() ? Extent(std::max(width, 1)).cy : -1;
  }

  void ReadForm(const FormReader& form) override {
    ReadText(form);
    SetAlignment(static_cast<Alignment>(form.HorizontalAlignment()));
    if (form.Has(PropertyId::Alignment, L"Qt::AlignTop")) ChangeStyle(SS_CENTERIMAGE, 0);
    if (form.Has(PropertyId::WordWrap, L"true")) SetWordWrap(true);
    if (form.Find(L"indent")) SetIndent(form.Integer(L"indent", 0));
    if (const std::wstring* picture = form.Find(L"pixmap"))
      LoadPictureOfForm(*picture, form.Flag(L"scaledContents", false) ? WexaUtils::FillTarget
                                                                      : WexaUtils::ScaleByFactor);
  }

  // Its mnemonic gives the focus to the buddy, wherever that stands in the tab order.
  bool OnMnemonic(wchar_t letter) override {
    const HWND target = buddy ? buddy.Widget()->GetPlatformHandle() : nullptr;
    if (!IsWindowEnabled(target) || GetFocus() == target) return false;
    if (!IsMnemonic(Text(), letter)) return false;
    window_.GetTopLevelParent()->SendMessage(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(target), TRUE);
    return true;
  }

  using BaseImplMFC::SetText;
  using BaseImplMFC::Text;

  void SetWordWrap(bool wrap) {
    wraps_ = wrap;
    SetHorizontalStyle();
  }

  bool LoadPicture(const PictureRequest& request) {
    if (!picture_.Load(request)) return false;
    window_.paint = [this] { PaintPicture(); };
    if (GetHandle()) window_.Invalidate();
    InvalidateLayout();
    return true;
  }

  void SetAlignment(Alignment alignment) {
    alignment_ = alignment;
    SetHorizontalStyle();
  }

  void ChangeStyle(DWORD remove, DWORD add) {
    Creation().style = (Creation().style & ~remove) | add;
    UpdateIndent();
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
    const RECT& indent = window_.indent;
    const LONG across = indent.left + indent.right;
    SIZE text = GetTextExtent(Font(), Text(), std::max<int>(width - across, 1), format);
    return {text.cx + across, text.cy + indent.top};
  }

  void UpdateIndent() {
    const bool isTop = (Creation().style & SS_CENTERIMAGE) == 0;
    window_.indent = {alignment_ == Alignment::Left ? indent_ : 0, isTop ? indent_ : 0,
                      alignment_ == Alignment::Right ? indent_ : 0, 0};
    if (GetHandle())
      window_.SetWindowPos(
          nullptr, 0, 0, 0, 0,
          SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
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

  void ReadText(const FormReader& form) {
    std::wstring& text = Creation().text;
    if (form.Has(L"textFormat", L"Qt::PlainText") || !IsRichText(text)) return;
    FontData font = form.Node().font;
    text = PlainTextOf(text, font.bold);
    if (font != form.Node().font) SetFont(font);
  }

  // Forms name pictures in a resource file (":/icons/warning.png") or relative to themselves. Hosts
  // keep them in the directory of images, in the folders of the resource file or flat.
  void LoadPictureOfForm(const std::wstring& name, WexaUtils::ScalePicture scale) {
    const std::size_t path = name.find_first_not_of(L":/");
    if (path == name.npos) return;
    for (const std::size_t from : {path, name.find_last_of(L'/') + 1}) {
      const PictureFile file(GetImageDirPath(L"") + name.substr(from));
      if (LoadPicture({file.bytes.get(), file.size, file.type, scale, 0})) return;
    }
  }

  void PaintPicture() {
    CPaintDC dc(GetHandle());
    Painter painter(dc);
    CRect client = window_.GetClientRect();
    painter.FillRect(client, BackgroundColor());
    int across = static_cast<int>(alignment_);
    int down = Creation().style & SS_CENTERIMAGE ? 1 : 0;
    picture_.Paint(painter, client, across, down, window_.IsWindowEnabled());
  }

  LabelWnd window_;
  LabelPicture picture_;
  Alignment alignment_ = Alignment::Left;
  int indent_ = 0;
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
void Label::SetIndent(int units) {
  impl_->SetIndent(units);
}
void Label::SetWordWrap(bool wrap) {
  impl_->SetWordWrap(wrap);
}
bool Label::LoadPicture(const unsigned char* data, int size, WexaUtils::ImageTypes type,
                        WexaUtils::ScalePicture scale, int iconSize) {
  return impl_->LoadPicture({data, size, type, scale, iconSize});
}
bool Label::LoadPicture(const std::wstring& path, WexaUtils::ScalePicture scale, int iconSize) {
  const PictureFile file(path);
  return LoadPicture(file.bytes.get(), file.size, file.type, scale, iconSize);
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
