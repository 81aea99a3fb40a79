#pragma once
// Buttons that open a VornMenu: VornPopUpButton opens it above or below
// itself, VornPopSideButton beside itself. Both stay on while the menu is
// open; the menu asks them to Reset (close) after a choice, a click outside
// or a loss of focus. The menu belongs to the caller and must outlive the
// button.
#include <wx/gdicmn.h>

#include "vorn/VornButton.h"
#include "vorn/VornMenu.h"

// Where a menu of size menu opens for a button at button (both in the
// button's parent's client coordinates).
// Above (verticalMode != 0: its bottom one item height above the button)
// or below; right edges aligned (horizontalMode == 0) or left edges.
wxPoint VornPopUpMenuPlace(const wxRect& button, const wxSize& menu, int itemHeight,
                           int horizontalMode, int verticalMode);
// Beside: to the right (sideMode != 0) or to the left, tops aligned.
wxPoint VornPopSideMenuPlace(const wxRect& button, const wxSize& menu, int sideMode);

// What both buttons share: the menu, opening on a press, closing on Reset
// and the menu's list operations passed through.
class VornMenuOpener : public VornButton {
 public:
  VornMenuOpener() = default;
  // Lets go of the menu (closing it if open).
  ~VornMenuOpener() override;

  // --- operations a host calls
  // Places the menu for the button's current place and tells the menu
  // that this button closes it.
  virtual void SetUpMenu();
  // A press while off opens the menu; anything else only follows the mouse.
  void OnMouseButton() override;
  // Off, not down, the menu hidden without the mouse.
  void Reset() override;
  void Clear() override {}

  // --- the menu's list, passed through
  void AppendRadioItem(wxString text, int id, VornControlGroup* group = nullptr);
  void AppendSelectItem(wxString text, int id, VornControlGroup* group = nullptr);
  void AppendLineBreak();
  void DeleteItemID(int id);
  void DeleteItemPos(int position);
  void ClearAll();
  int FindItem(int id) const;
  void SetItemText(int id, wxString text);
  void SetSelected(int id);
  int GetSelected() const;
  int GetCount() const;

  VornMenu* GetMenu() const { return m_pMenu; }
  bool GetActive() const { return m_bActive; }

 protected:
  // --- hooks the two buttons override
  // The menu's top-left corner in the parent's client coordinates.
  virtual wxPoint MenuPlace(const wxRect& button, const wxSize& menu) const = 0;
  // Just before the menu shows, and just after it has shown.
  virtual void OnMenuOpening() {}
  virtual void OnMenuOpened() {}
  virtual void OnMenuClosed() {}

  void Init();
  void OpenMenu();

  VornMenu* m_pMenu = nullptr;       // not owned
  wxWindow* m_pCompanion = nullptr;  // not owned
  bool m_bActive = false;
  bool m_bResetting = false;
};

class VornPopUpButton : public VornMenuOpener {
 public:
  VornPopUpButton();
  VornPopUpButton(const VornwxBitmapCache* images, VornMenu* menu, int horizontalMode,
                  int verticalMode, int x, int y, wxWindow* parent, int id, VornControlGroup* group,
                  long style = 0);

  // The size comes from the images.
  virtual bool Create(const VornwxBitmapCache* images, VornMenu* menu, int horizontalMode,
                      int verticalMode, int x, int y, wxWindow* parent, int id,
                      VornControlGroup* group, long style = 0);
  // With an explicit size; companion, if given, is shown beside the open
  // menu of an upward-opening button and hidden when it closes.
  virtual bool Create(const VornwxBitmapCache* images, VornMenu* menu, int horizontalMode,
                      int verticalMode, int x, int y, int w, int h, wxWindow* parent, int id,
                      VornControlGroup* group, long style = 0, wxWindow* companion = nullptr);
  using VornButton::Create;

  void SetCompanion(wxWindow* companion) { m_pCompanion = companion; }
  wxWindow* GetCompanion() const { return m_pCompanion; }
  int GetHorizontalMode() const { return m_horizontalMode; }
  int GetVerticalMode() const { return m_verticalMode; }

 protected:
  wxPoint MenuPlace(const wxRect& button, const wxSize& menu) const override;
  void OnMenuOpening() override;
  void OnMenuOpened() override;
  void OnMenuClosed() override;

  int m_horizontalMode = -1;
  int m_verticalMode = -1;
};

class VornPopSideButton : public VornMenuOpener {
 public:
  VornPopSideButton();
  VornPopSideButton(const VornwxBitmapCache* images, VornMenu* menu, int sideMode, int verticalMode,
                    int x, int y, wxWindow* parent, int id, VornControlGroup* group,
                    long style = 0);

  virtual bool Create(const VornwxBitmapCache* images, VornMenu* menu, int sideMode,
                      int verticalMode, int x, int y, wxWindow* parent, int id,
                      VornControlGroup* group, long style = 0);
  virtual bool Create(const VornwxBitmapCache* images, VornMenu* menu, int sideMode,
                      int verticalMode, int x, int y, int w, int h, wxWindow* parent, int id,
                      VornControlGroup* group, long style = 0);
  using VornButton::Create;

  int GetSideMode() const { return m_sideMode; }

 protected:
  wxPoint MenuPlace(const wxRect& button, const wxSize& menu) const override;
  // Reports ControlSelected(id, this) to the group once the menu is open.
  void OnMenuOpened() override;

  int m_sideMode = -1;
  int m_verticalMode = -1;
};
