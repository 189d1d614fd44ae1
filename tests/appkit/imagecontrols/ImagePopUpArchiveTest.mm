// Image pop-up buttons from archives and interface files.

#import "ImagePopUpTest.h"

#import "Coding.h"
#import "InterfaceFiles.h"

using namespace ov::test;

@interface OvTestPopUpOwner : OvTestReceiver {
 @public
  HXImagePopUpButton *button;
}
@end
@implementation OvTestPopUpOwner
- (void)setButton:(HXImagePopUpButton *)outlet {
  button = outlet;
}
@end

namespace {

class ImagePopUpArchive : public ImagePopUpTest, public testing::WithParamInterface<Coding> {};

TEST_P(ImagePopUpArchive, ADecodedButtonHasItsItemsAndNoContainer) {
  HXImagePopUpButton *button =
      [[[HXImagePopUpButton alloc] initWithFrame:NSMakeRect(40, 30, 100, 20)
                                       pullsDown:NO] autorelease];
  [button addItemsWithTitles:@[ @"One", @"Two", @"Three" ]];
  [button selectItemAtIndex:1];
  [[button imagePopUpButtonCell] setArrowPosition:NSPopUpArrowAtBottom];
  [button setTag:17];
  [button setImageContainer:[OvTestArtwork artworkWithVariations:{3}]];

  HXImagePopUpButton *copy = roundTrip(button, GetParam());
  ASSERT_TRUE([copy isMemberOfClass:[HXImagePopUpButton class]]);
  ASSERT_TRUE([[copy cell] isMemberOfClass:[HXImagePopUpButtonCell class]]);
  EXPECT_EQ([copy imageContainer], nil);
  EXPECT_TRUE([[copy itemTitles] isEqualToArray:(@[ @"One", @"Two", @"Three" ])]);
  EXPECT_EQ([copy indexOfSelectedItem], 1);
  EXPECT_EQ([[copy imagePopUpButtonCell] arrowPosition], NSPopUpArrowAtBottom);
  EXPECT_EQ([copy tag], 17);
  EXPECT_EQ([copy frame], [button frame]);
  EXPECT_TRUE([copy showsBorderOnlyWhileMouseInside]) << "the platform archives it";

  // It draws and follows the pointer with a container that is set now.
  NSWindow *window = showWindow(NSMakeSize(300, 200));
  [[window contentView] addSubview:copy];
  movePointerAway(copy);
  OvTestArtwork *artwork = [OvTestArtwork artworkWithVariations:{3}];
  [copy setImageContainer:artwork];
  EXPECT_TRUE(pumpUntil([=] { return [artwork lastVariation] == 0; }));
  movePointerTo(copy, NSMakePoint(5, 5));
  EXPECT_TRUE(pumpUntil([=] { return [artwork lastVariation] == 3; }));
}

TEST_P(ImagePopUpArchive, ADecodedFlagFollowsThePointer) {
  HXImagePopUpButton *button =
      [[[HXImagePopUpButton alloc] initWithFrame:NSMakeRect(40, 30, 100, 20)] autorelease];
  [button setShowsBorderOnlyWhileMouseInside:YES];
  HXImagePopUpButton *copy = roundTrip(button, GetParam());
  EXPECT_EQ([[copy valueForKey:@"tracking_rects"] count], 1u);
  [button setShowsBorderOnlyWhileMouseInside:NO];
  copy = roundTrip(button, GetParam());
  EXPECT_FALSE([copy showsBorderOnlyWhileMouseInside]);
  EXPECT_EQ([[copy valueForKey:@"tracking_rects"] count], 0u);
}

TEST_P(ImagePopUpArchive, ADecodedCellHasNoContainer) {
  HXImagePopUpButtonCell *cell = [[[HXImagePopUpButtonCell alloc] initTextCell:@"Title"
                                                                     pullsDown:YES] autorelease];
  [cell setImageContainer:[OvTestArtwork artworkWithVariations:{1}]];
  [cell setArrowPosition:NSPopUpNoArrow];
  HXImagePopUpButtonCell *copy = roundTrip(cell, GetParam());
  ASSERT_TRUE([copy isMemberOfClass:[HXImagePopUpButtonCell class]]);
  EXPECT_EQ([copy imageContainer], nil);
  EXPECT_TRUE([[copy title] isEqualToString:@"Title"]);
  EXPECT_TRUE([copy pullsDown]);
  EXPECT_EQ([copy arrowPosition], NSPopUpNoArrow);
}

INSTANTIATE_TEST_SUITE_P(Codings, ImagePopUpArchive,
                         testing::Values(Coding::keyed, Coding::sequential), codingName);

class ImagePopUpInterface : public ImagePopUpTest {
 protected:
  void expectConnected(OvTestPopUpOwner *owner) {
    HXImagePopUpButton *button = owner->button;
    ASSERT_TRUE([button isMemberOfClass:[HXImagePopUpButton class]]);
    ASSERT_NE([button imagePopUpButtonCell], nil);
    EXPECT_EQ([button imageContainer], nil);
    EXPECT_TRUE([[button itemTitles] isEqualToArray:(@[ @"One", @"Two" ])]);
    NSWindow *window = showWindow(NSMakeSize(300, 200));
    [[window contentView] addSubview:button];
    movePointerAway(button);
    [button setImageContainer:[OvTestArtwork artworkWithVariations:{1}]];
    EXPECT_EQ(shownBy(button), 0);
    [[button menu] performActionForItemAtIndex:1];
    EXPECT_EQ(owner->actions, 1);
    EXPECT_EQ([button indexOfSelectedItem], 1);
  }
};

class ImagePopUpXib : public ImagePopUpInterface, public testing::WithParamInterface<bool> {};

TEST_P(ImagePopUpXib, NeedNotNameTheClassOfTheCell) {
  NSString *objects =
      @"<customView id=\"v1\"><rect key=\"frame\" x=\"0\" y=\"0\" width=\"200\" height=\"100\"/>"
      @"<subviews><popUpButton id=\"b1\" customClass=\"HXImagePopUpButton\">"
      @"<rect key=\"frame\" x=\"10\" y=\"50\" width=\"120\" height=\"26\"/>"
      @"<popUpButtonCell key=\"cell\" type=\"push\" title=\"One\" bezelStyle=\"rounded\" "
      @"selectedItem=\"i1\" id=\"c1\" customClass=\"HXImagePopUpButtonCell\">"
      @"<menu key=\"menu\" title=\"OtherViews\" id=\"m1\"><items>"
      @"<menuItem title=\"One\" state=\"on\" id=\"i1\"/><menuItem title=\"Two\" id=\"i2\"/>"
      @"</items></menu></popUpButtonCell><connections>"
      @"<action selector=\"act:\" target=\"-2\" id=\"a1\"/></connections></popUpButton>"
      @"</subviews></customView>";
  if (!GetParam()) {
    objects =
        [objects stringByReplacingOccurrencesOfString:@" customClass=\"HXImagePopUpButtonCell\""
                                           withString:@""];
  }
  OvTestPopUpOwner *owner = [[[OvTestPopUpOwner alloc] init] autorelease];
  ASSERT_TRUE(loadXib(owner, @{@"button" : @"b1"}, objects));
  expectConnected(owner);
}

INSTANTIATE_TEST_SUITE_P(CellIsNamed, ImagePopUpXib, testing::Bool());

TEST_F(ImagePopUpInterface, FromAGormFile) {
  HXImagePopUpButton *button =
      [[[HXImagePopUpButton alloc] initWithFrame:NSMakeRect(10, 50, 120, 24)
                                       pullsDown:NO] autorelease];
  [button addItemsWithTitles:@[ @"One", @"Two" ]];
  GormFile file;
  file.add(@"Button", button);
  file.outlet(@"NSOwner", @"button", @"Button");
  file.action(@"Button", @"act:", @"NSOwner");
  OvTestPopUpOwner *owner = [[[OvTestPopUpOwner alloc] init] autorelease];
  ASSERT_TRUE(file.load(owner));
  expectConnected(owner);
}

}  // namespace
