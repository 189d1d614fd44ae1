#include <limits>

#import "Artwork.h"

@interface OvTestSegment : HXImageSegment
@end
@implementation OvTestSegment
@end

/* Of no file; its data is at hand. */
@interface OvTestURL : NSURL {
 @public
  NSData *content;
}
@end

@implementation OvTestURL
- (BOOL)isFileURL {
  return NO;
}
- (NSData *)resourceDataUsingCache:(BOOL)usesCache {
  return content;
}
@end

namespace {

using ov::test::corners;
using ov::test::imageOf;
using ov::test::pngOf;

class ImageSegment : public ov::test::LiveTest {
 protected:
  HXImageSegment *withPath(NSString *path) {
    return [[[HXImageSegment alloc] initWithPath:path] autorelease];
  }
  HXImageSegment *withURL(NSURL *url) {
    return [[[HXImageSegment alloc] initWithURL:url] autorelease];
  }
  ov::test::ImageFolder folder;
};

TEST_F(ImageSegment, IsTheWholeImageAtFirst) {
  NSImage *image = imageOf(corners());
  HXImageSegment *segment = [[[HXImageSegment alloc] initWithImage:image] autorelease];
  EXPECT_EQ([segment image], image);
  EXPECT_EQ([segment rect], NSMakeRect(0, 0, 10, 10));
  // Its size of then counts.
  [image setSize:NSMakeSize(20, 30)];
  EXPECT_EQ([segment rect], NSMakeRect(0, 0, 10, 10));
}

TEST_F(ImageSegment, OfNothingIsEmpty) {
  for (HXImageSegment *segment : {[[[HXImageSegment alloc] initWithImage:nil] autorelease],
                                  [[[HXImageSegment alloc] init] autorelease]}) {
    ASSERT_NE(segment, nil);
    EXPECT_EQ([segment image], nil);
    EXPECT_EQ([segment rect], NSZeroRect);
    EXPECT_EQ([[segment imageSegmentWithRect:NSMakeRect(1, 2, 3, 4)] image], nil);
  }
}

TEST_F(ImageSegment, KeepsTheRectangleAsItIs) {
  constexpr CGFloat kNaN = std::numeric_limits<CGFloat>::quiet_NaN();
  NSImage *image = imageOf(corners());
  for (const NSRect rect : {NSMakeRect(1, 2, 3, 4), NSMakeRect(-5, 50, -3, 1000), NSZeroRect,
                            NSMakeRect(0.1, 0.2, 3.3, 1)}) {
    HXImageSegment *segment = [[[HXImageSegment alloc] initWithImage:image rect:rect] autorelease];
    EXPECT_EQ([segment rect], rect);
    EXPECT_EQ([segment image], image);
  }
  const NSRect bad =
      [[[[HXImageSegment alloc] initWithImage:image
                                         rect:NSMakeRect(kNaN, 0, 1, kNaN)] autorelease] rect];
  EXPECT_NE(NSMinX(bad), NSMinX(bad));
  EXPECT_NE(NSHeight(bad), NSHeight(bad));
}

TEST_F(ImageSegment, HoldsTheImage) {
  const int before = [OvTestImage deaths];
  HXImageSegment *segment = nil;
  HXImageSegment *part = nil;
  @autoreleasepool {
    segment = [[HXImageSegment alloc] initWithImage:imageOf(corners(), [OvTestImage class])];
    part = [[segment imageSegmentWithRect:NSMakeRect(0, 0, 5, 5)] retain];
  }
  [segment release];
  EXPECT_EQ([OvTestImage deaths], before);
  [part release];
  EXPECT_EQ([OvTestImage deaths], before + 1);
}

TEST_F(ImageSegment, PartsAreOfItsClassAndShareTheImage) {
  NSImage *image = imageOf(corners());
  OvTestSegment *segment =
      [[[OvTestSegment alloc] initWithImage:image rect:NSMakeRect(5, 5, 5, 5)] autorelease];
  HXImageSegment *part = [segment imageSegmentWithRect:NSMakeRect(1, 2, 3, 4)];
  EXPECT_NE(part, segment);
  EXPECT_EQ([part class], [OvTestSegment class]);
  EXPECT_EQ([part image], image);
  EXPECT_EQ([part rect], NSMakeRect(1, 2, 3, 4)) << "in the image, not in the segment";
  EXPECT_EQ([segment rect], NSMakeRect(5, 5, 5, 5));
}

TEST_F(ImageSegment, PartsAreAutoreleased) {
  HXImageSegment *segment = [[[HXImageSegment alloc] initWithImage:imageOf(corners())] autorelease];
  @autoreleasepool {
    HXImageSegment *part = [segment imageSegmentWithRect:NSZeroRect];
    EXPECT_EQ([part retainCount], 1u);
  }
}

TEST_F(ImageSegment, ReadsFiles) {
  NSString *path = folder.write(@"art.png", pngOf(corners()));
  for (HXImageSegment *segment : {withPath(path), withURL([NSURL fileURLWithPath:path])}) {
    EXPECT_EQ([segment rect], NSMakeRect(0, 0, 10, 10));
    EXPECT_EQ(ov::test::pictureOfImage([segment image]).at(0, 0), ov::test::kRed);
  }
}

// Only the segment keeps the image alive.
TEST_F(ImageSegment, AnImageOfAFileGoesWithIt) {
  NSString *path = folder.write(@"art.png", pngOf(corners()));
  HXImageSegment *segment = nil;
  @autoreleasepool {
    segment = [[HXImageSegment alloc] initWithPath:path];
    // The platform's own passing references.
    [[segment image] size];
  }
  EXPECT_EQ([[segment image] retainCount], 1u);
  [segment release];
}

TEST_F(ImageSegment, ReadsOtherURLs) {
  OvTestURL *url = [[[OvTestURL alloc] initWithString:@"http://localhost/art.png"] autorelease];
  url->content = pngOf(corners());
  EXPECT_EQ([withURL(url) rect], NSMakeRect(0, 0, 10, 10));
  url->content = ov::test::grayTIFF(2, 1);
  EXPECT_EQ([withURL(url) image], nil);
  url->content = nil;
  EXPECT_EQ([withURL(url) image], nil);
}

TEST_F(ImageSegment, OfAFileThatIsNotThereIsEmpty) {
  for (HXImageSegment *segment :
       {withPath(nil), withPath(@""), withPath(folder.path(@"none.png")), withPath(@"none"),
        withURL(nil), withURL([NSURL fileURLWithPath:folder.path(@"none.png")])}) {
    ASSERT_NE(segment, nil);
    EXPECT_EQ([segment image], nil);
    EXPECT_EQ([segment rect], NSZeroRect);
  }
}

TEST_F(ImageSegment, TheNameSaysNothingAboutTheKindOfPicture) {
  for (NSString *name in @[ @"art.png", @"art.gif", @"art", @"art.doc" ]) {
    NSString *path = folder.write(name, ov::test::encoded(NSTIFFFileType));
    EXPECT_EQ([withPath(path) rect], NSMakeRect(0, 0, 4, 2)) << [name UTF8String];
  }
}

}  // namespace
