// Decoding pictures, beside the decoder alone.

#include <gdk-pixbuf/gdk-pixbuf.h>

// These macros of glib would stand in the way of the constants in platform/Types.h.
#undef TRUE
#undef FALSE

#include <random>
#include <span>

#include "bench/Bench.h"
#include "platform/Bitmap.h"

namespace bench {
namespace {

constexpr int kSide = 1024;

struct Kind {
  bool isNoisy;
  bool hasAlpha;
};

std::vector<BYTE> PngOf(Kind kind) {
  GdkPixbuf* picture = gdk_pixbuf_new(GDK_COLORSPACE_RGB, kind.hasAlpha, 8, kSide, kSide);
  gdk_pixbuf_fill(picture, 0x3366CC80);
  if (kind.isNoisy) {
    std::mt19937 random(1);
    guint size = 0;
    for (guchar& byte : std::span(gdk_pixbuf_get_pixels_with_length(picture, &size), size))
      byte = static_cast<guchar>(random());
  }
  gchar* data = nullptr;
  gsize size = 0;
  gdk_pixbuf_save_to_buffer(picture, &data, &size, "png", nullptr, nullptr);
  std::vector<BYTE> bytes(data, data + size);
  g_free(data);
  g_object_unref(picture);
  return bytes;
}

void DecodeAlone(std::span<const BYTE> bytes) {
  GdkPixbufLoader* loader = gdk_pixbuf_loader_new();
  gdk_pixbuf_loader_write(loader, bytes.data(), bytes.size(), nullptr);
  gdk_pixbuf_loader_close(loader, nullptr);
  benchmark::DoNotOptimize(gdk_pixbuf_loader_get_pixbuf(loader));
  g_object_unref(loader);
}

// Both in turn, so that the machine's moods meet both.
void Decode(benchmark::State& state, Kind kind) {
  const std::vector<BYTE> png = PngOf(kind);
  double alone = 0;
  double ours = 0;
  for (auto _ : state) {
    alone += SecondsOf([&] { DecodeAlone(png); });
    const double seconds = SecondsOf([&] { DeleteBitmap(DecodeBitmap(png)); });
    ours += seconds;
    state.SetIterationTime(seconds);
  }
  state.counters["ratio"] = ours / alone;
}
BENCHMARK_CAPTURE(Decode, Flat, Kind{false, false})->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Decode, FlatAlpha, Kind{false, true})
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Decode, Noisy, Kind{true, false})->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Decode, NoisyAlpha, Kind{true, true})
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace bench
