#include "vorn/ColourPicker.h"

#include <wx/dc.h>

#include <algorithm>

#include "ColourDrawing.h"
#include "ColourFieldText.h"
#include "vorn/GraphicsFunctions.h"
#include "vorn/ValInterface.h"
#include "vorn/VornAssert.h"
#include "vorn/VornEdit.h"

namespace {

// The frame's layout: the field and the slider at the left, the numeric
// fields in two columns at the right, the swatches below them.
const wxRect kHueValueRect(8, 8, 222, 136);
const wxRect kSaturationRect(236, 8, 32, 124);
const wxRect kPreviousSwatch(280, 112, 73, 32);
const wxRect kCurrentSwatch(353, 112, 73, 32);
constexpr int kFieldHeight = 18;

struct FieldPlace {
  const char* label;
  int labelX, editX, y, width;
};
const FieldPlace kPlaces[ColourPicker::kFieldCount] = {
    {"R", 280, 292, 8, 56},  {"G", 280, 292, 34, 56}, {"B", 280, 292, 60, 56},
    {"H", 358, 370, 8, 56},  {"S", 358, 370, 34, 56}, {"V", 358, 370, 60, 56},
    {"#", 280, 292, 86, 80},
};

double Unit(double x) {
  return std::clamp(x, 0.0, 1.0);
}

wxFont FieldFont(const ColourPickerLook& look) {
  return look.fieldFont.IsOk() ? look.fieldFont
                               : wxFont(wxFontInfo(9).Family(wxFONTFAMILY_TELETYPE));
}

}  // namespace

// Hears the fields' reports and their Tab keys.
class ColourPicker::FieldReceiver : public MessageReceiver, public VornEditCallBack {
 public:
  explicit FieldReceiver(ColourPicker* picker) : m_pPicker(picker) {}
  void OnUpdate(unsigned int, VornControl* source, VornControlHint* hint) override {
    auto* text = dynamic_cast<StringValChanged*>(hint);
    if (!text) return;
    for (int f = 0; f < kFieldCount; ++f)
      if (source == m_pPicker->m_fields[f]) m_pPicker->OnFieldText(Field(f), text->m_value);
  }
  void TabPressed(VornEdit* edit) override { m_pPicker->FocusNext(edit); }

 private:
  ColourPicker* m_pPicker;
};

ColourPicker::ColourPicker(int x, int y, wxWindow* parent, int id, VornControlGroup* group,
                           const ColourPickerLook& look) {
  Create(x, y, parent, id, group, look);
}

ColourPicker::~ColourPicker() {
  // The parts and fields report to groups this picker holds or outlives.
  DestroyChildren();
  if (m_pFieldReceiver)
    m_fieldGroup.DeRegister(static_cast<MessageReceiver*>(m_pFieldReceiver.get()));
  if (m_pOwnGroup) m_pOwnGroup->DeRegister(static_cast<unsigned int>(GetId()), true);
}

bool ColourPicker::Create(int x, int y, wxWindow* parent, int id, VornControlGroup* group,
                          const ColourPickerLook& look) {
  if (!group) {
    m_pOwnGroup = std::make_unique<VornControlGroup>();
    group = m_pOwnGroup.get();
  }
  const bool created = VornControl::Create(x, y, kWidth, kHeight, parent, id, group);
  m_pHueValue = new HueValueControl(kHueValueRect.x, kHueValueRect.y, kHueValueRect.width,
                                    kHueValueRect.height, this, wxID_ANY, group);
  m_pSaturation = new SaturationPreview(kSaturationRect.x, kSaturationRect.y, kSaturationRect.width,
                                        kSaturationRect.height, this, wxID_ANY, group);
  m_pFieldReceiver = std::make_unique<FieldReceiver>(this);
  m_fieldGroup.Register(static_cast<MessageReceiver*>(m_pFieldReceiver.get()));
  m_look = look;
  BuildFields();
  SetLook(look);
  RefreshFields();
  return created;
}

void ColourPicker::BuildFields() {
  for (int f = 0; f < kFieldCount; ++f) {
    const FieldPlace& place = kPlaces[f];
    VornEditInfo info;
    info.x = 4;
    info.y = 2;
    info.width = place.width - info.x;
    info.height = kFieldHeight - info.y;
    info.colour1 = m_look.fieldText;
    info.colour2 = m_look.fieldSelection;
    info.background = m_look.fieldFill;
    info.font = FieldFont(m_look);
    auto* edit = new VornEdit(nullptr, info, place.editX, place.y, this, f + 1, true,
                              VornEdit::ES_TEXT, &m_fieldGroup);
    edit->SetCaretColour(m_look.fieldText);
    edit->SetCallBackHandler(m_pFieldReceiver.get());
    edit->Bind(wxEVT_KILL_FOCUS, &ColourPicker::OnFieldFocusLost, this);
    m_fields[f] = edit;
  }
}

void ColourPicker::SetLook(const ColourPickerLook& look) {
  ColourPickerComp::SetLook(look);
  m_pHueValue->SetLook(look);
  m_pSaturation->SetLook(look);
  for (VornEdit* edit : m_fields) {
    edit->SetBackgroundCol(look.fieldFill);
    edit->SetCaretColour(look.fieldText);
    edit->Refresh(false);
  }
}

void ColourPicker::SetFgColour(const wxColour& colour) {
  VornWindow::SetFgColour(colour);
  m_look.label = colour;
  Refresh(false);
}

