// The gallery: a host application showing the toolkit on a skin. It sets the
// toolkit up the way every host does (one asset manager, loaders, platform and
// language, databases, then controls with their groups), shows one page per
// control family and logs every notification and hint.
//
//   vorn-gallery [--skin DIR] [--archive FILE | --archive-dir DIR]
//                [--language english|french] [--screenshot DIR]
//                [--switch-language english|french] [--debug]
//                [--watch [--watch-shots DIR]] [--page N]
//
// --screenshot DIR writes one PNG per page and exits; with --switch-language
// it first clicks that language's button, which rebuilds every page.
// --watch reloads the skin whenever a file in its directory changes; with
// --watch-shots each reload also writes the current page to DIR. --page N
// opens on the Nth page.
#include <wx/cmdline.h>
#include <wx/dcclient.h>
#include <wx/dcmemory.h>
#include <wx/filename.h>
#include <wx/notebook.h>
#include <wx/stdpaths.h>
#include <wx/wx.h>

#include <cstdio>
#include <memory>
#include <set>

#include "Gallery.h"
#include "SkinReload.h"

namespace {

const char* const kLanguages[] = {"english", "french"};

struct SkinOptions {
  wxString skinDir;
  wxString archive;
  wxString archiveDir;
  wxString archivePrefix = "vorn";
};

wxString WithSeparator(wxString dir) {
  if (!dir.empty() && !wxFileName::IsPathSeparator(dir.Last())) dir += wxFILE_SEP_PATH;
  return dir;
}

// The skin used when none is named: installed with the library or beside the
// program, else the source tree's, else the configured install location.
wxString DefaultSkinDir() {
  const std::string beside = VornDefaultSkinDir();  // installed with the library
  if (!beside.empty()) return wxString::FromUTF8(beside.c_str());
  const wxFileName exe(wxStandardPaths::Get().GetExecutablePath());
  wxFileName installed(exe.GetPath() + "/../share/vorn/skins/default/");
  installed.Normalize(wxPATH_NORM_DOTS | wxPATH_NORM_ABSOLUTE);
  for (const wxString& dir : {installed.GetPath(), wxString(VORN_GALLERY_SOURCE_SKIN),
                              wxString(VORN_GALLERY_INSTALLED_SKIN)}) {
    if (wxFileName::DirExists(dir)) return WithSeparator(dir);
  }
  return WithSeparator(VORN_GALLERY_SOURCE_SKIN);
}

// Start-up steps 2 to 5 of every host: loaders, platform and language,
// assets, databases.
bool LoadSkin(AssetManager& assets, const SkinOptions& options, const char* language) {
  bool loaders = false;
  if (!options.skinDir.empty() || (options.archive.empty() && options.archiveDir.empty())) {
    auto loader = std::make_unique<FileAssetLoader>();
    const wxString dir =
        options.skinDir.empty() ? DefaultSkinDir() : WithSeparator(options.skinDir);
    dprintf("vorn-gallery: skin directory %s\n", Utf8(dir).c_str());
    if (loader->Init(Utf8(dir))) loaders = assets.SetAssetLoader(std::move(loader));
  }
  // Archives come after the directory, so they override it.
  if (!options.archive.empty())
    loaders =
        assets.SetAssetLoader(new ArchiveAssetLoader(Utf8(options.archive).c_str())) || loaders;
  if (!options.archiveDir.empty()) {
    for (auto& loader : ArchiveAssetLoader::GetArchiveAssetLoaders(
             Utf8(WithSeparator(options.archiveDir)), Utf8(options.archivePrefix)))
      loaders = assets.SetAssetLoader(std::move(loader)) || loaders;
  }
  if (!loaders) {
    std::fprintf(stderr, "vorn-gallery: no asset source to load from\n");
    return false;
  }
  assets.SetPlatform("Linux");
  assets.SetLanguage(language, "");
  bool ok = assets.LoadAssets();
  ok = assets.LoadMessages("messages.txt") && ok;
  ok = assets.LoadMessages("gallery.txt") && ok;
  ok = assets.LoadFontData("fonts.txt") && ok;
  ok = assets.LoadColourData("colours.txt") && ok;
  return ok;
}

// A one-of-N group whose selections and releases also run host actions.
class ActionGroup : public LoggingGroup<VornControlGroup1ofN> {
 public:
  using Action = std::function<void(unsigned int id)>;
  ActionGroup(GalleryLog& log, Action onSelected, Action onReleased)
      : LoggingGroup(log),
        m_onSelected(std::move(onSelected)),
        m_onReleased(std::move(onReleased)) {}
  using LoggingGroup::ControlSelected;
  using LoggingGroup::ControlUnSelected;
  void ControlSelected(unsigned int id, VornControl* control) override {
    LoggingGroup::ControlSelected(id, control);
    if (m_onSelected) m_onSelected(id);
  }
  void ControlUnSelected(unsigned int id, VornControl* control) override {
    LoggingGroup::ControlUnSelected(id, control);
    if (m_onReleased) m_onReleased(id);
  }

