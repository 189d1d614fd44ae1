// Explicit conversions between the rules' geometry and the platform's. Nothing converts
// implicitly, so that a reader sees where the layers meet.

#pragma once

#import <Foundation/Foundation.h>

#include "geometry/Geometry.h"

namespace ov {

static_assert(sizeof(Scalar) == sizeof(CGFloat));
static_assert(sizeof(Index) == sizeof(NSUInteger));
static_assert(kNoIndex == static_cast<NSUInteger>(NSNotFound));

inline Point fromNS(NSPoint p) { return {p.x, p.y}; }
inline Size fromNS(NSSize s) { return {s.width, s.height}; }
inline Rect fromNS(NSRect r) { return {r.origin.x, r.origin.y, r.size.width, r.size.height}; }
inline IndexRange fromNS(NSRange r) { return {r.location, r.length}; }

inline NSPoint toNS(Point p) { return NSMakePoint(p.x, p.y); }
inline NSSize toNS(Size s) { return NSMakeSize(s.width, s.height); }
inline NSRect toNS(const Rect& r) { return NSMakeRect(r.x, r.y, r.width, r.height); }
inline NSRange toNS(IndexRange r) { return NSMakeRange(r.location, r.length); }

}  // namespace ov
