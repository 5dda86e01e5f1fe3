#pragma once

#include <gtest/gtest.h>

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

// The root widget with the given content.
inline std::unique_ptr<FormNode> ParseRootWith(const std::wstring& content) {
  return ParseForm(L"<ui><widget class=\"QDialog\" name=\"d\">" + content + L"</widget></ui>").root;
}

// The slots that have a text: "14=text 21=3".
inline std::wstring SlotsOf(const FormNode& node) {
  std::wstring all;
  for (int slot = 0; slot < kPropertyCount; ++slot) {
    const auto* text = node.Text(PropertyId(slot));
    if (text) all += (all.empty() ? L"" : L" ") + std::to_wstring(slot) + L"=" + *text;
  }
  return all;
}

inline std::wstring ExtraIn(const FormNode& node, const wchar_t* name) {
  const auto* text = node.Extra(name);
  return text != nullptr ? *text : L"(none)";
}

}  // namespace Wexa
