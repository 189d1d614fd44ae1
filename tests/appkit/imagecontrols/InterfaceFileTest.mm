// Icon and multi-image buttons from interface files.

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
  OvTestInterfaceOwner *load(NSString *objects, NSString *outlets) {
    NSString *text = [NSString
        stringWithFormat:
            @"<document type=\"com.apple.InterfaceBuilder3.Cocoa.XIB\" version=\"3.0\" "
            @"targetRuntime=\"MacOSX.Cocoa\"><objects>"
            @"<customObject id=\"-2\" userLabel=\"File's Owner\" "
            @"customClass=\"OvTestInterfaceOwner\"><connections>%@</connections></customObject>"
            @"<customObject id=\"-1\" userLabel=\"First Responder\" "
            @"customClass=\"FirstResponder\"/>"
            @"<customObject id=\"-3\" userLabel=\"Application\" customClass=\"NSObject\"/>"
            @"<customView id=\"v1\"><rect key=\"frame\" x=\"0\" y=\"0\" width=\"200\" "
            @"height=\"100\"/><subviews>%@</subviews></customView></objects></document>",
            outlets, objects];
    NSString *path = [NSTemporaryDirectory()
        stringByAppendingPathComponent:[[[NSProcessInfo processInfo] globallyUniqueString]
                                           stringByAppendingPathExtension:@"xib"]];
    EXPECT_TRUE([[text dataUsingEncoding:NSUTF8StringEncoding] writeToFile:path atomically:NO]);
    NSNib *nib = [[[NSNib alloc] initWithContentsOfURL:[NSURL fileURLWithPath:path]] autorelease];
    [[NSFileManager defaultManager] removeFileAtPath:path handler:nil];
    OvTestInterfaceOwner *owner = [[[OvTestInterfaceOwner alloc] init] autorelease];
    NSArray *topLevel = nil;
    EXPECT_TRUE([nib instantiateNibWithOwner:owner topLevelObjects:&topLevel]);
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
  OvTestInterfaceOwner *owner =
      load(objects, @"<outlet property=\"icon\" destination=\"Icon\" id=\"o1\"/>"
                    @"<outlet property=\"selectable\" destination=\"Selectable\" id=\"o2\"/>");
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
      @"<customView id=\"m1\" customClass=\"OvTestEagerButton\">"
      @"<rect key=\"frame\" x=\"10\" y=\"50\" width=\"30\" height=\"20\"/>"
      @"<connections><outlet property=\"delegate\" destination=\"-2\" id=\"o2\"/></connections>"
      @"</customView>",
      @"<outlet property=\"multi\" destination=\"m1\" id=\"o1\"/>");
  ASSERT_TRUE([owner->multi isMemberOfClass:[OvTestEagerButton class]]);
  EXPECT_NE([owner->multi multiImageCell], nil);
  EXPECT_EQ([owner->multi delegate], owner);
  EXPECT_NE([[owner->multi valueForKey:@"_lastTrackingTag"] longLongValue], 0);
  EXPECT_EQ([(NSArray *)[owner->multi valueForKey:@"tracking_rects"] count], 1u);
  [owner->multi setTrackingEnabled:NO];
}

}  // namespace
