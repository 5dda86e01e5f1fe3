// Building a dialog from its form: bytes to text, text to model, model to widgets.

#include <chrono>
#include <stdexcept>

#include "FileText.h"
#include "MFC/DialogImplMFC.h"
#include "MFC/forms/DialogBuilder.h"
#include "Translator.h"
#include "WexaException.h"
#include "form/FormParser.h"
#include "form/FormText.h"

namespace Wexa {

namespace {

[[noreturn]] void Fail(int line, const char* message) {
  throw WexaException("src/MFC/DialogImplMFC", line, message);
}

double MillisecondsSince(std::chrono::steady_clock::time_point start) {
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
      .count();
}

// The form's text, translated. Encrypted forms first; a file that is none may be a plain form.
std::wstring ReadForm(const std::wstring& path) {
  std::wstring text = Translator::GetInstance().TranslateUIFile(path);
  if (!text.empty()) return text;
  const auto bytes = ReadFile(path);
  const auto plain = bytes ? PlainFormText(*bytes) : std::nullopt;
  return plain ? Translator::GetInstance().TranslateUIText(path, *plain) : std::wstring();
}

void ParseForm(const std::wstring& text, FormModel& model) {
  FormParser parser;
  bool parsed = false;
  try {
    parsed = parser.Parse(text, model);
  } catch (const std::runtime_error&) {
    parsed = false;
  }
  if (!parsed) Fail(__LINE__, "Could not load and parse UI file");
  if (!model.root) Fail(__LINE__, "Cannot build UI model of dialog.");
}

}  // namespace

void Dialog::impl::Build(const std::wstring& uiFile) {
  auto start = std::chrono::steady_clock::now();
  const std::wstring form = ReadForm(uiFile);
  statistics.readMilliseconds = MillisecondsSince(start);
  if (form.empty()) Fail(__LINE__, "Could not load and parse UI file");

  start = std::chrono::steady_clock::now();
  FormModel model;
  ParseForm(form, model);
  statistics.parseMilliseconds = MillisecondsSince(start);

  start = std::chrono::steady_clock::now();
  DialogBuilder(*static_cast<Dialog*>(Owner()), *this, model).Build();
  BuildTemplate();
  statistics.buildMilliseconds = MillisecondsSince(start);
}

}  // namespace Wexa
