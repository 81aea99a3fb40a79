// The monster box: columns of real cell windows in a scrolling panel, a
// scroll bar made on first need, buttons below and a resize grip.
#include "vorn/VornMonsterBox.h"

#include <wx/dcmemory.h>

#include <algorithm>
#include <cmath>

#include "MonsterBoxParts.h"
#include "vorn/GraphicsFunctions.h"
#include "vorn/VornAssert.h"

using namespace monster;

namespace {
constexpr int kFrameCorner = 8;
constexpr int kHeadingCorner = 4;
constexpr int kAlternateLightness = 110;  // every second row is a little lighter

// A box narrower or lower than its margins keeps a one-pixel panel and bar:
// GTK refuses negative sizes.
wxSize PanelSize(int boxWidth, int listHeight) {
  return wxSize(std::max(1, boxWidth - kPanelWidthLess), std::max(1, listHeight));
}
}  // namespace

// clang-format off
wxBEGIN_EVENT_TABLE(VornMonsterBox, VornControl)
  EVT_LEFT_DOWN(VornMonsterBox::LocalLeftDown)
  EVT_LEFT_UP(VornMonsterBox::LocalLeftUp)
  EVT_LEFT_DCLICK(VornMonsterBox::LocalLeftDClick)
  EVT_MOTION(VornMonsterBox::LocalMotion)
  EVT_MOUSEWHEEL(VornMonsterBox::OnMouseWheel)
  EVT_MOUSE_CAPTURE_LOST(VornMonsterBox::OnResizeCaptureLost)
wxEND_EVENT_TABLE()
    // clang-format on

    VornMonsterBox::VornMonsterBox()
    : m_scrollOutline(122, 134, 150),
      m_scrollBackground(29, 33, 40),
      m_cellBackground(29, 33, 40),
      m_separator(122, 134, 150),
      m_cellText(222, 227, 234) {}

VornMonsterBox::~VornMonsterBox() = default;

bool VornMonsterBox::Create(const wxBitmap* frame, const wxBitmap* heading, const wxBitmap* spacer,
                            int x, int y, int w, int h, VornString& name, wxWindow* parent, int id,
                            VornControlGroup* group, long style) {
  m_pFrame = frame;
  m_pHeading = heading;
  m_pSpacer = spacer;
  m_name = name;
  m_bResizable = (style & kMonsterBoxResizable) != 0;
  const bool created =
      VornControl::Create(x, y, w, h, parent, id, group, style & ~kMonsterBoxResizable);
  m_listHeight = h - kListHeightLess;
  m_backBuffer = wxBitmap(std::max(1, w), std::max(1, h));
  m_pPanel = new wxPanel(this, wxID_ANY, wxPoint(kPanelX, kPanelY), PanelSize(w, m_listHeight),
                         wxTAB_TRAVERSAL | wxBORDER_NONE);
  m_pPanel->SetBackgroundColour(m_cellBackground);
  m_pPanel->Bind(wxEVT_MOUSEWHEEL, &VornMonsterBox::OnMouseWheel, this);
  return created;
}

// ---- columns and cells --------------------------------------------------------

void VornMonsterBox::AddColumn(const VornString& title, const wxColour& colour, int width, bool) {
  AddHeadedColumn(std::make_unique<TextColumnHeading>(title, colour), width);
}

void VornMonsterBox::AddColumn(const VornString& title, const wxColour& colour, const wxFont& font,
                               int width, bool) {
  AddHeadedColumn(std::make_unique<TextColumnHeading>(title, colour, font), width);
}

void VornMonsterBox::AddColumn(const wxBitmap* bitmap, int width, bool) {
  AddHeadedColumn(std::make_unique<BitmapColumnHeading>(bitmap), width);
}

void VornMonsterBox::AddHeadedColumn(std::unique_ptr<ColumnHeading> heading, int width) {
  const int x = m_columns.empty() ? 0 : m_columns.back()->GetX() + m_columns.back()->GetWidth();
  m_columns.push_back(std::make_unique<MonsterColumn>(this, std::move(heading)));
  m_columns.back()->SetWidth(x, width);
  Refresh(false);
}

bool VornMonsterBox::ColumnOk(int column) const {
  const bool ok = column >= 0 && column < GetColumnCount();
  VORN_ASSERT_TEXT(ok, kColumnInRange);
  return ok && m_pPanel;
}

