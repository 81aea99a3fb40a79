// The pop-up menu: a borderless frame that lays its entries out in rows,
// routes the pointer to them, keeps the radio entries one-of-N and asks its
// pop-up button to close it.
#include "vorn/VornMenu.h"

#include <wx/dcbuffer.h>
#include <wx/dcclient.h>

#include <algorithm>
#include <cstdio>

#include "MenuTexts.h"
#include "vorn/VornAssert.h"
#include "vorn/VornControl.h"
#include "vorn/VornControlGroup.h"

using namespace vorn_menu_texts;

namespace {
// A borderless tool window above its owner, without a task-bar entry.
constexpr long kMenuStyle = wxCLIP_CHILDREN | wxBORDER_NONE | wxFULL_REPAINT_ON_RESIZE |
                            wxFRAME_TOOL_WINDOW | wxFRAME_NO_TASKBAR | wxSTAY_ON_TOP;
constexpr int kWidthPadding = 20;

wxSize MeasureText(const wxString& text, const wxFont& font) {
  wxBitmap scratch(1, 1);
  wxMemoryDC dc(scratch);
  if (font.IsOk()) dc.SetFont(font);
  wxSize extent = dc.GetTextExtent(text);
  if (extent.y <= 0) extent.y = dc.GetCharHeight();
  return extent;
}

wxColour Blend(const wxColour& a, const wxColour& b, double t) {
  auto mix = [t](int x, int y) { return static_cast<unsigned char>(x + (y - x) * t); };
  return wxColour(mix(a.Red(), b.Red()), mix(a.Green(), b.Green()), mix(a.Blue(), b.Blue()));
}
}  // namespace

wxBEGIN_EVENT_TABLE(VornMenu, wxFrame) EVT_LEFT_DOWN(VornMenu::OnLeftDownHdlr)
    EVT_LEFT_DCLICK(VornMenu::OnLeftDownHdlr) EVT_LEFT_UP(VornMenu::OnLeftUpHdlr)
        EVT_MOTION(VornMenu::OnMouseMoveHdlr) EVT_PAINT(VornMenu::OnPaint)
            EVT_ERASE_BACKGROUND(VornMenu::OnEraseBackground) EVT_KILL_FOCUS(VornMenu::OnKillFocus)
                EVT_MOUSE_CAPTURE_LOST(VornMenu::OnCaptureLost) wxEND_EVENT_TABLE()

                    VornMenu::VornMenu() = default;

VornMenu::VornMenu(std::vector<MENUITEM>& items, const VornwxBitmapCache* marks, wxColour first,
                   wxColour second, wxColour third, wxColour fourth, wxFont firstFont,
                   wxFont secondFont, int x, int y, VornControlGroup* group, wxWindow* parent,
                   int id, long style) {
  Create(items, marks, first, second, third, fourth, firstFont, secondFont, x, y, group, parent, id,
         style);
}

VornMenu::~VornMenu() {
  if (HasCapture()) ReleaseMouse();
  m_pPopUpButton = nullptr;
  m_entries.clear();
}

bool VornMenu::Destroy() {
  if (HasCapture()) ReleaseMouse();
  m_pPopUpButton = nullptr;
  m_entries.clear();
  return wxFrame::Destroy();
}

bool VornMenu::Create(std::vector<MENUITEM>& items, const VornwxBitmapCache* marks, wxColour first,
                      wxColour second, wxColour third, wxColour fourth, wxFont firstFont,
                      wxFont secondFont, int x, int y, VornControlGroup* group, wxWindow* parent,
                      int id, long style) {
  m_items = items;
  m_pMarks = marks;
  m_first = first;
  m_second = second;
  m_third = third;
  m_fourth = fourth;
  m_firstFont = firstFont;
  m_secondFont = secondFont;
  m_pGroup = group;
  if (!wxFrame::Create(parent, id, wxEmptyString, wxPoint(x, y), wxDefaultSize, kMenuStyle | style))
    return false;
  SetBackgroundStyle(wxBG_STYLE_PAINT);
  SetBackgroundColour(first);
  SetForegroundColour(first);
  SetupMenu();
  CreateEntries();
  return true;
}

// ---- layout ---------------------------------------------------------------------

void VornMenu::SetupMenu() {
  m_rows = static_cast<int>(m_items.size()) + 1;
  std::size_t longest = 0;
  for (std::size_t i = 1; i < m_items.size(); ++i)
    if (m_items[i].text.length() > m_items[longest].text.length()) longest = i;
  if (m_firstFont.IsOk()) SetFont(m_firstFont);
  const wxSize extent =
      MeasureText(m_items.empty() ? wxString() : m_items[longest].text, m_firstFont);
  m_itemHeight = extent.y;
  m_width = extent.x + kWidthPadding;
  ApplyFrameSize();
  Hide();
  m_selected = 0;
}

