// The windowless page: VirtualButtons living inside the page's own window.
// The page is their host: it finds the button under the pointer, forwards the
// mouse events in the button's coordinates, decides what a click means, and
// paints each button with the DC origin moved to it.
#include <memory>
#include <vector>

#include "Gallery.h"

namespace {

constexpr unsigned int kToolId = 300;
constexpr unsigned int kSwitchId = 320;
constexpr unsigned int kDisabledId = 340;

class WindowlessPage : public GalleryPage {
 public:
  WindowlessPage(wxWindow* parent, GalleryContext& ctx)
      : GalleryPage(parent, ctx), m_tools(ctx.Log()), m_switches(ctx.Log()) {
    LoadCache(m_toolImages, "button_push.sts");
    LoadCache(m_switchImages, "button_toggle.sts");

    const char* tools[] = {"Open", "Save", "Close", "Apply", "Reset", "Function"};
    for (unsigned int i = 0; i < 6; ++i) {
      VirtualButton* b = Add(m_toolImages.get(), 40 + static_cast<int>(i) * 96, 104, kToolId + i,
                             &m_tools, tools[i], Kind::kTool);
      m_tools.SetName(b->GetId(), m_ctx.Msg(tools[i]));
    }
    m_tools.SetOnAll(m_buttons[0].get(), false, nullptr);
    m_buttons[0]->SetOn(true);

    for (unsigned int i = 0; i < 4; ++i) {
      VirtualButton* b = Add(m_switchImages.get(), 40 + static_cast<int>(i) * 96, 238,
                             kSwitchId + i, &m_switches, nullptr, Kind::kSwitch);
      b->SetOn(i % 2 == 1);
      m_switches.SetName(b->GetId(), wxString::Format("%s %u", m_ctx.Msg("Switch"), i + 1));
    }

    VirtualButton* tool =
        Add(m_toolImages.get(), 680, 104, kDisabledId, nullptr, "Disabled", Kind::kTool);
    tool->SetEnabled(false);
    VirtualButton* sw =
        Add(m_switchImages.get(), 676, 238, kDisabledId + 1, nullptr, "Disabled", Kind::kSwitch);
    sw->SetOn(true);
    sw->SetEnabled(false);

    Bind(wxEVT_MOTION, &WindowlessPage::OnMotion, this);
    Bind(wxEVT_LEFT_DOWN, &WindowlessPage::OnDown, this);
    Bind(wxEVT_LEFT_DCLICK, &WindowlessPage::OnDown, this);
    Bind(wxEVT_LEFT_UP, &WindowlessPage::OnUp, this);
    Bind(wxEVT_LEAVE_WINDOW, &WindowlessPage::OnLeave, this);
    SetSize(960, 340);
  }

 protected:
  void Demo() override {
    // A tool chosen and a switch flipped, by events at the page's positions.
    for (VirtualButton* b : {m_buttons[2].get(), m_buttons[6].get()}) {
      const int x = b->GetPosX() + 5, y = b->GetPosY() + 5;
      SendMouse(this, wxEVT_MOTION, x, y);
      SendMouse(this, wxEVT_LEFT_DOWN, x, y);
      SendMouse(this, wxEVT_LEFT_UP, x, y);
    }
    SendMouse(this, wxEVT_MOTION, 900, 20);
  }

  void DrawPage(wxDC& dc) override {
    const int th = DrawText(dc, m_ctx.Msg("Windowless buttons"), 24, 14, "title", "text");
    DrawText(dc, m_ctx.Msg("One host window routes the mouse to them and paints them."), 24,
             18 + th, "label", "text_dim");
    Section(dc, m_ctx.Msg("Tool palette (one of N)"), 64, 112);
    Section(dc, m_ctx.Msg("Switches"), 198, 104);

    const wxPoint base = dc.GetDeviceOrigin();
    for (const auto& b : m_buttons) {
      dc.SetDeviceOrigin(base.x + b->GetPosX(), base.y + b->GetPosY());
      b->OnDraw(&dc);
    }
    dc.SetDeviceOrigin(base.x, base.y);

    for (std::size_t i = 0; i < m_buttons.size(); ++i) {
      const VirtualButton& b = *m_buttons[i];
      wxString caption = m_captions[i];
      if (caption.empty()) caption = m_ctx.Msg(b.GetOn() ? "On" : "Off");
      DrawCentred(dc, caption, b.GetPosX() + b.GetWidth() / 2, b.GetPosY() + b.GetHeight() + 6,
                  "small", b.GetEnabled() ? "text_dim" : "text_disabled");
    }
  }

 private:
  enum class Kind { kTool, kSwitch };

  void LoadCache(std::unique_ptr<VornwxBitmapCache>& cache, const char* name) {
    cache = std::make_unique<VornwxBitmapCache>();
    if (!m_ctx.Assets().LoadImages(name, *cache))
      m_ctx.Log().Add(wxString::Format("Cannot load the images of %s", name));
  }

