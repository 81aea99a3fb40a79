#pragma once
// The gradient editor: a strip showing a gradient's control points
// (ColourControl), a range bar choosing which part of 0..1 the strip shows
// (GradientRangeControl), a preview of the whole gradient (GradientSummary),
// a small parameter tree with the selected point's position and colour, and
// the composite holding them all (GradientControl). Also ColourSlug, a small
// strip of colours with minimum and maximum markers. The parts keep in step
// through the gradient hints they send each other in the composite's group.
#include <wx/dc.h>
#include <wx/timer.h>

#include <functional>
#include <memory>
#include <vector>

#include "vorn/VornControl.h"
#include "vorn/VornControlGroup.h"
#include "vornhost/Color.h"
#include "vornhost/Gradient.h"

class AssetManager;
class VornMainVUITreeControl;
class VornVUIControlNode;
class ColourControl;
class GradientSummary;
class GradientRangeControl;

// ---- Hints ----------------------------------------------------------------------

class GradientControlHint : public VornControlHint {
 public:
  ~GradientControlHint() override;
};

// A control point was added.
class GradientHintAdd : public GradientControlHint {
 public:
  explicit GradientHintAdd(unsigned int index = 0) : m_index(index) {}
  unsigned int m_index;
};

// A control point was deleted.
class GradientHintDelete : public GradientControlHint {
 public:
  explicit GradientHintDelete(unsigned int index = 0) : m_index(index) {}
  unsigned int m_index;
};

// The selection changed (0: none).
class GradientHintSelect : public GradientControlHint {
 public:
  explicit GradientHintSelect(unsigned int index = 0) : m_index(index) {}
  unsigned int m_index;
};

// A point moved, or one of its marks was toggled (both positions equal).
class GradientHintMove : public GradientControlHint {
 public:
  GradientHintMove(double oldPos = 0.0, double newPos = 0.0) : m_oldPos(oldPos), m_newPos(newPos) {}
  double m_oldPos;
  double m_newPos;
};

// A point's colour was changed.
class GradientHintValue : public GradientControlHint {};

// The displayed part of 0..1 changed.
class GradientHintRange : public GradientControlHint {
 public:
  GradientHintRange(double minimum = 0.0, double maximum = 1.0) : m_min(minimum), m_max(maximum) {}
  double m_min;
  double m_max;
};

// A drag reached beyond the displayed part: up is true towards 1.
class GradientHintScroll : public GradientControlHint {
 public:
  GradientHintScroll(bool up = true, double amount = 0.0) : m_bUp(up), m_amount(amount) {}
  bool m_bUp;
  double m_amount;  // maximum - 0.1 * minimum of the displayed part
};

// The gradient's colour smoothing changed.
class GradientHintColSmooth : public GradientControlHint {};

// ---- The common base ----------------------------------------------------------------

// The gradient (not owned), the displayed part of 0..1 and the selection,
// and the reactions to the other parts' hints.
class GradientControlComp : public VornControl {
 public:
  // ---- construction
  GradientControlComp();
  ~GradientControlComp() override;

  // ---- the gradient, the displayed part and the selection
  using VornControl::Bind;
  virtual void Bind(Gradient* gradient);
  Gradient* GetGradient() const { return m_pGradient; }
  virtual void SetDisplayRange(double minimum, double maximum);
  double GetDisplayMin() const { return m_displayMin; }
  double GetDisplayMax() const { return m_displayMax; }
  // 0 clears the selection.
  virtual void SetSelect(unsigned int index);
  unsigned int GetSelect() const { return m_selected; }

  // ---- reactions
  // Hints of the other parts (own hints are ignored); see the table in
  // GradientControlComp.cpp. Subclasses extend it and call this.
  void OnUpdate(unsigned int id, VornControl* sender, VornControlHint* hint) override;
  // Keys travel up to the composite as toolkit key events.
  virtual void OnKeyDown(wxKeyEvent& event);
  virtual void OnKeyUp(wxKeyEvent& event);
  virtual void OnChar(wxKeyEvent& event);
  // No hover look.
  void OnMouseOver() override {}
  virtual void OnMouseDown() {}

