// Values of every type kept as they were set, for controls that stand in
// for a parameter without editing it.
#include "vorn/VUIControls.h"

namespace {
template <class T>
bool Put(T& slot, const T& value) {
  slot = value;
  return true;
}
}  // namespace

bool VUITreeStoredValues::GetValue(int32& out) {
  return Put(out, m_int);
}
bool VUITreeStoredValues::SetValue(int32 value) {
  return Put(m_int, value);
}
bool VUITreeStoredValues::GetValue(double& out) {
  return Put(out, m_real);
}
bool VUITreeStoredValues::SetValue(double value) {
  return Put(m_real, value);
}
bool VUITreeStoredValues::GetValue(Vec2d& out) {
  return Put(out, m_vec2);
}
bool VUITreeStoredValues::SetValue(Vec2d value) {
  return Put(m_vec2, value);
}
bool VUITreeStoredValues::GetValue(Vec3d& out) {
  return Put(out, m_vec3);
}
bool VUITreeStoredValues::SetValue(Vec3d value) {
  return Put(m_vec3, value);
}
bool VUITreeStoredValues::GetValue(Vec4d& out) {
  return Put(out, m_vec4);
}
bool VUITreeStoredValues::SetValue(Vec4d value) {
  return Put(m_vec4, value);
}
bool VUITreeStoredValues::GetValue(Quaternion& out) {
  return Put(out, m_quaternion);
}
bool VUITreeStoredValues::SetValue(Quaternion value) {
  return Put(m_quaternion, value);
}
bool VUITreeStoredValues::GetValue(Color& out) {
  return Put(out, m_color);
}
bool VUITreeStoredValues::SetValue(Color value) {
  return Put(m_color, value);
}
bool VUITreeStoredValues::GetValue(ColorA& out) {
  return Put(out, m_colorA);
}
bool VUITreeStoredValues::SetValue(ColorA value) {
  return Put(m_colorA, value);
}
bool VUITreeStoredValues::GetValue(VornString& out) {
  return Put(out, m_string);
}
bool VUITreeStoredValues::SetValue(VornString value) {
  return Put(m_string, value);
}
