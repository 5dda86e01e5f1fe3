#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

namespace screen {

// How a program ended: its exit status, -1 when a signal ended it, and what it wrote as errors.
struct Ending {
  int status = -1;
  std::string errors;
};

// A program that runs beside the test. It is ended with this object.
class Program {
 public:
  // The file and its arguments; throws std::system_error when it cannot be started.
  explicit Program(std::vector<std::string> command);
  ~Program();
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  // Kills a program that has not ended after `timeout` milliseconds.
  Ending WaitForEnd(int timeout = 20000);

 private:
  void Start(std::vector<std::string>& command, int errors);
  int Collect();

  pid_t id_ = 0;
  int errors_ = -1;
};

}  // namespace screen