 protected:
  // The base reaction; true when the hint was one of the table's.
  bool ReactToHint(VornControlHint* hint);
  // Sends hint to the group under this control's id.
  void Send(GradientControlHint& hint);

  Gradient* m_pGradient = nullptr;  // not owned
  double m_displayMin = 0.0;
  double m_displayMax = 1.0;
  unsigned int m_selected = 0;  // point index; 0: none

 private:
  void OnKeyDownEvt(wxKeyEvent& event) { OnKeyDown(event); }
  void OnKeyUpEvt(wxKeyEvent& event) { OnKeyUp(event); }
  void OnCharEvt(wxKeyEvent& event) { OnChar(event); }
  wxDECLARE_EVENT_TABLE();
};

// ---- The strip of control points --------------------------------------------------

// Geometry of the selected point around its pixel x, used by both hit tests
// and drawing.
struct GradientPointGeometry {
  static constexpr int kHandleHalfWidth = 5;  // handle: 10 x 7 at (px - 5, 0)
  static constexpr int kHandleHeight = 7;
  static constexpr int kMarkTop[3] = {16, 28, 40};  // marks: 6 x 6 at (px - 3, top)
  static constexpr int kMarkSize = 6;
  static constexpr int kLineTop = 50;  // line (px, 50) - (200, 85)
  static constexpr int kDotX = 200;    // colour dot centre
  static constexpr int kDotY = 85;
  static constexpr int kDotSize = 15;  // drawn at (193, 78)
  static constexpr int kDotHitRadius2 = 53;
  static constexpr int kStripTop = 8;  // the gradient's colours, under the handles
  static constexpr int kStripHeight = 6;

  wxRect Handle(int px) const { return wxRect(px - kHandleHalfWidth, 0, 10, kHandleHeight); }
  wxRect Mark(int px, int i) const { return wxRect(px - 3, kMarkTop[i], kMarkSize, kMarkSize); }
  wxRect Dot() const { return wxRect(kDotX - 7, kDotY - 7, kDotSize, kDotSize); }
  // The mark band a y lies in (0..2), or -1.
  static int MarkBand(int y);
};

// The editor's strip: the gradient's colours across the displayed part,
// each point as a small triangle above them; the selected point with its
// handle, its three marks and a line to the colour dot that opens a picker.
// An already selected point must be held still for 100 ms before it
// follows the pointer.
class ColourControl : public GradientControlComp {
 public:
  // A millisecond count; replaces the stop watch started at the press, so
  // that the hold can be timed without waiting.
  using Clock = std::function<long()>;
  static constexpr long kHoldMilliseconds = 100;

  // ---- construction
  ColourControl() = default;
  ~ColourControl() override;
  virtual bool Create(AssetManager& resources, int x, int y, int width, int height,
                      wxWindow* parent, int id, VornControlGroup* group, long style = 0);
  using VornControl::Create;
  // Left and right margins: pixels at each end that map to the range ends.
  void SetSpace(int left, int right);
  void SetClock(Clock clock) { m_clock = std::move(clock); }

  // ---- positions
  int GetActiveWidth() const;
  double CalcLogicalPosition(int x) const;
  int CalcPixelPosition(double v) const;

  // ---- drawing
  void OnDraw(wxDC* dc) override;
  // One colour per pixel of the active width.
  void RecalcColours();
  const std::vector<wxColour>& GetColours() const { return m_colours; }
  void DrawUnselected(wxDC& dc, const Gradient::CONTROL_POINT& point) const;
  void DrawSelected(wxDC& dc, const Gradient::CONTROL_POINT& point) const;
  void DrawColourDot(wxDC& dc, const Gradient::CONTROL_POINT& point) const;
  void SetBgColour(const wxColour& colour);
  void SetFgColour(const wxColour& colour);
  void SetHandleColour(const wxColour& colour) { m_handleColour = colour; }

