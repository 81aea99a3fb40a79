// vorn_soak [--seed N] [--seeds K] [--steps N] [--family TEXT] [--verbose]
// Runs K seeded soak runs of N steps from seed N onwards (default: seed 1,
// one run, 10000 steps) inside a real wxApp, over every family or those whose
// name contains TEXT; run under Xvfb without a display. A failure prints its
// seed and step, and the command that replays it.
#include <dlfcn.h>
#include <wx/wx.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <string>

#include "SoakWorld.h"

// ---- the pieces declared in Soak.h ------------------------------------------------

double SoakRandom::Value() {
  switch (Below(10)) {
    case 0:
      return Between(-3, 3);  // the ends and just past them
    case 1:
      return (Chance(50) ? -1 : 1) * std::uniform_real_distribution<double>(1, 1e9)(m_engine);
    default:
      return std::uniform_real_distribution<double>(0, 1)(m_engine);
  }
}

VornString SoakText(SoakRandom& r) {
  static const char* const kPieces[] = {
      "a", "Z", "0", "7", "-", ".", " ", "\n", "\t", "é", "\xe2\x82\xac", "42", "3.25e3", "x y"};
  VornString text;
  const int n = r.Chance(10) ? r.Between(50, 300) : r.Below(12);
  for (int i = 0; i < n; ++i) text += kPieces[r.Below(static_cast<int>(std::size(kPieces)))];
  return text;
}

wxMouseEvent SoakMouseEvent(wxWindow* target, wxEventType type, int x, int y, bool left) {
  wxMouseEvent e(type);
  e.SetEventObject(target);
  e.SetId(target->GetId());
  e.m_x = x;
  e.m_y = y;
  e.m_leftDown = left;
  return e;
}

void SoakMouse(wxWindow* target, wxEventType type, int x, int y, bool left) {
  wxMouseEvent e = SoakMouseEvent(target, type, x, y, left);
  target->GetEventHandler()->ProcessEvent(e);
}

void SoakClick(wxWindow* target, int x, int y) {
  SoakMouse(target, wxEVT_ENTER_WINDOW, x, y, false);
  SoakMouse(target, wxEVT_LEFT_DOWN, x, y, true);
  SoakMouse(target, wxEVT_LEFT_UP, x, y, false);
}

std::vector<VornControl*> SoakGroup::Controls() const {
  std::vector<VornControl*> out;
  for (const auto& e : VornControlGroup1ofN::m_controlsById) out.push_back(e.control);
  for (VornControl* c : VornControlGroup1ofN::m_controls) out.push_back(c);
  for (const auto& e : VornControlGroupValue::m_controlsById) out.push_back(e.control);
  for (VornControl* c : VornControlGroupValue::m_controls) out.push_back(c);
  return out;
}

std::vector<VornControlGroup*> SoakGroup::SubGroups() const {
  std::vector<VornControlGroup*> out(VornControlGroup1ofN::m_groups);
  out.insert(out.end(), VornControlGroupValue::m_groups.begin(),
             VornControlGroupValue::m_groups.end());
  return out;
}

std::vector<unsigned int> SoakGroup::Ids() const {
  std::vector<unsigned int> out;
  for (const auto& e : VornControlGroup1ofN::m_controlsById) out.push_back(e.id);
  for (const auto& e : VornControlGroupValue::m_controlsById) out.push_back(e.id);
  return out;
}

wxColour SoakSkin::Colour(const char* name) const {
  wxColour c(*wxRED);
  assets.GetColour(name, c);
  return c;
}

wxFont SoakSkin::Font(const char* name) const {
  wxFont f(*wxNORMAL_FONT);
  assets.GetFont(name, f);
  return f;
}

const wxBitmap* SoakSkin::Picture(const char* name) const {
  const wxBitmap* out = nullptr;
  assets.LoadImageCached(name, out);
  return out;
}

const BitmapA* SoakSkin::PictureA(const char* name) const {
  const BitmapA* out = nullptr;
  assets.LoadImageCached(name, out);
  return out;
}

const VornwxBitmapCache* SoakSkin::Images(const char* name) const {
  const VornwxBitmapCache* out = nullptr;
  assets.LoadImagesCached(name, out);
  return out;
}

