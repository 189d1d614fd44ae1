// Items of menus, pop-up buttons and tab views by what they are for.

#import <OvAppKit/NSMenu+OvAppKit.h>
#import <OvAppKit/NSPopUpButton+OvAppKit.h>
#import <OvAppKit/NSTabView+OvAppKit.h>

#include <climits>
#include <string>

#import "LiveTest.h"

using namespace ov::test;

/* Counts what is chosen. */
@interface OvTestChooser : NSObject {
 @public
  int chosen;
}
@end

@implementation OvTestChooser
- (void)choose:(id)sender {
  (void)sender;
  ++chosen;
}
- (void)other:(id)sender {
  (void)sender;
}
@end

namespace {

class Menus : public LiveTest {
 protected:
  void SetUp() override {
    LiveTest::SetUp();
    target = [[OvTestChooser alloc] init];
  }
  void TearDown() override {
    LiveTest::TearDown();
    // A menu that goes away still asks the targets of its items whether they would act.
    [target release];
  }

  NSMenuItem *item(NSString *title, NSInteger tag) {
    NSMenuItem *item = [[[NSMenuItem alloc] initWithTitle:title action:NULL
                                            keyEquivalent:@""] autorelease];
    [item setTag:tag];
    return item;
  }
  // one (tag 1), two (2, "object"), three (2, the target's choose:), four (4, with a submenu),
  // five (0, the target's other:).
  NSMenu *menu() {
    NSMenu *menu = [[[NSMenu alloc] initWithTitle:@"menu"] autorelease];
    for (NSMenuItem *each in items()) [menu addItem:each];
    return menu;
  }
  NSArray *items() {
    NSArray *items = @[
      item(@"one", 1), item(@"two", 2), item(@"three", 2), item(@"four", 4), item(@"five", 0)
    ];
    [[items objectAtIndex:1] setRepresentedObject:[NSMutableString stringWithString:@"object"]];
    [[items objectAtIndex:2] setTarget:target];
    [[items objectAtIndex:2] setAction:@selector(choose:)];
    submenu = [[[NSMenu alloc] initWithTitle:@"sub"] autorelease];
    [[items objectAtIndex:3] setSubmenu:submenu];
    [[items objectAtIndex:4] setTarget:target];
    [[items objectAtIndex:4] setAction:@selector(other:)];
    return items;
  }
  static std::string titles(NSArray *items) {
    return [[[items valueForKey:@"title"] componentsJoinedByString:@" "] UTF8String];
  }
  static std::string title(NSMenuItem *item) {
    return item == nil ? "nil" : [[item title] UTF8String];
  }
  NSPopUpButton *popUp() {
    NSPopUpButton *button = [[[NSPopUpButton alloc] initWithFrame:NSMakeRect(10, 10, 150, 26)
                                                        pullsDown:NO] autorelease];
    for (NSMenuItem *each in items()) [button addItem:each];
    return button;
  }

