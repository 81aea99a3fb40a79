// The registry check after every step, and the tear-down at the end.
#include <wx/wx.h>

#include <algorithm>
#include <cstdio>
#include <map>

#include "SoakWorld.h"

void SoakPumpEvents() {
  for (int i = 0; i < 2; ++i) {
    wxTheApp->ProcessPendingEvents();
    while (wxTheApp->Pending()) wxTheApp->Dispatch();
    wxTheApp->ProcessIdle();
  }
}

namespace {

void AddTree(const wxWindow* window, std::set<const wxWindow*>& out) {
  out.insert(window);
  for (const wxWindow* child : window->GetChildren()) AddTree(child, out);
}

std::string Hex(const void* p) {
  char buffer[32];
  std::snprintf(buffer, sizeof buffer, "%p", p);
  return buffer;
}

}  // namespace

// ---- the check -------------------------------------------------------------------------

std::set<const wxWindow*> SoakWorld::LiveWindows() const {
  std::set<const wxWindow*> live;
  for (const wxWindow* top : wxTopLevelWindows) AddTree(top, live);
  return live;
}

std::string SoakWorld::Check() const {
  std::set<const wxWindow*> windows = LiveWindows();
  for (const Live& l : m_controls)
    if (!windows.count(l.control)) return std::string("a live ") + l.family->name + " is gone";
  // Parts without a window yet are alive while their owner is.
  std::vector<const VornControl*> parts;
  for (const Live& l : m_controls)
    if (l.family->parts) l.family->parts(l.control, parts);
  windows.insert(parts.begin(), parts.end());
  std::set<const VornControlGroup*> sides;
  for (const auto& g : m_groups) {
    sides.insert(g->OneOfN());
    sides.insert(g->Value());
  }
  std::map<const VornControl*, const SoakGroup*> holder;
  for (const auto& g : m_groups) {
    for (VornControl* c : g->Controls()) {
      if (!windows.count(c)) return "a group holds a dead control " + Hex(c);
      if (c->GetGroup() != g->OneOfN() && c->GetGroup() != g->Value())
        return "a group holds a control linked to another group " + Hex(c);
      if (!holder.emplace(c, g.get()).second) return "two registries hold one control " + Hex(c);
    }
    for (VornControlGroup* sub : g->SubGroups())
      if (!sides.count(sub)) return "a group holds a dead sub-group " + Hex(sub);
    for (const VornControlGroup* side : {static_cast<const VornControlGroup*>(g->OneOfN()),
                                         static_cast<const VornControlGroup*>(g->Value())})
      if (side->GetGroup() && !sides.count(side->GetGroup()))
        return "a group links to a dead parent group";
  }
  for (const Live& l : m_controls) {
    const VornControlGroup* link = l.control->GetGroup();
    if (!link) continue;
    if (!sides.count(link)) {
      if (m_deadGroups.count(link))
        return std::string("a ") + l.family->name + " links to a destroyed group";
      continue;  // a group of its own making
    }
    if (!holder.count(l.control))
      return std::string("a ") + l.family->name + " links to a group that does not hold it";
  }
  return std::string();
}

std::string SoakWorld::TearDown() {
  // Half the groups go first, half after their members.
  while (m_groups.size() > 1 && m_random.Chance(50)) DestroyGroupAt(0);
  for (const Live& l : std::vector<Live>(m_controls)) {
    Forget(l.control);
    l.control->Destroy();
  }
  std::string problem = Check();
  m_groups.clear();
  for (wxWindow* parent : std::vector<wxWindow*>(m_parents))
    if (parent->IsTopLevel()) parent->Destroy();
  m_parents.clear();
  SoakPumpEvents();
  if (problem.empty() && ExpandedVornListBox::LiveCount() != 0)
    problem = "a pop-up list outlived its owner";
  return problem;
}
