#pragma once

#include <memory>

#include "MFC/containers/ArrangingImpl.h"
#include "MFC/containers/ScrollView.h"
#include "MFC/drawn/HolderView.h"
#include "MFC/ranges/ScrollBarWnd.h"
#include "ScrollArea.h"

namespace Wexa {

// How large the content is made.
enum class ContentFit {
  Fill,       // as large as it likes to be, and at least the view
  Preferred,  // as large as it likes to be
  Resize,     // the view, and at least its own minimum
};

// The content stands in a view that cuts it off, and is moved there when it is scrolled.
class ScrollArea::impl : public ArrangingImpl {
 public:
  explicit impl(ScrollArea* owner);

  Size IdealSize() override;
  Size MinimumIdealSize() override;
  void UpdateLayout() override;
  void Paint(Painter& painter, const CRect& client, const ControlPalette& palette) override;
  bool OnMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) override;
  bool OnPreTranslate(const MSG& message) override;
  void OnFocusWithin(HWND window) override;
  bool TurnsUnderPointer() const override { return true; }
  HWND HolderOf(const BaseGUIObject& child) override;
  void ForgetChild(BaseGUIObject& child) override;
  void ReadForm(const FormReader& form) override;
  void TakeChild(BaseGUIObject& child, const FormReader&) override { SetContent(&child); }
  SizePolicy DefaultPolicy() const override {
    return {SizePolicy::Expanding, SizePolicy::Expanding};
  }
  void SetContent(BaseGUIObject* content);

 protected:
  bool CreateNative(CWnd* parent) override;

 private:
  int Border() const;
  Size PreferredSize(int width);
  Size LeastSize(int width);
  ScrollView ViewOf(Size view, bool preferred);
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
  ContentFit fit_ = ContentFit::Fill;
  bool isFramed_ = true;
  bool isArranging_ = false;
};

}  // namespace Wexa