 private:
  Action m_onSelected;
  Action m_onReleased;
};

// The bar above the pages: title, language choice and a button that clears
// the log, all toolkit controls.
class TopBar : public VornPanel {
 public:
  enum : unsigned int { kEnglish = 1, kFrench = 2, kClearLog = 10 };

  TopBar(wxWindow* parent, GalleryContext& ctx, int language, ActionGroup::Action onLanguage,
         std::function<void()> onClear)
      : VornPanel(0, 0, 1000, 44, parent, wxID_ANY),
        m_ctx(ctx),
        m_languages(ctx.Log(), std::move(onLanguage), nullptr),
        m_actions(ctx.Log(), nullptr, [onClear](unsigned int) { onClear(); }) {
    SetBgColour(ctx.Colour("panel_deep"));
    SetMinSize(wxSize(-1, 44));
    const VornwxBitmapCache* images = ctx.Images("button_text.sts");
    const wxFont font = ctx.Font("label");
    const wxColour dim = ctx.Colour("text_dim"), bright = ctx.Colour("text_bright"),
                   text = ctx.Colour("text");
    int x = 420;
    for (unsigned int id : {kEnglish, kFrench}) {
      const wxString name = ctx.Msg(id == kEnglish ? "English" : "French");
      auto* b = new VornTextRadioButton(images, Utf8(name), "", font, dim, bright, text, x, 10,
                                        this, id, &m_languages);
      b->SetOn(static_cast<int>(id) - 1 == language);
      m_languages.SetName(id, name);
      x += 104;
    }
    m_languages.SetOnControl(language + 1, true, nullptr);
    m_clear = new VornTextPushButton(Utf8(ctx.Msg("Clear log")), -1, -1, font, text,
                                     ctx.Colour("panel_deep"), bright, images, x + 40, 10, this,
                                     kClearLog, &m_actions);
    m_actions.SetName(kClearLog, ctx.Msg("Clear log"));
  }
  ~TopBar() override { DestroyChildren(); }

  void OnDraw(wxDC* dc) override {
    VornWindow::OnDraw(dc);
    dc->SetFont(m_ctx.Font("title"));
    dc->SetTextForeground(m_ctx.Colour("text_bright"));
    dc->DrawText(m_ctx.Msg("Vorn gallery"), 20, 12);
    dc->SetFont(m_ctx.Font("label"));
    dc->SetTextForeground(m_ctx.Colour("text_dim"));
    const wxString label = m_ctx.Msg("Language") + ":";
    dc->DrawText(label, 410 - dc->GetTextExtent(label).x, 14);
  }

