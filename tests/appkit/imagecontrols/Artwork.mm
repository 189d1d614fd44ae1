#import "Artwork.h"

namespace {
int deadImages = 0;
}

@implementation OvTestArtView
- (BOOL)isFlipped {
  return flipped;
}
- (void)drawRect:(NSRect)rect {
  [[NSColor whiteColor] set];
  NSRectFill([self bounds]);
  if (draw) draw();
}
@end

@implementation OvTestImage
+ (int)deaths {
  return deadImages;
}
- (void)dealloc {
  ++deadImages;
  [super dealloc];
}
@end

@implementation OvTestContainer
- (HXImageSegment *)segmentForPart:(HXImageControlImagePart)part
                         variation:(HXImageControlImageVariation)variation {
  return imageSegments_[part][variation];
}
@end

namespace ov::test {

NSBitmapImageRep *bitmapOf(const Rows &rows) {
  NSBitmapImageRep *bitmap =
      emptyBitmap(static_cast<NSInteger>(rows[0].size()), static_cast<NSInteger>(rows.size()));
  unsigned char *sample = [bitmap bitmapData];
  for (const auto &row : rows) {
    for (const Pixel &pixel : row) {
      for (const int value : {pixel.r, pixel.g, pixel.b, pixel.a}) {
        *sample++ = static_cast<unsigned char>(value);
      }
    }
  }
  return bitmap;
}

NSImage *imageOf(const Rows &rows, Class imageClass) {
  NSBitmapImageRep *bitmap = bitmapOf(rows);
  NSImage *image = [[[imageClass alloc] initWithSize:[bitmap size]] autorelease];
  [image addRepresentation:bitmap];
  return image;
}

Rows enlarged(const Rows &rows, int factor) {
  Rows result;
  for (const auto &row : rows) {
    std::vector<Pixel> wide;
    for (const Pixel &pixel : row) wide.insert(wide.end(), static_cast<size_t>(factor), pixel);
    result.insert(result.end(), static_cast<size_t>(factor), wide);
  }
  return result;
}

NSData *pngOf(const Rows &rows) {
  return [bitmapOf(rows) representationUsingType:NSPNGFileType
                                      properties:[NSDictionary dictionary]];
}

Rows plain(int width, int height, const Pixel &color) {
  return Rows(static_cast<size_t>(height), std::vector<Pixel>(static_cast<size_t>(width), color));
}

Rows corners() { return enlarged({{kRed, kGreen}, {kBlue, kYellow}}, 5); }

Picture drawn(NSSize size, BOOL flipped, const std::function<void()> &draw) {
  NSWindow *window =
      [[[NSWindow alloc] initWithContentRect:NSMakeRect(0, 0, size.width, size.height)
                                   styleMask:NSBorderlessWindowMask
                                     backing:NSBackingStoreBuffered
                                       defer:NO] autorelease];
  [window setReleasedWhenClosed:NO];
  const NSRect frame = NSMakeRect(0, 0, size.width, size.height);
  OvTestArtView *view = [[[OvTestArtView alloc] initWithFrame:frame] autorelease];
  view->flipped = flipped;
  view->draw = draw;
  [window setContentView:view];
  return pictureOf(view);
}

testing::AssertionResult isAll(const Picture &picture, NSRect rect, const Pixel &color) {
  for (int y = static_cast<int>(NSMinY(rect)); y < NSMaxY(rect); y++) {
    for (int x = static_cast<int>(NSMinX(rect)); x < NSMaxX(rect); x++) {
      if (near(picture.at(x, y), color)) continue;
      return testing::AssertionFailure() << picture.at(x, y) << " at (" << x << ", " << y << ")";
    }
  }
  return testing::AssertionSuccess();
}

NSString *ArtBundle::put(NSString *name, NSData *data) const {
  return folder_.write([@"Art.bundle/Resources" stringByAppendingPathComponent:name], data);
}

NSBundle *ArtBundle::bundle(Class bundleClass) const {
  NSString *path = folder_.path(@"Art.bundle");
  std::filesystem::create_directories([path fileSystemRepresentation]);
  return [[[bundleClass alloc] initWithPath:path] autorelease];
}

}  // namespace ov::test
