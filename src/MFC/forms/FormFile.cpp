// Building a dialog from its form: bytes to text, text to model, model to widgets.

#include <chrono>
#include <filesystem>
#include <utility>

#include "FileText.h"
#include "MFC/DialogImplMFC.h"
#include "MFC/forms/DialogBuilder.h"
#include "Translator.h"
#include "Utf8.h"
#include "Utf8Decoding.h"
#include "WexaException.h"
#include "XmlDocument.h"
#include "form/FormParser.h"
#include "form/FormText.h"
#include "form/RefusedForm.h"

namespace Wexa {

namespace {

[[noreturn]] void Refuse(const char* message, FormDiagnostic diagnostic) {
  throw RefusedForm<WexaException>(std::move(diagnostic), "src/MFC/DialogImplMFC", __LINE__,
                                   message);
}

[[noreturn]] void RefuseFile(std::wstring reason, int line = 0) {
  Refuse("Could not load and parse UI file", {{}, line, {}, {}, std::move(reason)});
}

double MillisecondsSince(std::chrono::steady_clock::time_point start) {
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
      .count();
}

// A form's text, translated. Encrypted ones have lost their lines.
struct FormText {
  std::wstring text;
  bool hasLines;
};

std::string ReadBytes(const std::wstring& path) {
  std::error_code error;
  if (!std::filesystem::exists(NativePath(path), error)) RefuseFile(L"there is no such file");
  if (IsFileTooLarge(path)) RefuseFile(L"the file is too large");
  auto bytes = ReadFile(path);
  if (!bytes) RefuseFile(L"the file cannot be read");
  if (bytes->empty()) RefuseFile(L"the file is empty");
  return std::move(*bytes);
}

[[noreturn]] void RefuseBadUtf8(const std::string& bytes) {
  const auto place = FindBadUtf8(bytes).value_or(0);
  RefuseFile(L"the byte at offset " + std::to_wstring(place) + L" is not UTF-8",
             LineAt(bytes, place));
}

FormText ReadFormText(const std::wstring& path) {
  std::string bytes = ReadBytes(path);
  Translator& translator = Translator::GetInstance();
  if (!LooksLikePlainForm(bytes)) {
    std::wstring text = translator.TranslateUIBytes(path, std::move(bytes));
    if (text.empty()) RefuseFile(L"neither XML nor an encrypted form");
    return {std::move(text), false};
  }
  const auto plain = PlainFormText(bytes);
  if (!plain) RefuseBadUtf8(bytes);
  return {translator.TranslateUIText(path, *plain), true};
}

void ParseForm(const std::wstring& text, FormModel& model) {
  FormParser parser;
  if (!parser.Parse(text, model)) Refuse("Could not load and parse UI file", parser.Diagnostic());
  if (!model.root) Refuse("Cannot build UI model of dialog.", parser.Diagnostic());
}

}  // namespace

void Dialog::impl::Build(const std::wstring& uiFile) {
  bool hasLines = true;
  try {
    auto start = std::chrono::steady_clock::now();
    const FormText form = ReadFormText(uiFile);
    hasLines = form.hasLines;
    statistics_.readMilliseconds = MillisecondsSince(start);

    start = std::chrono::steady_clock::now();
    FormModel model;
    ParseForm(form.text, model);
    statistics_.parseMilliseconds = MillisecondsSince(start);

    start = std::chrono::steady_clock::now();
    DialogBuilder(*static_cast<Dialog*>(Owner()), *this, model).Build();
    statistics_.buildMilliseconds = MillisecondsSince(start);
  } catch (FormError& error) {
    error.diagnostic.file = uiFile;
    if (!hasLines) error.diagnostic.line = 0;
    throw;
  }
}

}  // namespace Wexa
