#pragma once

#include <optional>
#include <string>
#include <vector>

namespace pack {

enum class Task { Pack, Check, Print };

// What the command line asks for.
struct Options {
  Task task = Task::Pack;
  std::vector<std::string> paths;  // files and folders, as given
  std::string folder;              // of the packed files; empty for beside their sources
};

// What is left to do after reading the command line: work, or ending with a status.
struct CommandLine {
  std::optional<Options> options;
  int exitStatus = 0;
};

// Prints the help, the version or what is wrong with the options.
CommandLine ReadCommandLine(int argc, char** argv);

}  // namespace pack