void VornMonsterBox::AddEntry(int column, const VornString& text, const wxColour& colour,
                              bool centred) {
  if (!ColumnOk(column)) return;
  InsertEntry(m_columns[column]->GetEntryCount(), column, text, colour, centred);
}

void VornMonsterBox::AddEntry(int column, const VornwxBitmapCache* images, bool on) {
  if (!ColumnOk(column)) return;
  InsertEntry(m_columns[column]->GetEntryCount(), column, images, on);
}

void VornMonsterBox::InsertEntry(int row, int column, const VornString& text,
                                 const wxColour& colour, bool centred) {
  if (!ColumnOk(column)) return;
  PutEntry(row, column,
           new StaticTextColumnEntry(m_pPanel, text, colour, m_cellBackground, centred,
                                     m_pControlGroup));
}

void VornMonsterBox::InsertEntry(int row, int column, const VornwxBitmapCache* images, bool on) {
  if (!ColumnOk(column)) return;
  PutEntry(row, column, new CheckBoxColumnEntry(m_pPanel, images, m_pControlGroup, on));
}

void VornMonsterBox::PutEntry(int row, int column, ColumnEntry* entry) {
  entry->SetForegroundColour(m_cellText);
  entry->SetBackgroundColour(m_cellBackground);
  MonsterColumn& target = *m_columns[column];
  target.InsertEntry(row, entry, m_rowHeight);
  m_rows = std::max(m_rows, target.GetEntryCount());
  CheckForScroll();
}

void VornMonsterBox::DeleteRow(int row) {
  for (auto& column : m_columns) column->DeleteEntry(row);
  const int remaining = m_columns.empty() ? 0 : m_columns.front()->GetEntryCount();
  if (remaining < GetLineDataCount() && row >= 0 && row < GetLineDataCount())
    m_lineData.erase(m_lineData.begin() + row);
  m_rows = remaining;
  CheckForScroll();
  // Fewer rows may leave the view past the end: keep it inside the content.
  if (m_pScrollBar && m_pScrollBar->IsVisible()) SetScrollPos(m_pScrollBar->GetSliderVal());
  Refresh(false);
}

void VornMonsterBox::ClearAll() {
  for (auto& column : m_columns) column->ClearAll();
  m_lineData.clear();
  m_rows = 0;
  CheckForScroll();
  Refresh(false);
}

VornControl* VornMonsterBox::GetRowColumn(int row, int column) {
  ColumnEntry* entry = GetRowColumnEntry(row, column);
  return entry ? entry->GetControl() : nullptr;
}

ColumnEntry* VornMonsterBox::GetRowColumnEntry(int row, int column) {
  if (column < 0 || column >= GetColumnCount()) return nullptr;
  return m_columns[column]->GetEntry(row);
}

void VornMonsterBox::FindRowColumn(VornControl* control, int& row, int& column) {
  for (int c = 0; c < GetColumnCount(); ++c) {
    const int r = m_columns[c]->IndexOf(control);
    if (r >= 0) {
      row = r;
      column = c;
      return;
    }
  }
  row = column = -1;
}

// ---- per-row caller data ------------------------------------------------------

void VornMonsterBox::AddLineData(void* data) {
  m_lineData.push_back(data);
}

void VornMonsterBox::InsertLineData(int row, void* data) {
  row = std::max(0, std::min(row, GetLineDataCount()));
  m_lineData.insert(m_lineData.begin() + row, data);
}

void* VornMonsterBox::GetLineData(int row) const {
  return row >= 0 && row < GetLineDataCount() ? m_lineData[row] : nullptr;
}

// ---- buttons ------------------------------------------------------------------

int VornMonsterBox::SpacerWidth() const {
  return m_pSpacer && m_pSpacer->IsOk() ? m_pSpacer->GetWidth() : 0;
}

VornPushButton* VornMonsterBox::AddButton(const VornwxBitmapCache* images, int id,
                                          const VornString& tipText, VornControlGroup* group) {
  int x = SpacerWidth() + kButtonX;
  if (!m_buttons.empty())
    x = m_buttons.back()->GetPosX() + m_buttons.back()->GetWidth() + SpacerWidth();
  auto* button = new VornPushButton(images, x, m_listHeight + kButtonBelowList, this, id, group, 0);
  button->Show();
  button->SetToolTip(tipText);
  m_buttons.push_back(button);
  Refresh(false);
  return button;
}

// ---- scrolling ----------------------------------------------------------------

