// The values page: the slider looks (plain and centred fills), a horizontal
// and a vertical range bar, a horizontal and a vertical thumb wheel, each
// with a live readout, and every notification in the log.
#include <functional>
#include <memory>
#include <vector>

#include "Gallery.h"

namespace {

constexpr int kHeadingX = 24;
constexpr int kFirstX = 210;
constexpr int kTop = 14;
constexpr int kRowHeight = 64;
constexpr int kReadoutWidth = 150;

enum Id : unsigned int {
  kSliderA = 300,
  kSliderACentred,
  kSliderB,
  kSliderBCentred,
  kSliderC,
  kSliderAOff,
  kSliderBOff,
  kRange,
  kVertRange,
  kWheel,
  kVertWheel,
};

// One control's group: writes its gestures and hints into the log under
// the control's name (value hints arrive with id 0) and tells the page.
class ValueGroup : public VornControlGroupValue {
 public:
  ValueGroup(GalleryLog& log, const wxString& name, std::function<void()> changed)
      : m_log(log),
        m_name(name),
        m_receiver(log, [this](unsigned int) { return m_name; }),
        m_changed(std::move(changed)) {
    Register(&m_receiver);
  }
  ~ValueGroup() override { DeRegister(&m_receiver); }

  void ControlSelected(unsigned int, VornControl*) override { Note("ControlSelected"); }
  void ControlUnSelected(unsigned int, VornControl*) override { Note("ControlUnSelected"); }
  void ControlDrag(unsigned int, VornControl*) override { Note("ControlDrag"); }
  bool Update(unsigned int id, VornControl* source, VornControlHint* hint) override {
    const bool done = VornControlGroupValue::Update(id, source, hint);
    m_changed();
    return done;
  }

 private:
  void Note(const char* what) {
    m_log.Add(wxString::Format("%s  %s", what, m_name));
    m_changed();
  }
  GalleryLog& m_log;
  wxString m_name;
  GalleryReceiver m_receiver;
  std::function<void()> m_changed;
};

// A range bar whose hooks are written into the log.
template <class Bar>
class LoggedRange : public Bar {
 public:
  template <class... Args>
  LoggedRange(GalleryLog& log, const wxString& name, std::function<void()> changed, Args&&... args)
      : Bar(std::forward<Args>(args)...), m_log(log), m_name(name), m_changed(std::move(changed)) {}
  void OnSliderChange() override { m_log.Add("OnSliderChange  " + m_name); }
  void OnZoomChange() override { m_log.Add("OnZoomChange  " + m_name); }
  void OnAnyChange() override { m_changed(); }

 private:
  GalleryLog& m_log;
  wxString m_name;
  std::function<void()> m_changed;
};

class ValuesPage : public GalleryPage {
 public:
  ValuesPage(wxWindow* parent, GalleryContext& ctx) : GalleryPage(parent, ctx) {
    BuildSliders();
    BuildRanges(Row(3));
    BuildWheels(Row(5));
    SetSize(960, kTop + 6 * kRowHeight + 40);
  }
  ~ValuesPage() override {
    // The controls go before the groups they report to.
    DestroyChildren();
  }

  void Demo() override {
    // A press beside the thumb, a drag and a fine drag with Shift.
    wxWindow* a = FindWindow(kSliderA);
    SendMouse(a, wxEVT_LEFT_DOWN, 150, 10);
    SendMouse(a, wxEVT_MOTION, 160, 10);
    SendMouse(a, wxEVT_LEFT_UP, 160, 10);
    // The range bar's right handle pulled left, then the window dragged.
    auto* range = static_cast<VornRangeBase*>(FindWindow(kRange));
    const RangeLayout l = range->GetLayout();
    SendMouse(range, wxEVT_LEFT_DOWN, l.windowEnd - 3, 9);
    SendMouse(range, wxEVT_MOTION, l.windowEnd - 60, 9);
    SendMouse(range, wxEVT_LEFT_UP, l.windowEnd - 60, 9);
    const int middle = (range->GetLayout().windowStart + range->GetLayout().windowEnd) / 2;
    SendMouse(range, wxEVT_LEFT_DOWN, middle, 9);
    SendMouse(range, wxEVT_MOTION, middle + 40, 9);
    SendMouse(range, wxEVT_LEFT_UP, middle + 40, 9);
    // The wheel turned twelve pixels to the right.
    wxWindow* wheel = FindWindow(kWheel);
    SendMouse(wheel, wxEVT_LEFT_DOWN, 40, 10);
    for (int x = 43; x <= 52; x += 3) SendMouse(wheel, wxEVT_MOTION, x, 10);
    SendMouse(wheel, wxEVT_LEFT_UP, 52, 10);
  }

