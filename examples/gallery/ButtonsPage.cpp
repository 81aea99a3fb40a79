// The buttons page: every kind of button, live, enabled and disabled, on and
// off, each reporting to a group that writes into the log.
#include <memory>
#include <vector>

#include "Gallery.h"

namespace {

constexpr int kHeadingX = 24;
constexpr int kFirstX = 210;
constexpr int kTop = 14;
constexpr int kRowHeight = 64;
constexpr int kGap = 16;

enum Id : unsigned int {
  kPush = 100,
  kPushOff,
  kToggleA,
  kToggleB,
  kToggleOff,
  kToggleOffOn,
  kRadioA,
  kRadioB,
  kRadioC,
  kRadioOff,
  kRadioOffOn,
  kMomentDown,
  kMomentUp,
  kMomentOffDown,
  kMomentOffUp,
  kMoonA,
  kMoonB,
  kRing = 200,  // up to five rings
  kRingOff = 210,
  kTextOk,
  kTextCancel,
  kTextApply,
  kTextClose,
  kTextPlain,
  kTextRadio = 220,  // three text radios
  kTextRadioOff = 230,
};

// A groove the moon buttons slide along.
class MoonTrack : public VornPanel {
 public:
  MoonTrack(wxWindow* parent, int x, int y, int w, int h, GalleryContext& ctx)
      : VornPanel(x, y, w, h, parent, wxID_ANY), m_ctx(ctx) {
    SetBgColour(ctx.Colour("panel"));
  }
  void OnDraw(wxDC* dc) override {
    VornWindow::OnDraw(dc);
    const int h = GetHeight();
    dc->SetPen(wxPen(m_ctx.Colour("border")));
    dc->SetBrush(wxBrush(m_ctx.Colour("well")));
    dc->DrawRoundedRectangle(0, h / 2 - 4, GetWidth(), 8, 4);
    dc->SetPen(wxPen(m_ctx.Colour("edge")));
    for (int x = 12; x < GetWidth() - 8; x += 24) dc->DrawLine(x, h / 2 - 1, x, h / 2 + 1);
  }

 private:
  GalleryContext& m_ctx;
};

// A ring whose drags are written into the log, one line per part.
class LoggedRing : public VornRingButton {
 public:
  LoggedRing(GalleryLog& log, const wxString& name, const wxColour& colour, int x, int y,
             wxWindow* parent, int id, VornValueControlGroup1ofN* group)
      : VornRingButton(colour, 3, 8, 8, x, y, 48, 32, parent, id, group),
        m_log(log),
        m_name(name) {}
  void OnMoveLeft(int, int) override { m_log.Add("OnMoveLeft  " + m_name); }
  void OnMoveRight(int, int) override { m_log.Add("OnMoveRight  " + m_name); }
  void OnMoveRing(int, int) override { m_log.Add("OnMoveRing  " + m_name); }

 private:
  GalleryLog& m_log;
  wxString m_name;
};

class ButtonsPage : public GalleryPage, public MessageReceiver {
 public:
  ButtonsPage(wxWindow* parent, GalleryContext& ctx)
      : GalleryPage(parent, ctx),
        m_group(ctx.Log()),
        m_radios(ctx.Log()),
        m_moments(ctx.Log()),
        m_moons(ctx.Log()),
        m_rings(ctx.Log()),
        m_textRadios(ctx.Log()) {
    m_moments.Register(static_cast<MessageReceiver*>(this));
    BuildPushes(Row(0));
    BuildToggles(Row(1));
    BuildRadios(Row(2));
    BuildMoments(Row(3));
    BuildMoons(Row(4));
    BuildRings(Row(5));
    BuildTextPushes(Row(6));
    BuildTextRadios(Row(7));
    SetSize(960, kTop + 8 * kRowHeight);
  }
  ~ButtonsPage() override {
    m_moments.DeRegister(static_cast<MessageReceiver*>(this));
    // The controls go before the groups they report to.
    DestroyChildren();
  }

