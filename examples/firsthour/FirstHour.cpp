// A first host: a toggle, three radio buttons and an up/down pair driving a
// number, laid out by sizers, in English or French.
//   vorn-firsthour [SKINDIR] [--check]   (--check: lay out, test, exit)
#include <vorn/Vorn.h>
#include <wx/wx.h>

class Counter : public MessageReceiver {  // hears the up/down buttons' hints
 public:
  explicit Counter(wxStaticText* label) : m_label(label) {}
  void OnUpdate(unsigned int id, VornControl*, VornControlHint* hint) override {
    if (!dynamic_cast<VornMomentHint*>(hint)) return;
    m_value += id == 2 ? 1 : -1;
    m_label->SetLabel(wxString::Format("%d", m_value));
  }
  int m_value = 0;
  wxStaticText* m_label;
};

class App : public wxApp {
 public:
  bool OnInit() override {
    wxInitAllImageHandlers();
    auto loader = std::make_unique<FileAssetLoader>();
    const std::string skin = argc > 1 && argv[1] != "--check" ? argv[1].ToStdString()
                                                              : VornDefaultSkinDir();
    if (skin.empty() || !loader->Init(skin)) return false;
    m_assets.SetAssetLoader(std::move(loader));  // the manager owns it now
    m_assets.SetPlatform("Linux");
    m_assets.SetLanguage("english", "");
    bool ok = m_assets.LoadAssets() && m_assets.LoadMessages("messages.txt") &&
              m_assets.LoadFontData("fonts.txt") && m_assets.LoadColourData("colours.txt");
    const VornwxBitmapCache *toggle, *radio, *up, *down;
    ok = ok && m_assets.LoadImagesCached("button_toggle.sts", toggle) &&
         m_assets.LoadImagesCached("button_radio.sts", radio) &&
         m_assets.LoadImagesCached("button_moment_up.sts", up) &&
         m_assets.LoadImagesCached("button_moment_down.sts", down);
    if (!ok) return false;

    auto* frame = new wxFrame(nullptr, wxID_ANY, "First hour");
    auto* panel = new wxPanel(frame);
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    m_toggle = new VornButtonToggle(toggle, 0, 0, panel, 1, &m_group);
    row->Add(m_toggle, 0, wxALL, 8);
    for (int i = 0; i < 3; ++i)
      row->Add(new VornRadioButton(radio, 0, 0, panel, 10 + i, &m_radios), 0, wxALL, 8);
    row->Add(new VornMomentBtn(down, 0, 0, panel, 3, &m_group), 0, wxALL, 8);
    row->Add(new VornMomentBtn(up, 0, 0, panel, 2, &m_group), 0, wxALL, 8);
    auto* number = new wxStaticText(panel, wxID_ANY, "0");
    row->Add(number, 0, wxALL | wxALIGN_CENTER_VERTICAL, 8);
    m_label = new wxStaticText(panel, wxID_ANY, m_assets.GetMessage("Value"));
    row->Add(m_label, 0, wxALL | wxALIGN_CENTER_VERTICAL, 8);
    m_counter = std::make_unique<Counter>(number);
    m_group.Register(m_counter.get());
    panel->SetSizerAndFit(row);
    frame->Fit();
    frame->Show();
    if (argc > 1 && argv[argc - 1] == "--check") CallAfter([this, frame] { Check(frame); });
    return true;
  }

  // Switches language in one call; labels given at creation are set again.
  void SetLanguage(const char* language) {
    m_assets.SetLanguageAndReload(language, "");
    m_label->SetLabel(m_assets.GetMessage("Value"));
  }

  void Check(wxFrame* frame) {
    SetLanguage("french");
    const bool ok = m_toggle->GetSize().x > 1 && m_label->GetLabel() == "Valeur";
    std::puts(ok ? "first hour ok" : "first hour FAILED");
    m_exitCode = ok ? 0 : 1;
    frame->Close();
  }
  int OnExit() override {
    m_group.DeRegister(m_counter.get());
    return m_exitCode;
  }

 private:
  AssetManager m_assets;  // outlives the frame's controls: see OnExit
  VornControlGroup m_group;
  VornControlGroup1ofN m_radios;
  std::unique_ptr<Counter> m_counter;
  VornButtonToggle* m_toggle = nullptr;
  wxStaticText* m_label = nullptr;
  int m_exitCode = 0;
};

wxIMPLEMENT_APP(App);
