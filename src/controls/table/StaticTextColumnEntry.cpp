// A text cell: a small control inside the cell window draws the text and
// reports clicks on it to the box's group.
#include <wx/dcclient.h>
#include <wx/settings.h>

#include "CellControl.h"
#include "vorn/VornMonsterBox.h"

// The text of a cell, as a control so that a click reaches the group.
class StaticTextColumnEntry::Label : public VornControl {
 public:
  Label(wxWindow* parent, int id, const VornString& text, const wxColour& colour,
        const wxColour& background)
      : VornControl(0, 0, 1, 1, parent, id, nullptr), m_text(text), m_colour(colour) {
    SetBgColour(background);
    SetFont(wxSystemSettings::GetFont(wxSYS_DEFAULT_GUI_FONT));
  }

  void OnDraw(wxDC* dc) override {
    VornWindow::OnDraw(dc);  // clears to the background
    dc->SetFont(GetFont());
    dc->SetTextForeground(m_colour);
    const wxString text = Text();
    dc->DrawText(text, kInset, (GetHeight() - dc->GetTextExtent(text).y) / 2);
    if (IsDirty()) RecalcState();
  }
  void OnMouseButton() override {
    if (!m_pControlGroup) return;
    if (GetMouseDown())
      m_pControlGroup->ControlSelected(GetId(), this);
    else if (GetMouseOver())
      m_pControlGroup->ControlUnSelected(GetId(), this);
  }
  void OnMouseOver() override {}

  wxString Text() const { return wxString::FromUTF8(m_text.c_str()); }
  int TextWidth() {
    wxClientDC dc(this);
    dc.SetFont(GetFont());
    return dc.GetTextExtent(Text()).x + 2 * kInset;
  }

  static constexpr int kInset = 2;
  VornString m_text;
  wxColour m_colour;
};

StaticTextColumnEntry::StaticTextColumnEntry(wxPanel* panel, const VornString& text,
                                             const wxColour& textColour, const wxColour& background,
                                             bool centred, VornControlGroup* group)
    : ColumnEntry(panel), m_bCentred(centred) {
  SetBackgroundColour(background);
  m_pLabel = new CellControl<Label>(group, this, BoxId(panel), text, textColour, background);
  ForwardWheelOf(m_pLabel);
}

void StaticTextColumnEntry::SetGeometry(int x, int y, int w, int h) {
  ColumnEntry::SetGeometry(x, y, w, h);
  const int textHeight = std::max(1, h - 1);
  if (!m_bCentred) {
    m_pLabel->SetWindowPos(0, 0, std::max(1, w), textHeight);
    return;
  }
  const int textWidth = std::min(w, m_pLabel->TextWidth());
  m_pLabel->SetWindowPos((w - textWidth) / 2, 0, std::max(1, textWidth), textHeight);
}

VornControl* StaticTextColumnEntry::GetControl() {
  return m_pLabel;
}

void StaticTextColumnEntry::SetCellColours(const wxColour& text, const wxColour& background) {
  ColumnEntry::SetCellColours(text, background);
  m_pLabel->SetBgColour(background);
  m_pLabel->Refresh(false);
}

const VornString& StaticTextColumnEntry::GetText() const {
  return m_pLabel->m_text;
}

void StaticTextColumnEntry::SetText(const VornString& text) {
  m_pLabel->m_text = text;
  m_pLabel->Refresh(false);
}
