// The soak steps and the registry check.
#include "SoakWorld.h"

#include <wx/dcmemory.h>

#include <algorithm>
#include <array>
#include <functional>
#include <map>

namespace {

// Key codes that reach the controls' key and character handlers.
const std::array<int, 22> kKeys = {
    WXK_LEFT,   WXK_RIGHT,  WXK_UP,  WXK_DOWN,   WXK_HOME,     WXK_END,   WXK_BACK, WXK_DELETE,
    WXK_RETURN, WXK_ESCAPE, WXK_TAB, WXK_PAGEUP, WXK_PAGEDOWN, WXK_SPACE, 'a',      'Z',
    '0',        '9',        '.',     '-',        'A',          'C'};

}  // namespace

SoakWorld::SoakWorld(AssetManager& assets, SoakRandom& random)
    : m_assets(assets), m_skin{assets}, m_random(random) {
  auto* frame = new wxFrame(nullptr, wxID_ANY, "soak", wxPoint(10, 10), wxSize(700, 500));
  frame->Show();
  m_parents.push_back(frame);
  for (int i = 0; i < 3; ++i) CreateGroup();
}

SoakWorld::~SoakWorld() {
  TearDown();
}

void SoakWorld::Step() {
  struct Kind {
    int weight;
    const char* name;
    std::function<void()> run;
  };
  const Kind kinds[] = {
      {20, "create control", [this] { CreateControl(); }},
      {8, "destroy control", [this] { DestroyControl(); }},
      {4, "create group", [this] { CreateGroup(); }},
      {2, "destroy group before its members", [this] { DestroyGroup(false); }},
      {2, "destroy group after its members", [this] { DestroyGroup(true); }},
      {2, "create parent", [this] { CreateParent(); }},
      {2, "destroy parent", [this] { DestroyParent(); }},
      {22, "mouse", [this] { MouseEvents(); }},
      {14, "keys", [this] { KeyEvents(); }},
      {3, "focus", [this] { FocusEvent(); }},
      {12, "value", [this] { SetValue(); }},
      {6, "pop-up", [this] { PopUp(); }},
      {3, "tick", [this] { Tick(); }},
      {3, "draw", [this] { Draw(); }},
      {4, "broadcast", [this] { Broadcast(); }},
      {2, "group operation", [this] { GroupOperation(); }},
      {3, "pump", [this] { Pump(); }},
  };
  int total = 0;
  for (const Kind& k : kinds) total += k.weight;
  int pick = m_random.Below(total);
  for (const Kind& k : kinds) {
    if (pick < k.weight) {
      m_lastStep = k.name;
      k.run();
      return;
    }
    pick -= k.weight;
  }
}

// ---- creation and destruction ----------------------------------------------------

void SoakWorld::CreateControl() {
  // A busy page, not an unbounded one: past the cap a creation is a
  // destruction.
  if (m_controls.size() >= kMaxControls) return DestroyControl();
  const auto& families = SoakFamilies();
  const SoakFamily& family =
      families[static_cast<std::size_t>(m_random.Below(static_cast<int>(families.size())))];
  wxWindow* parent = m_random.Pick(m_parents);
  SoakGroup* group = PickGroup();
  if (!group) return;
  const int id = m_nextId++;
  m_lastStep += std::string(" ") + family.name;
  VornControl* control =
      family.create(m_skin, parent, m_random.Below(500), m_random.Below(400), id, *group, m_random);
  // A group the control made for itself may sit where a destroyed one was.
  if (control) m_deadGroups.erase(control->GetGroup());
  m_controls.push_back({control, &family});
}

void SoakWorld::DestroyControl() {
  if (m_controls.empty()) return;
  const std::size_t i = static_cast<std::size_t>(m_random.Below(ControlCount()));
  VornControl* control = m_controls[i].control;
  m_lastStep += std::string(" ") + m_controls[i].family->name;
  Forget(control);
  control->Destroy();
}

