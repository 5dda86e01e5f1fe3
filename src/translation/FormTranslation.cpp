#include "FormTranslation.h"

#include <algorithm>
#include <string_view>
#include <vector>

namespace Wexa {

namespace {

// A line shorter than this holds no string element.
constexpr std::size_t kShortestStringLine = 7;

std::vector<std::wstring> SplitLines(std::wstring_view text) {
  std::vector<std::wstring> lines;
  for (std::size_t start = 0; start < text.size();) {
    const auto end = std::min(text.find(L'\n', start), text.size());
    lines.emplace_back(text.substr(start, end - start));
    start = end + 1;
  }
  return lines;
}

bool StartsString(const std::wstring& line) {
  return line.size() >= kShortestStringLine && line.find(L"<string") != std::wstring::npos;
}

// Puts the translation on the line with the end tag and empties the lines before it.
void ReplaceString(std::vector<std::wstring>& lines, std::size_t line,
                   const std::wstring& translation) {
  while (line + 1 < lines.size() && lines[line].find(L"</string") == std::wstring::npos) {
    lines[line++].clear();
  }
  lines[line] = L"<string>" + translation + L"</string>";
}

}  // namespace

std::wstring TranslateForm(const std::wstring& text, const FormLines& translations) {
  auto lines = SplitLines(text);
  for (const auto& [number, translation] : translations) {
    if (number == 0 || number > lines.size() || !StartsString(lines[number - 1])) break;
    ReplaceString(lines, number - 1, translation);
  }
  std::wstring joined;
  joined.reserve(text.size());
  for (const auto& line : lines) joined += line;
  return joined;
}

}  // namespace Wexa
