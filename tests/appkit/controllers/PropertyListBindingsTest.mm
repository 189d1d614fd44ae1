// Controls that are bound to the controller, in code and from interface files.

#include <algorithm>
#include <limits>

#import "InterfaceFiles.h"
#import "SettingsTest.h"

using namespace ov::test;

// Owns an interface file with a controller, a field for "ink", a check box for "grid" and a
// button that saves.
@interface OvTestSettingsOwner : NSObject {
 @public
  HXPropertyListController *settings;
  NSTextField *ink;
  NSButton *grid;
  NSButton *save;
}
@end

@implementation OvTestSettingsOwner
@end

namespace {

class PropertyListBindings : public SettingsTest {
 protected:
  void SetUp() override {
    SettingsTest::SetUp();
    store = storeHolding(@{@"ink" : @"red"});
    controller = controllerWith(store, @{@"ink" : @"black", @"grid" : @0, @"zoom" : @100});
    window = makeWindow(NSMakeSize(300, 200));
    field = addControl([NSTextField class], 150);
    check = addControl([NSButton class], 110);
    [check setButtonType:NSSwitchButton];
    slider = addControl([NSSlider class], 70);
    [slider setMinValue:0];
    [slider setMaxValue:400];
    button = addControl([NSButton class], 30);
    [button setTarget:controller];
    [button setAction:@selector(save:)];
  }

  void TearDown() override {
    for (NSControl *control in bound) [control unbind:@"value"];
    [button unbind:@"enabled"];
    SettingsTest::TearDown();
  }

  id addControl(Class made, CGFloat y) {
    NSControl *control = [[[made alloc] initWithFrame:NSMakeRect(10, y, 200, 24)] autorelease];
    [[window contentView] addSubview:control];
    return control;
  }

  void bindAll() {
    bind(field, @"ink");
    bind(check, @"grid");
    bind(slider, @"zoom");
    [button bind:@"enabled" toObject:controller withKeyPath:@"hasUnsavedChanges" options:nil];
  }

  void bind(NSControl *control, NSString *key) {
    [control bind:@"value"
           toObject:controller
        withKeyPath:[@"values." stringByAppendingString:key]
            options:nil];
    [bound addObject:control];
  }

  // What the four controls show: "red off 100 saved", with "unsaved" if the button is enabled.
  std::string shown() {
    return std::string([[field stringValue] UTF8String]) +
           ([check state] == NSOnState ? " on " : " off ") + std::to_string([slider intValue]) +
           ([button isEnabled] ? " unsaved" : " saved");
  }

  // Types over the field's text and leaves it.
  void enter(NSTextField *into, NSString *text) {
    [into selectText:nil];
    type([into window], text);
    type([into window], @"\r");
  }

  id value(NSString *key) { return [[controller values] objectForKey:key]; }

