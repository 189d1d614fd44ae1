// Split views that go through an archive or an interface file.

#import "SplitTest.h"

#import "Coding.h"
#import "InterfaceFiles.h"

using namespace ov::test;
using testing::ElementsAre;

// A delegate that can be archived with its view.
@interface OvTestArchivedDelegate : NSObject <NSCoding>
@end

@implementation OvTestArchivedDelegate
- (void)encodeWithCoder:(NSCoder *)coder {
  (void)coder;
}
- (id)initWithCoder:(NSCoder *)coder {
  (void)coder;
  return [self init];
}
- (void)splitViewDidCollapseSubview:(NSNotification *)notification {
  (void)notification;
  journal().push_back("archived delegate");
}
@end

@interface OvTestSplitNibOwner : NSObject {
 @public
  OvSplitView *split;
}
@end

@implementation OvTestSplitNibOwner
- (void)setSplit:(OvSplitView *)aView {
  split = aView;
}
@end

namespace {

NSData *archive(id object, Coding coding) {
  return coding == Coding::keyed ? [NSKeyedArchiver archivedDataWithRootObject:object]
                                 : [NSArchiver archivedDataWithRootObject:object];
}
id unarchive(NSData *data, Coding coding) {
  return coding == Coding::keyed ? [NSKeyedUnarchiver unarchiveObjectWithData:data]
                                 : [NSUnarchiver unarchiveObjectWithData:data];
}

class SplitArchive : public SplitTest, public testing::WithParamInterface<Coding> {};

INSTANTIATE_TEST_SUITE_P(Codings, SplitArchive, testing::Values(Coding::keyed, Coding::sequential),
                         codingName);

TEST_P(SplitArchive, KeepsOrientationAndPanes) {
  OvSplitView *split = makeSplit({98, 196});
  [[split retain] autorelease];
  [split removeFromSuperview];
  OvSplitView *read = unarchive(archive(split, GetParam()), GetParam());
  ASSERT_EQ([read class], [OvSplitView class]);
  EXPECT_TRUE([read isVertical]);
  EXPECT_EQ([read frame], [split frame]);
  EXPECT_EQ(spans(read), "0+98 104+196");
  EXPECT_EQ(currentCursor(read), [NSCursor resizeLeftRightCursor]);
  EXPECT_FALSE([read mouseLocked]);
  [read awakeFromNib];
  EXPECT_THAT(dividers(read), ElementsAre(NSMakeRect(98, 0, 6, 200)));
  EXPECT_EQ(spans(read), "0+98 104+196") << "nothing is laid out";
  [read setFrameSize:NSMakeSize(594, 100)];
  EXPECT_EQ(spans(read), "0+196 202+392");
  [read setSubviewAtIndex:1 isCollapsed:YES];
  EXPECT_EQ([pane(read, 1) frame].origin, NSMakePoint(kParked, kParked));
}

TEST_P(SplitArchive, DecodedAutosaveNameIsNotTakenOver) {
  OvSplitView *split = makeSplit({98, 196});
  [[split retain] autorelease];
  [split removeFromSuperview];
  ASSERT_TRUE([split setLayoutAutosaveName:@"SplitArchiveTest"]);
  NSData *data = archive(split, GetParam());
  [split setLayoutAutosaveName:nil];
  OvSplitView *read = unarchive(data, GetParam());
  EXPECT_EQ([read layoutAutosaveName], nil);
  EXPECT_EQ([read valueForKey:@"autosaveName"], nil);
  OvSplitView *other = makeSplit({147, 147});
  EXPECT_TRUE([other setLayoutAutosaveName:@"SplitArchiveTest"]) << "nobody has it";
  [other setLayoutAutosaveName:nil];
}

TEST_P(SplitArchive, HXSplitViewToo) {
  HXSplitView *split = [[[HXSplitView alloc] initWithFrame:NSMakeRect(1, 2, 300, 200)] autorelease];
  [split setVertical:YES];
  [split addSubview:[[[NSView alloc] initWithFrame:NSMakeRect(0, 0, 100, 200)] autorelease]];
  HXSplitView *read = unarchive(archive(split, GetParam()), GetParam());
  ASSERT_EQ([read class], [HXSplitView class]);
  EXPECT_TRUE([read isVertical]);
  EXPECT_FALSE([read isSubviewCollapsed:[[read subviews] objectAtIndex:0]]);
}

class SplitSequentialArchive : public SplitTest {};

// Only this kind of archive holds delegates.
TEST_F(SplitSequentialArchive, DelegateHearsWhatItHasMethodsFor) {
  OvSplitView *split = makeSplit({98, 196});
  [[split retain] autorelease];
  [split removeFromSuperview];
  OvTestArchivedDelegate *archived = [[[OvTestArchivedDelegate alloc] init] autorelease];
  [split setDelegate:archived];
  NSArray *read = [NSUnarchiver
      unarchiveObjectWithData:[NSArchiver archivedDataWithRootObject:@[ split, archived ]]];
  [split setDelegate:nil];
  OvSplitView *copy = [read objectAtIndex:0];
  EXPECT_EQ([copy delegate], [read objectAtIndex:1]);
  [copy setSubviewAtIndex:0 isCollapsed:YES];
  EXPECT_EQ(journal(), Lines{"archived delegate"});
  [copy setDelegate:nil];
}

TEST_F(SplitSequentialArchive, InterfaceFileConnectsIt) {
  OvSplitView *split = makeSplit({98, 196});
  [[split retain] autorelease];
  [split removeFromSuperview];
  GormFile file;
  file.add(@"Split", split);
  file.outlet(@"NSOwner", @"split", @"Split");
  OvTestSplitNibOwner *owner = [[[OvTestSplitNibOwner alloc] init] autorelease];
  ASSERT_TRUE(file.load(owner));
  ASSERT_NE(owner->split, nil);
  EXPECT_EQ(spans(owner->split), "0+98 104+196");
  EXPECT_THAT(dividers(owner->split), ElementsAre(NSMakeRect(98, 0, 6, 200)));
}

}  // namespace