void SoakWorld::Saboteur::OnUpdate(unsigned int, VornControl* source, VornControlHint*) {
  // Only the soak's own hint (no source): a control reporting from inside
  // its OnUpdate is still running.
  if (!source && m_world.m_broadcasting && m_world.m_random.Chance(20)) m_world.DestroyControl();
}

void SoakWorld::CreateGroup() {
  auto group = std::make_unique<SoakGroup>();
  group->Value()->Register(&m_saboteur);
  // Some groups hang below another, on either side.
  if (!m_groups.empty() && m_random.Chance(30)) {
    SoakGroup* parent = m_random.Pick(m_groups).get();
    VornControlGroup* side =
        m_random.Chance(50) ? static_cast<VornControlGroup*>(parent->OneOfN()) : parent->Value();
    group->Value()->Bind(side);
  }
  m_groups.push_back(std::move(group));
}

void SoakWorld::DestroyGroupAt(std::size_t i) {
  SoakGroup* group = m_groups[i].get();
  m_deadGroups.insert(static_cast<VornControlGroup*>(group->OneOfN()));
  m_deadGroups.insert(static_cast<VornControlGroup*>(group->Value()));
  m_groups.erase(m_groups.begin() + static_cast<std::ptrdiff_t>(i));
}

void SoakWorld::DestroyGroup(bool membersFirst) {
  // Keep one group to create controls in.
  if (m_groups.size() < 2) return;
  const std::size_t i = static_cast<std::size_t>(m_random.Below(static_cast<int>(m_groups.size())));
  if (membersFirst) {
    for (VornControl* member : m_groups[i]->Controls()) {
      const bool ours = std::any_of(m_controls.begin(), m_controls.end(),
                                    [member](const Live& l) { return l.control == member; });
      if (!ours) continue;  // a compound control's part goes with its owner
      Forget(member);
      member->Destroy();
    }
  }
  DestroyGroupAt(i);
}

void SoakWorld::CreateParent() {
  if (m_parents.size() >= 8) return;
  if (m_random.Chance(30)) {
    auto* frame = new wxFrame(nullptr, wxID_ANY, "soak", wxPoint(m_random.Below(300), 10),
                              wxSize(m_random.Between(100, 700), m_random.Between(100, 500)));
    frame->Show(m_random.Chance(80));
    m_parents.push_back(frame);
  } else {
    wxWindow* outer = m_random.Pick(m_parents);
    m_parents.push_back(new wxPanel(outer, wxID_ANY,
                                    wxPoint(m_random.Below(200), m_random.Below(200)),
                                    wxSize(m_random.Between(50, 500), m_random.Between(50, 400))));
  }
}

void SoakWorld::DestroyParent() {
  if (m_parents.size() < 2) return;
  wxWindow* dying = m_parents[static_cast<std::size_t>(
      1 + m_random.Below(static_cast<int>(m_parents.size()) - 1))];
  Forget(dying);
  // Child windows go at once; a frame at the next idle time, its children
  // with it.
  if (dying->IsTopLevel()) {
    dying->DestroyChildren();
    dying->Destroy();
  } else {
    dying->Destroy();
  }
}

void SoakWorld::Forget(wxWindow* dying) {
  auto inside = [dying](const wxWindow* w) {
    for (; w; w = w->GetParent())
      if (w == dying) return true;
    return false;
  };
  m_controls.erase(std::remove_if(m_controls.begin(), m_controls.end(),
                                  [&](const Live& l) { return inside(l.control); }),
                   m_controls.end());
  m_parents.erase(std::remove_if(m_parents.begin(), m_parents.end(),
                                 [&](wxWindow* p) { return p != m_parents.front() && inside(p); }),
                  m_parents.end());
}

// ---- events and values -----------------------------------------------------------------

SoakWorld::Live* SoakWorld::PickControl() {
  return m_controls.empty() ? nullptr : &m_random.Pick(m_controls);
}

SoakGroup* SoakWorld::PickGroup() {
  return m_groups.empty() ? nullptr : m_random.Pick(m_groups).get();
}

