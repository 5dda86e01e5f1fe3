#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "Size.h"

namespace preview {

// What the command line asks for.
struct Options {
  std::vector<std::string> forms;  // files and folders, as given
  std::string png;                 // the picture's file; empty for none
  std::string dump;                // the JSON's file, "-" for standard output; empty for none
  std::vector<Wexa::Size> sizes;   // client sizes in pixels, in the order given
  std::optional<double> scale;
  std::string skin;        // "light", "dark", "contrast"; empty for the desktop's
  std::string keyMap;      // a file of colours by key; empty for none
  std::string display;     // "offscreen", "x11"; empty for what is there
  std::string language;    // a code as TS files write it; empty for none
  std::string workingDir;  // the folder of "lang"; empty for the current one
  bool plain = false;      // language files are not encrypted
  bool rightToLeft = false;
  bool report = false;
  bool hidden = false;               // dump what is hidden, too
  std::map<std::string, int> pages;  // to show, by the names of tab widgets and stacks

  bool WantsFiles() const { return !png.empty() || !dump.empty(); }
};

// What is left to do after reading the command line: work, or ending with a status.
struct CommandLine {
  std::optional<Options> options;
  int exitStatus = 0;
};

// Prints the help, the version or what is wrong with the options.
CommandLine ReadCommandLine(int argc, char** argv);

// Sets display, scale, skin, colours and direction. Before the first use of the library. Throws
// std::runtime_error for a key map that cannot be read.
void Apply(const Options& options);

}  // namespace preview
