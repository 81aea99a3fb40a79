// Building a 10,000-row (and a 1,000-row), 3-column monster box (two text columns and a
// check-box column, one real window per cell) against a report-mode
// wxListCtrl holding the same rows, in time and in resident memory (read
// from /proc/self/statm before and after each build).
#include <benchmark/benchmark.h>
#include <malloc.h>
#include <unistd.h>
#include <wx/app.h>
#include <wx/frame.h>
#include <wx/listctrl.h>

#include <chrono>
#include <cstdio>
#include <memory>
#include <string>

#include "BenchSupport.h"
#include "vorn/VornMonsterBox.h"

namespace {

long ResidentKb() {
  long size = 0, resident = 0;
  if (FILE* f = std::fopen("/proc/self/statm", "r")) {
    if (std::fscanf(f, "%ld %ld", &size, &resident) != 2) resident = 0;
    std::fclose(f);
  }
  return resident * (sysconf(_SC_PAGESIZE) / 1024);
}

bool HaveDisplay(benchmark::State& state) {
  if (wxTheApp) return true;
  state.SkipWithError("needs a display (run under bench/run.sh)");
  return false;
}

// Destroys frame and gives freed memory back to the system, so that the next
// build's resident growth is its own; returns the milliseconds it took.
double Destroy(wxFrame* frame) {
  const auto start = std::chrono::steady_clock::now();
  frame->Destroy();
  wxTheApp->ProcessIdle();
  const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - start;
  malloc_trim(0);
  return took.count();
}

void ReportMemory(benchmark::State& state, long kb, int kRows) {
  state.counters["resident_kb"] = static_cast<double>(kb);
  state.counters["rows"] = kRows;
}

void BuildBox(wxFrame* frame, int rows, VornControlGroup& group, const VornwxBitmapCache* checks) {
  auto* box = new VornMonsterBox;
  VornString name = "bench";
  box->Create(nullptr, nullptr, nullptr, 0, 0, 400, 300, name, frame, 1, &group);
  box->AddColumn("Name", *wxWHITE, 150);
  box->AddColumn("Value", *wxWHITE, 100);
  box->AddColumn("On", *wxWHITE, 40);
  for (int i = 0; i < rows; ++i) {
    box->AddEntry(0, "Item " + std::to_string(i), *wxWHITE, false);
    box->AddEntry(1, std::to_string(i * 37), *wxWHITE, true);
    box->AddEntry(2, checks, i % 2 == 0);
  }
}

void BuildList(wxFrame* frame, int rows) {
  auto* list = new wxListCtrl(frame, wxID_ANY, wxPoint(0, 0), wxSize(400, 300), wxLC_REPORT);
  list->AppendColumn("Name", wxLIST_FORMAT_LEFT, 150);
  list->AppendColumn("Value", wxLIST_FORMAT_CENTRE, 100);
  list->AppendColumn("On", wxLIST_FORMAT_LEFT, 40);
  for (int i = 0; i < rows; ++i) {
    const long row = list->InsertItem(i, "Item " + std::to_string(i));
    list->SetItem(row, 1, std::to_string(i * 37));
    list->SetItem(row, 2, i % 2 == 0 ? "x" : "");
  }
}

struct Checks {
  Checks() {
    images.AssignImageOwn(VIT_OFF, new wxBitmap(12, 12));
    images.AssignImageOwn(VIT_ON, new wxBitmap(12, 12));
  }
  VornwxBitmapCache images;
};

// The first window of a kind loads themes, fonts and classes: done once,
// unmeasured, so that neither figure carries it.
void WarmUp() {
  static bool done = false;
  if (done) return;
  done = true;
  Checks checks;
  VornControlGroup group;
  auto* frame = new wxFrame(nullptr, wxID_ANY, "bench");
  BuildBox(frame, 20, group, &checks.images);
  BuildList(frame, 20);
  Destroy(frame);
}

// Runs build(frame) once per iteration; reports its resident growth and the
// time its teardown took.
template <class Build>
void MeasureBuild(benchmark::State& state, int rows, Build build) {
  if (!HaveDisplay(state)) return;
  WarmUp();
  long kb = 0;
  double teardownMs = 0;
  for (auto _ : state) {
    state.PauseTiming();
    wxFrame* frame = new wxFrame(nullptr, wxID_ANY, "bench");
    malloc_trim(0);
    const long before = ResidentKb();
    state.ResumeTiming();
    build(frame);
    kb = ResidentKb() - before;
    state.PauseTiming();
    teardownMs = Destroy(frame);
    state.ResumeTiming();
  }
  ReportMemory(state, kb, rows);
  state.counters["teardown_ms"] = teardownMs;
}

template <int kRows>
void BM_MonsterBoxBuild(benchmark::State& state) {
  Checks checks;
  VornControlGroup group;
  MeasureBuild(state, kRows,
               [&](wxFrame* frame) { BuildBox(frame, kRows, group, &checks.images); });
}

template <int kRows>
void BM_ListCtrlBuild(benchmark::State& state) {
  MeasureBuild(state, kRows, [](wxFrame* frame) { BuildList(frame, kRows); });
}

}  // namespace

// 1,000 rows as well: the two sizes show how the cost grows with the rows.
// Each peer runs first, on a heap the box has not grown yet.
BENCHMARK(BM_ListCtrlBuild<1000>)
    ->Name("Tables/Build1k/baseline")
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1);
BENCHMARK(BM_MonsterBoxBuild<1000>)
    ->Name("Tables/Build1k")
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1);
// The 10,000-row box takes minutes to build and more to tear down: measured
// once even in a full run, so that the run stays usable.
BENCHMARK(BM_ListCtrlBuild<10000>)
    ->Name("Tables/Build10k/baseline")
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1)
    ->Repetitions(1);
BENCHMARK(BM_MonsterBoxBuild<10000>)
    ->Name("Tables/Build10k")
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1)
    ->Repetitions(1);
