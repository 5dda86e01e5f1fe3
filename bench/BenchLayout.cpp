// Laying out a dialog of a thousand widgets again.

#include "Label.h"
#include "bench/ShownForm.h"

namespace bench {
namespace {

constexpr int kWidgets = 1000;

// The pass over the geometry, with the moves of the native windows that it makes: one after the
// other, or each after a paint pass, which validates the windows and leaves the caches cold.
enum class Between { Nothing, Paint };

template <Between between>
void ResizeLayout(benchmark::State& state) {
  ShownForm form(kWidgets);
  for (auto _ : state) {
    const Wexa::Size size = form.NextSize();
    state.SetIterationTime(SecondsOf([&] {
      form.Layout().Fit({0, 0, size.Width(), size.Height()});
    }));
    if (between == Between::Paint) PaintNow();
  }
}
BENCHMARK(ResizeLayout<Between::Nothing>)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(ResizeLayout<Between::Paint>)->UseManualTime()->Unit(benchmark::kMillisecond);

void ResizeAndPaint(benchmark::State& state) {
  ShownForm form(kWidgets);
  for (auto _ : state) {
    const Wexa::Size size = form.NextSize();
    state.SetIterationTime(SecondsOf([&] {
      form.Impl().ResizeClient(size.Width(), size.Height());
      PaintNow();
    }));
  }
}
BENCHMARK(ResizeAndPaint)->UseManualTime()->Unit(benchmark::kMillisecond);

// From the new text to the end of the pass that it asked for.
void LabelChanged(benchmark::State& state) {
  ShownForm form(kWidgets);
  auto label = std::dynamic_pointer_cast<Wexa::Label>(form.Dialog().GetElementByName(L"label_1"));
  bool isLonger = false;
  for (auto _ : state) {
    isLonger = !isLonger;
    state.SetIterationTime(SecondsOf([&] {
      label->SetText(isLonger ? L"A longer name" : L"Name");
      form.Layout().Activate();
    }));
    AfxPumpPending();
  }
}
BENCHMARK(LabelChanged)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace bench
