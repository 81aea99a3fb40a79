// Asset indexing, best-variant lookup and archive loading.
#include <benchmark/benchmark.h>
#include <stdlib.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "BenchSupport.h"
#include "vorn/ArchiveAsset.h"
#include "vorn/ArchiveWriter.h"
#include "vorn/AssetManager.h"
#include "vorn/FileAsset.h"
#include "vornhost/Debug.h"

namespace fs = std::filesystem;

namespace {
constexpr int kFiles = 20000;
constexpr std::size_t kArchiveBytes = 64u << 20;

const char* const kDirs[7] = {"",
                              "Generic/",
                              "Linux/",
                              "Generic/english/",
                              "Linux/english/",
                              "Generic/english/uk/",
                              "Linux/english/uk/"};

std::string AssetName(int i) {
  char buf[32];
  std::snprintf(buf, sizeof buf, "Asset%05d.png", i);
  return buf;
}

// A tree of kFiles small files over the seven directories the loader reads,
// and a 64 MiB archive of kFiles entries, made once in a temp dir.
class AssetData {
 public:
  static const AssetData& Get() {
    static AssetData data;
    return data;
  }
  std::string root, archive;

 private:
  AssetData() {
    std::string pattern = (fs::temp_directory_path() / "vorn-bench-XXXXXX").string();
    if (!mkdtemp(pattern.data())) std::abort();
    m_dir = pattern;
    root = m_dir + "/tree/";
    for (const char* d : kDirs) fs::create_directories(root + d);
    for (int i = 0; i < kFiles; ++i) {
      std::ofstream out(root + kDirs[i % 7] + AssetName(i), std::ios::binary);
      out << "asset " << i << "\n";
    }
    std::vector<VornArchiveEntry> entries(kFiles);
    const std::size_t each = kArchiveBytes / kFiles;
    for (int i = 0; i < kFiles; ++i) {
      VornArchiveEntry& e = entries[i];
      e.name = AssetName(i);
      e.platform = i % 2 ? "Linux" : "Generic";
      e.language = i % 3 ? "english" : "NONE";
      e.bytes.assign(each, static_cast<char>(i));
    }
    archive = m_dir + "/data1.vrk";
    std::string error;
    if (!VornWriteArchive(archive, entries, error)) std::abort();
  }
  ~AssetData() {
    std::error_code ec;
    fs::remove_all(m_dir, ec);
  }
  std::string m_dir;
};

void Configure(AssetManager& m) {
  m.SetPlatform("Linux");
  m.SetLanguage("english", "uk");
}

void IndexTree(benchmark::State& state) {
  const AssetData& data = AssetData::Get();
  for (auto _ : state) {
    state.PauseTiming();
    auto m = std::make_unique<AssetManager>();
    Configure(*m);
    auto* loader = new FileAssetLoader;
    loader->Init(data.root);
    m->SetAssetLoader(loader);
    state.ResumeTiming();
    if (!m->LoadAssets() || m->GetNumAssets() != kFiles) state.SkipWithError("index incomplete");
    state.PauseTiming();
    m.reset();
    state.ResumeTiming();
  }
  state.SetItemsProcessed(state.iterations() * kFiles);
}

// The same seven directories listed by find(1), every path read back.
void IndexTreeBaseline(benchmark::State& state) {
  const AssetData& data = AssetData::Get();
  const std::string command = "find '" + data.root + "' -maxdepth 4 -type f";
  for (auto _ : state) {
    FILE* pipe = popen(command.c_str(), "r");
    char line[4096];
    int count = 0;
    while (std::fgets(line, sizeof line, pipe)) ++count;
    pclose(pipe);
    if (count != kFiles) state.SkipWithError("find listed a different tree");
  }
  state.SetItemsProcessed(state.iterations() * kFiles);
}

// The 20,000 names in a scattered order, and a manager that indexed them.
struct LookupData {
  AssetManager manager;
  std::vector<std::string> names;
  LookupData() {
    Configure(manager);
    auto* loader = new FileAssetLoader;
    loader->Init(AssetData::Get().root);
    manager.SetAssetLoader(loader);
    manager.LoadAssets();
    for (int i = 0; i < kFiles; ++i) names.push_back(AssetName((i * 7919) % kFiles));
  }
  static LookupData& Get() {
    static LookupData data;
    return data;
  }
};

void GetAssetLookup(benchmark::State& state) {
  LookupData& data = LookupData::Get();
  std::size_t next = 0;
  for (auto _ : state) {
    Asset* asset = nullptr;
    const bool found = data.manager.GetAsset(data.names[next].c_str(), asset);
    benchmark::DoNotOptimize(found);
    benchmark::DoNotOptimize(asset);
    if (++next == data.names.size()) next = 0;
  }
  state.SetItemsProcessed(state.iterations());
}

void GetBestAssetLookup(benchmark::State& state) {
  LookupData& data = LookupData::Get();
  std::size_t next = 0;
  for (auto _ : state) {
    Asset* asset = nullptr;
    const bool found =
        data.manager.GetBestAsset(asset, data.names[next].c_str(), "Linux", "english", "uk");
    benchmark::DoNotOptimize(found);
    benchmark::DoNotOptimize(asset);
    if (++next == data.names.size()) next = 0;
  }
  state.SetItemsProcessed(state.iterations());
}

// A plain hash map from the same names, looked up in the same order. Filled
// in name order, as the loader fills the index: filled in lookup order its
// nodes would lie in memory in the order they are visited, which no index
// built by a loader has.
void HashFind(benchmark::State& state) {
  LookupData& data = LookupData::Get();
  std::unordered_map<std::string, Asset*> byName;
  for (int i = 0; i < kFiles; ++i) byName.emplace(AssetName(i), nullptr);
  std::size_t next = 0;
  for (auto _ : state) {
    auto it = byName.find(data.names[next]);
    benchmark::DoNotOptimize(it);
    if (++next == data.names.size()) next = 0;
  }
  state.SetItemsProcessed(state.iterations());
}

void ArchiveLoad(benchmark::State& state) {
  const AssetData& data = AssetData::Get();
  // Open writes the archive path through dprintf; keep it out of the timing.
  const DprintfHandler previous = SetDprintfHandler([](const char*) {});
  for (auto _ : state) {
    state.PauseTiming();
    auto m = std::make_unique<AssetManager>();
    Configure(*m);
    m->SetAssetLoader(new ArchiveAssetLoader(data.archive.c_str()));
    state.ResumeTiming();
    if (!m->LoadAssets() || m->GetNumAssets() != kFiles) state.SkipWithError("archive incomplete");
    state.PauseTiming();
    m.reset();
    state.ResumeTiming();
  }
  SetDprintfHandler(previous);
  state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(fs::file_size(data.archive)));
}