void SoakWorld::SendMouse(wxWindow* target, wxEventType type, int x, int y, bool left) {
  wxMouseEvent e = SoakMouseEvent(target, type, x, y, left);
  e.m_shiftDown = m_random.Chance(10);
  e.m_altDown = m_random.Chance(5);
  e.m_controlDown = m_random.Chance(5);
  if (type == wxEVT_MOUSEWHEEL) {
    e.m_wheelRotation = m_random.Chance(50) ? 120 : -120;
    e.m_wheelDelta = 120;
    e.m_linesPerAction = 3;
  }
  target->GetEventHandler()->ProcessEvent(e);
}

void SoakWorld::MouseEvents() {
  // As wx routes them: while a window holds the capture (a drag, an open
  // pop-up) every mouse event goes to it.
  wxWindow* target = wxWindow::GetCapture();
  if (!target) {
    Live* live = PickControl();
    // A hidden window gets no mouse events.
    if (!live || !live->control->IsShownOnScreen()) return;
    target = PickInside(live->control);
  }
  const wxEventType types[] = {
      wxEVT_LEFT_DOWN,  wxEVT_LEFT_UP,  wxEVT_MOTION,       wxEVT_MOTION,       wxEVT_LEFT_DCLICK,
      wxEVT_RIGHT_DOWN, wxEVT_RIGHT_UP, wxEVT_ENTER_WINDOW, wxEVT_LEAVE_WINDOW, wxEVT_MOUSEWHEEL};
  const int n = m_random.Between(1, 6);
  for (int i = 0; i < n; ++i) {
    const wxSize size = target->GetClientSize();
    const wxEventType type = types[m_random.Below(static_cast<int>(std::size(types)))];
    const int x = m_random.Between(-8, size.x + 8), y = m_random.Between(-8, size.y + 8);
    const bool left = type == wxEVT_LEFT_DOWN || (type == wxEVT_MOTION && m_random.Chance(50));
    SendMouse(target, type, x, y, left);
    // The capture may have moved (a pop-up opened or closed): follow it.
    wxWindow* now = wxWindow::GetCapture();
    if (now && now != target) target = now;
    if (!now && !LiveWindows().count(target)) return;  // a click removed it
  }
}

wxWindow* SoakWorld::PickInside(wxWindow* control) {
  // Compound controls' parts (cells, editors, a bar's buttons) get events
  // of their own, as they do under the pointer.
  if (m_random.Chance(50)) return control;
  std::vector<wxWindow*> inside;
  std::function<void(wxWindow*)> add = [&](wxWindow* w) {
    for (wxWindow* child : w->GetChildren()) {
      if (!child->IsShownOnScreen()) continue;
      inside.push_back(child);
      add(child);
    }
  };
  add(control);
  return inside.empty() ? control : m_random.Pick(inside);
}

void SoakWorld::SendKey(wxWindow* target, wxEventType type, int code, bool control, bool shift) {
  wxKeyEvent e(type);
  e.SetEventObject(target);
  e.SetId(target->GetId());
  e.m_keyCode = code;
  e.m_uniChar = static_cast<wxChar>(code < WXK_START ? code : 0);
  e.m_controlDown = control;
  e.m_shiftDown = shift;
  target->GetEventHandler()->ProcessEvent(e);
}

void SoakWorld::KeyEvents() {
  Live* live = PickControl();
  if (!live) return;
  wxWindow* target = PickInside(live->control);
  if (auto* list = dynamic_cast<VornListBoxCallback*>(live->control))
    if (list->GetExpanded() && m_random.Chance(70)) target = list->GetExpanded();
  const int n = m_random.Between(1, 5);
  for (int i = 0; i < n; ++i) {
    const int code =
        kKeys[static_cast<std::size_t>(m_random.Below(static_cast<int>(kKeys.size())))];
    const bool control = m_random.Chance(15), shift = m_random.Chance(20);
    // A key may close the pop-up or remove the part it was sent to.
    for (wxEventType type : {wxEVT_KEY_DOWN, wxEVT_CHAR, wxEVT_KEY_UP}) {
      if (target != live->control && !LiveWindows().count(target)) return;
      SendKey(target, type, code, control, shift);
    }
  }
}

