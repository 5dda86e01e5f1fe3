#include "form/FormParser.h"

#include <stdexcept>

#include "XmlDocument.h"
#include "form/FormTree.h"
#include "form/RefusedForm.h"

namespace Wexa {
namespace {

std::vector<std::wstring> ReadTabOrder(const XmlNode& ui) {
  std::vector<std::wstring> order;
  const auto* stops = ui.first_node(L"tabstops");
  if (stops == nullptr) return order;
  for (const auto* stop = stops->first_node(L"tabstop"); stop != nullptr;
       stop = stop->next_sibling(L"tabstop")) {
    order.push_back(TextOf(*stop));
  }
  return order;
}

FormModel::BaseClasses ReadCustomClasses(const XmlNode& ui) {
  FormModel::BaseClasses classes;
  const auto* list = ui.first_node(L"customwidgets");
  if (list == nullptr) return classes;
  for (const auto* widget = list->first_node(L"customwidget"); widget != nullptr;
       widget = widget->next_sibling(L"customwidget")) {
    const auto* name = widget->first_node(L"class");
    const auto* base = widget->first_node(L"extends");
    if (name != nullptr && base != nullptr) classes.emplace(TextOf(*name), TextOf(*base));
  }
  return classes;
}

}  // namespace

bool FormParser::Parse(const std::wstring& text, FormModel& model) {
  errorText_.clear();
  diagnostic_ = {};
  model = {};
  try {
    return ReadForm(text, model);
  } catch (const XmlParseError& error) {
    const std::string what = error.what();
    throw RefusedForm<rapidxml::parse_error>(
        {{}, LineAt(text, error.Offset()), {}, {}, std::wstring(what.begin(), what.end())},
        error.what(), nullptr);
  } catch (const std::runtime_error& error) {
    return Fail(error.what());
  }
}

bool FormParser::ReadForm(const std::wstring& text, FormModel& model) {
  const XmlDocument document(text);
  const auto* ui = document.First(L"ui");
  if (ui == nullptr) return Fail("No UI node has been found.");
  const auto* root = ui->first_node(L"widget");
  if (root == nullptr)
    return Fail("No root widget has been found.", LineAt(text, document.OffsetOf(*ui)));
  model = {ReadRoot(*root, document, text), ReadTabOrder(*ui), ReadCustomClasses(*ui)};
  return true;
}

// Null when a rectangle or a size lacks a number.
std::unique_ptr<FormNode> FormParser::ReadRoot(const XmlNode& widget, const XmlDocument& document,
                                               const std::wstring& text) try {
  return ReadFormTree(widget, document, text);
} catch (const RefusedForm<std::runtime_error>& error) {
  diagnostic_ = error.diagnostic;
  return nullptr;
}

bool FormParser::Fail(const char* error, int line) {
  errorText_ = error;
  diagnostic_ = {{}, line, {}, {}, std::wstring(errorText_.begin(), errorText_.end())};
  return false;
}

}  // namespace Wexa
