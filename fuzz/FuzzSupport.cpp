#include "FuzzSupport.h"

#include <wx/wx.h>

#include <cstdio>
#include <cstdlib>

#include "vorn/VornAssert.h"
#include "vornhost/Debug.h"

namespace {
class FuzzApp : public wxApp {
 public:
  bool OnInit() override { return true; }
};
}  // namespace

void FuzzStartWx() {
  static bool started = false;
  if (started) return;
  started = true;
  int argc = 1;
  char name[] = "vorn-fuzz";
  char* argv[] = {name, nullptr};
  wxApp::SetInstance(new FuzzApp);
  if (!wxEntryStart(argc, argv)) {
    std::fprintf(stderr, "fuzz: cannot start wxWidgets (run under xvfb-run)\n");
    std::exit(1);
  }
  wxTheApp->CallOnInit();
  wxInitAllImageHandlers();
}

void FuzzQuiet() {
  SetDprintfHandler([](const char*) {});
  SetWarningMessageHandler([](const VornString&, const VornString&) {});
}
