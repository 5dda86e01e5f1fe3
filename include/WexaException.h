#pragma once

#include <exception>
#include <string>

#include "WexaExport.h"

namespace Wexa {

// What the library throws for its own failures; hosts may catch it as std::exception.
class WEXA_API WexaException : public std::exception {
 public:
  // With a file, the text of what() starts with the place: file: line "message
  WexaException(const char* file, int line, const char* message);
  ~WexaException() override;

  const char* what() const noexcept override { return text_.c_str(); }
  // Where it was thrown; an empty file when no place was given.
  const std::string& GetFile() const { return file_; }
  int GetLine() const { return line_; }

 private:
  std::string file_;
  std::string text_;
  int line_;
};

}  // namespace Wexa
