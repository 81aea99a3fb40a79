#include "vorn/GradientControl.h"
#include "vorn/GraphicsFunctions.h"

GradientSummary::~GradientSummary() = default;

bool GradientSummary::Create(int x, int y, int width, int height, wxWindow* parent, int id,
                             VornControlGroup* group, long style) {
  return VornControl::Create(x, y, width, height, parent, id, group, style);
}

void GradientSummary::SetSpace(int left, int right) {
  m_left = left;
  m_right = right;
  SetDirty();
  Refresh(false);
}

int GradientSummary::GetActiveWidth() const {
  return GetClientSize().GetWidth() - m_left - m_right;
}

// The whole of 0..1, one colour per pixel.
void GradientSummary::RecalcColours() {
  const int active = GetActiveWidth();
  m_colours.assign(active > 0 ? active : 0, GetBackgroundColour());
  if (!m_pGradient || active <= 1) return;
  for (int i = 0; i < active; ++i)
    m_colours[i] = CtoWxC(m_pGradient->GetColour(static_cast<double>(i) / (active - 1)));
}

// A move changes the colours too.
void GradientSummary::OnUpdate(unsigned int id, VornControl* sender, VornControlHint* hint) {
  if (sender == this) return;
  if (dynamic_cast<GradientHintMove*>(hint)) {
    SetDirty();
    Refresh(false);
    return;
  }
  GradientControlComp::OnUpdate(id, sender, hint);
}

void GradientSummary::OnDraw(wxDC* dc) {
  if (IsDirty()) {
    RecalcColours();
    RecalcState();
  }
  dc->SetBackground(wxBrush(GetBackgroundColour()));
  dc->Clear();
  const int h = GetClientSize().GetHeight();
  const int top = 3, bottom = h - 4;
  for (int i = 0; i < static_cast<int>(m_colours.size()); ++i) {
    dc->SetPen(wxPen(m_colours[i]));
    dc->DrawLine(m_left + i, top, m_left + i, bottom + 1);
  }
  // The displayed part, outlined.
  const int active = GetActiveWidth();
  if (active <= 1) return;
  const int x1 = m_left + static_cast<int>(m_displayMin * (active - 1) + 0.5);
  const int x2 = m_left + static_cast<int>(m_displayMax * (active - 1) + 0.5);
  dc->SetPen(wxPen(m_fgColour));
  dc->SetBrush(*wxTRANSPARENT_BRUSH);
  dc->DrawRectangle(x1 - 1, top - 2, x2 - x1 + 3, bottom - top + 5);
}