namespace {

// Assertions of the toolkit or of wxWidgets end the run as a failure.
std::string g_assertion;

void OnVornAssertion(const VornAssertInfo& info) {
  if (g_assertion.empty())
    g_assertion = std::string("assertion \"") + info.condition + "\" in " + info.function + " (" +
                  info.file + ":" + std::to_string(info.line) + ")";
}

void OnWxAssertion(const wxString& file, int line, const wxString& function, const wxString& cond,
                   const wxString& message) {
  if (g_assertion.empty())
    g_assertion = "wx assertion \"" + cond.ToStdString() + "\" " + message.ToStdString() + " in " +
                  function.ToStdString() + " (" + file.ToStdString() + ":" + std::to_string(line) +
                  ")";
}

// GTK's own checks (a negative window size, say) fail the run too. GLib is
// reached through the GTK that wx loaded: its headers are not needed.
void CatchGtkCriticals() {
  using Handler = void (*)(const char*, int, const char*, void*);
  using SetHandler = unsigned (*)(const char*, int, Handler, void*);
  auto set = reinterpret_cast<SetHandler>(dlsym(RTLD_DEFAULT, "g_log_set_handler"));
  if (!set) return;
  const int kCritical = 1 << 3;  // G_LOG_LEVEL_CRITICAL
  for (const char* domain : {"Gtk", "Gdk", "GLib-GObject"})
    set(
        domain, kCritical,
        [](const char* from, int, const char* message, void*) {
          if (g_assertion.empty()) g_assertion = std::string(from) + " critical: " + message;
        },
        nullptr);
}

class SoakApp : public wxApp {
 public:
  bool OnInit() override { return true; }
};

bool LoadSkin(AssetManager& assets) {
  auto* loader = new FileAssetLoader;
  if (!loader->Init(std::string(VORN_SKIN_DIR) + "/")) {
    delete loader;
    return false;
  }
  assets.SetAssetLoader(loader);
  assets.SetPlatform("Linux");
  assets.SetLanguage("english", "");
  return assets.LoadAssets() && assets.LoadColourData("colours.txt") &&
         assets.LoadFontData("fonts.txt") && assets.LoadMessages("messages.txt");
}

}  // namespace

bool RunSoak(AssetManager& assets, std::uint64_t seed, int steps, bool verbose) {
  SoakRandom random(seed);
  SoakWorld world(assets, random);
  auto fail = [&](int step, const std::string& what) {
    std::fprintf(stderr,
                 "vorn_soak: seed %llu failed at step %d (%s): %s\n"
                 "replay with: vorn_soak --seed %llu --steps %d --verbose\n",
                 static_cast<unsigned long long>(seed), step, world.LastStep().c_str(),
                 what.c_str(), static_cast<unsigned long long>(seed), step + 1);
    return false;
  };
  for (int step = 0; step < steps; ++step) {
    world.Step();
    if (verbose) std::fprintf(stderr, "%d: %s\n", step, world.LastStep().c_str());
    std::string problem = g_assertion.empty() ? world.Check() : g_assertion;
    if (!problem.empty()) return fail(step, problem);
  }
  const std::string problem = world.TearDown();
  if (!problem.empty() || !g_assertion.empty())
    return fail(steps, problem.empty() ? g_assertion : problem);
  return true;
}

int main(int argc, char** argv) {
  std::uint64_t seed = 1;
  int seeds = 1, steps = 10000;
  bool verbose = false;
  for (int i = 1; i < argc; ++i) {
    const bool more = i + 1 < argc;
    if (!std::strcmp(argv[i], "--seed") && more) {
      seed = std::strtoull(argv[++i], nullptr, 10);
    } else if (!std::strcmp(argv[i], "--seeds") && more) {
      seeds = std::atoi(argv[++i]);
    } else if (!std::strcmp(argv[i], "--steps") && more) {
      steps = std::atoi(argv[++i]);
    } else if (!std::strcmp(argv[i], "--family") && more) {
      if (!SoakKeepFamilies(argv[++i])) {
        std::fprintf(stderr, "vorn_soak: no family named like %s\n", argv[i]);
        return 2;
      }
    } else if (!std::strcmp(argv[i], "--verbose")) {
      verbose = true;
    } else {
      std::fprintf(stderr,
                   "usage: vorn_soak [--seed N] [--seeds K] [--steps N] [--family TEXT] "
                   "[--verbose]\n");
      return 2;
    }
  }
  int wxArgc = 1;
  char* wxArgv[] = {argv[0], nullptr};
  wxApp::SetInstance(new SoakApp);
  if (!wxEntryStart(wxArgc, wxArgv)) {
    std::fprintf(stderr, "vorn_soak: cannot start wxWidgets (no display? run under xvfb-run)\n");
    return 1;
  }
  wxTheApp->CallOnInit();
  wxInitAllImageHandlers();
  wxSetAssertHandler(OnWxAssertion);
  VornSetAssertHandler(OnVornAssertion);
  CatchGtkCriticals();
  SetWarningMessageHandler([](const VornString&, const VornString&) {});
  SetDprintfHandler([](const char*) {});
  int failed = 0;
  {
    AssetManager assets;
    if (!LoadSkin(assets)) {
      std::fprintf(stderr, "vorn_soak: cannot load the skin in %s\n", VORN_SKIN_DIR);
      failed = 1;
    }
    for (int k = 0; !failed && k < seeds; ++k) {
      if (!RunSoak(assets, seed + static_cast<std::uint64_t>(k), steps, verbose)) failed = 1;
      g_assertion.clear();
    }
    if (!failed)
      std::printf("vorn_soak: %d seed(s) from %llu, %d steps each, %zu families: passed\n", seeds,
                  static_cast<unsigned long long>(seed), steps, SoakFamilies().size());
  }
  wxTheApp->OnExit();
  wxEntryCleanup();
  return failed;
}
