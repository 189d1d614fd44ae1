// Icon and multi-image buttons from interface files.

#import "InterfaceFiles.h"
#import "MultiImageTest.h"

#include <objc/runtime.h>

using namespace ov::test;

@interface OvTestInterfaceOwner : NSObject {
 @public
  OvIconButton *icon;
  OvSelectableButton *selectable;
  HXMultiImageButton *multi;
  int actions;
}
- (void)act:(id)sender;
@end
@implementation OvTestInterfaceOwner
- (void)act:(id)sender {
  (void)sender;
  actions++;
}
@end

// Tracks the mouse from the start.
@interface OvTestEagerButton : HXMultiImageButton
@end
@implementation OvTestEagerButton
- (id)initWithFrame:(NSRect)frame {
  self = [super initWithFrame:frame];
  if (self != nil) _trackMouseMove = YES;
  return self;
}
@end

namespace {

class InterfaceFile : public LiveTest {
 protected:
  OvTestInterfaceOwner *load(NSDictionary *outlets, NSString *controls) {
    NSString *objects = [NSString
        stringWithFormat:@"<customView id=\"v1\"><rect key=\"frame\" x=\"0\" y=\"0\" "
                         @"width=\"200\" height=\"100\"/><subviews>%@</subviews></customView>",
                         controls];
    OvTestInterfaceOwner *owner = [[[OvTestInterfaceOwner alloc] init] autorelease];
    EXPECT_TRUE(loadXib(owner, outlets, objects));
    return owner;
  }
};

TEST_F(InterfaceFile, IconButtonsGetTheirCellAndKeepTheirAction) {
  NSMutableString *objects = [NSMutableString string];
  for (NSString *name in @[ @"Icon", @"Selectable" ]) {
    [objects appendFormat:@"<button id=\"%@\" customClass=\"Ov%@Button\">"
                          @"<rect key=\"frame\" x=\"10\" y=\"50\" width=\"80\" height=\"24\"/>"
                          @"<buttonCell key=\"cell\" type=\"push\" title=\"%@\" id=\"c%@\"/>"
                          @"<connections><action selector=\"act:\" target=\"-2\" id=\"a%@\"/>"
                          @"</connections></button>",
                          name, name, name, name, name];
  }
  OvTestInterfaceOwner *owner = load(@{@"icon" : @"Icon", @"selectable" : @"Selectable"}, objects);
  ASSERT_TRUE([owner->icon isMemberOfClass:[OvIconButton class]]);
  ASSERT_TRUE([owner->selectable isMemberOfClass:[OvSelectableButton class]]);
  for (OvIconButton *button in @[ owner->icon, owner->selectable ]) {
    EXPECT_TRUE([[button cell] isMemberOfClass:[OvIconButtonCell class]]);
    EXPECT_FALSE([button isBordered]);
    EXPECT_TRUE(sel_isEqual([button action], @selector(act:)));
    [button setTarget:owner];
    [button performClick:nil];
  }
  EXPECT_EQ(owner->actions, 2);
}

TEST_F(InterfaceFile, AMultiImageButtonStartsTheTrackingThatItWasToldOf) {
  OvTestInterfaceOwner *owner = load(
      @{@"multi" : @"m1"},
      @"<customView id=\"m1\" customClass=\"OvTestEagerButton\">"
      @"<rect key=\"frame\" x=\"10\" y=\"50\" width=\"30\" height=\"20\"/>"
      @"<connections><outlet property=\"delegate\" destination=\"-2\" id=\"o2\"/></connections>"
      @"</customView>");
  ASSERT_TRUE([owner->multi isMemberOfClass:[OvTestEagerButton class]]);
  EXPECT_NE([owner->multi multiImageCell], nil);
  EXPECT_EQ([owner->multi delegate], owner);
  EXPECT_NE([[owner->multi valueForKey:@"_lastTrackingTag"] longLongValue], 0);
  EXPECT_EQ([(NSArray *)[owner->multi valueForKey:@"tracking_rects"] count], 1u);
  [owner->multi setTrackingEnabled:NO];
}

}  // namespace
