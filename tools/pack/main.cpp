// wexa-pack: encrypts language files and forms, and looks into encrypted ones.

#include <cstdio>
#include <exception>
#include <stdexcept>

#include "pack/Jobs.h"
#include "pack/Options.h"
#include "pack/PackedFile.h"
#include "pack/Progress.h"

namespace pack {
namespace {

constexpr int kFailure = 1;

void PrintText(const std::string& text) {
  const bool written = std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
  if (!written || std::fflush(stdout) != 0) throw std::runtime_error("cannot write its text");
}

void Do(Task task, const Job& job) {
  if (!job.problem.empty()) throw std::runtime_error(job.problem);
  switch (task) {
    case Task::Pack: return PackFile(job.source, job.target);
    case Task::Check: return void(ReadPackedFile(job.source));
    case Task::Print: return PrintText(ReadPackedFile(job.source));
  }
}

int Run(const Options& options) {
  const auto jobs = FindJobs(options);
  Progress progress(jobs.size());
  int failed = 0;
  for (const Job& job : jobs) {
    try {
      progress.Start(job.source.string());
      Do(options.task, job);
    } catch (const std::exception& error) {
      progress.Clear();
      std::fprintf(stderr, "wexa-pack: %s: %s\n", job.source.c_str(), error.what());
      ++failed;
    }
  }
  return failed == 0 ? 0 : kFailure;
}

}  // namespace
}  // namespace pack

int main(int argc, char** argv) {
  const pack::CommandLine commandLine = pack::ReadCommandLine(argc, argv);
  if (!commandLine.options) return commandLine.exitStatus;
  try {
    return pack::Run(*commandLine.options);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "wexa-pack: %s\n", error.what());
    return pack::kFailure;
  }
}
