#include "WexaException.h"

namespace Wexa {

namespace {

std::string Compose(const std::string& file, int line, const char* message) {
  if (file.empty()) return message;
  return file + ": " + std::to_string(line) + " \"" + message;
}

}  // namespace

WexaException::WexaException(const char* file, int line, const char* message)
    : file_(file ? file : ""), text_(Compose(file_, line, message ? message : "")), line_(line) {}

WexaException::~WexaException() = default;

}  // namespace Wexa
