#pragma once
// The time line and the window-moving strip: VornMovieBar is a horizontal
// track with a playhead and two markers bounding a sub-range, its value the
// playhead's place inside that range; VornTitleBar moves its parent window
// when dragged.
#include <wx/bitmap.h>
#include <wx/colour.h>
#include <wx/font.h>

#include "vorn/VornControl.h"
#include "vorn/VornControlGroup.h"

// The group a movie bar reports to: press and release of the playhead
// (ControlSelected / ControlUnSelected with kPressId), every move of the
// playhead (ControlDrag) and every move of a marker (ControlShapeChanged).
// A bar in any other kind of group reports nothing.
class VornMovieBarCG : public VornControlGroupValue {
 public:
  static constexpr unsigned int kPressId = 102;
};

// Where the bar's parts lie, in control pixels; both hit-testing and
// drawing read it.
struct VornMovieBarLayout {
  wxRect playhead;
  wxRect startMarker;
  wxRect endMarker;
  int trackLeft = 0;   // the track band: from the track start...
  int trackRight = 0;  // ...to the playhead's right edge at the track end
  int rangeLeft = 0;   // the sub-range between the markers
  int rangeRight = 0;
  int playedRight = 0;  // the played part: range start to the playhead's middle
};

class VornMovieBar : public VornControl {
 public:
  VornMovieBar() = default;
  VornMovieBar(const wxBitmap* startMarker, const wxBitmap* endMarker, const wxBitmap* playhead,
               int x, int y, int w, int h, wxWindow* parent, int id, VornControlGroup* group,
               long style = 0);
  ~VornMovieBar() override;

  // --- construction
  // The images are borrowed. The track runs from the start marker's width
  // to w less the playhead's and the end marker's widths.
  virtual bool Create(const wxBitmap* startMarker, const wxBitmap* endMarker,
                      const wxBitmap* playhead, int x, int y, int w, int h, wxWindow* parent,
                      int id, VornControlGroup* group, long style = 0);
  using VornControl::Create;

  // --- the value: fractions of the track and of the sub-range
  // Clamped to [0, 1]; no notification.
  void SetValue(double v);
  void SetStart(double fraction);
  void SetEnd(double fraction);
  double GetValue() const { return m_value; }
  double GetStart() const { return m_startFraction; }
  double GetEnd() const { return m_endFraction; }
  // The sub-range as a fraction of the track: end less start.
  double GetSubDuration() const { return m_endFraction - m_startFraction; }

  // --- appearance
  // Track band, sub-range and played part.
  void SetColours(wxColour track, wxColour range, wxColour played);
  // The band's top and bottom.
  void SetUp(int top, int bottom);

  // --- operations a host calls
  // Ends any drag; markers to the track's ends, playhead to the start.
  void Reset() override;
  VornMovieBarLayout GetLayout() const;
  int GetPlayhead() const { return m_playhead; }
  int GetStartMarker() const { return m_start; }
  int GetEndMarker() const { return m_end; }
  int GetTrackStart() const { return m_trackStart; }
  int GetTrackEnd() const { return m_trackEnd; }
  bool IsDragging() const { return m_bDragPlayhead || m_bDragStart || m_bDragEnd; }

  // --- hooks
  void OnDraw(wxDC* dc) override;
  void OnMouseButton() override;
  void OnMouseMove(int x, int y) override;

 protected:
  void Press(int x, int y);
  void Release();
  void DragPlayhead(int x);
  void DragStart(int x);
  void DragEnd(int x);
  void Recompute();
  double TrackFraction(int marker) const;
  // The group when it is a movie-bar group, else null.
  VornMovieBarCG* MovieGroup() const;
  void ReportDrag();
  void ReportShape();

  int m_grab = 0;
  int m_trackEnd = 0;
  int m_trackStart = 0;
  int m_playhead = 0;
  int m_start = 0;
  int m_end = 0;
  int m_markerTop = 0;
  int m_lastPlayheadX = 0;
  int m_lastStartX = 0;
  int m_lastEndX = 0;
  bool m_bDragPlayhead = false;
  bool m_bDragStart = false;
  bool m_bDragEnd = false;
  double m_value = 0.0;
  double m_startFraction = 0.0;
  double m_endFraction = 1.0;
  wxColour m_colour1 = *wxBLUE;
  wxColour m_colour2 = *wxGREEN;
  wxColour m_colour3 = *wxRED;
  const wxBitmap* m_pStartImage = nullptr;     // not owned
  const wxBitmap* m_pEndImage = nullptr;       // not owned
  const wxBitmap* m_pPlayheadImage = nullptr;  // not owned
  int m_bandTop = 0;
  int m_bandBottom = 0;
  wxBitmap m_backBuffer;
};

// A strip with a title that moves a window when dragged: by default its
// parent; SetMovedWindow names another (for instance the top-level window
// of a strip that sits deeper inside it).
class VornTitleBar : public VornControl {
 public:
  VornTitleBar() = default;
  VornTitleBar(wxString title, int x, int y, int w, int h, wxWindow* parent, int id,
               long style = 0);

  // Creates the control without a group.
  virtual bool Create(wxString title, int x, int y, int w, int h, wxWindow* parent, int id,
                      long style = 0);
  using VornControl::Create;

  void SetTitle(wxString title);
  const wxString& GetTitle() const { return m_title; }
  void SetTitlePos(int x, int y);
  bool SetFont(const wxFont& font) override;
  void SetMovedWindow(wxWindow* window) { m_pMoved = window; }
  wxWindow* GetMovedWindow() const;
  bool IsDragging() const { return m_dragging != 0; }

  void OnDraw(wxDC* dc) override;
  void OnMouseButton() override;
  void OnMouseMove(int x, int y) override;

 protected:
  void OnFocus(wxFocusEvent& event);

  int m_dragging = 0;
  int m_lastX = 0;  // the pointer in screen coordinates
  int m_lastY = 0;
  wxString m_title;
  int m_titleX = 100;
  int m_titleY = 2;
  wxFont m_font;
  wxWindow* m_pMoved = nullptr;  // not owned; null means the parent

  wxDECLARE_EVENT_TABLE();
};
