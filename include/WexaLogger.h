#pragma once

#include <exception>
#include <iosfwd>
#include <map>
#include <mutex>
#include <string>

#include "WexaExport.h"

// A store for the host's messages: the last one of each severity. The library records nothing here.
// Any thread may log.
class WEXA_API WexaLogger {
 public:
  // From the least severe on.
  enum ErrorCode : int { Info = 0, Warning = 1, Error = 2, FatalError = 3, Exception = 4 };

  // The one of the process.
  static WexaLogger& GetInstance();
  WexaLogger(const WexaLogger&) = delete;
  WexaLogger& operator=(const WexaLogger&) = delete;
  ~WexaLogger();

  // Replaces the message of that severity by `text` and a line feed.
  void Log(ErrorCode code, const std::wstring& text);
  void LogInfo(const std::wstring& text) { Log(Info, text); }
  void LogWarning(const std::wstring& text) { Log(Warning, text); }
  void LogError(const std::wstring& text) { Log(Error, text); }
  void LogFatalError(const std::wstring& text) { Log(FatalError, text); }
  void LogException(const std::wstring& text) { Log(Exception, text); }
  // Each byte of what() becomes one character.
  void LogException(const std::exception& exception);

  // All messages, the least severe first, each after its prefix ("Warning: "). Holds the logger's
  // lock while it writes: the stream must not log.
  void WriteLog(std::wostream& out);

 private:
  WexaLogger();

  std::map<ErrorCode, std::wstring> messages_;
  std::mutex lock_;
};
