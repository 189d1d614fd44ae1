// Menu items in fonts of their own: kept, copied, drawn.

#import <OvAppKit/NSAttributedString+OvAppKit.h>
#import <OvAppKit/NSMenuItem+OvAppKit.h>
#import <OvAppKit/NSPopUpButton+OvAppKit.h>

#include <string>

#import "LiveTest.h"

using namespace ov::test;

@interface NSMenu (OvTestPlatformMenus)
- (void)displayTransient;
- (void)closeTransient;
@end

namespace {

class MenuItemTitles : public LiveTest {
 protected:
  static NSAttributedString *attributed(NSString *string, NSDictionary *attributes) {
    return [[[NSAttributedString alloc] initWithString:string attributes:attributes] autorelease];
  }
  static NSFont *fontOf(NSMenuItem *item) {
    return [[item attributedTitle] attribute:NSFontAttributeName atIndex:0 effectiveRange:NULL];
  }
  NSMenuItem *item(NSString *title, NSFont *font) {
    return [[[NSMenuItem alloc] initWithTitle:title font:font action:NULL
                                keyEquivalent:@""] autorelease];
  }
  NSMenu *menu(NSArray *items) {
    NSMenu *menu = [[[NSMenu alloc] initWithTitle:@""] autorelease];
    for (NSMenuItem *each in items) [menu addItem:each];
    return menu;
  }
  void TearDown() override {
    [shown_ closeTransient];
    LiveTest::TearDown();
  }
  // As a context menu shows it.
  NSMenuView *shownView(NSMenu *menu) {
    [shown_ closeTransient];
    shown_ = menu;
    [menu displayTransient];
    return static_cast<NSMenuView *>([menu menuRepresentation]);
  }
  // How many pixels of a menu's row are as good as of this colour.
  static int count(NSMenuView *view, NSInteger row, const Pixel &color) {
    const NSRect rect = [view rectOfItemAtIndex:row];
    const Picture picture = pictureOf(view, rect);
    return picture.count(NSMakeRect(0, 0, picture.width(), picture.height()), color, 60);
  }

