#pragma once

#include <memory>
#include <string>

#include "form/FormModel.h"
#include "form/FormParser.h"

namespace Wexa {

// The model of a form; a test failure when it cannot be parsed.
inline FormModel ParseForm(const std::wstring& text) {
  FormModel model;
  FormParser parser;
  EXPECT_TRUE(parser.Parse(text, model)) << parser.ErrorText();
  return model;
}

// The model of a form whose root widget has the given content.
inline FormModel ParseRootWith(const std::wstring& content) {
  return ParseForm(L"<ui><widget class=\"QDialog\" name=\"d\">" + content + L"</widget></ui>");
}

// A node's text, or "(none)".
inline std::wstring TextIn(const FormNode& node, PropertyId id) {
  const auto* text = node.Text(id);
  return text != nullptr ? *text : L"(none)";
}

inline std::wstring ExtraIn(const FormNode& node, const wchar_t* name) {
  const auto* text = node.Extra(name);
  return text != nullptr ? *text : L"(none)";
}

}  // namespace Wexa
