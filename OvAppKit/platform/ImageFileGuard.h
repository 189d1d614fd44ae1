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

// What -initByReferencingFile: should be: an image of the picture in a file, owned by the caller;
// nil where there is no picture, a damaged or an unsafe one. The one way to make an image from a
// path of the host's. The file is read once, and at once: the platform puts that off only until
// somebody asks for the size, as segments do, and would read a file that may be another one by then
// than what was looked at.
NSImage *OvNewImageByReferencingFile(NSString *path) __attribute__((ns_returns_retained));

// The same for a URL, which the platform lacks.
NSImage *OvNewImageByReferencingURL(NSURL *url) __attribute__((ns_returns_retained));