  // ---- selection, drag and editing
  void SetSelect(unsigned int index) override;
  void OnMouseDownLeft() override;
  void OnMouseMove(int x, int y) override;
  // Moves the selected point to v (0..1) while a drag is armed.
  void TrackDrag(double v);
  void OnUpdate(unsigned int id, VornControl* sender, VornControlHint* hint) override;
  // Deletes the selected point when it lies in the displayed part.
  void DeleteKeyPressed();
  bool IsDragArmed() const { return m_bDragSelected; }
  bool IsDragPending() const { return m_bDragPending; }

  // ---- the parameter tree showing the selected point
  void SetTreeNodes(VornMainVUITreeControl* tree, VornVUIControlNode* pos, VornVUIControlNode* red,
                    VornVUIControlNode* green, VornVUIControlNode* blue);
  VornMainVUITreeControl* GetTree() const { return m_pTree; }
  // Shows point in the tree nodes (old is the point before the change).
  void SetTree(const Gradient::CONTROL_POINT& oldPoint, const Gradient::CONTROL_POINT& newPoint);
  // A tree node was edited: the selected point takes the nodes' values.
  void TreeChanged();
  // Outside a composite the strip deletes on Delete and Backspace itself;
  // every key then travels up as a toolkit key event.
  void CCOnKeyDown(wxKeyEvent& event);
  void OnKeyDown(wxKeyEvent& event) override { CCOnKeyDown(event); }

 protected:
  void PressAt(int x, int y);
  void ReleaseAt(int x, int y);
  void OnDoubleClick(wxMouseEvent& event);
  void ClickColourDot(int x, int y);
  // Adds a point at pixel x on empty strip; true when one was added.
  bool AddPointAt(int x);
  void ClearMarkFlags();
  long Elapsed() const;
  // The first of the three mark flags set, or -1.
  int PressedMark() const;
  void ShowInTree(const Gradient::CONTROL_POINT& point);
  bool IsTreeSender(VornControl* sender) const;
  // Selects and tells the group.
  void SelectByUser(unsigned int index);
  void ToggleMark(int mark);
  // GradientHintScroll towards 1 (up) or 0.
  void SendScroll(bool up);
  // Draws at once through a client DC (a drag must not wait for idle).
  void RedrawNow();

  int m_left = 10;
  int m_right = 10;
  bool m_bDragSelected = false;
  bool m_bDragPending = false;
  wxStopWatch m_dragTimer;
  Clock m_clock;
  long m_pressTime = 0;  // the clock's reading at the press
  bool m_bMark[3] = {false, false, false};
  int m_dotX = 0;
  VornMainVUITreeControl* m_pTree = nullptr;  // not owned: the composite's child
  VornVUIControlNode* m_pNodePos = nullptr;
  VornVUIControlNode* m_pNodeRed = nullptr;
  VornVUIControlNode* m_pNodeGreen = nullptr;
  VornVUIControlNode* m_pNodeBlue = nullptr;
  bool m_bInit = false;
  AssetManager* m_pResources = nullptr;  // not owned
  std::vector<wxColour> m_colours;
  wxColour m_handleColour{56, 189, 196};
  GradientPointGeometry m_geometry;

 private:
  wxDECLARE_EVENT_TABLE();
};

// ---- The range bar ------------------------------------------------------------------

// The displayed part as a window on a track, with a handle at each end. A
// press on a handle drags that end (with Alt both ends, symmetrically), a
// press inside the window moves it whole.
class GradientRangeControl : public GradientControlComp {
 public:
  static constexpr int kHandleHalfWidth = 4;  // hit band around each end

  GradientRangeControl() = default;
  ~GradientRangeControl() override;

  void OnDraw(wxDC* dc) override;
  void SetSpace(int left, int right);
  void SetBarHeight(int height) { m_barHeight = height; }
  void SetDisplayRange(double minimum, double maximum) override;
  void OnMouseDownLeft() override;
  void OnMouseMove(int x, int y) override;
  void UpdateLeft(int dx);
  void UpdateRight(int dx);
  void UpdateMove(int dx);

