#include "FormError.h"

#include <utility>

namespace Wexa {

namespace {

std::wstring Quoted(const std::wstring& text) {
  return L'"' + text + L'"';
}

}  // namespace

std::wstring FormDiagnostic::Describe() const {
  std::wstring text = file;
  if (line > 0) text.append(L":").append(std::to_wstring(line));
  if (!text.empty()) text += L": ";
  if (!property.empty()) text += Quoted(property);
  if (!property.empty() && !widget.empty()) text += L" of ";
  if (!widget.empty()) text += Quoted(widget);
  if (!property.empty() || !widget.empty()) text += L": ";
  return text + reason;
}

FormError::FormError(FormDiagnostic what) : diagnostic(std::move(what)) {}
FormError::FormError(const FormError&) = default;
FormError& FormError::operator=(const FormError&) = default;
FormError::~FormError() = default;

}  // namespace Wexa
