#include "support/IndexRanges.h"

namespace ov {

NSUInteger endOfRun(NSIndexSet *set, NSUInteger first) {
  NSUInteger end = first + 1;
  const NSUInteger limit = NSNotFound;  // no set holds it
  NSUInteger step = 1;
  // Double the reach while it holds, then halve what is left.
  while (step < limit - end && [set containsIndexesInRange:NSMakeRange(end, step)]) {
    end += step;
    step *= 2;
  }
  for (; step > 0; step /= 2) {
    if (step < limit - end && [set containsIndexesInRange:NSMakeRange(end, step)]) end += step;
  }
  return end;
}

// Run by run into a new set: taking runs out of a set of many moves all that follow.
NSMutableIndexSet *difference(NSIndexSet *set, NSIndexSet *without) {
  NSMutableIndexSet *result = [NSMutableIndexSet indexSet];
  forEachRange(set, [&](NSRange run) {
    eachRunWithin(without, run, [&](NSRange part, bool held) {
      if (!held) [result addIndexesInRange:part];
    });
  });
  return result;
}

}  // namespace ov
