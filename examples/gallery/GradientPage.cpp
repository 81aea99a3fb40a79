// The gradient page: the gradient editor on a five-point gradient, a
// preview of the whole gradient beside it, a colour slug, and a large strip
// of the gradient that follows every change. Every gesture and gradient
// hint goes to the log.
#include "Gallery.h"

namespace {

constexpr int kLeft = 24;
constexpr int kTop = 64;
constexpr int kRightX = kLeft + GradientControl::kWidth + 32;
constexpr int kRightWidth = 440;
const wxRect kPreviewRect(kRightX, kTop + 18, kRightWidth, 64);
constexpr int kSummaryY = kTop + 118;
constexpr int kSlugY = kTop + 176;
enum Id : unsigned int { kEditor = 800, kSummary, kSlug };

wxString Describe(VornControlHint* hint) {
  if (auto* h = dynamic_cast<GradientHintAdd*>(hint))
    return wxString::Format("GradientHintAdd %u", h->m_index);
  if (auto* h = dynamic_cast<GradientHintDelete*>(hint))
    return wxString::Format("GradientHintDelete %u", h->m_index);
  if (auto* h = dynamic_cast<GradientHintSelect*>(hint))
    return wxString::Format("GradientHintSelect %u", h->m_index);
  if (auto* h = dynamic_cast<GradientHintMove*>(hint))
    return wxString::Format("GradientHintMove %.3f -> %.3f", h->m_oldPos, h->m_newPos);
  if (dynamic_cast<GradientHintValue*>(hint)) return "GradientHintValue";
  if (auto* h = dynamic_cast<GradientHintRange*>(hint))
    return wxString::Format("GradientHintRange %.3f .. %.3f", h->m_min, h->m_max);
  if (auto* h = dynamic_cast<GradientHintScroll*>(hint))
    return wxString::Format("GradientHintScroll %s %.3f", h->m_bUp ? "up" : "down", h->m_amount);
  if (dynamic_cast<GradientHintColSmooth*>(hint)) return "GradientHintColSmooth";
  return wxString();
}

// Logs gestures and gradient hints under the control's name and tells the
// page the gradient may have changed.
class GradientGroup : public LoggingGroup<VornControlGroupValue> {
 public:
  GradientGroup(GalleryLog& log, std::function<void()> changed) : LoggingGroup(log) {
    Receiver().describe = Describe;
    Receiver().described = std::move(changed);
  }
};

class GradientPage : public GalleryPage {
 public:
  GradientPage(wxWindow* parent, GalleryContext& ctx)
      : GalleryPage(parent, ctx),
        m_group(ctx.Log(), [this] { GradientChanged(); }),
        m_slugGroup(ctx.Log(), [] {}) {
    m_gradient.AddPoint(0.0, Color(0.05, 0.07, 0.22));
    m_gradient.AddPoint(0.3, Color(0.13, 0.55, 0.6));
    m_gradient.AddPoint(0.55, Color(0.95, 0.85, 0.45));
    m_gradient.AddPoint(0.8, Color(0.9, 0.35, 0.2));
    m_gradient.AddPoint(1.0, Color(0.35, 0.05, 0.15));

    m_editor = new GradientControl;
    m_editor->Create(ctx.Assets(), kLeft, kTop, this, kEditor, &m_group);
    m_editor->Bind(&m_gradient);
    m_group.SetName(kEditor, ctx.Msg("Gradient editor"));

    m_summary = new GradientSummary;
    m_summary->Create(kRightX, kSummaryY, kRightWidth, 24, this, kSummary, &m_group);
    m_summary->SetBgColour(ctx.Colour("gradient_bg"));
    m_summary->SetFgColour(ctx.Colour("gradient_fg"));
    m_summary->Bind(&m_gradient);
    m_group.SetName(kSummary, ctx.Msg("GradientSummary"));

    // In a group of its own: its markers are not the editor's range.
    m_slug = new ColourSlug;
    m_slug->Create(kRightX, kSlugY, 300, 16, this, kSlug, &m_slugGroup);
    m_slug->SetBgColour(ctx.Colour("gradient_bg"));
    m_slug->SetFgColour(ctx.Colour("gradient_fg"));
    m_slug->Bind(&m_gradient);
    m_slug->SetMinMax(0.2, 0.7);
    m_slugGroup.SetName(kSlug, ctx.Msg("ColourSlug"));

    SetSize(960, kTop + GradientControl::kHeight + 24);
  }
  ~GradientPage() override {
    // The controls go before the groups they report to.
    DestroyChildren();
  }

