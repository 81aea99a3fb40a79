#pragma once
// Edits under test: a fixed-pitch field on a plain fill, the key, character
// and focus events wx would send, and a group that logs selections, double
// clicks, drags and text reports ("sel 7", "dclick 7", "drag 7", "text 12").
#include <wx/clipbrd.h>
#include <wx/dataobj.h>

#include "../ControlTestSupport.h"
#include "vorn/VornEdit.h"

namespace edittest {

constexpr int kId = 7;
const wxColour kText(250, 250, 250), kSelection(0, 0, 200), kFill(10, 20, 30);

inline wxFont Font() {
  return wxFont(wxFontInfo(10).Family(wxFONTFAMILY_TELETYPE));
}

// A field 100x16 at (4, 3) inside a 108x22 control, without a picture.
inline VornEditInfo Info(int width = 100) {
  VornEditInfo info;
  info.x = 4;
  info.y = 3;
  info.width = width;
  info.height = 16;
  info.colour1 = kText;
  info.colour2 = kSelection;
  info.background = kFill;
  info.font = Font();
  return info;
}

class LogGroup : public RecordingValueGroupOf<VornControlGroupValue>, public MessageReceiver {
 public:
  explicit LogGroup(EventLog* log) : RecordingValueGroupOf(log) {
    Register(static_cast<MessageReceiver*>(this));
  }
  ~LogGroup() override { DeRegister(static_cast<MessageReceiver*>(this)); }
  void ControlDoubleClick(unsigned int id, VornControl*) override { Note("dclick", id); }
  void OnUpdate(unsigned int, VornControl* source, VornControlHint* hint) override {
    if (auto* text = dynamic_cast<StringValChanged*>(hint)) {
      m_log->push_back("text " + text->m_value);
      if (auto* edit = dynamic_cast<VornEdit*>(source)) focusSeen = edit->IThinkIHaveFocus();
    }
  }
  bool focusSeen = false;  // the sender's focus flag while reporting
};

inline bool Send(wxWindow* w, wxEvent& e) {
  e.SetEventObject(w);
  return w->GetEventHandler()->ProcessEvent(e);
}

// A key press or release; true when a handler took it (not skipped).
inline bool Key(wxWindow* w, wxEventType type, int code, bool shift = false, bool ctrl = false) {
  wxKeyEvent e(type);
  e.m_keyCode = code;
  e.m_uniChar = code < WXK_START ? code : 0;
  e.m_shiftDown = shift;
  e.m_controlDown = ctrl;
  return Send(w, e);
}
inline void Press(wxWindow* w, int code, bool shift = false) {
  if (!Key(w, wxEVT_KEY_DOWN, code, shift)) Key(w, wxEVT_CHAR, code, shift);
  Key(w, wxEVT_KEY_UP, code, shift);
}
// Ctrl + letter as GTK sends it: the control code in the character event.
inline void Ctrl(wxWindow* w, char letter) {
  Key(w, wxEVT_CHAR, letter - 'a' + 1, false, true);
}
inline void Type(wxWindow* w, const std::string& text) {
  for (char c : text) Press(w, static_cast<unsigned char>(c));
}
inline void Focus(wxWindow* w, bool gained) {
  wxFocusEvent e(gained ? wxEVT_SET_FOCUS : wxEVT_KILL_FOCUS);
  Send(w, e);
}

inline void SetClipboard(const wxString& text) {
  wxClipboardLocker lock;
  wxTheClipboard->SetData(new wxTextDataObject(text));
}
inline wxString GetClipboard() {
  wxClipboardLocker lock;
  wxTextDataObject data;
  wxTheClipboard->GetData(data);
  return data.GetText();
}

// Pixel width of the first n characters of text in the test font.
inline int Width(const wxString& text, size_t n = wxString::npos) {
  wxBitmap bmp(8, 8);
  wxMemoryDC dc(bmp);
  dc.SetFont(Font());
  return dc.GetTextExtent(text.Left(n)).x;
}

// The first and last column holding a pixel near colour c, or -1, -1.
inline std::pair<int, int> ColumnsOf(const wxBitmap& bmp, const wxColour& c) {
  const wxImage image = bmp.ConvertToImage();
  int first = -1, last = -1;
  for (int x = 0; x < image.GetWidth(); ++x)
    for (int y = 0; y < image.GetHeight(); ++y)
      if (std::abs(image.GetRed(x, y) - c.Red()) < 40 &&
          std::abs(image.GetGreen(x, y) - c.Green()) < 40 &&
          std::abs(image.GetBlue(x, y) - c.Blue()) < 40) {
        if (first < 0) first = x;
        last = x;
      }
  return {first, last};
}

class EditTest : public ::testing::Test {
 protected:
  // The group outlives the frame, whose edits deregister from it.
  EventLog log;
  LogGroup group{&log};
  TestFrame frame{wxSize(300, 200)};

  VornEdit* Make(int style, bool editable = true, long wxStyle = 0, int id = kId) {
    VornEditInfo info = Info();
    return new VornEdit(nullptr, info, 0, 0, frame.Get(), id, editable, style, &group, wxStyle);
  }
  std::string Logged() {
    std::string s = Joined(log);
    log.clear();
    return s;
  }
};

}  // namespace edittest
