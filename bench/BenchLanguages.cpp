// Language files and forms in other languages. Figures count beside those of the yardsticks: the
// XML parser alone, and the same ciphers of a library made for speed.

#define OPENSSL_SUPPRESS_DEPRECATED
#include <malloc.h>
#include <openssl/evp.h>
#include <openssl/rc4.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <rapidxml/rapidxml.hpp>

#include "FileText.h"
#include "TrString.h"
#include "Translator.h"
#include "Utf8.h"
#include "WexaConfig.h"
#include "bench/Bench.h"
#include "bench/MadeForm.h"
#include "data/TestData.h"
#include "form/FormParser.h"
#include "form/FormText.h"
#include "translation/EncrypterAccess.h"
#include "translation/Rc4.h"

namespace bench {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kMegabyte = 1'000'000;
constexpr const wchar_t* kLanguage = L"pt_BR";

void Replace(std::string& text, const std::string& from, const std::string& to) {
  for (auto at = text.find(from); at != text.npos; at = text.find(from, at + to.size()))
    text.replace(at, from.size(), to);
}

// The contexts of a TS file again and again, each time for other forms.
std::string LargeTsFile() {
  std::string ts = testdata::BytesOf(testdata::TsFile("de"));
  Replace(ts, "\"de_DE\"", "\"pt_BR\"");
  const auto start = ts.find("<context>");
  const auto end = ts.find("</TS>");
  std::string large = ts.substr(0, start);
  for (int copy = 0; large.size() < 5 * kMegabyte; ++copy) {
    std::string contexts = ts.substr(start, end - start);
    Replace(contexts, ".ui\"", std::to_string(copy) + ".ui\"");
    large += contexts;
  }
  return large + ts.substr(end);
}

// The items of a generated form, again and again.
std::string LongForm() {
  const std::string form = MadeForm(1000);
  const auto start = form.find("<item");
  const auto end = form.rfind("</item>") + 7;
  std::string lines = form.substr(0, start);
  while (std::ranges::count(lines, '\n') < 10'000) lines += form.substr(start, end - start) + "\n";
  return lines + form.substr(end);
}

// A folder of language files, the working directory while it lives.
class LanguageFolder {
 public:
  LanguageFolder() {
    std::string path = (fs::temp_directory_path() / "wexa-bench-XXXXXX").string();
    folder_ = std::string(mkdtemp(path.data())) + "/";
    Wexa::SetWorkingDirPath(Wide(folder_));
    Wexa::SetCurrentLanguage(kLanguage, false);
  }
  ~LanguageFolder() {
    Wexa::SetCurrentLanguage(L"", true);
    Wexa::SetWorkingDirPath(oldFolder_);
    fs::remove_all(folder_);
  }
  LanguageFolder(const LanguageFolder&) = delete;
  LanguageFolder& operator=(const LanguageFolder&) = delete;

  static void Write(const std::wstring& path, std::string_view bytes) {
    const fs::path native = Wexa::NativePath(path);
    fs::create_directories(native.parent_path());
    std::ofstream(native, std::ios::binary) << bytes;
  }

 private:
  std::string folder_;
  std::wstring oldFolder_ = Wexa::GetWorkingDirPath();
};

// -- TS files
// ----------------------------------------------------------------------------------------

// A program reads its languages once, into memory that the system has yet to give it; that takes
// most of the time. The other figure is for memory at hand, as a second file may find it.
enum class Memory { AtHand, Fresh };

// The allocator keeps free memory by the largest block it has seen freed.
void KeepFreeMemory() {
  constexpr std::size_t kLargestThatCounts = 31 << 20;
  benchmark::DoNotOptimize(std::string(kLargestThatCounts, ' ').data());
}

void TsRead(benchmark::State& state, Memory memory) {
  const LanguageFolder folder;
  auto& translator = Wexa::Translator::GetInstance();
  LanguageFolder::Write(Wexa::GetTranslationFilePath(L"large"), LargeTsFile());
  KeepFreeMemory();
  for (auto _ : state) {
    if (memory == Memory::Fresh) malloc_trim(0);
    state.SetIterationTime(SecondsOf([&] { translator.LoadStrings(L"large"); }));
    translator.ResetStringsTable();
  }
}

BENCHMARK_CAPTURE(TsRead, fresh, Memory::Fresh)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(TsRead, at_hand, Memory::AtHand)->UseManualTime()->Unit(benchmark::kMillisecond);

// The same text by the parser alone, as its users call it.
void TsParserAlone(benchmark::State& state, Memory memory) {
  const auto text = *Wexa::WidenUtf8(LargeTsFile());
  std::u32string copy;
  KeepFreeMemory();
  for (auto _ : state) {
    copy.assign(text.begin(), text.end());
    rapidxml::xml_document<char32_t> document;
    if (memory == Memory::Fresh) malloc_trim(0);
    state.SetIterationTime(SecondsOf([&] { document.parse<0>(copy.data()); }));
  }
}
BENCHMARK_CAPTURE(TsParserAlone, fresh, Memory::Fresh)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(TsParserAlone, at_hand, Memory::AtHand)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

// -- Ciphers
// -----------------------------------------------------------------------------------------

template <typename Work>
void OnAMegabyte(benchmark::State& state, Work work) {
  std::vector<unsigned char> data(kMegabyte, 'x');
  for (auto _ : state) {
    work(data);
    benchmark::ClobberMemory();
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * kMegabyte));
}

void Md5(benchmark::State& state) {
  OnAMegabyte(state, [](auto& data) { benchmark::DoNotOptimize(EncrypterAccess::DigestOf(data)); });
}
BENCHMARK(Md5);

void Md5OfOpenSsl(benchmark::State& state) {
  OnAMegabyte(state, [](auto& data) {
    unsigned char digest[EVP_MAX_MD_SIZE];
    EVP_Digest(data.data(), data.size(), digest, nullptr, EVP_md5(), nullptr);
  });
}
BENCHMARK(Md5OfOpenSsl);

constexpr std::string_view kPassword = "a key of 27 characters here";

void Rc4(benchmark::State& state) {
  OnAMegabyte(state, [](auto& data) { Wexa::Rc4(data, kPassword); });
}
BENCHMARK(Rc4);

void Rc4OfOpenSsl(benchmark::State& state) {
  OnAMegabyte(state, [](auto& data) {
    RC4_KEY key;
    RC4_set_key(&key, static_cast<int>(kPassword.size()),
                reinterpret_cast<const unsigned char*>(kPassword.data()));
    RC4(&key, data.size(), data.data(), data.data());
  });
}
BENCHMARK(Rc4OfOpenSsl);

// -- Forms and texts
// ---------------------------------------------------------------------------------

// A translation for every line of the form that holds a string.
std::string TsFor(const std::string& form) {
  std::string ts = "<TS language=\"pt_BR\"><context><name>Form</name>";
  unsigned line = 1;
  for (std::size_t at = 0; at < form.size(); ++line) {
    const auto end = std::min(form.find('\n', at), form.size());
    if (form.substr(at, end - at).find("<string>") != form.npos) {
      ts += "<message><location filename=\"long.ui\" line=\"" + std::to_string(line) +
            "\"/><translation>Tradu&#231;&#227;o</translation></message>\n";
    }
    at = end + 1;
  }
  return ts + "</context></TS>";
}

void TranslateForm(benchmark::State& state) {
  const LanguageFolder folder;
  auto& translator = Wexa::Translator::GetInstance();
  const std::string form = LongForm();
  LanguageFolder::Write(Wexa::GetTranslationFilePath(L"long"), TsFor(form));
  translator.LoadStrings(L"long");
  const std::wstring path = Wexa::GetWorkingDirPath() + L"long.ui.kv";
  const auto packed = EncrypterAccess::Pack(form);
  LanguageFolder::Write(path, {reinterpret_cast<const char*>(packed.data()), packed.size()});
  for (auto _ : state) benchmark::DoNotOptimize(translator.TranslateUIFile(path));
}
BENCHMARK(TranslateForm)->Unit(benchmark::kMicrosecond);

// As a dialog does with a form that is not encrypted.
void ParsePlainForm(benchmark::State& state) {
  const std::string form = LongForm();
  for (auto _ : state) {
    Wexa::FormModel model;
    Wexa::FormParser().Parse(*Wexa::PlainFormText(form), model);
    benchmark::DoNotOptimize(model.root);
  }
}
BENCHMARK(ParsePlainForm)->Unit(benchmark::kMicrosecond);

void LookUpText(benchmark::State& state) {
  const LanguageFolder folder;
  std::string strings = "<strings language=\"pt_BR\"><StringTable>";
  for (int id = 0; id < 1000; ++id)
    strings += "<string id=\"text" + std::to_string(id) + "\">Um texto para o teste</string>";
  LanguageFolder::Write(Wexa::GetStringsFilePath(L"options", false),
                        strings + "</StringTable></strings>");
  Wexa::Translator::GetInstance().LoadStrings(L"options");
  const std::wstring name = L"options";
  const std::wstring id = L"text500";
  const std::wstring fallback = L"A text for the test";
  for (auto _ : state) benchmark::DoNotOptimize(Wexa::TrString(name, id, fallback));
}
BENCHMARK(LookUpText);

}  // namespace
}  // namespace bench
