// The OpenGL page: one wxGLCanvas that draws several VornGLWindow regions in
// window pixels: the base's plain rectangle, a texture from the GL texture
// cache, a shaded strip and a region held at its minimum size. A click
// captures or releases the region under the pointer. The scene is also read
// back into a picture, so the page's own drawing (and a screenshot) shows it.
#define GL_GLEXT_PROTOTYPES 1
#include <GL/gl.h>
#include <GL/glext.h>
#include <wx/dcclient.h>
#include <wx/glcanvas.h>

#include <algorithm>
#include <memory>
#include <vector>

#include "Gallery.h"

namespace {

constexpr int kCanvasX = 24, kCanvasY = 56, kCanvasW = 600, kCanvasH = 300;
constexpr int kLegendX = kCanvasX + kCanvasW + 28;

void GlColour(const wxColour& c) {
  glColor3ub(c.Red(), c.Green(), c.Blue());
}

// A region that draws one texture of a GL texture cache over its rectangle.
class TextureRegion : public VornGLWindow {
 public:
  explicit TextureRegion(const VornGLTextureCache& textures) : m_textures(textures) {}
  void OnDraw() override {
    const CGLImage* texture = nullptr;
    if (!m_textures.GetImage(VIT_OFF, texture)) return VornGLWindow::OnDraw();
    int w, h;
    GetSize(w, h);
    glEnable(GL_TEXTURE_2D);
    glEnable(GL_BLEND);
    glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    glBindTexture(GL_TEXTURE_2D, texture->GetImage());
    glColor3f(1, 1, 1);
    const float s = texture->GetfTexWidth(), t = texture->GetfTexHeight();
    glBegin(GL_QUADS);
    glTexCoord2f(0, 0), glVertex2f(m_x, m_y);
    glTexCoord2f(s, 0), glVertex2f(m_x + w, m_y);
    glTexCoord2f(s, t), glVertex2f(m_x + w, m_y + h);
    glTexCoord2f(0, t), glVertex2f(m_x, m_y + h);
    glEnd();
    glDisable(GL_TEXTURE_2D);
    glDisable(GL_BLEND);
  }

 private:
  const VornGLTextureCache& m_textures;
};

// A region shaded from one colour to another, left to right.
class ShadedRegion : public VornGLWindow {
 public:
  ShadedRegion(const wxColour& from, const wxColour& to) : m_from(from), m_to(to) {}
  void OnDraw() override {
    glShadeModel(GL_SMOOTH);
    glBegin(GL_QUADS);
    GlColour(m_from), glVertex2f(m_x, m_y), glVertex2f(m_x, m_bottom + 1);
    GlColour(m_to), glVertex2f(m_right + 1, m_bottom + 1), glVertex2f(m_right + 1, m_y);
    glEnd();
  }

 private:
  wxColour m_from, m_to;
};

class GLPage : public GalleryPage {
 public:
  GLPage(wxWindow* parent, GalleryContext& ctx) : GalleryPage(parent, ctx) {
    wxGLAttributes attrs;
    attrs.PlatformDefaults().RGBA().DoubleBuffer().EndList();
    if (wxGLCanvas::IsDisplaySupported(attrs)) {
      m_canvas = new wxGLCanvas(this, attrs, wxID_ANY, wxPoint(kCanvasX, kCanvasY),
                                wxSize(kCanvasW, kCanvasH));
      m_context = std::make_unique<wxGLContext>(m_canvas);
      m_canvas->Bind(wxEVT_PAINT, &GLPage::OnCanvasPaint, this);
      m_canvas->Bind(wxEVT_LEFT_DOWN, &GLPage::OnCanvasClick, this);
    }
    BuildRegions();
    SetSize(960, kCanvasY + kCanvasH + 110);
  }
  ~GLPage() override {
    // Textures belong to the canvas's context.
    if (MakeCurrent()) m_textures.Clear();
  }

  void Demo() override {
    Snapshot();
    ClickRegion(1);
  }

