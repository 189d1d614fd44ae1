#import "pictures/ThumbnailCache.h"

#include <cmath>
#include <cstring>
#include <list>
#include <string>
#include <unordered_map>

#import "pictures/PictureItem.h"

NSString *const ThumbnailCacheDidLoadNotification = @"ThumbnailCacheDidLoadNotification";

namespace {

struct Entry {
  gallery::ThumbnailKey key;
  NSImage *image = nil;     // retained
  NSString *problem = nil;  // retained
  NSSize pixelSize = NSZeroSize;
  std::size_t bytes = 0;
};

NSImage *newImage(const gallery::Bitmap &bitmap) {
  NSBitmapImageRep *rep = [[NSBitmapImageRep alloc] initWithBitmapDataPlanes:NULL
                                                                  pixelsWide:bitmap.width
                                                                  pixelsHigh:bitmap.height
                                                               bitsPerSample:8
                                                             samplesPerPixel:4
                                                                    hasAlpha:YES
                                                                    isPlanar:NO
                                                              colorSpaceName:NSDeviceRGBColorSpace
                                                                 bytesPerRow:bitmap.width * 4
                                                                bitsPerPixel:32];
  std::memcpy([rep bitmapData], bitmap.pixels.data(), bitmap.pixels.size());
  NSImage *image = [[NSImage alloc] initWithSize:NSMakeSize(bitmap.width, bitmap.height)];
  [image addRepresentation:rep];
  [rep release];
  return image;
}

gallery::ThumbnailKey keyOf(PictureItem *item, NSSize box) {
  return {[item path],
          [item modified],
          static_cast<int>(std::lround(box.width)),
          static_cast<int>(std::lround(box.height))};
}

}  // namespace

struct ThumbnailCacheState {
  std::size_t limit;
  std::size_t used = 0;
  std::list<Entry> entries{};  // the most recently used first
  std::unordered_map<std::string, std::list<Entry>::iterator> byPath{};

  ~ThumbnailCacheState() {
    while (!entries.empty()) drop(entries.begin());
  }

  void drop(std::list<Entry>::iterator entry) {
    used -= entry->bytes;
    [entry->image release];
    [entry->problem release];
    byPath.erase(entry->key.path);
    entries.erase(entry);
  }

  // The entry of the picture as it is on disk now, or null.
  Entry *find(PictureItem *item) {
    const auto found = byPath.find([item path]);
    if (found == byPath.end() || found->second->key.modified != [item modified]) return nullptr;
    entries.splice(entries.begin(), entries, found->second);
    return &*found->second;
  }

  void put(const gallery::ThumbnailLoader::Result &result) {
    if (const auto old = byPath.find(result.key.path); old != byPath.end()) drop(old->second);
    const gallery::Thumbnail &thumbnail = result.thumbnail;
    Entry entry;
    entry.key = result.key;
    entry.pixelSize = NSMakeSize(thumbnail.pictureWidth, thumbnail.pictureHeight);
    if (thumbnail.bitmap.pixels.empty()) {
      entry.problem = [[NSString alloc] initWithUTF8String:thumbnail.problem.c_str()];
    } else {
      entry.image = newImage(thumbnail.bitmap);
    }
    // With what the entry itself takes, so that a million failures are bounded, too.
    entry.bytes = thumbnail.bitmap.pixels.size() + 512;
    used += entry.bytes;
    entries.push_front(entry);
    byPath[entry.key.path] = entries.begin();
    while (used > limit && entries.size() > 1) drop(std::prev(entries.end()));
  }
};

@implementation ThumbnailCache

- (id)initWithLimit:(std::size_t)bytes {
  self = [super init];
  if (!self) return nil;
  _state = new ThumbnailCacheState{.limit = bytes};
  _loader = std::make_unique<gallery::ThumbnailLoader>();
  return self;
}

- (void)dealloc {
  delete _state;
  [super dealloc];
}

- (void)close {
  [_timer invalidate];
  [_timer release];
  _timer = nil;
  _loader.reset();
}

- (NSImage *)imageForItem:(PictureItem *)item {
  Entry *entry = _state->find(item);
  return entry ? entry->image : nil;
}

- (NSString *)problemOfItem:(PictureItem *)item {
  Entry *entry = _state->find(item);
  return entry ? entry->problem : nil;
}

- (NSSize)pixelSizeOfItem:(PictureItem *)item {
  Entry *entry = _state->find(item);
  return entry ? entry->pixelSize : NSZeroSize;
}

- (void)loadItems:(NSArray *)items box:(NSSize)box {
  if (!_loader) return;
  std::vector<gallery::ThumbnailKey> missing;
  for (PictureItem *item in items) {
    gallery::ThumbnailKey key = keyOf(item, box);
    const Entry *entry = _state->find(item);
    if (entry && (entry->problem || entry->key == key)) continue;
    missing.push_back(std::move(key));
  }
  _loader->want(std::move(missing));
  if (_loader->outstanding() > 0 && !_timer) [self startTimer];
}

- (NSUInteger)outstanding {
  return _loader ? _loader->outstanding() : 0;
}

- (std::size_t)usedBytes {
  return _state->used;
}

// Also while the mouse is held down on a scroller or a slider.
- (void)startTimer {
  _timer = [[NSTimer timerWithTimeInterval:0.03
                                    target:self
                                  selector:@selector(takeResults:)
                                  userInfo:nil
                                   repeats:YES] retain];
  [[NSRunLoop currentRunLoop] addTimer:_timer forMode:NSDefaultRunLoopMode];
  [[NSRunLoop currentRunLoop] addTimer:_timer forMode:NSEventTrackingRunLoopMode];
}

- (void)takeResults:(NSTimer *)timer {
  (void)timer;
  [[self retain] autorelease];
  const auto results = _loader->takeResults();
  for (const auto &result : results) _state->put(result);
  if (_loader->outstanding() == 0) {
    [_timer invalidate];
    [_timer release];
    _timer = nil;
  }
  if (!results.empty()) {
    [[NSNotificationCenter defaultCenter] postNotificationName:ThumbnailCacheDidLoadNotification
                                                        object:self];
  }
}

@end
