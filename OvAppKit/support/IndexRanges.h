// Index sets by their ranges, so that a set of a million neighbours costs what a set of
// one does.

#pragma once

#import <Foundation/Foundation.h>

#include <algorithm>

namespace ov {

// The end of the run of indexes in a set that begins with an index of it.
NSUInteger endOfRun(NSIndexSet *set, NSUInteger first);

// Calls body(NSRange) for each run of neighbouring indexes, in ascending order.
template <typename Body>
void forEachRange(NSIndexSet *set, Body body) {
  NSUInteger first = [set firstIndex];
  while (first != NSNotFound) {
    const NSUInteger end = endOfRun(set, first);
    body(NSMakeRange(first, end - first));
    first = [set indexGreaterThanIndex:end - 1];
  }
}

// Calls body(NSRange, bool held) for the parts of a range that a set holds and does not hold,
// in ascending order.
template <typename Body>
void eachRunWithin(NSIndexSet *set, NSRange range, Body body) {
  const NSUInteger end = NSMaxRange(range);
  for (NSUInteger position = range.location; position < end;) {
    const bool held = [set containsIndex:position];
    NSUInteger partEnd = held ? endOfRun(set, position) : [set indexGreaterThanIndex:position];
    // No set at all answers 0; NSNotFound lies beyond every range.
    if (set == nil || partEnd > end) partEnd = end;
    body(NSMakeRange(position, partEnd - position), held);
    position = partEnd;
  }
}

// Calls body(NSUInteger) for each index, in ascending order.
template <typename Body>
void forEachIndex(NSIndexSet *set, Body body) {
  for (NSUInteger i = [set firstIndex]; i != NSNotFound; i = [set indexGreaterThanIndex:i]) {
    body(i);
  }
}

// A new, autoreleased set.
NSMutableIndexSet *difference(NSIndexSet *set, NSIndexSet *without);

}  // namespace ov
