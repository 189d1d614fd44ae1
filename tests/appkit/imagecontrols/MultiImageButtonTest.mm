// What a multi-image button is made of: its cell, its images, its states at rest.

#import "MultiImageTest.h"

#include <objc/runtime.h>

#include "Coding.h"

using namespace ov::test;
using testing::ElementsAre;
using testing::IsEmpty;

// Answers a new image for each name, and remembers what was asked.
@interface OvTestImageSource : HXImageManager {
 @public
  std::vector<std::string> asked;
  NSBundle *bundle;
  BOOL empty;
}
@end
@implementation OvTestImageSource
- (NSImage *)imageNamed:(NSString *)name inBundle:(NSBundle *)aBundle {
  asked.push_back([name UTF8String]);
  bundle = aBundle;
  return empty ? nil : filledImage(kImageSize, [NSColor redColor]);
}
@end

@interface OvTestOtherCell : NSActionCell
@end
@implementation OvTestOtherCell
@end

namespace {

class MultiImageButton : public MultiImageTest {
 protected:
  OvTestImageSource *installSource() {
    OvTestImageSource *source = [[[OvTestImageSource alloc] init] autorelease];
    [HXImageManager setSharedImageManager:source];
    return source;
  }
};

TEST_F(MultiImageButton, HasItsOwnClassOfCells) {
  Class others = [NSControl cellClass];
  EXPECT_EQ([HXMultiImageButton cellClass], [HXMultiImageCell class]);
  HXMultiImageButton *button =
      [[[HXMultiImageButton alloc] initWithFrame:NSMakeRect(0, 0, 9, 9)] autorelease];
  EXPECT_TRUE([[button cell] isMemberOfClass:[HXMultiImageCell class]]);
  EXPECT_EQ([button multiImageCell], [button cell]);
  EXPECT_EQ([NSControl cellClass], others) << "that of the other controls is not touched";
  EXPECT_NE([NSTextField cellClass], [HXMultiImageCell class]);

  [HXMultiImageButton setCellClass:[OvTestOtherCell class]];
  EXPECT_EQ([NSControl cellClass], others);
  HXMultiImageButton *other =
      [[[HXMultiImageButton alloc] initWithFrame:NSMakeRect(0, 0, 9, 9)] autorelease];
  EXPECT_TRUE([[other cell] isMemberOfClass:[OvTestOtherCell class]]);
  EXPECT_EQ([other multiImageCell], nil);
  [HXMultiImageButton setCellClass:Nil];
  EXPECT_EQ([HXMultiImageButton cellClass], [HXMultiImageCell class]);

  // A subclass asks for no other class.
  EXPECT_EQ([OvTestMultiButton cellClass], [HXMultiImageCell class]);
}

TEST_F(MultiImageButton, StartsWithTheLibrarysImages) {
  OvTestImageSource *source = installSource();
  HXMultiImageButton *button =
      [[[HXMultiImageButton alloc] initWithFrame:NSMakeRect(1, 2, 30, 20)] autorelease];
  EXPECT_THAT(source->asked, testing::UnorderedElementsAre(
                                 "HXMultiImageButton_default", "HXMultiImageButton_alternate",
                                 "HXMultiImageButton_mouseover", "HXMultiImageButton_disabled"));
  EXPECT_EQ(source->bundle, [NSBundle bundleForClass:[HXMultiImageButton class]]);
  EXPECT_EQ(shown(button), "default");
  EXPECT_EQ([[[button multiImageCell] valueForKey:@"_images"] count], 4u);
  EXPECT_TRUE([[button multiImageCell] drawsWhenDisabled]);
  EXPECT_EQ([button delegate], nil);
  EXPECT_FALSE([button trackingEnabled]);
  EXPECT_EQ([[button valueForKey:@"_lastTrackingTag"] longLongValue], 0);
  EXPECT_TRUE([button isEnabled]);
  EXPECT_EQ([button frame], NSMakeRect(1, 2, 30, 20));
}

TEST_F(MultiImageButton, WorksWithoutImages) {
  installSource()->empty = YES;
  OvTestMultiButton *button =
      [[[OvTestMultiButton alloc] initWithFrame:NSMakeRect(0, 0, 30, 20)] autorelease];
  std::vector<std::string> events;
  button->events = &events;
  [button setTarget:button];
  [button setAction:@selector(act:)];
  NSWindow *window = showWindow(NSMakeSize(100, 80));
  [[window contentView] addSubview:button];
  EXPECT_EQ(shown(button), "nothing");
  const Picture before = pictureOf([window contentView]);
  [button setTrackingEnabled:YES];
  [button setEnabled:NO];
  [button setEnabled:YES];
  [button mouseEntered:nil];
  const Picture after = pictureOf([window contentView]);
  for (int x = 0; x < 30; x++) EXPECT_EQ(after.at(x, 79), before.at(x, 79));
  events.clear();
  postRelease(button, kInside);
  press(button, kInside);
  EXPECT_THAT(events, ElementsAre("act"));
  button->events = nullptr;
}

TEST_F(MultiImageButton, KeysHaveTheirValues) {
  EXPECT_TRUE([HXMultiImageButtonDefaultImageKey isEqual:@"HXMultiImageButtonDefaultImage"]);
  EXPECT_TRUE([HXMultiImageButtonAlternateImageKey isEqual:@"HXMultiImageButtonAlternateImage"]);
  EXPECT_TRUE([HXMultiImageButtonMouseOverImageKey isEqual:@"HXMultiImageButtonMouseOverImage"]);
  EXPECT_TRUE([HXMultiImageButtonDisabledImageKey isEqual:@"HXMultiImageButtonDisabledImage"]);
}

TEST_F(MultiImageButton, TakesImagesByTheirNames) {
  OvTestMultiButton *button = newButton();
  NSImage *named[3];
  NSString *names[] = {@"OvTestSet_default", @"OvTestSet_alternate", @"OvTestSet_disabled"};
  for (int i = 0; i < 3; i++) {
    named[i] = filledImage(kImageSize, [NSColor redColor]);
    ASSERT_TRUE([named[i] setName:names[i]]);
  }
  NSImage *was = [[button multiImageCell] image];
  OvTestImageSource *source = installSource();
  [button setImagesNamedWithPrefix:@"OvTestSet"];
  EXPECT_THAT(source->asked, IsEmpty()) << "without a bundle, the manager is not asked";
  HXMultiImageCell *cell = [button multiImageCell];
  EXPECT_EQ([cell imageForKey:HXMultiImageButtonDefaultImageKey], named[0]);
  EXPECT_EQ([cell imageForKey:HXMultiImageButtonAlternateImageKey], named[1]);
  EXPECT_EQ([cell imageForKey:HXMultiImageButtonMouseOverImageKey], nil)
      << "an image that is missing is removed";
  EXPECT_EQ([cell imageForKey:HXMultiImageButtonDisabledImageKey], named[2]);
  EXPECT_EQ([cell image], was) << "what is shown stays";
  for (NSImage *image : named) [image setName:nil];
  [button setImagesNamedWithPrefix:nil];
  EXPECT_EQ([[cell valueForKey:@"_images"] count], 0u);
}

TEST_F(MultiImageButton, TakesImagesOfABundle) {
  OvTestMultiButton *button = newButton();
  OvTestImageSource *source = installSource();
  NSBundle *bundle = [NSBundle bundleForClass:[NSView class]];
  NSImage *was = [[button multiImageCell] image];
  [button setImagesNamedWithPrefix:@"Set" inBundle:bundle];
  EXPECT_THAT(source->asked, testing::UnorderedElementsAre("Set_default", "Set_alternate",
                                                           "Set_mouseover", "Set_disabled"));
  EXPECT_EQ(source->bundle, bundle);
  EXPECT_EQ([[[button multiImageCell] valueForKey:@"_images"] count], 4u);
  EXPECT_EQ([[button multiImageCell] image], was);
  source->empty = YES;
  [button setImagesNamedWithPrefix:@"Set" inBundle:nil];
  EXPECT_EQ([[[button multiImageCell] valueForKey:@"_images"] count], 0u);
}

TEST_F(MultiImageButton, ShowsANewDefaultImageAtOnceAndNoOther) {
  OvTestMultiButton *button = newButton();
  HXMultiImageCell *cell = [button multiImageCell];
  NSImage *image = filledImage(kImageSize, [NSColor blackColor]);
  [button setEnabled:NO];
  button->marks = 0;
  [button setImage:image];
  EXPECT_EQ([cell image], image);
  EXPECT_GT(button->marks, 0);
  [button setAlternateImage:nil];
  EXPECT_EQ([cell imageForKey:HXMultiImageButtonAlternateImageKey], nil);
  NSImage *others[] = {filledImage(kImageSize, [NSColor redColor]),
                       filledImage(kImageSize, [NSColor redColor]),
                       filledImage(kImageSize, [NSColor redColor])};
  [button setAlternateImage:others[0]];
  [button setMouseOverImage:others[1]];
  [button setDisabledImage:others[2]];
  EXPECT_EQ([cell imageForKey:HXMultiImageButtonAlternateImageKey], others[0]);
  EXPECT_EQ([cell imageForKey:HXMultiImageButtonMouseOverImageKey], others[1]);
  EXPECT_EQ([cell imageForKey:HXMultiImageButtonDisabledImageKey], others[2]);
  EXPECT_EQ([cell image], image);
  [button setImage:nil];
  EXPECT_EQ([cell image], nil);
}

TEST_F(MultiImageButton, ShowsWhetherItIsEnabled) {
  OvTestMultiButton *button = makeButton();
  const NSRect all = [button bounds];
  EXPECT_EQ(pictureOf(button).count(all, kGreen), 60);
  [button setEnabled:NO];
  EXPECT_FALSE([button isEnabled]);
  EXPECT_EQ(shown(button), "disabled");
  EXPECT_EQ(pictureOf(button).count(all, kBlack), 60) << "drawn although it is disabled";
  [button setEnabled:YES];
  EXPECT_TRUE([button isEnabled]);
  EXPECT_EQ(shown(button), "default");
  [button setDisabledImage:nil];
  [button setEnabled:NO];
  EXPECT_EQ(shown(button), "nothing");
}

TEST_F(MultiImageButton, DrawsTheImageAtTheOriginOfItsBounds) {
  OvTestMultiButton *button = makeButton();
  [button setImage:redOverBlue(kImageSize)];
  const Picture picture = pictureOf(button);
  EXPECT_EQ(picture.count(NSMakeRect(0, 14, 10, 3), kRed), 30);
  EXPECT_EQ(picture.count(NSMakeRect(0, 17, 10, 3), kBlue), 30);
}

TEST_F(MultiImageButton, IsAPlainControlWithACellOfAnotherClass) {
  OvTestMultiButton *button = makeButton();
  NSActionCell *cell = [[[OvTestOtherCell alloc] initTextCell:@""] autorelease];
  [button setCell:cell];
  EXPECT_EQ([button multiImageCell], nil);
  [button setImage:filledImage(kImageSize, [NSColor redColor])];
  [button setAlternateImage:nil];
  [button setImagesNamedWithPrefix:@"A"];
  [button setImagesNamedWithPrefix:@"A" inBundle:nil];
  [button setTrackingEnabled:YES];
  [button mouseEntered:nil];
  [button mouseExited:nil];
  [button setEnabled:NO];
  EXPECT_FALSE([button isEnabled]);
  [button setEnabled:YES];
  EXPECT_EQ([cell image], nil);
  takeEvents();
  [button setTarget:button];
  [button setAction:@selector(act:)];
  // The platform's tracking wants the press to be the current event.
  post(mouseEvent(NSLeftMouseDown, button, kInside));
  postRelease(button, kInside);
  pumpPending();
  EXPECT_THAT(takeEvents(), ElementsAre("act"));
  [button performClick:nil];
  EXPECT_THAT(takeEvents(), ElementsAre("act"));
  [button setCell:nil];
  [button setEnabled:NO];
  [button setImage:nil];
  EXPECT_EQ([button multiImageCell], nil);
}

class MultiImageButtonArchive : public MultiImageTest,
                                public testing::WithParamInterface<Coding> {};

INSTANTIATE_TEST_SUITE_P(Codings, MultiImageButtonArchive,
                         testing::Values(Coding::keyed, Coding::sequential), codingName);

TEST_P(MultiImageButtonArchive, KeepsItsImages) {
  HXMultiImageButton *button =
      [[[HXMultiImageButton alloc] initWithFrame:NSMakeRect(1, 2, 30, 20)] autorelease];
  [button setImage:filledImage(kImageSize, [NSColor greenColor])];
  [button setAlternateImage:filledImage(kImageSize, [NSColor redColor])];
  [button setMouseOverImage:filledImage(kImageSize, [NSColor blueColor])];
  [button setAction:@selector(act:)];
  [button setTrackingEnabled:YES];
  [button mouseEntered:nil];
  ASSERT_EQ(shown(button), "mouse over");
  HXMultiImageButton *read = roundTrip(button, GetParam());
  [button setTrackingEnabled:NO];
  ASSERT_TRUE([read isMemberOfClass:[HXMultiImageButton class]]);
  EXPECT_EQ(shown(read), "default") << "nothing tells when a mouse leaves";
  EXPECT_EQ(pictureOfImage([[read multiImageCell] image]).at(0, 0), kGreen);
  EXPECT_TRUE([[read multiImageCell] drawsWhenDisabled]);
  EXPECT_TRUE(sel_isEqual([read action], @selector(act:)));
  EXPECT_EQ([read frame], NSMakeRect(1, 2, 30, 20));
  EXPECT_FALSE([read trackingEnabled]);
  EXPECT_EQ([[read valueForKey:@"_lastTrackingTag"] longLongValue], 0);
  EXPECT_EQ([read delegate], nil);
  [read setTrackingEnabled:YES];
  [read mouseEntered:nil];
  EXPECT_EQ(shown(read), "mouse over");
  [read setTrackingEnabled:NO];
}

}  // namespace
