// Skins: making one, colouring it by key, and a dialog that changes from one to another.

#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>

#include "SkinManager.h"
#include "bench/ShownForm.h"
#include "skin/SlotTable.h"

namespace bench {
namespace {

void MakeSkin(benchmark::State& state) {
  for (auto _ : state) {
    Wexa::SkinManager skin(static_cast<Wexa::SkinMode>(state.range(0)));
    benchmark::DoNotOptimize(skin.GetPtr());
  }
  state.counters["bytes"] = sizeof(Wexa::SkinManager);
}
BENCHMARK(MakeSkin)->ArgName("mode")->Arg(0)->Arg(1);

void ApplyKeyMap(benchmark::State& state) {
  std::map<std::wstring, Wexa::SkinManagerColor> colors;
  for (const wchar_t* key : Wexa::kColorKeyNames) colors[key] = 0x102030UL;
  Wexa::SkinManager skin(Wexa::SkinMode::Default);
  for (auto _ : state) skin.InitSkinColorByMap(Wexa::SkinMap::Inputs, colors);
}
BENCHMARK(ApplyKeyMap)->Unit(benchmark::kMicrosecond);

// The form of a hundred widgets twice, side by side.
std::string FormOfTwoHundred() {
  std::ostringstream text;
  text << std::ifstream(GeneratedForm(100)).rdbuf();
  const std::string form = text.str();
  const auto start = form.find("<layout");
  const auto end = form.rfind("</layout>");
  const std::string half = "<item>" + form.substr(start, end - start) + "</layout></item>";
  const auto file = std::filesystem::temp_directory_path() / "wexa-bench-200.ui";
  std::ofstream(file) << form.substr(0, start) << R"(<layout class="QHBoxLayout" name="pair">)"
                      << half << half << form.substr(end);
  return file.string();
}

// From light to dark or back, until it is painted; "repaints" is how many full repaints that is.
void SwitchSkin(benchmark::State& state) {
  ShownForm form(FormOfTwoHundred());
  double switches = 0;
  double repaints = 0;
  bool isDark = false;
  for (auto _ : state) {
    isDark = !isDark;
    const double seconds = SecondsOf([&] {
      form.Dialog().SetSkinMode(isDark ? Wexa::SkinMode::Dark : Wexa::SkinMode::Default, true);
      PaintNow();
    });
    state.SetIterationTime(seconds);
    switches += seconds;
    repaints += SecondsOf([&] {
      form.Dialog().UpdateWindow();
      PaintNow();
    });
  }
  state.counters["repaints"] = switches / repaints;
}
BENCHMARK(SwitchSkin)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace bench
