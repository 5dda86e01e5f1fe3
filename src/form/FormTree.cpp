#include "form/FormTree.h"

#include <algorithm>
#include <optional>
#include <string_view>
#include <utility>

#include "form/FormProperties.h"
#include "form/FormText.h"
#include "form/RefusedForm.h"

namespace Wexa {
namespace {

using Kind = FormNode::Kind;
using LayoutKind = FormNode::LayoutKind;

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

LayoutKind LayoutKindOf(std::wstring_view className) {
  if (className == L"QHBoxLayout") return LayoutKind::HBox;
  if (className == L"QVBoxLayout") return LayoutKind::VBox;
  return LayoutKind::Grid;
}

// Counts the lines of a text up to elements, which are asked for in its order.
class LineCounter {
 public:
  LineCounter(const std::wstring& text, const XmlDocument& document)
      : text_(text), document_(document) {}

  int LineOf(const XmlNode& element) {
    const auto place = text_.begin() + static_cast<std::ptrdiff_t>(document_.OffsetOf(element));
    line_ += static_cast<int>(std::count(at_, place, L'\n'));
    at_ = place;
    return line_;
  }

 private:
  const std::wstring& text_;
  const XmlDocument& document_;
  std::wstring::const_iterator at_ = text_.begin();
  int line_ = 1;
};

FormNode::Cell ReadCell(const XmlNode& item, const FormNode& layout, int line) {
  const auto number = [&](const wchar_t* name, int absent) {
    const auto text = AttributeOf(item, name);
    if (!text) return absent;
    return ConvertOrRefuse(std::wstring(*text), FormInteger, [&](std::wstring reason) {
      auto diagnostic = layout.Diagnose(name, std::move(reason));
      diagnostic.line = line;
      return diagnostic;
    });
  };
  const FormNode::Cell absent;
  return {number(L"row", absent.row), number(L"column", absent.column),
          number(L"rowspan", absent.rowSpan), number(L"colspan", absent.columnSpan)};
}

// Reads elements into nodes. The recursion is as deep as the XML document allows.
class TreeReader {
 public:
  explicit TreeReader(LineCounter lines) : lines_(lines) {}

  std::unique_ptr<FormNode> ReadNode(const XmlNode& element, Kind kind, FormNode* parent);

 private:
  void ReadNodeAttributes(const XmlNode& element, FormNode& node);
  void ReadChild(const XmlNode& child, FormNode& node);
  void ReadWidgetChild(const XmlNode& child, FormNode& widget);
  void ReadItemText(const XmlNode& item, FormNode& widget);
  void ReadLayoutItem(const XmlNode& item, FormNode& layout);
  void AppendNode(const XmlNode& element, Kind kind, FormNode& parent);

  LineCounter lines_;
};

std::unique_ptr<FormNode> TreeReader::ReadNode(const XmlNode& element, Kind kind,
                                               FormNode* parent) {
  auto node = std::make_unique<FormNode>(kind, parent);
  node->line = lines_.LineOf(element);
  ReadNodeAttributes(element, *node);
  for (const auto* child = element.first_node(); child != nullptr; child = child->next_sibling())
    ReadChild(*child, *node);
  return node;
}

void TreeReader::ReadNodeAttributes(const XmlNode& element, FormNode& node) {
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

void TreeReader::ReadChild(const XmlNode& child, FormNode& node) {
  if (NameOf(child) == L"property") return ReadProperty(child, lines_.LineOf(child), node);
  if (node.kind == Kind::Spacer) return;
  const auto kind = NodeKindOf(child);
  if (kind && kind != Kind::Spacer) return AppendNode(child, *kind, node);
  if (node.kind == Kind::Widget) return ReadWidgetChild(child, node);
  if (NameOf(child) == L"item") ReadLayoutItem(child, node);
}

void TreeReader::ReadWidgetChild(const XmlNode& child, FormNode& widget) {
  const auto name = NameOf(child);
  if (name == L"item") ReadItemText(child, widget);
  if (name == L"attribute") ReadAttribute(child, widget);
}

// An entry of a list-like widget: its text is the first there is.
void TreeReader::ReadItemText(const XmlNode& item, FormNode& widget) {
  for (const auto* property = item.first_node(L"property"); property != nullptr;
       property = property->next_sibling(L"property")) {
    const auto* text = property->first_node(L"string");
    if (text == nullptr || AttributeOf(*property, L"name") != L"text") continue;
    widget.itemTexts.emplace_back(TextOf(*text));
    return;
  }
}

void TreeReader::ReadLayoutItem(const XmlNode& item, FormNode& layout) {
  const auto cell = ReadCell(item, layout, lines_.LineOf(item));
  for (const auto* child = item.first_node(); child != nullptr; child = child->next_sibling()) {
    const auto kind = NodeKindOf(*child);
    if (!kind) continue;
    AppendNode(*child, *kind, layout);
    auto& node = *layout.children.back();
    node.cell = cell;
    if (const auto alignment = AttributeOf(item, L"alignment"))
      node.SetExtra(L"itemAlignment", std::wstring(*alignment));
  }
}

void TreeReader::AppendNode(const XmlNode& element, Kind kind, FormNode& parent) {
  parent.children.push_back(ReadNode(element, kind, &parent));
}

}  // namespace

std::unique_ptr<FormNode> ReadFormTree(const XmlNode& rootWidget, const XmlDocument& document,
                                       const std::wstring& text) {
  return TreeReader(LineCounter(text, document)).ReadNode(rootWidget, Kind::Widget, nullptr);
}

}  // namespace Wexa
