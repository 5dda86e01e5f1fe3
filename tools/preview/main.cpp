// wexa-preview: shows forms in windows, as pictures, as JSON.

#include <cstdio>
#include <exception>
#include <filesystem>
#include <stdexcept>

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

void WriteText(const std::string& text, const std::string& path) {
  std::FILE* file = path == "-" ? stdout : std::fopen(path.c_str(), "wb");
  if (!file) throw std::runtime_error("Cannot write " + path);
  const bool written = std::fputs(text.c_str(), file) >= 0 && std::fputc('\n', file) != EOF;
  const bool ended = file == stdout ? std::fflush(file) == 0 : std::fclose(file) == 0;
  if (!written || !ended) throw std::runtime_error("Cannot write " + path);
}

void WriteFiles(const Options& options, const std::string& file) {
  Preview preview(file);
  preview.Show();
  preview.Settle();
  if (!options.dump.empty()) {
    const std::string name = std::filesystem::path(file).stem().string();
    WriteText(DumpText(preview, name, options.sizes), options.dump);
  } else {
    for (const Wexa::Size& size : options.sizes) preview.Resize(size);
  }
  if (!options.png.empty()) preview.SavePicture(options.png);
}

// Where there is no screen, a picture beside the form takes the window's place.
void ShowForm(const Options& options, const std::string& file) {
  if (!IsOffscreen()) {
    const auto& sizes = options.sizes;
    return ShowInWindow(file, sizes.empty() ? std::nullopt : std::optional(sizes.back()));
  }
  Options picture = options;
  picture.png = std::filesystem::path(file).replace_extension(".png").string();
  WriteFiles(picture, file);
  std::printf("The display is offscreen: wrote %s\n", picture.png.c_str());
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
  std::puts(report.json.c_str());
  std::fflush(stdout);
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
  for (const std::string& warning : LoadLanguage(options)) PrintError(warning);
  OpenDisplay();
  bool ok = true;
  for (const std::string& file : forms)
    ok &= options.report ? PrintReport(options, file) : ShowOrWrite(options, file);
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
