#import "FrameHost.h"

namespace {
int deadImages = 0;
}

@interface OvTestMortalImage : NSImage
@end
@implementation OvTestMortalImage
- (void)dealloc {
  ++deadImages;
  [super dealloc];
}
@end

namespace {

using ov::test::heldPicturePixels;
using ov::test::heldPictures;
using ov::test::kDefault;

// The documented limits: of one frame, of a container, of all.
constexpr long kBytesOfFrame = 2L << 20;
constexpr long kBytesOfContainer = 4L << 20;
constexpr long kBytes = 8L << 20;
constexpr int kFramesOfContainer = 64;
constexpr int kFrames = 256;

class FrameMemory : public ov::test::FrameTest {
 protected:
  void SetUp() override {
    FrameTest::SetUp();
    // So that the platform has made its copy of the image.
    draw(plain, NSMakeRect(0, 0, 50, 50));
    pictures = heldPictures();
    pixels = heldPicturePixels();
  }

  // Without looking at what was drawn.
  void compose(HXImageControlImageContainer *drawn, NSSize size) {
    @autoreleasepool {
      [view lockFocus];
      for (int i = 0; i < 3; ++i) {
        [drawn drawImageInRect:{NSMakePoint(5, 5), size} isFlipped:YES imageVariation:kDefault];
      }
      [view unlockFocus];
    }
  }
  HXImageControlImageContainer *another() {
    auto *made = [[[HXImageControlImageContainer alloc] init] autorelease];
    auto *segment = [[[HXImageSegment alloc] initWithImage:image] autorelease];
    [made setStrechableImage:segment leftCap:8 topCap:7 forImageVariation:kDefault];
    return made;
  }
  int added() const { return heldPictures() - pictures; }
  long addedBytes() const { return (heldPicturePixels() - pixels) * 4; }

  int pictures = 0;
  long pixels = 0;
};

TEST_F(FrameMemory, ManySmallFramesOfAContainer) {
  for (int i = 0; i < 3000; ++i) {
    compose(container, NSMakeSize(20 + i % 60, 20 + i / 60));
    ASSERT_LE(added(), kFramesOfContainer);
  }
  EXPECT_EQ(added(), kFramesOfContainer);
}

TEST_F(FrameMemory, LargeFramesOfAContainer) {
  for (int i = 0; i < 100; ++i) {
    compose(container, NSMakeSize(500 + i, 400));
    ASSERT_LE(addedBytes(), kBytesOfContainer);
  }
  EXPECT_GT(addedBytes(), kBytesOfContainer / 2);
}

TEST_F(FrameMemory, FramesOfManyContainers) {
  NSMutableArray *all = [NSMutableArray array];
  for (int i = 0; i < 20; ++i) {
    [all addObject:another()];
    for (int k = 0; k < 30; ++k) compose([all lastObject], NSMakeSize(30 + k, 30));
    ASSERT_LE(added(), kFrames);
  }
  EXPECT_EQ(added(), kFrames);
  for (int i = 0; i < 20; ++i) {
    for (int k = 0; k < 10; ++k) compose([all objectAtIndex:i], NSMakeSize(400, 300 + k));
    ASSERT_LE(addedBytes(), kBytes);
  }
  EXPECT_GT(addedBytes(), kBytes / 2);
}

TEST_F(FrameMemory, TheLongestUnusedGoesFirst) {
  const NSRect kept = NSMakeRect(10, 10, 100, 50);
  const NSRect unused = NSMakeRect(10, 10, 101, 50);
  composeFor(kept);
  composeFor(unused);
  for (int i = 0; i < kFramesOfContainer - 1; ++i) {
    compose(container, NSMakeSize(30 + i, 30));
    ASSERT_EQ(drawingsFor(kept), 0) << i;
  }
  EXPECT_EQ(drawingsFor(unused), 9);
  EXPECT_EQ(drawingsFor(kept), 0);
}

TEST_F(FrameMemory, AHugeFrameIsNeverComposed) {
  for (int i = 0; i < 4; ++i) {
    EXPECT_EQ(drawingsFor(NSMakeRect(-2000, -2000, 4000, 4000)), 9);
    EXPECT_EQ(drawingsFor(NSMakeRect(-1e30, -1e30, 2e30, 2e30)), 9);
  }
  EXPECT_EQ(added(), 0);
  const CGFloat side = 724;  // 724 x 724 x 4 is just within
  static_assert(724 * 724 * 4 <= kBytesOfFrame && 725 * 725 * 4 > kBytesOfFrame);
  composeFor(NSMakeRect(0, 0, side, side));
  for (int i = 0; i < 3; ++i) EXPECT_EQ(drawingsFor(NSMakeRect(0, 0, side + 1, side + 1)), 9);
}

TEST_F(FrameMemory, PicturesGoWithTheirContainer) {
  @autoreleasepool {
    HXImageControlImageContainer *made = another();
    for (int i = 0; i < 20; ++i) compose(made, NSMakeSize(30 + i, 30));
    EXPECT_EQ(added(), 20);
  }
  EXPECT_EQ(added(), 0);
}

TEST_F(FrameMemory, PicturesGoWithWhatTheyShow) {
  compose(container, NSMakeSize(60, 40));
  compose(container, NSMakeSize(61, 40));
  EXPECT_EQ(added(), 2);
  const NSUInteger holders = [image retainCount];
  [container removeAllImagesForImageKey:HXImageControlImagePartTop];
  EXPECT_EQ(added(), 0);
  EXPECT_LT([image retainCount], holders);
  compose(container, NSMakeSize(60, 40));
  EXPECT_EQ(added(), 1);
  [image recache];
  draw(container, NSMakeRect(5, 5, 60, 40));
  EXPECT_EQ(added(), 0) << "but for the platform's new copy in place of its old one";
}

TEST_F(FrameMemory, ImagesGoWithTheContainer) {
  const int deaths = deadImages;
  @autoreleasepool {
    auto *made = [[[HXImageControlImageContainer alloc] init] autorelease];
    @autoreleasepool {
      auto *own = [[[OvTestMortalImage alloc] initWithSize:NSMakeSize(24, 24)] autorelease];
      [own addRepresentation:[[image representations] objectAtIndex:0]];
      auto *segment = [[[HXImageSegment alloc] initWithImage:own] autorelease];
      [made setStrechableImage:segment leftCap:8 topCap:7 forImageVariation:kDefault];
    }
    compose(made, NSMakeSize(60, 40));
    EXPECT_GE(added(), 2) << "a frame, and the platform's copy";
    [made removeAllImages];
    EXPECT_EQ(deadImages, deaths + 1);
  }
  EXPECT_EQ(added(), 0);
}

TEST_F(FrameMemory, WithoutAContextNothingHappens) {
  [NSGraphicsContext setCurrentContext:nil];
  for (int i = 0; i < 4; ++i) {
    [container drawImageInRect:NSMakeRect(0, 0, 60, 40) isFlipped:YES imageVariation:kDefault];
  }
  EXPECT_EQ(added(), 0);
}

}  // namespace