 protected:
  void DrawPage(wxDC& dc) override {
    for (const Heading& h : m_headings) {
      const int th = DrawText(dc, h.title, kHeadingX, h.y, "label_bold", "text");
      DrawText(dc, h.asset, kHeadingX, h.y + th + 2, "small", "text_dim");
    }
    dc.SetPen(wxPen(m_ctx.Colour("panel_deep")));
    for (int row : {3, 5}) dc.DrawLine(kHeadingX, Row(row) - 8, 820, Row(row) - 8);
    DrawText(dc, m_ctx.Msg("Disabled"), m_disabledCaption.x, m_disabledCaption.y, "small",
             "text_dim");
    for (const Readout& r : m_readouts) {
      DrawText(dc, r.caption, r.rect.x, r.rect.y, "small", "text_dim");
      DrawText(dc, r.text(), r.rect.x, r.rect.y + 14, "label", "text");
    }
  }

 private:
  struct Heading {
    int y;
    wxString title;
    wxString asset;
  };
  struct Readout {
    wxRect rect;
    wxString caption;
    std::function<wxString()> text;
  };

  static int Row(int index) { return kTop + index * kRowHeight; }

  void Head(int y, const char* titleKey, const char* asset) {
    m_headings.push_back({y, m_ctx.Msg(titleKey), asset});
  }
  // A group for one control, redrawing readout `index` on every report.
  ValueGroup* Group(const wxString& name, std::size_t index) {
    m_groups.push_back(std::make_unique<ValueGroup>(m_ctx.Log(), name, Refresher(index)));
    return m_groups.back().get();
  }
  std::function<void()> Refresher(std::size_t index) {
    return [this, index] {
      if (index < m_readouts.size()) RefreshRect(m_readouts[index].rect, false);
    };
  }
  void AddReadout(int x, int y, const wxString& caption, std::function<wxString()> text) {
    m_readouts.push_back({wxRect(x, y, kReadoutWidth, 32), caption, std::move(text)});
  }
  const wxBitmap* Picture(const char* name) {
    const wxBitmap* bmp = nullptr;
    if (!m_ctx.Assets().LoadImageCached(name, bmp))
      m_ctx.Log().Add(wxString::Format("Cannot load the picture %s", name));
    return bmp;
  }
  const BitmapA* PictureA(const char* name) {
    const BitmapA* bmp = nullptr;
    if (!m_ctx.Assets().LoadImageCached(name, bmp))
      m_ctx.Log().Add(wxString::Format("Cannot load the picture %s", name));
    return bmp;
  }
  static wxString Number(double v) { return wxString::Format("%.4f", v); }

  VornSliderA* MakeSliderA(SliderType type, int x, int y, unsigned int id,
                           VornControlGroupValue* g) {
    return new VornSliderA(type, Picture("slider_track_left.sts"), Picture("slider_track_mid.sts"),
                           Picture("slider_track_right.sts"), Picture("slider_fill_cap.sts"),
                           Picture("slider_fill_mid.sts"), Picture("slider_thumb.sts"), x, y, 200,
                           20, m_ctx.Colour("panel"), this, id, g);
  }

  // Rows 0 to 2: the three looks, plain and centred, then disabled.
  void BuildSliders() {
    const wxString plain = m_ctx.Msg("Plain"), centred = m_ctx.Msg("Centred");
    Head(Row(0), "Picture slider", "slider_*.sts");
    Head(Row(1), "Colour slider", "slider_round_*");
    Head(Row(2), "Fader", "fader_*.sts");
    const int x2 = kFirstX + 200 + kReadoutWidth + 30;
    struct SliderRow {
      unsigned int id;
      int row, x;
      SliderType type;
      const char* look;
      double value;
    };
    for (const SliderRow& s : {SliderRow{kSliderA, 0, kFirstX, SLIDER_PLAIN, "A", 0.3},
                          SliderRow{kSliderACentred, 0, x2, SLIDER_CENTRED, "A", 0.7},
                          SliderRow{kSliderB, 1, kFirstX, SLIDER_PLAIN, "B", 0.5},
                          SliderRow{kSliderBCentred, 1, x2, SLIDER_CENTRED, "B", 0.25},
                          SliderRow{kSliderC, 2, kFirstX, SLIDER_PLAIN, "C", 0.6}}) {
      const wxString name = wxString::Format("%s %s (%s)", m_ctx.Msg("Slider"), s.look,
                                             s.type == SLIDER_PLAIN ? plain : centred);
      ValueGroup* group = Group(name, m_readouts.size());
      const int y = Row(s.row) + 6;
      VornSlider* slider = nullptr;
      if (*s.look == 'A') {
        slider = MakeSliderA(s.type, s.x, y, s.id, group);
      } else if (*s.look == 'B') {
        slider =
            new VornSliderB(m_ctx.Colour("slider_round_track"), m_ctx.Colour("slider_round_thumb"),
                            s.x, y, 200, 20, this, s.id, group);
        slider->SetSliderType(s.type);
      } else {
        slider = new VornSliderC(Picture("fader_track.sts"), Picture("fader_thumb.sts"), s.x, y - 2,
                                 160, 24, this, s.id, group);
      }
      slider->SetValue(s.value, false);
      AddReadout(s.x + 212, y - 6, m_ctx.Msg("Value"),
                 [slider] { return Number(slider->GetValue()); });
    }
    // Disabled: one of each look, without a group.
    auto* offA = MakeSliderA(SLIDER_PLAIN, x2, Row(2) + 6, kSliderAOff, nullptr);
    auto* offB =
        new VornSliderB(m_ctx.Colour("slider_round_track"), m_ctx.Colour("slider_round_thumb"),
                        x2 + 210, Row(2) + 6, 120, 20, this, kSliderBOff, nullptr);
    for (VornSlider* s : {static_cast<VornSlider*>(offA), static_cast<VornSlider*>(offB)}) {
      s->SetValue(0.4, false);
      s->SetEnabled(false);
    }
    m_disabledCaption = wxPoint(x2, Row(2) + 30);
  }

