// Text fields for a vector whose size follows the value set last: a Vec2d
// shows two fields, a Vec4d four. When the count changes the control's width
// changes, and the tree lays itself out again.
#include "VUITreeFields.h"
#include "vorn/VUIControls.h"

VUITreeExpandTextEdits::VUITreeExpandTextEdits(AssetManager* assetman, VornString name,
                                               bool functionable, int fields, int fieldWidth)
    : VUITreeControlBase(assetman, std::move(name), functionable),
      m_count(fields < 2 ? 2 : (fields > 4 ? 4 : fields)) {
  if (assetman) m_pFields = std::make_unique<VUITreeFields>(assetman, fieldWidth);
}

VUITreeExpandTextEdits::~VUITreeExpandTextEdits() {
  DestroyChildren();
}

bool VUITreeExpandTextEdits::Create(wxWindow* parent, int id, VornControlGroup* group, long style) {
  if (!VUITreeControlBase::Create(parent, id, group, style)) return false;
  m_pFields->Show(m_count, this, VornEdit::ES_REAL, true, EditorLeft(), kHeight);
  PlaceFunctionButton();
  return true;
}

int VUITreeExpandTextEdits::EditorWidth() {
  return m_pFields ? m_pFields->RowWidth(m_count) : 50;
}

int VUITreeExpandTextEdits::GetFieldCount() const {
  return m_count;
}

VUITreeSubEditBox* VUITreeExpandTextEdits::GetField(int index) const {
  return m_pFields->Get(index);
}

void VUITreeExpandTextEdits::Expand(int n) {
  if (n == m_count || !m_pFields) return;
  m_count = n;
  if (!IsCreated()) return;
  m_pFields->Show(n, this, VornEdit::ES_REAL, true, EditorLeft(), kHeight);
  SetSize(GetMaxWidth(), GetMaxHeight());
  PlaceFunctionButton();
  InvalidateLabel();
  Relayout();
}

bool VUITreeExpandTextEdits::Take(int n, double* values) {
  if (n != m_count || !m_pFields) return false;
  m_pFields->TakeReals(values, n);
  return true;
}

bool VUITreeExpandTextEdits::GetValue(Vec2d& out) {
  double v[2];
  if (!Take(2, v)) return false;
  out = Vec2d(v[0], v[1]);
  return true;
}

bool VUITreeExpandTextEdits::SetValue(Vec2d value) {
  Expand(2);
  const double v[] = {value.x, value.y};
  m_pFields->PutReals(v, 2);
  return true;
}

bool VUITreeExpandTextEdits::GetValue(Vec3d& out) {
  double v[3];
  if (!Take(3, v)) return false;
  out = Vec3d(v[0], v[1], v[2]);
  return true;
}

bool VUITreeExpandTextEdits::SetValue(Vec3d value) {
  Expand(3);
  const double v[] = {value.x, value.y, value.z};
  m_pFields->PutReals(v, 3);
  return true;
}

bool VUITreeExpandTextEdits::GetValue(Vec4d& out) {
  double v[4];
  if (!Take(4, v)) return false;
  out = Vec4d(v[0], v[1], v[2], v[3]);
  return true;
}

bool VUITreeExpandTextEdits::SetValue(Vec4d value) {
  Expand(4);
  const double v[] = {value.x, value.y, value.z, value.w};
  m_pFields->PutReals(v, 4);
  return true;
}

void VUITreeExpandTextEdits::OnUpdate(unsigned int id, VornControl* source, VornControlHint* hint) {
  if (IsInner(source)) NotifyParentGroup(id, source, hint);
}