 protected:
  void DrawPage(wxDC& dc) override {
    DrawText(dc, m_ctx.Msg("GL regions"), kCanvasX, 16, "label_bold", "text");
    const wxRect canvas(kCanvasX, kCanvasY, kCanvasW, kCanvasH);
    if (m_shot.IsOk()) {
      dc.DrawBitmap(m_shot, canvas.GetPosition());
    } else {
      dc.SetPen(wxPen(m_ctx.Colour("border")));
      dc.SetBrush(wxBrush(m_ctx.Colour("panel_deep")));
      dc.DrawRectangle(canvas);
      if (!m_canvas || !m_context || !m_context->IsOK())
        DrawText(dc, m_ctx.Msg("OpenGL is not available on this display"), kCanvasX + 16,
                 kCanvasY + 16, "label", "text_dim");
    }
    // The legend beside the canvas: the canvas covers its own area on screen.
    int y = kCanvasY;
    for (const Region& r : m_regions) {
      int w, h;
      r.window->GetSize(w, h);
      y += DrawText(dc, r.name, kLegendX, y, "label", "text") + 2;
      const wxString place = wxString::Format("%d, %d   %d x %d", r.at.x, r.at.y, w, h);
      y += DrawText(dc, place + (r.window->IsCaptured() ? "   " + m_ctx.Msg("captured") : ""),
                    kLegendX, y, "small", r.window->IsCaptured() ? "accent" : "text_dim") +
           12;
    }
    DrawText(dc, m_ctx.Msg("Click a region to capture or release it."), kCanvasX,
             kCanvasY + kCanvasH + 12, "label", "text_dim");
  }

 private:
  struct Region {
    std::unique_ptr<VornGLWindow> window;
    wxString name;
    wxPoint at;
  };

  void BuildRegions() {
    auto add = [&](VornGLWindow* window, const char* name, int x, int y, int w, int h) {
      window->SetSize(w, h);
      m_regions.push_back({std::unique_ptr<VornGLWindow>(window), m_ctx.Msg(name), {x, y}});
    };
    add(new VornGLWindow, "Plain region", 24, 24, 150, 96);
    add(new TextureRegion(m_textures), "Texture from the GL texture cache", 210, 24, 120, 120);
    add(new ShadedRegion(m_ctx.Colour("accent_deep"), m_ctx.Colour("accent")), "Shaded region", 370,
        24, 200, 60);
    auto* small = new VornGLWindow;
    int minW = 48, minH = 48;
    small->SetMinSize(minW, minH);
    add(small, "Held at its minimum size", 370, 150, 8, 8);
  }

  bool MakeCurrent() {
    return m_canvas && m_context && m_context->IsOK() && m_canvas->IsShownOnScreen() &&
           m_canvas->SetCurrent(*m_context);
  }

  void UploadTextures() {
    if (m_bUploaded) return;
    m_bUploaded = true;
    const VornBitmapACache* clock = nullptr;
    if (m_ctx.Assets().LoadImagesCached("clock_face.sts", clock))
      CopyImageCache(m_textures, *clock);
  }

  // The scene in window pixels: x right, y down.
  void DrawScene(int w, int h) {
    glViewport(0, 0, w, h);
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    glOrtho(0, w, h, 0, -1, 1);
    glMatrixMode(GL_MODELVIEW);
    const wxColour back = m_ctx.Colour("panel_deep");
    glClearColor(back.Red() / 255.f, back.Green() / 255.f, back.Blue() / 255.f, 1.f);
    glClear(GL_COLOR_BUFFER_BIT);
    for (const Region& r : m_regions) {
      GlColour(m_ctx.Colour("face_hover"));
      r.window->Draw(r.at.x, r.at.y);
      if (r.window->IsCaptured()) Outline(*r.window);
    }
  }

  // A captured region is ringed in the accent, two pixels outside it.
  void Outline(const VornGLWindow& w) {
    int x, y;
    w.GetLastPosition(x, y);
    GlColour(m_ctx.Colour("accent"));
    glLineWidth(2);
    glBegin(GL_LINE_LOOP);
    glVertex2f(x - 3, y - 3), glVertex2f(w.GetRight() + 4, y - 3);
    glVertex2f(w.GetRight() + 4, w.GetBottom() + 4), glVertex2f(x - 3, w.GetBottom() + 4);
    glEnd();
    glLineWidth(1);
  }