 private:
  GalleryContext& m_ctx;
  ActionGroup m_languages;
  ActionGroup m_actions;
  VornTextPushButton* m_clear = nullptr;
};

class GalleryFrame : public wxFrame {
 public:
  GalleryFrame(AssetManager& assets, const SkinOptions& options, int language)
      : wxFrame(nullptr, wxID_ANY, "Vorn gallery", wxDefaultPosition, wxSize(1060, 860)),
        m_assets(assets),
        m_options(options),
        m_language(language),
        m_ctx(assets, m_log) {
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    SetSizer(sizer);
    m_pLogTitle = new wxStaticText(this, wxID_ANY, "");
    m_pLogList = new wxListBox(this, wxID_ANY, wxDefaultPosition, wxSize(-1, 150));
    m_log.Attach(m_pLogList);
    Build(0);
  }
  ~GalleryFrame() override {
    // Controls go before the manager that holds their images.
    m_log.Attach(nullptr);
    DestroyChildren();
  }

  wxNotebook* GetNotebook() const { return m_pNotebook; }
  GalleryPage* GetPage(std::size_t i) const { return m_pages.at(i); }
  std::size_t NumPages() const { return m_pages.size(); }
  TopBar* GetTopBar() const { return m_pTopBar; }

  // One call switches the assets and databases; cached images stay, so the
  // live controls stay valid. The pages are rebuilt because their labels
  // were given at creation.
  void SwitchLanguage(int language) {
    if (language == m_language) return;
    const int selection = m_pNotebook ? m_pNotebook->GetSelection() : 0;
    m_language = language;
    if (!m_assets.SetLanguageAndReload(kLanguages[language], ""))
      m_log.Add("Some assets could not be loaded; see the warnings");
    Teardown();
    Build(selection);
    m_log.Add(wxString::Format("Language: %s", kLanguages[language]));
  }

  // Rebuilds every page on the skin as it now is on disk; the current page
  // and the log stay. The warnings of the reload (a script that does not
  // parse, a bad colour line) go to the log as well as to stderr.
  void ReloadSkin() {
    const int selection = GetSelection();
    std::vector<wxString> problems;
    const WarningMessageHandler previous =
        SetWarningMessageHandler([&problems](const VornString& title, const VornString& text) {
          std::fprintf(stderr, "%s: %s\n", title.c_str(), text.c_str());
          problems.push_back(wxString::FromUTF8((title + ": " + text).c_str()));
        });
    const bool ok = ::ReloadSkin(
        m_assets, [this] { Teardown(); }, [this, selection] { Build(selection); });
    SetWarningMessageHandler(previous);
    for (const wxString& problem : problems) m_log.Add(problem);
    m_log.Add(ok && problems.empty() ? "Skin reloaded" : "Skin reloaded, with problems");
  }
  int GetSelection() const { return m_pNotebook ? m_pNotebook->GetSelection() : 0; }

 private:
  void Teardown() {
    GetSizer()->Detach(m_pTopBar);
    GetSizer()->Detach(m_pNotebook);
    m_pTopBar->Destroy();
    m_pNotebook->Destroy();
    m_pTopBar = nullptr;
    m_pNotebook = nullptr;
    m_pages.clear();
  }

  void Build(int selection) {
    SetTitle(m_ctx.Msg("Vorn gallery"));
    SetBackgroundColour(m_ctx.Colour("panel_deep"));
    m_pTopBar = new TopBar(
        this, m_ctx, m_language,
        [this](unsigned int id) {
          // After the click has been handled: the button itself is rebuilt.
          CallAfter([this, id] { SwitchLanguage(static_cast<int>(id) - 1); });
        },
        [this] { CallAfter([this] { m_log.Clear(); }); });
    m_pNotebook = new wxNotebook(this, wxID_ANY);
    m_pNotebook->SetBackgroundColour(m_ctx.Colour("panel"));
    m_pNotebook->SetForegroundColour(m_ctx.Colour("text"));
    for (const GalleryPageInfo& info : GalleryPages()) {
      GalleryPage* page = info.make(m_pNotebook, m_ctx);
      m_pNotebook->AddPage(page, m_ctx.Msg(info.titleKey));
      m_pages.push_back(page);
    }
    if (selection >= 0 && selection < static_cast<int>(m_pages.size()))
      m_pNotebook->ChangeSelection(selection);

    m_pLogTitle->SetLabel(m_ctx.Msg("Event log"));
    m_pLogTitle->SetForegroundColour(m_ctx.Colour("text"));
    m_pLogList->SetBackgroundColour(m_ctx.Colour("well"));
    m_pLogList->SetForegroundColour(m_ctx.Colour("text"));
    m_pLogList->SetFont(m_ctx.Font("mono"));

    wxSizer* sizer = GetSizer();
    sizer->Clear(false);
    sizer->Add(m_pTopBar, 0, wxEXPAND);
    sizer->Add(m_pNotebook, 1, wxEXPAND | wxALL, 6);
    sizer->Add(m_pLogTitle, 0, wxLEFT | wxRIGHT, 10);
    sizer->Add(m_pLogList, 0, wxEXPAND | wxALL, 6);
    Layout();
  }

