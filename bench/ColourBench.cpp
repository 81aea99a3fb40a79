// Repainting the hue-value field at 222 x 136 from its tables (one HSV
// conversion per pixel of the 210 x 129 field), against a plain fill of a
// bitmap of the same size and format, both per repaint.
#include <benchmark/benchmark.h>
#include <wx/wx.h>

#include "BenchSupport.h"
#include "vorn/ColourPicker.h"

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
    hv = new HueValueControl(0, 0, 222, 136, m_frame, 1, &group);
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