  double GetLeft() const { return m_leftEnd; }
  double GetRight() const { return m_rightEnd; }
  // The pixel x of a position of 0..1.
  int PixelOf(double v) const;
  void SetColours(const wxColour& track, const wxColour& window, const wxColour& handle);

 protected:
  int Span() const;  // W - L - R
  void Changed();

  double m_leftEnd = 0.0;
  double m_rightEnd = 1.0;
  double m_pressLeft = 0.0;
  double m_pressRight = 1.0;
  int m_pressX = 0;
  bool m_bDragLeft = false;
  bool m_bDragRight = false;
  bool m_bDragMove = false;
  int m_left = 10;
  int m_right = 10;
  int m_barHeight = 12;
  wxColour m_track{24, 28, 34};
  wxColour m_window{60, 100, 106};
  wxColour m_handle{56, 189, 196};
};

// ---- The preview -------------------------------------------------------------------

// The whole 0..1 gradient, with the displayed part outlined.
class GradientSummary : public GradientControlComp {
 public:
  GradientSummary() = default;
  ~GradientSummary() override;
  virtual bool Create(int x, int y, int width, int height, wxWindow* parent, int id,
                      VornControlGroup* group, long style = 0);
  using VornControl::Create;

  void SetSpace(int left, int right);
  void OnDraw(wxDC* dc) override;
  void RecalcColours();
  int GetActiveWidth() const;
  void OnUpdate(unsigned int id, VornControl* sender, VornControlHint* hint) override;
  const std::vector<wxColour>& GetColours() const { return m_colours; }

 protected:
  int m_left = 10;
  int m_right = 10;
  std::vector<wxColour> m_colours;
};

// ---- The composite -----------------------------------------------------------------

// The gradient editor: range bar, strip, preview and the parameter tree of
// the selected point, in a fixed layout. The parts share an internal group;
// their gradient hints reach the composite's own group too. A drag beyond
// the strip's ends scrolls the displayed part a tenth of its width.
class GradientControl : public GradientControlComp {
 public:
  // Chooses a colour starting from the given one at a screen point; false
  // when the user cancelled. The default runs the skin's colour dialog.
  using ColourChooser = std::function<bool(Color& colour, const wxPoint& screen)>;

  static constexpr int kWidth = 420;
  static constexpr int kHeight = 300;

  // ---- construction
  GradientControl() = default;
  ~GradientControl() override;
  virtual bool Create(AssetManager& resources, int x, int y, wxWindow* parent, int id,
                      VornControlGroup* group, long style = 0);
  using VornControl::Create;
  void Bind(Gradient* gradient) override;
  using GradientControlComp::Bind;
  void Clear() override;

  // ---- looks (the parts that exist follow)
  void SetBgColour(const wxColour& colour);
  void SetFgColour(const wxColour& colour);

  // ---- operations a host calls
  // The gradient changed outside the editor: every part redraws.
  void SetDirty();
  void Recalc();
  void DeleteKeyPressed();
  virtual bool PickColour(int screenX, int screenY, Color& colour);
  void SetColourChooser(ColourChooser chooser) { m_chooser = std::move(chooser); }

  // ---- parts
  ColourControl* GetColourControl() const { return m_pColour; }
  GradientRangeControl* GetRangeControl() const { return m_pRange; }
  GradientSummary* GetSummary() const { return m_pSummary; }
  VornMainVUITreeControl* GetTree() const { return m_pTree; }
  VornControlGroupValue* GetPartsGroup() { return &m_parts; }

  // ---- layout
  int GetAllignmentPt() const { return 0; }
  int GetMaxWidth() const { return kWidth; }
  int GetMaxHeight() const { return kHeight; }
  int GetMinWidth() const { return kWidth; }
  int GetMinHeight() const { return kHeight; }

