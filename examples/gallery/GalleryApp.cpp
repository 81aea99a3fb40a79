// The gallery: a host application showing the toolkit on a skin.
// --screenshot DIR writes one PNG per page and exits.
#include <wx/cmdline.h>
#include <wx/dcmemory.h>
#include <wx/filename.h>
#include <wx/wx.h>

#include <memory>

#include "vorn/Vorn.h"

namespace {

// Draws a swatch picture through the host layer's filters.
wxBitmap MakeHostPicture() {
  wxImage image(320, 200);
  std::unique_ptr<Filter> f = CreateFilter(image);
  Clear(*f, ColorA(0.16, 0.18, 0.22));
  for (int i = 0; i < 12; ++i) {
    Color c;
    c.HSVtoRGB(i / 12.0, 0.6, 0.9);
    DrawCircle(AntiAlias(*f), 30 + (i % 6) * 52, 60 + (i / 6) * 80, 22, CtoCA(c), true);
  }
  DrawLine(AntiAlias(*f), 10, 190, 310, 110, ColorA(1, 1, 1));
  return wxBitmap(image);
}

class PicturePanel : public wxPanel {
 public:
  PicturePanel(wxWindow* parent, const wxBitmap& bmp) : wxPanel(parent), m_bmp(bmp) {
    SetMinSize(bmp.GetSize());
    Bind(wxEVT_PAINT, [this](wxPaintEvent&) {
      wxPaintDC dc(this);
      dc.DrawBitmap(m_bmp, 0, 0);
    });
  }
  void Render(wxDC& dc) { dc.DrawBitmap(m_bmp, 0, 0); }

 private:
  wxBitmap m_bmp;
};

class GalleryApp : public wxApp {
 public:
  void OnInitCmdLine(wxCmdLineParser& parser) override {
    wxApp::OnInitCmdLine(parser);
    parser.AddOption("", "skin", "skin directory (ending with a separator)");
    parser.AddOption("", "screenshot", "write one PNG per page to DIR and exit");
  }
  bool OnCmdLineParsed(wxCmdLineParser& parser) override {
    parser.Found("skin", &m_skin);
    parser.Found("screenshot", &m_shotDir);
    return wxApp::OnCmdLineParsed(parser);
  }
  bool OnInit() override {
    if (!wxApp::OnInit()) return false;
    wxInitAllImageHandlers();
    auto* frame = new wxFrame(nullptr, wxID_ANY, "Vorn gallery", wxDefaultPosition, wxSize(360, 260));
    auto* panel = new PicturePanel(frame, MakeHostPicture());
    frame->Show();
    if (!m_shotDir.empty()) {
      // Draw after the frame is laid out, then close it; the app ends with it.
      CallAfter([this, frame, panel]() {
        wxFileName::Mkdir(m_shotDir, wxS_DIR_DEFAULT, wxPATH_MKDIR_FULL);
        wxBitmap shot(320, 200);
        {
          wxMemoryDC dc(shot);
          panel->Render(dc);
        }
        if (!shot.SaveFile(m_shotDir + "/host-picture.png", wxBITMAP_TYPE_PNG)) m_exitCode = 1;
        frame->Destroy();
      });
    }
    return true;
  }
  int OnRun() override {
    const int rc = wxApp::OnRun();
    return rc != 0 ? rc : m_exitCode;
  }

 private:
  wxString m_skin;
  wxString m_shotDir;
  int m_exitCode = 0;
};

}  // namespace

wxIMPLEMENT_APP(GalleryApp);