void VornMenu::ApplyFrameSize() {
  // A window cannot be empty; a menu without rows keeps one pixel.
  SetClientSize(std::max(m_width, 1), std::max(FrameHeight(), 1));
}

std::unique_ptr<VornMenuItem> VornMenu::MakeEntry(wxChar kind, const wxString& label, int id,
                                                  VornControlGroup* group, int y) {
  std::unique_ptr<VornMenuItem> entry;
  wxColour normal = m_first;
  wxFont font = m_secondFont;
  switch (kind) {
    case '@':
      entry = std::make_unique<VornMenuTitleEntry>();
      normal = m_third;
      font = m_firstFont;
      id = -1;
      group = nullptr;
      break;
    case '%':
      entry = std::make_unique<VornMenuTextEntry>();
      break;
    case '*':
      entry = std::make_unique<VornMenuRadioEntry>();
      break;
    case '-':
      entry = std::make_unique<VornMenuBreakEntry>();
      font = wxNullFont;
      id = -1;
      group = nullptr;
      break;
    default:
      return nullptr;
  }
  if (group && FindItem(id) >= 0) {
    // A group holds one entry per id: a repeated id in a menu text shows
    // its row but cannot report it.
    std::fprintf(stderr, "WARNING : menu id %d used twice; the second entry reports nothing\n", id);
    group = nullptr;
  }
  entry->Create(this, 0, y, m_width, m_itemHeight, id, group, m_pMarks);
  entry->SetColours(normal, m_fourth, m_second);
  if (font.IsOk()) entry->SetFont(font);
  entry->SetText(label);
  return entry;
}

void VornMenu::CreateEntries() {
  m_entries.clear();
  for (std::size_t i = 0; i < m_items.size(); ++i) {
    const wxString& text = m_items[i].text;
    if (text.empty()) continue;
    auto entry = MakeEntry(text[0], text.Mid(1), m_items[i].id, m_pGroup,
                           static_cast<int>(i) * m_itemHeight);
    if (entry) m_entries.push_back(std::move(entry));
  }
}

void VornMenu::Append(wxChar kind, const wxString& label, int id, VornControlGroup* group) {
  const wxSize extent = MeasureText(label, m_secondFont);
  m_itemHeight = std::max(m_itemHeight, extent.y);
  if (extent.x + kWidthPadding > m_width) {
    m_width = extent.x + kWidthPadding;
    // Every row spans the menu, so the pointer finds it anywhere across.
    for (auto& entry : m_entries) entry->SetWidth(m_width);
  }
  auto entry = MakeEntry(kind, label, id, group ? group : m_pGroup, (m_rows - 1) * m_itemHeight);
  if (entry) m_entries.push_back(std::move(entry));
  ++m_rows;
  ApplyFrameSize();
  Refresh(false);
}

void VornMenu::AppendSelectItem(wxString text, int id, VornControlGroup* group) {
  Append('%', text, id, group);
}

void VornMenu::AppendRadioItem(wxString text, int id, VornControlGroup* group) {
  Append('*', text, id, group);
}

void VornMenu::AppendLineBreak() {
  Append('-', wxString(), -1, nullptr);
}

void VornMenu::RemoveEntry(std::size_t position) {
  int x = 0, y = 0;
  m_entries[position]->GetPosition(x, y);
  m_entries.erase(m_entries.begin() + static_cast<std::ptrdiff_t>(position));
  for (auto& entry : m_entries)
    if (entry->GetPosY() > y) entry->SetPosition(0, entry->GetPosY() - m_itemHeight);
  m_rows = std::max(1, m_rows - 1);
  ApplyFrameSize();
  Refresh(false);
}

void VornMenu::DeleteItemPos(int position) {
  VORN_ASSERT_TEXT(position >= 0 && position < GetCount(), kPositionInRange);
  if (position < 0 || position >= GetCount()) return;
  RemoveEntry(static_cast<std::size_t>(position));
}

void VornMenu::DeleteItemID(int id) {
  const int position = FindItem(id);
  if (position >= 0) RemoveEntry(static_cast<std::size_t>(position));
}

void VornMenu::ClearAll() {
  m_entries.clear();
  m_rows = 1;
  ApplyFrameSize();
  Refresh(false);
}

int VornMenu::FindItem(int id) const {
  for (std::size_t i = 0; i < m_entries.size(); ++i)
    if (m_entries[i]->GetId() == static_cast<unsigned int>(id)) return static_cast<int>(i);
  return -1;
}

VornMenuItem* VornMenu::GetEntry(int position) const {
  return position >= 0 && position < GetCount() ? m_entries[position].get() : nullptr;
}

void VornMenu::SetItemText(int id, wxString text) {
  if (VornMenuItem* entry = GetEntry(FindItem(id))) {
    entry->SetText(text);
    RedrawNow();
  }
}

// ---- selection and showing ------------------------------------------------------------