  OvTestChooser *target = nil;
  NSMenu *submenu = nil;  // of the menu that was made last
};

TEST_F(Menus, ItemsAreFound) {
  NSMenu *m = menu();
  // Equal, not identical.
  EXPECT_EQ(title([m itemWithRepresentedObject:@"object"]), "two");
  EXPECT_EQ(title([m itemWithRepresentedObject:@"another"]), "nil");
  EXPECT_EQ(title([m itemWithSubmenu:submenu]), "four");
  EXPECT_EQ(title([m itemWithSubmenu:m]), "nil");
  EXPECT_EQ(title([m itemWithTarget:target andAction:@selector(other:)]), "five");
  EXPECT_EQ(title([m itemWithTarget:target andAction:@selector(description)]), "nil");
  EXPECT_EQ(title([m itemWithTarget:m andAction:@selector(choose:)]), "nil");
}

TEST_F(Menus, NilIsFoundAsThePlatformFindsIt) {
  NSMenu *m = menu();
  EXPECT_EQ(title([m itemWithRepresentedObject:nil]), "nil");
  EXPECT_EQ(title([m itemWithSubmenu:nil]), "nil");
  EXPECT_EQ(title([m itemWithTarget:nil andAction:NULL]), "one");
  EXPECT_EQ(title([m itemWithTarget:target andAction:NULL]), "three");
  NSMenu *empty = [[[NSMenu alloc] initWithTitle:@""] autorelease];
  EXPECT_EQ([empty itemWithTarget:nil andAction:NULL], nil);
}

TEST_F(Menus, ItemsAreRemoved) {
  NSMenu *m = menu();
  [m removeItemWithTag:2];
  EXPECT_EQ(titles([m itemArray]), "one three four five");
  m = menu();
  [m removeItemWithRepresentedObject:@"object"];
  EXPECT_EQ(titles([m itemArray]), "one three four five");
  m = menu();
  [m removeItemWithSubmenu:submenu];
  EXPECT_EQ(titles([m itemArray]), "one two three five");
  m = menu();
  [m removeItemWithTarget:target andAction:@selector(choose:)];
  EXPECT_EQ(titles([m itemArray]), "one two four five");
}

TEST_F(Menus, RemovingWhatIsNotThereDoesNothing) {
  NSMenu *m = menu();
  for (int tag : {99, -1, INT_MAX, INT_MIN}) [m removeItemWithTag:tag];
  [m removeItemWithRepresentedObject:@"another"];
  [m removeItemWithRepresentedObject:nil];
  [m removeItemWithSubmenu:m];
  [m removeItemWithSubmenu:nil];
  [m removeItemWithTarget:target andAction:@selector(description)];
  EXPECT_EQ([m numberOfItems], 5);
}

TEST_F(Menus, PopUpButtonsTakeItems) {
  NSPopUpButton *button = [[[NSPopUpButton alloc] initWithFrame:NSMakeRect(0, 0, 100, 24)
                                                      pullsDown:NO] autorelease];
  NSMenuItem *first = item(@"first", 7);
  [button addItem:first];
  EXPECT_EQ([first menu], [button menu]);
  // It shows the first item that it gets.
  EXPECT_EQ([button indexOfSelectedItem], 0);
  EXPECT_TRUE([[button title] isEqual:@"first"]);
  [button insertItem:item(@"zeroth", 0) atIndex:0];
  [button insertItem:item(@"last", 0) atIndex:2];
  EXPECT_EQ(titles([button itemArray]), "zeroth first last");
  EXPECT_EQ([button indexOfSelectedItem], 1);
  for (NSInteger index : {NSInteger(-1), NSInteger(4), NSIntegerMax, NSIntegerMin}) {
    [button insertItem:item(@"nowhere", 0) atIndex:index];
  }
  [button addItem:nil];
  [button insertItem:nil atIndex:0];
  [button addItem:first];
  EXPECT_EQ([button numberOfItems], 3);
}

TEST_F(Menus, PopUpButtonsFindItems) {
  NSPopUpButton *button = popUp();
  EXPECT_EQ(title([button itemWithTag:2]), "two");
  EXPECT_EQ(title([button itemWithTag:5]), "nil");
  EXPECT_EQ(title([button itemWithRepresentedObject:@"object"]), "two");
  EXPECT_EQ(title([button itemWithRepresentedObject:nil]), "nil");
  EXPECT_EQ(title([button itemWithTarget:target andAction:@selector(choose:)]), "three");
  EXPECT_EQ(title([button itemWithTarget:target andAction:@selector(description)]), "nil");
}

TEST_F(Menus, PopUpButtonsRemoveItems) {
  NSPopUpButton *button = popUp();
  [button removeItemWithTag:4];
  [button removeItemWithRepresentedObject:@"object"];
  [button removeItemWithTarget:target andAction:@selector(other:)];
  EXPECT_EQ(titles([button itemArray]), "one three");
  [button removeItemWithTag:77];
  [button removeItemWithRepresentedObject:@"object"];
  [button removeItemWithTarget:target andAction:@selector(other:)];
  EXPECT_EQ([button numberOfItems], 2);
}

TEST_F(Menus, ARemovedItemIsNotSelectedAnyMore) {
  NSPopUpButton *button = [popUp() retain];
  [button selectItemWithRepresentedObject:@"object"];
  [button removeItemWithTag:2];
  drainPool();
  EXPECT_EQ([button selectedItem], nil);
  EXPECT_EQ([button tagOfSelectedItem], 0);
  EXPECT_EQ([button representedObjectOfSelectedItem], nil);
  [button release];
}

TEST_F(Menus, PopUpButtonsSelect) {
  NSPopUpButton *button = popUp();
  EXPECT_EQ([button indexOfSelectedItem], 0);
  [button selectItemWithRepresentedObject:@"object"];
  EXPECT_EQ([button indexOfSelectedItem], 1);
  EXPECT_TRUE([[button title] isEqual:@"two"]);
  [button selectItemWithTarget:target andAction:@selector(choose:)];
  EXPECT_EQ([button indexOfSelectedItem], 2);
  // What is not there clears the selection.
  [button selectItemWithRepresentedObject:@"another"];
  EXPECT_EQ([button indexOfSelectedItem], -1);
  EXPECT_EQ([button selectedItem], nil);
  [button selectItemAtIndex:1];
  [button selectItemWithTarget:target andAction:@selector(description)];
  EXPECT_EQ([button indexOfSelectedItem], -1);
  [button selectItemAtIndex:1];
  [button selectItemWithRepresentedObject:nil];
  EXPECT_EQ([button indexOfSelectedItem], -1);
}

TEST_F(Menus, PopUpButtonsTellOfTheirItems) {
  NSPopUpButton *button = popUp();
  EXPECT_EQ([button itemTagAtIndex:3], 4);
  EXPECT_TRUE([[button itemRepresentedObjectAtIndex:1] isEqual:@"object"]);
  EXPECT_EQ([button itemRepresentedObjectAtIndex:0], nil);
  for (int index : {-1, 5, INT_MAX, INT_MIN}) {
    EXPECT_EQ([button itemTagAtIndex:index], 0);
    EXPECT_EQ([button itemRepresentedObjectAtIndex:index], nil);
  }
  EXPECT_EQ([button tagOfSelectedItem], 1);
  [button selectItemAtIndex:1];
  EXPECT_EQ([button tagOfSelectedItem], 2);
  EXPECT_TRUE([[button representedObjectOfSelectedItem] isEqual:@"object"]);
  [button selectItemAtIndex:-1];
  EXPECT_EQ([button tagOfSelectedItem], 0);
  EXPECT_EQ([button representedObjectOfSelectedItem], nil);
  NSPopUpButton *empty = [[[NSPopUpButton alloc] initWithFrame:NSZeroRect
                                                     pullsDown:YES] autorelease];
  EXPECT_EQ([empty tagOfSelectedItem], 0);
  EXPECT_EQ([empty itemTagAtIndex:0], 0);
  EXPECT_EQ([empty itemWithTag:0], nil);
}

TEST_F(Menus, AnItemThatWasAddedIsChosen) {
  NSPopUpButton *button = popUp();
  [button setTarget:target];
  [button setAction:@selector(choose:)];
  // One without an action of its own sends the button's.
  [[button menu] performActionForItemAtIndex:1];
  EXPECT_EQ([button indexOfSelectedItem], 1);
  EXPECT_EQ(target->chosen, 1);
}

TEST_F(Menus, TabViews) {
  NSTabView *tabs = [[[NSTabView alloc] initWithFrame:NSMakeRect(0, 0, 200, 100)] autorelease];
  EXPECT_EQ([tabs indexOfSelectedTabViewItem], NSNotFound);
  EXPECT_EQ([tabs tabViewItemWithIdentifier:@"a"], nil);
  for (NSString *identifier in @[ @"a", @"b", @"c" ]) {
    [tabs addTabViewItem:[[[NSTabViewItem alloc] initWithIdentifier:identifier] autorelease]];
  }
  EXPECT_EQ([tabs tabViewItemWithIdentifier:[NSMutableString stringWithString:@"b"]],
            [tabs tabViewItemAtIndex:1]);
  EXPECT_EQ([tabs tabViewItemWithIdentifier:@"d"], nil);
  EXPECT_EQ([tabs tabViewItemWithIdentifier:nil], nil);
  [tabs selectTabViewItem:[tabs tabViewItemWithIdentifier:@"c"]];
  EXPECT_EQ([tabs indexOfSelectedTabViewItem], 2);
  [tabs selectFirstTabViewItem:nil];
  EXPECT_EQ([tabs indexOfSelectedTabViewItem], 0);
}

}  // namespace
