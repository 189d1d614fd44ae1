// Mouse events like another one at a new place.

#import "LiveTest.h"

#include "support/MouseEventCopy.h"

using namespace ov::test;

namespace {

class MouseEventCopy : public LiveTest {};

TEST_F(MouseEventCopy, KeepsAllButTypeAndPlace) {
  NSWindow *window = makeWindow(NSMakeSize(100, 100));
  NSEvent *event = [NSEvent mouseEventWithType:NSRightMouseDown
                                      location:NSMakePoint(3, 4)
                                 modifierFlags:NSShiftKeyMask | NSAlternateKeyMask
                                     timestamp:12.5
                                  windowNumber:[window windowNumber]
                                       context:[window graphicsContext]
                                   eventNumber:77
                                    clickCount:2
                                      pressure:0.5f];
  NSEvent *copy = ov::mouseEventLike(event, NSLeftMouseDown, NSMakePoint(-20, 31.5));
  EXPECT_EQ([copy type], NSLeftMouseDown);
  EXPECT_EQ([copy locationInWindow], NSMakePoint(-20, 31.5));
  EXPECT_EQ([copy modifierFlags], (NSUInteger)(NSShiftKeyMask | NSAlternateKeyMask));
  EXPECT_EQ([copy timestamp], 12.5);
  EXPECT_EQ([copy windowNumber], [window windowNumber]);
  EXPECT_EQ([copy window], window);
  EXPECT_EQ([copy context], [window graphicsContext]);
  EXPECT_EQ([copy eventNumber], 77);
  EXPECT_EQ([copy clickCount], 2);
  EXPECT_EQ([copy pressure], 0.5f);
  EXPECT_EQ([event locationInWindow], NSMakePoint(3, 4)) << "the first one stays as it is";
}

TEST_F(MouseEventCopy, OtherEventsHaveNoClicks) {
  NSWindow *window = makeWindow(NSMakeSize(100, 100));
  NSEvent *key = keyEvent(window, @" ", NSControlKeyMask);
  NSEvent *entered = [NSEvent enterExitEventWithType:NSMouseEntered
                                            location:NSZeroPoint
                                       modifierFlags:NSControlKeyMask
                                           timestamp:0
                                        windowNumber:[window windowNumber]
                                             context:[window graphicsContext]
                                         eventNumber:5
                                      trackingNumber:1
                                            userData:nullptr];
  NSEvent *periodic = [NSEvent otherEventWithType:NSPeriodic
                                         location:NSZeroPoint
                                    modifierFlags:NSControlKeyMask
                                        timestamp:0
                                     windowNumber:[window windowNumber]
                                          context:[window graphicsContext]
                                          subtype:0
                                            data1:0
                                            data2:0];
  for (NSEvent *event in @[ key, entered, periodic ]) {
    NSEvent *copy = ov::mouseEventLike(event, NSLeftMouseDown, NSMakePoint(1, 2));
    EXPECT_EQ([copy type], NSLeftMouseDown);
    EXPECT_EQ([copy locationInWindow], NSMakePoint(1, 2));
    EXPECT_EQ([copy modifierFlags], (NSUInteger)NSControlKeyMask);
    EXPECT_EQ([copy windowNumber], [window windowNumber]);
    EXPECT_EQ([copy eventNumber], 0);
    EXPECT_EQ([copy clickCount], 1);
    EXPECT_EQ([copy pressure], 0);
  }
}

TEST_F(MouseEventCopy, OfNothingIsNothing) {
  EXPECT_EQ(ov::mouseEventLike(nil, NSLeftMouseDown, NSZeroPoint), nil);
}

}  // namespace
