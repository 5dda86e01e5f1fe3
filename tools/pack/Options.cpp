#include "pack/Options.h"

#include <CLI/CLI.hpp>
#include <cstdio>

namespace pack {
namespace {

constexpr int kWrongOptions = 2;

constexpr const char* kDescription =
    "Packs language files and forms as programs read them where encrypted files are expected.";

constexpr const char* kExamples = R"(
A FILE holds UTF-8 text; its packed file has the same name with .kv behind it. A folder stands for
the .ts, .ui and .xml files below it, or with --check and --print for the .kv files.

Examples:
  wexa-pack lang/de-DE/options_de-DE.ts      writes lang/de-DE/options_de-DE.ts.kv
  wexa-pack -o release/lang lang             packs a whole tree into another
  wexa-pack --check release/lang             finds damaged files
  wexa-pack --print settings.ui.kv           shows the text

Exit status: 0 all went well, 1 a file failed, 2 wrong options.)";

void AddOptions(CLI::App& app, Options& options) {
  app.footer(kExamples);
  app.set_version_flag("--version", "wexa-pack " WEXA_VERSION);
  app.add_option("FILE", options.paths, "Files and folders")->required()->type_name("");
  const auto set = [&options](Task task) { return [&options, task] { options.task = task; }; };
  auto* check = app.add_flag_callback("--check", set(Task::Check), "Check packed files");
  auto* print =
      app.add_flag_callback("--print", set(Task::Print), "Print the text of packed files");
  auto* folder = app.add_option("-o,--output", options.folder, "Write into this folder");
  folder->type_name("DIR")->excludes(check)->excludes(print);
  check->excludes(print);
}

}  // namespace

CommandLine ReadCommandLine(int argc, char** argv) {
  CLI::App app(kDescription, "wexa-pack");
  Options options;
  try {
    AddOptions(app, options);
    app.parse(argc, argv);
    return {options, 0};
  } catch (const CLI::Success& wish) {
    return {std::nullopt, app.exit(wish)};
  } catch (const CLI::Error& error) {
    std::fprintf(stderr, "wexa-pack: %s (--help lists the options)\n", error.what());
    return {std::nullopt, kWrongOptions};
  }
}

}  // namespace pack
