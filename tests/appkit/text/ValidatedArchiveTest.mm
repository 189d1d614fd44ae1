// Validated controls from archives and interface files, and what their set-up does to them.

#import "Coding.h"
#import "InterfaceFiles.h"
#import "ValidatedControlTest.h"

using namespace ov::test;
using testing::Contains;

// Owns an interface file, and is the control's delegate and target there.
@interface OvTestFieldNibOwner : NSObject {
 @public
  id control;
  int changes;
  int actions;
}
@end

@implementation OvTestFieldNibOwner
- (void)setControl:(id)aControl {
  control = aControl;
}
- (void)textFieldDidChange:(NSNotification *)notification {
  (void)notification;
  changes++;
}
- (void)comboBoxDidChange:(NSNotification *)notification {
  (void)notification;
  changes++;
}
- (void)act:(id)sender {
  (void)sender;
  actions++;
}
@end

namespace {

template <typename Kind>
class ValidatedArchive : public ValidatedControlTest<Kind> {
 protected:
  using Control = typename Kind::Control;

  static std::vector<Control *> roundTrips(Control *made) {
    return {roundTrip(made, Coding::keyed), roundTrip(made, Coding::sequential)};
  }

  void postChange(Control *loaded) {
    [[NSNotificationCenter defaultCenter] postNotificationName:Kind::notifications()[4]
                                                        object:loaded];
  }
};
TYPED_TEST_SUITE(ValidatedArchive, ControlKinds, KindName);

TYPED_TEST(ValidatedArchive, TheValidatorIsMadeAnew) {
  OvTextValidator *validator = this->validate([OvNumberTextValidator class], 3);
  [validator setAltTextColor:[NSColor greenColor]];
  [this->control setStringValue:@"123"];
  [this->control setTextColor:[NSColor colorWithDeviceRed:0 green:0 blue:1 alpha:1]];
  for (auto *copy : this->roundTrips(this->control)) {
    ASSERT_TRUE([copy isMemberOfClass:this->controlClass()]);
    EXPECT_EQ(utf8([copy stringValue]), "123");
    OvTextValidator *its = [copy textValidator];
    EXPECT_TRUE([its isMemberOfClass:[OvTextValidator class]]);
    EXPECT_EQ([its maxLength], 0u);
    EXPECT_TRUE([[its altTextColor] isEqual:[NSColor redColor]]);
    EXPECT_TRUE([[its defaultTextColor] isEqual:[copy textColor]]);
    EXPECT_TRUE([copy isValid]);
  }
}

TYPED_TEST(ValidatedArchive, ADecodedControlIsTypedInto) {
  for (auto *copy : this->roundTrips(this->control)) {
    [copy setEditable:YES];
    [copy setSelectable:YES];
    [copy setFrame:NSMakeRect(20, 45, 160, 22)];
    [[this->window contentView] addSubview:copy];
    OvTextValidator *digits = [OvNumberTextValidator textValidator];
    [digits setMaxLength:2];
    [copy setTextValidator:digits];
    ASSERT_TRUE([this->window makeFirstResponder:copy]);
    type(this->window, @"1a23");
    EXPECT_EQ(utf8([[copy currentEditor] string]), "12");
    [this->window makeFirstResponder:this->other];
    [copy removeFromSuperview];
  }
}

TYPED_TEST(ValidatedArchive, AnXMLFileMakesAndConnectsOne) {
  NSString *objects = [NSString
      stringWithFormat:@"<customView id=\"v1\" customClass=\"%s\">"
                       @"<rect key=\"frame\" x=\"0.0\" y=\"0.0\" width=\"120\" height=\"22\"/>"
                       @"<connections><outlet property=\"delegate\" destination=\"-2\" id=\"o2\"/>"
                       @"</connections></customView>",
                       TypeParam::kPrefix];
  OvTestFieldNibOwner *owner = [[[OvTestFieldNibOwner alloc] init] autorelease];
  ASSERT_TRUE(loadXib(owner, @{@"control" : @"v1"}, objects));
  ASSERT_TRUE([owner->control isMemberOfClass:this->controlClass()]);
  EXPECT_EQ([owner->control delegate], owner);
  EXPECT_NE([owner->control textValidator], nil);
  this->postChange(owner->control);
  EXPECT_EQ(owner->changes, 1);
  [owner->control setDelegate:nil];
}

TYPED_TEST(ValidatedArchive, AnObjectArchiveFileMakesAndConnectsOne) {
  auto *made = this->newControl(NSMakeRect(0, 0, 120, 22));
  [made setStringValue:@"12"];
  GormFile file;
  file.add(@"Control", made);
  file.outlet(@"NSOwner", @"control", @"Control");
  file.outlet(@"Control", @"delegate", @"NSOwner");
  file.action(@"Control", @"act:", @"NSOwner");
  OvTestFieldNibOwner *owner = [[[OvTestFieldNibOwner alloc] init] autorelease];
  ASSERT_TRUE(file.load(owner));
  auto *loaded = static_cast<typename TypeParam::Control *>(owner->control);
  ASSERT_TRUE([loaded isMemberOfClass:this->controlClass()]);
  EXPECT_NE(loaded, made);
  EXPECT_EQ(utf8([loaded stringValue]), "12");
  EXPECT_EQ((id)[loaded delegate], owner) << "it survives waking";
  EXPECT_EQ([loaded target], owner);
  EXPECT_TRUE(sel_isEqual([loaded action], @selector(act:)));
  this->postChange(loaded);
  EXPECT_EQ(owner->changes, 1);
  [loaded setDelegate:nil];
}

class TextFieldSetUp : public LiveTest {
 protected:
  OvTextField *field = [[[OvTextField alloc] initWithFrame:NSMakeRect(0, 0, 100, 22)] autorelease];
};

TEST_F(TextFieldSetUp, TheNewCellIsBare) {
  ASSERT_TRUE([[field cell] isMemberOfClass:[OvTextFieldCell class]]);
  EXPECT_FALSE([field isEditable]);
  EXPECT_FALSE([field isSelectable]);
  EXPECT_FALSE([field isBezeled]);
  EXPECT_FALSE([field drawsBackground]);
}

TEST_F(TextFieldSetUp, WakingCarriesOverFiveThings) {
  NSMenu *menu = [[[NSMenu alloc] initWithTitle:@"m"] autorelease];
  [field setStringValue:@"title"];
  [field setMenu:menu];
  [[field cell] setMenu:menu];
  [[field cell] setControlSize:NSSmallControlSize];
  [field setTarget:menu];
  [field setAction:@selector(update)];
  [field setEditable:YES];
  [field setTag:7];
  [field setEmboss:YES];
  id old = [[[field cell] retain] autorelease];
  [field awakeFromNib];
  EXPECT_NE([field cell], old);
  EXPECT_TRUE([[field cell] isMemberOfClass:[OvTextFieldCell class]]);
  EXPECT_EQ(utf8([field stringValue]), "title");
  EXPECT_EQ([[field cell] menu], menu);
  EXPECT_EQ([[field cell] controlSize], NSSmallControlSize);
  EXPECT_EQ([field target], menu);
  EXPECT_TRUE(sel_isEqual([field action], @selector(update)));
  EXPECT_FALSE([field isEditable]) << "nothing else";
  EXPECT_FALSE([field isEmboss]);
}

TEST_F(TextFieldSetUp, AComboBoxKeepsItsCell) {
  OvComboBox *box = [[[OvComboBox alloc] initWithFrame:NSMakeRect(0, 0, 100, 22)] autorelease];
  EXPECT_TRUE([[box cell] isMemberOfClass:[NSComboBoxCell class]]);
  EXPECT_TRUE([box isEditable]);
  [box addItemWithObjectValue:@"one"];
  id cell = [box cell];
  [box awakeFromNib];
  EXPECT_EQ([box cell], cell);
  EXPECT_EQ([box numberOfItems], 1);
}

}  // namespace
