#include "screen/Program.h"

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <system_error>
#include <utility>

namespace screen {
namespace {

using Clock = std::chrono::steady_clock;

void Check(int error, const char* what) {
  if (error != 0) throw std::system_error(error, std::generic_category(), what);
}

bool WaitForText(int file, Clock::time_point deadline) {
  using std::chrono::milliseconds;
  const auto rest = std::chrono::duration_cast<milliseconds>(deadline - Clock::now()).count();
  pollfd waited{file, POLLIN, 0};
  return rest > 0 && poll(&waited, 1, static_cast<int>(rest)) > 0;
}

}  // namespace

Program::Program(std::vector<std::string> command) {
  std::array<int, 2> pipe{};
  Check(pipe2(pipe.data(), O_CLOEXEC) == 0 ? 0 : errno, "pipe");
  errors_ = pipe[0];
  Start(command, pipe[1]);
  close(pipe[1]);
}

Program::~Program() {
  if (id_ > 0) {
    kill(id_, SIGKILL);
    Collect();
  }
  close(errors_);
}

void Program::Start(std::vector<std::string>& command, int errors) {
  std::vector<char*> words;
  for (auto& word : command) words.push_back(word.data());
  words.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_adddup2(&actions, errors, STDERR_FILENO);
  const int error = posix_spawn(&id_, words[0], &actions, nullptr, words.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  Check(error, words[0]);
}

int Program::Collect() {
  int status = 0;
  waitpid(std::exchange(id_, 0), &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

// The pipe's other end closes with the program.
Ending Program::WaitForEnd(int timeout) {
  const auto deadline = Clock::now() + std::chrono::milliseconds(timeout);
  Ending ending;
  std::array<char, 4096> buffer;
  ssize_t length = -1;
  while (length != 0 && WaitForText(errors_, deadline)) {
    length = read(errors_, buffer.data(), buffer.size());
    if (length > 0) ending.errors.append(buffer.data(), static_cast<std::size_t>(length));
  }
  if (length != 0) kill(id_, SIGKILL);
  ending.status = Collect();
  return ending;
}

}  // namespace screen