  void OnCanvasPaint(wxPaintEvent&) {
    wxPaintDC dc(m_canvas);
    if (!MakeCurrent()) return;
    UploadTextures();
    DrawScene(kCanvasW, kCanvasH);
    m_canvas->SwapBuffers();
    if (!m_shot.IsOk()) Snapshot();
  }

  // Draws the scene off screen and keeps the pixels for the page's drawing.
  void Snapshot() {
    if (!MakeCurrent()) return;
    UploadTextures();
    GLuint fbo = 0, colour = 0;
    glGenFramebuffers(1, &fbo);
    glGenRenderbuffers(1, &colour);
    glBindRenderbuffer(GL_RENDERBUFFER, colour);
    glRenderbufferStorage(GL_RENDERBUFFER, GL_RGBA8, kCanvasW, kCanvasH);
    glBindFramebuffer(GL_FRAMEBUFFER, fbo);
    glFramebufferRenderbuffer(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_RENDERBUFFER, colour);
    if (glCheckFramebufferStatus(GL_FRAMEBUFFER) == GL_FRAMEBUFFER_COMPLETE) {
      DrawScene(kCanvasW, kCanvasH);
      std::vector<unsigned char> rgb(static_cast<std::size_t>(kCanvasW) * kCanvasH * 3);
      glPixelStorei(GL_PACK_ALIGNMENT, 1);
      glReadBuffer(GL_COLOR_ATTACHMENT0);
      glReadPixels(0, 0, kCanvasW, kCanvasH, GL_RGB, GL_UNSIGNED_BYTE, rgb.data());
      wxImage image(kCanvasW, kCanvasH);
      for (int y = 0; y < kCanvasH; ++y)  // GL rows run bottom to top
        std::copy_n(&rgb[static_cast<std::size_t>(kCanvasH - 1 - y) * kCanvasW * 3], kCanvasW * 3,
                    image.GetData() + static_cast<std::size_t>(y) * kCanvasW * 3);
      m_shot = wxBitmap(image);
    }
    glBindFramebuffer(GL_FRAMEBUFFER, 0);
    glDeleteFramebuffers(1, &fbo);
    glDeleteRenderbuffers(1, &colour);
    Refresh(false);
  }

  // Captures or releases the region, as a host routing the pointer would.
  void ClickRegion(std::size_t index) {
    Region& r = m_regions[index];
    if (r.window->IsCaptured())
      r.window->ReleaseMouse();
    else
      r.window->CaptureMouse();
    m_ctx.Log().Add(wxString::Format(
        "%s  %s", r.window->IsCaptured() ? "CaptureMouse" : "ReleaseMouse", r.name));
    m_shot = wxBitmap();
    if (m_canvas) m_canvas->Refresh(false);
    Snapshot();
    Refresh(false);
  }

  void OnCanvasClick(wxMouseEvent& event) {
    for (std::size_t i = m_regions.size(); i-- > 0;) {
      VornGLWindow& w = *m_regions[i].window;
      int x, y;
      w.GetLastPosition(x, y);
      if (event.GetX() >= x && event.GetX() <= w.GetRight() && event.GetY() >= y &&
          event.GetY() <= w.GetBottom())
        return ClickRegion(i);
    }
  }

  wxGLCanvas* m_canvas = nullptr;
  std::unique_ptr<wxGLContext> m_context;
  VornGLTextureCache m_textures;
  bool m_bUploaded = false;
  std::vector<Region> m_regions;
  wxBitmap m_shot;
};

const GalleryPageRegistrar kRegistrar({95, "OpenGL", "opengl",
                                       [](wxWindow* parent, GalleryContext& ctx) -> GalleryPage* {
                                         return new GLPage(parent, ctx);
                                       }});

}  // namespace
