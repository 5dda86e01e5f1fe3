#pragma once

#include <vector>

namespace Wexa {

// Tabs in a row that may be too narrow for them: two arrows at its end then scroll it by whole
// tabs. Pixels from the row's start.
class TabRow {
 public:
  struct Span {
    int from = 0;
    int to = 0;
    bool IsEmpty() const { return to <= from; }
    bool Contains(int place) const { return place >= from && place < to; }
  };

  void SetTabs(std::vector<int> widths);
  // The row's length and that of its two arrows together, when they are needed.
  void SetRoom(int length, int arrows);

  bool Scrolls() const;
  int First() const { return first_; }
  // Empty for a tab that is scrolled out, or past the end.
  Span TabSpan(int index) const;
  // -1 for none.
  int TabAt(int place) const;
  // The two arrows; empty while all tabs fit.
  Span BackArrow() const;
  Span ForwardArrow() const;
  bool CanScrollBack() const { return Scrolls() && first_ > 0; }
  bool CanScrollForward() const { return Scrolls() && first_ < LastFirst(); }
  void Scroll(int tabs);
  // Scrolls as little as is needed for the whole tab to show; not while the row has no room.
  void BringIntoView(int index);
  int TotalWidth() const;

 private:
  int Count() const { return static_cast<int>(widths_.size()); }
  int WidthOf(int from, int to) const;  // of the tabs [from, to)
  int Visible() const { return Scrolls() ? length_ - arrows_ : length_; }
  // The first tab when the row is scrolled to its end.
  int LastFirst() const;

  std::vector<int> widths_;
  int length_ = 0;
  int arrows_ = 0;
  int first_ = 0;
};

}  // namespace Wexa