void SoakWorld::FocusEvent() {
  Live* live = PickControl();
  if (!live) return;
  wxFocusEvent e(m_random.Chance(50) ? wxEVT_SET_FOCUS : wxEVT_KILL_FOCUS, live->control->GetId());
  e.SetEventObject(live->control);
  live->control->GetEventHandler()->ProcessEvent(e);
}

void SoakWorld::SetValue() {
  Live* live = PickControl();
  if (!live) return;
  m_lastStep += std::string(" ") + live->family->name;
  if (m_random.Chance(10)) {
    live->control->SetEnabled(m_random.Chance(60));
  } else if (m_random.Chance(5)) {
    live->control->Show(m_random.Chance(70));
  } else if (live->family->value) {
    live->family->value(live->control, m_random);
  }
}

void SoakWorld::PopUp() {
  // No click reaches a list while another window holds the mouse.
  if (wxWindow::GetCapture()) return;
  std::vector<Live*> candidates;
  for (Live& l : m_controls)
    if (l.family->popUp) candidates.push_back(&l);
  if (candidates.empty()) return;
  Live* live = m_random.Pick(candidates);
  if (!live->control->IsShownOnScreen()) return;
  wxWindow* popup = live->family->popUp(live->control, m_random);
  if (!popup) return;
  // Closed now, later by another step, or left for the owner's destruction.
  if (m_random.Chance(60) && live->family->popDown) live->family->popDown(live->control);
}

void SoakWorld::Tick() {
  Live* live = PickControl();
  if (live && live->family->tick) live->family->tick(live->control);
}

void SoakWorld::Draw() {
  Live* live = PickControl();
  if (!live) return;
  const wxSize size = live->control->GetClientSize();
  wxBitmap target(std::max(1, std::min(size.x, 800)), std::max(1, std::min(size.y, 600)));
  wxMemoryDC dc(target);
  live->control->OnDraw(&dc);
  dc.SelectObject(wxNullBitmap);
}

void SoakWorld::Broadcast() {
  SoakGroup* group = PickGroup();
  if (!group) return;
  const unsigned int id =
      m_random.Chance(50) ? 0u : static_cast<unsigned int>(m_random.Between(100, m_nextId));
  VornControlGroup* side =
      m_random.Chance(50) ? static_cast<VornControlGroup*>(group->OneOfN()) : group->Value();
  // No control is on the call stack: the saboteur may strike.
  m_broadcasting = true;
  RealValChanged real(m_random.Value());
  IntValChanged whole(m_random.Between(-100000, 100000));
  VUIControlChanged changed;
  VornControlHint* hints[] = {&real, &whole, &changed, nullptr};
  side->Update(id, nullptr, hints[m_random.Below(4)]);
  m_broadcasting = false;
}

void SoakWorld::GroupOperation() {
  SoakGroup* group = PickGroup();
  if (!group) return;
  const std::vector<unsigned int> ids = group->Ids();
  const unsigned int id =
      ids.empty() ? 0u
                  : ids[static_cast<std::size_t>(m_random.Below(static_cast<int>(ids.size())))];
  VornControlGroup* side =
      m_random.Chance(50) ? static_cast<VornControlGroup*>(group->OneOfN()) : group->Value();
  m_random.OneOf({[&] { side->SetEnableAll(nullptr, m_random.Chance(70), nullptr); },
                  [&] { side->ShowAll(nullptr, m_random.Chance(80), nullptr); },
                  [&] { side->SetOnControl(id, m_random.Chance(50), nullptr); },
                  [&] { side->SetEnableControl(id, m_random.Chance(70), nullptr); }});
}

void SoakWorld::Pump() {
  SoakPumpEvents();
}
