// The thumbnails that are in memory, within a limit; the ones not used for longest go first.
#import <AppKit/AppKit.h>

#include <cstddef>
#include <memory>

#include "pictures/ThumbnailLoader.h"

@class PictureItem;

// Posted, with the cache as the object, when thumbnails have arrived.
extern NSString *const ThumbnailCacheDidLoadNotification;

@interface ThumbnailCache : NSObject {
  struct ThumbnailCacheState *_state;
  std::unique_ptr<gallery::ThumbnailLoader> _loader;
  NSTimer *_timer;
}

- (id)initWithLimit:(std::size_t)bytes;
// Stops loading. To be sent before the last release.
- (void)close;

// What there is of a picture: its thumbnail (of another size, while the right one is on its
// way), or nil while it is being read and when it cannot be read.
- (NSImage *)imageForItem:(PictureItem *)item;
// Why a picture cannot be read, or nil.
- (NSString *)problemOfItem:(PictureItem *)item;
// The picture's own size in pixels; zero while it is not known.
- (NSSize)pixelSizeOfItem:(PictureItem *)item;

// Loads, in this order, those of the items that are not there at this size (in points); and
// nothing that was asked for before.
- (void)loadItems:(NSArray *)items box:(NSSize)box;
// How many are on their way.
- (NSUInteger)outstanding;
// The pixels' memory in bytes.
- (std::size_t)usedBytes;

@end
