#pragma once
// The soak test: a seeded random sequence of creations, destructions, events
// and values over every control family, checking after each step that the
// groups' registries hold only live controls.
#include <wx/wx.h>

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <random>
#include <string>
#include <vector>

#include "vorn/Vorn.h"

// Random choices of one run; every draw goes through here so that a seed
// replays the same run.
class SoakRandom {
 public:
  explicit SoakRandom(std::uint64_t seed) : m_engine(seed) {}
  // 0 .. n - 1 (n > 0).
  int Below(int n) { return std::uniform_int_distribution<int>(0, n - 1)(m_engine); }
  int Between(int lo, int hi) { return std::uniform_int_distribution<int>(lo, hi)(m_engine); }
  bool Chance(int percent) { return Below(100) < percent; }
  // Mostly 0..1, sometimes outside it or far outside it.
  double Value();
  // Runs one of the actions, each as likely as the others.
  void OneOf(std::initializer_list<std::function<void()>> actions) {
    (*(actions.begin() + Below(static_cast<int>(actions.size()))))();
  }
  template <class T>
  T& Pick(std::vector<T>& from) {
    return from[static_cast<std::size_t>(Below(static_cast<int>(from.size())))];
  }

 private:
  std::mt19937_64 m_engine;
};

// A group of both kinds (one-of-N and value), so that any control can report
// to it, that can list what its two registries hold.
class SoakGroup : public VornValueControlGroup1ofN {
 public:
  VornControlGroup1ofN* OneOfN() { return this; }
  VornControlGroupValue* Value() { return this; }
  // Every control either registry holds, by id and without id.
  std::vector<VornControl*> Controls() const;
  std::vector<VornControlGroup*> SubGroups() const;
  std::vector<unsigned int> Ids() const;
};

// What a family entry gets to build a control: the skin and a parent.
struct SoakSkin {
  AssetManager& assets;
  wxColour Colour(const char* name) const;
  wxFont Font(const char* name) const;
  const wxBitmap* Picture(const char* name) const;
  const BitmapA* PictureA(const char* name) const;
  const VornwxBitmapCache* Images(const char* name) const;
};

// One control family. Adding a family is adding one entry to the table in
// SoakFamilies.cpp:
//   create  builds a control at (x, y) on parent with the given id,
//           registered with the group (either side, as the family needs);
//   value   sets a random value (may be empty);
//   popUp   opens the family's pop-up and returns the window that then
//           holds the mouse, or null (may be empty);
//   popDown closes it again, if the pop-up does not close itself;
//   tick    runs the control's running timers once, as their next tick
//           would (may be empty);
//   parts   lists the controls it owns that may have no window yet but are
//           alive and in a group (may be empty).
struct SoakFamily {
  using Create = std::function<VornControl*(const SoakSkin&, wxWindow* parent, int x, int y, int id,
                                            SoakGroup& group, SoakRandom& random)>;
  using Action = std::function<void(VornControl*)>;
  using ValueAction = std::function<void(VornControl*, SoakRandom&)>;
  using PopUpAction = std::function<wxWindow*(VornControl*, SoakRandom&)>;
  using PartsAction = std::function<void(VornControl*, std::vector<const VornControl*>&)>;
  SoakFamily(const char* familyName, Create make, ValueAction setValue = {}, PopUpAction open = {},
             Action close = {}, Action timers = {}, PartsAction windowless = {})
      : name(familyName),
        create(std::move(make)),
        value(std::move(setValue)),
        popUp(std::move(open)),
        popDown(std::move(close)),
        tick(std::move(timers)),
        parts(std::move(windowless)) {}

  const char* name;
  Create create;
  ValueAction value;
  PopUpAction popUp;
  Action popDown;
  Action tick;
  PartsAction parts;
};

const std::vector<SoakFamily>& SoakFamilies();
// Keeps only the families whose name contains part; false when none does.
bool SoakKeepFamilies(const std::string& part);
// The multi-column box and the parameter tree.
std::vector<SoakFamily> SoakTableAndTreeFamilies();

// A short random text: ASCII, digits, blanks, line feeds and some UTF-8.
VornString SoakText(SoakRandom& random);
// A mouse event for target with position and left button only, and the
// same sent as wx delivers it.
wxMouseEvent SoakMouseEvent(wxWindow* target, wxEventType type, int x, int y, bool left);
void SoakMouse(wxWindow* target, wxEventType type, int x, int y, bool left);
// The pointer enters target at (x, y), presses and releases there.
void SoakClick(wxWindow* target, int x, int y);

// Runs steps steps from seed; on a failure writes what failed and returns
// false.
bool RunSoak(AssetManager& assets, std::uint64_t seed, int steps, bool verbose);
