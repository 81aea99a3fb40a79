// The cell window every kind of cell builds on: it paints its background
// with a faint line under the row and passes the wheel to the box.
#include <wx/dcclient.h>

#include "vorn/VornMonsterBox.h"

namespace {
constexpr int kRowLineLightness = 85;  // the line under a row, darker than the cell
}

// clang-format off
wxBEGIN_EVENT_TABLE(ColumnEntry, wxWindow)
  EVT_PAINT(ColumnEntry::OnPaint)
  EVT_ERASE_BACKGROUND(ColumnEntry::OnEraseBackground)
  EVT_MOUSEWHEEL(ColumnEntry::ForwardWheel)
wxEND_EVENT_TABLE()
// clang-format on

ColumnEntry::ColumnEntry(wxWindow* panel)
    : wxWindow(panel, wxID_STATIC, wxPoint(0, 0), wxSize(1, 1), wxBORDER_NONE | wxCLIP_CHILDREN) {}

ColumnEntry::~ColumnEntry() = default;

void ColumnEntry::SetGeometry(int x, int y, int w, int h) {
  wxWindow::SetSize(x, y, w, h, wxSIZE_ALLOW_MINUS_ONE);
}

bool ColumnEntry::BelongsToMe(VornControl* control) {
  return control && control == GetControl();
}

void ColumnEntry::SetCellColours(const wxColour& text, const wxColour& background) {
  SetForegroundColour(text);
  SetBackgroundColour(background);
  Refresh(false);
}

void ColumnEntry::OnPaint(wxPaintEvent&) {
  wxPaintDC dc(this);
  const wxSize size = GetClientSize();
  dc.SetPen(*wxTRANSPARENT_PEN);
  dc.SetBrush(wxBrush(GetBackgroundColour()));
  dc.DrawRectangle(0, 0, size.x, size.y);
  dc.SetPen(wxPen(GetBackgroundColour().ChangeLightness(kRowLineLightness)));
  dc.DrawLine(0, size.y - 1, size.x, size.y - 1);
}

void ColumnEntry::OnEraseBackground(wxEraseEvent&) {}

void ColumnEntry::ForwardWheel(wxMouseEvent& event) {
  if (m_pColumn && m_pColumn->GetBox())
    m_pColumn->GetBox()->OnMouseWheel(event);
  else
    event.Skip();
}

void ColumnEntry::ForwardWheelOf(wxWindow* window) {
  window->Bind(wxEVT_MOUSEWHEEL, &ColumnEntry::ForwardWheel, this);
}

int ColumnEntry::BoxId(wxWindow* panel) {
  return panel && panel->GetParent() ? panel->GetParent()->GetId() : wxID_STATIC;
}
