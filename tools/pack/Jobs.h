#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "pack/Options.h"

namespace pack {

inline constexpr const char* kPackedExtension = ".kv";

// One file to work on.
struct Job {
  std::filesystem::path source;
  std::filesystem::path target;  // the packed file to write; empty when there is none to write
  std::string problem;           // why there is nothing to do; empty when there is
};

// The files that the arguments stand for; those of folders sorted. A folder's packed files keep
// their places below the output folder. A folder that cannot be read is a job with a problem.
// Throws std::runtime_error for a folder that has none.
std::vector<Job> FindJobs(const Options& options);

}  // namespace pack
