#include "MFC/FieldImpl.h"

#include <algorithm>

#include "MFC/base/DialogFont.h"
#include "MFC/base/WidgetColors.h"
#include "form/FormReader.h"
#include "form/RichText.h"
#include "platform/Painter.h"
#include "platform/Theme.h"

namespace Wexa {

namespace {

constexpr int kAreaWidth = 256;
constexpr int kAreaHeight = 192;
constexpr int kMinimumAreaSide = 72;
constexpr int kMinimumLineWidth = 40;

}  // namespace

FieldImpl::FieldImpl(BaseGUIObject* owner) : PaintedImpl(owner) {}

void FieldImpl::FillPalette(ControlPalette& palette) {
  FillInputPalette(palette, GetSkinManager());
  palette.radius = Scale(CornerRadius());
}

COLORREF FieldImpl::TextColor(const ControlPalette& palette) {
  return Shown().State().enabled ? palette.text : palette.disabledText;
}

Size FieldImpl::LineSize(int textWidth) const {
  SIZE padding = Theme::FieldPadding();
  const int line = GetFontMetrics(Font()).height + 2 * padding.cy;
  return {textWidth + 2 * padding.cx, std::max<int>(line, FieldHeight())};
}

void FieldImpl::Paint(Painter& painter, const CRect& client, const ControlPalette& palette) {
  painter.FillRect(client, palette.background);
  Theme::DrawField(painter, client, Shown().State(), palette);
  SIZE padding = Theme::FieldPadding();
  CRect inner = client.Shrunk(padding.cx, padding.cy);
  if (inner.IsEmpty()) return;
  painter.PushClip(inner);
  PaintContent(painter, inner, palette);
  painter.PopClip();
}

// -- One line

Size LineFieldImpl::IdealSize() {
  return LineSize(ContentWidth() + Theme::ArrowButtonWidth());
}

Size LineFieldImpl::MinimumIdealSize() {
  int content = std::min(ContentWidth(), Scale(kMinimumLineWidth));
  return LineSize(content + Theme::ArrowButtonWidth());
}

void LineFieldImpl::PaintContent(Painter& painter, const CRect& inner,
                                 const ControlPalette& palette) {
  SIZE padding = Theme::FieldPadding();
  CRect text = inner;
  CRect end = inner.Shrunk(-padding.cx, -padding.cy);
  end.left = end.right - Theme::ArrowButtonWidth();
  text.right = end.left;
  painter.Text(ShownText(), text, DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX, Font(),
               TextColor(palette));
  painter.PopClip();
  painter.PushClip(end);
  PaintEnd(painter, end, palette);
}

// -- Lines

Size TextAreaImpl::IdealSize() {
  return Scale(kAreaWidth, kAreaHeight);
}
Size TextAreaImpl::MinimumIdealSize() {
  return Scale(kMinimumAreaSide, kMinimumAreaSide);
}

void TextAreaImpl::ReadText(const FormReader& form) {
  std::int32_t bold = 0;
  if (const std::wstring* text = form.Find(L"html"))
    lines = {PlainTextOf(*text, bold)};
  else
    lines = {form.Text(L"plainText", form.Text(PropertyId::Text))};
}

void TextAreaImpl::PaintContent(Painter& painter, const CRect& inner,
                                const ControlPalette& palette) {
  UINT format = DT_LEFT | DT_NOPREFIX | (wraps ? DT_WORDBREAK : DT_SINGLELINE);
  CRect line = inner;
  for (const std::wstring& text : lines) {
    if (line.top >= inner.bottom) return;
    SIZE extent = GetTextExtent(Font(), text, inner.Width(), format);
    line.bottom = line.top + extent.cy;
    painter.Text(text, line, format, Font(), TextColor(palette));
    line.top = line.bottom;
  }
}

}  // namespace Wexa
