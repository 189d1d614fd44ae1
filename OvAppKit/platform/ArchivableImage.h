// Images for an archive. The platform archives an image that was made from a file by its name
// alone, also when it has none, and one that was drawn into as nothing in a sequential archive;
// either comes back empty. Removable once it archives what an image shows.

#pragma once

#import <AppKit/AppKit.h>

// An image with the same size and the same bitmaps, autoreleased; one that has none is drawn into
// one. It has no name. nil for nil.
NSImage *OvArchivableImage(NSImage *image);
