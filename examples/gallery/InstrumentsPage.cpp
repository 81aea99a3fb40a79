// The instruments page: an angle dial on a skin face, the two-colour dial, a
// clock face that follows the time of day, callipers, a compass strip and an
// artificial horizon. Each reports to a group that writes into the log, and
// each has a readout under it.
#include <wx/datetime.h>
#include <wx/timer.h>

#include <functional>

#include "Gallery.h"

namespace {

enum Id : unsigned int { kDial = 400, kDialB, kClock, kCallipers, kCompass, kHorizon };

constexpr int kTop = 44;
constexpr int kSecondRow = 270;

// A value group that logs like the others and tells the page to refresh its
// readouts after every notification.
class InstrumentGroup : public LoggingGroup<VornControlGroupValue> {
 public:
  InstrumentGroup(GalleryLog& log, std::function<void()> changed)
      : LoggingGroup(log), m_changed(std::move(changed)) {}
  void ControlSelected(unsigned int id, VornControl* c) override {
    LoggingGroup::ControlSelected(id, c);
    m_changed();
  }
  void ControlUnSelected(unsigned int id, VornControl* c) override {
    LoggingGroup::ControlUnSelected(id, c);
    m_changed();
  }
  void ControlDrag(unsigned int id, VornControl*) override {
    Note("ControlDrag", id);
    m_changed();
  }
  bool Update(unsigned int id, VornControl* source, VornControlHint* hint) override {
    const bool delivered = LoggingGroup::Update(id, source, hint);
    m_changed();
    return delivered;
  }

 private:
  std::function<void()> m_changed;
};

// The host's own dial: the skin's face under the knob, which rides on the
// face's track.
class FaceDial : public VornAngleControl {
 public:
  FaceDial(const wxBitmap& face, const wxColour& knob, int x, int y, wxWindow* parent, int id,
           VornControlGroupValue* group)
      : VornAngleControl(60, 60, 40, x, y, 120, 120, parent, id, group),
        m_face(face),
        m_knob(knob) {}
  void OnDraw(wxDC* dc) override {
    VornWindow::OnDraw(dc);
    if (m_face.IsOk()) dc->DrawBitmap(m_face, 0, 0, false);
    int x, y;
    GetCurPosition(x, y);
    dc->SetPen(wxPen(m_knob, 2));
    dc->DrawLine(m_centreX, m_centreY, x, y);
    dc->SetBrush(wxBrush(m_knob));
    dc->DrawCircle(x, y, 6);
    dc->DrawCircle(m_centreX, m_centreY, 3);
  }

 private:
  wxBitmap m_face;
  wxColour m_knob;
};

class InstrumentsPage : public GalleryPage {
 public:
  InstrumentsPage(wxWindow* parent, GalleryContext& ctx)
      : GalleryPage(parent, ctx), m_group(ctx.Log(), [this] { Refresh(false); }) {
    BuildDials();
    BuildCompassAndCallipers();
    SetSize(960, kSecondRow + 150);
    m_clockTimer.Bind(wxEVT_TIMER, [this](wxTimerEvent&) { FollowTheTime(); });
    m_clockTimer.Start(1000);
  }
  ~InstrumentsPage() override {
    m_clockTimer.Stop();
    // The controls go before the group they report to.
    DestroyChildren();
  }

  void Demo() override {
    // The dial's knob dragged from the right to the top, then a fine step.
    SendMouse(m_dial, wxEVT_LEFT_DOWN, 100, 60);
    for (int y = 50; y >= 10; y -= 10) SendMouse(m_dial, wxEVT_MOTION, 100 - (50 - y), y);
    SendMouse(m_dial, wxEVT_LEFT_UP, 60, 10);
    m_dialB->SetValue(0.125f, false);
    // The compass turned east-north-east, the horizon banked and climbing.
    m_compass->SetValue(0.18f);
    SendMouse(m_compass, wxEVT_LEFT_DOWN, 160, 20);
    SendMouse(m_compass, wxEVT_MOTION, 158, 20);
    SendMouse(m_compass, wxEVT_LEFT_UP, 158, 20);
    const VornAHorizonControl::Handles h = m_horizon->GetHandles();
    SendMouse(m_horizon, wxEVT_LEFT_DOWN, h.a.x, h.a.y);
    SendMouse(m_horizon, wxEVT_MOTION, h.a.x, h.a.y - 14);
    SendMouse(m_horizon, wxEVT_LEFT_UP, h.a.x, h.a.y - 14);
    m_horizon->SetPitchValue(0.6f);
    SendMouse(m_callipers, wxEVT_LEFT_DOWN, 20, 30);
    SendMouse(m_callipers, wxEVT_MOTION, 31, 30);
    SendMouse(m_callipers, wxEVT_LEFT_UP, 31, 30);
  }

 protected:
  void DrawPage(wxDC& dc) override {
    for (const Specimen& s : m_specimens) {
      const wxRect r = s.control->GetRect();
      DrawCentred(dc, s.title, r.x + r.width / 2, r.y - 24, "label_bold", "text");
      DrawCentred(dc, s.readout(), r.x + r.width / 2, r.GetBottom() + 8, "label", "text");
      DrawCentred(dc, s.note, r.x + r.width / 2, r.GetBottom() + 26, "small", "text_dim");
    }
  }

