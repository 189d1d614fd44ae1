// Images drawn as AppKit draws them: upright in flipped views, too, where the platform's
// `drawInRect:fromRect:operation:fraction:` turns them upside down; and not at all into an
// empty rectangle, which the platform takes for the image's own size, or without a graphics
// context, which it takes for granted. What a rectangle of an image has outside of the image is not
// drawn; the platform would shift and stretch the rest of it.

#pragma once

#import <AppKit/AppKit.h>

// The whole image, into the focused view.
void OvDrawWholeImage(NSImage *image, NSRect destination, NSCompositingOperation operation,
                      CGFloat fraction);

// A rectangle of the image, stretched; the zero rectangle is the whole. y grows downward in the
// source rectangle where the view's does (flipped), so that the part at the smaller y lands at the
// smaller y. Source-over, opaque.
void OvDrawImagePart(NSImage *image, NSRect destination, NSRect source, BOOL flipped);