  // A point dragged, a mark ticked and the range bar narrowed.
  void Demo() override {
    ColourControl* strip = m_editor->GetColourControl();
    const int x = strip->CalcPixelPosition(0.3);
    SendMouse(strip, wxEVT_LEFT_DOWN, x, 4);
    SendMouse(strip, wxEVT_MOTION, x + 16, 4);
    SendMouse(strip, wxEVT_LEFT_UP, x + 16, 4);
    SendMouse(strip, wxEVT_LEFT_DOWN, x + 16, 31);
    SendMouse(strip, wxEVT_LEFT_UP, x + 16, 31);
    GradientRangeControl* bar = m_editor->GetRangeControl();
    const int right = bar->PixelOf(bar->GetRight());
    SendMouse(bar, wxEVT_LEFT_DOWN, right, 10);
    SendMouse(bar, wxEVT_MOTION, right - 60, 10);
    SendMouse(bar, wxEVT_LEFT_UP, right - 60, 10);
  }

 protected:
  void DrawPage(wxDC& dc) override {
    const int th = DrawText(dc, m_ctx.Msg("Gradient"), kLeft, 14, "title", "text");
    DrawText(dc,
             m_ctx.Msg("Drag a point by its handle; click a mark or the colour dot; Delete removes "
                       "the point, a double click adds one."),
             kLeft, 18 + th, "label", "text_dim");
    DrawText(dc, m_ctx.Msg("Preview"), kRightX, kTop, "small", "text_dim");
    DrawText(dc, m_ctx.Msg("GradientSummary"), kRightX, kSummaryY - 16, "small", "text_dim");
    DrawText(dc, m_ctx.Msg("ColourSlug"), kRightX, kSlugY - 16, "small", "text_dim");
    DrawText(dc, m_ctx.Msg("Its buttons switch the markers; drag to move one."), kRightX,
             kSlugY + 24, "small", "text_dim");
    for (int i = 0; i < kPreviewRect.width; ++i) {
      const double v = static_cast<double>(i) / (kPreviewRect.width - 1);
      dc.SetPen(wxPen(CtoWxC(m_gradient.GetColour(v))));
      dc.DrawLine(kPreviewRect.x + i, kPreviewRect.y, kPreviewRect.x + i, kPreviewRect.GetBottom());
    }
    dc.SetPen(wxPen(m_ctx.Colour("edge")));
    dc.SetBrush(*wxTRANSPARENT_BRUSH);
    dc.DrawRectangle(kPreviewRect.Inflate(1, 1));
  }

 private:
  void GradientChanged() {
    RefreshRect(kPreviewRect.Inflate(2, 2), false);
    if (m_slug) {
      m_slug->SetDirty();
      m_slug->Refresh(false);
    }
  }

  Gradient m_gradient;
  GradientGroup m_group;
  GradientGroup m_slugGroup;
  GradientControl* m_editor = nullptr;
  GradientSummary* m_summary = nullptr;
  ColourSlug* m_slug = nullptr;
};

const GalleryPageRegistrar kRegistrar({87, "Gradient", "gradient",
                                       [](wxWindow* parent, GalleryContext& ctx) -> GalleryPage* {
                                         return new GradientPage(parent, ctx);
                                       }});

}  // namespace
