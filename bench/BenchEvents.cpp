// What a host's event procedure and callback lists add to what the library does anyway.

#include <thread>

#include "CallbackList.h"
#include "bench/ShownForm.h"
#include "platform/VirtualKeys.h"

namespace bench {
namespace {

struct Message {
  UINT number;
  WPARAM wParam;
  LPARAM lParam;
};
constexpr Message kTimer{WM_TIMER, 1, 0};
constexpr Message kMove{WM_MOUSEMOVE, MK_SHIFT, (7 << 16) | 5};
constexpr Message kKey{WM_KEYUP, VK_SHIFT, 0};

constexpr int kBatch = 2000;

double SecondsToSend(HWND window, const Message& message) {
  return SecondsOf([&] {
    for (int i = 0; i < kBatch; ++i)
      SendMessageW(window, message.number, message.wParam, message.lParam);
  });
}

// Shared pointers and locks cost more in a program that has had threads, as real ones have.
void HaveThreads() {
  std::thread([] {}).join();
}

// The same messages with a procedure that refuses them and without one: the difference.
void Offer(benchmark::State& state, const Message& message) {
  HaveThreads();
  ShownForm form(10);
  Wexa::BaseGUIObject& dialog = form.Dialog();
  HWND window = dialog.GetPlatformHandle();
  int offered = 0;
  double without = 0;
  double with = 0;
  for (auto _ : state) {
    dialog.SetEventProcedure({});
    without += SecondsToSend(window, message);
    dialog.SetEventProcedure([&offered](Wexa::BaseGUIObject*, Wexa::Event*) {
      ++offered;
      return false;
    });
    with += SecondsToSend(window, message);
  }
  const double sent = static_cast<double>(state.iterations()) * kBatch;
  if (offered != state.iterations() * kBatch) state.SkipWithError("not every event came");
  state.counters["dispatch_ns"] = without / sent * 1e9;
  state.counters["offer_ns"] = (with - without) / sent * 1e9;
}
BENCHMARK_CAPTURE(Offer, Timer, kTimer)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Offer, MouseMove, kMove)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Offer, KeyRelease, kKey)->Unit(benchmark::kMicrosecond);

void Fire(benchmark::State& state) {
  HaveThreads();
  Wexa::CallbackList<int> list;
  int sum = 0;
  for (auto i = state.range(0); i > 0; --i) list.Connect([&sum](int n) { sum += n; });
  for (auto _ : state) {
    list(1);
    benchmark::DoNotOptimize(sum);
  }
}
BENCHMARK(Fire)->ArgName("connections")->Arg(0)->Arg(1)->Arg(100);

}  // namespace
}  // namespace bench