  AssetManager& m_assets;
  SkinOptions m_options;
  int m_language;
  GalleryLog m_log;
  GalleryContext m_ctx;
  TopBar* m_pTopBar = nullptr;
  wxNotebook* m_pNotebook = nullptr;
  std::vector<GalleryPage*> m_pages;
  wxStaticText* m_pLogTitle = nullptr;
  wxListBox* m_pLogList = nullptr;
};

// True when the picture holds more than a handful of colours, i.e. something
// was drawn.
bool LooksDrawn(const wxImage& image) {
  std::set<unsigned long> colours;
  for (int y = 0; y < image.GetHeight(); y += 3)
    for (int x = 0; x < image.GetWidth(); x += 3)
      colours.insert((static_cast<unsigned long>(image.GetRed(x, y)) << 16) |
                     (image.GetGreen(x, y) << 8) | image.GetBlue(x, y));
  return colours.size() > 12;
}

void PumpFor(int ms) {
  wxStopWatch watch;
  while (watch.Time() < ms) {
    wxTheApp->Yield(true);
    wxMilliSleep(10);
  }
}

class GalleryApp : public wxApp {
 public:
  void OnInitCmdLine(wxCmdLineParser& parser) override {
    wxApp::OnInitCmdLine(parser);
    parser.AddOption("", "skin", "skin directory");
    parser.AddOption("", "archive", "packed skin archive (.vrk)");
    parser.AddOption("", "archive-dir", "directory of numbered skin archives");
    parser.AddOption("", "archive-prefix", "name prefix of the numbered archives (default vorn)");
    parser.AddOption("", "language", "english or french");
    parser.AddOption("", "screenshot", "write one PNG per page to DIR and exit");
    parser.AddOption("", "switch-language",
                     "with --screenshot: switch to this language through its button first");
    parser.AddSwitch("", "debug", "print the toolkit's debug lines");
    parser.AddSwitch("", "watch", "reload the skin when a file in its directory changes");
    parser.AddOption("", "watch-shots",
                     "with --watch: write the current page to DIR after each reload");
    parser.AddOption("", "page", "open on page N (from 1)", wxCMD_LINE_VAL_NUMBER);
  }
  bool OnCmdLineParsed(wxCmdLineParser& parser) override {
    parser.Found("skin", &m_options.skinDir);
    parser.Found("archive", &m_options.archive);
    parser.Found("archive-dir", &m_options.archiveDir);
    parser.Found("archive-prefix", &m_options.archivePrefix);
    wxString language;
    if (parser.Found("language", &language) && !ParseLanguage(language, m_language)) return false;
    if (parser.Found("switch-language", &language) && !ParseLanguage(language, m_switchTo))
      return false;
    parser.Found("screenshot", &m_shotDir);
    m_debug = parser.Found("debug");
    m_watch = parser.Found("watch");
    parser.Found("watch-shots", &m_watchShotDir);
    parser.Found("page", &m_page);
    return wxApp::OnCmdLineParsed(parser);
  }

