#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "form/FormModel.h"

namespace Wexa {

// What a form says of one widget, converted as the widget asks for it. Each question takes the
// answer for a form that does not state the property. Texts are translated already.
class FormReader {
 public:
  // A property: its slot, or its name in the form where it has none.
  class Property {
   public:
    Property(PropertyId id) : id_(id) {}
    Property(const wchar_t* name) : name_(name) {}

   private:
    friend class FormReader;
    PropertyId id_ = PropertyId::Other;
    std::wstring_view name_;
  };

  struct Range {
    int minimum;
    int maximum;
    int value;
  };

  explicit FormReader(const FormNode& node) : node_(node) {}

  // The text as it stands in the form, null when it has none.
  const std::wstring* Find(Property property) const;
  std::wstring Text(Property property, const std::wstring& absent = {}) const;
  // The text without its tags where it is written in tags.
  std::optional<std::wstring> PlainText(Property property) const;
  bool Flag(Property property, bool absent) const;
  // Whether an enumeration or set holds the word, such as "Qt::Vertical".
  bool Has(Property property, std::wstring_view word) const;
  bool IsVertical() const { return Has(PropertyId::Orientation, L"Qt::Vertical"); }
  // 0, 1 and 2 for left, centre and right.
  int HorizontalAlignment() const;
  // Numbers throw a FormError for a text that starts with none.
  int Integer(Property property, int absent) const;
  // What is not finite counts as absent.
  double Number(PropertyId id, double absent) const;
  // A number cut to a whole one that an int can hold.
  int Clamped(PropertyId id, int absent) const;
  // "minimum", "maximum" and "value"; a value that is absent is the lowest.
  Range RangeOr(int minimum, int maximum) const;

  // What is in the form beside properties: items, attributes, the widget's place in the tree.
  const FormNode& Node() const { return node_; }

 private:
  const FormNode& node_;
};

}  // namespace Wexa
