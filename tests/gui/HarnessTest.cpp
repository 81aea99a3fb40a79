// The harness itself: a real frame with a child window whose drawing is read
// back pixel by pixel.
#include <gtest/gtest.h>
#include <wx/dcmemory.h>
#include <wx/wx.h>

#include "GuiTestSupport.h"

namespace {
class Quadrants : public wxWindow {
 public:
  explicit Quadrants(wxWindow* parent) : wxWindow(parent, wxID_ANY, wxPoint(0, 0), wxSize(40, 20)) {}
  void Draw(wxDC& dc) {
    dc.SetPen(*wxTRANSPARENT_PEN);
    dc.SetBrush(wxBrush(wxColour(200, 30, 40)));
    dc.DrawRectangle(0, 0, 20, 20);
    dc.SetBrush(wxBrush(wxColour(10, 90, 220)));
    dc.DrawRectangle(20, 0, 20, 20);
  }
};
}  // namespace

TEST(Harness, ChildWindowDrawsIntoMemoryDC) {
  TestFrame frame;
  auto* child = new Quadrants(frame.Get());
  ASSERT_TRUE(child->GetParent() == frame.Get());

  wxBitmap bmp(40, 20);
  {
    wxMemoryDC dc(bmp);
    dc.SetBackground(*wxWHITE_BRUSH);
    dc.Clear();
    child->Draw(dc);
  }
  EXPECT_EQ(PixelAt(bmp, 5, 5), wxColour(200, 30, 40));
  EXPECT_EQ(PixelAt(bmp, 19, 19), wxColour(200, 30, 40));
  EXPECT_EQ(PixelAt(bmp, 20, 0), wxColour(10, 90, 220));
  EXPECT_EQ(PixelAt(bmp, 39, 10), wxColour(10, 90, 220));
}
