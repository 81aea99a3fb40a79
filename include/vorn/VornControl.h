#pragma once
// Base of every interactive control: an enabled flag, the mouse state machine,
// a dirty flag for the state images and membership in one control group.
#include "vorn/VornWindow.h"

class VornControlGroup;
class VornControlHint;

class VornControl : public VornWindow {
 public:
  VornControl();
  VornControl(int x, int y, wxWindow* parent, int id, VornControlGroup* group, long style = 0);
  VornControl(int x, int y, int w, int h, wxWindow* parent, int id, VornControlGroup* group,
              long style = 0);
  // Deregisters from the bound group (by id, without deletion).
  ~VornControl() override;

  void OnDraw(wxDC* dc) override;

  virtual bool Create(int x, int y, wxWindow* parent, int id, VornControlGroup* group,
                      long style = 0);
  virtual bool Create(int x, int y, int w, int h, wxWindow* parent, int id, VornControlGroup* group,
                      long style = 0);
  virtual void Reset();
  virtual void SetEnabled(bool enabled);
  virtual bool GetEnabled() const;
  virtual void OnEnable(bool enabled);
  virtual void OnUpdate(unsigned int id, VornControl* source, VornControlHint* hint);
  // The wxWidgets window id. wxWindow::GetId is not virtual: calls through a
  // wxWindow* reach wxWidgets' version, which returns the same value unless a
  // subclass overrides this one.
  virtual int GetId() const;
  virtual void RecalcState();
  virtual void SetMouseOver(bool over);
  virtual void SetMouseDownLeft(bool down);
  virtual void SetMouseDownRight(bool down);
  virtual void SetLastMousePos(int x, int y);
  virtual void SetLastDownPos(int x, int y);
  virtual void OnMouseMove(int x, int y);
  virtual void OnMouseOver();
  virtual void OnMouseDownLeft();
  virtual void OnMouseDownRight();
  virtual void OnMouseButton();
  virtual void OnMouseEntering();
  virtual void OnMouseLeaving();
  virtual bool GetMouseDownLeft() const;
  virtual bool GetMouseDownRight() const;
  virtual bool GetMouseDown() const;
  virtual bool GetMouseOver() const;
  virtual bool GetMetaA() const;
  virtual bool GetMetaB() const;
  virtual bool GetMetaKey() const;
  virtual void GetLastMousePos(int& x, int& y);
  virtual void GetLastDownPos(int& x, int& y);

  // Group membership. Bind asserts that no group is bound yet; SetGroup
  // replaces the pointer without deregistering from the previous group.
  // wxEvtHandler::Bind stays reachable beside the group form.
  using wxWindow::Bind;
  void Bind(VornControlGroup* group);
  void SetGroup(VornControlGroup* group);
  VornControlGroup* GetGroup() const { return m_pControlGroup; }

  bool IsDirty() const { return m_bDirty; }
  void SetDirty() { m_bDirty = true; }
  void SetDirty(bool dirty) { m_bDirty = dirty; }
  void ClearDirty() { m_bDirty = false; }

 protected:
  void Init();
  void OnLeftDown(wxMouseEvent& event);
  void OnLeftUp(wxMouseEvent& event);
  // wxGTK delivers the second press of a quick pair as a double click: it
  // counts as a press (the release follows as usual) and the group also hears
  // ControlDoubleClick. A subclass with its own double-click reaction binds
  // wxEVT_LEFT_DCLICK in its own table.
  void OnLeftDClick(wxMouseEvent& event);
  void OnRightDown(wxMouseEvent& event);
  void OnRightUp(wxMouseEvent& event);
  void OnLeaving(wxMouseEvent& event);
  void OnEntering(wxMouseEvent& event);
  void OnMouseMoveHdlr(wxMouseEvent& event);
  void OnEraseBackground(wxEraseEvent& event);
  void OnVornHintArrive(VornHintEvent& event);

  VornControlGroup* m_pControlGroup = nullptr;  // not owned
  bool m_bEnabled = true;
  bool m_bMouseOver = false;
  bool m_bMouseDownLeft = false;
  bool m_bMouseDownRight = false;
  bool m_bDirty = true;
  int m_lastMouseX = 0;
  int m_lastMouseY = 0;
  int m_lastDownX = 0;
  int m_lastDownY = 0;
  bool m_bMetaA = false;  // Alt in the last mouse event
  bool m_bMetaB = false;  // Shift in the last mouse event

 private:
  void FinishCreate(int id, VornControlGroup* group);
  // Links to group only if it accepts the control under id.
  void StoreGroup(VornControlGroup* group, int id);
  void TakeMeta(const wxMouseEvent& event);
  void ButtonDown(const wxMouseEvent& event, bool left);
  void ButtonUp(const wxMouseEvent& event, bool left);

  wxDECLARE_EVENT_TABLE();
};
