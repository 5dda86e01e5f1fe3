#pragma once

// One line of text in a window's area: where its characters are, how far it is scrolled, how it is
// painted. Places are client pixels, positions code points.

#include <cstddef>
#include <memory>
#include <optional>
#include <string>

#include "platform/Font.h"
#include "platform/Geometry.h"
#include "platform/Painter.h"

class EditView {
 public:
  enum class Alignment { Left, Center, Right };

  // What of the text is special when it is painted.
  struct Marks {
    std::size_t selectionStart = 0;
    std::size_t selectionEnd = 0;
    std::size_t caret = 0;
    bool showsSelection = false;
    bool showsCaret = false;
  };
  struct Colors {
    COLORREF text;
    COLORREF selection;
    COLORREF selectedText;
    COLORREF caret;
  };

  void SetText(std::wstring text);
  void SetFont(HFONT font);
  void SetArea(const CRect& area);
  void SetAlignment(Alignment alignment) { alignment_ = alignment; }
  // In a mirrored window the line begins at the right, and x grows to the left.
  void SetMirrored(bool mirrored);

  const CRect& Area() const { return area_; }
  // Where a line stands vertically: centred in the area.
  CRect LineRect() const;

  int XOfIndex(std::size_t index) const;
  std::size_t IndexAtX(int x) const;
  CRect CaretRect(std::size_t index) const;
  // Scrolls as little as possible, and never further than the text needs.
  void ScrollTo(std::size_t index);

  // Over the line; positions are in the text, not on the screen.
  const TextLine& Line() const;
  // Grows from left to right on the screen.
  int ScreenOrder(std::size_t index) const { return Line().XOfIndex(index); }
  // The caret place after a step to the right (+1) or left (-1) as the user sees it.
  std::size_t Step(std::size_t index, int direction) const;

  void Paint(Painter& painter, const Colors& colors, const Marks& marks) const;

 private:
  int ContentWidth() const;
  bool FitsSurely();
  int Origin() const;  // left edge of the line
  int MirrorInLine(int x) const;
  void PaintSelection(Painter& painter, const Colors& colors, const Marks& marks) const;

  std::wstring text_;
  std::optional<int> textWidth_;  // measured when first asked for
  HFONT font_ = nullptr;
  CRect area_;
  Alignment alignment_ = Alignment::Left;
  bool mirrored_ = false;
  int scroll_ = 0;
  mutable std::unique_ptr<TextLine> line_;  // shaped when first asked for
};
