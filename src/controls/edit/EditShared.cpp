// Caret mapping, word selection, clipboard and timers of the edits.
#include "EditShared.h"

#include <wx/clipbrd.h>
#include <wx/dataobj.h>

#include <cctype>

namespace VornEditShared {

int PrefixWidth(wxDC& dc, const wxString& text, int count) {
  const int length = static_cast<int>(text.length());
  if (count <= 0) return 0;
  if (count > length) count = length;
  wxCoord w = 0, h = 0;
  dc.GetTextExtent(text.Left(static_cast<size_t>(count)), &w, &h);
  return w;
}

int MapXToCharacter(const wxString& text, int x, wxDC& dc) {
  const int length = static_cast<int>(text.length());
  const int full = PrefixWidth(dc, text, length);
  if (x >= full) return length;
  // Walk down from the end; each boundary owns the span from the midpoint on
  // its left up to the midpoint on its right.
  int right = full;     // W(k + 1)
  int upperMid = full;  // the previous midpoint
  for (int k = length - 1; k >= 0; --k) {
    const int left = PrefixWidth(dc, text, k);
    const int mid = (left + right) / 2;
    if (mid <= x && x <= upperMid) return k + 1;
    upperMid = mid;
    right = left;
  }
  return 0;
}

int CharacterUnderX(const wxString& text, int x, wxDC& dc) {
  if (x < 0) return -1;
  const int length = static_cast<int>(text.length());
  for (int i = 0; i < length; ++i)
    if (x < PrefixWidth(dc, text, i + 1)) return i;
  return -1;
}

bool IsBlank(wxUniChar c) {
  const wxUint32 code = c.GetValue();
  return code < 256 && std::isspace(static_cast<int>(code)) != 0;
}

bool WordAt(const wxString& text, int index, int& start, int& end) {
  const int length = static_cast<int>(text.length());
  if (index < 0 || index >= length || IsBlank(text[static_cast<size_t>(index)])) return false;
  int s = index, e = index + 1;
  while (s > 0 && !IsBlank(text[static_cast<size_t>(s - 1)])) --s;
  while (e < length && !IsBlank(text[static_cast<size_t>(e)])) ++e;
  start = s;
  end = e;
  return true;
}

bool CopyToClipboard(const wxString& text) {
  wxClipboardLocker lock;
  if (!lock) return false;
  return wxTheClipboard->SetData(new wxTextDataObject(text));
}

bool PasteFromClipboard(wxString& out) {
  wxClipboardLocker lock;
  if (!lock) return false;
  if (!wxTheClipboard->IsSupported(wxDF_UNICODETEXT) && !wxTheClipboard->IsSupported(wxDF_TEXT))
    return false;
  wxTextDataObject data;
  if (!wxTheClipboard->GetData(data)) return false;
  out = data.GetText();
  return true;
}

void CaretBlink::Start() {
  m_bPhase = true;
  m_timer.Start(kPeriodMs, wxTIMER_CONTINUOUS);
}

void CaretBlink::Stop() {
  m_timer.Stop();
}

void DragScroll::Arm(const wxMouseEvent& motion) {
  m_motion = motion;
  m_timer.StartOnce(kDelayMs);
}

void DragScroll::Cancel() {
  m_timer.Stop();
}

}  // namespace VornEditShared
