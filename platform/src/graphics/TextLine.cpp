#include <algorithm>
#include <climits>

#include "graphics/FontCache.h"
#include "graphics/TextLineImpl.h"
#include "graphics/Utf8.h"

namespace {

std::size_t IndexOfByte(const std::vector<int>& offsets, int byte) {
  auto found = std::lower_bound(offsets.begin(), offsets.end(), byte);
  return std::min(static_cast<std::size_t>(found - offsets.begin()), offsets.size() - 1);
}

int ByteOf(const std::vector<int>& offsets, std::size_t index) {
  return offsets[std::min(index, offsets.size() - 1)];
}

PangoLayoutLine* LineOf(PangoLayout* layout) {
  return pango_layout_get_line_readonly(layout, 0);
}

// The nearest character after or before index for which `accepts` holds, or the text's end.
template <typename Accepts>
std::size_t Next(PangoLayout* layout, std::size_t index, Accepts accepts) {
  int count = 0;
  const PangoLogAttr* attributes = pango_layout_get_log_attrs_readonly(layout, &count);
  std::size_t end = static_cast<std::size_t>(std::max(count, 1)) - 1;
  for (std::size_t i = std::min(index, end) + 1; i < end; ++i) {
    if (accepts(attributes[i])) return i;
  }
  return end;
}

template <typename Accepts>
std::size_t Previous(PangoLayout* layout, std::size_t index, Accepts accepts) {
  int count = 0;
  const PangoLogAttr* attributes = pango_layout_get_log_attrs_readonly(layout, &count);
  std::size_t end = static_cast<std::size_t>(std::max(count, 1)) - 1;
  for (std::size_t i = std::min(index, end + 1); i-- > 1;) {
    if (accepts(attributes[i])) return i;
  }
  return 0;
}

bool StartsCluster(const PangoLogAttr& attribute) {
  return attribute.is_cursor_position;
}
bool StartsWord(const PangoLogAttr& attribute) {
  return attribute.is_word_start;
}

}  // namespace

TextLine::TextLine(HFONT font, std::wstring_view text, bool rightToLeft)
    : impl_(std::make_unique<Impl>()) {
  RealizedFont& realized = FontOf(font);
  auto direction = rightToLeft ? BaseDirection::RightToLeft : BaseDirection::FirstStrong;
  impl_->layout = TextEngine::Get().MakeLayout(text, realized.Description(), direction);
  impl_->offsets = Utf8Offsets(text);
  impl_->ascent = realized.Metrics().ascent;
  impl_->height = realized.Metrics().height;
  PangoRectangle logical;
  pango_layout_get_extents(impl_->layout.get(), nullptr, &logical);
  impl_->width = PANGO_PIXELS_CEIL(logical.width);
}

TextLine::~TextLine() = default;
TextLine::TextLine(TextLine&&) noexcept = default;
TextLine& TextLine::operator=(TextLine&&) noexcept = default;

int TextLine::Width() const {
  return impl_->width;
}

bool TextLine::IsRightToLeft() const {
  return pango_layout_get_direction(impl_->layout.get(), 0) == PANGO_DIRECTION_RTL;
}

int TextLine::XOfIndex(std::size_t index) const {
  PangoRectangle caret;
  int byte = ByteOf(impl_->offsets, index);
  pango_layout_get_cursor_pos(impl_->layout.get(), byte, &caret, nullptr);
  return PANGO_PIXELS(caret.x);
}

std::size_t TextLine::IndexOfX(int x) const {
  int byte = 0;
  int trailing = 0;
  int units = std::clamp(x, 0, impl_->width) * PANGO_SCALE;
  pango_layout_line_x_to_index(LineOf(impl_->layout.get()), units, &byte, &trailing);
  std::size_t index = IndexOfByte(impl_->offsets, byte) + static_cast<std::size_t>(trailing);
  return std::min(index, impl_->offsets.size() - 1);
}

std::size_t TextLine::MoveVisually(std::size_t index, int direction) const {
  int byte = ByteOf(impl_->offsets, index);
  int moved = byte;
  int trailing = 0;
  pango_layout_move_cursor_visually(impl_->layout.get(), 1, byte, 0, direction, &moved, &trailing);
  if (moved < 0 || moved == INT_MAX) return IndexOfByte(impl_->offsets, byte);
  std::size_t result = IndexOfByte(impl_->offsets, moved) + static_cast<std::size_t>(trailing);
  return std::min(result, impl_->offsets.size() - 1);
}

std::size_t TextLine::NextCluster(std::size_t index) const {
  return Next(impl_->layout.get(), index, StartsCluster);
}

std::size_t TextLine::PreviousCluster(std::size_t index) const {
  return Previous(impl_->layout.get(), index, StartsCluster);
}

std::size_t TextLine::NextWord(std::size_t index) const {
  return Next(impl_->layout.get(), index, StartsWord);
}

std::size_t TextLine::PreviousWord(std::size_t index) const {
  return Previous(impl_->layout.get(), index, StartsWord);
}

std::vector<std::pair<int, int>> TextLine::Ranges(std::size_t from, std::size_t to) const {
  std::vector<std::pair<int, int>> result;
  int* edges = nullptr;
  int count = 0;
  int start = ByteOf(impl_->offsets, from);
  int end = ByteOf(impl_->offsets, to);
  if (start >= end) return result;
  pango_layout_line_get_x_ranges(LineOf(impl_->layout.get()), start, end, &edges, &count);
  for (int i = 0; i < count; ++i) {
    result.emplace_back(PANGO_PIXELS(edges[2 * i]), PANGO_PIXELS(edges[2 * i + 1]));
  }
  g_free(edges);
  return result;
}
