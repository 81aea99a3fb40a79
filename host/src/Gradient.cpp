#include "vornhost/Gradient.h"

#include <algorithm>
#include <cmath>

unsigned int Gradient::AddPoint(double position, const Color& colour) {
  CONTROL_POINT point;
  point.position = position;
  point.colour = colour;
  return AddPoint(point);
}

unsigned int Gradient::AddPoint(const CONTROL_POINT& point) {
  m_points.push_back(point);
  m_points.back().index = m_nextIndex++;
  return m_points.back().index;
}

bool Gradient::DeletePoint(unsigned int index) {
  auto it = std::find_if(m_points.begin(), m_points.end(),
                         [index](const CONTROL_POINT& p) { return p.index == index; });
  if (index == 0 || it == m_points.end()) return false;
  m_points.erase(it);
  return true;
}

bool Gradient::GetClosest(double position, CONTROL_POINT& out) const {
  const CONTROL_POINT* best = nullptr;
  double bestDistance = 0.0;
  for (const CONTROL_POINT& p : m_points) {
    const double d = std::fabs(p.position - position);
    if (!best || d < bestDistance) {  // strict: ties keep the earlier point
      best = &p;
      bestDistance = d;
    }
  }
  if (!best) return false;
  out = *best;
  return true;
}

Color Gradient::GetColour(double position) const {
  if (m_points.empty()) return Color();
  const std::vector<CONTROL_POINT> sorted = GetSortedPoints();
  // First point strictly after the position; its predecessor is at or before.
  auto after =
      std::upper_bound(sorted.begin(), sorted.end(), position,
                       [](double pos, const CONTROL_POINT& p) { return pos < p.position; });
  if (after == sorted.begin()) return sorted.front().colour;
  if (after == sorted.end()) return sorted.back().colour;
  const CONTROL_POINT& a = *(after - 1);
  const CONTROL_POINT& b = *after;
  const double t = (position - a.position) / (b.position - a.position);
  return Color(a.colour.r + (b.colour.r - a.colour.r) * t,
               a.colour.g + (b.colour.g - a.colour.g) * t,
               a.colour.b + (b.colour.b - a.colour.b) * t);
}

bool Gradient::GetPoint(unsigned int index, CONTROL_POINT& out) const {
  for (const CONTROL_POINT& p : m_points) {
    if (index != 0 && p.index == index) {
      out = p;
      return true;
    }
  }
  return false;
}

bool Gradient::SetPoint(unsigned int index, const CONTROL_POINT& point) {
  for (CONTROL_POINT& p : m_points) {
    if (index != 0 && p.index == index) {
      p = point;
      p.index = index;
      return true;
    }
  }
  return false;
}

std::vector<Gradient::CONTROL_POINT> Gradient::GetSortedPoints() const {
  std::vector<CONTROL_POINT> sorted = m_points;
  std::stable_sort(
      sorted.begin(), sorted.end(),
      [](const CONTROL_POINT& a, const CONTROL_POINT& b) { return a.position < b.position; });
  return sorted;
}
