#include "layout/GridLayout.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "layout/Rescaling.h"

namespace Wexa {

namespace {

int LineInRange(int line) {
  return std::clamp(line, 0, GridLayout::kMaxLines - 1);
}

// The last line of a span of positive length.
int LastLine(int first, int span) {
  const std::int64_t last = std::int64_t{first} + std::max(span, 1) - 1;
  return static_cast<int>(std::min<std::int64_t>(last, GridLayout::kMaxLines - 1));
}

}  // namespace

GridLayout::GridLayout(WexaObject* parent) : Layout(parent) {
  rows_.GrowTo(1);
  columns_.GrowTo(1);
}

GridLayout::~GridLayout() {
  for (Box& box : boxes_) LetGo(*box.item);
}

// -- Items ----------------------------------------------------------------------------------------

void GridLayout::AddItem(LayoutItem* item) {
  AddItem(item, nextRow_, nextColumn_);
}

void GridLayout::AddItem(LayoutItem* item, int row, int column, int rowSpan, int columnSpan) {
  if (!item) return;
  Box box{std::unique_ptr<LayoutItem>(item), LineInRange(row), LineInRange(column)};
  box.lastRow = rowSpan < 0 ? kToTheEnd : LastLine(box.row, rowSpan);
  box.lastColumn = columnSpan < 0 ? kToTheEnd : LastLine(box.column, columnSpan);
  rows_.GrowTo(std::max(box.row, box.lastRow) + 1);
  columns_.GrowTo(std::max(box.column, box.lastColumn) + 1);
  MovePast(RowsOf(box).last, ColumnsOf(box).last);
  boxes_.push_back(std::move(box));
  Adopt(*item);
  Invalidate(true);
}

void GridLayout::MovePast(int row, int column) {
  if (row < nextRow_ || (row == nextRow_ && column < nextColumn_)) return;
  nextRow_ = row;
  nextColumn_ = column + 1;
  if (nextColumn_ < ColumnCount()) return;
  nextColumn_ = 0;
  nextRow_ = row + 1;
}

LayoutItem* GridLayout::ItemAt(int index) {
  return HasItem(index) ? BoxAt(index).item.get() : nullptr;
}

LayoutItem* GridLayout::TakeAt(int index) {
  if (!HasItem(index)) return nullptr;
  LayoutItem* item = BoxAt(index).item.release();
  boxes_.erase(boxes_.begin() + index);
  LetGo(*item);
  Invalidate(true);
  return item;
}

LayoutItem* GridLayout::ReplaceAt(int index, LayoutItem* item) {
  if (!HasItem(index) || !item) return nullptr;
  LayoutItem* old = BoxAt(index).item.release();
  BoxAt(index).item.reset(item);
  LetGo(*old);
  Adopt(*item);
  Invalidate(true);
  return old;
}

GridSpan GridLayout::RowsOf(const Box& box) const {
  return {box.row, box.lastRow == kToTheEnd ? RowCount() - 1 : box.lastRow};
}

GridSpan GridLayout::ColumnsOf(const Box& box) const {
  return {box.column, box.lastColumn == kToTheEnd ? ColumnCount() - 1 : box.lastColumn};
}

GridSpan GridLayout::SpanOf(const Box& box, Orientation axis) const {
  return axis == Orientation::Horizontal ? ColumnsOf(box) : RowsOf(box);
}

// -- Lines ----------------------------------------------------------------------------------------

bool GridLayout::MakeLine(GridLines& lines, int line) {
  if (line < 0 || line >= kMaxLines) return false;
  lines.GrowTo(line + 1);
  return true;
}

void GridLayout::SetRowStretch(int row, int stretch) {
  if (!MakeLine(rows_, row)) return;
  rows_.SetStretch(row, stretch);
  Invalidate(true);
}

void GridLayout::SetColumnStretch(int column, int stretch) {
  if (!MakeLine(columns_, column)) return;
  columns_.SetStretch(column, stretch);
  Invalidate(true);
}

void GridLayout::SetRowMinimumHeight(int row, int height) {
  if (!MakeLine(rows_, row)) return;
  rows_.SetMinimum(row, height);
  Invalidate(true);
}

void GridLayout::SetColumnMinimumWidth(int column, int width) {
  if (!MakeLine(columns_, column)) return;
  columns_.SetMinimum(column, width);
  Invalidate(true);
}

void GridLayout::SetHorizontalSpacing(int spacing) {
  horizontalSpacing_ = spacing;
  Invalidate(true);
}

void GridLayout::SetVerticalSpacing(int spacing) {
  verticalSpacing_ = spacing;
  Invalidate(true);
}

void GridLayout::MarkDirty() {
  needsSetUp_ = true;
  rowsWidth_ = -1;
}

void GridLayout::Rescale(const Rescaling& rescale) {
  Layout::Rescale(rescale);
  horizontalSpacing_ = rescale.Length(horizontalSpacing_);
  verticalSpacing_ = rescale.Length(verticalSpacing_);
  rows_.Rescale(rescale);
  columns_.Rescale(rescale);
}

void GridLayout::Invalidate(bool update) {
  MarkDirty();
  Layout::Invalidate(update);
}

}  // namespace Wexa
