// The colour page: a picker wired to a large swatch of the current colour
// with the previous one beneath it, and a button that opens the colour
// dialog. Every hint and gesture of the picker's parts goes to the log.
#include "Gallery.h"

namespace {

constexpr int kLeft = 24;
constexpr int kTop = 64;
constexpr int kSwatchX = kLeft + ColourPicker::kWidth + 32;
constexpr int kSwatchWidth = 220;
const wxRect kCurrentRect(kSwatchX, kTop + 18, kSwatchWidth, 112);
const wxRect kPreviousRect(kSwatchX, kTop + 148, kSwatchWidth, 34);
enum Id : unsigned int { kPicker = 700, kOpenDialog };

wxString Hex(const Color& c) {
  const wxColour w = CtoWxC(c);
  return wxString::Format("#%02X%02X%02X", w.Red(), w.Green(), w.Blue());
}

wxString Describe(VornControlHint* hint) {
  if (auto* rgb = dynamic_cast<ColourHintCurrentRGB*>(hint))
    return "ColourHintCurrentRGB " + Hex(rgb->m_colour);
  if (auto* hsv = dynamic_cast<ColourHintCurrentHSV*>(hint))
    return wxString::Format("ColourHintCurrentHSV %.3f %.3f %.3f", hsv->m_hue, hsv->m_saturation,
                            hsv->m_value);
  if (auto* prev = dynamic_cast<ColourHintPrev*>(hint))
    return "ColourHintPrev " + Hex(prev->m_colour);
  return wxString();
}

// Logs the gestures of the picker's parts and their colour hints under the
// sender's name, and tells the page when the colour changed.
class ColourGroup : public LoggingGroup<VornControlGroup> {
 public:
  ColourGroup(GalleryLog& log, std::function<void()> changed) : LoggingGroup(log) {
    Receiver().describe = Describe;
    Receiver().described = std::move(changed);
  }
  using LoggingGroup::ControlUnSelected;
  void ControlUnSelected(unsigned int id, VornControl* control) override {
    LoggingGroup::ControlUnSelected(id, control);
    if (released) released(id);
  }
  std::function<void(unsigned int id)> released;
};

class ColourPage : public GalleryPage {
 public:
  ColourPage(wxWindow* parent, GalleryContext& ctx)
      : GalleryPage(parent, ctx), m_group(ctx.Log(), [this] { RefreshSwatches(); }) {
    m_picker = new ColourPicker(kLeft, kTop, this, kPicker, &m_group,
                                ColourPickerLook::FromSkin(ctx.Assets()));
    m_group.SetName(kPicker, ctx.Msg("Colour picker"));
    m_group.SetName(static_cast<unsigned int>(m_picker->GetHueValueControl()->GetId()),
                    ctx.Msg("Hue-value field"));
    m_group.SetName(static_cast<unsigned int>(m_picker->GetSaturationPreview()->GetId()),
                    ctx.Msg("Saturation slider"));
    const Color start(0.22, 0.74, 0.77);
    m_picker->SetInitialRGB(start);
    m_picker->SetColourRGB(start);

    const VornwxBitmapCache* images = ctx.Images("button_text.sts");
    const int buttonY = kTop + ColourPicker::kHeight + 16;
    if (images)
      m_open =
          new VornTextPushButton(Utf8(ctx.Msg("Choose…")), -1, -1, ctx.Font("label"),
                                 ctx.Colour("text"), ctx.Colour("face"), ctx.Colour("text_bright"),
                                 images, kLeft, buttonY, this, kOpenDialog, &m_group);
    else
      m_open =
          new VornTextPushButton(Utf8(ctx.Msg("Choose…")), -1, -1, ctx.Font("label"),
                                 ctx.Colour("text"), ctx.Colour("face"), ctx.Colour("text_bright"),
                                 kLeft, buttonY, 96, 24, this, kOpenDialog, &m_group);
    m_group.SetName(kOpenDialog, ctx.Msg("Choose…"));
    m_dialogCaption = wxPoint(m_open->GetRect().GetRight() + 12, buttonY + 4);
    // After the release has run its course, so the dialog's loop does not
    // nest inside the button's mouse handler.
    m_group.released = [this](unsigned int id) {
      if (id == kOpenDialog) CallAfter(&ColourPage::OpenDialog);
    };
    SetSize(960, kTop + ColourPicker::kHeight + 60);
  }
  ~ColourPage() override {
    // The controls go before the groups they report to.
    DestroyChildren();
  }

