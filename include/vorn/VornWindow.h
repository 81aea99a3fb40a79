#pragma once
// Base of every custom-drawn window: a wxWindow that keeps its own copy of
// geometry, colours and visibility, paints through OnDraw and turns key events
// into VornWindowKeyEvents that travel up the parent windows. Also the two
// toolkit events: VornWindowKeyEvent and VornHintEvent.
#include <wx/event.h>
#include <wx/tooltip.h>
#include <wx/window.h>

#include <memory>

#include "vornhost/Color.h"
#include "vornhost/Types.h"

class VornControl;
class VornControlHint;
class VornWindowKeyEvent;
class VornHintEvent;

// The toolkit's event type numbers. They are fixed (not taken from
// wxNewEventType) so that hosts may rely on them; they lie far above the range
// wxWidgets hands out at run time.
constexpr wxEventType kVornEventKeyDown = 22000;
constexpr wxEventType kVornEventKeyUp = 22001;
constexpr wxEventType kVornEventHint = 22010;

wxDECLARE_EVENT(VORNEVT_KEY_DOWN, VornWindowKeyEvent);  // 22000
wxDECLARE_EVENT(VORNEVT_KEY_UP, VornWindowKeyEvent);    // 22001
wxDECLARE_EVENT(VORNEVT_HINT, VornHintEvent);           // 22010

// A key press or release inside a toolkit window, as a command event so that
// it propagates to the parent windows until a handler takes it.
class VornWindowKeyEvent : public wxCommandEvent {
 public:
  explicit VornWindowKeyEvent(wxEventType type = VORNEVT_KEY_DOWN);
  // Copies alt, control, key code, meta, shift, x and y from key.
  VornWindowKeyEvent(wxEventType type, const wxKeyEvent& key);

  wxEvent* Clone() const override { return new VornWindowKeyEvent(*this); }

  bool AltDown() const { return m_bAltDown; }
  bool ControlDown() const { return m_bControlDown; }
  long GetKeyCode() const { return m_keyCode; }
  bool MetaDown() const { return m_bMetaDown; }
  bool ShiftDown() const { return m_bShiftDown; }
  int GetX() const { return m_x; }
  int GetY() const { return m_y; }
  bool GetFlag() const { return m_bFlag; }

  bool m_bAltDown = false;
  bool m_bControlDown = false;
  long m_keyCode = 0;
  bool m_bMetaDown = false;
  bool m_bShiftDown = false;
  int m_x = 0;
  int m_y = 0;
  bool m_bFlag = false;  // always constructed false
};

// A hint delivered to a control through the event queue. The event owns its
// hint. Clone (used by wxPostEvent / AddPendingEvent) moves the hint into the
// clone, so exactly one event owns it at any time: the posted copy delivers
// it and the original is left without a hint.
class VornHintEvent : public wxCommandEvent {
 public:
  explicit VornHintEvent(int eventType = VORNEVT_HINT, unsigned int id = 0,
                         VornControl* source = nullptr, VornControlHint* hint = nullptr);
  VornHintEvent(const VornHintEvent& other);  // takes the hint from other
  VornHintEvent& operator=(const VornHintEvent&) = delete;
  ~VornHintEvent() override;

  wxEvent* Clone() const override { return new VornHintEvent(*this); }

  VornControlHint* GetHint() const { return m_pHint.get(); }
  // Deletes the current hint and takes ownership of hint.
  void SetHint(VornControlHint* hint);
  VornControl* GetSource() const { return m_pSource; }
  void SetSource(VornControl* source) { m_pSource = source; }
  unsigned int GetHintId() const { return m_id; }
  void SetHintId(unsigned int id) { m_id = id; }

 private:
  // Mutable so that the const Clone can hand the hint over.
  mutable std::unique_ptr<VornControlHint> m_pHint;
  VornControl* m_pSource = nullptr;  // not owned
  unsigned int m_id = 0;
};

typedef void (wxEvtHandler::*VornWindowKeyEventFunction)(VornWindowKeyEvent&);
typedef void (wxEvtHandler::*VornHintEventFunction)(VornHintEvent&);
#define VornWindowKeyEventHandler(func) wxEVENT_HANDLER_CAST(VornWindowKeyEventFunction, func)
#define VornHintEventHandler(func) wxEVENT_HANDLER_CAST(VornHintEventFunction, func)

// Static event table entries (any id).
#define EVT_VORN_KEY_DOWN(func) wx__DECLARE_EVT0(VORNEVT_KEY_DOWN, VornWindowKeyEventHandler(func))
#define EVT_VORN_KEY_UP(func) wx__DECLARE_EVT0(VORNEVT_KEY_UP, VornWindowKeyEventHandler(func))
#define EVT_VORN_HINT(func) wx__DECLARE_EVT0(VORNEVT_HINT, VornHintEventHandler(func))

