#import <OvAppKit/NSView+OvAppKit.h>

#import "LiveTest.h"

/* Takes a sibling along, and adds another view, when it is removed. */
@interface OvTestGreedyView : NSView {
 @public
  NSView *_victim;
  NSView *_heir;
}
@end

@implementation OvTestGreedyView
- (void)removeFromSuperview {
  NSView *parent = [self superview];
  [_victim removeFromSuperview];
  _victim = nil;
  [super removeFromSuperview];
  if (_heir != nil) [parent addSubview:_heir];
  _heir = nil;
}
- (void)removeFromSuperviewWithoutNeedingDisplay {
  [_victim removeFromSuperviewWithoutNeedingDisplay];
  _victim = nil;
  [super removeFromSuperviewWithoutNeedingDisplay];
}
@end

/* Counts what it is sent. */
@interface OvTestCountingView : NSView {
 @public
  int *_plain;
  int *_quiet;
}
@end

@implementation OvTestCountingView
- (void)removeFromSuperview {
  if (_plain != NULL) ++*_plain;
  [super removeFromSuperview];
}
- (void)removeFromSuperviewWithoutNeedingDisplay {
  if (_quiet != NULL) ++*_quiet;
  [super removeFromSuperviewWithoutNeedingDisplay];
}
@end

namespace {

class ViewRemoval : public ov::test::LiveTest {
 protected:
  void SetUp() override {
    LiveTest::SetUp();
    NSWindow *window = makeWindow(NSMakeSize(200, 200));
    parent = [[[NSView alloc] initWithFrame:NSMakeRect(0, 0, 200, 200)] autorelease];
    [[window contentView] addSubview:parent];
  }

  template <typename View = NSView>
  View *add(Class viewClass = [NSView class]) {
    View *view = [[viewClass alloc] initWithFrame:NSMakeRect(10, 10, 20, 20)];
    [parent addSubview:view];
    [view release];
    return view;
  }

  NSUInteger count() { return [[parent subviews] count]; }

  NSView *parent = nil;
  int plain = 0;
  int quiet = 0;
};

TEST_F(ViewRemoval, AllGo) {
  for (int i = 0; i < 5; i++) add();
  [parent removeAllSubviews];
  EXPECT_EQ(count(), 0u);
  [parent removeAllSubviews];
  EXPECT_EQ(count(), 0u) << "of none, too";
}

TEST_F(ViewRemoval, EachIsSentTheMessageOfTheName) {
  for (int i = 0; i < 3; i++) {
    auto *view = add<OvTestCountingView>([OvTestCountingView class]);
    view->_plain = &plain;
    view->_quiet = &quiet;
  }
  [parent setNeedsDisplay:NO];
  NSArray *views = [[[parent subviews] copy] autorelease];
  [parent removeAllSubviewsWithoutNeedingDisplay];
  EXPECT_EQ(plain, 0);
  EXPECT_EQ(quiet, 3);
  EXPECT_FALSE([parent needsDisplay]);
  for (NSView *view in views) [parent addSubview:view];
  [parent setNeedsDisplay:NO];
  plain = quiet = 0;
  [parent removeAllSubviews];
  EXPECT_EQ(plain, 3);
  EXPECT_TRUE([parent needsDisplay]);
}

TEST_F(ViewRemoval, OfAClassGoItselfAndItsSubclasses) {
  NSView *view = add();
  NSButton *button = add<NSButton>([NSButton class]);
  NSPopUpButton *popUp = add<NSPopUpButton>([NSPopUpButton class]);
  NSTextField *field = add<NSTextField>([NSTextField class]);
  (void)popUp;
  [parent removeSubviewsKindOfClass:[NSButton class]];
  EXPECT_TRUE(([[parent subviews] isEqualToArray:@[ view, field ]]));
  (void)button;
  [parent removeSubviewsKindOfClass:Nil];
  EXPECT_EQ(count(), 2u) << "no view is of no class";
  [parent removeSubviewsKindOfClass:[NSView class]];
  EXPECT_EQ(count(), 0u);
}

TEST_F(ViewRemoval, AViewMayTakeItsSiblingsAlong) {
  for (const bool sayIt : {true, false}) {
    auto *greedy = add<OvTestGreedyView>([OvTestGreedyView class]);
    greedy->_victim = add();
    add();
    if (sayIt) {
      [parent removeAllSubviews];
    } else {
      [parent removeAllSubviewsWithoutNeedingDisplay];
    }
    EXPECT_EQ(count(), 0u);
  }
  auto *greedy = add<OvTestGreedyView>([OvTestGreedyView class]);
  greedy->_victim = add();
  [parent removeSubviewsKindOfClass:[NSView class]];
  EXPECT_EQ(count(), 0u);
}

TEST_F(ViewRemoval, WhatIsAddedMeanwhileStays) {
  auto *greedy = add<OvTestGreedyView>([OvTestGreedyView class]);
  NSView *heir = [[[NSView alloc] initWithFrame:NSMakeRect(0, 0, 5, 5)] autorelease];
  greedy->_heir = heir;
  add();
  [parent removeAllSubviews];
  EXPECT_TRUE([[parent subviews] isEqualToArray:@[ heir ]]);
}

}  // namespace