  // A pick in the field, a drag of the slider and a typed hex colour.
  void Demo() override {
    wxWindow* field = m_picker->GetHueValueControl();
    SendMouse(field, wxEVT_LEFT_DOWN, 40, 30);
    SendMouse(field, wxEVT_MOTION, 70, 40);
    SendMouse(field, wxEVT_LEFT_UP, 70, 40);
    SaturationPreview* slider = m_picker->GetSaturationPreview();
    const int tab = SaturationPreview::SatToPos(slider->GetSaturation());
    SendMouse(slider, wxEVT_LEFT_DOWN, 25, tab);
    SendMouse(slider, wxEVT_MOTION, 25, tab + 20);
    SendMouse(slider, wxEVT_LEFT_UP, 25, tab + 20);
  }

  // The dialog, shown without a modal loop and drawn below the picker.
  bool OpenPopUpForShot() override {
    Color current;
    m_picker->GetColourRGB(current);
    m_pShotDialog = new VornColourDialog(this, m_ctx.Assets(), current);
    m_pShotDialog->GetPicker()->SetColourRGB(Color(0.93, 0.55, 0.2));
    m_pShotDialog->Show();
    return true;
  }
  void RenderPopUps(wxDC& dc, const wxPoint& at) override {
    if (!m_pShotDialog) return;
    wxWindow* panel = m_pShotDialog->GetPicker()->GetParent();
    const wxPoint where = at + wxPoint(kLeft + 40, kTop + ColourPicker::kHeight + 70);
    dc.SetPen(wxPen(m_ctx.Colour("edge")));
    dc.SetBrush(*wxTRANSPARENT_BRUSH);
    dc.DrawRectangle(wxRect(where, panel->GetSize()).Inflate(1, 1));
    RenderToolkitWindows(panel, dc, where);
  }
  void ClosePopUps() override {
    if (m_pShotDialog) m_pShotDialog->Destroy();
    m_pShotDialog = nullptr;
  }

 protected:
  void DrawPage(wxDC& dc) override {
    const int th = DrawText(dc, m_ctx.Msg("Colour"), kLeft, 14, "title", "text");
    DrawText(dc, m_ctx.Msg("Pick in the field or on the slider, or type a value and press Enter."),
             kLeft, 18 + th, "label", "text_dim");
    DrawText(dc, m_ctx.Msg("Opens the colour dialog on the current colour."), m_dialogCaption.x,
             m_dialogCaption.y, "label", "text_dim");
    DrawText(dc, m_ctx.Msg("Current"), kSwatchX, kTop, "small", "text_dim");
    DrawText(dc, m_ctx.Msg("Previous"), kSwatchX, kPreviousRect.y - 16, "small", "text_dim");
    Color current;
    m_picker->GetColourRGB(current);
    for (const auto& [rect, colour] :
         {std::pair(kCurrentRect, current), std::pair(kPreviousRect, m_picker->GetPreviousRGB())}) {
      dc.SetPen(wxPen(m_ctx.Colour("edge")));
      dc.SetBrush(wxBrush(CtoWxC(colour)));
      dc.DrawRectangle(rect);
      DrawText(dc, Hex(colour), rect.x + rect.width + 10, rect.y + 2, "mono", "text");
    }
  }

 private:
  void RefreshSwatches() { RefreshRect(wxRect(kSwatchX, kTop, kSwatchWidth + 120, 190), false); }

  void OpenDialog() {
    Color current;
    m_picker->GetColourRGB(current);
    const std::optional<Color> chosen = VornColourDialog::PickColour(this, m_ctx.Assets(), current);
    if (!chosen) {
      m_ctx.Log().Add(m_ctx.Msg("Dialog cancelled"));
      return;
    }
    m_ctx.Log().Add(m_ctx.Msg("Dialog chose") + " " + Hex(*chosen));
    // The colour the dialog started from becomes the one to compare with.
    m_picker->SetInitialRGB(current);
    m_picker->SetColourRGB(*chosen);
  }

  ColourGroup m_group;
  ColourPicker* m_picker = nullptr;
  VornTextPushButton* m_open = nullptr;
  wxPoint m_dialogCaption;
  VornColourDialog* m_pShotDialog = nullptr;  // shown without a loop for a screenshot
};

const GalleryPageRegistrar kRegistrar({85, "Colour", "colour",
                                       [](wxWindow* parent, GalleryContext& ctx) -> GalleryPage* {
                                         return new ColourPage(parent, ctx);
                                       }});

}  // namespace
