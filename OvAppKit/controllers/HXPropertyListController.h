// HXPropertyListController: settings in a file, edited by controls.
//
// The controller stands between controls and a property list. It keeps an editable copy of
// the values, laid over default values; controls bind to keys below "values":
//
//   HXPropertyList *list = [HXPropertyList propertyListWithName:@"com.example.Paint"];
//   HXPropertyListController *settings =
//       [[HXPropertyListController alloc] initWithPropertyList:list
//                                                initialValues:@{@"ink" : @"black"}];
//   [inkField bind:@"value" toObject:settings withKeyPath:@"values.ink" options:nil];
//   [saveButton bind:@"enabled" toObject:settings withKeyPath:@"hasUnsavedChanges" options:nil];
//   [saveButton setTarget:settings];
//   [saveButton setAction:@selector(save:)];
//
//   stored values --> values <-- default values       values: stored ones over defaults
//        ^               |
//        +---- save: ----+                            only what differs from the defaults
//
// Unbind the controls before the controller goes.

#import <AppKit/AppKit.h>

@class HXPropertyList, HXPropertyListControllerValues;

/** Edits the values of a property list, with save and revert.

    Values are property lists: strings, numbers, dates, data, and arrays and dictionaries
    (with strings for keys) of them. Whatever the controller takes in or gives out is a deep
    copy, so that no edit reaches the list before `save:`, and none of the defaults ever.

    A dictionary that holds anything else cannot be copied. The log then gets a line with
    the reason and one that reads "[HXPropertyListController] Failed to create deep
    immutable copy." (or "mutable"), and the step goes on without that dictionary: such
    defaults are no defaults, such stored values are as none, or what the file holds. Nothing
    that the user typed is lost that way: `save:` leaves out only the entry that cannot be
    copied, and `setInitialValues:` keeps the very objects.

    Observers hear of "values" and "hasUnsavedChanges". The values object stays the same for
    the life of the controller; only its contents are replaced, so that bindings go on. Where
    the contents are replaced, an observer of a key below "values" can hear of it twice.

    For the main thread. */
@interface HXPropertyListController : NSController {
  HXPropertyList *_propertyList;
  NSDictionary *_serializedValues;
  HXPropertyListControllerValues *_currentValues;
  NSDictionary *_initialValues;
  BOOL _appliesImmediately;
}

/** Without property list and defaults, as is a controller that an interface file or an
    archive makes: none of the attributes below is archived. */
- (id)init;

/** Without defaults. */
- (id)initWithPropertyList:(HXPropertyList *)propertyList;

/** The designated initialiser. The property list is retained, the defaults are copied;
    either may be nil. `values` begins with the defaults, overridden key by key by what the
    list holds. */
- (id)initWithPropertyList:(HXPropertyList *)propertyList
             initialValues:(NSDictionary *)initialValues;

/** The store, retained; nil by default. Setting another one keeps the user's edits: what
    differs from the defaults is laid over the new list's values, which lie over the
    defaults, and is an unsaved change until `save:`. Note that this includes what came from
    the old store. Announces "values". */
- (void)setPropertyList:(HXPropertyList *)propertyList;
- (HXPropertyList *)propertyList;

/** The defaults, as a deep immutable copy; nil by default. Setting others keeps what differs
    from the old ones, and lets what equalled them follow. Without new defaults only what
    differed stays. The list is not read. Announces "values". */
- (void)setInitialValues:(NSDictionary *)initialValues;
- (NSDictionary *)initialValues;

/** YES by default. Kept for the host's own use: the controller never reads it, on purpose,
    and saves only when told to. */
- (void)setAppliesImmediately:(BOOL)appliesImmediately;
- (BOOL)appliesImmediately;

/** The values to edit: the same object for the life of the controller, which owns it. */
- (HXPropertyListControllerValues *)values;

/** Whether saving now would change what is stored: NO when the values that differ from the
    defaults are just those that the list last wrote or read. YES without a property list,
    or with one that was never written, even when there is nothing to save. */
- (BOOL)hasUnsavedChanges;

/** Writes the values that differ from the defaults, and no others: a stored list never
    holds a default value. The contents of the list's own `values` are replaced by deep
    copies, and the list is told `saveChanges`.

    What the list cannot write (a full disk, say) it reports in the log; the file stays as
    it was and the edits stay in `values`, unsaved. An entry that is not a property list is
    left out, and what is stored under its key is kept. When another program has changed the
    file meanwhile, these values win and the list says so in the log; `revert:` takes over
    the other program's. Announces "hasUnsavedChanges", before and after. Without a property
    list that is all. The sender is ignored, as in the other actions. */
- (void)save:(id)sender;

/** Throws the unsaved edits away: tells the list `discardChanges`, so that it reads what is
    stored now, and takes its values over the defaults again. Without a property list, the
    defaults remain, or nothing. Announces "hasUnsavedChanges" and "values". */
- (void)revert:(id)sender;

/** Sets every value to its default and removes those that have none. The list is not
    touched; this is an unsaved change until `save:`. Without defaults nothing changes.
    Announces "hasUnsavedChanges" and "values" in any case. */
- (void)revertToInitialValues:(id)sender;

/** Sent by `values` after each change; announces "hasUnsavedChanges". The keys are not
    used. */
- (void)propertyListControllerValues:(HXPropertyListControllerValues *)values
              didChangeValuesForKeys:(NSArray *)keys;

/** Sent when the list has been saved, by whomever: takes over what is stored now and
    announces "hasUnsavedChanges". Nothing is read from the notification, which may be
    nil. */
- (void)propertyListDidSaveValues:(NSNotification *)notification;

@end

/** For subclasses, which may override these. */
@interface HXPropertyListController (HXPropertyListControllerPrivate)

/** The values that differ from the defaults; without defaults the values object itself. */
- (NSDictionary *)_differencesFromInitialValue;

/** Deep copies: nothing in the first can be changed; in the second the dictionaries and
    arrays can, at every level, and the other values cannot. Fractions of a second and
    64-bit numbers are kept. Nil, with two lines in the log, if `dictionary` is not a
    dictionary of property lists. */
- (NSDictionary *)_deepImmutableCloneFromDictionary:(NSDictionary *)dictionary;
- (NSMutableDictionary *)_deepMutableCloneFromDictionary:(NSDictionary *)dictionary;

/** The names that controllers publish. The platform here asks for none of them. */

/** "values" and "hasUnappliedChanges". The latter is published on purpose although there is
    no such property: asking for its value raises as for any unknown key. */
- (NSArray *)_controllerKeys;
/** "values". */
- (NSArray *)_keyValueBindingAccessPoints;
/** "values" and "propertyList". */
- (NSArray *)_modelAndProxyKeys;

@end