  void Demo() override {
    ClickOn(FindWindow(kPush));
    ClickOn(FindWindow(kRadioC));
    // Held long enough for the first repeat tick, released over the button.
    wxWindow* up = FindWindow(kMomentUp);
    SendMouse(up, wxEVT_ENTER_WINDOW);
    SendMouse(up, wxEVT_LEFT_DOWN);
    static_cast<VornMomentBtn*>(up)->GetTimer()->Notify();
    SendMouse(up, wxEVT_LEFT_UP);
    SendMouse(up, wxEVT_LEAVE_WINDOW);
    // The second moon dragged left in four steps of 10 pixels and let go;
    // each position is relative to where the moon is when the event comes.
    wxWindow* moon = FindWindow(kMoonB);
    SendMouse(moon, wxEVT_LEFT_DOWN, 11, 11);
    for (int step = 0; step < 4; ++step) SendMouse(moon, wxEVT_MOTION, 1, 11);
    SendMouse(moon, wxEVT_LEFT_UP, 11, 11);
    ClickOn(FindWindow(kRing + 2));
    ClickOn(FindWindow(kTextRadio + 1));
  }

  // The moment buttons step the value shown beside them.
  void OnUpdate(unsigned int id, VornControl*, VornControlHint* hint) override {
    if (!dynamic_cast<VornMomentHint*>(hint)) return;
    m_value += id == kMomentUp ? 1 : -1;
    RefreshRect(m_valueRect, false);
  }

 protected:
  void DrawPage(wxDC& dc) override {
    for (const Heading& h : m_headings) {
      const int th = DrawText(dc, h.title, kHeadingX, h.y, "label_bold", "text");
      DrawText(dc, h.asset, kHeadingX, h.y + th + 2, "small", "text_dim");
    }
    dc.SetPen(wxPen(m_ctx.Colour("panel_deep")));
    for (int row = 1; row < 8; ++row) dc.DrawLine(kHeadingX, Row(row) - 6, 940, Row(row) - 6);
    for (const Specimen& s : m_specimens) {
      const wxRect r = s.control->GetRect();
      if (s.beside)
        DrawText(dc, s.caption, r.GetRight() + 8, r.y + (r.height - 15) / 2, "label", "text");
      else
        DrawCentred(dc, s.caption, r.x + r.width / 2, Row(s.row) + 40, "small", "text_dim");
    }
    dc.SetFont(m_ctx.Font("label"));
    const wxString value = wxString::Format("%s: %d", m_ctx.Msg("Value"), m_value);
    DrawText(dc, value, m_valueRect.x, m_valueRect.y, "label", "text");
  }

 private:
  struct Heading {
    int y;
    wxString title;
    wxString asset;
  };
  struct Specimen {
    wxWindow* control;
    wxString caption;
    int row;
    bool beside;  // caption to the right instead of below
  };

  static int Row(int index) { return kTop + index * kRowHeight; }
  // Vertical position that centres a control of height h in a row.
  static int Centre(int row, int h) { return row + 16 - h / 2; }

  void Head(int y, const char* titleKey, const char* asset) {
    m_headings.push_back({y, m_ctx.Msg(titleKey), asset});
  }
  template <class Control>
  Control* Show(Control* control, int row, const char* captionKey, bool beside = false) {
    const int index = (row - kTop) / kRowHeight;
    m_specimens.push_back(
        {control, captionKey ? m_ctx.Msg(captionKey) : wxString(), index, beside});
    return control;
  }
  int NextX(wxWindow* after, int gap = kGap) { return after->GetRect().GetRight() + 1 + gap; }

  void BuildPushes(int row) {
    Head(row, "Push button", "button_push.sts");
    const VornwxBitmapCache* images = m_ctx.Images("button_push.sts");
    const int y = Centre(row, 32);
    auto* push =
        Show(new VornPushButton(images, kFirstX, y, this, kPush, &m_group), row, "Enabled");
    auto* off = Show(new VornPushButton(images, NextX(push, 40), y, this, kPushOff, &m_group), row,
                     "Disabled");
    off->SetEnabled(false);
    m_group.SetName(kPush, m_ctx.Msg("Push button"));
    m_group.SetName(kPushOff, m_ctx.Msg("Push button") + " (" + m_ctx.Msg("Disabled") + ")");
  }

