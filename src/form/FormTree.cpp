#include "form/FormTree.h"

#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "form/FormProperties.h"
#include "form/FormText.h"

namespace Wexa {
namespace {

using Kind = FormNode::Kind;
using LayoutKind = FormNode::LayoutKind;

// The recursion over elements is as deep as the XML document allows.
std::unique_ptr<FormNode> ReadNode(const XmlNode& element, Kind kind, FormNode* parent);

bool AppendNode(const XmlNode& element, Kind kind, FormNode& parent) {
  auto node = ReadNode(element, kind, &parent);
  if (node == nullptr) return false;
  parent.children.push_back(std::move(node));
  return true;
}

int CellNumber(const XmlNode& item, const wchar_t* name, int absent) {
  const auto text = AttributeOf(item, name);
  return text ? FormInteger(std::wstring(*text)) : absent;
}

FormNode::Cell ReadCell(const XmlNode& item) {
  const FormNode::Cell absent;
  return {CellNumber(item, L"row", absent.row), CellNumber(item, L"column", absent.column),
          CellNumber(item, L"rowspan", absent.rowSpan),
          CellNumber(item, L"colspan", absent.columnSpan)};
}

std::wstring_view NameOf(const XmlNode& element) {
  return {element.name(), element.name_size()};
}

std::optional<Kind> NodeKindOf(const XmlNode& element) {
  const auto name = NameOf(element);
  if (name == L"widget") return Kind::Widget;
  if (name == L"layout") return Kind::Layout;
  if (name == L"spacer") return Kind::Spacer;
  return std::nullopt;
}

bool ReadLayoutItem(const XmlNode& item, FormNode& layout) {
  const auto cell = ReadCell(item);
  for (const auto* child = item.first_node(); child != nullptr; child = child->next_sibling()) {
    const auto kind = NodeKindOf(*child);
    if (!kind) continue;
    if (!AppendNode(*child, *kind, layout)) return false;
    auto& node = *layout.children.back();
    node.cell = cell;
    if (const auto alignment = AttributeOf(item, L"alignment"))
      node.SetExtra(L"itemAlignment", std::wstring(*alignment));
  }
  return true;
}

// An entry of a list-like widget: its text is the first there is.
void ReadItemText(const XmlNode& item, FormNode& widget) {
  for (const auto* property = item.first_node(L"property"); property != nullptr;
       property = property->next_sibling(L"property")) {
    const auto* text = property->first_node(L"string");
    if (text == nullptr || AttributeOf(*property, L"name") != L"text") continue;
    widget.itemTexts.emplace_back(TextOf(*text));
    return;
  }
}

bool ReadWidgetChild(const XmlNode& child, FormNode& widget) {
  const auto name = NameOf(child);
  if (name == L"item") ReadItemText(child, widget);
  if (name == L"attribute") ReadAttribute(child, widget);
  return true;
}

bool ReadChild(const XmlNode& child, FormNode& node) {
  if (NameOf(child) == L"property") return ReadProperty(child, node);
  if (node.kind == Kind::Spacer) return true;
  const auto kind = NodeKindOf(child);
  if (kind && kind != Kind::Spacer) return AppendNode(child, *kind, node);
  if (node.kind == Kind::Widget) return ReadWidgetChild(child, node);
  return NameOf(child) != L"item" || ReadLayoutItem(child, node);
}

LayoutKind LayoutKindOf(std::wstring_view className) {
  if (className == L"QHBoxLayout") return LayoutKind::HBox;
  if (className == L"QVBoxLayout") return LayoutKind::VBox;
  return LayoutKind::Grid;
}

void ReadNodeAttributes(const XmlNode& element, FormNode& node) {
  for (const auto* attribute = element.first_attribute(); attribute != nullptr;
       attribute = attribute->next_attribute()) {
    const std::wstring_view name(attribute->name(), attribute->name_size());
    const std::wstring_view text(attribute->value(), attribute->value_size());
    if (name == L"name") {
      node.name = text;
    } else if (name == L"class") {
      if (node.kind != Kind::Spacer) node.className = text;
    } else if (node.kind == Kind::Layout) {
      node.SetText(PropertyIdOf(name), std::wstring(text));
    }
  }
  if (node.kind == Kind::Layout) node.layoutKind = LayoutKindOf(node.className);
}

std::unique_ptr<FormNode> ReadNode(const XmlNode& element, Kind kind, FormNode* parent) {
  auto node = std::make_unique<FormNode>(kind, parent);
  ReadNodeAttributes(element, *node);
  for (const auto* child = element.first_node(); child != nullptr; child = child->next_sibling()) {
    if (!ReadChild(*child, *node)) return nullptr;
  }
  return node;
}

}  // namespace

std::unique_ptr<FormNode> ReadFormTree(const XmlNode& rootWidget) {
  return ReadNode(rootWidget, Kind::Widget, nullptr);
}

}  // namespace Wexa
