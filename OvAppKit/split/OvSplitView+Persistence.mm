// Layouts as property lists, in the user defaults, and saved by themselves.

#import <OvAppKit/OvSplitView.h>

#import "split/LayoutSnapshot.h"
#import "split/OvSplitView+Private.h"
#include "split/StoredLayout.h"
#include "support/GeometryBridge.h"
#include "support/Retained.h"

// The names that live split views save under.
static NSMutableSet *autosaveNames;

// The object under a key of what should be a dictionary, if it is of the class.
static id valueOfClass(id dictionary, NSString *key, Class wanted) {
  if (![dictionary isKindOfClass:[NSDictionary class]]) return nil;
  id value = [dictionary objectForKey:key];
  return [value isKindOfClass:wanted] ? value : nil;
}

// A number; a property list in the platform's older text form holds numbers as strings.
static id numberIn(id dictionary, NSString *key) {
  id number = valueOfClass(dictionary, key, [NSNumber class]);
  return number != nil ? number : valueOfClass(dictionary, key, [NSString class]);
}

@implementation OvSplitView (OvSplitViewPersistence)

+ (void)initialize {
  if (autosaveNames == nil) autosaveNames = [[NSMutableSet alloc] init];
}

#pragma mark As a property list

- (ov::SavedLayout)_ovLayout {
  ov::SavedLayout layout;
  layout.vertical = [self isVertical];
  NSArray *panes = [self subviews];
  layout.panes.reserve([panes count]);
  for (NSView *pane in panes) {
    layout.panes.push_back({[pane frame], static_cast<bool>([self isSubviewCollapsed:pane])});
  }
  return layout;
}

- (NSMutableDictionary *)stringWithSavedLayout {
  return OvPropertyListOfLayout([self _ovLayout]);
}

- (void)setLayoutFromString:(id)layout {
  const auto kept = ov::retain(self);
  const auto keptLayout = ov::retain(layout);
  if ([numberIn(layout, OvLayoutVersionKey) intValue] == 1) {
    id vertical = numberIn(layout, OvLayoutIsVerticalKey);
    if (vertical != nil) [self setVertical:[vertical boolValue]];
    NSArray *entries = valueOfClass(layout, OvLayoutSubviewsKey, [NSArray class]);
    // Observers of a collapse may change the panes.
    for (NSUInteger i = 0; i < [entries count] && i < [[self subviews] count]; ++i) {
      [self _ovApplyEntry:[entries objectAtIndex:i] toSubview:[[self subviews] objectAtIndex:i]];
    }
  }
  [self resizeSubviewsWithOldSize:[self bounds].size];
}

- (void)_ovApplyEntry:(id)entry toSubview:(NSView *)pane {
  NSString *text = valueOfClass(entry, OvLayoutFrameKey, [NSString class]);
  // A rectangle is at most some hundred characters.
  if ([text length] > 0 && [text length] < 4096) {
    const char *characters = [text UTF8String];
    const auto frame = ov::rectFromText(characters != nullptr ? characters : "");
    if (frame) [pane setFrame:ov::toNS(*frame)];
  }
  id collapsed = numberIn(entry, OvLayoutCollapsedKey);
  if (collapsed != nil) [self setSubview:pane isCollapsed:[collapsed boolValue]];
}

#pragma mark In the user defaults

+ (NSString *)_userDefaultsKeyForName:(NSString *)name {
  return [@"OvSplitView layout " stringByAppendingString:name];
}

- (void)saveLayoutUsingName:(NSString *)name {
  if (name == nil) return;
  NSString *key = [OvSplitView _userDefaultsKeyForName:name];
  if (_state->dragSaves != nullptr && [name isEqual:_autosaveName]) {
    _state->dragSaves->set(key, [self _ovLayoutToStore].get());
  } else {
    [[NSUserDefaults standardUserDefaults] setObject:[self stringWithSavedLayout] forKey:key];
  }
}

- (ov::Retained<id>)_ovLayoutToStore {
  const SEL saved = @selector(stringWithSavedLayout);
  if ([self methodForSelector:saved] != [OvSplitView instanceMethodForSelector:saved]) {
    return ov::retain<id>([self stringWithSavedLayout]);  // a subclass has more to say
  }
  return ov::adopt<id>([[_OvLayoutSnapshot alloc] initWithLayout:[self _ovLayout]]);
}

- (BOOL)setLayoutUsingName:(NSString *)name {
  if (name == nil) return NO;
  id layout = [[NSUserDefaults standardUserDefaults]
      objectForKey:[OvSplitView _userDefaultsKeyForName:name]];
  if (layout == nil) return NO;
  [self setLayoutFromString:layout];
  return YES;
}

+ (void)removeLayoutUsingName:(NSString *)name {
  if (name == nil) return;
  [[NSUserDefaults standardUserDefaults]
      removeObjectForKey:[OvSplitView _userDefaultsKeyForName:name]];
}

#pragma mark By itself

- (BOOL)setLayoutAutosaveName:(NSString *)name {
  const auto newName = ov::adopt<NSString *>([name length] > 0 ? [name copy] : nil);
  if (newName.get() != nil && [autosaveNames containsObject:newName.get()]) return NO;
  if (_autosaveName != nil) {
    [autosaveNames removeObject:_autosaveName];
    [[NSNotificationCenter defaultCenter] removeObserver:self
                                                    name:NSSplitViewDidResizeSubviewsNotification
                                                  object:self];
  }
  OvReplaceRetained(&_autosaveName, newName.get());
  if (newName.get() != nil) {
    [self setLayoutUsingName:newName.get()];
    [autosaveNames addObject:newName.get()];
    [self _ovObserveOwnResizes];
  }
  return YES;
}

- (NSString *)layoutAutosaveName {
  return _autosaveName;
}

- (void)setAutosaveName:(NSString *)name {
  // An archive brings its name through here, too.
  (void)name;
}

- (void)_ovObserveOwnResizes {
  [[NSNotificationCenter defaultCenter] addObserver:self
                                           selector:@selector(_saveLayoutUsingAutosaveName:)
                                               name:NSSplitViewDidResizeSubviewsNotification
                                             object:self];
}

- (void)_saveLayoutUsingAutosaveName:(NSNotification *)notification {
  (void)notification;
  [self saveLayoutUsingName:[self layoutAutosaveName]];
}

@end
