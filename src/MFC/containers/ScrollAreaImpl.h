#pragma once

#include <memory>

#include "MFC/ContainerImpl.h"
#include "MFC/containers/ScrollView.h"
#include "MFC/drawn/HolderView.h"
#include "MFC/ranges/ScrollBarWnd.h"
#include "ScrollArea.h"

namespace Wexa {

// The content stands in a view that cuts it off, and is moved there when it is scrolled.
class ScrollArea::impl : public ContainerImpl {
 public:
  explicit impl(ScrollArea* owner);

  Size IdealSize() override;
  Size MinimumIdealSize() override;
  void UpdateLayout() override;
  void Paint(Painter& painter, const CRect& client, const ControlPalette& palette) override;
  bool OnMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) override;
  bool OnPreTranslate(const MSG& message) override;
  void OnFocusWithin(HWND window) override;
  HWND HolderOf(const BaseGUIObject& child) override;
  void SetContent(BaseGUIObject* content);
  void SetBarPolicies(BarPolicies policies) { policies_ = policies; }
  void SetFramed(bool framed) { isFramed_ = framed; }

 protected:
  bool CreateNative(CWnd* parent) override;

 private:
  int Border() const;
  Size ContentSize(int width);
  ScrollView ViewOf(Size view);
  CRect InnerRect();
  void PlaceBars(const CRect& inner, const ScrollView& view);
  void SetRanges(const ScrollView& view);
  void PlaceContent();
  bool ScrollByWheel(int delta, bool horizontal);
  bool TakesKey(const MSG& message) const;

  BaseGUIObject* content_ = nullptr;
  HolderView view_;
  std::shared_ptr<ScrollBarWnd> vertical_ = std::make_shared<ScrollBarWnd>();
  std::shared_ptr<ScrollBarWnd> horizontal_ = std::make_shared<ScrollBarWnd>();
  Size contentSize_;
  BarPolicies policies_;
  bool isFramed_ = true;
  bool isArranging_ = false;
};

}  // namespace Wexa
