// Pictures that the platform cannot be trusted with. Its readers overwrite memory for some
// layouts of TIFF, keep the rows of a PNG on the stack, and multiply sizes in 32 bits; a
// damaged TIFF comes back as an object that was released already. Whatever loads a picture of
// unknown origin asks here first. Removable once the readers check for themselves.

#pragma once

#import <AppKit/AppKit.h>

// Whether the bytes may be handed to the platform; NO for nil.
BOOL OvIsSafeImageData(NSData *data);

// The whole of a file, autoreleased, when it may be; nil for what is not a regular file, too,
// since reading another one may never end.
NSData *OvSafeImageDataWithContentsOfFile(NSString *path);

// What -initWithData: should be: takes over an allocated bitmap and answers it initialised, or
// releases it and answers nil, also for pictures whose damage shows only when they are read.
NSBitmapImageRep *OvInitBitmapWithData(NSBitmapImageRep *bitmap, NSData *data);

// An image that refers to a file, owned by the caller, in two resolutions where NAME@2x lies beside
// it; nil where there is no picture, or an unsafe one. The one way to make an image from a path of
// the host's.
NSImage *OvNewImageByReferencingFile(NSString *path) __attribute__((ns_returns_retained));

// The same for a URL, which the platform lacks; one that is no file's is loaded at once.
NSImage *OvNewImageByReferencingURL(NSURL *url) __attribute__((ns_returns_retained));
