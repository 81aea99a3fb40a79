// Multi-line edit: typing one character at the end of a text of 1,000,
// 10,000 and 100,000 characters (the re-wrap from the changed line and the
// redraw of the visible lines), against measuring the same text's width once
// with the same kind of DC in the same font. A second figure re-wraps the
// whole text after the same key, to show what the re-wrap from the changed
// line saves.
#include <benchmark/benchmark.h>
#include <wx/app.h>
#include <wx/dcclient.h>
#include <wx/dcmemory.h>
#include <wx/frame.h>

#include <random>
#include <string>

#include "BenchSupport.h"
#include "vorn/VornMultiEdit.h"

namespace {

// Words of 2 to 9 letters, a line feed about every 70 characters.
std::string SampleText(int length) {
  std::mt19937 rng(7);
  std::string text;
  int sinceBreak = 0;
  while (static_cast<int>(text.size()) < length) {
    const int word = 2 + static_cast<int>(rng() % 8);
    for (int i = 0; i < word; ++i) text += static_cast<char>('a' + rng() % 26);
    sinceBreak += word + 1;
    text += sinceBreak > 70 ? '\n' : ' ';
    if (sinceBreak > 70) sinceBreak = 0;
  }
  text.resize(length);
  return text;
}

// A box of 300 by 200 text pixels holding the text, caret and view at its end.
class BoxSetup {
 public:
  explicit BoxSetup(int length) : m_frame(new wxFrame(nullptr, wxID_ANY, "bench")) {
    VornEditInfo info;
    info.x = 4;
    info.y = 4;
    info.width = 300;
    info.height = 200;
    info.colour1 = *wxWHITE;
    info.colour2 = *wxBLUE;
    info.background = *wxBLACK;
    info.font = wxFont(wxFontInfo(10));
    m_frame->Show();
    box = new VornMultiEdit(nullptr, info, 0, 0, m_frame, 1, true, nullptr);
    text = SampleText(length);
    box->SetText(text, false);
    box->SetSelection(length, length);
    box->SetScrollPos(1e9);
    target = wxBitmap(box->GetWidth(), box->GetHeight());
  }
  ~BoxSetup() { delete m_frame; }

  void TypeAndDraw() {
    wxKeyEvent key(wxEVT_CHAR);
    key.m_keyCode = 'x';
    box->GetEventHandler()->ProcessEvent(key);
    wxMemoryDC dc(target);
    box->OnDraw(&dc);
  }

  VornMultiEdit* box;
  std::string text;
  wxBitmap target;

 private:
  wxFrame* m_frame;
};

bool HaveDisplay(benchmark::State& state) {
  if (wxTheApp) return true;
  state.SkipWithError("needs a display (run under bench/run.sh)");
  return false;
}

template <int N>
void BM_TypeAtEnd(benchmark::State& state) {
  if (!HaveDisplay(state)) return;
  BoxSetup setup(N);
  for (auto _ : state) {
    setup.TypeAndDraw();
    state.PauseTiming();
    setup.box->Backspace();  // back to the same length
    state.ResumeTiming();
  }
}

template <int N>
void BM_TypeAtEndFullRewrap(benchmark::State& state) {
  if (!HaveDisplay(state)) return;
  BoxSetup setup(N);
  for (auto _ : state) {
    setup.TypeAndDraw();
    setup.box->UpdateLineBreaks();
    state.PauseTiming();
    setup.box->Backspace();
    state.ResumeTiming();
  }
}

template <int N>
void BM_MeasureWholeText(benchmark::State& state) {
  if (!HaveDisplay(state)) return;
  BoxSetup setup(N);
  const wxString whole = wxString::FromUTF8(setup.text.c_str());
  wxClientDC dc(setup.box);
  dc.SetFont(setup.box->GetFont());
  for (auto _ : state) benchmark::DoNotOptimize(dc.GetTextExtent(whole));
}

}  // namespace

#define VORN_MULTIEDIT_BENCH(figure, name, n)                                     \
  BENCHMARK(figure<n>)->Name(name)->Unit(benchmark::kMicrosecond)->UseRealTime(); \
  BENCHMARK(BM_MeasureWholeText<n>)                                               \
      ->Name(name "/baseline")                                                    \
      ->Unit(benchmark::kMicrosecond)                                             \
      ->UseRealTime()

VORN_MULTIEDIT_BENCH(BM_TypeAtEnd, "MultiEdit/Type1k", 1000);
VORN_MULTIEDIT_BENCH(BM_TypeAtEnd, "MultiEdit/Type10k", 10000);
VORN_MULTIEDIT_BENCH(BM_TypeAtEnd, "MultiEdit/Type100k", 100000);
VORN_MULTIEDIT_BENCH(BM_TypeAtEndFullRewrap, "MultiEdit/TypeFullRewrap1k", 1000);
VORN_MULTIEDIT_BENCH(BM_TypeAtEndFullRewrap, "MultiEdit/TypeFullRewrap10k", 10000);
VORN_MULTIEDIT_BENCH(BM_TypeAtEndFullRewrap, "MultiEdit/TypeFullRewrap100k", 100000);
