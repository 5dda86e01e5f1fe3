#pragma once

#include <map>
#include <string>
#include <unordered_map>
#include <utility>

#include "WexaExport.h"

// Translations of form files, by the form file's name without directories and the line on which the
// text stands. Texts are escaped for XML.
class WEXA_API TSTranslationUnit {
 public:
  using MessageMap = std::unordered_map<std::wstring, std::map<unsigned int, std::wstring>>;

  // Empty.
  TSTranslationUnit() = default;
  explicit TSTranslationUnit(MessageMap messages) : messages_(std::move(messages)) {}

  // The first translation of a line stays; later ones are dropped.
  void AddMessageFromTS(std::wstring fileName, int line, std::wstring translation);
  // Adds the other's translations by the same rule.
  void AppendTsTranslationUnit(const TSTranslationUnit& other);
  // By file name, then by line.
  const MessageMap& GetMessageMap() const { return messages_; }
  void Clear() { messages_.clear(); }

 private:
  MessageMap messages_;
};
