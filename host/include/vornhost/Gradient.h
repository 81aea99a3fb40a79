#pragma once
// A colour gradient: control points at positions 0..1, each with a colour and
// three user marks. Point indices are stable handles starting at 1 (0 is
// never a valid index), assigned in creation order and never reused.
#include <vector>

#include "vornhost/Color.h"

class Gradient {
 public:
  struct CONTROL_POINT {
    unsigned int index = 0;
    double position = 0.0;
    Color colour;
    bool mark1 = false, mark2 = false, mark3 = false;
  };

  Gradient() = default;

  // Adds a point (its index field is ignored) and returns the new index.
  unsigned int AddPoint(double position, const Color& colour);
  unsigned int AddPoint(const CONTROL_POINT& point);
  // False for an unknown index.
  bool DeletePoint(unsigned int index);
  // The point nearest to position; false when the gradient has no point.
  // Ties go to the point added first.
  bool GetClosest(double position, CONTROL_POINT& out) const;
  // Linear interpolation between the sorted points; clamps to the end points
  // outside them; black for an empty gradient.
  Color GetColour(double position) const;
  bool GetPoint(unsigned int index, CONTROL_POINT& out) const;  // false for a bad index
  bool SetPoint(unsigned int index, const CONTROL_POINT& point);  // keeps the index
  // Points ordered by position (stable for equal positions).
  std::vector<CONTROL_POINT> GetSortedPoints() const;
  int GetNumPoints() const { return static_cast<int>(m_points.size()); }
  void Clear() { m_points.clear(); }

 private:
  std::vector<CONTROL_POINT> m_points;  // in creation order
  unsigned int m_nextIndex = 1;
};