// Reading the archive file into a fresh buffer, nothing else.
void ArchiveLoadBaseline(benchmark::State& state) {
  const AssetData& data = AssetData::Get();
  for (auto _ : state) {
    std::ifstream in(data.archive, std::ios::binary);
    in.seekg(0, std::ios::end);
    const std::size_t size = static_cast<std::size_t>(in.tellg());
    in.seekg(0);
    std::unique_ptr<char[]> buffer(new char[size]);
    in.read(buffer.get(), static_cast<std::streamsize>(size));
    benchmark::DoNotOptimize(buffer.get());
    if (!in) state.SkipWithError("read failed");
  }
  state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(fs::file_size(data.archive)));
}
}  // namespace

VORN_BENCH_TARGET("Assets/IndexTree", 2.0);
VORN_BENCH_TARGET("Assets/GetAsset", 2.0);
VORN_BENCH_TARGET("Assets/GetBestAsset", 2.0);
VORN_BENCH_TARGET("Assets/ArchiveLoad", 1.5);
// Fixed iteration counts: find runs in a child process, whose time the
// default CPU-time-driven count would not see.
BENCHMARK(IndexTree)->Iterations(20)->Unit(benchmark::kMillisecond)->Name("Assets/IndexTree");
BENCHMARK(IndexTreeBaseline)
    ->Iterations(20)
    ->Unit(benchmark::kMillisecond)
    ->Name("Assets/IndexTree/baseline");
BENCHMARK(GetAssetLookup)->Name("Assets/GetAsset");
BENCHMARK(HashFind)->Name("Assets/GetAsset/baseline");
BENCHMARK(GetBestAssetLookup)->Name("Assets/GetBestAsset");
BENCHMARK(HashFind)->Name("Assets/GetBestAsset/baseline");
BENCHMARK(ArchiveLoad)->Iterations(10)->Unit(benchmark::kMillisecond)->Name("Assets/ArchiveLoad");
BENCHMARK(ArchiveLoadBaseline)
    ->Iterations(10)
    ->Unit(benchmark::kMillisecond)
    ->Name("Assets/ArchiveLoad/baseline");
