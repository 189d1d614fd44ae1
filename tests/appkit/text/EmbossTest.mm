// The cell of the validated text field, and embossed text.

#import <OvAppKit/OvAppKit.h>

#import "LiveTest.h"

using namespace ov::test;

// A background that a white shadow shows on; flipped or not.
@interface OvTestEmbossView : NSView {
 @public
  NSCell *cell;
  BOOL flipped;
}
@end

@implementation OvTestEmbossView
- (BOOL)isFlipped {
  return flipped;
}
- (void)drawRect:(NSRect)rect {
  [[NSColor colorWithDeviceWhite:0.5 alpha:1] set];
  NSRectFill(rect);
  [cell drawInteriorWithFrame:[self bounds] inView:self];
}
@end

namespace {

class Emboss : public LiveTest {
 protected:
  void SetUp() override {
    LiveTest::SetUp();
    NSWindow *window = showWindow(NSMakeSize(160, 60));
    view = [[[OvTestEmbossView alloc] initWithFrame:NSMakeRect(20, 10, 120, 40)] autorelease];
    view->flipped = YES;
    [[window contentView] addSubview:view];
    cell = [[[OvTextFieldCell alloc] initTextCell:@"IHLT"] autorelease];
    [cell setFont:[NSFont boldSystemFontOfSize:24]];
    [cell setTextColor:[NSColor colorWithDeviceWhite:0 alpha:1]];
    view->cell = cell;
  }

  static int lightest(const Picture &picture) {
    int value = 0;
    forEach(picture, [&](int, int, int brightness) { value = std::max(value, brightness); });
    return value;
  }

  template <typename Body>
  static void forEach(const Picture &picture, Body body) {
    for (int y = 0; y < picture.height(); y++) {
      for (int x = 0; x < picture.width(); x++) body(x, y, picture.at(x, y).brightness());
    }
  }

  struct Box {
    int left = 1000, top = 1000, right = -1, bottom = -1;
    void add(int x, int y) {
      left = std::min(left, x), top = std::min(top, y);
      right = std::max(right, x), bottom = std::max(bottom, y);
    }
  };
  static Box dark(const Picture &picture) {
    Box box;
    forEach(picture, [&](int x, int y, int b) {
      if (b < 40) box.add(x, y);
    });
    return box;
  }
  static Box light(const Picture &picture) {
    Box box;
    forEach(picture, [&](int x, int y, int b) {
      if (b > 190) box.add(x, y);
    });
    return box;
  }

