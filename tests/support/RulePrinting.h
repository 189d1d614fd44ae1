// How the rules' values look in a failed comparison.

#pragma once

#include <ostream>

#include "geometry/Geometry.h"

namespace ov {

inline void PrintTo(const Point& p, std::ostream* out) { *out << "(" << p.x << ", " << p.y << ")"; }
inline void PrintTo(const Size& s, std::ostream* out) { *out << s.width << " x " << s.height; }
inline void PrintTo(const Rect& r, std::ostream* out) {
  *out << "{" << r.x << ", " << r.y << ", " << r.width << " x " << r.height << "}";
}
inline void PrintTo(const IndexRange& r, std::ostream* out) {
  *out << "(" << r.location << ", " << r.length << ")";
}

}  // namespace ov
