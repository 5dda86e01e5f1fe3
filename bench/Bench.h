#pragma once

#include <benchmark/benchmark.h>

#include <ctime>
#include <string>

namespace bench {

// A display in memory of this scale; what was open on the one before must be gone.
void UseOffscreen(int scale);

// A file with the made form of so many widgets.
std::string GeneratedForm(int widgets);

inline std::wstring Wide(const std::string& path) {
  return {path.begin(), path.end()};
}

// Processor time used by this process so far: other programs do not count.
inline double ProcessorSeconds() {
  timespec time{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

// For benchmarks that time one step of several themselves.
template <typename Work>
double SecondsOf(Work work) {
  const double start = ProcessorSeconds();
  work();
  return ProcessorSeconds() - start;
}

// Starts the preview once, for the memory it needs. First thing in main: what a child is said to
// have used begins with the size of the process that starts it.
void MeasureStartMemory();

}  // namespace bench
