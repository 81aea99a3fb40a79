// Image scripts of the default skin through the asset manager's caches.
//
// ScriptLoad/ColdSkin: every script of the skin loaded into the caches by a
// fresh manager (masks decoded, scripts run, state sets packed into sheets),
// against reading the same scripts' texts with LoadText.
// ScriptLoad/WarmRequest: the same requests once everything is cached,
// against a plain map lookup per name.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "BenchSupport.h"
#include "vorn/AssetManager.h"
#include "vorn/FileAsset.h"
#include "vornhost/Debug.h"

namespace {

enum class Kind { kStateSet, kImage, kEditWidget, kListBox };

struct Script {
  std::string name;
  Kind kind;
};

const std::vector<Script>& SkinScripts() {
  static const std::vector<Script> scripts = [] {
    std::vector<Script> out;
    for (const auto& entry :
         std::filesystem::directory_iterator(std::string(VORN_SKIN_DIR) + "Generic")) {
      const std::string name = entry.path().filename().string();
      const std::string ext = name.size() > 4 ? name.substr(name.size() - 4) : "";
      if (ext != ".sts" && ext != ".lbs") continue;
      std::string text;
      if (FILE* f = std::fopen(entry.path().c_str(), "rb")) {
        char buf[4096];
        std::size_t n;
        while ((n = std::fread(buf, 1, sizeof buf, f)) > 0) text.append(buf, n);
        std::fclose(f);
      }
      Kind kind = Kind::kStateSet;
      if (ext == ".lbs")
        kind = Kind::kListBox;
      else if (text.find("\nedit ") != std::string::npos)
        kind = Kind::kEditWidget;
      else if (text.find("assign image") != std::string::npos)
        kind = Kind::kImage;
      out.push_back({name, kind});
    }
    return out;
  }();
  return scripts;
}

std::unique_ptr<AssetManager> OpenSkin() {
  auto am = std::make_unique<AssetManager>();
  auto* loader = new FileAssetLoader;
  loader->Init(VORN_SKIN_DIR);
  am->SetAssetLoader(loader);
  am->SetLanguage("english", "");
  am->LoadAssets();
  am->LoadColourData("colours.txt");
  am->LoadFontData("fonts.txt");
  return am;
}

// Loads every script the way the controls ask for it; the number loaded.
int LoadAll(AssetManager& am) {
  int loaded = 0;
  for (const Script& s : SkinScripts()) {
    bool ok = false;
    switch (s.kind) {
      case Kind::kStateSet: {
        const VornwxBitmapCache* cache = nullptr;
        ok = am.LoadImagesCached(s.name.c_str(), cache);
        break;
      }
      case Kind::kImage: {
        const wxBitmap* bitmap = nullptr;
        ok = am.LoadImageCached(s.name.c_str(), bitmap);
        break;
      }
      case Kind::kEditWidget: {
        const wxBitmap* bitmap = nullptr;
        VornEditInfo info;
        ok = am.LoadEditWidgetCached(s.name.c_str(), bitmap, info);
        break;
      }
      case Kind::kListBox: {
        VornListBoxInfo info;
        ok = am.LoadListBoxCached(s.name.c_str(), info);
        break;
      }
    }
    loaded += ok;
  }
  return loaded;
}

void ColdSkin(benchmark::State& state) {
  for (auto _ : state) {
    state.PauseTiming();
    auto am = OpenSkin();
    state.ResumeTiming();
    if (LoadAll(*am) != static_cast<int>(SkinScripts().size()))
      state.SkipWithError("a script of the default skin did not load");
    state.PauseTiming();
    am.reset();
    state.ResumeTiming();
  }
  state.counters["scripts"] = static_cast<double>(SkinScripts().size());
}

void ColdSkinBaseline(benchmark::State& state) {
  for (auto _ : state) {
    state.PauseTiming();
    auto am = OpenSkin();
    state.ResumeTiming();
    for (const Script& s : SkinScripts()) {
      std::string text;
      am->LoadText(s.name.c_str(), text);
      benchmark::DoNotOptimize(text.data());
    }
    state.PauseTiming();
    am.reset();
    state.ResumeTiming();
  }
}

void WarmRequest(benchmark::State& state) {
  auto am = OpenSkin();
  LoadAll(*am);
  for (auto _ : state) benchmark::DoNotOptimize(LoadAll(*am));
}

void WarmRequestBaseline(benchmark::State& state) {
  std::map<std::string, std::unique_ptr<int>> map;
  for (const Script& s : SkinScripts()) map.emplace(s.name, std::make_unique<int>(1));
  for (auto _ : state) {
    int found = 0;
    for (const Script& s : SkinScripts()) found += map.find(s.name.c_str())->second != nullptr;
    benchmark::DoNotOptimize(found);
  }
}

// Masks are decoded once per manager however many states use them, and every
// later request is one lookup.
VORN_BENCH_TARGET("ScriptLoad/ColdSkin", 80.0);
VORN_BENCH_TARGET("ScriptLoad/WarmRequest", 3.0);

BENCHMARK(ColdSkin)->Name("ScriptLoad/ColdSkin")->Unit(benchmark::kMillisecond);
BENCHMARK(ColdSkinBaseline)->Name("ScriptLoad/ColdSkin/baseline")->Unit(benchmark::kMillisecond);
BENCHMARK(WarmRequest)->Name("ScriptLoad/WarmRequest")->Unit(benchmark::kMicrosecond);
BENCHMARK(WarmRequestBaseline)
    ->Name("ScriptLoad/WarmRequest/baseline")
    ->Unit(benchmark::kMicrosecond);

}  // namespace
