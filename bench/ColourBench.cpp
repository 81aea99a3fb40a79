// Repainting the hue-value field at 222 x 136 from its tables (the 210 x 129
// field bitmap), against a plain fill of a bitmap of the same size and
// format, both per repaint.
#include <benchmark/benchmark.h>
#include <wx/wx.h>

#include "BenchSupport.h"
#include "vorn/ColourPicker.h"

// One conversion per column and three products per pixel: the repaint
// should stay within a few plain fills.
VORN_BENCH_TARGET("Colour/HueValueRepaint", 3.0);

namespace {

bool HaveDisplay(benchmark::State& state) {
  if (wxTheApp) return true;
  state.SkipWithError("needs a display (run under bench/run.sh)");
  return false;
}

// A shown frame holding one field at the picker's size, coloured mid-way.
class Field {
 public:
  Field() : m_frame(new wxFrame(nullptr, wxID_ANY, "bench", wxDefaultPosition, wxSize(300, 200))) {
    // In a panel: a frame's only child would be stretched to fill it.
    auto* panel = new wxPanel(m_frame);
    hv = new HueValueControl(0, 0, 222, 136, panel, 1, &group);
    ColourHintCurrentHSV colour(0.4, 0.7, 0.8);
    group.Update(0, nullptr, &colour);
    m_frame->Show();
    wxYield();
  }
  ~Field() { delete m_frame; }

  VornControlGroup group;
  HueValueControl* hv;

 private:
  wxFrame* m_frame;
};

void ReportPixels(benchmark::State& state, const Bitmap& field) {
  state.SetItemsProcessed(state.iterations() * field.width * field.height);
  state.counters["pixels"] = field.width * field.height;
}

void BM_FieldRepaint(benchmark::State& state) {
  if (!HaveDisplay(state)) return;
  Field f;
  for (auto _ : state) {
    f.hv->PaintField();
    benchmark::DoNotOptimize(f.hv->GetField().data.data());
  }
  ReportPixels(state, f.hv->GetField());
  if (f.hv->GetField().width != 210) state.SkipWithError("the field is not 210 x 129");
}

void BM_FieldFill(benchmark::State& state) {
  if (!HaveDisplay(state)) return;
  Field f;
  Bitmap field = f.hv->GetField();
  const Color grey(0.5, 0.5, 0.5);
  for (auto _ : state) {
    ClearBitmap(field, grey);
    benchmark::DoNotOptimize(field.data.data());
  }
  ReportPixels(state, field);
}

}  // namespace

BENCHMARK(BM_FieldRepaint)->Name("Colour/HueValueRepaint");
BENCHMARK(BM_FieldFill)->Name("Colour/HueValueRepaint/baseline");
