#pragma once
// The gallery's shared pieces: the event log, the context every page is built
// with, the page base class and the page registry, and control groups that
// write every notification and hint into the log.
#include <wx/listbox.h>
#include <wx/wx.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "vorn/Vorn.h"

// The live log at the bottom of the window.
class GalleryLog {
 public:
  void Attach(wxListBox* list);
  void Add(const wxString& line);
  void Clear();
  std::vector<wxString> Lines() const;

 private:
  struct Entry {
    wxString text;
    int count;
    wxString Display() const;
  };
  static constexpr std::size_t kMaxLines = 500;
  wxListBox* m_pList = nullptr;
  std::vector<Entry> m_entries;
};

// Toolkit strings are UTF-8.
inline VornString Utf8(const wxString& text) {
  return VornString(text.utf8_str().data());
}

// What a page needs from the host: the asset manager and the log.
class GalleryContext {
 public:
  GalleryContext(AssetManager& assets, GalleryLog& log) : m_assets(assets), m_log(log) {}
  AssetManager& Assets() { return m_assets; }
  GalleryLog& Log() { return m_log; }
  // The translation of key from the message database.
  wxString Msg(const char* key) const;
  wxColour Colour(const char* name) const;
  wxFont Font(const char* name) const;
  // The state images of a script; logged and null when it cannot be loaded.
  const VornwxBitmapCache* Images(const char* name);

 private:
  AssetManager& m_assets;
  GalleryLog& m_log;
};

// One page of the notebook: a toolkit panel that draws its own headings and
// captions and holds the page's controls.
class GalleryPage : public VornPanel {
 public:
  GalleryPage(wxWindow* parent, GalleryContext& ctx);
  void OnDraw(wxDC* dc) override;
  // Plays a few clicks with real mouse events, so that a screenshot shows the
  // log at work.
  virtual void Demo() {}
  // For a second screenshot with a pop-up open: open one (true when it
  // opened), draw it at its place over the page drawn at `at`, close it.
  virtual bool OpenPopUpForShot() { return false; }
  // The same for a third screenshot with a menu open.
  virtual bool OpenMenuForShot() { return false; }
  // The same for a page with more to show than one open picture holds.
  virtual bool OpenMoreForShot() { return false; }
  virtual void RenderPopUps(wxDC&, const wxPoint&) {}
  virtual void ClosePopUps() {}

 protected:
  virtual void DrawPage(wxDC& dc) = 0;
  // Text helpers in the skin's fonts and colours; each returns the text's
  // height.
  int DrawText(wxDC& dc, const wxString& text, int x, int y, const char* font, const char* colour);
  int DrawCentred(wxDC& dc, const wxString& text, int centreX, int y, const char* font,
                  const char* colour);

  GalleryContext& m_ctx;
};

// Sends a mouse event at (x, y) of window through its own handler, as wx
// would deliver it.
void SendMouse(wxWindow* window, wxEventType type, int x = 4, int y = 4);
// Enter, press, release and leave.
void ClickOn(wxWindow* window);

// Draws root and every toolkit window inside it into dc, root at `at`: for
// screenshots where the screen cannot be read back.
void RenderToolkitWindows(wxWindow* root, wxDC& dc, const wxPoint& at);

// A page factory with its place in the notebook and its title's message key.
struct GalleryPageInfo {
  int order;
  const char* titleKey;
  const char* fileName;  // screenshot name, without extension
  std::function<GalleryPage*(wxWindow* parent, GalleryContext& ctx)> make;
};

// Pages register themselves from their own source file.
std::vector<GalleryPageInfo>& GalleryPages();
struct GalleryPageRegistrar {
  explicit GalleryPageRegistrar(GalleryPageInfo info);
};

// Writes hints into the log under the group's control names.
class GalleryReceiver : public MessageReceiver {
 public:
  using Namer = std::function<wxString(unsigned int id)>;
  GalleryReceiver(GalleryLog& log, Namer namer) : m_log(log), m_namer(std::move(namer)) {}
  void OnUpdate(unsigned int id, VornControl* source, VornControlHint* hint) override;

  // A page whose controls send hints of their own kind: when set, it names
  // each hint (empty: not logged) and `described` runs after each logged one.
  std::function<wxString(VornControlHint*)> describe;
  std::function<void()> described;

 private:
  GalleryLog& m_log;
  Namer m_namer;
};

// The registry side of a group that hints and notifications use.
inline VornControlGroup& MainRegistry(VornControlGroup& group) {
  return group;
}
inline VornControlGroup& MainRegistry(VornValueControlGroup1ofN& group) {
  return static_cast<VornControlGroup1ofN&>(group);
}

// A group of the host's that logs every notification and every hint.
template <class Base>
class LoggingGroup : public Base {
 public:
  explicit LoggingGroup(GalleryLog& log)
      : m_log(log), m_receiver(log, [this](unsigned int id) { return NameOf(id); }) {
    MainRegistry(*this).Register(&m_receiver);
  }
  ~LoggingGroup() override { MainRegistry(*this).DeRegister(&m_receiver); }

  void SetName(unsigned int id, const wxString& name) { m_names[id] = name; }
  GalleryReceiver& Receiver() { return m_receiver; }
  wxString NameOf(unsigned int id) const {
    auto it = m_names.find(id);
    return it != m_names.end() ? it->second : wxString::Format("#%u", id);
  }

  void ControlSelected(unsigned int id, VornControl*) override { Note("ControlSelected", id); }
  void ControlUnSelected(unsigned int id, VornControl*) override { Note("ControlUnSelected", id); }
  void ControlDoubleClick(unsigned int id, VornControl*) override {
    Note("ControlDoubleClick", id);
  }
  void ControlSelected(unsigned int id, VirtualControl*) override { Note("ControlSelected", id); }
  void ControlUnSelected(unsigned int id, VirtualControl*) override {
    Note("ControlUnSelected", id);
  }
  void ControlDoubleClick(unsigned int id, VirtualControl*) override {
    Note("ControlDoubleClick", id);
  }

 protected:
  void Note(const char* what, unsigned int id) {
    m_log.Add(wxString::Format("%s  %s", what, NameOf(id)));
  }

  GalleryLog& m_log;
  GalleryReceiver m_receiver;
  std::map<unsigned int, wxString> m_names;
};

class LoggingValueGroup : public LoggingGroup<VornValueControlGroup1ofN> {
 public:
  using LoggingGroup::LoggingGroup;
  void ControlDrag(unsigned int id, VornControl*) override { Note("ControlDrag", id); }
  void ControlShapeChanged(unsigned int id, VornControl*) override {
    Note("ControlShapeChanged", id);
  }
};
