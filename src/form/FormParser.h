#pragma once

#include <memory>
#include <string>

#include "FormError.h"
#include "XmlDocument.h"
#include "form/FormModel.h"

namespace Wexa {

// Turns the text of a form file into a model. Opens no file and translates nothing.
class FormParser {
 public:
  // Reads the whole text; a leading byte-order mark is skipped. False, with an error text and an
  // empty model, when the form or its root widget is missing. A rectangle or size that lacks a
  // number drops its widget with all ancestors: the answer is true and the model has no root.
  // Throws rapidxml::parse_error for malformed XML, and std::invalid_argument or std::out_of_range
  // for a cell number that is no integer; these are FormErrors that have all but the file.
  bool Parse(const std::wstring& text, FormModel& model);

  // Why the last Parse answered false; empty when it did not.
  const std::string& ErrorText() const { return errorText_; }
  // Why the last Parse answered false or left the model without a root.
  const FormDiagnostic& Diagnostic() const { return diagnostic_; }

 private:
  bool Fail(const char* error, int line = 0);
  bool ReadForm(const std::wstring& text, FormModel& model);

  std::unique_ptr<FormNode> ReadRoot(const XmlNode& widget, const XmlDocument& document,
                                     const std::wstring& text);

  std::string errorText_;
  FormDiagnostic diagnostic_;
};

}  // namespace Wexa
