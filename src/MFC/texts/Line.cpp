#include "Line.h"

#include "MFC/BaseImplMFC.h"
#include "MFC/base/WidgetColors.h"
#include "form/FormReader.h"
#include "platform/ControlConstants.h"

namespace Wexa {

namespace {

constexpr int kThickness = 3;
constexpr double kVisible = 1.2;  // contrast to the dialog

}  // namespace

class Line::impl : public BaseImplMFC {
 public:
  explicit impl(Line* owner) : BaseImplMFC(owner) {}

  CWnd* GetCWnd() override { return &window_; }
  Size IdealSize() override { return Scale(kThickness, kThickness); }
  Size MinimumIdealSize() override { return IdealSize(); }

  void FillPalette(ControlPalette& palette) override {
    BaseImplMFC::FillPalette(palette);
    palette.border = ReadableTint(GetSkinManager(), Slot::kSeparator, palette.border,
                                  palette.background, kVisible);
  }

  void ReadForm(const FormReader& form) override {
    if (form.IsVertical())
      Creation().style |= SS_ETCHEDVERT;
    else if (form.Has(PropertyId::Orientation, L"Qt::Horizontal"))
      Creation().style |= SS_ETCHEDHORZ;
  }
  SizePolicy DefaultPolicy() const override { return {SizePolicy::Minimum, SizePolicy::Fixed}; }

 protected:
  bool CreateNative(CWnd* parent) override {
    DWORD style = Creation().style;
    if ((style & SS_TYPEMASK) == 0) style |= SS_ETCHEDHORZ;
    return window_.Create(L"", style, ScaledRect(), parent, Creation().controlId);
  }

 private:
  CStatic window_;
};

Line::Line() : BaseGUIObject(GuiType::Line), impl_(std::make_shared<impl>(this)) {}
Line::~Line() {
  ReleaseImpl();
}

bool Line::Create(HWND parent) {
  return impl_->Create(parent);
}
std::shared_ptr<BaseImpl> Line::GetBaseImpl() const {
  return impl_;
}
Size Line::IdealSize() {
  return impl_->IdealSize();
}
void Line::SetLineColor(SkinManagerColor color) {
  impl_->GetSkinManager().Slot(Slot::kSeparator) = color;
  impl_->RefreshSkinColors();
}

}  // namespace Wexa
