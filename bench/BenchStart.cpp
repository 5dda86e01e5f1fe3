// From the start of a process to the first frame of a form in it, and the memory that takes.

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>

#include <algorithm>
#include <array>
#include <cstdlib>

#include "bench/Bench.h"

extern char** environ;

namespace bench {
namespace {

struct Run {
  bool ok = false;
  double megabytes = 0;  // the most that was resident
};

// --report opens, lays out and paints the form, and writes one line.
Run RunPreview(const char* display, std::string form) {
  std::array<std::string, 5> words = {WEXA_PREVIEW, "--report", "--display", display, form};
  std::array<char*, words.size() + 1> arguments{};
  std::ranges::transform(words, arguments.begin(), [](auto& word) { return word.data(); });
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, 1, "/dev/null", O_WRONLY, 0);
  pid_t child = 0;
  const int error = posix_spawn(&child, WEXA_PREVIEW, &actions, nullptr, arguments.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  int status = 0;
  rusage usage{};
  if (error != 0 || wait4(child, &status, 0, &usage) != child) return {};
  return {status == 0, static_cast<double>(usage.ru_maxrss) / 1024};
}

struct StartMemory {
  double offscreen = 0;
  double onServer = 0;
} startMemory;

void StartToFirstFrame(benchmark::State& state, const char* display, double megabytes) {
  for (auto _ : state)
    if (!RunPreview(display, GeneratedForm(40)).ok) state.SkipWithError("wexa-preview failed");
  state.counters["MB"] = megabytes;
}

void Offscreen(benchmark::State& state) {
  StartToFirstFrame(state, "offscreen", startMemory.offscreen);
}
BENCHMARK(Offscreen)->Unit(benchmark::kMillisecond)->UseRealTime()->Name("StartToFirstFrame");

void OnServer(benchmark::State& state) {
  if (!std::getenv("DISPLAY")) return state.SkipWithError("no DISPLAY; run under xvfb-run");
  StartToFirstFrame(state, "x11", startMemory.onServer);
}
BENCHMARK(OnServer)->Unit(benchmark::kMillisecond)->UseRealTime()->Name("StartToFirstFrameX11");

}  // namespace

void MeasureStartMemory() {
  startMemory.offscreen = RunPreview("offscreen", GeneratedForm(40)).megabytes;
  if (std::getenv("DISPLAY")) startMemory.onServer = RunPreview("x11", GeneratedForm(40)).megabytes;
}

}  // namespace bench