  VirtualButton* Add(VornwxBitmapCache* cache, int x, int y, unsigned int id,
                     VornControlGroup* group, const char* captionKey, Kind kind) {
    auto button = std::make_unique<VirtualButton>();
    button->Create(cache, false, x, y, nullptr, this, id, group);
    button->Show(true);
    m_captions.push_back(captionKey ? m_ctx.Msg(captionKey) : wxString());
    m_kinds.push_back(kind);
    m_buttons.push_back(std::move(button));
    return m_buttons.back().get();
  }

  void Section(wxDC& dc, const wxString& title, int y, int h) {
    dc.SetPen(wxPen(m_ctx.Colour("border")));
    dc.SetBrush(wxBrush(m_ctx.Colour("panel_deep")));
    dc.DrawRoundedRectangle(16, y, 928, h, 6);
    DrawText(dc, title, 28, y + 8, "label_bold", "text");
  }

  VirtualButton* HitTest(const wxPoint& p) const {
    for (const auto& b : m_buttons)
      if (b->IsVisible() &&
          wxRect(b->GetPosX(), b->GetPosY(), b->GetWidth(), b->GetHeight()).Contains(p))
        return b.get();
    return nullptr;
  }

  // The event in the button's own coordinates.
  static wxMouseEvent Local(const wxMouseEvent& e, const VirtualButton& b) {
    wxMouseEvent local(e);
    local.m_x -= b.GetPosX();
    local.m_y -= b.GetPosY();
    return local;
  }

  void SetOver(VirtualButton* hit, const wxMouseEvent& e) {
    if (hit == m_pOver) return;
    if (m_pOver) {
      wxMouseEvent local = Local(e, *m_pOver);
      m_pOver->OnLeaving(local);
    }
    m_pOver = hit;
    if (m_pOver) {
      wxMouseEvent local = Local(e, *m_pOver);
      m_pOver->OnEntering(local);
    }
  }

  void OnMotion(wxMouseEvent& e) {
    SetOver(HitTest(e.GetPosition()), e);
    if (VirtualButton* target = m_pPressed ? m_pPressed : m_pOver) {
      wxMouseEvent local = Local(e, *target);
      target->OnMouseMoveHdlr(local);
    }
  }

  void OnDown(wxMouseEvent& e) {
    SetOver(HitTest(e.GetPosition()), e);
    if (!m_pOver || !m_pOver->GetEnabled()) return;
    m_pPressed = m_pOver;
    wxMouseEvent local = Local(e, *m_pPressed);
    if (e.GetEventType() == wxEVT_LEFT_DCLICK)
      m_pPressed->OnLeftDClick(local);
    else
      m_pPressed->OnLeftDown(local);
    // Through the host, so the release arrives even outside the page.
    m_pPressed->CaptureMouse();
  }

  void OnUp(wxMouseEvent& e) {
    VirtualButton* pressed = m_pPressed;
    m_pPressed = nullptr;
    if (!pressed) return;
    wxMouseEvent local = Local(e, *pressed);
    pressed->OnLeftUp(local);
    pressed->ReleaseMouse();
    SetOver(HitTest(e.GetPosition()), e);
    if (pressed == m_pOver) Click(*pressed);
  }

  void OnLeave(wxMouseEvent& e) {
    if (!m_pPressed) SetOver(nullptr, e);
  }

  // What a click means is the host's choice: a tool joins the palette's
  // one-of-N selection, a switch flips.
  void Click(VirtualButton& b) {
    std::size_t index = 0;
    while (m_buttons[index].get() != &b) ++index;
    if (m_kinds[index] == Kind::kTool) {
      m_tools.SetOnAll(&b, false, nullptr);
      b.SetOn(true);
      m_tools.ControlSelected(b.GetId(), &b);
    } else {
      b.SetOn(!b.GetOn());
      if (b.GetOn())
        m_switches.ControlSelected(b.GetId(), &b);
      else
        m_switches.ControlUnSelected(b.GetId(), &b);
    }
  }

  // Declared before the buttons, so the buttons leave their groups first.
  LoggingGroup<VornControlGroup1ofN> m_tools;
  LoggingGroup<VornControlGroup> m_switches;
  std::unique_ptr<VornwxBitmapCache> m_toolImages;
  std::unique_ptr<VornwxBitmapCache> m_switchImages;
  std::vector<std::unique_ptr<VirtualButton>> m_buttons;
  std::vector<wxString> m_captions;
  std::vector<Kind> m_kinds;
  VirtualButton* m_pOver = nullptr;
  VirtualButton* m_pPressed = nullptr;
};

const GalleryPageRegistrar kRegistrar({30, "Windowless buttons", "windowless",
                                       [](wxWindow* parent, GalleryContext& ctx) -> GalleryPage* {
                                         return new WindowlessPage(parent, ctx);
                                       }});

}  // namespace