  void BuildRanges(int row) {
    Head(row, "Range bars", "VornRangeControl");
    const Color track = WxCtoC(m_ctx.Colour("range_track")),
                bar = WxCtoC(m_ctx.Colour("range_bar"));
    const std::size_t index = m_readouts.size();
    auto* range = new LoggedRange<VornRangeControl>(
        m_ctx.Log(), m_ctx.Msg("Horizontal"), Refresher(index), track, bar, kFirstX, row + 8, 360,
        18, 4, 356, nullptr, this, kRange, Group(m_ctx.Msg("Horizontal"), index));
    range->SetBarHeight(14);
    range->SetZoomValue(3, false);
    range->SetSliderValue(0.4, false);
    AddReadout(kFirstX + 372, row, m_ctx.Msg("Zoom"), [range] {
      return wxString::Format("x%.2f  %.3f .. %.3f", range->GetZoomValue(), range->GetWindowStart(),
                              range->GetWindowEnd());
    });
    // The vertical one stands to the right, over two rows.
    const std::size_t vIndex = m_readouts.size();
    auto* tall = new LoggedRange<VornVertRangeControl>(
        m_ctx.Log(), m_ctx.Msg("Vertical"), Refresher(vIndex), track, bar, 760, row, 18,
        2 * kRowHeight - 20, 4, 2 * kRowHeight - 24, nullptr, false, this, kVertRange,
        Group(m_ctx.Msg("Vertical"), vIndex));
    tall->SetZoomValue(2, false);
    tall->SetSliderValue(0.2, false);
    AddReadout(790, row + 30, m_ctx.Msg("Zoom"), [tall] {
      return wxString::Format("x%.2f  %.3f", tall->GetZoomValue(), tall->GetSliderValue());
    });
  }

  void BuildWheels(int row) {
    Head(row, "Thumb wheels", "thumbwheel_*.sts");
    struct WheelRow {
      unsigned int id;
      bool vertical;
      int x, y;
      const char *frame, *strip, *window, *name;
      float value;
    };
    for (const WheelRow& s :
         {WheelRow{kWheel, false, kFirstX, row + 6, "thumbwheel_frame.sts", "thumbwheel_strip.sts",
               "thumbwheel_window.sts", "Horizontal", 350},
          WheelRow{kVertWheel, true, kFirstX + 300, row, "thumbwheel_frame_v.sts",
               "thumbwheel_strip_v.sts", "thumbwheel_window_v.sts", "Vertical", 1}}) {
      const wxString name = m_ctx.Msg("Thumb wheel") + " (" + m_ctx.Msg(s.name) + ")";
      auto* wheel =
          new VornThumbWheelControl(PictureA(s.frame), PictureA(s.strip), PictureA(s.window), s.x,
                                    s.y, s.vertical, 6, this, s.id, Group(name, m_readouts.size()));
      wheel->SetCurrentValue(s.value);
      wheel->SetMinValue(-1000);
      wheel->SetMaxValue(1000);
      const wxRect r = wheel->GetRect();
      AddReadout(r.GetRight() + 14, s.vertical ? r.y + 30 : r.y - 6, m_ctx.Msg("Value"),
                 [wheel] { return wxString::Format("%.6g", wheel->GetCurrentValue()); });
    }
  }

  std::vector<Heading> m_headings;
  std::vector<Readout> m_readouts;
  std::vector<std::unique_ptr<ValueGroup>> m_groups;
  wxPoint m_disabledCaption;
};

const GalleryPageRegistrar kRegistrar({40, "Values", "values",
                                       [](wxWindow* parent, GalleryContext& ctx) -> GalleryPage* {
                                         return new ValuesPage(parent, ctx);
                                       }});

}  // namespace
