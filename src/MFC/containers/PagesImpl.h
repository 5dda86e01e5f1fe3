#pragma once

#include <algorithm>
#include <vector>

#include "MFC/containers/ArrangingImpl.h"

namespace Wexa {

class ChildDialog;

// Containers of pages of which one is shown at a time, over the same area.
class PagesImpl : public ArrangingImpl {
 public:
  using ArrangingImpl::ArrangingImpl;

  Size IdealSize() override;
  Size MinimumIdealSize() override;
  void UpdateLayout() override;
  void PlaceAsRequested() override;
  void ForgetChild(BaseGUIObject& child) override;

  // Null is ignored.
  void AddPage(ChildDialog* page);
  ChildDialog* Page(int index) const;  // null for an index out of range
  int PageCount() const { return static_cast<int>(pages_.size()); }
  int CurrentIndex() const { return current_ < PageCount() ? std::max(current_, 0) : 0; }
  // Shows that page and hides the rest, now or when the window exists. A focus in the page that is
  // hidden moves on. False for an index out of range, or when a handler destroyed the container.
  virtual bool SetCurrentIndex(int index, bool updateLayout);
  // The page to begin with, before any is there; one out of range gives way to the first.
  void ReadForm(const FormReader& form) override;
  void EnablePage(int index, bool enable, bool remember);
  // A page whose window has been made is shown when it is the current one.
  void OnChildCreated(BaseGUIObject& page) override;

 protected:
  // The page of that index has gone.
  virtual void OnPageGone(int) {}
  // What the container takes of its client area on each side of the page.
  virtual RECT PageMargins() const { return {}; }
  // The size of the container's own parts: as they like it, and at least.
  virtual Size OwnSize() const { return {}; }
  virtual Size OwnMinimumSize() const { return OwnSize(); }
  // Where the focus goes when the page it was in is hidden; null for nowhere in the container.
  virtual HWND FocusAfterChange();
  Rect PageRect();

 private:
  Size AroundPages(Size (WidgetSizes::*size)() const, const Size& own);
  bool ShowOnly(int index, bool updateLayout);

  std::vector<ChildDialog*> pages_;
  int current_ = 0;
};

}  // namespace Wexa
