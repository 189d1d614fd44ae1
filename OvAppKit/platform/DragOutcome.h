// What really became of a drag. The platform tells its source an operation other than none
// also for a drop on nothing, where it answers what the last window under the pointer (or,
// before the first, every window) had allowed, and for a drop that the view under it
// refused to perform. Removable once `draggedImage:endedAt:operation:` gets none then.

#pragma once

#import <AppKit/AppKit.h>

// Before the first drag whose outcome matters.
void OvWatchDrags();

// Called by the source of a drag in its draggedImage:endedAt:operation: with what it was told;
// without a drag of this source that is the answer. Of a drag to another program no more is
// known than what its window allowed before the drop; only a deletion is never one: X has no
// such thing, so the word must be left from a window of this program.
NSDragOperation OvOutcomeOfDrag(id source, NSDragOperation operation);
