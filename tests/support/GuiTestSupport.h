#pragma once
// Helpers for tests that run inside the wxApp started by gui_main.cpp.
#include <wx/wx.h>

// A shown top-level frame for the test's windows, destroyed at scope end.
class TestFrame {
 public:
  explicit TestFrame(const wxSize& size = wxSize(400, 300));
  ~TestFrame();
  wxFrame* Get() const { return m_frame; }
  wxFrame* operator->() const { return m_frame; }

 private:
  wxFrame* m_frame;
};

// Lets wx process pending events and idle work.
void PumpEvents();

// The pixel at (x, y) of a bitmap, read through wxImage.
wxColour PixelAt(const wxBitmap& bmp, int x, int y);

// Mouse events positioned at (x, y) in window's client coordinates, with the
// object and id set as wx would.
wxMouseEvent MakeMouseEvent(wxWindow* window, wxEventType type, int x, int y,
                            bool shift = false, bool alt = false);
