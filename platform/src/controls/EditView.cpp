#include "controls/EditView.h"

#include <algorithm>
#include <utility>

namespace {

int CaretWidth() {
  return ScaleUnits(1);
}

}  // namespace

void EditView::SetText(std::wstring text) {
  if (text == text_) return;
  text_ = std::move(text);
  textWidth_.reset();
  line_.reset();
}

void EditView::SetFont(HFONT font) {
  font_ = font;
  textWidth_.reset();
  line_.reset();
}

void EditView::SetArea(const CRect& area) {
  area_ = area;
}

void EditView::SetMirrored(bool mirrored) {
  if (mirrored_ == mirrored) return;
  mirrored_ = mirrored;
  line_.reset();
}

const TextLine& EditView::Line() const {
  if (!line_) line_ = std::make_unique<TextLine>(font_, text_, mirrored_);
  return *line_;
}

CRect EditView::LineRect() const {
  const int height = GetFontMetrics(font_).height;
  const int top = area_.top + (area_.Height() - height) / 2;
  return {area_.left, top, area_.right, top + height};
}

int EditView::ContentWidth() const {
  return Line().Width() + CaretWidth();
}

int EditView::Origin() const {
  const int room = area_.Width() - ContentWidth();
  if (room <= 0) return area_.left - std::min(scroll_, -room);
  switch (alignment_) {
    case Alignment::Center: return area_.left + room / 2;
    case Alignment::Right: return area_.left + room;
    case Alignment::Left: break;
  }
  return area_.left;
}

int EditView::MirrorInLine(int x) const {
  return mirrored_ ? Line().Width() - x : x;
}

int EditView::XOfIndex(std::size_t index) const {
  return Origin() + MirrorInLine(Line().XOfIndex(std::min(index, text_.size())));
}

std::size_t EditView::IndexAtX(int x) const {
  return Line().IndexOfX(MirrorInLine(x - Origin()));
}

CRect EditView::CaretRect(std::size_t index) const {
  const CRect line = LineRect();
  const int x = XOfIndex(index);
  return {x, line.top, x + CaretWidth(), line.bottom};
}

// Texts that surely fit need no shaping, which costs more than the rest of a resize.
bool EditView::FitsSurely() {
  constexpr int kRounding = 2;
  if (!textWidth_) textWidth_ = GetTextExtent(font_, text_).cx;
  return *textWidth_ + CaretWidth() + kRounding <= area_.Width();
}

void EditView::ScrollTo(std::size_t index) {
  const int room = FitsSurely() ? 0 : area_.Width() - ContentWidth();
  if (room >= 0) {
    scroll_ = 0;
    return;
  }
  const int caret = MirrorInLine(Line().XOfIndex(std::min(index, text_.size())));
  scroll_ = std::clamp(scroll_, caret + CaretWidth() - area_.Width(), caret);
  scroll_ = std::clamp(scroll_, 0, -room);
}

std::size_t EditView::Step(std::size_t index, int direction) const {
  return Line().MoveVisually(index, direction);
}

void EditView::Paint(Painter& painter, const Colors& colors, const Marks& marks) const {
  const CRect line = LineRect();
  painter.PushClip(area_);
  painter.Text(Line(), Origin(), line.top, colors.text);
  if (marks.showsSelection) PaintSelection(painter, colors, marks);
  if (marks.showsCaret) painter.FillRect(CaretRect(marks.caret), colors.caret);
  painter.PopClip();
}

// The selected parts once more, in their own colours.
void EditView::PaintSelection(Painter& painter, const Colors& colors, const Marks& marks) const {
  const CRect line = LineRect();
  for (const auto& [from, to] : Line().Ranges(marks.selectionStart, marks.selectionEnd)) {
    const auto [left, right] = std::minmax({MirrorInLine(from), MirrorInLine(to)});
    const CRect part(Origin() + left, line.top, Origin() + right, line.bottom);
    painter.PushClip(part);
    painter.FillRect(part, colors.selection);
    painter.Text(Line(), Origin(), line.top, colors.selectedText);
    painter.PopClip();
  }
}
