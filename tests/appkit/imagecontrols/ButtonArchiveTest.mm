// Image buttons from archives and interface files.

#import "ButtonTest.h"

#import "Coding.h"
#import "InterfaceFiles.h"

using namespace ov::test;

@interface OvTestButtonOwner : OvTestReceiver {
 @public
  HXImageButton *button;
  HXImageButton *unnamedCell;
}
@end
@implementation OvTestButtonOwner
- (void)setButton:(HXImageButton *)outlet {
  button = outlet;
}
- (void)setUnnamedCell:(HXImageButton *)outlet {
  unnamedCell = outlet;
}
- (void)imageButton:(HXImageButton *)sender willPopUpMenu:(NSMenu *)menu {
  actions += 100;
}
@end

namespace {

class ImageButtonArchive : public ImageButtonTest, public testing::WithParamInterface<Coding> {
 protected:
  // It draws, hovers and acts with a container that is set now.
  void expectWorks(HXImageButton *button) {
    NSWindow *window = showWindow(NSMakeSize(300, 200));
    OvTestReceiver *receiver = [[[OvTestReceiver alloc] init] autorelease];
    [button setTarget:receiver];
    [button setAction:@selector(act:)];
    [[window contentView] addSubview:button];
    movePointerAway(button);
    OvTestArtwork *artwork = [OvTestArtwork artworkWithVariations:{1, 3}];
    [button setImageContainer:artwork];
    EXPECT_EQ([button imageContainer], artwork);
    EXPECT_TRUE(pumpUntil([=] { return [artwork lastVariation] == 0; }));
    movePointerTo(button, NSMakePoint(5, 5));
    EXPECT_TRUE(pumpUntil([=] { return [artwork lastVariation] == 3; }));
    [button performClick:nil];
    EXPECT_EQ(receiver->actions, 1);
  }
};

TEST_P(ImageButtonArchive, ADecodedButtonHasNoContainerAndNoDelegate) {
  HXImageButton *button = makeButton();
  [button setTitle:@"Title"];
  [button setAlternateTitle:@"Other"];
  [button setTag:17];
  [button setState:NSOnState];
  [button setKeyEquivalent:@"k"];
  [button setDelegate:[[[OvTestReceiver alloc] init] autorelease]];
  [button setImageContainer:[OvTestArtwork artworkWithVariations:{1, 3}]];

  HXImageButton *copy = roundTrip(button, GetParam());
  ASSERT_TRUE([copy isMemberOfClass:[HXImageButton class]]);
  EXPECT_TRUE([[copy cell] isMemberOfClass:[HXImageButtonCell class]]);
  EXPECT_EQ([copy imageButtonCell], [copy cell]);
  EXPECT_EQ([copy imageContainer], nil);
  EXPECT_EQ([copy delegate], nil);
  EXPECT_EQ([copy frame], [button frame]);
  EXPECT_TRUE([[copy title] isEqualToString:@"Title"]);
  EXPECT_TRUE([[copy alternateTitle] isEqualToString:@"Other"]);
  EXPECT_TRUE([[copy keyEquivalent] isEqualToString:@"k"]);
  EXPECT_EQ([copy state], NSOnState);
  EXPECT_EQ([copy tag], 17);
  EXPECT_TRUE([copy showsBorderOnlyWhileMouseInside]) << "the platform archives it";
  expectWorks(copy);
}

TEST_P(ImageButtonArchive, TheIconsPlaceIsKept) {
  for (int position = NSNoImage; position <= NSImageOverlaps; position++) {
    HXImageButtonCell *cell = [[[HXImageButtonCell alloc] initTextCell:@"Title"] autorelease];
    [cell setImagePosition:static_cast<NSCellImagePosition>(position)];
    EXPECT_EQ([(HXImageButtonCell *)roundTrip(cell, GetParam()) imagePosition],
              static_cast<NSCellImagePosition>(position));
  }
}

TEST_P(ImageButtonArchive, ADecodedFlagFollowsThePointer) {
  HXImageButton *button = makeButton();
  [button setImageContainer:[OvTestArtwork artworkWithVariations:{3}]];
  HXImageButton *copy = roundTrip(button, GetParam());
  [[groundOf(button) window] orderOut:nil];
  OvTestArtwork *artwork = [OvTestArtwork artworkWithVariations:{3}];
  // By the cell, which leaves the flag alone.
  [[copy imageButtonCell] setImageContainer:artwork];
  NSWindow *window = showWindow(NSMakeSize(300, 200));
  [[window contentView] addSubview:copy];
  EXPECT_TRUE(pumpUntil([=] { return [artwork lastVariation] == 0; }));
  movePointerTo(copy, NSMakePoint(5, 5));
  EXPECT_TRUE(pumpUntil([=] { return [artwork lastVariation] == 3; }));
}

TEST_P(ImageButtonArchive, ADecodedCellHasNoContainer) {
  HXImageButtonCell *cell = [[[HXImageButtonCell alloc] initTextCell:@"Title"] autorelease];
  [cell setImageContainer:[OvTestArtwork artworkWithVariations:{1}]];
  [cell setShowsStateBy:NSChangeGrayCellMask];
  HXImageButtonCell *copy = roundTrip(cell, GetParam());
  ASSERT_TRUE([copy isMemberOfClass:[HXImageButtonCell class]]);
  EXPECT_EQ([copy imageContainer], nil);
  EXPECT_TRUE([[copy title] isEqualToString:@"Title"]);
  EXPECT_TRUE([copy showsStateBy] & NSChangeGrayCellMask);
  EXPECT_NE([cell imageContainer], nil) << "the original keeps its own";
}

INSTANTIATE_TEST_SUITE_P(Codings, ImageButtonArchive,
                         testing::Values(Coding::keyed, Coding::sequential), codingName);

class ImageButtonInterface : public ImageButtonTest {
 protected:
  void expectConnected(OvTestButtonOwner *owner) {
    HXImageButton *button = owner->button;
    ASSERT_TRUE([button isMemberOfClass:[HXImageButton class]]);
    ASSERT_NE([button imageButtonCell], nil);
    EXPECT_EQ([button delegate], owner);
    EXPECT_EQ([button imageContainer], nil);
    EXPECT_TRUE([[button title] isEqualToString:@"Push"]);
    NSWindow *window = showWindow(NSMakeSize(300, 200));
    [[window contentView] addSubview:button];
    [button setImageContainer:[OvTestArtwork artworkWithVariations:{1}]];
    movePointerAway(button);
    EXPECT_EQ(variationOf(button), 0);
    [button performClick:nil];
    EXPECT_EQ(owner->actions, 1);

    MenuInterceptor menus;
    NSMenu *menu = [[[NSMenu alloc] initWithTitle:@""] autorelease];
    [menu addItemWithTitle:@"One" action:NULL keyEquivalent:@""];
    [button setMenu:menu];
    press(button, NSMakePoint(5, 5));
    EXPECT_EQ(owner->actions, 101);
    EXPECT_EQ(menus.count(), 1);
  }
};

TEST_F(ImageButtonInterface, AXibNeedNotNameTheClassOfTheCell) {
  NSString *objects =
      @"<customView id=\"v1\"><rect key=\"frame\" x=\"0\" y=\"0\" width=\"200\" height=\"100\"/>"
      @"<subviews><button id=\"b1\" customClass=\"HXImageButton\">"
      @"<rect key=\"frame\" x=\"10\" y=\"50\" width=\"80\" height=\"24\"/>"
      @"<buttonCell key=\"cell\" type=\"push\" title=\"Push\" id=\"c1\" "
      @"customClass=\"HXImageButtonCell\"/><connections>"
      @"<action selector=\"act:\" target=\"-2\" id=\"a1\"/>"
      @"<outlet property=\"delegate\" destination=\"-2\" id=\"o3\"/></connections></button>"
      @"<button id=\"b2\" customClass=\"HXImageButton\">"
      @"<rect key=\"frame\" x=\"10\" y=\"10\" width=\"80\" height=\"24\"/>"
      @"<buttonCell key=\"cell\" type=\"push\" title=\"Push\" id=\"c2\"/></button>"
      @"</subviews></customView>";
  OvTestButtonOwner *owner = [[[OvTestButtonOwner alloc] init] autorelease];
  ASSERT_TRUE(loadXib(owner, @{@"button" : @"b1", @"unnamedCell" : @"b2"}, objects));
  EXPECT_TRUE([owner->unnamedCell isMemberOfClass:[HXImageButton class]]);
  EXPECT_NE([owner->unnamedCell imageButtonCell], nil) << "the loader asks the button's class";
  expectConnected(owner);
}

TEST_F(ImageButtonInterface, AGormFileKeepsBothClasses) {
  HXImageButton *button =
      [[[HXImageButton alloc] initWithFrame:NSMakeRect(10, 50, 80, 24)] autorelease];
  [button setTitle:@"Push"];
  GormFile file;
  file.add(@"Button", button);
  file.outlet(@"NSOwner", @"button", @"Button");
  file.outlet(@"Button", @"delegate", @"NSOwner");
  file.action(@"Button", @"act:", @"NSOwner");
  OvTestButtonOwner *owner = [[[OvTestButtonOwner alloc] init] autorelease];
  ASSERT_TRUE(file.load(owner));
  expectConnected(owner);
}

}  // namespace