 private:
  struct Specimen {
    wxWindow* control;
    wxString title, note;
    std::function<wxString()> readout;
  };

  const BitmapA* Picture(const char* name) {
    const BitmapA* picture = nullptr;
    if (!m_ctx.Assets().LoadImageCached(name, picture))
      m_ctx.Log().Add(wxString::Format("Cannot load the image of %s", name));
    return picture;
  }
  ColorA SkinColour(const char* name) {
    ColorA c;
    m_ctx.Assets().GetColour(name, c);
    return c;
  }
  void Add(wxWindow* control, unsigned int id, const char* title, const char* note,
           std::function<wxString()> readout) {
    m_group.SetName(id, m_ctx.Msg(title));
    m_specimens.push_back({control, m_ctx.Msg(title), note, std::move(readout)});
  }
  wxString ValueText(double v) const { return wxString::Format("%s %.3f", m_ctx.Msg("Value"), v); }

  void BuildDials() {
    wxBitmap face;
    if (const BitmapA* picture = Picture("dial_face.sts")) ConvertTo(face, *picture);
    m_dial = new FaceDial(face, m_ctx.Colour("dial_needle"), 40, kTop, this, kDial, &m_group);
    m_dial->SetValue(0.0f, false);
    Add(m_dial, kDial, "Angle dial", "VornAngleControl",
        [this] { return ValueText(m_dial->GetValue()); });

    m_dialB = new VornAngleControlB(SkinColour("dial_ring"), SkinColour("dial_needle"), 220, kTop,
                                    120, 120, this, kDialB, &m_group);
    Add(m_dialB, kDialB, "B dial", "VornAngleControlB",
        [this] { return ValueText(m_dialB->GetValue()); });

    const VornBitmapACache* faces = nullptr;
    if (!m_ctx.Assets().LoadImagesCached("clock_face.sts", faces))
      m_ctx.Log().Add("Cannot load the images of clock_face.sts");
    m_clock = new VornTimeControl(faces, Picture("clock_hand.sts"), 40, 400, kTop, 120, 120, this,
                                  kClock, &m_group);
    FollowTheTime();
    Add(m_clock, kClock, "Clock", "VornTimeControl", [this] {
      const int minutes = static_cast<int>(m_clock->GetValue() * 24 * 60 + 0.5) % (24 * 60);
      return wxString::Format("%02d:%02d", minutes / 60, minutes % 60);
    });

    m_horizon = new VornAHorizonControl(Picture("horizon_ball.sts"), 70, 70, 62, 590, kTop - 10,
                                        140, 140, this, kHorizon, &m_group);
    m_horizon->SetFgColour(m_ctx.Colour("accent"));
    Add(m_horizon, kHorizon, "Artificial horizon", "VornAHorizonControl", [this] {
      return wxString::Format("%s %.3f  %s %.3f", m_ctx.Msg("Roll"), m_horizon->GetValue(),
                              m_ctx.Msg("Pitch"), m_horizon->GetPitchValue());
    });
  }

  void BuildCompassAndCallipers() {
    m_compass = new VornCompassControl(Picture("compass_strip.sts"), Picture("compass_frame.sts"),
                                       Picture("compass_marker.sts"), 40, kSecondRow, 320, 44, this,
                                       kCompass, &m_group);
    Add(m_compass, kCompass, "Compass", "VornCompassControl", [this] {
      // U+00B0, the degree sign.
      return wxString::Format("%s %.1f", m_ctx.Msg("Heading"), m_compass->GetValue() * 360) +
             wxString::FromUTF8("\xC2\xB0");
    });
    m_callipers = new VornAngleClippers(SkinColour("calliper_frame"), SkinColour("calliper_scale"),
                                        SkinColour("calliper_marker"), 20, 420, kSecondRow - 30,
                                        280, 90, this, kCallipers, &m_group);
    Add(m_callipers, kCallipers, "Callipers", "VornAngleClippers",
        [this] { return ValueText(m_callipers->GetValue()); });
  }

  // The hour hand turns twice a day; a drag in progress is left alone.
  void FollowTheTime() {
    if (m_clock->GetMouseDownLeft()) return;
    const wxDateTime now = wxDateTime::Now();
    const double seconds = now.GetHour() * 3600.0 + now.GetMinute() * 60.0 + now.GetSecond();
    m_clock->SetValue(static_cast<float>(seconds / 86400.0), false);
    Refresh(false);
  }

  InstrumentGroup m_group;
  wxTimer m_clockTimer;
  FaceDial* m_dial = nullptr;
  VornAngleControlB* m_dialB = nullptr;
  VornTimeControl* m_clock = nullptr;
  VornAHorizonControl* m_horizon = nullptr;
  VornCompassControl* m_compass = nullptr;
  VornAngleClippers* m_callipers = nullptr;
  std::vector<Specimen> m_specimens;
};

const GalleryPageRegistrar kRegistrar({90, "Instruments", "instruments",
                                       [](wxWindow* parent, GalleryContext& ctx) -> GalleryPage* {
                                         return new InstrumentsPage(parent, ctx);
                                       }});

}  // namespace
