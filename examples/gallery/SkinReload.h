#pragma once
// Live skin reload for hosts that let a designer edit their skin while the
// program runs: a watcher that turns a burst of file changes into one call,
// and the reload itself in the only order that is safe for live controls.
#include <wx/event.h>
#include <wx/fswatcher.h>
#include <wx/timer.h>

#include <functional>
#include <memory>

class AssetManager;

// Reloads every asset, database and image of the manager under live
// controls. Controls keep pointers into the manager's image caches, so they
// must all be gone before the caches are emptied:
//   1. teardown() destroys every control that draws from the manager;
//   2. the caches are cleared, the asset index rebuilt through the same
//      loaders, and the message, font and colour databases reloaded;
//   3. rebuild() creates the controls again; scripts run anew as the controls
//      ask for their images.
// False when an asset source or database did not load cleanly (the details
// went to the warning handler); the rebuild runs regardless, so a broken
// script shows its error images rather than ending the program.
bool ReloadSkin(AssetManager& assets, const std::function<void()>& teardown,
                const std::function<void()>& rebuild);

// Watches a skin directory tree and calls onChange once a burst of changes
// has been quiet for settleMs: an editor's save is several events (write,
// rename, attribute change), and reloading on each would show half-written
// files. Editor scratch files (hidden, backup and swap files) are ignored.
class SkinWatcher : public wxEvtHandler {
 public:
  explicit SkinWatcher(std::function<void()> onChange, int settleMs = 200);
  ~SkinWatcher() override;

  // Starts watching dir and everything below it. Needs a running event loop
  // (call it from OnEventLoopEnter or a CallAfter). False when the directory
  // cannot be watched.
  bool Watch(const wxString& dir);

  // What a file system event does: a change to path starts (or restarts) the
  // quiet period. False when the file is ignored.
  bool NoteChange(const wxString& path);
  // True while a change waits for its quiet period to end.
  bool IsPending() const { return m_timer.IsRunning(); }
  // The end of the quiet period: calls onChange once. The timer calls it;
  // tests may too.
  void Settle();

  static bool IsScratchFile(const wxString& path);

 private:
  void OnFileSystem(wxFileSystemWatcherEvent& event);
  void OnTimer(wxTimerEvent& event);

  std::function<void()> m_onChange;
  int m_settleMs;
  wxTimer m_timer;
  std::unique_ptr<wxFileSystemWatcher> m_pWatcher;
};
