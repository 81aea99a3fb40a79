#pragma once
// The state of one soak run: parent windows, groups, the controls made so far
// and open pop-ups, with the steps that change them and the check that runs
// after each step.
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "Soak.h"

// Lets wx run pending events and idle work (deferred destruction).
void SoakPumpEvents();

class SoakWorld {
 public:
  SoakWorld(AssetManager& assets, SoakRandom& random);
  ~SoakWorld();
  SoakWorld(const SoakWorld&) = delete;
  SoakWorld& operator=(const SoakWorld&) = delete;

  // One random step; its name is kept for the failure report.
  void Step();
  // The registries hold only live controls and every live control's group
  // link is sound; "" or what is wrong.
  std::string Check() const;
  // Destroys everything, controls before or after their groups at random,
  // and checks nothing is left behind; "" or what is wrong.
  std::string TearDown();
  const std::string& LastStep() const { return m_lastStep; }
  int ControlCount() const { return static_cast<int>(m_controls.size()); }

 private:
  struct Live {
    VornControl* control;
    const SoakFamily* family;
  };
  // Registered with every group: while the soak itself broadcasts a hint it
  // sometimes destroys a control, as a host closing a page on a
  // notification would, so that dispatch meets members leaving mid-walk.
  class Saboteur : public MessageReceiver {
   public:
    explicit Saboteur(SoakWorld& world) : m_world(world) {}
    void OnUpdate(unsigned int, VornControl*, VornControlHint*) override;

   private:
    SoakWorld& m_world;
  };

  // ---- the steps
  void CreateControl();
  void DestroyControl();
  void CreateGroup();
  void DestroyGroup(bool membersFirst);
  void CreateParent();
  void DestroyParent();
  void MouseEvents();
  void KeyEvents();
  void FocusEvent();
  void SetValue();
  void PopUp();
  void Tick();
  void Draw();
  void Broadcast();
  void GroupOperation();
  void Pump();

  // ---- helpers
  Live* PickControl();
  wxWindow* PickInside(wxWindow* control);  // the control or a shown window inside it
  SoakGroup* PickGroup();
  void Forget(wxWindow* dying);        // drops controls inside a window about to go
  void DestroyGroupAt(std::size_t i);  // deletes a group and remembers its address
  void SendMouse(wxWindow* target, wxEventType type, int x, int y, bool left);
  void SendKey(wxWindow* target, wxEventType type, int code, bool control, bool shift);
  std::set<const wxWindow*> LiveWindows() const;

  static constexpr std::size_t kMaxControls = 120;

  AssetManager& m_assets;
  SoakSkin m_skin;
  SoakRandom& m_random;
  std::vector<wxWindow*> m_parents;  // frames and panels; the first frame stays
  std::vector<std::unique_ptr<SoakGroup>> m_groups;
  std::vector<Live> m_controls;
  std::set<const void*> m_deadGroups;  // both sides of every deleted group
  Saboteur m_saboteur{*this};
  bool m_broadcasting = false;
  int m_nextId = 100;
  std::string m_lastStep;
};
