// Clients come and go, and views die without leaving anything behind.

#import "TextViewTest.h"

using namespace ov::test;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

// A view whose death is counted.
@interface OvTestMortalTextView : OvTextView
+ (int)deaths;
@end

static int mortalDeaths = 0;

@implementation OvTestMortalTextView
+ (int)deaths {
  return mortalDeaths;
}
- (void)dealloc {
  mortalDeaths++;
  [super dealloc];
}
@end

namespace {

class TextViewLifetime : public TextViewTest {
 protected:
  void SetUp() override {
    TextViewTest::SetUp();
    mortalDeaths = 0;
  }
  OvTestMortalTextView *mortal() {
    return [[OvTestMortalTextView alloc] initWithFrame:NSMakeRect(0, 0, 100, 80)];
  }
  // The platform keeps a view until it has laid it out.
  void expectDeaths(int count) {
    drainPool();
    EXPECT_TRUE(pumpUntil([=] { return mortalDeaths == count; })) << mortalDeaths;
  }
};

TEST_F(TextViewLifetime, TheViewIsThePlatformsDelegate) {
  makeView();
  EXPECT_EQ([view delegate], nil);
  [view setDelegate:listener];
  EXPECT_EQ([view delegate], view);
  EXPECT_EQ([view myDelegate], listener);
  [view setDelegate:nil];
  EXPECT_EQ([view delegate], nil);
  EXPECT_EQ([view myDelegate], nil);
}

TEST_F(TextViewLifetime, ANewClientReplacesTheOldOne) {
  makeView();
  OvTestTextListener *old = [[[OvTestTextListener alloc] init] autorelease];
  [view setDelegate:old];
  [view setDelegate:listener];
  typeText(@"a\r");
  [window makeFirstResponder:other];
  EXPECT_THAT(old->heard, IsEmpty());
  EXPECT_THAT(heard(), ElementsAre("DidBeginEditing", "DidChange", "DidChange", "DidReturn a",
                                   "DidEndEditing", "ResignFirstResponder"));
}

TEST_F(TextViewLifetime, TheSameClientAgainHearsOnce) {
  makeView();
  for (int i = 0; i < 3; i++) [view setDelegate:listener];
  typeText(@"a");
  EXPECT_THAT(heard(), ElementsAre("DidBeginEditing", "DidChange"));
}

TEST_F(TextViewLifetime, AClientHearsOnlyWhatItHasMethodsFor) {
  makeView();
  OvTestChangeListener *client = [[[OvTestChangeListener alloc] init] autorelease];
  [view setDelegate:client];
  typeText(@"a\r");
  EXPECT_EQ(client->changes, 2);
  [view setDelegate:nil];
}

TEST_F(TextViewLifetime, OnlyItsOwnViewIsHeard) {
  makeView();
  OvTextView *second = [[[OvTextView alloc] initWithFrame:NSMakeRect(0, 0, 50, 50)] autorelease];
  [view setDelegate:listener];
  OvTestChangeListener *client = [[[OvTestChangeListener alloc] init] autorelease];
  [second setDelegate:client];
  typeText(@"a");
  EXPECT_EQ(client->changes, 0);
  [second setDelegate:nil];
}

TEST_F(TextViewLifetime, MyDelegateAloneIsOnlySubscribed) {
  makeView();
  [view setMyDelegate:listener];
  EXPECT_EQ([view myDelegate], listener);
  EXPECT_EQ([view delegate], nil);
  typeText(@"a");
  EXPECT_THAT(heard(), IsEmpty());
  typeText(@"\r");
  EXPECT_THAT(heard(), ElementsAre("DidReturn a"));
  [view setMyDelegate:nil];
}

TEST_F(TextViewLifetime, TheClientIsNotRetained) {
  makeView();
  const NSUInteger count = [listener retainCount];
  [view setDelegate:listener];
  EXPECT_EQ([listener retainCount], count);
}

TEST_F(TextViewLifetime, ASubclassMayBeItsOwnClient) {
  makeView();
  [view setDelegate:view];
  EXPECT_EQ([view myDelegate], view);
  [[view textValidator] setMaxLength:1];
  typeText(@"ab");
  EXPECT_EQ(string(), "a");
}

// A text view fits its height to its text when its frame changes, which it knows from its own
// notifications.
TEST_F(TextViewLifetime, HearsOfItsOwnFrameAfterTheClientChanged) {
  makeView();
  for (int i = 0; i < 3; i++) [view setDelegate:listener];
  [view setDelegate:nil];
  [view setDelegate:listener];
  [view setMinSize:NSMakeSize(10, 10)];
  [view setMaxSize:NSMakeSize(1e6, 1e6)];
  [view setVerticallyResizable:YES];
  [view setString:@"a\nb\nc\nd"];
  pumpPending();
  [view setFrameSize:NSMakeSize(300, 12)];
  EXPECT_GT([view frame].size.height, 40) << "grown to hold its lines again";
}

TEST_F(TextViewLifetime, ManyViewsDieWithTheirClients) {
  makeView();
  for (int i = 0; i < 200; i++) {
    @autoreleasepool {
      OvTestTextClient *client = [[OvTestTextClient alloc] init];
      client->shouldBegin = client->shouldEnd = YES;
      OvTestMortalTextView *one = mortal();
      [one setDelegate:client];
      [one setString:@"hello\nworld"];
      if (i % 2 == 0) {
        [[window contentView] addSubview:one];
        [window makeFirstResponder:one];
        [one insertText:@"more"];
        if (i % 4 == 0) [one setAllowsUndo:YES];
        [one insertText:@"still more"];
        if (i % 8 == 0) pumpPending();
        [one removeFromSuperview];
      }
      if (i % 3 == 0) [one setDelegate:nil];
      [one release];
      [client release];
    }
    if (i % 5 == 0) pumpPending();
  }
  expectDeaths(200);
  // Whatever they left in the notification center would be called now.
  NSNotificationCenter *center = [NSNotificationCenter defaultCenter];
  for (int i = 0; i < 200; i++) {
    @autoreleasepool {
      OvTextView *later = [[OvTextView alloc] initWithFrame:NSMakeRect(0, 0, 100, 80)];
      [later setString:@"x"];
      [later setFrameSize:NSMakeSize(60, 60)];
      for (NSString *name in @[
             NSTextDidChangeNotification, NSTextDidBeginEditingNotification,
             NSTextDidEndEditingNotification, NSViewFrameDidChangeNotification,
             NSTextViewDidChangeSelectionNotification, OvTextViewDidChangeNotification
           ]) {
        [center postNotificationName:name object:later];
      }
      [later release];
    }
  }
  pumpPending();
}

TEST_F(TextViewLifetime, UndoAfterAViewDiedDoesNothing) {
  makeView();
  OvTestMortalTextView *one = mortal();
  [[window contentView] addSubview:one];
  [one setAllowsUndo:YES];
  [window makeFirstResponder:one];
  typeText(@"abc");
  EXPECT_TRUE([[window undoManager] canUndo]);
  [one removeFromSuperview];
  [one release];
  expectDeaths(1);
  [[window undoManager] undo];
  pumpPending();
}

TEST_F(TextViewLifetime, DiesAsTheDocumentOfAScrollView) {
  makeView();
  @autoreleasepool {
    OvTestMortalTextView *one = mortal();
    NSScrollView *scroll = [[NSScrollView alloc] initWithFrame:NSMakeRect(0, 0, 200, 100)];
    [scroll setDocumentView:one];
    [[window contentView] addSubview:scroll];
    [one setDelegate:listener];
    [window makeFirstResponder:one];
    typeText(@"a\rb");
    [one release];
    [scroll removeFromSuperview];
    [scroll release];
  }
  expectDeaths(1);
}

TEST_F(TextViewLifetime, DiesWithItsWindow) {
  @autoreleasepool {
    NSWindow *own = [[NSWindow alloc] initWithContentRect:NSMakeRect(50, 50, 200, 200)
                                                styleMask:NSTitledWindowMask
                                                  backing:NSBackingStoreBuffered
                                                    defer:NO];
    [own setReleasedWhenClosed:NO];
    OvTestMortalTextView *one = mortal();
    [one setAllowsUndo:YES];
    [one setDelegate:listener];
    [[own contentView] addSubview:one];
    [own makeFirstResponder:one];
    [one insertText:@"abc"];
    [one release];
    [own release];
  }
  expectDeaths(1);
}

// Two views show one text; the platform shares the delegate between them.
TEST_F(TextViewLifetime, ViewsOfOneTextDieInAnyOrder) {
  for (int first = 0; first < 2; first++) {
    SCOPED_TRACE(first);
    mortalDeaths = 0;
    @autoreleasepool {
      NSTextStorage *storage = [[NSTextStorage alloc] init];
      NSLayoutManager *layout = [[NSLayoutManager alloc] init];
      [storage addLayoutManager:layout];
      [layout release];
      NSTextView *views[2];
      for (int i = 0; i < 2; i++) {
        NSTextContainer *container =
            [[NSTextContainer alloc] initWithContainerSize:NSMakeSize(100, 100)];
        [layout addTextContainer:container];
        views[i] = [[OvTestMortalTextView alloc] initWithFrame:NSMakeRect(0, 0, 100, 100)
                                                 textContainer:container];
        [container release];
      }
      [views[0] setDelegate:(id)listener];
      [views[0] setString:@"text"];
      EXPECT_EQ(text([views[1] string]), "text");
      [views[0] release];
      [views[1] release];
      [layout removeTextContainerAtIndex:NSUInteger(first)];
      pumpPending();
      [storage replaceCharactersInRange:NSMakeRange(0, 0) withString:@"more "];
      [[layout firstTextView] insertText:@"x"];
      pumpPending();
      [storage release];
    }
    expectDeaths(2);
    heard();
  }
}

// The platform would hand the first view, as its own delegate, on to the second.
TEST_F(TextViewLifetime, AViewIsNoClientOfOneOfTheSameText) {
  NSTextStorage *storage = [[[NSTextStorage alloc] init] autorelease];
  NSLayoutManager *layout = [[[NSLayoutManager alloc] init] autorelease];
  [storage addLayoutManager:layout];
  OvTextView *views[2];
  for (OvTextView *&each : views) {
    NSTextContainer *container =
        [[[NSTextContainer alloc] initWithContainerSize:NSMakeSize(100, 100)] autorelease];
    [layout addTextContainer:container];
    each = [[[OvTextView alloc] initWithFrame:NSMakeRect(0, 0, 100, 100)
                                textContainer:container] autorelease];
  }
  [views[0] setDelegate:listener];
  EXPECT_EQ([views[0] myDelegate], listener);
  EXPECT_EQ([views[1] myDelegate], nil);
  EXPECT_EQ([views[1] delegate], nil);
  [views[1] insertText:@"a"];
  EXPECT_THAT(heard(), testing::Contains("DidChange"));
  [views[0] setDelegate:nil];
}

TEST_F(TextViewLifetime, AViewWithoutATextHearsNobodyElse) {
  makeView();
  OvTextView *bare = [[[OvTextView alloc] initWithFrame:NSMakeRect(0, 0, 50, 50)
                                          textContainer:nil] autorelease];
  [[bare textValidator] setMaxLength:1];
  [bare setDelegate:listener];
  typeText(@"abc");
  EXPECT_EQ(string(), "abc");
  EXPECT_THAT(heard(), IsEmpty());
  EXPECT_EQ([bare lineCount], 1u);
  EXPECT_EQ([bare stringAtLineIndex:0], nil);
  EXPECT_TRUE([bare isValid]);
  [bare setDelegate:nil];
}

}  // namespace