void VornMenu::SetSelected(int id) {
  if (m_pGroup) {
    m_pGroup->SetOnControl(static_cast<unsigned int>(m_selected), false, nullptr);
    m_pGroup->SetOnControl(static_cast<unsigned int>(id), true, nullptr);
  } else {
    for (auto& entry : m_entries)
      if (dynamic_cast<VornMenuRadioEntry*>(entry.get()))
        entry->SetOn(entry->GetId() == static_cast<unsigned int>(id));
  }
  m_selected = id;
  RedrawNow();
}

void VornMenu::OnShow() {
  for (auto& entry : m_entries) entry->Reset();
}

bool VornMenu::Show(bool show) {
  OnShow();
  const wxPoint at = GetPosition();
  const bool changed = wxFrame::Show(show);
  // wxGTK's first show of a frame without decorations loses the size it
  // was given; give it again once the frame is mapped.
  if (show) SetSize(at.x, at.y, std::max(m_width, 1), std::max(FrameHeight(), 1));
  return changed;
}

void VornMenu::ShowMenu(bool show) {
  if (HasCapture()) ReleaseMouse();
  Show(show);
}

void VornMenu::ClosePopUp() {
  if (m_pPopUpButton) m_pPopUpButton->Reset();
}

// ---- pointer -----------------------------------------------------------------------------

bool VornMenu::InFrame(int x, int y) const {
  return x > 0 && x < FrameWidth() && y > 0 && y < FrameHeight();
}

void VornMenu::OnMouseButton() {}

void VornMenu::OnMouseMove(int x, int y) {
  // Outside the frame every entry sees the point outside itself, so no row
  // stays lit once the pointer has left the menu.
  for (auto& entry : m_entries) entry->Status(x, y);
  RedrawNow();
}

void VornMenu::OnLeftUp(int x, int y) {
  if (!InFrame(x, y)) return;
  int chosen = -1;
  bool reported = false, radio = false;
  // By index: a host's reaction to the choice may change the entries.
  for (std::size_t i = 0; i < m_entries.size(); ++i) {
    VornMenuItem* entry = m_entries[i].get();
    const bool isRadio = dynamic_cast<VornMenuRadioEntry*>(entry) != nullptr;
    const int id = static_cast<int>(entry->GetId());
    if (entry->InSide(x, y)) {
      chosen = id;
      reported = true;
      radio = isRadio;
      break;
    }
  }
  if (!reported) return;
  // The radio entry just chosen is on; the one before it goes off.
  if (radio && chosen != m_selected) SetSelected(chosen);
  // A choice closes the menu.
  ClosePopUp();
}

void VornMenu::OnLeftDown(int x, int y) {
  const bool outside = x < 0 || x > FrameWidth() || y < 0 || y > FrameHeight();
  if (outside && m_pPopUpButton) m_pPopUpButton->Reset();
}

void VornMenu::OnLeftDownHdlr(wxMouseEvent& event) {
  OnLeftDown(event.GetX(), event.GetY());
}

void VornMenu::OnLeftUpHdlr(wxMouseEvent& event) {
  OnLeftUp(event.GetX(), event.GetY());
}

void VornMenu::OnMouseMoveHdlr(wxMouseEvent& event) {
  OnMouseMove(event.GetX(), event.GetY());
}

void VornMenu::OnKillFocus(wxFocusEvent&) {
  if (HasCapture()) ReleaseMouse();
  ClosePopUp();
}

void VornMenu::OnCaptureLost(wxMouseCaptureLostEvent&) {
  // Another window took the pointer: the menu can no longer see a click
  // outside, so it closes.
  CallAfter([this] { ClosePopUp(); });
}

// ---- drawing ----------------------------------------------------------------------------

void VornMenu::OnPaint(wxPaintEvent&) {
  wxPaintDC dc(this);
  OnDraw(&dc);
}

void VornMenu::OnEraseBackground(wxEraseEvent&) {}

void VornMenu::RedrawNow() {
  if (!IsShown()) return;
  wxClientDC dc(this);
  OnDraw(&dc);
}

void VornMenu::OnDraw(wxDC* dc) {
  VORN_ASSERT(dc != nullptr);
  const int w = FrameWidth(), h = FrameHeight();
  if (!dc || w <= 0 || h <= 0) return;
  wxBitmap buffer(w, h);
  {
    wxMemoryDC mem(buffer);
    mem.SetBackground(wxBrush(m_first));
    mem.Clear();
    for (auto& entry : m_entries) entry->OnDraw(&mem);
    // A quiet outline between the background and the text colour.
    mem.SetPen(wxPen(Blend(m_first, m_fourth, 0.35)));
    mem.SetBrush(*wxTRANSPARENT_BRUSH);
    mem.DrawRectangle(0, 0, w, h);
  }
  dc->DrawBitmap(buffer, 0, 0, false);
}
