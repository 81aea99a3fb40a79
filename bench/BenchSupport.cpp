#include "BenchSupport.h"

#include <wx/wx.h>

namespace {
class BenchApp : public wxApp {
 public:
  bool OnInit() override { return true; }
};
bool g_started = false;
}  // namespace

// Image benchmarks create wxBitmaps, which need a running toolkit (and a
// display: bench/run.sh uses Xvfb when there is none).
void VornBenchStartup(int argc, char** argv) {
  wxApp::SetInstance(new BenchApp);
  g_started = wxEntryStart(argc, argv);
  if (g_started) {
    wxTheApp->CallOnInit();
    wxInitAllImageHandlers();
  }
}

void VornBenchShutdown() {
  if (!g_started) return;
  wxTheApp->OnExit();
  wxEntryCleanup();
}