  void BuildToggles(int row) {
    Head(row, "Toggle", "button_toggle.sts");
    const VornwxBitmapCache* images = m_ctx.Images("button_toggle.sts");
    const int y = Centre(row, 20);
    int x = kFirstX;
    struct Row {
      unsigned int id;
      bool on, enabled;
      const char* caption;
    };
    for (const Row& s : {Row{kToggleA, false, true, "Off"}, Row{kToggleB, true, true, "On"},
                          Row{kToggleOff, false, false, "Disabled"},
                          Row{kToggleOffOn, true, false, "Disabled"}}) {
      auto* toggle = Show(new VornButtonToggle(images, x, y, this, s.id, &m_group), row, s.caption);
      toggle->SetOn(s.on);
      toggle->SetEnabled(s.enabled);
      m_group.SetName(s.id, wxString::Format("%s %u", m_ctx.Msg("Toggle"), s.id - kToggleA + 1));
      x = NextX(toggle, 28);
    }
  }

  void BuildRadios(int row) {
    Head(row, "Radio buttons", "button_radio.sts");
    const VornwxBitmapCache* images = m_ctx.Images("button_radio.sts");
    const int y = Centre(row, 18);
    int x = kFirstX;
    const char* labels[] = {"Start", "Stop", "End"};
    for (unsigned int i = 0; i < 3; ++i) {
      auto* radio = Show(new VornRadioButton(images, x, y, this, kRadioA + i, &m_radios), row,
                         labels[i], true);
      radio->SetOn(i == 1);
      m_radios.SetName(kRadioA + i, m_ctx.Msg(labels[i]));
      x = NextX(radio, 80);
    }
    m_radios.SetOnControl(kRadioB, true, nullptr);
    x += 16;
    // Disabled ones live in a group of their own, so the set above keeps its
    // selection.
    for (unsigned int id : {kRadioOff, kRadioOffOn}) {
      auto* radio = Show(new VornRadioButton(images, x, y, this, id, nullptr), row, "Disabled");
      radio->SetOn(id == kRadioOffOn);
      radio->SetEnabled(false);
      x = NextX(radio, 56);
    }
  }

  void BuildMoments(int row) {
    Head(row, "Moment buttons", "button_moment_*.sts");
    const VornwxBitmapCache* down = m_ctx.Images("button_moment_down.sts");
    const VornwxBitmapCache* up = m_ctx.Images("button_moment_up.sts");
    const int y = Centre(row, 20);
    auto* minus =
        Show(new VornMomentBtn(down, kFirstX, y, this, kMomentDown, &m_moments, 0, 400, 80), row,
             nullptr);
    auto* plus =
        Show(new VornMomentBtn(up, NextX(minus, 4), y, this, kMomentUp, &m_moments, 0, 400, 80),
             row, nullptr);
    m_moments.SetName(kMomentDown, m_ctx.Msg("Moment down"));
    m_moments.SetName(kMomentUp, m_ctx.Msg("Moment up"));
    m_valueRect = wxRect(NextX(plus, 12), y + 2, 120, 18);
    int x = m_valueRect.GetRight() + 40;
    for (unsigned int id : {kMomentOffDown, kMomentOffUp}) {
      auto* b = Show(
          new VornMomentBtn(id == kMomentOffDown ? down : up, x, y, this, id, nullptr, 0, 400, 80),
          row, id == kMomentOffDown ? "Disabled" : nullptr);
      b->SetEnabled(false);
      x = NextX(b, 4);
    }
  }

  void BuildMoons(int row) {
    Head(row, "Moon buttons", "button_moon.sts");
    const VornwxBitmapCache* images = m_ctx.Images("button_moon.sts");
    auto* track =
        Show(new MoonTrack(this, kFirstX, Centre(row, 26), 320, 26, m_ctx), row, "Drag sideways");
    for (unsigned int id : {kMoonA, kMoonB}) {
      auto* moon = new VornMoonButton(images, id == kMoonA ? 40 : 200, 2, track, id, &m_moons);
      moon->SetOn(id == kMoonA);
      m_moons.SetName(id, wxString::Format("%s %u", m_ctx.Msg("Moon"), id - kMoonA + 1));
    }
  }

