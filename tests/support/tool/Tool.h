#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace tool {

struct Outcome {
  int status = -1;
  std::string output;
  std::string errors;
};

// A built program, run in a folder of its own that goes with this object.
class Tool {
 public:
  explicit Tool(std::string program);
  ~Tool();
  Tool(const Tool&) = delete;
  Tool& operator=(const Tool&) = delete;

  // Arguments are words for the shell, NAME=VALUE words add to the environment; relative files are
  // in the folder.
  Outcome Run(const std::string& arguments, const std::string& environment = {}) const;
  void Write(const std::string& file, const std::string& text) const;
  std::string Read(const std::string& file) const;
  std::string PathOf(const std::string& file) const { return folder_ / file; }

 private:
  std::string program_;
  std::filesystem::path folder_;
};

// The width and height that a PNG file states; (0, 0) for what is none.
std::pair<int, int> SizeOfPng(const std::string& bytes);

std::vector<std::string> Lines(const std::string& text);

}  // namespace tool