  HXPropertyList *store = nil;
  HXPropertyListController *controller = nil;
  NSWindow *window = nil;
  NSTextField *field = nil;
  NSButton *check = nil;
  NSSlider *slider = nil;
  NSButton *button = nil;
  NSMutableArray *bound = [NSMutableArray array];
};

TEST_F(PropertyListBindings, ControlsShowTheValues) {
  EXPECT_EQ(shown(), " off 0 unsaved");
  bindAll();
  EXPECT_EQ(shown(), "red off 100 saved");
}

TEST_F(PropertyListBindings, ControlsEditTheValues) {
  bindAll();
  show(window);
  enter(field, @"blue");
  EXPECT_TRUE(same(value(@"ink"), @"blue"));
  EXPECT_EQ(shown(), "blue off 100 unsaved");
  post(mouseEvent(NSLeftMouseDown, check, NSMakePoint(10, 12)));
  post(mouseEvent(NSLeftMouseUp, check, NSMakePoint(10, 12)));
  EXPECT_TRUE(pumpUntil([&] { return [value(@"grid") boolValue]; }));
  [slider setIntValue:250];
  [slider sendAction:[slider action] to:[slider target]];
  EXPECT_EQ([value(@"zoom") intValue], 250);
  EXPECT_EQ(shown(), "blue on 250 unsaved");
  EXPECT_TRUE(same(stored(), @{@"ink" : @"red"}));
}

// What controls make of a number is equal to the number.
TEST_F(PropertyListBindings, AControlThatIsSetBackLeavesNoChange) {
  bindAll();
  [check performClick:nil];
  [slider setIntValue:250];
  [slider sendAction:[slider action] to:[slider target]];
  EXPECT_EQ(shown(), "red on 250 unsaved");
  [controller save:nil];
  EXPECT_EQ(shown(), "red on 250 saved");
  [check performClick:nil];
  [slider setIntValue:100];
  [slider sendAction:[slider action] to:[slider target]];
  [controller save:nil];
  EXPECT_EQ(shown(), "red off 100 saved");
  EXPECT_TRUE(same(stored(), @{@"ink" : @"red"}));
}

TEST_F(PropertyListBindings, TheSaveButtonSavesAndIsDisabled) {
  bindAll();
  show(window);
  enter(field, @"blue");
  post(mouseEvent(NSLeftMouseDown, button, NSMakePoint(10, 12)));
  post(mouseEvent(NSLeftMouseUp, button, NSMakePoint(10, 12)));
  EXPECT_TRUE(pumpUntil([&] { return [stored() isEqual:@{@"ink" : @"blue"}]; }));
  EXPECT_TRUE(pumpUntil([&] { return shown() == "blue off 100 saved"; }));
  enter(field, @"red");
  EXPECT_EQ(shown(), "red off 100 unsaved");
  enter(field, @"blue");
  EXPECT_EQ(shown(), "blue off 100 saved") << "what is stored was typed again";
}

TEST_F(PropertyListBindings, AFailedSaveLeavesTheButtonEnabled) {
  bindAll();
  [[controller values] setObject:@(std::numeric_limits<double>::quiet_NaN()) forKey:@"zoom"];
  LogCapture log;
  [controller save:nil];
  EXPECT_TRUE([button isEnabled]);
}

TEST_F(PropertyListBindings, ControlsFollowChangesInCode) {
  bindAll();
  [[controller values] setObject:@"green" forKey:@"ink"];
  EXPECT_EQ(shown(), "green off 100 unsaved");
  [controller setValue:@1 forKeyPath:@"values.grid"];
  EXPECT_EQ(shown(), "green on 100 unsaved");
  [[controller values] addEntriesFromDictionary:@{@"ink" : @"pink", @"zoom" : @50}];
  EXPECT_EQ(shown(), "pink on 50 unsaved");
  [[controller values] removeObjectForKey:@"ink"];
  EXPECT_EQ(shown(), " on 50 unsaved");
  [[controller values] setDictionary:@{@"ink" : @"red"}];
  EXPECT_EQ(shown(), "red off 0 saved");
  [[controller values] removeAllObjects];
  EXPECT_EQ(shown(), " off 0 unsaved");
}

TEST_F(PropertyListBindings, ControlsFollowRevert) {
  bindAll();
  [[controller values] setObject:@"green" forKey:@"ink"];
  [controller revert:nil];
  EXPECT_EQ(shown(), "red off 100 saved");
  setContents(folder / "list.plist", "{ ink = grey; zoom = 7; }");
  [controller revert:nil];
  EXPECT_EQ(shown(), "grey off 7 saved");
}

TEST_F(PropertyListBindings, ControlsFollowRevertToInitialValues) {
  bindAll();
  [controller revertToInitialValues:nil];
  EXPECT_EQ(shown(), "black off 100 unsaved");
  [controller save:nil];
  EXPECT_EQ(shown(), "black off 100 saved");
}

TEST_F(PropertyListBindings, ControlsFollowAnotherStore) {
  bindAll();
  [controller setPropertyList:storeHolding(@{@"zoom" : @30}, "other.plist")];
  EXPECT_EQ(shown(), "red off 30 unsaved") << "red is carried over, and not stored there yet";
  [controller setPropertyList:storeHolding(@{@"ink" : @"red", @"zoom" : @30}, "third.plist")];
  EXPECT_EQ(shown(), "red off 30 saved");
  [controller setPropertyList:nil];
  EXPECT_EQ(shown(), "red off 30 unsaved");
}

TEST_F(PropertyListBindings, ControlsFollowOtherDefaults) {
  bindAll();
  [controller setInitialValues:@{@"ink" : @"white", @"zoom" : @200}];
  EXPECT_EQ(shown(), "red off 200 saved");
  [controller setInitialValues:@{@"ink" : @"red"}];
  EXPECT_EQ(shown(), "red off 0 unsaved");
}

TEST_F(PropertyListBindings, ControlsFollowASaveByOthers) {
  bindAll();
  [[controller values] setObject:@"green" forKey:@"ink"];
  [[store values] setObject:@"green" forKey:@"ink"];
  EXPECT_TRUE([store saveChanges]);
  EXPECT_EQ(shown(), "green off 100 saved");
}

// The platform would write "<null>" into the field, and from there into the file.
TEST_F(PropertyListBindings, AValueThatGoesAwayLeavesNothing) {
  bindAll();
  NSTextField *name = addControl([NSTextField class], 175);
  NSDictionary *options = @{NSNullPlaceholderBindingOption : @"none"};
  [name bind:@"value" toObject:controller withKeyPath:@"values.name" options:options];
  [bound addObject:name];
  EXPECT_TRUE(same([name stringValue], @"none"));
  show(window);
  enter(name, @"Ada");
  EXPECT_TRUE(same(value(@"name"), @"Ada"));
  [[controller values] setObject:@"green" forKey:@"ink"];
  [controller setInitialValues:nil];
  [controller revert:nil];
  EXPECT_TRUE(same([name stringValue], @"none"));
  EXPECT_EQ(shown(), "red off 0 saved");
  [[controller values] removeAllObjects];
  EXPECT_EQ(shown(), " off 0 unsaved");
}

// Bound to the values themselves instead of through the controller.
TEST_F(PropertyListBindings, TheValuesCanBeBoundTo) {
  [field bind:@"value" toObject:[controller values] withKeyPath:@"ink" options:nil];
  [bound addObject:field];
  EXPECT_TRUE(same([field stringValue], @"red"));
  [[controller values] setObject:@"green" forKey:@"ink"];
  EXPECT_TRUE(same([field stringValue], @"green"));
  [controller revert:nil];
  EXPECT_TRUE(same([field stringValue], @"red"));
  show(window);
  enter(field, @"blue");
  EXPECT_TRUE(same(value(@"ink"), @"blue"));
}

TEST_F(PropertyListBindings, TwoControlsOfOneKeyAgree) {
  bindAll();
  NSTextField *second = addControl([NSTextField class], 175);
  bind(second, @"ink");
  show(window);
  enter(second, @"blue");
  EXPECT_TRUE(same([field stringValue], @"blue"));
}

TEST_F(PropertyListBindings, ObserversHearOfAnEditOnce) {
  Lines lines;
  OvTestSettingsObserver *observer = [[[OvTestSettingsObserver alloc] init] autorelease];
  observer->lines = &lines;
  NSArray *paths = @[ @"values.ink", @"hasUnsavedChanges" ];
  for (NSString *path in paths) {
    [controller addObserver:observer forKeyPath:path options:0 context:NULL];
  }
  const Lines once = {"values.ink", "hasUnsavedChanges"};
  [[controller values] setObject:@"green" forKey:@"ink"];
  EXPECT_EQ(lines, once);
  lines.clear();
  [controller setValue:@"blue" forKeyPath:@"values.ink"];
  EXPECT_EQ(lines, once);
  lines.clear();
  [[controller values] removeObjectForKey:@"ink"];
  EXPECT_EQ(lines, once);
  lines.clear();
  // The save and what the store tells of it are one change.
  [controller save:nil];
  EXPECT_EQ(lines, Lines{"hasUnsavedChanges"});
  lines.clear();
  [controller revert:nil];
  EXPECT_EQ(std::count(lines.begin(), lines.end(), "hasUnsavedChanges"), 1);
  for (NSString *path in paths) [controller removeObserver:observer forKeyPath:path];
}

TEST_F(PropertyListBindings, AnUnboundControlIsLeftAlone) {
  bindAll();
  [field unbind:@"value"];
  [[controller values] setObject:@"green" forKey:@"ink"];
  EXPECT_TRUE(same([field stringValue], @"red"));
  show(window);
  enter(field, @"blue");
  EXPECT_TRUE(same(value(@"ink"), @"green"));
}

// MARK: Interface files

class PropertyListInterfaceFile : public PropertyListBindings {
 protected:
  void TearDown() override {
    [owner->ink unbind:@"value"];
    [owner->grid unbind:@"value"];
    [owner->save unbind:@"enabled"];
    PropertyListBindings::TearDown();
  }

