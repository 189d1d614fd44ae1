// One step of a rubber band on a selection record, by what the step changes.
//
// The record that a band makes is defined afresh at each step, from the selection at the
// press: with Shift the covered items added to it, with Command each covered item toggled,
// with neither the covered items alone; items being taken in ascending order, which decides
// the record's two ends. Where no delegate has a say this gives the same record, set and
// ends, from the one of the step before.

#pragma once

#import <Foundation/Foundation.h>
#import <OvAppKit/HXMatrixViewSelectionInfo.h>

#include "matrix/BandCoverage.h"

namespace ov {

enum class BandMode { replace, extend, toggle };

struct BandStep {
  NSMutableIndexSet *added;    // autoreleased
  NSMutableIndexSet *removed;  // autoreleased

  bool isEmpty() const { return [added count] == 0 && [removed count] == 0; }
};

// What changes between the record that `from` makes of the one before the press and the one
// that `to` makes of it. Both coverages are of one layout.
BandStep bandStep(HXMatrixViewSelectionInfo *beforePress, const BandCoverage &from,
                  const BandCoverage &to, BandMode mode);

// Edits the first record into the second by a step that is not empty.
void applyBandStep(const BandStep &step, HXMatrixViewSelectionInfo *record,
                   HXMatrixViewSelectionInfo *beforePress, const BandCoverage &to, BandMode mode);

}  // namespace ov
