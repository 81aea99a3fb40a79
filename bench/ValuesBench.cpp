// Drags of the value controls: 1,000 motion events, each redrawing the
// control through a client DC, against copying the control's own back
// buffer to the window 1,000 times, so that the difference is the cost of
// the reaction and of composing the picture. Reported per event.
#include <benchmark/benchmark.h>
#include <wx/dcclient.h>
#include <wx/dcmemory.h>
#include <wx/wx.h>

#include <functional>
#include <memory>

#include "BenchSupport.h"
#include "vorn/VornSlider.h"

namespace {

constexpr int kEvents = 1000;

void ReportPerEvent(benchmark::State& state) {
  state.SetItemsProcessed(state.iterations() * kEvents);
  state.counters["us_per_event"] = benchmark::Counter(
      kEvents / 1e6, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

bool HaveDisplay(benchmark::State& state) {
  if (wxTheApp) return true;
  state.SkipWithError("needs a display (run under bench/run.sh)");
  return false;
}

wxBitmap Solid(int w, int h, const wxColour& c) {
  wxImage image(w, h);
  image.SetRGB(wxRect(0, 0, w, h), c.Red(), c.Green(), c.Blue());
  return wxBitmap(image);
}

BitmapA SolidA(int w, int h, const ColorA& c) {
  BitmapA b;
  Create(b, w, h);
  ClearBitmap(b, c);
  return b;
}

// A shown frame holding one control of each kind, at the skin's sizes.
class Controls {
 public:
  Controls()
      : m_frame(new wxFrame(nullptr, wxID_ANY, "bench", wxDefaultPosition, wxSize(400, 200))) {
    const wxBitmap cap = Solid(6, 8, *wxBLUE), mid = Solid(4, 8, *wxGREEN),
                   thumb = Solid(16, 16, *wxWHITE);
    sliderA = new VornSliderA(SLIDER_PLAIN, &cap, &mid, &cap, &cap, &mid, &thumb, 0, 0, 200, 20,
                              *wxBLACK, m_frame, 1, &group);
    sliderB = new VornSliderB(*wxBLUE, *wxWHITE, 0, 30, 200, 20, m_frame, 2, &group);
    frame = SolidA(96, 22, ColorA(0.3, 0.3, 0.3, 0.5));
    strip = SolidA(102, 22, ColorA(0.6, 0.6, 0.6));
    window = SolidA(96, 22, ColorA(0.8, 0.8, 0.8));
    wheel = new VornThumbWheelControl(&frame, &strip, &window, 0, 60, false, 6, m_frame, 3, &group);
    wheel->SetCurrentValue(350);
    m_frame->Show();
    wxYield();
  }
  ~Controls() { delete m_frame; }

  VornControlGroupValue group;
  BitmapA frame, strip, window;
  VornSliderA* sliderA;
  VornSliderB* sliderB;
  VornThumbWheelControl* wheel;

 private:
  wxFrame* m_frame;
};

void Send(wxWindow* w, wxEventType type, int x, int y) {
  wxMouseEvent e(type);
  e.SetEventObject(w);
  e.m_x = x;
  e.m_y = y;
  e.m_leftDown = type != wxEVT_LEFT_UP;
  w->GetEventHandler()->ProcessEvent(e);
}

// Press, then 1,000 moves to and fro across the control, then release.
void DragAcross(benchmark::State& state, wxWindow* control, int from, int to) {
  Send(control, wxEVT_LEFT_DOWN, from, 10);
  int x = from, dir = 1;
  for (auto _ : state) {
    for (int i = 0; i < kEvents; ++i) {
      x += dir;
      if (x >= to || x <= from) dir = -dir;
      Send(control, wxEVT_MOTION, x, 10);
    }
  }
  Send(control, wxEVT_LEFT_UP, x, 10);
  ReportPerEvent(state);
}

// 1,000 copies of the control's last picture to its window.
void BlitBackBuffer(benchmark::State& state, wxWindow* control, const wxBitmap& buffer) {
  wxBitmap picture = buffer;
  for (auto _ : state) {
    for (int i = 0; i < kEvents; ++i) {
      wxClientDC dc(control);
      wxMemoryDC source(picture);
      dc.Blit(0, 0, picture.GetWidth(), picture.GetHeight(), &source, 0, 0, wxCOPY);
    }
  }
  ReportPerEvent(state);
}

void BM_SliderADrag(benchmark::State& state) {
  if (!HaveDisplay(state)) return;
  Controls c;
  DragAcross(state, c.sliderA, 8, 192);
}
void BM_SliderABlit(benchmark::State& state) {
  if (!HaveDisplay(state)) return;
  Controls c;
  wxClientDC dc(c.sliderA);
  c.sliderA->OnDraw(&dc);
  BlitBackBuffer(state, c.sliderA, c.sliderA->GetBackBuffer());
}
void BM_SliderBDrag(benchmark::State& state) {
  if (!HaveDisplay(state)) return;
  Controls c;
  DragAcross(state, c.sliderB, 9, 191);
}
void BM_SliderBBlit(benchmark::State& state) {
  if (!HaveDisplay(state)) return;
  Controls c;
  wxClientDC dc(c.sliderB);
  c.sliderB->OnDraw(&dc);
  BlitBackBuffer(state, c.sliderB, c.sliderB->GetBackBuffer());
}
void BM_WheelDrag(benchmark::State& state) {
  if (!HaveDisplay(state)) return;
  Controls c;
  DragAcross(state, c.wheel, 10, 86);
}
void BM_WheelBlit(benchmark::State& state) {
  if (!HaveDisplay(state)) return;
  Controls c;
  wxClientDC dc(c.wheel);
  c.wheel->OnDraw(&dc);
  BlitBackBuffer(state, c.wheel, c.wheel->GetBackBuffer());
}

}  // namespace

BENCHMARK(BM_SliderADrag)->Name("Values/SliderADrag");
BENCHMARK(BM_SliderABlit)->Name("Values/SliderADrag/baseline");
BENCHMARK(BM_SliderBDrag)->Name("Values/SliderBDrag");
BENCHMARK(BM_SliderBBlit)->Name("Values/SliderBDrag/baseline");
BENCHMARK(BM_WheelDrag)->Name("Values/ThumbWheelDrag");
BENCHMARK(BM_WheelBlit)->Name("Values/ThumbWheelDrag/baseline");
