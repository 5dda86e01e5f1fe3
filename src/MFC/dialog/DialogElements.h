#pragma once

#include <memory>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "platform/Classes.h"

namespace Wexa {

class BaseGUIObject;
class Rescaling;

// The widgets of a dialog in the order of its form: found by name, given windows, and let go.
class DialogElements {
 public:
  struct Element {
    std::wstring name;
    std::shared_ptr<BaseGUIObject> widget;
  };

  void Add(const std::wstring& name, std::shared_ptr<BaseGUIObject> widget);
  // By their names; names that are nobody's do not count.
  void SetTabOrder(std::vector<std::wstring> names) { tabOrder_ = std::move(names); }

  auto begin() const { return elements_.begin(); }
  auto end() const { return elements_.end(); }
  // The first with this name; empty when there is none.
  std::shared_ptr<BaseGUIObject> Find(const std::wstring& name) const;
  // The one that has the focus, or the part of one; null when none has.
  BaseGUIObject* Focused() const;

  // Makes the native windows, parents before their children. Throws WexaException when one cannot
  // be made.
  void CreateWindows(CWnd& dialog);
  // Puts the windows in the tab order.
  void ApplyTabOrder();
  // Sizes and places from before all windows were there mean nothing to the layouts.
  void StartLayoutsAgain();
  // What no layout places, the form does; it shares out its place by itself. A handler of what
  // moves may destroy the dialog with its elements.
  void ArrangeFreeOnes(CWnd& dialog);
  // What no layout places keeps its place on the dialog, in units. The same handlers may run.
  void RescaleFreeOnes(CWnd& dialog, const Rescaling& rescale);
  // Layouts go before the widgets that they place, children before their parents.
  void Drop();

 private:
  BaseGUIObject* WidgetOf(HWND window) const;
  void MakeWindow(std::shared_ptr<BaseGUIObject> widget, CWnd& dialog);

  std::vector<Element> elements_;
  std::unordered_map<std::wstring, std::size_t> byName_;
  std::vector<std::wstring> tabOrder_;
};

}  // namespace Wexa
