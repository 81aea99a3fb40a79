#include "vorn/GradientControl.h"

GradientControlHint::~GradientControlHint() = default;

// Outlines and marks need a colour before a skin gives one.
GradientControlComp::GradientControlComp() {
  m_fgColour = wxColour(222, 227, 234);
}

GradientControlComp::~GradientControlComp() = default;

void GradientControlComp::Bind(Gradient* gradient) {
  m_pGradient = gradient;
  m_selected = 0;
  SetDirty();
  Refresh(false);
}

void GradientControlComp::SetDisplayRange(double minimum, double maximum) {
  m_displayMin = minimum;
  m_displayMax = maximum;
}

void GradientControlComp::SetSelect(unsigned int index) {
  m_selected = index;
}

// Reactions to the other parts' hints:
//   Add        select the new point; redraw
//   Range      take the displayed part; redraw
//   Select     select the point
//   Delete     clear the selection; redraw
//   Value      redraw
//   ColSmooth  clear the redraw mark
// Anything else is ignored and does not refresh.
bool GradientControlComp::ReactToHint(VornControlHint* hint) {
  if (auto* add = dynamic_cast<GradientHintAdd*>(hint)) {
    SetSelect(add->m_index);
    SetDirty();
  } else if (auto* range = dynamic_cast<GradientHintRange*>(hint)) {
    SetDisplayRange(range->m_min, range->m_max);
    SetDirty();
  } else if (auto* select = dynamic_cast<GradientHintSelect*>(hint)) {
    SetSelect(select->m_index);
  } else if (dynamic_cast<GradientHintDelete*>(hint)) {
    SetSelect(0);
    SetDirty();
  } else if (dynamic_cast<GradientHintValue*>(hint)) {
    SetDirty();
  } else if (dynamic_cast<GradientHintColSmooth*>(hint)) {
    ClearDirty();
  } else {
    return false;
  }
  return true;
}

void GradientControlComp::OnUpdate(unsigned int, VornControl* sender, VornControlHint* hint) {
  if (sender == this) return;
  if (ReactToHint(hint)) Refresh(false);
}

void GradientControlComp::Send(GradientControlHint& hint) {
  if (m_pControlGroup) m_pControlGroup->Update(static_cast<unsigned int>(GetId()), this, &hint);
}

void GradientControlComp::OnKeyDown(wxKeyEvent& event) {
  VornWindowKeyEvent key(VORNEVT_KEY_DOWN, event);
  key.SetEventObject(this);
  GetEventHandler()->ProcessEvent(key);
}

void GradientControlComp::OnKeyUp(wxKeyEvent& event) {
  VornWindowKeyEvent key(VORNEVT_KEY_UP, event);
  key.SetEventObject(this);
  GetEventHandler()->ProcessEvent(key);
}

// Characters are not the editor's business.
void GradientControlComp::OnChar(wxKeyEvent& event) {
  event.Skip();
}

// clang-format off
wxBEGIN_EVENT_TABLE(GradientControlComp, VornControl)
  EVT_KEY_DOWN(GradientControlComp::OnKeyDownEvt)
  EVT_KEY_UP(GradientControlComp::OnKeyUpEvt)
  EVT_CHAR(GradientControlComp::OnCharEvt)
wxEND_EVENT_TABLE()
    // clang-format on
