#include "preview/Report.h"

#include <chrono>
#include <cmath>
#include <nlohmann/json.hpp>

#include "Utf8.h"
#include "preview/FormFiles.h"
#include "preview/Preview.h"

namespace preview {
namespace {

using Json = nlohmann::ordered_json;
using Clock = std::chrono::steady_clock;

struct Timing {
  double layout = 0;
  double paint = 0;
};

template <typename Work>
double MillisecondsOf(Work work) {
  const auto start = Clock::now();
  work();
  return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

double Microseconds(double milliseconds) {
  return std::round(milliseconds * 1000) / 1000;
}

Timing Exercise(Preview& preview, const Options& options) {
  Timing timing;
  timing.layout = MillisecondsOf([&] { preview.Show(); });
  timing.paint = MillisecondsOf([&] { preview.Paint(); });
  preview.Settle();
  for (const Wexa::Size& size : options.sizes) preview.Resize(size);
  return timing;
}

Json Line(const std::string& file, const std::string& error,
          const Wexa::BuildStatistics& statistics, const Timing& timing) {
  Json unknown = Json::array();
  for (const auto& name : statistics.unknownClasses) unknown.push_back(Wexa::NarrowUtf8(name));
  return {{"file", file},
          {"ok", error.empty()},
          {"error", error},
          {"widgets", statistics.widgets},
          {"unknown", unknown},
          {"ms",
           {{"read", Microseconds(statistics.readMilliseconds)},
            {"parse", Microseconds(statistics.parseMilliseconds)},
            {"build", Microseconds(statistics.buildMilliseconds)},
            {"layout", Microseconds(timing.layout)},
            {"paint", Microseconds(timing.paint)}}}};
}

}  // namespace

Report ReportForm(const Options& options, const std::string& file) {
  Wexa::BuildStatistics statistics;
  Timing timing;
  std::string error;
  try {
    Preview preview(file);
    statistics = preview.Impl().Statistics();
    timing = Exercise(preview, options);
  } catch (const std::exception&) {
    error = DescribeError(file);
  }
  const Json line = Line(file, error, statistics, timing);
  return {error.empty(), error, line.dump(-1, ' ', false, Json::error_handler_t::replace)};
}

}  // namespace preview
