#include "graphics/LineBreaks.h"

#include <string>

#include "graphics/TextEngine.h"
#include "graphics/Utf8.h"
#include "graphics/WordShaper.h"

namespace {

std::vector<std::size_t> BreaksAtSpaces(std::wstring_view text) {
  std::vector<std::size_t> ends;
  for (std::size_t i = 1; i < text.size(); ++i) {
    if (text[i - 1] == L' ' && text[i] != L' ') ends.push_back(i);
  }
  return ends;
}

// By the rules of the text's scripts, which may allow breaks between letters.
std::vector<std::size_t> BreaksByScript(std::wstring_view text) {
  std::string bytes = ToUtf8(text);
  std::vector<PangoLogAttr> attributes(text.size() + 1);
  pango_get_log_attrs(bytes.data(), static_cast<int>(bytes.size()), -1,
                      pango_language_get_default(), attributes.data(),
                      static_cast<int>(attributes.size()));
  std::vector<std::size_t> ends;
  for (std::size_t i = 1; i < text.size(); ++i) {
    if (attributes[i].is_line_break) ends.push_back(i);
  }
  return ends;
}

}  // namespace

std::vector<std::size_t> LineBreaks(std::wstring_view paragraph) {
  auto ends = IsSimpleText(paragraph) ? BreaksAtSpaces(paragraph) : BreaksByScript(paragraph);
  ends.push_back(paragraph.size());
  return ends;
}
