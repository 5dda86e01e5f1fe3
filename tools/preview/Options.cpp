#include "preview/Options.h"

#include <CLI/CLI.hpp>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "WexaConfig.h"
#include "preview/ExitStatus.h"
#include "preview/KeyMapFile.h"

namespace preview {
namespace {

constexpr const char* kDescription =
    "Shows Qt Designer forms as this library builds them: in a window, as a picture, as JSON.";

constexpr const char* kExamples = R"(
A FORM is a .ui file; a folder stands for the .ui files below it.
Pictures, dumps and reports are made offscreen unless --display or WEXA_DISPLAY tells otherwise.
A picture shows the whole window, with its frame, at the last --size.

Examples:
  wexa-preview settings.ui                            work in the dialog
  wexa-preview --png shot.png --scale 1.5 --skin dark settings.ui
  wexa-preview --dump - --size 400x300 --size 800x600 settings.ui
  wexa-preview --png second.png --page tabs=1 settings.ui
  wexa-preview --language de --plain --working-dir host settings.ui
  wexa-preview --report forms/                        one JSON line for each form

Exit status: 0 all went well, 1 a form or a file failed, 2 wrong options.)";

constexpr int kLargestSide = 16384;

std::string ReadSize(const std::string& text, Wexa::Size& size) {
  int width = 0;
  int height = 0;
  int used = 0;
  const int found = std::sscanf(text.c_str(), "%5dx%5d%n", &width, &height, &used);
  const bool whole = found == 2 && static_cast<std::size_t>(used) == text.size();
  if (!whole || width < 1 || height < 1 || width > kLargestSide || height > kLargestSide)
    return "'" + text + "' is no size like 640x480";
  size = {width, height};
  return {};
}

// CLI11 reports a message, which it puts behind the option's name.
void AddSizes(CLI::App& app, std::vector<Wexa::Size>& sizes) {
  const auto read = [&sizes](const CLI::results_t& texts) {
    for (const std::string& text : texts) {
      Wexa::Size size;
      if (const std::string error = ReadSize(text, size); !error.empty())
        throw CLI::ValidationError("--size", error);
      sizes.push_back(size);
    }
    return true;
  };
  app.add_option("--size", read, "Client size in pixels; may be repeated")
      ->type_name("WxH")
      ->expected(1)
      ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
}

// Every comparison with what is no number fails, so that a range does not find it.
std::string ComplaintIfNan(const std::string& text) {
  return std::isnan(std::strtod(text.c_str(), nullptr)) ? "is no number" : "";
}

void AddPages(CLI::App& app, std::map<std::string, int>& pages) {
  const auto read = [&pages](const CLI::results_t& texts) {
    for (const std::string& text : texts) {
      const auto equals = text.rfind('=');
      const std::string digits = equals == text.npos ? "" : text.substr(equals + 1);
      int index = 0;
      const auto end = std::from_chars(digits.data(), digits.data() + digits.size(), index);
      if (end.ec != std::errc() || end.ptr != digits.data() + digits.size() || index < 0)
        throw CLI::ValidationError("--page", "'" + text + "' is no page like tabs=1");
      pages[text.substr(0, equals)] = index;
    }
    return true;
  };
  app.add_option("--page", read,
                 "Show this page of a tab widget or stack, counted from 0; may repeat")
      ->type_name("NAME=INDEX")
      ->expected(1)
      ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
}

void AddLooks(CLI::App& app, Options& options) {
  app.add_option("--scale", options.scale, "Scale of the display, 1.5 for 144 dots per inch")
      ->type_name("S")
      ->check(CLI::Range(0.5, 10.0))
      ->check(ComplaintIfNan);
  app.add_option("--skin", options.skin, "Colours; the desktop's when not given")
      ->type_name("NAME")
      ->check(CLI::IsMember({"light", "dark", "contrast"}));
  app.add_option("--keymap", options.keyMap, "Colours of the dialogs: lines Key = #RRGGBB")
      ->type_name("FILE");
  app.add_flag("--rtl", options.rightToLeft, "Lay out from right to left");
  app.add_option("--display", options.display, "Where to show it")
      ->type_name("NAME")
      ->check(CLI::IsMember({"offscreen", "x11"}));
}

void AddLanguage(CLI::App& app, Options& options) {
  auto* language = app.add_option("--language", options.language,
                                  "Open the forms in this language, such as de or pt_BR");
  language->type_name("CODE");
  app.add_option(
         "--working-dir", options.workingDir,
         "The folder that has the language files in lang/CODE; the current one if not given")
      ->type_name("DIR")
      ->check(CLI::ExistingDirectory)
      ->needs(language);
  app.add_flag("--plain", options.plain, "The language files are not encrypted")->needs(language);
}

void AddOptions(CLI::App& app, Options& options) {
  app.footer(kExamples);
  app.set_version_flag("--version", "wexa-preview " WEXA_VERSION);
  app.add_option("FORM", options.forms, "The forms")->required()->type_name("");
  auto* png = app.add_option("--png", options.png, "Write a picture")->type_name("FILE");
  auto* dump =
      app.add_option("--dump", options.dump, "Write the geometry as JSON, - for standard output");
  dump->type_name("FILE");
  app.add_flag("--hidden", options.hidden, "Dump hidden widgets and pages, too")->needs(dump);
  AddSizes(app, options.sizes);
  AddPages(app, options.pages);
  AddLooks(app, options);
  AddLanguage(app, options);
  app.add_flag("--report", options.report, "Time each form; one line of JSON for each")
      ->excludes(png)
      ->excludes(dump);
}

void SetEnvironment(const char* name, const std::string& value) {
  setenv(name, value.c_str(), 1);
}

void ApplyDisplay(const Options& options) {
  if (!options.display.empty()) {
    SetEnvironment("WEXA_DISPLAY", options.display);
  } else if (options.WantsFiles() || options.report) {
    setenv("WEXA_DISPLAY", "offscreen", 0);
  }
  constexpr double kUnscaledDpi = 96;
  if (options.scale)
    SetEnvironment("WEXA_DPI", std::to_string(std::lround(kUnscaledDpi * *options.scale)));
}

}  // namespace

CommandLine ReadCommandLine(int argc, char** argv) {
  CLI::App app(kDescription, "wexa-preview");
  Options options;
  try {
    AddOptions(app, options);
    app.parse(argc, argv);
    return {options, kSuccess};
  } catch (const CLI::Success& wish) {
    return {std::nullopt, app.exit(wish)};
  } catch (const CLI::Error& error) {
    std::fprintf(stderr, "wexa-preview: %s (--help lists the options)\n", error.what());
    return {std::nullopt, kWrongOptions};
  }
}

void Apply(const Options& options) {
  ApplyDisplay(options);
  if (!options.skin.empty())
    SetEnvironment("WEXA_HIGH_CONTRAST", options.skin == "contrast" ? "1" : "0");
  if (options.skin == "dark") Wexa::SetGlobalSkinMode(Wexa::SkinMode::Dark);
  if (!options.keyMap.empty())
    Wexa::InitSkinColorByMap(Wexa::SkinMap::Inputs, ReadKeyMap(options.keyMap));
  if (options.rightToLeft) Wexa::SetLayoutRTL(true);
}

}  // namespace preview
