#include "support/tool/Tool.h"

#include <sys/wait.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>

namespace tool {

Tool::Tool(std::string program) : program_(std::move(program)) {
  std::string name = (std::filesystem::temp_directory_path() / "wexa-tool-XXXXXX").string();
  if (!mkdtemp(name.data())) throw std::runtime_error("no temporary folder");
  folder_ = std::filesystem::path(name) / "files";
  std::filesystem::create_directory(folder_);
}

Tool::~Tool() {
  std::error_code ignored;
  std::filesystem::remove_all(folder_.parent_path(), ignored);
}

Outcome Tool::Run(const std::string& arguments, const std::string& environment) const {
  const std::string command = "cd " + folder_.string() + " && " + environment + " " + program_ +
                              " " + arguments + " >../output 2>../errors";
  const int status = std::system(command.c_str());
  return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, Read("../output"), Read("../errors")};
}

void Tool::Write(const std::string& file, const std::string& text) const {
  std::filesystem::create_directories((folder_ / file).parent_path());
  std::ofstream(folder_ / file, std::ios::binary) << text;
}

std::string Tool::Read(const std::string& file) const {
  std::ifstream stream(folder_ / file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

std::pair<int, int> SizeOfPng(const std::string& bytes) {
  constexpr std::size_t kWidthAt = 16;
  constexpr std::size_t kHeightAt = 20;
  constexpr std::size_t kHeaderEnd = 24;
  if (bytes.size() < kHeaderEnd || bytes.compare(1, 3, "PNG") != 0) return {};
  const auto number = [&bytes](std::size_t at) {
    int value = 0;
    for (std::size_t i = at; i < at + 4; ++i)
      value = value * 256 + static_cast<unsigned char>(bytes[i]);
    return value;
  };
  return {number(kWidthAt), number(kHeightAt)};
}

std::vector<std::string> Lines(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

}  // namespace tool
