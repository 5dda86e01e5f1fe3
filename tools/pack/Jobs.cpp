#include "pack/Jobs.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>

namespace pack {
namespace {

namespace fs = std::filesystem;

bool IsWanted(const fs::path& file, Task task) {
  const auto extension = file.extension();
  if (task != Task::Pack) return extension == kPackedExtension;
  return extension == ".ts" || extension == ".ui" || extension == ".xml";
}

std::vector<Job> FilesBelow(const fs::path& folder, Task task) {
  std::vector<Job> found;
  std::error_code error;
  for (const auto& entry : fs::directory_iterator(folder, error)) {
    if (entry.is_directory() && !entry.is_symlink()) {
      std::ranges::move(FilesBelow(entry.path(), task), std::back_inserter(found));
    } else if (entry.is_regular_file() && IsWanted(entry.path(), task)) {
      found.push_back({entry.path(), {}, {}});
    }
  }
  if (error) found.push_back({folder, {}, "cannot be read: " + error.message()});
  return found;
}

// `base` is the folder that was asked for, or that of a file that was.
Job MakeJob(const Options& options, const fs::path& source, const fs::path& base) {
  if (options.task != Task::Pack) return {source, {}, {}};
  fs::path target = source;
  if (!options.folder.empty()) target = fs::path(options.folder) / source.lexically_relative(base);
  return {source, target += kPackedExtension, {}};
}

void CheckTargetsDiffer(std::vector<Job> jobs) {
  std::ranges::sort(jobs, {}, &Job::target);
  const auto same = std::ranges::adjacent_find(jobs, {}, &Job::target);
  if (same == jobs.end() || same->target.empty()) return;
  throw std::runtime_error(same->target.string() + ": stands for both " + same->source.string() +
                           " and " + std::next(same)->source.string());
}

}  // namespace

std::vector<Job> FindJobs(const Options& options) {
  std::vector<Job> jobs;
  for (const fs::path path : options.paths) {
    std::error_code error;
    if (!fs::is_directory(path, error)) {
      jobs.push_back(MakeJob(options, path, path.parent_path()));
      continue;
    }
    auto found = FilesBelow(path, options.task);
    if (found.empty())
      throw std::runtime_error(path.string() + ": no such files below this folder");
    std::ranges::sort(found, {}, &Job::source);
    for (Job& job : found)
      jobs.push_back(job.problem.empty() ? MakeJob(options, job.source, path) : std::move(job));
  }
  CheckTargetsDiffer(jobs);
  return jobs;
}

}  // namespace pack
