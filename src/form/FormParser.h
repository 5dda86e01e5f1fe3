#pragma once

#include <rapidxml/rapidxml.hpp>
#include <string>

#include "form/FormModel.h"

namespace Wexa {

// The text of a form is not well-formed XML, from the given line on (counted from 1).
class FormParseError : public rapidxml::parse_error {
 public:
  FormParseError(const char* what, int line) : parse_error(what, nullptr), line_(line) {}
  int Line() const { return line_; }

 private:
  int line_;
};

// Turns the text of a form file into a model. Opens no file and translates nothing.
class FormParser {
 public:
  // Reads the whole text; a leading byte-order mark is skipped. False, with an error text and an
  // empty model, when the form or its root widget is missing. A rectangle or size that lacks a
  // number drops its widget with all ancestors: the answer is true and the model has no root.
  // Throws FormParseError for malformed XML, and std::invalid_argument or std::out_of_range
  // for a cell number that is no integer.
  bool Parse(const std::wstring& text, FormModel& model);

  // Why the last Parse answered false; empty when it did not.
  const std::string& ErrorText() const { return errorText_; }

 private:
  bool Fail(const char* error);
  bool ReadForm(const std::wstring& text, FormModel& model);

  std::string errorText_;
};

}  // namespace Wexa