 private:
  NSMenu *shown_ = nil;
};

TEST_F(MenuItemTitles, AnItemIsMadeOfAnAttributedTitle) {
  NSAttributedString *title =
      attributed(@"Name", @{NSForegroundColorAttributeName : [NSColor redColor]});
  NSMenuItem *made = [[[NSMenuItem alloc] initWithAttributedTitle:title
                                                           action:@selector(copy:)
                                                    keyEquivalent:@"k"] autorelease];
  EXPECT_TRUE([[made attributedTitle] isEqualToAttributedString:title]);
  EXPECT_TRUE([[made title] isEqual:@"Name"]);
  EXPECT_TRUE([@"Name" isEqual:[made title]]);
  EXPECT_EQ([made action], @selector(copy:));
  EXPECT_TRUE([[made keyEquivalent] isEqual:@"k"]);
  EXPECT_EQ([made target], nil);
  EXPECT_FALSE([made hasSubmenu]);
}

TEST_F(MenuItemTitles, AnItemIsMadeInAFont) {
  NSFont *font = [NSFont boldSystemFontOfSize:19];
  NSMenuItem *made = [[[NSMenuItem alloc] initWithTitle:@"Name"
                                                   font:font
                                                 action:@selector(copy:)
                                          keyEquivalent:@"k"] autorelease];
  NSAttributedString *expected = [[[NSAttributedString alloc] initWithString:@"Name"
                                                                        font:font] autorelease];
  EXPECT_TRUE([[made attributedTitle] isEqualToAttributedString:expected]);
  EXPECT_TRUE([[made title] isEqual:@"Name"]);
  EXPECT_EQ([made action], @selector(copy:));
  EXPECT_TRUE([[made keyEquivalent] isEqual:@"k"]);
}

TEST_F(MenuItemTitles, AnItemIsMadeInAControlSize) {
  for (int size = 0; size < 3; ++size) {
    const NSControlSize control = static_cast<NSControlSize>(size);
    NSMenuItem *made = [[[NSMenuItem alloc] initWithTitle:@"Name"
                                              controlSize:control
                                                   action:@selector(copy:)
                                            keyEquivalent:@"k"] autorelease];
    EXPECT_EQ([fontOf(made) pointSize], [NSFont systemFontSizeForControlSize:control]);
    EXPECT_EQ([made action], @selector(copy:));
    EXPECT_TRUE([[made keyEquivalent] isEqual:@"k"]);
    // And set to it later.
    NSMenuItem *plain = [[[NSMenuItem alloc] init] autorelease];
    [plain setTitle:@"plain"];
    [plain setControlSize:control];
    EXPECT_EQ([fontOf(plain) pointSize], [NSFont systemFontSizeForControlSize:control]);
    EXPECT_TRUE([[plain title] isEqual:@"plain"]);
  }
}

TEST_F(MenuItemTitles, AFontTakesThePlaceOfAllAttributes) {
  NSMenuItem *made = [[[NSMenuItem alloc]
      initWithAttributedTitle:attributed(@"Name",
                                         @{NSForegroundColorAttributeName : [NSColor redColor]})
                       action:NULL
                keyEquivalent:@""] autorelease];
  NSFont *font = [NSFont systemFontOfSize:30];
  [made setFont:font];
  NSAttributedString *expected = [[[NSAttributedString alloc] initWithString:@"Name"
                                                                        font:font] autorelease];
  EXPECT_TRUE([[made attributedTitle] isEqualToAttributedString:expected]);
  [made setFont:nil];
  EXPECT_EQ([[[made attributedTitle] attributesAtIndex:0 effectiveRange:NULL] count], 0u);
}

TEST_F(MenuItemTitles, ATitleEndsTheAttributedOne) {
  NSMenuItem *made = item(@"Name", [NSFont systemFontOfSize:20]);
  [made setTitle:@"Other"];
  EXPECT_EQ([made attributedTitle], nil);
  EXPECT_TRUE([[made title] isEqual:@"Other"]);
  NSAttributedString *again = attributed(@"Other", @{});
  [made setAttributedTitle:again];
  EXPECT_TRUE([[made attributedTitle] isEqualToAttributedString:again]);
  [made setAttributedTitle:nil];
  EXPECT_EQ([made attributedTitle], nil);
  EXPECT_TRUE([[made title] isEqual:@"Other"]);
  [made setAttributedTitle:nil];
  EXPECT_TRUE([[made title] isEqual:@"Other"]);
}

TEST_F(MenuItemTitles, TheTitleIsOfItsMoment) {
  NSMutableAttributedString *changing =
      [[[NSMutableAttributedString alloc] initWithString:@"Name"] autorelease];
  NSMenuItem *made = [[[NSMenuItem alloc] init] autorelease];
  [made setAttributedTitle:changing];
  [changing replaceCharactersInRange:NSMakeRange(0, 4) withString:@"Other"];
  EXPECT_TRUE([[made title] isEqual:@"Name"]);
  EXPECT_TRUE([[[made attributedTitle] string] isEqual:@"Name"]);
}

TEST_F(MenuItemTitles, OddTitles) {
  NSMenuItem *made = [[[NSMenuItem alloc] initWithAttributedTitle:nil action:NULL
                                                    keyEquivalent:nil] autorelease];
  EXPECT_TRUE([[made title] isEqual:@""]);
  EXPECT_TRUE([[made keyEquivalent] isEqual:@""]);
  made = [[[NSMenuItem alloc] initWithTitle:nil
                                       font:[NSFont systemFontOfSize:9]
                                     action:NULL
                              keyEquivalent:@""] autorelease];
  EXPECT_TRUE([[made title] isEqual:@""]);
  EXPECT_EQ([[made attributedTitle] length], 0u);
  const unichar half = 0xD83D;
  NSString *huge = [@"" stringByPaddingToLength:100000 withString:@"long" startingAtIndex:0];
  for (NSString *odd in @[ @"\0", [NSString stringWithFormat:@"a%Cb", half], huge ]) {
    SCOPED_TRACE([odd length]);
    made = item(odd, [NSFont systemFontOfSize:9]);
    EXPECT_TRUE([[made title] isEqual:odd]);
    EXPECT_TRUE([odd isEqual:[made title]]);
    EXPECT_EQ([[made title] hash], [odd hash]);
    EXPECT_TRUE([[[made attributedTitle] string] isEqual:odd]);
    if ([odd length] < 10) shownView(menu(@[ made ]));
  }
}

TEST_F(MenuItemTitles, ATitleMayBeMadeOfAnothers) {
  NSMenuItem *made = item(@"Name", [NSFont systemFontOfSize:20]);
  for (int round = 0; round < 1000; ++round) {
    [made setAttributedTitle:attributed([made title], @{})];
    [made setFont:[NSFont systemFontOfSize:21]];
  }
  EXPECT_EQ([fontOf(made) pointSize], 21);
  EXPECT_TRUE([[made title] isEqual:@"Name"]);
}

TEST_F(MenuItemTitles, CopiesKeepIt) {
  NSMenuItem *made = item(@"Name", [NSFont systemFontOfSize:20]);
  NSMenuItem *copy = [[made copy] autorelease];
  EXPECT_TRUE([[copy attributedTitle] isEqualToAttributedString:[made attributedTitle]]);
  [copy setTitle:@"Other"];
  EXPECT_EQ([fontOf(made) pointSize], 20);
  NSMenu *menuCopy = [[menu(@[ made ]) copy] autorelease];
  EXPECT_EQ([fontOf(static_cast<NSMenuItem *>([menuCopy itemAtIndex:0])) pointSize], 20);
}

TEST_F(MenuItemTitles, ArchivesKeepTheTitleAlone) {
  for (bool keyed : {true, false}) {
    SCOPED_TRACE(keyed ? "keyed" : "sequential");
    NSMenuItem *made = item(@"Name", [NSFont systemFontOfSize:20]);
    NSData *data = keyed ? [NSKeyedArchiver archivedDataWithRootObject:made]
                         : [NSArchiver archivedDataWithRootObject:made];
    NSMenuItem *copy = keyed ? [NSKeyedUnarchiver unarchiveObjectWithData:data]
                             : [NSUnarchiver unarchiveObjectWithData:data];
    EXPECT_TRUE([[copy title] isEqual:@"Name"]);
    EXPECT_EQ([copy attributedTitle], nil);
    EXPECT_FALSE([[copy title] isKindOfClass:[[made title] class]]);
  }
}

TEST_F(MenuItemTitles, MenusGiveItRoom) {
  NSMenuItem *big = item(@"Wide and high", [NSFont boldSystemFontOfSize:40]);
  NSMenu *m = menu(@[ item(@"Wide and high", nil), big, item(@"Wide and high", nil) ]);
  NSMenuView *view = shownView(m);
  const NSSize text = [[big attributedTitle] size];
  EXPECT_GE(NSHeight([view rectOfItemAtIndex:1]), text.height);
  EXPECT_LT(NSHeight([view rectOfItemAtIndex:0]), text.height);
  EXPECT_GE(NSWidth([view frame]), text.width);
  // The rows lie one on the other.
  EXPECT_EQ(NSMinY([view rectOfItemAtIndex:0]), NSMaxY([view rectOfItemAtIndex:1]));
  EXPECT_EQ(NSMinY([view rectOfItemAtIndex:1]), NSMaxY([view rectOfItemAtIndex:2]));
  const NSRect row = [view rectOfItemAtIndex:1];
  EXPECT_EQ([view indexOfItemAtPoint:NSMakePoint(NSMidX(row), NSMinY(row) + 1)], 1);
  EXPECT_EQ([view indexOfItemAtPoint:NSMakePoint(NSMidX(row), NSMaxY(row) - 1)], 1);
  // And it gets smaller again.
  [big setTitle:@"W"];
  shownView(m);
  EXPECT_EQ(NSHeight([view rectOfItemAtIndex:1]), NSHeight([view rectOfItemAtIndex:0]));
  EXPECT_LT(NSWidth([view frame]), text.width);
}

TEST_F(MenuItemTitles, MenusShowFontsAndColours) {
  NSMenuItem *plain = item(@"HHHH", nil);
  NSMenuItem *bold = item(@"HHHH", [NSFont boldSystemFontOfSize:24]);
  NSMenuItem *red = [[[NSMenuItem alloc]
      initWithAttributedTitle:attributed(@"HHHH",
                                         @{NSForegroundColorAttributeName : [NSColor redColor]})
                       action:NULL
                keyEquivalent:@""] autorelease];
  NSMenu *m = menu(@[ plain, bold, red ]);
  [m setAutoenablesItems:NO];
  NSMenuView *view = shownView(m);
  const int dark = count(view, 0, kBlack);
  EXPECT_GT(dark, 0);
  EXPECT_GT(count(view, 1, kBlack), 2 * dark);
  EXPECT_EQ(count(view, 0, kRed), 0);
  EXPECT_GT(count(view, 2, kRed), 0);
  pictureOf(view).writePNG(outputPath("MenuItemTitles.png"));

  // Without a colour of its own a disabled title is grey, and a coloured one keeps its colour.
  [bold setEnabled:NO];
  [red setEnabled:NO];
  EXPECT_LT(count(view, 1, kBlack), dark);
  EXPECT_GT(count(view, 2, kRed), 0);
}

TEST_F(MenuItemTitles, AChangedFontIsShown) {
  NSMenuItem *made = item(@"HHHH", [NSFont systemFontOfSize:8]);
  NSMenu *m = menu(@[ made ]);
  [m setAutoenablesItems:NO];
  const int before = count(shownView(m), 0, kBlack);
  [made setFont:[NSFont boldSystemFontOfSize:30]];
  EXPECT_GT(count(shownView(m), 0, kBlack), 2 * before);
}

TEST_F(MenuItemTitles, PopUpButtonsShowIt) {
  NSWindow *window = makeWindow(NSMakeSize(300, 100));
  NSPopUpButton *button = [[[NSPopUpButton alloc] initWithFrame:NSMakeRect(20, 30, 240, 50)
                                                      pullsDown:NO] autorelease];
  [[window contentView] addSubview:button];
  [[button menu] setAutoenablesItems:NO];
  [button addItem:item(@"HHHH", [NSFont systemFontOfSize:8])];
  [button addItem:item(@"HHHH", [NSFont boldSystemFontOfSize:28])];
  const NSRect text = NSMakeRect(4, 4, 180, 42);
  const int small = pictureOf(button).count(text, kBlack, 60);
  EXPECT_GT(small, 0);
  [button selectItemAtIndex:1];
  const Picture picture = pictureOf(button);
  EXPECT_GT(picture.count(text, kBlack, 60), 2 * small);
  picture.writePNG(outputPath("PopUpTitle.png"));
  // The largest of its items has room.
  EXPECT_GE([[button cell] cellSize].width, [[[button selectedItem] attributedTitle] size].width);
}

TEST_F(MenuItemTitles, PlainItemsAreThePlatforms) {
  NSMenuItem *plain = [[[NSMenuItem alloc] initWithTitle:@"HHHH" action:NULL
                                           keyEquivalent:@""] autorelease];
  EXPECT_EQ([plain attributedTitle], nil);
  // A title without attributes looks like it.
  NSMenuItem *made = item(@"HHHH", nil);
  NSMenu *m = menu(@[ plain, made ]);
  [m setAutoenablesItems:NO];
  NSMenuView *view = shownView(m);
  const Picture first = pictureOf(view, [view rectOfItemAtIndex:0]);
  const Picture second = pictureOf(view, [view rectOfItemAtIndex:1]);
  ASSERT_EQ(first.height(), second.height());
  for (int y = 0; y < first.height(); ++y) {
    for (int x = 0; x < first.width(); ++x) ASSERT_EQ(first.at(x, y), second.at(x, y));
  }
}

}  // namespace
