#include "form/FormText.h"

#include <algorithm>
#include <charconv>
#include <stdexcept>

#include "Utf8.h"

namespace Wexa {
namespace {

constexpr std::wstring_view kScope = L"::";
constexpr std::wstring_view kIdentifier =
    L"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_";

struct EnumWord {
  std::wstring_view scope;  // with its "::"
  std::wstring_view name;
};

EnumWord SplitWord(std::wstring_view word) {
  const auto at = word.rfind(kScope);
  const auto length = at == word.npos ? 0 : at + kScope.size();
  return {word.substr(0, length), word.substr(length)};
}

// What follows one more scope at the start of `text`; `text` itself when it starts with none.
std::wstring_view WithoutInnerScope(std::wstring_view text) {
  const auto end = text.find_first_not_of(kIdentifier);
  const bool scoped = end != text.npos && text.substr(end).starts_with(kScope);
  return scoped ? text.substr(end + kScope.size()) : text;
}

std::string_view WithoutByteOrderMark(std::string_view bytes) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  if (bytes.starts_with(kByteOrderMark)) bytes.remove_prefix(kByteOrderMark.size());
  return bytes;
}

}  // namespace

bool LooksLikePlainForm(std::string_view bytes) {
  bytes = WithoutByteOrderMark(bytes);
  const auto first = bytes.find_first_not_of(" \t\r\n");
  return first != bytes.npos && bytes[first] == '<';
}

std::optional<std::wstring> PlainFormText(std::string_view bytes) {
  if (!LooksLikePlainForm(bytes)) return std::nullopt;
  return WidenUtf8(WithoutByteOrderMark(bytes));
}

bool HasEnumWord(std::wstring_view text, std::wstring_view word) {
  const auto [scope, name] = SplitWord(word);
  if (scope.empty()) return text.find(name) != text.npos;
  for (auto at = text.find(scope); at != text.npos; at = text.find(scope, at + 1)) {
    const auto rest = text.substr(at + scope.size());
    if (rest.starts_with(name) || WithoutInnerScope(rest).starts_with(name)) return true;
  }
  return false;
}

bool IsEnumWord(std::wstring_view text, std::wstring_view word) {
  const auto [scope, name] = SplitWord(word);
  if (!text.starts_with(scope)) return false;
  const auto rest = text.substr(scope.size());
  return rest == name || WithoutInnerScope(rest) == name;
}

int FormInteger(const std::wstring& text) {
  try {
    return std::stoi(text);
  } catch (const std::invalid_argument&) {
    throw std::invalid_argument("invalid stoi argument");
  } catch (const std::out_of_range&) {
    throw std::out_of_range("stoi argument out of range");
  }
}

double FormNumber(const std::wstring& text) {
  const auto start = std::min(text.find_first_not_of(L" \t\r\n+"), text.size());
  const std::string ascii = NarrowUtf8(std::wstring_view(text).substr(start));
  double number = 0;
  const auto read = std::from_chars(ascii.data(), ascii.data() + ascii.size(), number);
  if (read.ec == std::errc::invalid_argument) throw std::invalid_argument("invalid stod argument");
  if (read.ec != std::errc()) throw std::out_of_range("stod argument out of range");
  return number;
}

}  // namespace Wexa