  // The controller comes without store and defaults, which the owner then sets.
  void expectThatAllIsConnected() {
    ASSERT_TRUE([owner->settings isMemberOfClass:[HXPropertyListController class]]);
    EXPECT_EQ([[owner->settings values] count], 0u);
    EXPECT_TRUE([owner->save isEnabled]);
    [owner->settings setInitialValues:@{@"ink" : @"black", @"grid" : @1}];
    EXPECT_TRUE(same([owner->ink stringValue], @"black"));
    EXPECT_EQ([owner->grid state], NSOnState);
    [owner->settings setPropertyList:store];
    EXPECT_TRUE(same([owner->ink stringValue], @"red"));
    EXPECT_FALSE([owner->save isEnabled]);
    for (NSView *view in @[ owner->ink, owner->grid, owner->save ]) {
      [[window contentView] addSubview:view];
    }
    show(window);
    enter(owner->ink, @"blue");
    EXPECT_TRUE(same([[owner->settings values] objectForKey:@"ink"], @"blue"));
    EXPECT_TRUE([owner->save isEnabled]);
    [owner->save performClick:nil];
    EXPECT_TRUE(same(stored(), @{@"ink" : @"blue"}));
    EXPECT_FALSE([owner->save isEnabled]);
  }

  OvTestSettingsOwner *owner = [[[OvTestSettingsOwner alloc] init] autorelease];
};

TEST_F(PropertyListInterfaceFile, AnXMLFileBindsControls) {
  NSDictionary *outlets = @{@"settings" : @"c1", @"ink" : @"t1", @"grid" : @"b1", @"save" : @"b2"};
  NSString *objects =
      @"<customObject id=\"c1\" customClass=\"HXPropertyListController\"/>"
      @"<customView id=\"v1\"><rect key=\"frame\" x=\"0\" y=\"0\" width=\"300\" height=\"200\"/>"
      @"<subviews>"
      @"<textField id=\"t1\"><rect key=\"frame\" x=\"10\" y=\"10\" width=\"100\" height=\"22\"/>"
      @"<textFieldCell key=\"cell\" editable=\"YES\" selectable=\"YES\" id=\"k1\"/><connections>"
      @"<binding destination=\"c1\" name=\"value\" keyPath=\"values.ink\" id=\"n1\"/>"
      @"</connections></textField>"
      @"<button id=\"b1\"><rect key=\"frame\" x=\"10\" y=\"50\" width=\"100\" height=\"22\"/>"
      @"<buttonCell key=\"cell\" type=\"check\" title=\"Grid\" id=\"k2\"/><connections>"
      @"<binding destination=\"c1\" name=\"value\" keyPath=\"values.grid\" id=\"n2\"/>"
      @"</connections></button>"
      @"<button id=\"b2\"><rect key=\"frame\" x=\"10\" y=\"90\" width=\"100\" height=\"22\"/>"
      @"<buttonCell key=\"cell\" type=\"push\" title=\"Save\" id=\"k3\"/><connections>"
      @"<action selector=\"save:\" target=\"c1\" id=\"a1\"/>"
      @"<binding destination=\"c1\" name=\"enabled\" keyPath=\"hasUnsavedChanges\" id=\"n3\"/>"
      @"</connections></button>"
      @"</subviews></customView>";
  ASSERT_TRUE(loadXib(owner, outlets, objects));
  expectThatAllIsConnected();
}

TEST_F(PropertyListInterfaceFile, AnObjectArchiveFileBringsAController) {
  GormFile file;
  file.add(@"Settings", [[[HXPropertyListController alloc] init] autorelease]);
  file.add(@"Ink", addControl([NSTextField class], 0));
  id grid = addControl([NSButton class], 0);
  [grid setButtonType:NSSwitchButton];
  file.add(@"Grid", grid);
  file.add(@"Save", addControl([NSButton class], 0));
  for (NSString *name in @[ @"Settings", @"Ink", @"Grid", @"Save" ]) {
    file.outlet(@"NSOwner", [name lowercaseString], name);
  }
  file.action(@"Save", @"save:", @"Settings");
  ASSERT_TRUE(file.load(owner));
  // The platform cannot keep bindings in these files; their owner makes them.
  NSString *enabled = @"hasUnsavedChanges";
  [owner->ink bind:@"value" toObject:owner->settings withKeyPath:@"values.ink" options:nil];
  [owner->grid bind:@"value" toObject:owner->settings withKeyPath:@"values.grid" options:nil];
  [owner->save bind:@"enabled" toObject:owner->settings withKeyPath:enabled options:nil];
  expectThatAllIsConnected();
}

}  // namespace
