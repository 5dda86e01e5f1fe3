#include "ProgressBar.h"

#include "MFC/PaintedImpl.h"
#include "MFC/base/WidgetColors.h"
#include "MFC/ranges/ValueRange.h"
#include "form/FormReader.h"
#include "platform/ControlConstants.h"
#include "platform/Painter.h"
#include "platform/Theme.h"

namespace Wexa {

namespace {

constexpr UINT_PTR kMoveTimer = 0xF002;
constexpr UINT kFrameMilliseconds = 40;
constexpr DWORD kRoundMilliseconds = 1600;
constexpr double kMovingPart = 0.25;

void ReplaceAll(std::wstring& text, std::wstring_view mark, const std::wstring& value) {
  for (std::size_t at = text.find(mark); at != std::wstring::npos;
       at = text.find(mark, at + value.size()))
    text.replace(at, mark.size(), value);
}

}  // namespace

class ProgressBar::impl : public PaintedImpl {
 public:
  using PaintedImpl::PaintedImpl;

  ValueRange range;
  std::wstring format = L"%p%";
  bool textVisible = true;

  Size IdealSize() override { return IsVertical() ? Scale(20, 120) : Scale(120, 20); }
  Size MinimumIdealSize() override { return IsVertical() ? Scale(16, 40) : Scale(40, 16); }

  void ReadForm(const FormReader& form) override {
    const FormReader::Range stated = form.RangeOr(0, 100);
    range.SetBounds(stated.minimum, stated.maximum);
    range.SetValue(stated.value);
    textVisible = form.Flag(L"textVisible", true);
    format = form.Text(L"format", format);
    if (form.IsVertical()) Creation().style |= PBS_VERTICAL;
  }
  SizePolicy DefaultPolicy() const override { return {SizePolicy::Expanding, SizePolicy::Fixed}; }

  void SetIndeterminate(bool indeterminate) {
    told_ = indeterminate;
    Refresh();
  }
  bool IsIndeterminate() const { return told_ || (range.Minimum() == 0 && range.Maximum() == 0); }

  std::wstring ShownText() const {
    if (!textVisible || IsIndeterminate()) return L"";
    std::wstring text = format;
    ReplaceAll(text, L"%p", std::to_wstring(static_cast<int>(range.Fraction() * 100)));
    ReplaceAll(text, L"%v", std::to_wstring(range.Value()));
    ReplaceAll(text, L"%m", std::to_wstring(range.Span()));
    return text;
  }

  void Refresh() {
    if (GetHandle()) GetCWnd()->Invalidate();
  }

  void FillPalette(ControlPalette& palette) override {
    FillProgressPalette(palette, GetSkinManager());
    if (GetCWnd()->IsWindowEnabled()) return;
    palette.accent = palette.disabledBorder;
    palette.text = palette.disabledText;
    const bool reads = Contrast(palette.text, palette.accent) >= kFaintlyReadable;
    palette.accentText = reads ? palette.text : palette.face;
  }

  // Each picture of a moving bar asks for the next one: what is not seen does not move.
  void Paint(Painter& painter, const CRect& client, const ControlPalette& palette) override {
    double from = 0;
    double to = range.Fraction();
    if (IsIndeterminate()) {
      double part = static_cast<double>(GetTickCount() % kRoundMilliseconds) / kRoundMilliseconds;
      from = part * (1 + kMovingPart) - kMovingPart;
      to = from + kMovingPart;
      GetCWnd()->SetTimer(kMoveTimer, kFrameMilliseconds);
    }
    painter.FillRect(client, palette.background);
    Theme::DrawProgress(painter, client, from, to, IsVertical(), palette);
    if (!IsVertical()) PaintText(painter, client, to, palette);
  }

  bool OnMessage(UINT message, WPARAM wParam, LPARAM, LRESULT&) override {
    if (message != WM_TIMER || wParam != kMoveTimer) return false;
    GetCWnd()->KillTimer(kMoveTimer);
    if (IsIndeterminate()) GetCWnd()->Invalidate();
    return true;
  }

 private:
  bool IsVertical() const { return (Creation().style & PBS_VERTICAL) != 0; }

  // The text changes colour where the bar has come.
  void PaintText(Painter& painter, const CRect& client, double to, const ControlPalette& palette) {
    std::wstring text = ShownText();
    if (text.empty()) return;
    constexpr UINT kFormat = DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX;
    CRect done = Theme::ProgressPart(client, 0, to, false);
    CRect rest = Theme::ProgressPart(client, to, 1, false);
    painter.PushClip(done);
    painter.Text(text, client, kFormat, Font(), palette.accentText);
    painter.PopClip();
    painter.PushClip(rest);
    painter.Text(text, client, kFormat, Font(), palette.text);
    painter.PopClip();
  }

  bool told_ = false;
};

ProgressBar::ProgressBar()
    : BaseGUIObject(GuiType::ProgressBar), impl_(std::make_shared<impl>(this)) {}
ProgressBar::~ProgressBar() {
  ReleaseImpl();
}

bool ProgressBar::Create(HWND parent) {
  return impl_->Create(parent);
}
std::shared_ptr<BaseImpl> ProgressBar::GetBaseImpl() const {
  return impl_;
}
Size ProgressBar::IdealSize() {
  return impl_->IdealSize();
}
void ProgressBar::SetRange(int minimum, int maximum) {
  impl_->range.SetBounds(minimum, maximum);
  impl_->Refresh();
}
void ProgressBar::SetValue(int value) {
  if (impl_->range.SetValue(value)) impl_->Refresh();
}
int ProgressBar::GetValue() const {
  return impl_->range.Value();
}
int ProgressBar::GetMinimum() const {
  return impl_->range.Minimum();
}
int ProgressBar::GetMaximum() const {
  return impl_->range.Maximum();
}
void ProgressBar::SetIndeterminate(bool indeterminate) {
  impl_->SetIndeterminate(indeterminate);
}
bool ProgressBar::IsIndeterminate() const {
  return impl_->IsIndeterminate();
}
void ProgressBar::SetFormat(const std::wstring& format) {
  impl_->format = format;
  impl_->Refresh();
}
void ProgressBar::SetTextVisible(bool visible) {
  impl_->textVisible = visible;
  impl_->Refresh();
}
std::wstring ProgressBar::GetText() const {
  return impl_->ShownText();
}

}  // namespace Wexa
