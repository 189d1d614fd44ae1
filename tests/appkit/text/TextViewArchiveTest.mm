// A text view that goes through an archive or an interface file.

#import "Coding.h"
#import "InterfaceFiles.h"
#import "TextViewTest.h"

using namespace ov::test;
using ::testing::ElementsAre;

// Owns an interface file, and is the view's client there.
@interface OvTestTextOwner : OvTestTextListener {
 @public
  OvTextView *view;
}
@end
@implementation OvTestTextOwner
- (void)setView:(OvTextView *)aView {
  view = aView;
}
@end

// A client that can be archived.
@interface OvTestArchivedClient : OvTestTextListener <NSCoding>
@end
@implementation OvTestArchivedClient
- (void)encodeWithCoder:(NSCoder *)coder {
  (void)coder;
}
- (id)initWithCoder:(NSCoder *)coder {
  (void)coder;
  return [self init];
}
@end

namespace {

class TextViewInterface : public TextViewTest {
 protected:
  OvTextView *plainView() {
    return [[[OvTextView alloc] initWithFrame:NSMakeRect(10, 20, 300, 200)] autorelease];
  }
  // The view can be typed in, and tells its client.
  void expectWorks(OvTextView *copy) {
    window = showWindow(NSMakeSize(400, 300));
    [[window contentView] addSubview:copy];
    [copy setDelegate:listener];
    [copy setString:@""];
    [[copy textValidator] setMaxLength:2];
    ASSERT_TRUE([window makeFirstResponder:copy]);
    typeText(@"abc");
    EXPECT_EQ(text([copy string]), "ab");
    EXPECT_THAT(heard(), ElementsAre("BecomeFirstResponder", "DidBeginEditing", "DidChange",
                                     "DidChange", "DidChange"));
  }
};

class TextViewArchive : public TextViewInterface, public testing::WithParamInterface<Coding> {};

TEST_P(TextViewArchive, ComesBackWithAPlainValidatorAndNoClient) {
  OvTextView *made = plainView();
  [made setDelegate:listener];
  [[made textValidator] setMaxLength:3];
  [made setTabToResignFirstResponder:YES];
  OvTextView *copy = roundTrip(made, GetParam());
  ASSERT_TRUE([copy isMemberOfClass:[OvTextView class]]);
  EXPECT_NE(copy, made);
  EXPECT_EQ([copy frame], NSMakeRect(10, 20, 300, 200));
  EXPECT_EQ([[copy textValidator] maxLength], 0u);
  EXPECT_NE([[copy textValidator] defaultTextColor], nil);
  EXPECT_TRUE([[[copy textValidator] altTextColor] isEqual:[NSColor redColor]]);
  EXPECT_FALSE([copy tabToResignFirstResponder]);
  EXPECT_EQ([copy delegate], nil);
  EXPECT_EQ([copy myDelegate], nil);
  expectWorks(copy);
  EXPECT_EQ([made myDelegate], listener);
}

TEST_P(TextViewArchive, ComesBackTwice) {
  OvTextView *made = plainView();
  [made setDelegate:listener];
  expectWorks(roundTrip(roundTrip(made, GetParam()), GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Codings, TextViewArchive,
                         testing::Values(Coding::keyed, Coding::sequential), codingName);

TEST_F(TextViewInterface, AKeyedArchiveKeepsTheText) {
  OvTextView *made = plainView();
  [made setDelegate:listener];
  [made setString:@"one\ntwo"];
  [made setTextColor:[NSColor blueColor]];
  OvTextView *copy = roundTrip(made, Coding::keyed);
  EXPECT_EQ(text([copy string]), "one\\ntwo");
  EXPECT_TRUE([[[copy textValidator] defaultTextColor] isEqual:[NSColor blueColor]]);
  EXPECT_EQ([copy lineCount], 2u);
}

// A text view as another program archived it, with a delegate of its own.
TEST_F(TextViewInterface, APlainTextViewsDelegateBecomesTheClient) {
  NSTextView *plain = [[[NSTextView alloc] initWithFrame:NSMakeRect(0, 0, 100, 100)] autorelease];
  OvTestArchivedClient *client = [[[OvTestArchivedClient alloc] init] autorelease];
  [plain setDelegate:(id)client];
  NSArray *both =
      roundTripAs(@[ client, plain ], [NSTextView class], [OvTextView class], Coding::keyed);
  [plain setDelegate:nil];
  OvTextView *copy = [both objectAtIndex:1];
  ASSERT_TRUE([copy isMemberOfClass:[OvTextView class]]);
  EXPECT_EQ([copy myDelegate], [both objectAtIndex:0]);
  EXPECT_EQ([copy delegate], copy);
  [copy didChangeText];
  EXPECT_THAT(((OvTestArchivedClient *)[both objectAtIndex:0])->heard,
              testing::Contains("DidChange"));
  [copy setDelegate:nil];
}

TEST_F(TextViewInterface, AnXMLFileMakesAndConnectsOne) {
  NSString *objects =
      @"<textView id=\"v1\" customClass=\"OvTextView\" editable=\"YES\">"
      @"<rect key=\"frame\" x=\"0.0\" y=\"0.0\" width=\"300\" height=\"200\"/>"
      @"<connections><outlet property=\"delegate\" destination=\"-2\" id=\"o3\"/></connections>"
      @"</textView>";
  OvTestTextOwner *owner = [[[OvTestTextOwner alloc] init] autorelease];
  ASSERT_TRUE(loadXib(owner, @{@"view" : @"v1"}, objects));
  ASSERT_TRUE([owner->view isMemberOfClass:[OvTextView class]]);
  EXPECT_EQ([owner->view myDelegate], owner);
  EXPECT_EQ([owner->view delegate], owner -> view);
  EXPECT_NE([owner->view textValidator], nil);
  OvTextView *loaded = owner->view;
  [loaded setDelegate:nil];
  expectWorks(loaded);
}

TEST_F(TextViewInterface, AnObjectArchiveFileMakesAndConnectsOne) {
  OvTextView *made = plainView();
  GormFile file;
  file.add(@"Text", made);
  file.outlet(@"NSOwner", @"view", @"Text");
  file.outlet(@"Text", @"delegate", @"NSOwner");
  OvTestTextOwner *owner = [[[OvTestTextOwner alloc] init] autorelease];
  ASSERT_TRUE(file.load(owner));
  ASSERT_TRUE([owner->view isMemberOfClass:[OvTextView class]]);
  EXPECT_NE(owner->view, made);
  EXPECT_EQ([owner->view myDelegate], owner);
  OvTextView *loaded = owner->view;
  [loaded setDelegate:nil];
  expectWorks(loaded);
}

}  // namespace
