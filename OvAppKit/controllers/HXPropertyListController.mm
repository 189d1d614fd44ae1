#import <OvAppKit/HXPropertyListController.h>
#import <OvAppKit/HXPropertyListControllerValues.h>
#import <OvFoundation/OvFoundation.h>

#include "platform/NullInBindings.h"
#import "support/Retained.h"

namespace {

NSString *const kValues = @"values";
NSString *const kHasUnsavedChanges = @"hasUnsavedChanges";

// What a property list answers, if it is of use.
NSDictionary *dictionaryOrNil(id object) {
  return [object isKindOfClass:[NSDictionary class]] ? object : nil;
}

NSDictionary *deepCopy(id object, NSPropertyListMutabilityOptions option, NSString *complaint) {
  NSString *problem = nil;
  NSDictionary *copy = dictionaryOrNil(OvPropertyListDeepCopy(object, option, &problem));
  if (problem) {
    NSLog(@"%@", problem);
    [problem release];
  }
  if (!copy) NSLog(@"[HXPropertyListController] %@", complaint);
  return copy;
}

}  // namespace

@interface HXPropertyListController ()
- (NSMutableDictionary *)_storedValuesOverInitialValues;
- (NSDictionary *)_copyOfEntriesThatCanBeSaved:(NSDictionary *)values;
- (void)_takeOverSerializedValues;
- (void)_observePropertyList;
- (void)_willReplaceValues;
- (void)_didReplaceValues;
@end

@implementation HXPropertyListController

// A value without a default goes away when it is reverted.
+ (void)initialize {
  if (self == [HXPropertyListController class]) ov::showNothingForNull();
}

// MARK: Creating

- (id)init {
  return [self initWithPropertyList:nil initialValues:nil];
}

- (id)initWithPropertyList:(HXPropertyList *)propertyList {
  return [self initWithPropertyList:propertyList initialValues:nil];
}

- (id)initWithPropertyList:(HXPropertyList *)propertyList
             initialValues:(NSDictionary *)initialValues {
  self = [super init];
  if (!self) return nil;
  _propertyList = [propertyList retain];
  if (initialValues) {
    _initialValues = [[self _deepImmutableCloneFromDictionary:initialValues] retain];
  }
  _appliesImmediately = YES;
  _currentValues = [[HXPropertyListControllerValues alloc]
      initWithDictionary:[self _storedValuesOverInitialValues]
                delegate:self];
  [self _takeOverSerializedValues];
  [self _observePropertyList];
  return self;
}

- (id)initWithCoder:(NSCoder *)coder {
  self = [super initWithCoder:coder];
  if (!self) return nil;
  // Left out by the platform, whose controllers then never know that they are edited.
  if (!_editors) _editors = [[NSMutableArray alloc] init];
  _appliesImmediately = YES;
  _currentValues = [[HXPropertyListControllerValues alloc] initWithCapacity:0 delegate:self];
  return self;
}

- (void)dealloc {
  [[NSNotificationCenter defaultCenter] removeObserver:self];
  [_currentValues setDelegate:nil];
  [_propertyList release];
  [_initialValues release];
  [_currentValues release];
  [_serializedValues release];
  [super dealloc];
}

// MARK: Store and defaults

- (void)setPropertyList:(HXPropertyList *)propertyList {
  if (_propertyList == propertyList) return;
  [self willChangeValueForKey:kValues];
  NSDictionary *edits = [self _differencesFromInitialValue];
  if (_propertyList) {
    [[NSNotificationCenter defaultCenter] removeObserver:self
                                                    name:HXPropertyListDidSaveValuesNotification
                                                  object:_propertyList];
  }
  OvReplaceRetained(&_propertyList, propertyList);
  NSMutableDictionary *values = [self _storedValuesOverInitialValues];
  [values addEntriesFromDictionary:edits];
  // Before the values change, since that makes observers ask for unsaved changes.
  [self _takeOverSerializedValues];
  [self _observePropertyList];
  [_currentValues setDictionary:values];
  [self didChangeValueForKey:kValues];
}

- (HXPropertyList *)propertyList {
  return _propertyList;
}

- (void)setInitialValues:(NSDictionary *)initialValues {
  if (_initialValues == initialValues) return;
  [self willChangeValueForKey:kValues];
  NSDictionary *edits = [self _differencesFromInitialValue];
  NSDictionary *defaults =
      initialValues ? [self _deepImmutableCloneFromDictionary:initialValues] : nil;
  OvReplaceRetained(&_initialValues, defaults);
  if (_initialValues) {
    NSMutableDictionary *values = [self _deepMutableCloneFromDictionary:_initialValues];
    [values addEntriesFromDictionary:edits];
    [_currentValues setDictionary:values];
  } else {
    // An edit that cannot be copied is kept as it is rather than lost.
    NSDictionary *copy = [self _deepMutableCloneFromDictionary:edits];
    [_currentValues setDictionary:copy ? copy : edits];
  }
  [self didChangeValueForKey:kValues];
}

- (NSDictionary *)initialValues {
  return _initialValues;
}

- (void)setAppliesImmediately:(BOOL)appliesImmediately {
  if (_appliesImmediately != appliesImmediately) _appliesImmediately = appliesImmediately;
}

- (BOOL)appliesImmediately {
  return _appliesImmediately;
}

// MARK: Values

- (HXPropertyListControllerValues *)values {
  return _currentValues;
}

