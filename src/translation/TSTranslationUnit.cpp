#include "TSTranslationUnit.h"

#include <utility>

void TSTranslationUnit::AddMessageFromTS(std::wstring fileName, int line,
                                         std::wstring translation) {
  auto& lines = messages_.try_emplace(std::move(fileName)).first->second;
  lines.try_emplace(static_cast<unsigned int>(line), std::move(translation));
}

void TSTranslationUnit::AppendTsTranslationUnit(const TSTranslationUnit& other) {
  for (const auto& [file, lines] : other.messages_) {
    auto& own = messages_[file];
    own.insert(lines.begin(), lines.end());
  }
}
