// Responders that join and leave the chain of a window.

#import "ResponderTest.h"

#include <limits>

using namespace ov::test;

namespace {

constexpr NSInteger kLowest = std::numeric_limits<NSInteger>::min();
constexpr NSInteger kHighest = std::numeric_limits<NSInteger>::max();

}  // namespace

@interface ActionResponder : HXDynamicResponder {
 @public
  int actions, keys, notices;
}
@end

@implementation ActionResponder
- (void)takeAction:(id)sender {
  (void)sender;
  actions++;
}
- (void)keyDown:(NSEvent *)event {
  (void)event;
  keys++;
}
- (void)notice:(NSNotification *)notification {
  (void)notification;
  notices++;
}
@end

namespace {

class DynamicResponder : public ResponderTest {
 protected:
  void SetUp() override {
    ResponderTest::SetUp();
    window = makeWindow(NSMakeSize(200, 100));
    controller = [[[NSWindowController alloc] initWithWindow:window] autorelease];
  }
  HXDynamicResponder *enabled(const std::string &name, NSInteger ordering) {
    HXDynamicResponder *result = responder(name, window, ordering);
    [result setEnabled:YES];
    return result;
  }

  NSWindow *window = nil;
  NSWindowController *controller = nil;
};

TEST_F(DynamicResponder, StartsDisabledAndInNoChain) {
  HXDynamicResponder *plain = keep("plain", [[HXDynamicResponder alloc] init]);
  EXPECT_EQ([plain window], nil);
  EXPECT_EQ([plain ordering], 0);
  EXPECT_FALSE([plain enabled]);
  [plain setEnabled:YES];
  EXPECT_TRUE([plain enabled]);

  const NSUInteger count = [window retainCount];
  HXDynamicResponder *a = responder("a", window, -7);
  EXPECT_EQ([a window], window);
  EXPECT_EQ([window retainCount], count) << "the window is not retained";
  EXPECT_EQ([a ordering], -7);
  EXPECT_FALSE([a enabled]);
  EXPECT_EQ(chain(window), "controller app");
  [a setEnabled:YES];
  EXPECT_EQ(chain(window), "a controller app");
}

TEST_F(DynamicResponder, StandsByOrderingTheNewestFirstAmongEquals) {
  enabled("first5", 5);
  enabled("1", 1);
  enabled("second5", 5);
  EXPECT_EQ(chain(window), "1 second5 first5 controller app");
}

TEST_F(DynamicResponder, OrderingsAreSigned) {
  enabled("0", 0);
  enabled("highest", kHighest);
  enabled("lowest", kLowest);
  enabled("-1", -1);
  EXPECT_EQ(chain(window), "lowest -1 0 highest controller app");
}

TEST_F(DynamicResponder, AnotherOrderingReordersAndReversesEquals) {
  enabled("first5", 5);
  HXDynamicResponder *one = enabled("1", 1);
  enabled("second5", 5);
  [one setOrdering:10];
  EXPECT_EQ([one ordering], 10);
  EXPECT_EQ(chain(window), "first5 second5 1 controller app");
  [one setOrdering:10];
  EXPECT_EQ(chain(window), "first5 second5 1 controller app") << "the same value";
  [one setOrdering:0];
  EXPECT_EQ(chain(window), "1 second5 first5 controller app");
}

TEST_F(DynamicResponder, AnotherOrderingOfADisabledOneTouchesNoChain) {
  enabled("first5", 5);
  enabled("second5", 5);
  HXDynamicResponder *a = responder("a", window, 1);
  [a setOrdering:7];
  EXPECT_EQ(chain(window), "second5 first5 controller app");
  [a setEnabled:YES];
  EXPECT_EQ(chain(window), "second5 first5 a controller app");
  // Enabled, but nowhere.
  [a setWindow:nil];
  [a setOrdering:1];
  EXPECT_EQ(chain(window), "second5 first5 controller app");
}

TEST_F(DynamicResponder, DisablingTakesItOutAndEnablingPutsItBack) {
  enabled("1", 1);
  HXDynamicResponder *two = enabled("2", 2);
  enabled("3", 3);
  [two setEnabled:NO];
  EXPECT_EQ(chain(window), "1 3 controller app");
  [two setEnabled:NO];
  EXPECT_EQ(chain(window), "1 3 controller app");
  [two setEnabled:YES];
  [two setEnabled:YES];
  EXPECT_EQ(chain(window), "1 2 3 controller app");
}

TEST_F(DynamicResponder, MovesFromWindowToWindowWhileEnabled) {
  NSWindow *other = makeWindow(NSMakeSize(100, 100));
  HXDynamicResponder *a = enabled("a", 1);
  [a setWindow:other];
  EXPECT_EQ([a window], other);
  EXPECT_EQ(chain(window), "controller app");
  EXPECT_EQ(chain(other), "a app");
  [a setWindow:nil];
  EXPECT_EQ([a window], nil);
  EXPECT_EQ(chain(other), "app");
  [a setWindow:window];
  EXPECT_EQ(chain(window), "a controller app");
  [a setEnabled:NO];
  [a setWindow:other];
  EXPECT_EQ([a window], other);
  EXPECT_EQ(chain(other), "app");
}

TEST_F(DynamicResponder, TheSameWindowAgainKeepsItsPlaceAmongEquals) {
  HXDynamicResponder *first = enabled("first", 5);
  enabled("second", 5);
  [first setWindow:window];
  EXPECT_EQ(chain(window), "second first controller app");
}

TEST_F(DynamicResponder, WithoutAControllerItStandsBeforeTheApplication) {
  NSWindow *other = makeWindow(NSMakeSize(100, 100));
  HXDynamicResponder *two = responder("2", other, 2);
  HXDynamicResponder *one = responder("1", other, 1);
  [two setEnabled:YES];
  [one setEnabled:YES];
  EXPECT_EQ(chain(other), "1 2 app");
  EXPECT_EQ([NSApp nextResponder], nil) << "it would get the actions of every window";
  // A chain that somebody cut before the application.
  [two setNextResponder:nil];
  HXDynamicResponder *three = responder("3", other, 3);
  [three setEnabled:YES];
  EXPECT_EQ(chain(other), "1 2 3");
}

TEST_F(DynamicResponder, DoesNotJoinWhereTheControllerIsNotInTheChain) {
  NSWindow *other = makeWindow(NSMakeSize(100, 100));
  [other setWindowController:controller];
  HXDynamicResponder *a = responder("a", other, 1);
  [a setEnabled:YES];
  EXPECT_EQ(chain(other), "app");
  EXPECT_TRUE([a enabled]);
  [other setWindowController:nil];
}

TEST_F(DynamicResponder, RespondersOfOtherKindsKeepTheirPlaces) {
  NSResponder *stranger = [[[NSResponder alloc] init] autorelease];
  name(stranger, "stranger");
  [stranger setNextResponder:[window nextResponder]];
  [window setNextResponder:stranger];
  HXDynamicResponder *two = enabled("2", 2);
  enabled("1", 1);
  EXPECT_EQ(chain(window), "stranger 1 2 controller app");
  [two setOrdering:0];
  EXPECT_EQ(chain(window), "stranger 2 1 controller app");
  EXPECT_EQ(list([window _dynamicResponders]), "2 1");
  EXPECT_EQ(list([window _removeAllDynamicResponders]), "2 1");
  EXPECT_EQ(chain(window), "stranger controller app");
  [window setNextResponder:controller];
}

TEST_F(DynamicResponder, ComparesOrderings) {
  struct {
    NSInteger first, second;
    NSComparisonResult order;
  } rows[] = {{1, 2, NSOrderedAscending},
              {2, 2, NSOrderedSame},
              {2, 1, NSOrderedDescending},
              {kLowest, kHighest, NSOrderedAscending},
              {kHighest, kLowest, NSOrderedDescending}};
  for (auto &row : rows) {
    HXDynamicResponder *a = responder("a", nil, row.first), *b = responder("b", nil, row.second);
    EXPECT_EQ([a compareOrdering:b], row.order) << row.first << " and " << row.second;
  }
  EXPECT_EQ([responder("c", nil, 1) compareOrdering:nil], NSOrderedDescending);
}

TEST_F(DynamicResponder, LeavesTheChainAndTheNotificationCenterWhenItDies) {
  enabled("1", 1);
  ActionResponder *two = [[ActionResponder alloc] initWithWindow:window ordering:2];
  keep("2", two);
  [two setEnabled:YES];
  [[NSNotificationCenter defaultCenter] addObserver:two
                                           selector:@selector(notice:)
                                               name:@"OvTestNotice"
                                             object:nil];
  [[NSNotificationCenter defaultCenter] postNotificationName:@"OvTestNotice" object:nil];
  EXPECT_EQ(two->notices, 1);
  EXPECT_EQ(chain(window), "1 2 controller app");
  EXPECT_EQ([two retainCount], 1u) << "a chain does not retain";
  kill(two);
  EXPECT_EQ(chain(window), "1 controller app");
  [[NSNotificationCenter defaultCenter] postNotificationName:@"OvTestNotice" object:nil];
}

TEST_F(DynamicResponder, GetsTheActionsAndKeysThatNobodyTook) {
  ActionResponder *a = [[ActionResponder alloc] initWithWindow:window ordering:2];
  keep("a", a);
  [a setEnabled:YES];
  EXPECT_TRUE([window tryToPerform:@selector(takeAction:) with:nil]);
  EXPECT_EQ(a->actions, 1);
  [window keyDown:keyEvent(window, @"x")];
  EXPECT_EQ(a->keys, 1);
  [a setEnabled:NO];
  EXPECT_FALSE([window tryToPerform:@selector(takeAction:) with:nil]);
}

TEST_F(DynamicResponder, MembershipLeavesOutTheWindowsNeighbour) {
  HXDynamicResponder *one = enabled("1", 1), *two = enabled("2", 2);
  EXPECT_FALSE([window _containsDynamicResponder:one]);
  EXPECT_TRUE([window _containsDynamicResponder:two]);
  EXPECT_FALSE([window _containsDynamicResponder:responder("3", window, 3)]);
  EXPECT_FALSE([window _containsDynamicResponder:nil]);
}

TEST_F(DynamicResponder, AddingWhatIsInTheChainMakesNoCircle) {
  HXDynamicResponder *one = enabled("1", 1), *two = enabled("2", 2);
  [window _addDynamicResponder:one];
  [window _addDynamicResponder:two];
  EXPECT_EQ(chain(window), "1 2 controller app");
}

TEST_F(DynamicResponder, ARemovedOneKeepsItsNextResponder) {
  HXDynamicResponder *one = enabled("1", 1), *two = enabled("2", 2);
  [window _removeDynamicResponder:one];
  EXPECT_EQ(chain(window), "2 controller app");
  EXPECT_EQ([one nextResponder], two);
  [window _removeDynamicResponder:one];
  EXPECT_EQ(chain(window), "2 controller app");
}

TEST_F(DynamicResponder, ListsThoseInTheChain) {
  ActionResponder *two = [[ActionResponder alloc] initWithWindow:window ordering:2];
  keep("2", two);
  [two setEnabled:YES];
  enabled("3", 3);
  enabled("1", 1);
  responder("disabled", window, 0);
  EXPECT_EQ(list([window _dynamicResponders]), "1 2 3");
  EXPECT_NE([window _dynamicResponders], [window _dynamicResponders]);
  EXPECT_EQ(list([window _dynamicRespondersKindOfClass:[ActionResponder class]]), "2");
  EXPECT_EQ(list([window _dynamicRespondersKindOfClass:[HXDynamicResponder class]]), "1 2 3");
  EXPECT_EQ(list([window _dynamicRespondersKindOfClass:Nil]), "");
}

TEST_F(DynamicResponder, RemovesAllInTheirOrder) {
  enabled("2", 2);
  enabled("1", 1);
  enabled("also1", 1);
  EXPECT_EQ(list([window _removeAllDynamicResponders]), "also1 1 2");
  EXPECT_EQ(chain(window), "controller app");
  EXPECT_EQ(list([window _removeAllDynamicResponders]), "");
}

TEST_F(DynamicResponder, NothingAndStrangersAreNotAdded) {
  [window _addDynamicResponder:nil];
  [window _removeDynamicResponder:nil];
  NSResponder *stranger = [[[NSResponder alloc] init] autorelease];
  [window _addDynamicResponder:static_cast<HXDynamicResponder *>(stranger)];
  EXPECT_EQ(chain(window), "controller app");
}

// --- Windows that go, controllers that change

TEST_F(DynamicResponder, OutlivesItsWindow) {
  NSWindow *dying = ownedWindow();
  HXDynamicResponder *on = responder("on", dying, 1), *off = responder("off", dying, 2);
  HXDynamicResponder *elsewhere = enabled("elsewhere", 1);
  [on setEnabled:YES];
  [dying release];
  EXPECT_EQ([on window], nil);
  EXPECT_EQ([off window], nil);
  EXPECT_TRUE([on enabled]);
  EXPECT_EQ([elsewhere window], window);
  [off setEnabled:YES];
  [on setOrdering:9];
  [on setWindow:window];
  EXPECT_EQ(chain(window), "elsewhere on controller app");
}

TEST_F(DynamicResponder, StaysInAWindowThatIsClosed) {
  HXDynamicResponder *a = enabled("a", 1);
  [window close];
  EXPECT_EQ([a window], window);
  EXPECT_EQ(chain(window), "a controller app");
}

TEST_F(DynamicResponder, StaysBeforeAControllerThatComesLater) {
  NSWindow *other = makeWindow(NSMakeSize(100, 100));
  [responder("2", other, 2) setEnabled:YES];
  [responder("first1", other, 1) setEnabled:YES];
  [responder("second1", other, 1) setEnabled:YES];
  EXPECT_EQ(chain(other), "second1 first1 2 app");
  @autoreleasepool {
    NSWindowController *late = [[[NSWindowController alloc] initWithWindow:other] autorelease];
    EXPECT_EQ(chain(other), "second1 first1 2 controller app");
    [late setWindow:other];
    EXPECT_EQ(chain(other), "second1 first1 2 controller app") << "the same window again";
  }
  EXPECT_EQ(chain(other), "second1 first1 2 app") << "the controller died";
}

TEST_F(DynamicResponder, StaysBeforeAControllerThatReplacesAnother) {
  enabled("b", 2);
  HXDynamicResponder *a = enabled("a", 1);
  [controller setWindow:nil];
  EXPECT_EQ(chain(window), "a b app");
  NSWindowController *second = [[[NSWindowController alloc] initWithWindow:nil] autorelease];
  name(second, "second");
  [second setWindow:window];
  EXPECT_EQ(chain(window), "a b second app");
  [a setOrdering:3];
  EXPECT_EQ(chain(window), "b a second app");
  [second setWindow:nil];
  EXPECT_EQ(chain(window), "b a app");
}

TEST_F(DynamicResponder, AnArchivedCopyIsInNoChain) {
  // The archives are NSResponder's, which knows nothing of windows.
  HXDynamicResponder *a = enabled("a", 3);
  HXDynamicResponder *copy =
      [NSKeyedUnarchiver unarchiveObjectWithData:[NSKeyedArchiver archivedDataWithRootObject:a]];
  EXPECT_EQ([copy window], nil);
  EXPECT_FALSE([copy enabled]);
  EXPECT_EQ(chain(window), "a controller app");
}

}  // namespace