void VornMonsterBox::CheckForScroll() {
  const int content = ContentHeight();
  if (content > GetHeight() - kFitHeightLess) {
    if (!m_pScrollBar) {
      m_pScrollBar =
          new MonsterScrollBar(m_pScrollHandle, m_pScrollHandle, m_pScrollHandle, m_scrollOutline,
                               m_scrollBackground, CtoWxC(m_scrollHover), GetWidth() - kBarWidth, 0,
                               PanelSize(0, m_listHeight).y, this, -1, nullptr, m_bResizable);
      m_pScrollBar->SetBox(this);
      m_pScrollBar->Hide();
    }
    if (!m_pScrollBar->IsVisible()) {
      ScrollContentTo(0);
      m_pScrollBar->SetSliderVal(0.0, true);
      m_pScrollBar->Show();
    }
  } else if (m_pScrollBar) {
    ScrollContentTo(0);
    m_pScrollBar->Hide();
  }
  if (m_pScrollBar && content > 0)
    m_pScrollBar->SetFractionVal(static_cast<double>(GetHeight() - kFitHeightLess) / content);
  Refresh(false);
}

void VornMonsterBox::SetScrollPos(double v) {
  // Content shorter than the panel never scrolls down.
  ScrollContentTo(std::max(0, static_cast<int>((ContentHeight() - m_listHeight) * v)));
}

void VornMonsterBox::ScrollContentTo(int target) {
  if (target == m_scrollOffset) return;
  if (m_pPanel) m_pPanel->ScrollWindow(0, m_scrollOffset - target);
  m_scrollOffset = target;
}

void VornMonsterBox::ScrollRows(int rows) {
  if (!m_pScrollBar || !m_pScrollBar->IsVisible() || rows == 0) return;
  const int range = ContentHeight() - m_listHeight;
  if (range <= 0) return;
  const int target = std::max(0, std::min(range, m_scrollOffset + rows * m_rowHeight));
  // Half a pixel more, so that the truncation in SetScrollPos lands on target.
  const double v = target >= range ? 1.0 : (target + 0.5) / range;
  m_pScrollBar->SetSliderVal(v, true);
}

void VornMonsterBox::OnMouseWheel(wxMouseEvent& event) {
  if (event.GetWheelAxis() != wxMOUSE_WHEEL_VERTICAL || event.GetWheelDelta() == 0) {
    event.Skip();
    return;
  }
  // A notch away from the user shows earlier rows.
  const int notches = event.GetWheelRotation() / event.GetWheelDelta();
  ScrollRows(-notches);
}

// ---- resizing -----------------------------------------------------------------

wxRect VornMonsterBox::GripRect() const {
  return wxRect(GetWidth() - kGripLeftLess, GetHeight() - kGripTopLess, kGripSize + 1,
                kGripSize + 1);
}

void VornMonsterBox::LocalLeftDown(wxMouseEvent& event) {
  if (!m_bResizable || !GetEnabled()) return;
  if (!GripRect().Contains(event.GetX(), event.GetY())) return;
  m_bResizing = true;
  CaptureMouse();
  m_lastY = event.GetY();
}

void VornMonsterBox::LocalMotion(wxMouseEvent& event) {
  if (!m_bResizing) return;
  const int height = GetHeight() + event.GetY() - m_lastY;
  m_lastY = event.GetY();
  ApplyHeight(std::min(std::max(height, kMinHeight), m_maxHeight));
  NotifySizeChange();
  Refresh(false);
}

void VornMonsterBox::LocalLeftUp(wxMouseEvent&) {
  ReleaseMouse();
  m_bResizing = false;
}

void VornMonsterBox::LocalLeftDClick(wxMouseEvent&) {}

void VornMonsterBox::OnResizeCaptureLost(wxMouseCaptureLostEvent& event) {
  m_bResizing = false;
  VornWindow::OnMouseCaptureLost(event);
}

void VornMonsterBox::SetRowHeight(int h) {
  if (h < 1 || h == m_rowHeight) return;
  m_rowHeight = h;
  for (auto& column : m_columns) column->LayoutEntries();
  CheckForScroll();
  if (m_pScrollBar && m_pScrollBar->IsVisible()) SetScrollPos(m_pScrollBar->GetSliderVal());
}

void VornMonsterBox::Resizable(bool resizable) {
  m_bResizable = resizable;
  Refresh(false);
}

void VornMonsterBox::SetSize(int w, int h) {
  VornWindow::SetSize(w, GetHeight());
  ApplyHeight(std::min(std::max(h, kMinHeight), m_maxHeight));
  Refresh(false);
}

