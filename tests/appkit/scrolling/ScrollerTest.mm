#import "ScrollerTest.h"

#include <sstream>

#include <objc/runtime.h>

using namespace ov::test;

// Takes the place of a container. Tells of what is asked of it.
@interface OvTestScrollerPart : NSObject {
 @public
  NSString *name;
  NSSize size;
  NSArray *missing;
}
@end

@implementation OvTestScrollerPart

- (void)dealloc {
  [name release];
  [missing release];
  [super dealloc];
}

- (BOOL)containsImageForKey:(NSString *)key {
  return ![missing containsObject:key];
}

- (NSSize)imageSizeForKey:(NSString *)key {
  return [self containsImageForKey:key] ? size : NSZeroSize;
}

- (void)drawImageInRect:(NSRect)rect isFlipped:(BOOL)flipped forKey:(NSString *)key {
  std::string state = "?";
  if ([key isEqual:HXImageControlDisabledImageKey]) state = "disabled";
  if ([key isEqual:HXImageControlDefaultImageKey]) state = "default";
  if ([key isEqual:HXImageControlAlternateImageKey]) state = "alternate";
  journal().push_back(std::string([name UTF8String]) + " " + state + " " + text(rect) +
                      (flipped ? "" : " unflipped"));
}

@end

static int OvTestArrows = 1;

@implementation OvTestScroller

+ (void)setArrows:(int)configuration {
  OvTestArrows = configuration;
}

+ (int)_arrowsConfig {
  return OvTestArrows;
}

- (BOOL)isFlipped {
  return unflipped ? NO : [super isFlipped];
}

- (NSRect)rectForPart:(NSScrollerPart)part {
  return part == NSScrollerKnob && !NSIsEmptyRect(knob) ? knob : [super rectForPart:part];
}

- (NSScrollerPart)hitPart {
  ++hitPartReads;
  return [super hitPart];
}

- (void)setNeedsDisplayInRect:(NSRect)rect {
  if (isMarking) journal().push_back("marked " + text(rect));
  [super setNeedsDisplayInRect:rect];
}

@end

@implementation OvTestScrollerDelegate

- (void)scroller:(HXScroller *)scroller willTrackPart:(NSScrollerPart)part {
  EXPECT_NE(scroller, nil);
  journal().push_back("will " + std::to_string(part));
  if (onWill) onWill();
}

- (void)scroller:(HXScroller *)scroller didTrackPart:(NSScrollerPart)part {
  EXPECT_NE(scroller, nil);
  journal().push_back("did " + std::to_string(part));
  if (onDid) onDid();
}

@end

