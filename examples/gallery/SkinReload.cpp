#include "SkinReload.h"

#include <wx/filename.h>

#include <string>

#include "vorn/AssetManager.h"

bool ReloadSkin(AssetManager& assets, const std::function<void()>& teardown,
                const std::function<void()>& rebuild) {
  if (teardown) teardown();
  // No control is alive now: nothing points into the caches any more.
  assets.ClearCaches();
  std::string language, subLanguage;
  assets.GetLanguage(language, subLanguage);
  // Same language: re-indexes the files and reloads the databases.
  const bool ok = assets.SetLanguageAndReload(language.c_str(), subLanguage.c_str());
  if (rebuild) rebuild();
  return ok;
}

SkinWatcher::SkinWatcher(std::function<void()> onChange, int settleMs)
    : m_onChange(std::move(onChange)), m_settleMs(settleMs), m_timer(this) {
  Bind(wxEVT_TIMER, &SkinWatcher::OnTimer, this, m_timer.GetId());
  Bind(wxEVT_FSWATCHER, &SkinWatcher::OnFileSystem, this);
}

SkinWatcher::~SkinWatcher() {
  m_timer.Stop();
  m_pWatcher.reset();
}

bool SkinWatcher::Watch(const wxString& dir) {
  const wxFileName root = wxFileName::DirName(dir);
  if (!root.DirExists()) return false;
  m_pWatcher = std::make_unique<wxFileSystemWatcher>();
  m_pWatcher->SetOwner(this);
  return m_pWatcher->AddTree(
      root, wxFSW_EVENT_CREATE | wxFSW_EVENT_DELETE | wxFSW_EVENT_RENAME | wxFSW_EVENT_MODIFY);
}

bool SkinWatcher::IsScratchFile(const wxString& path) {
  const wxString name = wxFileName(path).GetFullName();
  if (name.empty() || name[0] == '.' || name[0] == '#' || name.Last() == '~') return true;
  const wxString ext = wxFileName(path).GetExt().Lower();
  if (ext == "swp" || ext == "swx" || ext == "tmp") return true;
  // vim probes whether it may write into a directory with a file "4913".
  return name.IsNumber();
}

bool SkinWatcher::NoteChange(const wxString& path) {
  if (IsScratchFile(path)) return false;
  m_timer.StartOnce(m_settleMs);  // restarts a running quiet period
  return true;
}

void SkinWatcher::Settle() {
  m_timer.Stop();
  if (m_onChange) m_onChange();
}

void SkinWatcher::OnFileSystem(wxFileSystemWatcherEvent& event) {
  if (event.IsError() || (event.GetChangeType() & (wxFSW_EVENT_WARNING | wxFSW_EVENT_ERROR)))
    return;
  // An editor's safe save renames a scratch file over the real one.
  if (!NoteChange(event.GetPath().GetFullPath()) && event.GetChangeType() == wxFSW_EVENT_RENAME)
    NoteChange(event.GetNewPath().GetFullPath());
}

void SkinWatcher::OnTimer(wxTimerEvent&) {
  Settle();
}