  OvTestEmbossView *view = nil;
  OvTextFieldCell *cell = nil;
};

TEST_F(Emboss, StartsOffWithItsShadowReady) {
  EXPECT_FALSE([cell isEmboss]);
  EXPECT_EQ([cell embossOffset], NSMakeSize(1, -1));
  EXPECT_TRUE([[cell embossColor] isEqual:[NSColor colorWithDeviceWhite:1.0 alpha:0.8]]);
  OvTextFieldCell *image = [[[OvTextFieldCell alloc] initImageCell:nil] autorelease];
  EXPECT_FALSE([image isEmboss]);
  EXPECT_EQ([image embossOffset], NSMakeSize(1, -1));
  EXPECT_EQ([[[[OvTextFieldCell alloc] init] autorelease] embossOffset], NSMakeSize(1, -1));
}

TEST_F(Emboss, KeepsWhatIsSet) {
  [cell setEmboss:YES];
  [cell setEmbossOffset:NSMakeSize(-2, 3.5)];
  [cell setEmbossColor:[NSColor redColor]];
  EXPECT_TRUE([cell isEmboss]);
  EXPECT_EQ([cell embossOffset], NSMakeSize(-2, 3.5));
  EXPECT_TRUE([[cell embossColor] isEqual:[NSColor redColor]]);
}

TEST_F(Emboss, PlainTextHasNoShadow) { EXPECT_LT(lightest(pictureOf(view)), 140); }

TEST_F(Emboss, ALightShadowLiesRightOfAndBelowTheText) {
  [cell setEmboss:YES];
  for (BOOL flipped : {YES, NO}) {
    view->flipped = flipped;
    const Picture picture = pictureOf(view);
    EXPECT_GT(lightest(picture), 200) << flipped;
    const Box text = dark(picture);
    const Box shadow = light(picture);
    EXPECT_EQ(shadow.right, text.right + 1) << flipped;
    EXPECT_EQ(shadow.bottom, text.bottom + 1) << flipped;
    // Each lies a pixel right of and below a dark one.
    int astray = 0;
    forEach(picture, [&](int x, int y, int b) {
      if (b > 220 && picture.at(x - 1, y - 1).brightness() > 110) astray++;
    });
    EXPECT_EQ(astray, 0) << flipped;
  }
}

TEST_F(Emboss, TheShadowFollowsItsOffsetAndColour) {
  [cell setEmboss:YES];
  [cell setEmbossOffset:NSMakeSize(-6, 5)];
  [cell setEmbossColor:[NSColor colorWithDeviceWhite:1 alpha:1]];
  for (BOOL flipped : {YES, NO}) {
    view->flipped = flipped;
    const Picture picture = pictureOf(view);
    EXPECT_EQ(light(picture).left, std::max(0, dark(picture).left - 6)) << flipped;
    EXPECT_LT(light(picture).top, dark(picture).top) << flipped;
  }
  [cell setEmbossColor:[NSColor colorWithDeviceRed:1 green:0 blue:0 alpha:1]];
  EXPECT_GT(pictureOf(view).count([view bounds], kRed, 20), 20);
  [cell setEmbossColor:nil];
  EXPECT_LT(lightest(pictureOf(view)), 140);
}

TEST_F(Emboss, TheTextIsDrawnInTheInsetFrame) {
  [cell setEmboss:YES];
  const Box text = dark(pictureOf(view));
  view->cell = nil;
  const Picture empty = pictureOf(view);
  EXPECT_EQ(dark(empty).right, -1);
  // The same, drawn by hand.
  [view lockFocus];
  [[NSColor colorWithDeviceWhite:0.5 alpha:1] set];
  NSRectFill([view bounds]);
  [[cell attributedStringValue] drawInRect:NSInsetRect([view bounds], 2, 1)];
  const Picture byHand(
      [[[NSBitmapImageRep alloc] initWithFocusedViewRect:[view bounds]] autorelease]);
  [view unlockFocus];
  EXPECT_EQ(text.left, dark(byHand).left);
  EXPECT_EQ(text.top, dark(byHand).top);
  EXPECT_EQ(text.right, dark(byHand).right);
  EXPECT_EQ(text.bottom, dark(byHand).bottom);
}

TEST_F(Emboss, AnEmptyTextIsNoTrouble) {
  [cell setEmboss:YES];
  [cell setStringValue:@""];
  EXPECT_LT(lightest(pictureOf(view)), 140);
}

TEST_F(Emboss, ACopyHasAShadowOfItsOwn) {
  [cell setEmboss:YES];
  [cell setEmbossOffset:NSMakeSize(3, 4)];
  NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
  OvTextFieldCell *copy = [cell copy];
  EXPECT_TRUE([copy isEmboss]);
  EXPECT_EQ([copy embossOffset], NSMakeSize(3, 4));
  [copy setEmbossOffset:NSMakeSize(5, 6)];
  EXPECT_EQ([cell embossOffset], NSMakeSize(3, 4));
  OvTextFieldCell *second = [copy copy];
  [copy release];
  EXPECT_EQ([second embossOffset], NSMakeSize(5, 6));
  [second release];
  [pool release];
  EXPECT_EQ([cell embossOffset], NSMakeSize(3, 4));
}

TEST_F(Emboss, ACellFromAnArchiveStartsAnew) {
  [cell setEmboss:YES];
  [cell setEmbossOffset:NSMakeSize(3, 4)];
  OvTextFieldCell *keyed =
      [NSKeyedUnarchiver unarchiveObjectWithData:[NSKeyedArchiver archivedDataWithRootObject:cell]];
  OvTextFieldCell *sequential =
      [NSUnarchiver unarchiveObjectWithData:[NSArchiver archivedDataWithRootObject:cell]];
  for (OvTextFieldCell *decoded : {keyed, sequential}) {
    EXPECT_FALSE([decoded isEmboss]);
    EXPECT_EQ([decoded embossOffset], NSMakeSize(1, -1));
    EXPECT_TRUE([[decoded stringValue] isEqual:@"IHLT"]);
  }
}

TEST_F(Emboss, AFieldForwardsToItsCell) {
  OvTextField *field = [[[OvTextField alloc] initWithFrame:NSMakeRect(0, 0, 100, 22)] autorelease];
  [field setEmboss:YES];
  [field setEmbossOffset:NSMakeSize(2, 2)];
  [field setEmbossColor:[NSColor redColor]];
  OvTextFieldCell *its = [field cell];
  EXPECT_TRUE([its isEmboss]);
  EXPECT_TRUE([field isEmboss]);
  EXPECT_EQ([its embossOffset], NSMakeSize(2, 2));
  EXPECT_EQ([field embossOffset], NSMakeSize(2, 2));
  EXPECT_TRUE([[its embossColor] isEqual:[NSColor redColor]]);
  EXPECT_TRUE([[field embossColor] isEqual:[NSColor redColor]]);
  // A host's own cell has none of it.
  [field setCell:[[[NSTextFieldCell alloc] initTextCell:@""] autorelease]];
  [field setEmboss:YES];
  EXPECT_FALSE([field isEmboss]);
  EXPECT_EQ([field embossColor], nil);
}

TEST_F(Emboss, WhileItIsEditedTheEditorCoversIt) {
  OvTextField *field = [[[OvTextField alloc] initWithFrame:NSMakeRect(0, 0, 120, 40)] autorelease];
  [field setEditable:YES];
  [field setSelectable:YES];
  [field setEmboss:YES];
  [field setFont:[NSFont boldSystemFontOfSize:24]];
  [field setStringValue:@"XXXX"];
  [view->cell setStringValue:@""];
  [view addSubview:field];
  ASSERT_TRUE([[view window] makeFirstResponder:field]);
  [[field currentEditor] setString:@""];
  const Picture picture = pictureOf(view);
  // The caret alone.
  EXPECT_LE(dark(picture).right, 2);
  EXPECT_LT(lightest(picture), 200);
}

}  // namespace
