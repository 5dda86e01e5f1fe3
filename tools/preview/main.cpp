// wexa-preview: shows forms in windows, as pictures, as JSON.

#include <sys/stat.h>

#include <cstdio>
#include <exception>
#include <filesystem>
#include <stdexcept>

#include "FileAside.h"
#include "preview/Dump.h"
#include "preview/ExitStatus.h"
#include "preview/FormFiles.h"
#include "preview/Language.h"
#include "preview/Options.h"
#include "preview/Preview.h"
#include "preview/PreviewWindow.h"
#include "preview/Report.h"

namespace preview {
namespace {

void PrintError(const std::string& line) {
  std::fprintf(stderr, "wexa-preview: %s\n", line.c_str());
}

constexpr auto kPermissions = std::filesystem::perms(0666);

std::filesystem::perms AllowedPermissions() {
  const mode_t mask = umask(0);
  umask(mask);
  return kPermissions & ~std::filesystem::perms(mask);
}

void WriteAside(const std::string& text, const std::string& path) {
  tools::FileAside file(path);
  file.Write(text.data(), text.size());
  file.TakePlace(AllowedPermissions());
}

void WritePicture(Preview& preview, const std::string& path) {
  tools::FileAside file(path);
  preview.SavePicture(file.Name());
  file.TakePlace(AllowedPermissions());
}

void WriteText(const std::string& text, const std::string& path) {
  if (path != "-") return WriteAside(text + '\n', path);
  if (std::puts(text.c_str()) == EOF || std::fflush(stdout) != 0)
    throw std::runtime_error("cannot write to standard output");
}

void WriteFiles(const Options& options, const std::string& file) {
  Preview preview(file);
  preview.Show();
  preview.ShowPages(options.pages);
  preview.Settle();
  if (!options.dump.empty()) {
    const std::string name = std::filesystem::path(file).stem().string();
    WriteText(DumpText(preview, name, options.sizes, options.hidden), options.dump);
  } else {
    for (const Wexa::Size& size : options.sizes) preview.Resize(size);
  }
  if (!options.png.empty()) WritePicture(preview, options.png);
}

// Where there is no screen, a picture beside the form takes the window's place.
void ShowForm(const Options& options, const std::string& file) {
  if (!IsOffscreen()) {
    const auto& sizes = options.sizes;
    return ShowInWindow(file, sizes.empty() ? std::nullopt : std::optional(sizes.back()),
                        options.pages);
  }
  Options picture = options;
  picture.png = std::filesystem::path(file).replace_extension(".png").string();
  WriteFiles(picture, file);
  std::printf("The display is offscreen: wrote %s\n", picture.png.c_str());
}

// What was wrong with the language for the forms so far, told once.
void PrintNewLanguageWarnings() {
  static std::size_t told = 0;
  const auto warnings = LanguageWarnings();
  for (; told < warnings.size(); ++told) PrintError(warnings[told]);
}

bool ShowOrWrite(const Options& options, const std::string& file) {
  try {
    options.WantsFiles() ? WriteFiles(options, file) : ShowForm(options, file);
    return true;
  } catch (const std::exception&) {
    PrintError(DescribeError(file));
    return false;
  }
}

bool PrintReport(const Options& options, const std::string& file) {
  const Report report = ReportForm(options, file);
  if (std::puts(report.json.c_str()) == EOF || std::fflush(stdout) != 0)
    throw std::runtime_error("cannot write the report");
  if (!report.ok) PrintError(report.error);
  return report.ok;
}

int Run(const Options& options) {
  const auto forms = FindForms(options.forms);
  if (options.WantsFiles() && forms.size() > 1) {
    PrintError("--png and --dump take one form, not " + std::to_string(forms.size()));
    return kWrongOptions;
  }
  Apply(options);
  if (const std::string missing = LoadLanguage(options); !missing.empty()) PrintError(missing);
  PrintNewLanguageWarnings();
  OpenDisplay();
  bool ok = true;
  for (const std::string& file : forms) {
    ok &= options.report ? PrintReport(options, file) : ShowOrWrite(options, file);
    PrintNewLanguageWarnings();
  }
  return ok ? kSuccess : kFailure;
}

}  // namespace
}  // namespace preview

int main(int argc, char** argv) {
  const preview::CommandLine commandLine = preview::ReadCommandLine(argc, argv);
  if (!commandLine.options) return commandLine.exitStatus;
  try {
    return preview::Run(*commandLine.options);
  } catch (const std::exception& error) {
    preview::PrintError(error.what());
    return preview::kFailure;
  }
}
