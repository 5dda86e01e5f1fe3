#pragma once

#include <cstddef>
#include <list>
#include <string>
#include <string_view>
#include <vector>

#include "graphics/RealizedFont.h"
#include "platform/Types.h"

// A text broken into lines as the DT_ format asks, mnemonic marks taken out. Keeps a view of the
// text it was made from.
class TextBlock {
 public:
  struct Line {
    std::wstring_view text;
    int width;
    int mnemonic = -1;  // index of the marked character, -1 without
  };

  TextBlock(RealizedFont& font, std::wstring_view text, int width, UINT format);
  TextBlock(const TextBlock&) = delete;
  TextBlock& operator=(const TextBlock&) = delete;

  const std::vector<Line>& Lines() const { return lines_; }
  BaseDirection Direction() const { return direction_; }
  SIZE Size() const;

 private:
  static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

  void TakeOutMarks(std::wstring_view text);
  void AddParagraphs(std::wstring_view text);
  void AddParagraph(std::wstring_view paragraph);
  void Wrap(std::wstring_view paragraph);
  void AddLine(std::wstring_view text);
  std::wstring_view Shortened(std::wstring_view text);
  int WidthOf(std::wstring_view text) { return font_.Width(text, direction_); }

  RealizedFont& font_;
  int width_;
  UINT format_;
  BaseDirection direction_;
  std::wstring withoutMarks_;
  std::size_t mnemonic_ = kNone;       // index into withoutMarks_
  std::list<std::wstring> shortened_;  // lines that end in an ellipsis
  std::vector<Line> lines_;
};
