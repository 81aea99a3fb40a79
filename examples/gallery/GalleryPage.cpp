// The log, the context, the page base and the page registry.
#include <wx/dcmemory.h>

#include <algorithm>

#include "Gallery.h"

// ---- GalleryLog ------------------------------------------------------------

void GalleryLog::Attach(wxListBox* list) {
  m_pList = list;
  if (!m_pList) return;
  m_pList->Clear();
  for (const Entry& entry : m_entries) m_pList->Append(entry.Display());
  if (!m_entries.empty()) m_pList->EnsureVisible(static_cast<int>(m_entries.size()) - 1);
}

wxString GalleryLog::Entry::Display() const {
  // U+00D7, the multiplication sign.
  return count > 1 ? text + wxString::FromUTF8("  \xC3\x97") + wxString::Format("%d", count) : text;
}

// A run of identical lines (a drag, say) becomes one line with a count.
void GalleryLog::Add(const wxString& line) {
  if (!m_entries.empty() && m_entries.back().text == line) {
    ++m_entries.back().count;
    if (m_pList && m_pList->GetCount() > 0)
      m_pList->SetString(m_pList->GetCount() - 1, m_entries.back().Display());
    return;
  }
  m_entries.push_back(Entry{line, 1});
  if (m_entries.size() > kMaxLines) m_entries.erase(m_entries.begin());
  if (!m_pList) return;
  if (m_pList->GetCount() >= kMaxLines) m_pList->Delete(0);
  m_pList->Append(line);
  m_pList->EnsureVisible(m_pList->GetCount() - 1);
}

void GalleryLog::Clear() {
  m_entries.clear();
  if (m_pList) m_pList->Clear();
}

std::vector<wxString> GalleryLog::Lines() const {
  std::vector<wxString> lines;
  for (const Entry& entry : m_entries) lines.push_back(entry.Display());
  return lines;
}

// ---- GalleryContext --------------------------------------------------------

wxString GalleryContext::Msg(const char* key) const {
  return wxString::FromUTF8(m_assets.GetMessage(key).c_str());
}

wxColour GalleryContext::Colour(const char* name) const {
  wxColour colour;
  m_assets.GetColour(name, colour);
  return colour;
}

wxFont GalleryContext::Font(const char* name) const {
  wxFont font;
  m_assets.GetFont(name, font);
  return font;
}

const VornwxBitmapCache* GalleryContext::Images(const char* name) {
  const VornwxBitmapCache* cache = nullptr;
  if (!m_assets.LoadImagesCached(name, cache)) {
    m_log.Add(wxString::Format("Cannot load the images of %s", name));
    return nullptr;
  }
  return cache;
}

// ---- GalleryPage -----------------------------------------------------------

GalleryPage::GalleryPage(wxWindow* parent, GalleryContext& ctx)
    : VornPanel(0, 0, parent, wxID_ANY), m_ctx(ctx) {
  SetBgColour(ctx.Colour("panel"));
}

void GalleryPage::OnDraw(wxDC* dc) {
  VornWindow::OnDraw(dc);
  DrawPage(*dc);
}

void SendMouse(wxWindow* window, wxEventType type, int x, int y) {
  wxMouseEvent event(type);
  event.SetEventObject(window);
  event.SetId(window->GetId());
  event.m_x = x;
  event.m_y = y;
  event.m_leftDown = type == wxEVT_LEFT_DOWN;
  window->GetEventHandler()->ProcessEvent(event);
}

void ClickOn(wxWindow* window) {
  SendMouse(window, wxEVT_ENTER_WINDOW);
  SendMouse(window, wxEVT_LEFT_DOWN);
  SendMouse(window, wxEVT_LEFT_UP);
  SendMouse(window, wxEVT_LEAVE_WINDOW);
}

int GalleryPage::DrawText(wxDC& dc, const wxString& text, int x, int y, const char* font,
                          const char* colour) {
  dc.SetFont(m_ctx.Font(font));
  dc.SetTextForeground(m_ctx.Colour(colour));
  dc.SetBackgroundMode(wxBRUSHSTYLE_TRANSPARENT);
  dc.DrawText(text, x, y);
  return dc.GetTextExtent(text).y;
}

int GalleryPage::DrawCentred(wxDC& dc, const wxString& text, int centreX, int y, const char* font,
                             const char* colour) {
  dc.SetFont(m_ctx.Font(font));
  const wxSize extent = dc.GetTextExtent(text);
  return DrawText(dc, text, centreX - extent.x / 2, y, font, colour);
}

// ---- screenshots without the screen ------------------------------------------

void RenderToolkitWindows(wxWindow* root, wxDC& dc, const wxPoint& at) {
  if (!root->IsShown()) return;
  if (auto* vorn = dynamic_cast<VornWindow*>(root)) {
    const wxPoint base = dc.GetDeviceOrigin();
    dc.SetDeviceOrigin(base.x + at.x, base.y + at.y);
    dc.SetClippingRegion(0, 0, root->GetSize().x, root->GetSize().y);
    vorn->OnDraw(&dc);
    dc.DestroyClippingRegion();
    dc.SetDeviceOrigin(base.x, base.y);
  }
  for (wxWindow* child : root->GetChildren()) {
    if (!child->IsTopLevel()) RenderToolkitWindows(child, dc, at + child->GetPosition());
  }
}

// ---- registry --------------------------------------------------------------

std::vector<GalleryPageInfo>& GalleryPages() {
  static std::vector<GalleryPageInfo> pages;
  return pages;
}

GalleryPageRegistrar::GalleryPageRegistrar(GalleryPageInfo info) {
  auto& pages = GalleryPages();
  pages.push_back(std::move(info));
  std::stable_sort(
      pages.begin(), pages.end(),
      [](const GalleryPageInfo& a, const GalleryPageInfo& b) { return a.order < b.order; });
}

// ---- GalleryReceiver -------------------------------------------------------

void GalleryReceiver::OnUpdate(unsigned int id, VornControl* source, VornControlHint* hint) {
  if (describe) {
    const wxString what = describe(hint);
    if (what.empty()) return;
    m_log.Add(wxString::Format("Update  %s: %s", m_namer(id), what));
    if (described) described();
    return;
  }
  // Value hints carry id 0; name them after the control that sent them.
  if (id == 0 && source) id = static_cast<unsigned int>(source->GetId());
  wxString what = "VornControlHint";
  if (auto* value = dynamic_cast<IntValChanged*>(hint))
    what = wxString::Format("IntValChanged %d", value->m_value);
  else if (auto* moment = dynamic_cast<VornMomentHint*>(hint))
    what = moment->m_bFirstPress ? "VornMomentHint (first press)" : "VornMomentHint (repeat)";
  else if (auto* real = dynamic_cast<RealValChanged*>(hint))
    what = wxString::Format("RealValChanged %g", real->m_value);
  else if (auto* changing = dynamic_cast<RealValChanging*>(hint))
    what = wxString::Format("RealValChanging %g", changing->m_value);
  else if (auto* text = dynamic_cast<StringValChanged*>(hint))
    what = "StringValChanged \"" + wxString::FromUTF8(text->m_value.c_str()) + "\"";
  m_log.Add(wxString::Format("Update  %s: %s", m_namer(id), what));
}
