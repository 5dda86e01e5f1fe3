// Opening forms into memory, step by step and as a whole.

#include <memory>

#include "Dialog.h"
#include "bench/Bench.h"
#include "data/TestData.h"
#include "platform/Window.h"

namespace bench {
namespace {

enum class Step { Build, Layout, Paint, Open, Destroy };

struct Times {
  double build = 0;
  double layout = 0;
  double paint = 0;
  double destroy = 0;

  double Of(Step step) const {
    switch (step) {
      case Step::Build: return build;
      case Step::Layout: return layout;
      case Step::Paint: return paint;
      case Step::Destroy: return destroy;
      default: return build + layout + paint;
    }
  }
};

Times OpenAndClose(const std::wstring& file) {
  Times times;
  std::unique_ptr<Wexa::Dialog> dialog;
  times.build = SecondsOf([&] { dialog = std::make_unique<Wexa::Dialog>(file, nullptr, 0, 1.0); });
  times.layout = SecondsOf([&] { dialog->DoModeless(true); });
  times.paint = SecondsOf([] { PaintNow(); });
  times.destroy = SecondsOf([&] { dialog.reset(); });
  return times;
}

template <Step step>
void Form(benchmark::State& state) {
  const std::wstring file = Wide(GeneratedForm(static_cast<int>(state.range(0))));
  OpenAndClose(file);  // fonts and glyphs are looked up once
  for (auto _ : state) state.SetIterationTime(OpenAndClose(file).Of(step));
}

void Sizes(benchmark::internal::Benchmark* benchmark) {
  benchmark->Arg(10)->Arg(40)->Arg(100)->Arg(1000);
  benchmark->UseManualTime()->Unit(benchmark::kMillisecond);
}
BENCHMARK(Form<Step::Build>)->Apply(Sizes)->Name("FormBuild");
BENCHMARK(Form<Step::Layout>)->Apply(Sizes)->Name("FormLayout");
BENCHMARK(Form<Step::Paint>)->Apply(Sizes)->Name("FormFirstPaint");
BENCHMARK(Form<Step::Open>)->Apply(Sizes)->Name("FormOpen");
BENCHMARK(Form<Step::Destroy>)->Apply(Sizes)->Name("FormDestroy");

// The mean of one form of other programs.
void RealForm(benchmark::State& state) {
  const auto& forms = testdata::GivenForms();
  if (forms.empty()) return state.SkipWithError(testdata::kNoGivenForms);
  for (const std::string& form : forms) OpenAndClose(Wide(form));
  for (auto _ : state) {
    double seconds = 0;
    for (const std::string& form : forms) seconds += OpenAndClose(Wide(form)).Of(Step::Open);
    state.SetIterationTime(seconds / static_cast<double>(forms.size()));
  }
}
BENCHMARK(RealForm)->UseManualTime()->Unit(benchmark::kMillisecond)->Name("RealFormOpen");

}  // namespace
}  // namespace bench