namespace ov::test {
namespace {

int statesOf(NSString *part) {
  if ([part isEqual:HXScrollerPartName_KnobSlot]) return 1;
  return [part hasPrefix:@"EndCap"] ? 2 : 3;
}

// Row by row from the top, as bitmaps are stored.
NSImage *imageOfPart(NSString *part, bool horizontal) {
  const NSSize size = sizeOfPart(part, horizontal);
  const int width = static_cast<int>(size.width);
  const int height = static_cast<int>(size.height);
  const int states = statesOf(part);
  NSBitmapImageRep *rep = emptyBitmap(width * states, height);
  for (int state = 0; state < states; ++state) {
    const Pixel color = PartImages::color(part, state);
    for (int y = 0; y < height; ++y) {
      for (int x = 0; x < width; ++x) {
        const bool isMark = x < width / 2 && y < height / 2;
        unsigned char *pixel = [rep bitmapData] + y * [rep bytesPerRow] + (state * width + x) * 4;
        pixel[0] = static_cast<unsigned char>(isMark ? 0 : color.r);
        pixel[1] = static_cast<unsigned char>(isMark ? 0 : color.g);
        pixel[2] = static_cast<unsigned char>(isMark ? 0 : color.b);
        pixel[3] = 255;
      }
    }
  }
  NSImage *image =
      [[[NSImage alloc] initWithSize:NSMakeSize(size.width * states, size.height)] autorelease];
  [image addRepresentation:rep];
  return image;
}

id imageForResource(id self, SEL, NSString *name) {
  PartImages::requests().emplace_back(self, [name UTF8String]);
  NSString *suffix = [name substringFromIndex:[name length] - 2];
  for (NSString *part in partNames()) {
    if ([name hasSuffix:[NSString stringWithFormat:@"_%@%@", part, suffix]]) {
      return imageOfPart(part, [suffix isEqual:@"_H"]);
    }
  }
  return nil;
}

Method imageMethod() {
  return class_getInstanceMethod([NSBundle class], @selector(imageForResource:));
}

}  // namespace

Lines &journal() {
  static Lines lines;
  return lines;
}

Lines takeJournal() { return std::exchange(journal(), {}); }

std::string text(NSRect rect) {
  std::ostringstream out;
  out << NSMinX(rect) << " " << NSMinY(rect) << " " << NSWidth(rect) << " " << NSHeight(rect);
  return out.str();
}

NSArray *partNames() {
  return @[
    HXScrollerPartName_DecrementArrow_MinEnd, HXScrollerPartName_DecrementArrow_MaxEnd_EndCap,
    HXScrollerPartName_DecrementArrow_MinEnd_EndCap, HXScrollerPartName_IncrementArrow_MaxEnd,
    HXScrollerPartName_IncrementArrow_MaxEnd_EndCap,
    HXScrollerPartName_IncrementArrow_MinEnd_EndCap, HXScrollerPartName_KnobBody,
    HXScrollerPartName_KnobCap_MaxEnd, HXScrollerPartName_KnobCap_MinEnd,
    HXScrollerPartName_EndCap_MaxEnd, HXScrollerPartName_EndCap_MinEnd, HXScrollerPartName_KnobSlot
  ];
}

NSSize sizeOfPart(NSString *name, bool horizontal) {
  NSSize size = NSMakeSize(18, 4);
  if ([name rangeOfString:@"Arrow"].length > 0) size.height = 10;
  if ([name hasSuffix:@"_EndCap"]) size.height = 14;
  if ([name hasPrefix:@"EndCap"]) size.height = 3;
  if ([name isEqual:HXScrollerPartName_KnobBody]) size = NSMakeSize(16, 4);
  if ([name isEqual:HXScrollerPartName_KnobCap_MinEnd]) size = NSMakeSize(14, 6);
  if ([name isEqual:HXScrollerPartName_KnobCap_MaxEnd]) size = NSMakeSize(12, 5);
  return horizontal ? NSMakeSize(size.height, size.width) : size;
}

void setRecordingParts(HXScroller *scroller, NSArray *names, NSArray *missingStates) {
  NSMutableDictionary *parts = [NSMutableDictionary dictionary];
  const bool horizontal = NSWidth([scroller frame]) > NSHeight([scroller frame]);
  for (NSString *name in names) {
    OvTestScrollerPart *part = [[[OvTestScrollerPart alloc] init] autorelease];
    part->name = [name copy];
    part->size = sizeOfPart(name, horizontal);
    part->missing = [missingStates retain];
    [parts setObject:part forKey:name];
  }
  [scroller setValue:parts forKey:@"imageContainers"];
}

void setRecordingParts(HXScroller *scroller) { setRecordingParts(scroller, partNames()); }

PartImages::PartImages()
    : original_(method_setImplementation(
          imageMethod(), reinterpret_cast<IMP>(reinterpret_cast<void *>(imageForResource)))) {
  requests().clear();
}

PartImages::~PartImages() { method_setImplementation(imageMethod(), original_); }

std::vector<std::pair<NSBundle *, std::string>> &PartImages::requests() {
  static std::vector<std::pair<NSBundle *, std::string>> list;
  return list;
}

Pixel PartImages::color(NSString *part, int state) {
  const int number = static_cast<int>([partNames() indexOfObject:part]);
  return {40 + 16 * number, 60 + 80 * state, 200, 255};
}

void ScrollerTest::SetUp() {
  LiveTest::SetUp();
  [OvTestScroller setArrows:1];
  journal().clear();
}

OvTestScroller *ScrollerTest::makeScroller(NSWindow *window, bool horizontal, CGFloat length) {
  const NSRect frame = horizontal ? NSMakeRect(20, 20, length, 18) : NSMakeRect(20, 20, 18, length);
  return addScroller(window, [[[OvTestScroller alloc] initWithFrame:frame] autorelease]);
}

}  // namespace ov::test