  void BuildRings(int row) {
    Head(row, "Ring buttons", "VornRingButton");
    const char* colours[] = {"accent", "red", "orange", "green", "lightblue"};
    int x = kFirstX;
    for (unsigned int i = 0; i < 5; ++i) {
      const wxString name = wxString::Format("%s %u", m_ctx.Msg("Colour"), i + 1);
      auto* ring = Show(new LoggedRing(m_ctx.Log(), name, m_ctx.Colour(colours[i]), x,
                                       Centre(row, 32), this, kRing + i, &m_rings),
                        row, nullptr);
      ring->SetOn(i == 0);
      m_rings.SetName(kRing + i, name);
      x = NextX(ring, 6);
    }
    auto* off = Show(new LoggedRing(m_ctx.Log(), "", m_ctx.Colour("purple"), x + 34,
                                    Centre(row, 32), this, kRingOff, nullptr),
                     row, "Disabled");
    off->SetEnabled(false);
  }

  void BuildTextPushes(int row) {
    Head(row, "Text push buttons", "button_text.sts");
    const VornwxBitmapCache* images = m_ctx.Images("button_text.sts");
    const wxFont font = m_ctx.Font("label");
    const wxColour text = m_ctx.Colour("text"), bright = m_ctx.Colour("text_bright");
    const wxColour face = m_ctx.Colour("face");
    const int y = Centre(row, 24);
    int x = kFirstX;
    struct Row {
      unsigned int id;
      const char* label;
      bool enabled;
    };
    for (const Row& s : {Row{kTextOk, "OK", true}, Row{kTextCancel, "Cancel", true},
                          Row{kTextApply, "Apply", true}, Row{kTextClose, "Close", false}}) {
      auto* b = Show(new VornTextPushButton(Utf8(m_ctx.Msg(s.label)), -1, -1, font, text, face,
                                            bright, images, x, y, this, s.id, &m_group),
                     row, s.enabled ? nullptr : "Disabled");
      b->SetEnabled(s.enabled);
      m_group.SetName(s.id, m_ctx.Msg(s.label));
      x = NextX(b, 10);
    }
    // Without images: a solid face in the background colour.
    auto* plain = Show(new VornTextPushButton(Utf8(m_ctx.Msg("Reset")), -1, -1, font, text,
                                              m_ctx.Colour("accent_deep"), bright, x + 20, y, 96,
                                              24, this, kTextPlain, &m_group),
                       row, "Without images");
    (void)plain;
    m_group.SetName(kTextPlain, m_ctx.Msg("Reset"));
  }

  void BuildTextRadios(int row) {
    Head(row, "Text radio buttons", "button_text.sts");
    const VornwxBitmapCache* images = m_ctx.Images("button_text.sts");
    const wxFont font = m_ctx.Font("label");
    const wxColour off = m_ctx.Colour("text_dim"), on = m_ctx.Colour("text_bright"),
                   over = m_ctx.Colour("text");
    const int y = Centre(row, 24);
    int x = kFirstX;
    const char* labels[] = {"Play", "Stop", "End"};
    const char* keys[] = {"F5", "F6", "F7"};
    for (unsigned int i = 0; i < 3; ++i) {
      auto* b = Show(new VornTextRadioButton(images, Utf8(m_ctx.Msg(labels[i])), keys[i], font, off,
                                             on, over, x, y, this, kTextRadio + i, &m_textRadios),
                     row, nullptr);
      b->SetOn(i == 0);
      m_textRadios.SetName(kTextRadio + i, m_ctx.Msg(labels[i]));
      x = NextX(b, 10);
    }
    m_textRadios.SetOnControl(kTextRadio, true, nullptr);
    auto* disabled =
        Show(new VornTextRadioButton(images, Utf8(m_ctx.Msg("Reset")), "F8", font, off, on, over,
                                     x + 20, y, this, kTextRadioOff, nullptr),
             row, "Disabled");
    disabled->SetEnabled(false);
  }

  LoggingGroup<VornControlGroup> m_group;
  LoggingGroup<VornControlGroup1ofN> m_radios;
  LoggingGroup<VornControlGroup> m_moments;
  LoggingValueGroup m_moons;
  LoggingValueGroup m_rings;
  LoggingGroup<VornControlGroup1ofN> m_textRadios;
  std::vector<Heading> m_headings;
  std::vector<Specimen> m_specimens;
  wxRect m_valueRect;
  int m_value = 0;
};

const GalleryPageRegistrar kRegistrar({10, "Buttons", "buttons",
                                       [](wxWindow* parent, GalleryContext& ctx) -> GalleryPage* {
                                         return new ButtonsPage(parent, ctx);
                                       }});

}  // namespace
