// Painting a whole dialog again.

#include "bench/ShownForm.h"

namespace bench {
namespace {

void Repaint(benchmark::State& state) {
  ShownForm form(40, static_cast<int>(state.range(0)));
  for (auto _ : state) {
    state.SetIterationTime(SecondsOf([&] {
      form.Dialog().UpdateWindow();
      PaintNow();
    }));
  }
}
BENCHMARK(Repaint)->UseManualTime()->ArgName("scale")->Arg(1)->Arg(2)->Unit(
    benchmark::kMillisecond);

}  // namespace
}  // namespace bench
