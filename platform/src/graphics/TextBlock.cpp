#include "graphics/TextBlock.h"

#include <algorithm>

#include "graphics/LineBreaks.h"
#include "platform/Painter.h"

namespace {

constexpr wchar_t kEllipsis = L'\u2026';

std::wstring_view WithoutTrailingSpaces(std::wstring_view text) {
  return text.substr(0, text.find_last_not_of(L' ') + 1);
}

// Takes the first line off the text, and the line end behind it.
std::wstring_view TakeParagraph(std::wstring_view& text) {
  std::size_t end = std::min(text.find_first_of(L"\r\n"), text.size());
  std::wstring_view paragraph = text.substr(0, end);
  text.remove_prefix(end);
  text.remove_prefix(text.starts_with(L"\r\n") ? 2 : 1);
  return paragraph;
}

// A cut before index would tear a base character from its marks.
bool IsInsideCluster(std::wstring_view text, std::size_t index) {
  return index < text.size() && g_unichar_ismark(static_cast<gunichar>(text[index]));
}

}  // namespace

TextBlock::TextBlock(RealizedFont& font, std::wstring_view text, int width, UINT format)
    : font_(font),
      width_(width),
      format_(format),
      direction_(format & DT_RTLREADING ? BaseDirection::RightToLeft : BaseDirection::FirstStrong) {
  constexpr std::size_t kMostSeen = 1 << 20;  // more characters than any surface has room for
  text = text.substr(0, kMostSeen);
  bool marked = !(format & DT_NOPREFIX) && text.find(L'&') != text.npos;
  if (marked) TakeOutMarks(text);
  AddParagraphs(marked ? std::wstring_view(withoutMarks_) : text);
}

SIZE TextBlock::Size() const {
  SIZE size{0, font_.Metrics().height * static_cast<LONG>(lines_.size())};
  for (const Line& line : lines_) size.cx = std::max(size.cx, line.width);
  return size;
}

void TextBlock::TakeOutMarks(std::wstring_view text) {
  withoutMarks_.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    bool mark = text[i] == L'&';
    if (mark && ++i == text.size()) return;
    if (mark && text[i] != L'&' && mnemonic_ == kNone) mnemonic_ = withoutMarks_.size();
    withoutMarks_.push_back(text[i]);
  }
}

void TextBlock::AddParagraphs(std::wstring_view text) {
  if (format_ & DT_SINGLELINE) return AddLine(text);
  while (text.find_first_of(L"\r\n") != text.npos) AddParagraph(TakeParagraph(text));
  AddParagraph(text);
}

void TextBlock::AddParagraph(std::wstring_view paragraph) {
  if ((format_ & DT_WORDBREAK) && WidthOf(paragraph) > width_) return Wrap(paragraph);
  AddLine(paragraph);
}

// Fills each line with the words that fit; a word too wide for a line has one of its own.
void TextBlock::Wrap(std::wstring_view paragraph) {
  std::size_t lineStart = 0;
  std::size_t wordStart = 0;
  int x = 0;
  for (std::size_t wordEnd : LineBreaks(paragraph)) {
    std::wstring_view word = paragraph.substr(wordStart, wordEnd - wordStart);
    if (wordStart > lineStart && x + WidthOf(WithoutTrailingSpaces(word)) > width_) {
      AddLine(WithoutTrailingSpaces(paragraph.substr(lineStart, wordStart - lineStart)));
      lineStart = wordStart;
      x = 0;
    }
    x += WidthOf(word);
    wordStart = wordEnd;
  }
  AddLine(WithoutTrailingSpaces(paragraph.substr(lineStart)));
}

void TextBlock::AddLine(std::wstring_view text) {
  text = text.substr(0, RealizedFont::kMostSeen);
  Line line{text, WidthOf(text)};
  if (mnemonic_ != kNone && withoutMarks_.data() + mnemonic_ >= text.data()) {
    auto place = static_cast<std::size_t>(withoutMarks_.data() + mnemonic_ - text.data());
    if (place < text.size()) line.mnemonic = static_cast<int>(place);
  }
  if ((format_ & DT_END_ELLIPSIS) && line.width > width_) {
    line.text = Shortened(text);
    line.width = WidthOf(line.text);
    if (line.mnemonic + 1 >= static_cast<int>(line.text.size())) line.mnemonic = -1;
  }
  lines_.push_back(line);
}

// As much of the text as fits in front of an ellipsis. The first guesses are short: far more text
// than fits would take long to measure.
std::wstring_view TextBlock::Shortened(std::wstring_view text) {
  constexpr std::size_t kGuess = 64;
  auto cut = [&](std::size_t length) { return std::wstring(text.substr(0, length)) + kEllipsis; };
  auto isTooLong = [&](std::size_t length) { return WidthOf(cut(length)) > width_; };
  std::size_t fits = 0;
  std::size_t tooLong = std::min(kGuess, text.size());
  while (tooLong < text.size() && !isTooLong(tooLong)) {
    fits = tooLong;
    tooLong = std::min(2 * tooLong, text.size());
  }
  while (tooLong - fits > 1) {
    std::size_t middle = fits + (tooLong - fits) / 2;
    (isTooLong(middle) ? tooLong : fits) = middle;
  }
  while (fits > 0 && IsInsideCluster(text, fits)) --fits;
  return shortened_.emplace_back(cut(fits));
}
