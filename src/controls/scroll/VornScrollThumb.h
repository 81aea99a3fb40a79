#pragma once
// The thumb (tab) of the simple and the list-box scroll bar: its pictures,
// its geometry and its drawing, shared so that both bars hit-test and draw
// from the same arithmetic.
#include <wx/bitmap.h>
#include <wx/colour.h>
#include <wx/dc.h>

#include <memory>

// The cap pieces (made once per colour set) and the six tab images (remade
// whenever the thumb height changes).
class VornScrollThumb {
 public:
  // The tabs for the given track and fraction; nothing happens when they
  // already have the right height.
  void Make(int scrollHeight, double fraction, const wxColour& first, const wxColour& second,
            const wxColour& third);
  // The height of the tabs, 0 before the first Make.
  int GetHeight() const;
  // Value exactly 0 shows the at-top tab, exactly 1 the at-bottom tab.
  const wxBitmap* GetTab(double value, bool hover) const;

 private:
  enum { kTop, kBottom, kTopArrow, kBottomArrow, kPieces };
  enum { kNormal, kAtBottom, kAtTop, kTabs };
  void MakePieces(const wxColour& first, const wxColour& second, const wxColour& third);
  wxBitmap MakeTab(int height, const wxColour& outline, const wxBitmap& top, const wxBitmap& bottom,
                   const wxColour& background) const;

  std::unique_ptr<wxBitmap> m_pieces[2][kPieces];  // normal set, hover set
  std::unique_ptr<wxBitmap> m_tabs[2][kTabs];      // normal three, hover three
};

// The thumb's vertical extent on the track.
struct VornScrollThumbSpan {
  int top = 0;
  int height = 0;
  bool Contains(int y) const { return y >= top && y < top + height; }
};

// The thumb height a track and fraction ask for: trunc(track * fraction), at
// least 29.
int VornScrollThumbHeight(int scrollHeight, double fraction);
// Where the thumb of the given height stands for value.
VornScrollThumbSpan VornScrollThumbAt(int scrollStart, int scrollHeight, int thumbHeight,
                                      double value);
// What a pointer at (x, y) of a bar means: whether it is over the thumb
// (always while dragging) and the value it asks for (the current one unless
// dragging).
struct VornScrollPointer {
  bool over = false;
  double value = 0.0;
};
VornScrollPointer VornScrollPointerAt(const VornScrollThumbSpan& thumb, int scrollHeight,
                                      int barWidth, int x, int y, bool dragging, int startY,
                                      double startValue, double current);
// The value a drag gives: the pointer's travel over the thumb's travel added
// to the value at the press; 0 when the thumb cannot travel.
double VornScrollDragValue(int scrollHeight, int thumbHeight, int pointerY, int startY,
                           double startValue);

// Everything a bar's picture depends on, gathered by its owner.
struct VornScrollBarLook {
  wxRect rect;          // the bar inside the target DC
  wxColour outline;     // separator line
  wxColour background;  // fill
  int scrollStart = 0;
  int scrollHeight = 0;
  bool separator = false;  // draw the line beside the track
  bool left = true;        // the bar stands left of its content
  const wxBitmap* tab = nullptr;
  int thumbTop = 0;
};

// Fills the bar, draws the separator (on the right edge when left, else on
// the left) and copies the tab to the thumb top.
void DrawVornScrollBar(wxDC& dc, const VornScrollBarLook& look);