void VornMonsterBox::ApplyHeight(int height) {
  VornWindow::SetSize(GetWidth(), height);
  m_backBuffer = wxBitmap(std::max(1, GetWidth()), std::max(1, height));
  m_listHeight = height - kListHeightLess;
  if (m_pPanel) m_pPanel->SetSize(PanelSize(GetWidth(), m_listHeight));
  CheckForScroll();
  if (m_pScrollBar) {
    m_pScrollBar->SetWindowPos(GetWidth() - kBarWidth, 0, m_pScrollBar->GetWidth(),
                               PanelSize(0, m_listHeight).y);
    // A hidden bar keeps its last value: the rows fit and stay at the top.
    if (m_pScrollBar->IsVisible()) SetScrollPos(m_pScrollBar->GetSliderVal());
  }
  for (VornPushButton* button : m_buttons)
    button->SetPosition(button->GetPosX(), m_listHeight + kButtonBelowList);
}

void VornMonsterBox::NotifySizeChange() {
  if (!m_pControlGroup) return;
  m_pControlGroup->ControlSelected(GetId(), this);
  MonSizeChangeHint hint;
  m_pControlGroup->Update(0, this, &hint);
}

// ---- colours ------------------------------------------------------------------

void VornMonsterBox::SetColors(const wxColour& cellBackground, const wxColour& cellText) {
  m_cellBackground = m_scrollBackground = cellBackground;
  m_cellText = cellText;
  if (m_pPanel) m_pPanel->SetBackgroundColour(cellBackground);
  for (auto& column : m_columns) column->LayoutEntries();
  Refresh(false);
}

void VornMonsterBox::SetSepColour(const wxColour& separator) {
  m_separator = m_scrollOutline = separator;
  Refresh(false);
}

wxColour VornMonsterBox::RowBackground(int row) const {
  return row % 2 ? m_cellBackground.ChangeLightness(kAlternateLightness) : m_cellBackground;
}

// ---- drawing ------------------------------------------------------------------

wxRect VornMonsterBox::HeadingRect() const {
  return wxRect(kPanelX, kPanelY - kHeadingHeight, GetWidth() - kPanelWidthLess, kHeadingHeight);
}

void VornMonsterBox::OnDraw(wxDC* dc) {
  VORN_ASSERT(dc);
  if (!dc) return;
  if (IsDirty()) RecalcState();
  const int w = std::max(1, GetWidth()), h = std::max(1, GetHeight());
  if (!m_backBuffer.IsOk() || m_backBuffer.GetWidth() != w || m_backBuffer.GetHeight() != h)
    m_backBuffer = wxBitmap(w, h);
  wxMemoryDC mem(m_backBuffer);
  mem.SetBackground(wxBrush(GetBgColour()));
  mem.Clear();
  // The scroll bar stands in its own column right of the frame.
  if (m_pFrame) DrawStretched(mem, *m_pFrame, wxRect(0, 0, w - kBarWidth, h), kFrameCorner);
  const wxRect strip = HeadingRect();
  if (m_pHeading) DrawStretched(mem, *m_pHeading, strip, kHeadingCorner);
  for (auto& column : m_columns) {
    ColumnHeading* heading = column->GetHeading();
    const wxRect place(strip.x + column->GetX(), strip.y, column->GetWidth(), strip.height);
    heading->SetPlace(place.Intersect(strip), m_separator);
    heading->Draw(&mem);
  }
  if (m_pSpacer && m_pSpacer->IsOk())
    for (VornPushButton* button : m_buttons)
      mem.DrawBitmap(*m_pSpacer, button->GetPosX() - SpacerWidth(), button->GetPosY(), true);
  if (m_bResizable) DrawGrip(mem);
  mem.SelectObject(wxNullBitmap);
  dc->DrawBitmap(m_backBuffer, 0, 0, false);
}

void VornMonsterBox::DrawGrip(wxDC& dc) const {
  // A triangle of 2 x 2 dots in the grip's bottom right corner, clear of
  // the frame's edge and the bar's column.
  const wxRect g = GripRect();
  dc.SetPen(*wxTRANSPARENT_PEN);
  dc.SetBrush(wxBrush(m_separator));
  for (int row = 0; row < 3; ++row)
    for (int col = 2 - row; col < 3; ++col)
      dc.DrawRectangle(g.x + 1 + 3 * col, g.y + 2 + 3 * row, 2, 2);
}
