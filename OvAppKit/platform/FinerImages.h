// Pictures for finer screens: NAME@2x beside NAME, with twice as many pixels each way. AppKit finds
// them by itself; the platform keeps several resolutions in an image and chooses among them, but
// does not look for the file.

#pragma once

#import <AppKit/AppKit.h>

// Adds the finer picture beside the file that the image comes from, if there is one of exactly
// twice the image's size, and a safe one. The image keeps its size.
void OvAddFinerRepresentation(NSImage *image, NSString *path);
