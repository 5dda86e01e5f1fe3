#pragma once

#include <list>
#include <memory>
#include <vector>

#include "MFC/containers/ArrangingImpl.h"
#include "MFC/containers/SplitHandle.h"
#include "MFC/containers/SplitSizes.h"
#include "MFC/drawn/HolderView.h"
#include "Splitter.h"

namespace Wexa {

// Each view stands in a pane, a window of its own; a handle follows each pane but the last.
class Splitter::impl : public ArrangingImpl {
 public:
  explicit impl(Splitter* owner) : ArrangingImpl(owner) {}

  Size IdealSize() override;
  Size MinimumIdealSize() override;
  void UpdateLayout() override;
  HWND HolderOf(const BaseGUIObject& view) override;
  void OnChildCreated(BaseGUIObject& view) override;
  void ForgetChild(BaseGUIObject& view) override;
  bool OnPreTranslate(const MSG& message) override;
  void ReadForm(const FormReader& form) override;
  void TakeChild(BaseGUIObject& child, const FormReader&) override { AddView(&child); }
  SizePolicy DefaultPolicy() const override {
    return {SizePolicy::Expanding, SizePolicy::Preferred};
  }

  void SetOrientation(bool vertical);
  void AddView(BaseGUIObject* view);
  std::vector<BaseGUIObject*> Views() const;
  void SetHandleWidth(int width);
  int HandleWidth() const { return handleWidth_; }
  void GiveSizes(const std::list<int>& sizes);

  bool isDynamic = true;

 protected:
  bool CreateNative(CWnd* parent) override;

 private:
  struct Pane {
    bool IsShown() const;

    BaseGUIObject* view = nullptr;  // null when it has gone; the pane is left, and hidden
    std::unique_ptr<HolderView> window = std::make_unique<HolderView>();
    std::shared_ptr<SplitHandle> handle = std::make_shared<SplitHandle>();
  };

  int Along(const Size& size) const { return isVertical_ ? size.Height() : size.Width(); }
  int Across(const Size& size) const { return isVertical_ ? size.Width() : size.Height(); }
  CRect PaneRect(int from, int length);
  int HandleSize() const;
  int HandlesSize() const;
  Size Around(Size (WidgetSizes::*sizeOf)() const);
  void CreatePane(std::size_t index);
  void TieHandle(std::size_t index);
  void ReadWishes();
  void Place();
  void PlacePane(std::size_t index, int from);

  void DragTo(std::size_t index, int distance);
  void Drop();
  void CancelDrag();
  void MoveBorder(std::size_t index, int distance);
  void ShowTracker(std::size_t index);

  std::vector<Pane> panes_;
  SplitSizes sizes_;
  SplitSizes sizesAtPress_;
  bool isDragging_ = false;
  std::shared_ptr<InteractiveWnd> tracker_;
  bool isVertical_ = false;
  int handleWidth_ = 6;
};

}  // namespace Wexa
