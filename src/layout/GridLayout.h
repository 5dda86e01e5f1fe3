#pragma once

#include <cstddef>
#include <memory>
#include <vector>

#include "layout/GridLines.h"
#include "layout/ItemSizes.h"
#include "layout/Layout.h"

namespace Wexa {

// Places its items in the cells of a table; an item may span several rows and columns. The table
// grows as items are added, up to kMaxLines rows and columns: what lies beyond goes to the last.
class GridLayout : public Layout {
 public:
  static constexpr int kMaxLines = 2048;

  // The parent is a widget, a layout or null.
  explicit GridLayout(WexaObject* parent = nullptr);
  ~GridLayout() override;

  void MarkDirty() override;
  // Puts the item into the next cell, row by row.
  void AddItem(LayoutItem* item) override;
  // A negative span reaches to the end of the grid, however far it grows.
  void AddItem(LayoutItem* item, int row, int column, int rowSpan = 1, int columnSpan = 1);
  LayoutItem* ItemAt(int index) override;
  LayoutItem* TakeAt(int index) override;
  int Count() override { return static_cast<int>(boxes_.size()); }
  LayoutItem* ReplaceAt(int index, LayoutItem* item) override;

  int RowCount() const { return rows_.Count(); }
  int ColumnCount() const { return columns_.Count(); }
  // These make the row or column, if need be. A line out of range is ignored.
  void SetRowStretch(int row, int stretch);
  void SetColumnStretch(int column, int stretch);
  void SetRowMinimumHeight(int row, int height);
  void SetColumnMinimumWidth(int column, int width);
  // Negative for the default. SetSpacing is for the layouts nested in the grid.
  void SetHorizontalSpacing(int spacing);
  void SetVerticalSpacing(int spacing);

  Size SizeHint() override;
  Size MinimumSize() override;
  Size MaximumSize() override;
  Orientation ExpandingDirections() override;
  void SetGeometry(const Rect& rect) override;
  void Invalidate(bool update) override;
  void Rescale(const Rescaling& rescale) override;
  bool HasHeightForWidth() override;
  int HeightForWidth(int width) override;
  int MinimumHeightForWidth(int width) override;

 private:
  static constexpr int kToTheEnd = -1;
  struct Box {
    std::unique_ptr<LayoutItem> item;
    int row = 0;
    int column = 0;
    int lastRow = 0;
    int lastColumn = 0;
  };

  bool HasItem(int index) const { return index >= 0 && index < static_cast<int>(boxes_.size()); }
  Box& BoxAt(int index) { return boxes_[static_cast<std::size_t>(index)]; }
  GridSpan RowsOf(const Box& box) const;
  GridSpan ColumnsOf(const Box& box) const;
  GridSpan SpanOf(const Box& box, Orientation axis) const;
  void MovePast(int row, int column);
  bool MakeLine(GridLines& lines, int line);

  void SetUp();
  void ReadItems();
  void MapCells();
  int BoxInCell(int row, int column) const;
  void SetUpLines(GridLines& lines, Orientation axis, int spacing);
  void SetUpGaps(GridLines& lines, Orientation axis, int spacing);
  void FitSpans(GridLines& lines, Orientation axis);
  Size Total(int GridLines::Sums::*value) const;

  void Place(const Rect& inner, bool fromLast);
  int RowsForWidth(int width, int GridLines::Sums::*value);
  void SetUpRowsForWidth(int width);
  void AddRowsForWidth(std::size_t index, const std::vector<ChainSlot>& columns);

  GridLines rows_{Orientation::Vertical};
  GridLines columns_{Orientation::Horizontal};
  GridLines rowsForWidth_{Orientation::Vertical};
  std::vector<Box> boxes_;
  std::vector<ItemSizes> sizes_;  // of the boxes' items, as set-up read them
  std::vector<int> cells_;        // the box that covers each cell, row by row
  std::vector<ChainSlot> columnScratch_;
  std::vector<ChainSlot> rowScratch_;
  int nextRow_ = 0;
  int nextColumn_ = 0;
  int horizontalSpacing_ = -1;
  int verticalSpacing_ = -1;
  Margins effectiveMargins_;
  bool needsSetUp_ = true;
  bool hasHeightForWidth_ = false;
  int rowsWidth_ = -1;  // the width for which rowsForWidth_ was computed
};

}  // namespace Wexa
