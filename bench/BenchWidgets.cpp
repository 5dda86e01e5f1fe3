// Widgets without their windows: time and memory of each.

#include <malloc.h>

#include <memory>
#include <vector>

#include "Button.h"
#include "Label.h"
#include "bench/Bench.h"

namespace bench {
namespace {

std::size_t AllocatedBytes() {
  const auto heap = mallinfo2();
  return heap.uordblks + heap.hblkhd;
}

template <typename Widget>
double BytesOfOne() {
  constexpr std::size_t kCount = 1000;
  std::vector<std::unique_ptr<Widget>> widgets(kCount);
  const std::size_t before = AllocatedBytes();
  for (auto& widget : widgets) widget = std::make_unique<Widget>();
  return static_cast<double>(AllocatedBytes() - before) / kCount;
}

// A batch is made and timed, then destroyed untimed.
template <typename Widget>
void Make(benchmark::State& state) {
  constexpr int kBatch = 100;
  for (auto _ : state) {
    std::vector<std::unique_ptr<Widget>> widgets(kBatch);
    const double seconds = SecondsOf([&] {
      for (auto& widget : widgets) widget = std::make_unique<Widget>();
    });
    state.SetIterationTime(seconds / kBatch);
  }
  state.counters["bytes"] = BytesOfOne<Widget>();
}
BENCHMARK(Make<Wexa::Button>)
    ->UseManualTime()
    ->Iterations(2000)
    ->Unit(benchmark::kMicrosecond)
    ->Name("MakeButton");
BENCHMARK(Make<Wexa::Label>)
    ->UseManualTime()
    ->Iterations(2000)
    ->Unit(benchmark::kMicrosecond)
    ->Name("MakeLabel");

}  // namespace
}  // namespace bench