void ColourPicker::SetBgColour(const wxColour& colour) {
  ColourPickerLook look = m_look;
  look.frame = colour;
  SetLook(look);
}

void ColourPicker::OnEnable(bool enabled) {
  ColourPickerComp::OnEnable(enabled);
  m_pHueValue->SetEnabled(enabled);
  m_pSaturation->SetEnabled(enabled);
  for (VornEdit* edit : m_fields) edit->SetEnabled(enabled);
}

// ---- The colour -----------------------------------------------------------------

void ColourPicker::SetInitialRGB(const Color& colour) {
  ColourHintPrev hint(Color(Unit(colour.r), Unit(colour.g), Unit(colour.b)));
  Apply(hint);
}

void ColourPicker::SetColourRGB(const Color& colour) {
  ColourHintCurrentRGB hint(Color(Unit(colour.r), Unit(colour.g), Unit(colour.b)));
  Apply(hint);
}

void ColourPicker::SetColourHSV(double h, double s, double v) {
  ColourHintCurrentHSV hint(Unit(h), Unit(s), Unit(v));
  Apply(hint);
}

void ColourPicker::Apply(VornControlHint& hint) {
  TakeHint(&hint);
  Send(hint);
}

void ColourPicker::OnColourChanged() {
  RefreshFields();
  RefreshRect(kCurrentSwatch, false);
}

void ColourPicker::OnPreviousChanged() {
  RefreshRect(kPreviousSwatch, false);
}

// ---- The fields -----------------------------------------------------------------

void ColourPicker::UpdateEditRGB() {
  using ColourFieldText::FormatComponent;
  m_fields[kRed]->SetText(FormatComponent(m_colour.r));
  m_fields[kGreen]->SetText(FormatComponent(m_colour.g));
  m_fields[kBlue]->SetText(FormatComponent(m_colour.b));
  m_fields[kHex]->SetText(ColourFieldText::FormatHex(m_colour));
}

void ColourPicker::UpdateEditHSV() {
  using ColourFieldText::FormatComponent;
  m_fields[kHue]->SetText(FormatComponent(m_hue));
  m_fields[kSaturation]->SetText(FormatComponent(m_saturation));
  m_fields[kValue]->SetText(FormatComponent(m_value));
}

void ColourPicker::RefreshFields() {
  UpdateEditRGB();
  UpdateEditHSV();
}

void ColourPicker::OnFieldText(Field field, const VornString& text) {
  if (field == kHex) {
    Color colour;
    if (ColourFieldText::ParseHex(text, colour))
      SetColourRGB(colour);
    else
      UpdateEditRGB();
    return;
  }
  double number = 0.0;
  if (!ColourFieldText::ParseComponent(text, number)) {
    RefreshFields();
    return;
  }
  number = Unit(number);
  if (field <= kBlue) {
    Color colour = m_colour;
    (field == kRed ? colour.r : field == kGreen ? colour.g : colour.b) = number;
    SetColourRGB(colour);
  } else {
    double hsv[3] = {m_hue, m_saturation, m_value};
    hsv[field - kHue] = number;
    SetColourHSV(hsv[0], hsv[1], hsv[2]);
  }
}

void ColourPicker::FocusNext(VornEdit* edit) {
  for (int f = 0; f < kFieldCount; ++f)
    if (m_fields[f] == edit) m_fields[(f + 1) % kFieldCount]->SetFocus();
}

void ColourPicker::OnFieldFocusLost(wxFocusEvent& event) {
  event.Skip();
  CallAfter(&ColourPicker::RefreshFields);
}

// ---- Drawing --------------------------------------------------------------------

wxRect ColourPicker::GetPreviousSwatch() const {
  return kPreviousSwatch;
}

wxRect ColourPicker::GetCurrentSwatch() const {
  return kCurrentSwatch;
}

void ColourPicker::OnDraw(wxDC* dc) {
  VORN_ASSERT(dc != nullptr);
  if (!dc) return;
  ColourDrawing::Fill(*dc, wxRect(wxPoint(0, 0), GetClientSize()), m_look.frame);
  DrawLabels(*dc);
  DrawSwatches(*dc);
  ClearDirty();
}

void ColourPicker::DrawLabels(wxDC& dc) const {
  dc.SetFont(m_look.labelFont.IsOk() ? m_look.labelFont : GetFont());
  dc.SetTextForeground(m_look.label);
  dc.SetBackgroundMode(wxBRUSHSTYLE_TRANSPARENT);
  for (const FieldPlace& place : kPlaces) {
    const wxSize extent = dc.GetTextExtent(place.label);
    dc.DrawText(place.label, place.labelX, place.y + (kFieldHeight - extent.y) / 2);
  }
  for (const VornEdit* edit : m_fields)
    ColourDrawing::Outline(dc, edit->GetRect().Inflate(1, 1), m_look.edge);
}

void ColourPicker::DrawSwatches(wxDC& dc) const {
  ColourDrawing::Fill(dc, kPreviousSwatch, CtoWxC(m_previous));
  ColourDrawing::Fill(dc, kCurrentSwatch, CtoWxC(m_colour));
  ColourDrawing::Outline(dc, wxRect(kPreviousSwatch).Union(kCurrentSwatch).Inflate(1, 1),
                         m_look.edge);
}
