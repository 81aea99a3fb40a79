// The movie bar and the title bar driven by real events: drags with their
// clamping and notifications, values set by the host, drawing, and moving
// the window under a dragged title bar.
#include "../ControlTestSupport.h"
#include "vorn/VornMovieBar.h"

namespace {

using MovieGroup = RecordingValueGroupOf<VornMovieBarCG>;

struct MovieFixture {
  MovieFixture()
      : start(SolidBitmap(8, 10, wxColour(200, 0, 0))),
        end(SolidBitmap(8, 10, wxColour(0, 0, 200))),
        head(SolidBitmap(8, 30, wxColour(250, 250, 0))) {}
  VornMovieBar* Make(VornControlGroup* g) {
    return new VornMovieBar(&start, &end, &head, 10, 10, 200, 30, frame.Get(), 9, g);
  }
  // Presses at x0, moves to each of xs, releases.
  static void Drag(VornMovieBar* bar, int x0, int y, std::initializer_list<int> xs) {
    Mouse(bar, wxEVT_LEFT_DOWN, x0, y);
    for (int x : xs) Mouse(bar, wxEVT_MOTION, x, y);
    Mouse(bar, wxEVT_LEFT_UP, xs.size() ? *(xs.end() - 1) : x0, y);
  }
  wxBitmap start, end, head;
  EventLog log;
  MovieGroup group{&log};
  TestFrame frame{wxSize(300, 100)};
};

TEST(MovieBar, TrackFollowsTheImages) {
  MovieFixture f;
  VornMovieBar* bar = f.Make(&f.group);
  EXPECT_EQ(bar->GetTrackStart(), 8);
  EXPECT_EQ(bar->GetTrackEnd(), 200 - 8 - 8);
  EXPECT_EQ(bar->GetPlayhead(), 8);
  EXPECT_EQ(bar->GetStartMarker(), 8);
  EXPECT_EQ(bar->GetEndMarker(), 184);
  EXPECT_EQ(bar->GetValue(), 0.0);
  EXPECT_EQ(bar->GetSubDuration(), 1.0);
}

TEST(MovieBar, DragsAreClampedAndReported) {
  struct Case {
    const char* what;
    int pressX, pressY;
    std::initializer_list<int> moves;
    int playhead, start, end;
    const char* log;
  };
  // Before each drag: start marker at 52, end at 140, playhead at 96; the
  // start marker spans x 44..52 and the end marker 148..156, both below y 20.
  const Case cases[] = {
      {"playhead far right", 100, 5, {400}, 140, 52, 140, "sel 102 drag 9 unsel 102"},
      {"playhead far left", 100, 5, {-300}, 52, 52, 140, "sel 102 drag 9 unsel 102"},
      {"start past the end pushes the playhead", 48, 25, {500}, 140, 140, 140, "drag 9 shape 9"},
      {"start before the track", 48, 25, {-50}, 96, 8, 140, "shape 9"},
      {"end before the start pushes the playhead", 152, 25, {-100}, 52, 52, 52, "drag 9 shape 9"},
      {"end past the track", 152, 25, {600}, 96, 52, 184, "shape 9"},
      {"a press on the band moves nothing", 120, 15, {10}, 96, 52, 140, ""},
      {"a press on a marker's border misses it", 44, 25, {0}, 96, 52, 140, ""},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    MovieFixture f;
    VornMovieBar* bar = f.Make(&f.group);
    bar->SetStart(0.25);
    bar->SetEnd(0.75);
    bar->SetValue(0.5);
    ASSERT_EQ(bar->GetStartMarker(), 52);
    ASSERT_EQ(bar->GetEndMarker(), 140);
    ASSERT_EQ(bar->GetPlayhead(), 96);
    MovieFixture::Drag(bar, c.pressX, c.pressY, c.moves);
    EXPECT_EQ(bar->GetPlayhead(), c.playhead);
    EXPECT_EQ(bar->GetStartMarker(), c.start);
    EXPECT_EQ(bar->GetEndMarker(), c.end);
    EXPECT_EQ(Joined(f.log), c.log);
    EXPECT_FALSE(bar->IsDragging());
    EXPECT_GE(bar->GetValue(), 0.0);
    EXPECT_LE(bar->GetValue(), 1.0);
  }
}

TEST(MovieBar, ReportsOnlyToAMovieBarGroup) {
  MovieFixture f;
  EventLog plainLog;
  RecordingValueGroup plain(&plainLog);
  VornMovieBar* bar = f.Make(static_cast<VornControlGroup1ofN*>(&plain));
  MovieFixture::Drag(bar, 12, 5, {60});
  EXPECT_EQ(bar->GetPlayhead(), 56);
  EXPECT_EQ(Joined(plainLog), "");
  bar->Destroy();
}

TEST(MovieBar, HostValuesClampAndSubDuration) {
  MovieFixture f;
  VornMovieBar* bar = f.Make(&f.group);
  bar->SetStart(-1.0);
  bar->SetEnd(2.0);
  EXPECT_EQ(bar->GetStart(), 0.0);
  EXPECT_EQ(bar->GetEnd(), 1.0);
  bar->SetStart(0.25);
  bar->SetEnd(0.75);
  EXPECT_DOUBLE_EQ(bar->GetSubDuration(), 0.5);
  EXPECT_EQ(bar->GetStartMarker(), 8 + 44);
  EXPECT_EQ(bar->GetEndMarker(), 8 + 132);
  bar->SetValue(7.0);
  EXPECT_EQ(bar->GetPlayhead(), bar->GetEndMarker());
  EXPECT_EQ(bar->GetValue(), 1.0);
  EXPECT_EQ(Joined(f.log), "");  // the host's own changes are not reported
  bar->Reset();
  EXPECT_EQ(bar->GetStartMarker(), 8);
  EXPECT_EQ(bar->GetEndMarker(), 184);
  EXPECT_EQ(bar->GetPlayhead(), 8);
  EXPECT_EQ(bar->GetSubDuration(), 1.0);
}

TEST(MovieBar, DrawsTrackRangePlayedPartAndImages) {
  MovieFixture f;
  VornMovieBar* bar = f.Make(&f.group);
  const wxColour track(10, 20, 30), range(40, 50, 60), played(70, 80, 90);
  bar->SetColours(track, range, played);
  bar->SetStart(0.25);  // 52
  bar->SetEnd(0.75);    // 140
  bar->SetValue(0.5);   // 96
  const wxBitmap shot = Render(bar, 200, 30);
  const int band = 15;
  EXPECT_EQ(PixelAt(shot, 20, band), track);
  EXPECT_EQ(PixelAt(shot, 130, band), range);
  EXPECT_EQ(PixelAt(shot, 70, band), played);
  EXPECT_EQ(PixelAt(shot, 98, 5), wxColour(250, 250, 0));  // playhead
  EXPECT_EQ(PixelAt(shot, 48, 25), wxColour(200, 0, 0));   // start marker left of 52
  EXPECT_EQ(PixelAt(shot, 152, 25), wxColour(0, 0, 200));  // end marker past 148
  EXPECT_EQ(PixelAt(shot, 20, 2), bar->GetBackgroundColour());
}

TEST(TitleBar, DraggingMovesTheWindowByThePointersMotion) {
  TestFrame frame(wxSize(300, 200));
  frame->Move(100, 100);
  PumpEvents();
  auto* bar = new VornTitleBar("Title", 0, 0, 300, 20, frame.Get(), 5);
  EXPECT_EQ(bar->GetGroup(), nullptr);
  EXPECT_EQ(bar->GetMovedWindow(), frame.Get());
  const wxPoint at = frame->GetPosition();
  Mouse(bar, wxEVT_LEFT_DOWN, 10, 5);
  EXPECT_TRUE(bar->IsDragging());
  Mouse(bar, wxEVT_MOTION, 30, 12);
  EXPECT_EQ(frame->GetPosition(), at + wxPoint(20, 7));
  Mouse(bar, wxEVT_LEFT_UP, 30, 12);
  EXPECT_FALSE(bar->IsDragging());
  Mouse(bar, wxEVT_MOTION, 80, 40);
  EXPECT_EQ(frame->GetPosition(), at + wxPoint(20, 7));
  // Another window can be the one that moves.
  auto* child = new wxWindow(frame.Get(), wxID_ANY, wxPoint(50, 50), wxSize(10, 10));
  bar->SetMovedWindow(child);
  Mouse(bar, wxEVT_LEFT_DOWN, 10, 5);
  Mouse(bar, wxEVT_MOTION, 13, 1);
  Mouse(bar, wxEVT_LEFT_UP, 13, 1);
  EXPECT_EQ(child->GetPosition(), wxPoint(53, 46));
}

TEST(TitleBar, DrawsItsTitleInTheForegroundColour) {
  TestFrame frame(wxSize(300, 200));
  auto* bar = new VornTitleBar("Title bar", 0, 0, 200, 24, frame.Get(), 5);
  bar->SetBackgroundColour(wxColour(30, 30, 30));
  bar->SetFgColour(wxColour(255, 255, 255));
  bar->SetTitlePos(4, 4);
  const wxBitmap shot = Render(bar, 200, 24);
  EXPECT_GT(CountNear(shot, wxColour(255, 255, 255), 40), 10);
  EXPECT_EQ(PixelAt(shot, 190, 20), wxColour(30, 30, 30));
  bar->SetTitle("");
  EXPECT_TRUE(Uniform(Render(bar, 200, 24), wxColour(30, 30, 30)));
}

}  // namespace
