// What the platform's keyed archives lose of a button's cell: that it shows its border only while
// the mouse is inside (it is written, and read as an 8, of which the last bit is kept), and the
// image position of a cell without an image.
//
//   - (id)initWithCoder:(NSCoder *)coder {
//     self = [super initWithCoder:coder];
//     if (self != nil) ov::decodeLostParts(self, coder);
//     return self;
//   }
//
// Removable once the platform keeps both.

#pragma once

#import <AppKit/AppKit.h>

namespace ov {

// After the inherited methods; neither does anything in a sequential archive.
void encodeLostParts(NSButtonCell *cell, NSCoder *coder);
void decodeLostParts(NSButtonCell *cell, NSCoder *coder);

}  // namespace ov
