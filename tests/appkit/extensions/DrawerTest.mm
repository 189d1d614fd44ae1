#import <OvAppKit/NSDrawer+OvAppKit.h>

#include <cmath>

#import "LiveTest.h"

namespace {

class Drawer : public ov::test::LiveTest {};

TEST_F(Drawer, ItsOwnWindowTakesTheAlphaValue) {
  NSWindow *window = showWindow(NSMakeSize(200, 100));
  NSDrawer *drawer = [[NSDrawer alloc] initWithContentSize:NSMakeSize(80, 80)
                                             preferredEdge:NSMaxXEdge];
  [drawer setParentWindow:window];
  NSWindow *own = [drawer valueForKey:@"drawerWindow"];
  ASSERT_NE(own, nil);
  [drawer setAlphaValue:0.5];
  EXPECT_EQ([own alphaValue], 0.5);
  EXPECT_EQ([window alphaValue], 1) << "the parent window keeps its own";
  [drawer setAlphaValue:NAN];
  EXPECT_EQ([own alphaValue], 0.5);
  [drawer setAlphaValue:7];
  EXPECT_EQ([own alphaValue], 1);
  [drawer setAlphaValue:-INFINITY];
  EXPECT_EQ([own alphaValue], 0);
  [drawer setParentWindow:nil];
  [drawer release];
}

}  // namespace
