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

NSMutableIndexSet *difference(NSIndexSet *set, NSIndexSet *without) {
  NSMutableIndexSet *result = [[set mutableCopy] autorelease];
  if (without != nil) [result removeIndexes:without];
  return result;
}

NSMutableIndexSet *intersection(NSIndexSet *a, NSIndexSet *b) {
  return difference(a, difference(a, b));
}

}  // namespace ov
