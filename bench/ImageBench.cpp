// Grey-mask colouring against a plain copy of the same bytes, and packing
// button images into shared sheets against drawing them into one bitmap.
#include <benchmark/benchmark.h>
#include <wx/dcmemory.h>
#include <wx/wx.h>

#include <cstring>
#include <vector>

#include "BenchSupport.h"
#include "vorn/GraphicsFunctions.h"
#include "vorn/VornImageCache.h"

namespace {
constexpr int kSide = 512;

struct GreyInputs {
  wxImage mask;
  BitmapA start;
  GreyInputs() : mask(kSide, kSide, false) {
    unsigned char* p = mask.GetData();
    for (int i = 0; i < kSide * kSide; ++i, p += 3)
      p[0] = p[1] = p[2] = static_cast<unsigned char>(i * 37);
    Create(start, kSide, kSide, 3);
    for (std::size_t i = 0; i < start.data.size(); ++i)
      start.data[i] = static_cast<unsigned char>(i);
  }
};

const GreyInputs& Inputs() {
  static const GreyInputs inputs;
  return inputs;
}

void ReportPixels(benchmark::State& state) {
  state.counters["Mpix/s"] = benchmark::Counter(
      static_cast<double>(kSide) * kSide * static_cast<double>(state.iterations()) / 1e6,
      benchmark::Counter::kIsRate);
}

template <bool (*F)(BitmapA&, const wxImage&, const Color&)>
void ColourGrey(benchmark::State& state) {
  BitmapA dst = Inputs().start;
  const Color colour(0.9, 0.4, 0.2);
  for (auto _ : state) {
    F(dst, Inputs().mask, colour);
    benchmark::DoNotOptimize(dst.data.data());
    benchmark::ClobberMemory();
  }
  ReportPixels(state);
}

template <bool (*F)(BitmapA&, const wxImage&)>
void AlphaGrey(benchmark::State& state) {
  BitmapA dst = Inputs().start;
  for (auto _ : state) {
    F(dst, Inputs().mask);
    benchmark::DoNotOptimize(dst.data.data());
    benchmark::ClobberMemory();
  }
  ReportPixels(state);
}

// The destination's bytes copied with memcpy: the floor for any per-pixel pass.
void CopyBytes(benchmark::State& state) {
  BitmapA dst = Inputs().start;
  const std::vector<unsigned char> src = Inputs().start.data;
  for (auto _ : state) {
    std::memcpy(dst.data.data(), src.data(), src.size());
    benchmark::DoNotOptimize(dst.data.data());
    benchmark::ClobberMemory();
  }
  ReportPixels(state);
}

// Each grey mapping within three times the copy of the destination's bytes.
VORN_BENCH_TARGET("Images/MapAlphaFromGrey", 3.0);
VORN_BENCH_TARGET("Images/SetAlphaFromGrey", 3.0);
VORN_BENCH_TARGET("Images/MapColoursFromGrey", 3.0);
VORN_BENCH_TARGET("Images/MapAllFromGrey", 3.0);
VORN_BENCH_TARGET("Images/SetColoursFromGrey", 3.0);
VORN_BENCH_TARGET("Images/SetAllFromGrey", 3.0);
BENCHMARK(AlphaGrey<MapAlphaFromGrey>)->Name("Images/MapAlphaFromGrey");
BENCHMARK(CopyBytes)->Name("Images/MapAlphaFromGrey/baseline");
BENCHMARK(AlphaGrey<SetAlphaFromGrey>)->Name("Images/SetAlphaFromGrey");
BENCHMARK(CopyBytes)->Name("Images/SetAlphaFromGrey/baseline");
BENCHMARK(ColourGrey<MapColoursFromGrey>)->Name("Images/MapColoursFromGrey");
BENCHMARK(CopyBytes)->Name("Images/MapColoursFromGrey/baseline");
BENCHMARK(ColourGrey<MapAllFromGrey>)->Name("Images/MapAllFromGrey");
BENCHMARK(CopyBytes)->Name("Images/MapAllFromGrey/baseline");
BENCHMARK(ColourGrey<SetColoursFromGrey>)->Name("Images/SetColoursFromGrey");
BENCHMARK(CopyBytes)->Name("Images/SetColoursFromGrey/baseline");
BENCHMARK(ColourGrey<SetAllFromGrey>)->Name("Images/SetAllFromGrey");
BENCHMARK(CopyBytes)->Name("Images/SetAllFromGrey/baseline");

// 1,000 button images of 40 x 24: 250 caches of four states.
constexpr int kCaches = 250;
constexpr int kStatesPerCache = 4;
constexpr VORNIMAGETYPE kButtonStates[kStatesPerCache] = {VIT_OFF, VIT_ON, VIT_ON_MOUSE_OVER,
                                                          VIT_ON_DOWN};

std::vector<wxBitmap> ButtonImages() {
  std::vector<wxBitmap> images;
  for (int i = 0; i < kCaches * kStatesPerCache; ++i) {
    wxImage image(40, 24, false);
    unsigned char* p = image.GetData();
    for (int j = 0; j < 40 * 24 * 3; ++j) p[j] = static_cast<unsigned char>(i + j);
    images.emplace_back(image);
  }
  return images;
}

void PackButtons(benchmark::State& state) {
  const std::vector<wxBitmap> images = ButtonImages();
  std::vector<std::unique_ptr<VornwxBitmapCache>> caches;
  for (int c = 0; c < kCaches; ++c) {
    caches.push_back(std::make_unique<VornwxBitmapCache>());
    for (int s = 0; s < kStatesPerCache; ++s)
      caches.back()->AssignImage(kButtonStates[s], &images[c * kStatesPerCache + s]);
  }
  int sheets = 0;
  for (auto _ : state) {
    WallpaperBitmapHolder holder;
    for (int c = 0; c < kCaches; ++c)
      holder.AddImageCache("button" + std::to_string(c), *caches[c]);
    sheets = holder.NumSheets();
    benchmark::DoNotOptimize(sheets);
  }
  state.counters["images"] = kCaches * kStatesPerCache;
  state.counters["sheets"] = sheets;
}

// The same images drawn at the same places into one fresh 1000 x 1000 bitmap
// through a single memory DC: the drawing alone, without placement or names.
void DrawButtons(benchmark::State& state) {
  const std::vector<wxBitmap> images = ButtonImages();
  for (auto _ : state) {
    wxBitmap sheet(1000, 1000);
    wxMemoryDC dc;
    dc.SelectObject(sheet);
    for (std::size_t i = 0; i < images.size(); ++i)
      dc.DrawBitmap(images[i], static_cast<int>(i % 25) * 40, static_cast<int>(i / 25) * 24, false);
    dc.SelectObject(wxNullBitmap);
    benchmark::DoNotOptimize(sheet);
  }
  state.counters["images"] = kCaches * kStatesPerCache;
}

BENCHMARK(PackButtons)->Name("Images/PackButtonSheets")->Unit(benchmark::kMillisecond);
BENCHMARK(DrawButtons)->Name("Images/PackButtonSheets/baseline")->Unit(benchmark::kMillisecond);
}  // namespace
