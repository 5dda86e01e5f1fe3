// wexa_bench: what opening, laying out, painting and starting cost.

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <memory>

#include "ScaleFactor.h"
#include "bench/Bench.h"
#include "display/offscreen/OffscreenDisplay.h"

namespace bench {

void UseOffscreen(int scale) {
  constexpr int kUnscaledDpi = 96;
  display::SetCurrent(std::make_unique<display::OffscreenDisplay>(kUnscaledDpi * scale));
  Wexa::ResetScaleFactor();
}

std::string GeneratedForm(int widgets) {
  return WEXA_SHARED_DIR "/bench/form" + std::to_string(widgets) + ".ui";
}

std::vector<std::string> RealForms() {
  std::vector<std::string> forms;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(WEXA_SHARED_DIR "/forms"))
    if (entry.path().extension() == ".ui") forms.push_back(entry.path().string());
  std::ranges::sort(forms);
  return forms;
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
  setenv("FONTCONFIG_FILE", WEXA_SOURCE_DIR "/tests/support/fonts.conf", 1);
  setenv("LC_ALL", "C.UTF-8", 1);
  bench::MeasureStartMemory();
  bench::UseOffscreen(1);
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
