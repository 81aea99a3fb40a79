#pragma once
// A multi-line edit of three visible lines in a test frame, driven with real
// key and mouse events, and a receiver that keeps the reported texts.
#include <wx/dcmemory.h>

#include <memory>
#include <string>

#include "../ControlTestSupport.h"
#include "vorn/VornMultiEdit.h"

class TextReceiver : public MessageReceiver {
 public:
  explicit TextReceiver(EventLog* log) : m_log(log) {}
  void OnUpdate(unsigned int, VornControl*, VornControlHint* hint) override {
    if (auto* text = dynamic_cast<StringValChanged*>(hint))
      m_log->push_back("text " + text->m_value);
  }

 private:
  EventLog* m_log;
};

class MultiEditFixture : public ::testing::Test {
 protected:
  static constexpr int kAreaX = 4, kAreaY = 3, kAreaWidth = 120, kLines = 3;

  MultiEditFixture() : m_group(&log), m_receiver(&log), m_frame(wxSize(400, 300)) {
    m_group.Register(&m_receiver);
    info.x = kAreaX;
    info.y = kAreaY;
    info.width = kAreaWidth;
    info.colour1 = wxColour(230, 230, 230);
    info.colour2 = wxColour(0, 128, 128);
    info.background = wxColour(40, 44, 52);
    info.font = wxFont(wxFontInfo(11).Family(wxFONTFAMILY_TELETYPE));
    wxBitmap probe(8, 8);
    wxMemoryDC dc(probe);
    dc.SetFont(info.font);
    lineHeight = dc.GetCharHeight();
    info.height = kLines * lineHeight + lineHeight / 2;  // three whole lines and a part
    box = new VornMultiEdit(nullptr, info, 10, 10, m_frame.Get(), 7, true, &m_group);
    box->SetScrollColours(*wxWHITE, wxColour(40, 44, 52), wxColour(0, 160, 160));
  }
  ~MultiEditFixture() override { m_group.DeRegister(&m_receiver); }

  int Width(const std::string& text) {
    wxBitmap probe(8, 8);
    wxMemoryDC dc(probe);
    dc.SetFont(info.font);
    return dc.GetTextExtent(wxString::FromUTF8(text.c_str())).x;
  }

  void Char(int code, bool control = false) {
    wxKeyEvent event(wxEVT_CHAR);
    event.m_keyCode = code;
    event.m_controlDown = control;
    box->GetEventHandler()->ProcessEvent(event);
  }
  void Type(const std::string& text) {
    for (char c : text) Char(c == '\n' ? int(WXK_RETURN) : static_cast<unsigned char>(c));
  }
  void Key(int code, bool shift = false) {
    wxKeyEvent event(wxEVT_KEY_DOWN);
    event.m_keyCode = code;
    event.m_shiftDown = shift;
    box->GetEventHandler()->ProcessEvent(event);
  }
  // A press and release at (x, y) of the text area.
  void ClickText(int x, int y, bool shift = false) {
    Mouse(box, wxEVT_LEFT_DOWN, kAreaX + x, kAreaY + y, shift);
    Mouse(box, wxEVT_LEFT_UP, kAreaX + x, kAreaY + y, shift);
  }
  std::string Text() {
    VornString text;
    box->GetText(text);
    return text;
  }
  std::string Selection() {
    int start, end;
    box->GetSelection(start, end);
    return std::to_string(start) + ".." + std::to_string(end);
  }

  EventLog log;
  VornEditInfo info;
  int lineHeight = 0;
  VornMultiEdit* box = nullptr;  // owned by the frame

 private:
  // The frame goes first, so the box leaves the group while it still exists.
  RecordingGroup m_group;
  TextReceiver m_receiver;
  TestFrame m_frame;
};
