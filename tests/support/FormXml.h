#pragma once

// Form files in C++: each function gives an element as form files write it.

#include <string>

namespace Wexa {

inline std::string WidgetXml(const std::string& className, const std::string& name,
                             const std::string& inner = "") {
  return "<widget class=\"" + className + "\" name=\"" + name + "\">" + inner + "</widget>";
}

// An item of a layout, for example in the cell that the attributes name.
inline std::string ItemXml(const std::string& inner, const std::string& attributes = "") {
  return "<item " + attributes + ">" + inner + "</item>";
}

inline std::string LayoutXml(const std::string& className, const std::string& inner,
                             const std::string& attributes = "") {
  return "<layout class=\"" + className + "\" " + attributes + ">" + inner + "</layout>";
}

inline std::string ColumnXml(const std::string& items) {
  return LayoutXml("QVBoxLayout", items);
}

inline std::string RowXml(const std::string& items) {
  return LayoutXml("QHBoxLayout", items);
}

// A page's title, a button's group.
inline std::string AttributeXml(const std::string& name, const std::string& text) {
  return "<attribute name=\"" + name + "\"><string>" + text + "</string></attribute>";
}

// -- Properties ---------------------------------------------------------------------------------

// With a value element of this kind.
inline std::string PropertyXml(const std::string& name, const std::string& kind,
                               const std::string& value) {
  return "<property name=\"" + name + "\"><" + kind + ">" + value + "</" + kind + "></property>";
}

inline std::string TextXml(const std::string& text) {
  return PropertyXml("text", "string", text);
}

inline std::string EnumXml(const std::string& name, const std::string& word) {
  return PropertyXml(name, "enum", word);
}

inline std::string NumberXml(const std::string& name, int number) {
  return PropertyXml(name, "number", std::to_string(number));
}

inline std::string BoolXml(const std::string& name, bool value = true) {
  return PropertyXml(name, "bool", value ? "true" : "false");
}

inline std::string SizeXml(const std::string& name, int width, int height) {
  return PropertyXml(name, "size",
                     "<width>" + std::to_string(width) + "</width><height>" +
                         std::to_string(height) + "</height>");
}

inline std::string GeometryXml(int x, int y, int width, int height) {
  return PropertyXml("geometry", "rect",
                     "<x>" + std::to_string(x) + "</x><y>" + std::to_string(y) + "</y><width>" +
                         std::to_string(width) + "</width><height>" + std::to_string(height) +
                         "</height>");
}

// -- Items with a widget ------------------------------------------------------------------------

inline std::string WidgetItem(const std::string& className, const std::string& name,
                              const std::string& inner = "") {
  return ItemXml(WidgetXml(className, name, inner));
}

inline std::string TextWidget(const std::string& className, const std::string& name,
                              const std::string& text, const std::string& more = "") {
  return WidgetItem(className, name, TextXml(text) + more);
}

// Both show their names.
inline std::string PushButton(const std::string& name, const std::string& more = "") {
  return TextWidget("QPushButton", name, name, more);
}

inline std::string LineEdit(const std::string& name, const std::string& more = "") {
  return TextWidget("QLineEdit", name, name, more);
}

// -- Whole forms --------------------------------------------------------------------------------

// A dialog "root" of this client size around the content.
inline std::string FormXml(const std::string& content, int width, int height) {
  return "<ui version=\"4.0\">" +
         WidgetXml("QDialog", "root", GeometryXml(0, 0, width, height) + content) + "</ui>";
}

// With items below each other.
inline std::string ColumnForm(const std::string& items, int width = 300, int height = 200) {
  return FormXml(ColumnXml(items), width, height);
}

}  // namespace Wexa
