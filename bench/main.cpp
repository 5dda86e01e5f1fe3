// wexa_bench: what opening, laying out, painting and starting cost.

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <stdexcept>

#include "bench/Bench.h"
#include "bench/MadeForm.h"
#include "data/TestData.h"
#include "display/offscreen/OffscreenDisplay.h"

namespace bench {

namespace {

// A folder for files, gone with the process.
class Folder {
 public:
  Folder() {
    std::string path = (std::filesystem::temp_directory_path() / "wexa-bench-XXXXXX").string();
    if (!mkdtemp(path.data())) throw std::runtime_error("no temporary folder");
    path_ = path;
  }
  ~Folder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;

  const std::filesystem::path& Path() const { return path_; }

 private:
  std::filesystem::path path_;
};

}  // namespace

void UseOffscreen(int scale) {
  constexpr int kUnscaledDpi = 96;
  display::SetCurrent(std::make_unique<display::OffscreenDisplay>(kUnscaledDpi * scale));
}

std::string GeneratedForm(int widgets) {
  static const Folder folder;
  const auto path = folder.Path() / ("form" + std::to_string(widgets) + ".ui");
  if (!std::filesystem::exists(path)) std::ofstream(path, std::ios::binary) << MadeForm(widgets);
  return path.string();
}

}  // namespace bench

namespace {

// A fixed piece of arithmetic: it tells a slow hour of the machine from a slow change of ours.
void Yardstick(benchmark::State& state) {
  for (auto _ : state) {
    unsigned value = 1;
    for (int i = 0; i < 1'000'000; ++i) value = value * 1664525U + 1013904223U;
    benchmark::DoNotOptimize(value);
  }
}
BENCHMARK(Yardstick)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
  setenv("FONTCONFIG_FILE", testdata::InProject("tests/support/fonts.conf").c_str(), 1);
  setenv("LC_ALL", "C.UTF-8", 1);
  bench::MeasureStartMemory();
  bench::UseOffscreen(1);
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
