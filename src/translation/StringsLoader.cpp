#include "StringsLoader.h"

#include <charconv>
#include <optional>
#include <utility>

#include "Utf8.h"
#include "XmlDocument.h"

namespace Wexa {

namespace {

constexpr int kLargestHeight = 10000;  // in tenths of a point

struct Range {
  int least;
  int most;
};

// Reads the attributes of the element that names the font.
class FontReader {
 public:
  FontReader(const Utf8XmlDocument& document, const Utf8XmlNode& element)
      : element_(element), offset_(document.OffsetOf(element)) {}

  void Read(logFont& font) {
    if (const auto face = AttributeOf(element_, "FaceName")) font.faceName = *WidenUtf8(*face);
    if (const auto height = Number("Height", {-kLargestHeight, kLargestHeight}))
      font.height = *height;
    if (const auto charSet = Number("Charset", {0, 255}))
      font.charSet = static_cast<std::uint8_t>(*charSet);
  }
  std::vector<StringsFault> TakeFaults() { return std::move(faults_); }

 private:
  std::optional<int> Number(const char* name, Range range) {
    const auto text = AttributeOf(element_, name);
    if (!text) return std::nullopt;
    int number = 0;
    const auto* const end = text->data() + text->size();
    const auto read = std::from_chars(text->data(), end, number);
    const bool isWhole = read.ec == std::errc() && read.ptr == end;
    if (isWhole && number >= range.least && number <= range.most) return number;
    faults_.push_back({offset_, L'"' + *WidenUtf8(name) + L"\" is no number from " +
                                    std::to_wstring(range.least) + L" to " +
                                    std::to_wstring(range.most)});
    return std::nullopt;
  }

  const Utf8XmlNode& element_;
  std::size_t offset_;
  std::vector<StringsFault> faults_;
};

std::vector<StringsFault> ReadFont(const Utf8XmlDocument& document, const Utf8XmlNode& root,
                                   logFont& font) {
  const Utf8XmlNode* outer = root.first_node("Font");
  const Utf8XmlNode* element = outer ? outer->first_node("PreFont") : nullptr;
  if (element == nullptr) return {};
  FontReader reader(document, *element);
  reader.Read(font);
  return reader.TakeFaults();
}

}  // namespace

std::vector<StringsFault> LoadStringsText(std::string text, const Languages& languages,
                                          std::unordered_map<std::wstring, std::wstring>& texts,
                                          logFont& font) {
  const Utf8XmlDocument document(std::move(text));
  const Utf8XmlNode* root = document.First();
  const auto language = root ? AttributeOf(*root, "language") : std::nullopt;
  if (!language ||
      (language != NarrowUtf8(languages.current) && language != NarrowUtf8(languages.fallback))) {
    return {};
  }
  auto faults = ReadFont(document, *root, font);
  const Utf8XmlNode* table = root->first_node("StringTable");
  const Utf8XmlNode* entry = table ? table->first_node("string") : nullptr;
  for (; entry; entry = entry->next_sibling("string")) {
    if (const auto id = AttributeOf(*entry, "id"))
      texts.try_emplace(*WidenUtf8(*id), *WidenUtf8(TextOf(*entry)));
  }
  return faults;
}

}  // namespace Wexa