class VornWindow : public wxWindow {
 public:
  VornWindow();
  VornWindow(int x, int y, wxWindow* parent, int id, long style = 0);
  VornWindow(int x, int y, int w, int h, wxWindow* parent, int id, long style = 0);
  ~VornWindow() override;

  // wxWindow operations replaced by the toolkit's versions. wxWindow's
  // CaptureMouse and ReleaseMouse are not virtual, so these two only take
  // effect when called through a VornWindow; Clear has no wxWindow
  // counterpart in wx 3.
  bool Show(bool show) override;
  virtual void CaptureMouse();
  virtual void ReleaseMouse();
  virtual void Clear();

  virtual bool Create(int x, int y, wxWindow* parent, int id, long style = 0);
  virtual bool Create(int x, int y, int w, int h, wxWindow* parent, int id, long style = 0);
  virtual void OnShow();
  virtual void OnHide();
  virtual void OnDraw(wxDC* dc);

  using wxWindow::GetPosition;
  using wxWindow::GetSize;
  using wxWindow::SetPosition;
  using wxWindow::SetSize;

  // Geometry: stored here and applied to the window.
  void SetSize(int w, int h);
  void SetPosition(int x, int y);
  void SetWindowPos(int x, int y, int w, int h);
  // The stored values, not a query of wxWidgets.
  int GetWidth() const { return m_width; }
  int GetHeight() const { return m_height; }
  int GetPosX() const { return m_x; }
  int GetPosY() const { return m_y; }
  void GetSize(int& w, int& h) const;
  void GetPosition(int& x, int& y) const;
  void GetWindowPos(int& x, int& y, int& w, int& h) const;

  bool IsVisible() const { return m_bVisible; }
  bool IsMouseCaptive() const { return m_bMouseCaptive; }

  bool Show() { return Show(true); }
  bool Hide() { return Show(false); }

  void SetFgColour(const wxColour& colour);
  void SetFgColour(const Color& colour);
  const wxColour& GetFgColour() const { return m_fgColour; }
  // Each setter ends with GetBgColour, which refreshes the stored copy.
  const wxColour& SetBgColour(const wxString& name);
  const wxColour& SetBgColour(const wxColour& colour);
  const wxColour& SetBgColour(const Color& colour);
  const wxColour& GetBgColour();

  using wxWindow::SetToolTip;
  void SetToolTip(const VornString& text);
  void SetToolTip(const char* text);

  // Does nothing; not in the event table (subclasses bind it).
  void OnKillFocus(wxFocusEvent& event);

 protected:
  void Init();
  void OnPaint(wxPaintEvent& event);
  void OnEraseBackground(wxEraseEvent& event);
  void OnVornKeyDown(wxKeyEvent& event);
  void OnVornKeyUp(wxKeyEvent& event);
  // wx 3 takes a capture away (and requires this handler) when another
  // window grabs the pointer; the captive flag follows.
  void OnMouseCaptureLost(wxMouseCaptureLostEvent& event);

  // Sizers: the stored size is the window's best size, and a move or resize
  // made by wx (a sizer's layout) is written back into the stored geometry.
  wxSize DoGetBestSize() const override;
  void DoSetSize(int x, int y, int width, int height, int sizeFlags) override;

  wxColour m_fgColour;
  wxColour m_bgColour;  // copy of the wx background colour, see GetBgColour
  int m_width = -1;
  int m_height = -1;
  int m_x = 0;
  int m_y = 0;
  bool m_bMouseCaptive = false;
  bool m_bVisible = false;
  wxToolTip* m_pToolTip = nullptr;  // owned by wxWidgets once handed over
  // Cleared by windows that take typing: their skipped key presses must stay
  // unhandled so that wx follows them with the character event.
  bool m_bForwardKeyDown = true;

 private:
  bool CreateWindow(int x, int y, const wxSize& size, wxWindow* parent, int id, long style);
  // Applies geometry without writing it back: the toolkit's own setters
  // store exactly what they were given.
  void ApplyGeometry(int x, int y, int w, int h, int flags);

  bool m_bApplyingOwnGeometry = false;
  void SendKeyEvent(wxEventType type, const wxKeyEvent& key);

  wxDECLARE_EVENT_TABLE();
};

// A plain container window.
class VornPanel : public VornWindow {
 public:
  VornPanel() = default;
  VornPanel(int x, int y, wxWindow* parent, int id, long style = 0);
  VornPanel(int x, int y, int w, int h, wxWindow* parent, int id, long style = 0);
  ~VornPanel() override;

  bool Create(int x, int y, wxWindow* parent, int id, long style = 0) override;
  bool Create(int x, int y, int w, int h, wxWindow* parent, int id, long style = 0) override;
  void Clear() override;
};
