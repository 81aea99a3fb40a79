// The older image-based scroll bar: a caller-supplied thumb between two
// generated caps, its position reported to a value group as drags.
#include <wx/dcmemory.h>

#include <memory>

#include "VornScrollImages.h"
#include "vorn/GraphicsFunctions.h"
#include "vorn/VornSimpleScrollBar.h"
#include "vorn/VornValueNotify.h"
#include "vornhost/Filter.h"

VornScrollBar::VornScrollBar() = default;

VornScrollBar::VornScrollBar(const wxBitmap* normal, const wxBitmap* atEnd, const wxBitmap* atStart,
                             const wxColour& outline, const wxColour& background, double pageSize,
                             int x, int y, int height, wxWindow* parent, int id,
                             VornControlGroupValue* group, long style) {
  Create(normal, atEnd, atStart, outline, background, pageSize, x, y, height, parent, id, group,
         style);
}

VornScrollBar::~VornScrollBar() = default;

bool VornScrollBar::Create(const wxBitmap* normal, const wxBitmap* atEnd, const wxBitmap* atStart,
                           const wxColour& outline, const wxColour& background, double pageSize,
                           int x, int y, int height, wxWindow* parent, int id,
                           VornControlGroupValue* group, long style) {
  m_pNormal = normal;
  m_pAtEnd = atEnd;
  m_pAtStart = atStart;
  m_outline = outline;
  m_background = background;
  m_pageSize = pageSize;
  m_pValueGroup = group;
  const int width = normal && normal->IsOk() ? normal->GetWidth() + 1 : 1;
  const bool created = VornControl::Create(x, y, width, height, parent, id, group, style);
  CreateItems();
  return created;
}

void VornScrollBar::CreateItems() {
  const int w = m_pNormal && m_pNormal->IsOk() ? m_pNormal->GetWidth() : 0;
  const ColorA outline = WxCtoCA(m_outline);
  wxImage top = VornScrollImage(w + 1, w + 1, m_background);
  wxImage bottom = top.Copy();
  DrawArc(AntiAlias(*CreateFilter(top)), 0, 0, w, w, outline);
  DrawArc(AntiAlias(*CreateFilter(bottom)), 0, w, w, 0, outline);
  m_topCap = wxBitmap(top);
  m_bottomCap = wxBitmap(bottom);
  m_lowestTop = w + 1;
  m_thumbHeight = m_pNormal && m_pNormal->IsOk() ? m_pNormal->GetHeight() : 0;
  m_highestTop = GetHeight() - m_thumbHeight - (w + 1);
  m_thumbTop = m_dragAnchorY = m_lowestTop;
  if (GetWidth() > 0 && GetHeight() > 0) m_backBuffer.Create(GetWidth(), GetHeight());
}

VornControlGroupValue* VornScrollBar::GetGroup() {
  const VornControlGroup* bound = VornControl::GetGroup();
  return m_pValueGroup && bound == static_cast<VornControlGroup*>(m_pValueGroup) ? m_pValueGroup
                                                                                 : nullptr;
}

void VornScrollBar::NotifyDrag() {
  if (VornControlGroupValue* group = GetGroup()) group->ControlDrag(GetId(), this);
}

// ---- value

void VornScrollBar::SetValue(double v) {
  v = VornValueNotify::Clamp(v);
  m_thumbTop = m_lowestTop + static_cast<int>((m_highestTop - m_lowestTop) * v);
  NotifyDrag();
  if (GetHandle()) Refresh(false);
}

void VornScrollBar::SetValue(int, int y) {
  int top = m_thumbTop + (y - m_dragAnchorY);
  m_dragAnchorY = y;
  if (top > m_highestTop) top = m_highestTop;
  if (top < m_lowestTop) top = m_lowestTop;
  if (top == m_thumbTop) return;
  m_thumbTop = top;
  NotifyDrag();
}

double VornScrollBar::GetValue() const {
  if (m_range < m_pageSize || m_highestTop == m_lowestTop) return 0.0;
  return (m_range - m_pageSize) * (m_thumbTop - m_lowestTop) / (m_highestTop - m_lowestTop);
}

void VornScrollBar::AddToRange(double amount, bool notify) {
  const bool wasScrolling = m_range > m_pageSize;
  m_range += amount;
  // Everything fits again: the thumb goes to the end.
  if (wasScrolling && m_range <= m_pageSize) SetValue(1.0);
  if (notify) NotifyDrag();
  if (GetHandle()) Refresh(false);
}

void VornScrollBar::SetScrollButtons(const VornwxBitmapCache*, const VornwxBitmapCache*) {}
void VornScrollBar::MoveScrollUp() {}
void VornScrollBar::MoveScrollDown() {}

// ---- mouse

void VornScrollBar::OnMouseButton() {
  VornControlGroupValue* group = GetGroup();
  if (!GetMouseDown()) {
    m_bDragging = false;
    ReleaseMouse();
    if (group) group->ControlUnSelected(GetId(), this);
    return;
  }
  int x, y;
  GetLastMousePos(x, y);
  m_bDragging = true;
  CaptureMouse();
  m_dragAnchorY = y;
  if (group) group->ControlSelected(GetId(), this);
}

void VornScrollBar::OnMouseMove(int x, int y) {
  if (!m_bDragging || m_range <= m_pageSize) return;
  SetValue(x, y);
  Refresh(false);
}

// ---- drawing

void VornScrollBar::OnDraw(wxDC* dc) {
  if (!dc || !m_backBuffer.IsOk()) return;
  wxMemoryDC buffer(m_backBuffer);
  buffer.SetPen(wxPen(m_outline));
  buffer.SetBackground(wxBrush(m_background));
  buffer.Clear();
  if (m_range > m_pageSize) {
    const wxBitmap* thumb = m_thumbTop <= m_lowestTop
                                ? m_pAtStart
                                : (m_thumbTop >= m_highestTop ? m_pAtEnd : m_pNormal);
    if (thumb && thumb->IsOk()) buffer.DrawBitmap(*thumb, 0, m_thumbTop);
    const int capHeight = m_bottomCap.GetHeight();
    const int thumbWidth = m_pNormal && m_pNormal->IsOk() ? m_pNormal->GetWidth() : 0;
    buffer.DrawLine(thumbWidth, m_lowestTop, thumbWidth, GetHeight() - capHeight);
    buffer.DrawBitmap(m_topCap, 0, 0);
    buffer.DrawBitmap(m_bottomCap, 0, GetHeight() - capHeight);
  }
  dc->Blit(0, 0, m_backBuffer.GetWidth(), m_backBuffer.GetHeight(), &buffer, 0, 0, wxCOPY, false);
  buffer.SelectObject(wxNullBitmap);
}

// ---- end-button group

void VornScrollBarControlGroup::ControlSelected(unsigned int, VornControl*) {
  // Presses of the end buttons (ids 100 and 101) take no action.
}
