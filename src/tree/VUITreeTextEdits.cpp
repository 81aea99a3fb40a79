// The tree's text edits: one to four fields by parameter type, each value
// interface served by the type it belongs to.
#include "VUITreeFields.h"
#include "VUITreeTexts.h"
#include "vorn/VUIControls.h"
#include "vorn/VornAssert.h"

namespace {

struct TypeInfo {
  int fields;
  int style;
};

// Fields and edit style of each type, in PTYPE order.
constexpr TypeInfo kTypes[] = {
    {1, VornEdit::ES_INT},  {1, VornEdit::ES_REAL}, {2, VornEdit::ES_REAL},
    {3, VornEdit::ES_REAL}, {4, VornEdit::ES_REAL}, {4, VornEdit::ES_REAL},
    {3, VornEdit::ES_REAL}, {4, VornEdit::ES_REAL}, {1, VornEdit::ES_TEXT},
};

const TypeInfo& InfoOf(VUITreeTextEdits::PTYPE type) {
  const bool known = type >= VUITreeTextEdits::PT_INT && type <= VUITreeTextEdits::PT_STRING;
  VORN_ASSERT_TEXT(known, VUITreeTexts::kBadType);
  return kTypes[known ? type : VUITreeTextEdits::PT_STRING];
}

}  // namespace

int VUITreeTextEdits::FieldCount(PTYPE type) {
  return InfoOf(type).fields;
}

int VUITreeTextEdits::EditStyle(PTYPE type) {
  return InfoOf(type).style;
}

VUITreeTextEdits::VUITreeTextEdits(AssetManager* assetman, VornString name, bool functionable,
                                   PTYPE type, int fieldWidth)
    : VUITreeControlBase(assetman, std::move(name), functionable),
      m_type(type),
      m_style(EditStyle(type)) {
  if (assetman) m_pFields = std::make_unique<VUITreeFields>(assetman, fieldWidth);
}

VUITreeTextEdits::~VUITreeTextEdits() {
  DestroyChildren();
}

bool VUITreeTextEdits::Create(wxWindow* parent, int id, VornControlGroup* group, long style) {
  if (!VUITreeControlBase::Create(parent, id, group, style)) return false;
  m_pFields->Show(FieldCount(m_type), this, m_style, m_bEditable, EditorLeft(), kHeight);
  PlaceFunctionButton();
  return true;
}

int VUITreeTextEdits::EditorWidth() {
  // Sized for the type's fields before they exist, so the window is made
  // at its final size.
  return m_pFields ? m_pFields->RowWidth(FieldCount(m_type)) : 50;
}

int VUITreeTextEdits::GetFieldCount() const {
  return m_pFields ? m_pFields->GetCount() : 0;
}

VUITreeSubEditBox* VUITreeTextEdits::GetField(int index) const {
  return m_pFields->Get(index);
}

void VUITreeTextEdits::SetEditable(bool editable) {
  m_bEditable = editable;
  if (m_pFields) m_pFields->SetEditable(editable);
}

void VUITreeTextEdits::ForceStyle(VornEdit::EDITSTYLE style) {
  m_style = style;
  if (m_pFields) m_pFields->SetStyle(style);
}

bool VUITreeTextEdits::PutReals(PTYPE type, const double* values) {
  if (m_type != type || !m_pFields) return false;
  m_pFields->PutReals(values, FieldCount(type));
  return true;
}

bool VUITreeTextEdits::TakeReals(PTYPE type, double* values) {
  if (m_type != type || !m_pFields) return false;
  m_pFields->TakeReals(values, FieldCount(type));
  return true;
}

// ---- the nine value interfaces ----------------------------------------------

bool VUITreeTextEdits::GetValue(int32& out) {
  if (m_type != PT_INT || !m_pFields) return false;
  out = m_pFields->TakeInt();
  return true;
}

bool VUITreeTextEdits::SetValue(int32 value) {
  if (m_type != PT_INT || !m_pFields) return false;
  m_pFields->PutInt(value);
  return true;
}

bool VUITreeTextEdits::GetValue(double& out) {
  return TakeReals(PT_REAL, &out);
}

bool VUITreeTextEdits::SetValue(double value) {
  return PutReals(PT_REAL, &value);
}

bool VUITreeTextEdits::GetValue(Vec2d& out) {
  double v[2];
  if (!TakeReals(PT_VEC2D, v)) return false;
  out = Vec2d(v[0], v[1]);
  return true;
}

bool VUITreeTextEdits::SetValue(Vec2d value) {
  const double v[] = {value.x, value.y};
  return PutReals(PT_VEC2D, v);
}

bool VUITreeTextEdits::GetValue(Vec3d& out) {
  double v[3];
  if (!TakeReals(PT_VEC3D, v)) return false;
  out = Vec3d(v[0], v[1], v[2]);
  return true;
}

bool VUITreeTextEdits::SetValue(Vec3d value) {
  const double v[] = {value.x, value.y, value.z};
  return PutReals(PT_VEC3D, v);
}

bool VUITreeTextEdits::GetValue(Vec4d& out) {
  double v[4];
  if (!TakeReals(PT_VEC4D, v)) return false;
  out = Vec4d(v[0], v[1], v[2], v[3]);
  return true;
}

bool VUITreeTextEdits::SetValue(Vec4d value) {
  const double v[] = {value.x, value.y, value.z, value.w};
  return PutReals(PT_VEC4D, v);
}

bool VUITreeTextEdits::GetValue(Quaternion& out) {
  double v[4];
  if (!TakeReals(PT_QUATERNION, v)) return false;
  out = Quaternion(v[0], v[1], v[2], v[3]);
  return true;
}

bool VUITreeTextEdits::SetValue(Quaternion value) {
  const double v[] = {value.x, value.y, value.z, value.w};
  return PutReals(PT_QUATERNION, v);
}

bool VUITreeTextEdits::GetValue(Color& out) {
  double v[3];
  if (!TakeReals(PT_COLOR, v)) return false;
  out = Color(v[0], v[1], v[2]);
  return true;
}

bool VUITreeTextEdits::SetValue(Color value) {
  const double v[] = {value.r, value.g, value.b};
  return PutReals(PT_COLOR, v);
}

bool VUITreeTextEdits::GetValue(ColorA& out) {
  double v[4];
  if (!TakeReals(PT_COLORA, v)) return false;
  out = ColorA(v[0], v[1], v[2], v[3]);
  return true;
}

bool VUITreeTextEdits::SetValue(ColorA value) {
  const double v[] = {value.r, value.g, value.b, value.a};
  return PutReals(PT_COLORA, v);
}

bool VUITreeTextEdits::GetValue(VornString& out) {
  if (m_type != PT_STRING || !m_pFields) return false;
  out = m_pFields->TakeText();
  return true;
}

bool VUITreeTextEdits::SetValue(VornString value) {
  if (m_type != PT_STRING || !m_pFields) return false;
  m_pFields->PutText(value);
  return true;
}

void VUITreeTextEdits::OnUpdate(unsigned int id, VornControl* source, VornControlHint* hint) {
  // The fields hold the value: there is nothing to copy, only to report.
  if (IsInner(source)) NotifyParentGroup(id, source, hint);
}