  bool OnInit() override {
    if (!wxApp::OnInit()) return false;
    wxInitAllImageHandlers();
    if (m_debug) SetDprintfHandler([](const char* text) { std::fputs(text, stderr); });

    m_assets = std::make_unique<AssetManager>();
    if (!LoadSkin(*m_assets, m_options, kLanguages[m_language])) {
      std::fprintf(stderr, "vorn-gallery: the skin did not load completely\n");
      if (m_assets->GetNumAssets() == 0) return false;
    }
    m_frame = new GalleryFrame(*m_assets, m_options, m_language);
    if (m_page >= 1 && static_cast<std::size_t>(m_page) <= m_frame->NumPages())
      m_frame->GetNotebook()->ChangeSelection(m_page - 1);
    m_frame->Show();
    if (!m_shotDir.empty()) CallAfter([this] { TakeScreenshots(); });
    // The watcher needs the running event loop.
    if (m_watch) CallAfter([this] { StartWatching(); });
    return true;
  }

  int OnExit() override {
    m_watcher.reset();
    // The frame is gone by now; the manager deletes its images last.
    m_assets.reset();
    return wxApp::OnExit();
  }
  int OnRun() override {
    const int rc = wxApp::OnRun();
    return rc != 0 ? rc : m_exitCode;
  }

 private:
  // Grabs the frame as shown on screen; where the screen cannot be read back
  // the page and the bar are drawn straight into the picture instead.
  wxBitmap Capture(GalleryPage* page) {
    const wxSize size = m_frame->GetClientSize();
    wxBitmap shot(size);
    {
      wxClientDC screen(m_frame);
      wxMemoryDC mem(shot);
      mem.Blit(0, 0, size.x, size.y, &screen, 0, 0);
    }
    if (LooksDrawn(shot.ConvertToImage())) {
      // Pop-ups are top-level windows of their own: the frame's read-back
      // does not hold them.
      wxMemoryDC mem(shot);
      page->RenderPopUps(mem, m_frame->ScreenToClient(page->GetScreenPosition()));
      mem.SelectObject(wxNullBitmap);
      return shot;
    }

    std::fprintf(stderr, "vorn-gallery: screen not readable, drawing the page directly\n");
    TopBar* bar = m_frame->GetTopBar();
    const int barHeight = bar->GetSize().y;
    wxBitmap drawn(size.x, barHeight + page->GetSize().y + 12);
    wxMemoryDC mem(drawn);
    wxColour background;
    m_assets->GetColour("panel", background);
    mem.SetBackground(wxBrush(background));
    mem.Clear();
    RenderToolkitWindows(bar, mem, wxPoint(0, 0));
    RenderToolkitWindows(page, mem, wxPoint(6, barHeight + 6));
    page->RenderPopUps(mem, wxPoint(6, barHeight + 6));
    mem.SelectObject(wxNullBitmap);
    return drawn;
  }

  static bool ParseLanguage(const wxString& name, int& out) {
    for (int i = 0; i < 2; ++i) {
      if (name.Lower() == kLanguages[i]) {
        out = i;
        return true;
      }
    }
    std::fprintf(stderr, "vorn-gallery: unknown language %s\n", name.utf8_str().data());
    return false;
  }

  void SaveShot(const wxBitmap& shot, const wxString& path) {
    if (!LooksDrawn(shot.ConvertToImage()) || !shot.SaveFile(path, wxBITMAP_TYPE_PNG)) {
      std::fprintf(stderr, "vorn-gallery: cannot write %s\n", path.utf8_str().data());
      m_exitCode = 1;
    } else {
      std::printf("%s\n", path.utf8_str().data());
    }
  }

