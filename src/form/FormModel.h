#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "FontData.h"
#include "FormError.h"
#include "form/PropertyId.h"

namespace Wexa {

// One widget, layout or spacer of a form. Every value is the text that the form file has for it.
class FormNode {
 public:
  enum class Kind : std::uint8_t { Widget, Layout, Spacer };
  enum class LayoutKind : std::uint8_t { Grid = 0, HBox = 1, VBox = 2 };

  // The place in the parent layout's grid, as the file states it: unchecked, any int is possible.
  struct Cell {
    int row = 0;
    int column = 0;
    int rowSpan = 1;
    int columnSpan = 1;
  };

  // Widgets know their standard dialog buttons as flags and as the list of those flags.
  struct StandardButtons {
    std::uint32_t flags = 0;
    std::vector<std::uint32_t> list;
  };

  FormNode(Kind nodeKind, FormNode* parentNode) : kind(nodeKind), parent(parentNode) {}
  FormNode(const FormNode&) = delete;
  FormNode& operator=(const FormNode&) = delete;

  // The text in a slot, null when the form has none. Valid until the next SetText.
  const std::wstring* Text(PropertyId id) const;
  void SetText(PropertyId id, std::wstring text);

  // The text of a property that has no slot but that some widgets show ("toolTip", "checked"),
  // null when the form has none.
  const std::wstring* Extra(std::wstring_view name) const;
  // `name` must outlive the node.
  void SetExtra(std::wstring_view name, std::wstring text);

  // The number that a text starts with, nothing when the form has none. They throw
  // std::invalid_argument or std::out_of_range, a FormError, for a text that starts with none.
  std::optional<int> Integer(PropertyId id) const;
  std::optional<int> Integer(std::wstring_view extra) const;
  std::optional<double> Number(PropertyId id) const;
  // Those of a list divided by commas.
  std::vector<int> Integers(PropertyId id) const;

  // Remembers where a property stands. `name` must outlive the node.
  void SetLine(std::wstring_view property, int lineOfProperty);
  // What is wrong with a property or attribute of this node.
  FormDiagnostic Diagnose(std::wstring_view property, std::wstring reason) const;

  int line = 0;  // of the element, counted from 1
  Kind kind;
  LayoutKind layoutKind = LayoutKind::Grid;
  bool headerVisible = true;
  Cell cell;
  FormNode* parent;
  std::wstring className;
  std::wstring name;
  std::wstring titleAttribute;
  std::wstring buttonGroup;
  StandardButtons standardButtons;
  FontData font;  // with what the form sets of it
  std::vector<std::wstring> itemTexts;
  std::vector<std::unique_ptr<FormNode>> children;

 private:
  struct NamedText {
    std::wstring_view name;
    std::wstring text;
  };

  // A bit for each slot that has a text; texts_ holds only those, in the order of the slots.
  std::uint64_t present_ = 0;
  std::vector<std::wstring> texts_;
  std::vector<NamedText> extras_;
  struct PropertyLine {
    std::wstring_view name;
    int line;
  };
  std::vector<PropertyLine> lines_;

  std::size_t IndexOf(PropertyId id) const;
  // The property whose value fills a slot.
  std::wstring_view PropertyOf(PropertyId id) const;
  template <typename Convert>
  auto Converted(std::wstring_view property, const std::wstring& text, Convert convert) const;
};

// A form as the file describes it.
struct FormModel {
  using BaseClasses = std::map<std::wstring, std::wstring, std::less<>>;

  // Null when a broken value made the reader drop the tree.
  std::unique_ptr<FormNode> root;
  // The names of the widgets in the order of the Tab key.
  std::vector<std::wstring> tabOrder;
  // The base class of each class that the form declares as a custom widget.
  BaseClasses customClasses;
};

}  // namespace Wexa
