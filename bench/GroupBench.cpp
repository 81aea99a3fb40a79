// Hint dispatch: one Update over a group of 1,000 registered recipients,
// against a plain loop of 1,000 virtual calls of OnUpdate on the same
// recipients, so that the difference is the registry's own cost. Reported
// per recipient.
#include <benchmark/benchmark.h>
#include <wx/app.h>
#include <wx/frame.h>

#include <memory>
#include <vector>

#include "BenchSupport.h"
#include "vorn/VirtualControl.h"
#include "vorn/VornControl.h"
#include "vorn/VornControlGroup.h"

namespace {

constexpr int kRecipients = 1000;

class CountingControl : public VornControl {
 public:
  CountingControl(wxWindow* parent, int id, VornControlGroup* group)
      : VornControl(0, 0, 4, 4, parent, id, group) {}
  void OnUpdate(unsigned int id, VornControl*, VornControlHint*) override { m_sum += id; }
  unsigned long m_sum = 0;
};

class CountingVirtual : public VirtualControl {
 public:
  void OnUpdate(unsigned int id, void*, VornControlHint*) override { m_sum += id; }
  unsigned long m_sum = 0;
};

void ReportPerRecipient(benchmark::State& state) {
  state.SetItemsProcessed(state.iterations() * kRecipients);
  // Inverted rate: seconds per recipient, scaled to nanoseconds.
  state.counters["ns_per_recipient"] =
      benchmark::Counter(kRecipients / 1e9, benchmark::Counter::kIsIterationInvariantRate |
                                                benchmark::Counter::kInvert);
}

// 1,000 window controls registered by id, children of one frame.
class ControlSet {
 public:
  ControlSet() : m_frame(new wxFrame(nullptr, wxID_ANY, "bench")) {
    for (int i = 0; i < kRecipients; ++i)
      m_controls.push_back(new CountingControl(m_frame, i + 1, &m_group));
  }
  ~ControlSet() { delete m_frame; }  // the controls leave the group as they go
  VornControlGroup m_group;
  wxFrame* m_frame;
  std::vector<VornControl*> m_controls;
};

// 1,000 windowless controls registered without id.
class WindowlessSet {
 public:
  WindowlessSet() {
    for (int i = 0; i < kRecipients; ++i) {
      m_owned.push_back(std::make_unique<CountingVirtual>());
      m_controls.push_back(m_owned.back().get());
      m_group.Register(m_controls.back());
    }
  }
  ~WindowlessSet() { m_group.Clear(); }
  VornControlGroup m_group;
  std::vector<std::unique_ptr<CountingVirtual>> m_owned;
  std::vector<VirtualControl*> m_controls;
};

bool HaveDisplay(benchmark::State& state) {
  if (wxTheApp) return true;
  state.SkipWithError("needs a display (run under bench/run.sh)");
  return false;
}

template <class Set>
void BM_GroupUpdate(benchmark::State& state) {
  if (!HaveDisplay(state)) return;
  Set set;
  VornControlHint hint;
  for (auto _ : state) {
    set.m_group.Update(1, nullptr, &hint);
    benchmark::ClobberMemory();
  }
  ReportPerRecipient(state);
}

template <class Set>
void BM_PlainVirtualLoop(benchmark::State& state) {
  if (!HaveDisplay(state)) return;
  Set set;
  VornControlHint hint;
  auto* recipients = &set.m_controls;
  for (auto _ : state) {
    benchmark::DoNotOptimize(recipients);  // keeps the calls virtual
    for (std::size_t i = 0; i < recipients->size(); ++i)
      (*recipients)[i]->OnUpdate(1, nullptr, &hint);
    benchmark::ClobberMemory();
  }
  ReportPerRecipient(state);
}

}  // namespace

BENCHMARK(BM_GroupUpdate<ControlSet>)->Name("Groups/Update");
BENCHMARK(BM_PlainVirtualLoop<ControlSet>)->Name("Groups/Update/baseline");
BENCHMARK(BM_GroupUpdate<WindowlessSet>)->Name("Groups/UpdateWindowless");
BENCHMARK(BM_PlainVirtualLoop<WindowlessSet>)->Name("Groups/UpdateWindowless/baseline");
VORN_BENCH_TARGET("Groups/Update", 1.5);
VORN_BENCH_TARGET("Groups/UpdateWindowless", 1.5);