  void TakeScreenshots() {
    wxFileName::Mkdir(m_shotDir, wxS_DIR_DEFAULT, wxPATH_MKDIR_FULL);
    if (m_switchTo >= 0) {
      // A real click; the rebuild runs once the click has been handled.
      ClickOn(m_frame->GetTopBar()->FindWindow(TopBar::kEnglish + m_switchTo));
      PumpFor(300);
    }
    const auto& infos = GalleryPages();
    for (std::size_t i = 0; i < m_frame->NumPages(); ++i) {
      m_frame->GetNotebook()->ChangeSelection(i);
      m_frame->GetPage(i)->Demo();
      m_frame->Refresh();
      m_frame->Update();
      PumpFor(400);
      SaveShot(Capture(m_frame->GetPage(i)),
               wxString::Format("%s/%02zu-%s.png", m_shotDir, i + 1, infos[i].fileName));
      if (m_frame->GetPage(i)->OpenPopUpForShot()) {
        PumpFor(200);
        SaveShot(Capture(m_frame->GetPage(i)),
                 wxString::Format("%s/%02zu-%s-open.png", m_shotDir, i + 1, infos[i].fileName));
        m_frame->GetPage(i)->ClosePopUps();
      }
      if (m_frame->GetPage(i)->OpenMenuForShot()) {
        PumpFor(200);
        SaveShot(Capture(m_frame->GetPage(i)),
                 wxString::Format("%s/%02zu-%s-menu.png", m_shotDir, i + 1, infos[i].fileName));
        m_frame->GetPage(i)->ClosePopUps();
      }
      if (m_frame->GetPage(i)->OpenMoreForShot()) {
        PumpFor(200);
        SaveShot(Capture(m_frame->GetPage(i)),
                 wxString::Format("%s/%02zu-%s-more.png", m_shotDir, i + 1, infos[i].fileName));
        m_frame->GetPage(i)->ClosePopUps();
      }
    }
    m_frame->Destroy();
  }

  // The directory a designer edits: the skin directory, else the archives'.
  wxString WatchedDir() const {
    if (!m_options.skinDir.empty()) return m_options.skinDir;
    if (!m_options.archiveDir.empty()) return m_options.archiveDir;
    if (!m_options.archive.empty()) return wxFileName(m_options.archive).GetPath();
    return DefaultSkinDir();
  }

  void StartWatching() {
    const wxString dir = WatchedDir();
    m_watcher = std::make_unique<SkinWatcher>([this] { OnSkinChanged(); });
    m_frame->Bind(wxEVT_DESTROY, [this](wxWindowDestroyEvent& event) {
      if (event.GetEventObject() == m_frame) m_frame = nullptr;
      event.Skip();
    });
    if (!m_watcher->Watch(dir)) {
      std::fprintf(stderr, "vorn-gallery: cannot watch %s\n", dir.utf8_str().data());
      m_watcher.reset();
      return;
    }
    std::printf("vorn-gallery: watching %s\n", dir.utf8_str().data());
    std::fflush(stdout);
    if (!m_watchShotDir.empty()) {
      wxFileName::Mkdir(m_watchShotDir, wxS_DIR_DEFAULT, wxPATH_MKDIR_FULL);
      m_shotTimer.Bind(wxEVT_TIMER, [this](wxTimerEvent&) { WriteWatchShot(); });
      m_shotTimer.StartOnce(500);
    }
  }

  void OnSkinChanged() {
    if (!m_frame) return;
    m_frame->ReloadSkin();
    std::printf("vorn-gallery: skin reloaded\n");
    std::fflush(stdout);
    if (!m_watchShotDir.empty()) m_shotTimer.StartOnce(500);  // once the pages have drawn
  }

  void WriteWatchShot() {
    if (!m_frame) return;
    const wxBitmap shot = Capture(m_frame->GetPage(m_frame->GetSelection()));
    const wxString path = wxString::Format("%s/watch-%03d.png", m_watchShotDir, m_watchShots++);
    if (shot.SaveFile(path, wxBITMAP_TYPE_PNG))
      std::printf("%s\n", path.utf8_str().data());
    else
      std::fprintf(stderr, "vorn-gallery: cannot write %s\n", path.utf8_str().data());
    std::fflush(stdout);
  }

  SkinOptions m_options;
  int m_language = 0;
  int m_switchTo = -1;
  bool m_watch = false;
  wxString m_watchShotDir;
  int m_watchShots = 0;
  long m_page = 0;
  wxTimer m_shotTimer;
  std::unique_ptr<SkinWatcher> m_watcher;
  bool m_debug = false;
  wxString m_shotDir;
  int m_exitCode = 0;
  std::unique_ptr<AssetManager> m_assets;
  GalleryFrame* m_frame = nullptr;
};

}  // namespace

wxIMPLEMENT_APP(GalleryApp);
