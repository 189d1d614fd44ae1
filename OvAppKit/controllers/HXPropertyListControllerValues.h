#import <Foundation/Foundation.h>

/** A mutable dictionary that reports every change of its keys.

    HXPropertyListController hands one out as its `values`; a host reads and writes it as
    any dictionary:

      [[controller values] setObject:@"red" forKey:@"ink"];

    Each method below that writes changes the entries and then tells the delegate, once,
    with `propertyListControllerValues:didChangeValuesForKeys:` if it has that method. What
    the dictionary inherits (`setValue:forKey:`, subscripts, fast enumeration) comes down to
    these methods. The change is also announced to the key-value observers of each reported
    key that is a string, once per key, so that a control that is bound to a key follows a
    change made in code; that, too, goes for every method that writes.

    Bad input changes nothing, tells nobody, and leaves a line in the log that begins with
    "[HXPropertyListControllerValues]": a nil key, a nil value, or something that is not a
    dictionary (an array) where one is expected. Nil instead of a dictionary stands for an
    empty one.

    A copy is a plain dictionary, and so is what comes out of an archive. For the main
    thread. */
@interface HXPropertyListControllerValues : NSMutableDictionary {
  id _delegate;
  NSMutableDictionary *_dictionary;
}

/** An empty dictionary with room for `capacity` entries, a hint only. The delegate is not
    retained; it clears itself before it goes (see `setDelegate:`). A designated
    initialiser. */
- (id)initWithCapacity:(NSUInteger)capacity delegate:(id)delegate;

/** A dictionary with the entries of `dictionary`, which may be nil: the same values, not
    copies of them. Nothing is reported. The delegate is not retained. A designated
    initialiser; the inherited ones make a dictionary without a delegate. */
- (id)initWithDictionary:(NSDictionary *)dictionary delegate:(id)delegate;

/** Who is told of changes; not retained. The controller sets it to nil before it goes, so
    that a host may keep the dictionary longer. */
- (void)setDelegate:(id)delegate;
- (id)delegate;

/** Reports the key. */
- (void)setObject:(id)object forKey:(id)key;

/** Reports the key, also when it was absent. */
- (void)removeObjectForKey:(id)key;

/** Reports all keys of the added dictionary. */
- (void)addEntriesFromDictionary:(NSDictionary *)dictionary;

/** Reports the array as it was passed in: absent keys and repeated ones included. */
- (void)removeObjectsForKeys:(NSArray *)keys;

/** Reports the keys that were held just before. */
- (void)removeAllObjects;

/** Replaces all entries. Reports the keys held before and those of the new dictionary,
    each once, in no particular order. */
- (void)setDictionary:(NSDictionary *)dictionary;

@end

/** What a delegate may have. */
@interface NSObject (HXPropertyListControllerValuesDelegate)

/** The values of `keys` have been changed, or may have been. */
- (void)propertyListControllerValues:(HXPropertyListControllerValues *)values
              didChangeValuesForKeys:(NSArray *)keys;

@end