- (BOOL)hasUnsavedChanges {
  // On this platform an empty dictionary would equal nil.
  if (!_serializedValues) return YES;
  return ![[self _differencesFromInitialValue] isEqualToDictionary:_serializedValues];
}

- (void)propertyListControllerValues:(HXPropertyListControllerValues *)values
              didChangeValuesForKeys:(NSArray *)keys {
  (void)values, (void)keys;
  [self willChangeValueForKey:kHasUnsavedChanges];
  [self didChangeValueForKey:kHasUnsavedChanges];
}

// MARK: Actions

- (void)save:(id)sender {
  (void)sender;
  // Who hears of the save may drop the last reference.
  [[self retain] autorelease];
  [self willChangeValueForKey:kHasUnsavedChanges];
  if (_propertyList) {
    NSDictionary *edits = [self _differencesFromInitialValue];
    NSDictionary *copy = [self _deepMutableCloneFromDictionary:edits];
    if (!copy) copy = [self _copyOfEntriesThatCanBeSaved:edits];
    [[_propertyList values] setDictionary:copy];
    [_propertyList saveChanges];
  }
  [self didChangeValueForKey:kHasUnsavedChanges];
}

- (void)revert:(id)sender {
  (void)sender;
  [self _willReplaceValues];
  [_propertyList discardChanges];
  // Somebody else may have written the file.
  [self _takeOverSerializedValues];
  [_currentValues setDictionary:[self _storedValuesOverInitialValues]];
  [self _didReplaceValues];
}

- (void)revertToInitialValues:(id)sender {
  (void)sender;
  [self _willReplaceValues];
  if (_initialValues) {
    [_currentValues setDictionary:[self _deepMutableCloneFromDictionary:_initialValues]];
  }
  [self _didReplaceValues];
}

- (void)_willReplaceValues {
  [[self retain] autorelease];
  [self willChangeValueForKey:kHasUnsavedChanges];
  [self willChangeValueForKey:kValues];
}

- (void)_didReplaceValues {
  [self didChangeValueForKey:kValues];
  [self didChangeValueForKey:kHasUnsavedChanges];
}

// MARK: The property list

- (void)propertyListDidSaveValues:(NSNotification *)notification {
  (void)notification;
  [self willChangeValueForKey:kHasUnsavedChanges];
  [self _takeOverSerializedValues];
  [self didChangeValueForKey:kHasUnsavedChanges];
}

- (void)_observePropertyList {
  if (!_propertyList) return;
  [[NSNotificationCenter defaultCenter] addObserver:self
                                           selector:@selector(propertyListDidSaveValues:)
                                               name:HXPropertyListDidSaveValuesNotification
                                             object:_propertyList];
}

- (void)_takeOverSerializedValues {
  NSDictionary *serialized = dictionaryOrNil([_propertyList _serializedValues]);
  if (serialized) serialized = [self _deepImmutableCloneFromDictionary:serialized];
  OvReplaceRetained(&_serializedValues, serialized);
}

- (NSMutableDictionary *)_storedValuesOverInitialValues {
  NSMutableDictionary *values = [NSMutableDictionary dictionaryWithCapacity:32];
  if (_initialValues) {
    [values addEntriesFromDictionary:[self _deepMutableCloneFromDictionary:_initialValues]];
  }
  NSDictionary *stored = dictionaryOrNil([_propertyList values]);
  if (!stored) return values;
  NSDictionary *copy = [self _deepMutableCloneFromDictionary:stored];
  if (!copy) {
    // Without what is in the file the next save would remove it there.
    NSDictionary *serialized = dictionaryOrNil([_propertyList _serializedValues]);
    if (serialized) copy = [self _deepMutableCloneFromDictionary:serialized];
  }
  [values addEntriesFromDictionary:copy];
  return values;
}

// One entry that is no property list shall not cost the others, nor what is stored under
// its own key.
- (NSDictionary *)_copyOfEntriesThatCanBeSaved:(NSDictionary *)values {
  NSDictionary *stored =
      [dictionaryOrNil([_propertyList values]) differencesFromDictionary:_initialValues];
  NSMutableDictionary *copies = [NSMutableDictionary dictionary];
  for (id key in values) {
    if (![key isKindOfClass:[NSString class]]) continue;
    for (id value : {[values objectForKey:key], [stored objectForKey:key]}) {
      id copy = OvPropertyListDeepCopy(value, NSPropertyListMutableContainers, NULL);
      if (!copy) continue;
      [copies setObject:copy forKey:key];
      break;
    }
  }
  return copies;
}

// MARK: Copies and published names

- (NSDictionary *)_differencesFromInitialValue {
  return _initialValues ? [_currentValues differencesFromDictionary:_initialValues]
                        : _currentValues;
}

- (NSDictionary *)_deepImmutableCloneFromDictionary:(NSDictionary *)dictionary {
  return deepCopy(dictionary, NSPropertyListImmutable, @"Failed to create deep immutable copy.");
}

- (NSMutableDictionary *)_deepMutableCloneFromDictionary:(NSDictionary *)dictionary {
  return (NSMutableDictionary *)deepCopy(dictionary, NSPropertyListMutableContainers,
                                         @"Failed to create deep mutable copy.");
}

- (NSArray *)_controllerKeys {
  return @[ kValues, @"hasUnappliedChanges" ];
}

- (NSArray *)_keyValueBindingAccessPoints {
  return @[ kValues ];
}

- (NSArray *)_modelAndProxyKeys {
  return @[ kValues, @"propertyList" ];
}

@end
