#include "matrix/BandSelection.h"

#include "support/GeometryBridge.h"
#include "support/IndexRanges.h"

namespace ov {
namespace {

// The first item of a run that a set does not hold; NSNotFound when it holds them all.
NSUInteger firstMissing(NSIndexSet *set, IndexRange run) {
  if (![set containsIndex:run.location]) return run.location;
  const NSUInteger end = endOfRun(set, run.location);
  return end < run.end() ? end : static_cast<NSUInteger>(NSNotFound);
}

// The last one; a set that holds the end of a run holds all from some index on.
NSUInteger lastMissing(NSIndexSet *set, IndexRange run) {
  NSUInteger low = run.location;
  NSUInteger high = run.end();  // the set holds [high, end)
  while (low < high) {
    const NSUInteger middle = low + (high - low) / 2;
    if ([set containsIndexesInRange:NSMakeRange(middle, run.end() - middle)]) {
      high = middle;
    } else {
      low = middle + 1;
    }
  }
  return high > run.location ? high - 1 : static_cast<NSUInteger>(NSNotFound);
}

// The lowest covered item above an index that a set does not hold.
NSUInteger firstMissingAbove(NSIndexSet *set, const BandCoverage &covered, NSUInteger index) {
  for (Index k = covered.runOf(index); k < covered.runCount(); ++k) {
    IndexRange run = covered.run(k);
    if (run.end() <= index + 1) continue;
    if (run.location <= index) run = {index + 1, run.end() - index - 1};
    const NSUInteger missing = firstMissing(set, run);
    if (missing != NSNotFound) return missing;
  }
  return NSNotFound;
}

NSUInteger lastMissing(NSIndexSet *set, const BandCoverage &covered) {
  for (Index k = covered.runCount(); k-- > 0;) {
    const NSUInteger missing = lastMissing(set, covered.run(k));
    if (missing != NSNotFound) return missing;
  }
  return NSNotFound;
}

// Where the anchor ends up when each covered item is toggled in ascending order: it stays
// unless it is toggled away, and then becomes the lowest item at that moment, again and
// again.
NSUInteger anchorAfterToggle(NSIndexSet *result, NSIndexSet *before, NSUInteger anchor,
                             const BandCoverage &covered) {
  if (anchor == NSNotFound) return covered.first();
  if (!covered.contains(anchor)) return anchor;
  // What lies below it has been toggled already.
  if ([result firstIndex] < anchor) return [result firstIndex];
  const NSUInteger added = firstMissingAbove(before, covered, anchor);
  NSUInteger next = [before indexGreaterThanIndex:anchor];
  while (next != NSNotFound && covered.contains(next) && next < added) {
    const NSUInteger runEnd = endOfRun(before, next);
    const NSUInteger coveredEnd = covered.run(covered.runOf(next)).end();
    next = [before indexGreaterThanIndex:std::min(runEnd, coveredEnd) - 1];
  }
  if (next == NSNotFound) return added;
  return covered.contains(next) ? added : next;
}

NSUInteger lastAfterToggle(NSIndexSet *result, NSIndexSet *before, NSUInteger last,
                           const BandCoverage &covered) {
  const NSUInteger added = lastMissing(before, covered);
  if (added != NSNotFound) return added;
  return covered.contains(last) ? [result lastIndex] : last;
}

}  // namespace

BandStep bandStep(HXMatrixViewSelectionInfo *beforePress, const BandCoverage &from,
                  const BandCoverage &to, BandMode mode) {
  BandStep step = {[NSMutableIndexSet indexSet], [NSMutableIndexSet indexSet]};
  NSIndexSet *before = [beforePress selectionIndexes];
  // Sorts a run into what the set before the press holds and what it does not.
  const auto change = [&](IndexRange run, NSMutableIndexSet *fresh, NSMutableIndexSet *held) {
    if (mode == BandMode::replace) {
      [fresh addIndexesInRange:toNS(run)];
      return;
    }
    eachRunWithin(before, toNS(run), [&](NSRange part, bool isHeld) {
      [isHeld ? held : fresh addIndexesInRange:part];
    });
  };
  const bool toggles = mode == BandMode::toggle;
  to.eachRunWithout(from,
                    [&](IndexRange run) { change(run, step.added, toggles ? step.removed : nil); });
  from.eachRunWithout(
      to, [&](IndexRange run) { change(run, step.removed, toggles ? step.added : nil); });
  return step;
}

void applyBandStep(const BandStep &step, HXMatrixViewSelectionInfo *record,
                   HXMatrixViewSelectionInfo *beforePress, const BandCoverage &to, BandMode mode) {
  NSIndexSet *before = [beforePress selectionIndexes];
  NSMutableIndexSet *result = [record selectionIndexes];
  [result removeIndexes:step.removed];
  [result addIndexes:step.added];
  switch (mode) {
    case BandMode::replace:
      [record setFirstSelectionIndex:to.first()];
      [record setLastSelectionIndex:to.last()];
      break;
    case BandMode::extend: {
      const NSUInteger anchor = [beforePress firstSelectionIndex];
      const NSUInteger added = lastMissing(before, to);
      [record setFirstSelectionIndex:anchor != NSNotFound ? anchor : to.first()];
      [record setLastSelectionIndex:added != NSNotFound ? added : [beforePress lastSelectionIndex]];
      break;
    }
    case BandMode::toggle:
      [record setFirstSelectionIndex:anchorAfterToggle(result, before,
                                                       [beforePress firstSelectionIndex], to)];
      [record setLastSelectionIndex:lastAfterToggle(result, before,
                                                    [beforePress lastSelectionIndex], to)];
      break;
  }
}

}  // namespace ov
