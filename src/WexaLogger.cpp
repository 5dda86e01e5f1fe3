#include "WexaLogger.h"

#include <ostream>
#include <string_view>

namespace {

const wchar_t* PrefixOf(WexaLogger::ErrorCode code) {
  switch (code) {
    case WexaLogger::Info: return L"Info: ";
    case WexaLogger::Warning: return L"Warning: ";
    case WexaLogger::Error: return L"Error: ";
    case WexaLogger::FatalError: return L"Fatal Error: ";
    case WexaLogger::Exception: return L"Exception: ";
  }
  return L"";
}

std::wstring WidenBytes(std::string_view bytes) {
  std::wstring text;
  text.reserve(bytes.size());
  for (const char byte : bytes) text += static_cast<wchar_t>(static_cast<unsigned char>(byte));
  return text;
}

}  // namespace

WexaLogger::WexaLogger() = default;
WexaLogger::~WexaLogger() = default;

WexaLogger& WexaLogger::GetInstance() {
  static WexaLogger& logger = *new WexaLogger;  // outlives the host's static objects
  return logger;
}

void WexaLogger::Log(ErrorCode code, const std::wstring& text) {
  std::lock_guard guard(lock_);
  messages_.insert_or_assign(code, text + L'\n');
}

void WexaLogger::LogException(const std::exception& exception) {
  Log(Exception, WidenBytes(exception.what()));
}

void WexaLogger::WriteLog(std::wostream& out) {
  std::lock_guard guard(lock_);
  for (const auto& [code, text] : messages_) out << PrefixOf(code) << text;
}