  // ---- reactions
  void OnDraw(wxDC* dc) override;
  void OnUpdate(unsigned int id, VornControl* sender, VornControlHint* hint) override;
  void XOnKeyDown(VornWindowKeyEvent& event);
  // The composite's own keys become toolkit key events as the parts' do.
  void XGCOnKeyDown(wxKeyEvent& event);
  void XGCOnKeyUp(wxKeyEvent& event);
  void OnKeyDown(wxKeyEvent& event) override { XGCOnKeyDown(event); }
  void OnKeyUp(wxKeyEvent& event) override { XGCOnKeyUp(event); }

 protected:
  void BuildTree(AssetManager& resources);
  void Scroll(bool up);
  void ForEachPart(const std::function<void(GradientControlComp*)>& f);

  // The parts and this control; the parts' gestures reach this control's
  // group under its id.
  ChildToParentControlGroup m_parts{this};
  GradientRangeControl* m_pRange = nullptr;  // child windows
  ColourControl* m_pColour = nullptr;
  GradientSummary* m_pSummary = nullptr;
  VornMainVUITreeControl* m_pTree = nullptr;  // the third part
  AssetManager* m_pResources = nullptr;       // not owned
  ColourChooser m_chooser;

 private:
  wxDECLARE_EVENT_TABLE();
};

// ---- The colour slug -----------------------------------------------------------------

class ColourSlug;

// The group of a slug's two enable buttons; a click switches a marker on
// or off.
class SlugButtonGroup : public VornControlGroup {
 public:
  explicit SlugButtonGroup(ColourSlug* slug) : m_pSlug(slug) {}
  using VornControlGroup::ControlSelected;
  void ControlSelected(unsigned int id, VornControl* control) override;

 private:
  ColourSlug* m_pSlug;  // not owned: the slug holds this group
};

// A small strip of colours sampled from a gradient with a minimum and a
// maximum marker, each switched on and off by an enable button left and
// right of the strip. A drag moves the nearer enabled marker; each change
// reaches the group as a GradientHintRange.
class ColourSlug : public GradientControlComp {
 public:
  static constexpr int kButtonSize = 12;

  ColourSlug() = default;
  ~ColourSlug() override;
  virtual bool Create(int x, int y, int width, int height, wxWindow* parent, int id,
                      VornControlGroup* group, long style = 0);
  using VornControl::Create;

  void SetMinMax(double minimum, double maximum);
  double GetMin() const { return m_min; }
  double GetMax() const { return m_max; }
  void SetEnable(bool minimum, bool enabled);
  bool GetMinEnable() const { return m_bMinEnable; }
  bool GetMaxEnable() const { return m_bMaxEnable; }
  // One colour per pixel of the strip; drawing asserts the table matches
  // the strip (a resize recalculates).
  void RecalcColours();
  void RecalcColours(int width);
  const std::vector<wxColour>& GetColours() const { return m_colours; }
  wxRect GetStrip() const;
  VornControl* GetButton(bool minimum) const { return minimum ? m_pMinButton : m_pMaxButton; }

  void OnDraw(wxDC* dc) override;
  void OnMouseDownLeft() override;
  void OnMouseMove(int x, int y) override;
  // A button of the slug's group was clicked.
  void ButtonClicked(VornControl* button);

 protected:
  void MoveMarker(int x);
  void Report();
  void OnSize(wxSizeEvent& event);

  double m_min = 0.0;
  double m_max = 1.0;
  bool m_bMinEnable = true;
  bool m_bMaxEnable = true;
  int m_dragging = 0;     // -1 minimum, 1 maximum, 0 none
  int m_tableWidth = -1;  // the strip width the last drawing sampled for
  std::vector<wxColour> m_colours;
  std::unique_ptr<SlugButtonGroup> m_pButtons;
  VornControl* m_pMinButton = nullptr;  // child windows
  VornControl* m_pMaxButton = nullptr;

 private:
  wxDECLARE_EVENT_TABLE();
};
