#import <Foundation/Foundation.h>

#import <OvFoundation/OvDefines.h>

/** The deepest nesting of dictionaries and arrays in a property list: 512. */
OV_EXPORT const NSUInteger OvPropertyListMaximumDepth;

/** The largest number of objects in a property list, those that it holds more than
    once counted each time: 4194304. */
OV_EXPORT const NSUInteger OvPropertyListMaximumCount;

/** A deep copy of a property list, the platform's own being absent.

    `option` says what can be changed in the copy: NSPropertyListImmutable nothing,
    NSPropertyListMutableContainers its dictionaries and arrays at every level,
    NSPropertyListMutableContainersAndLeaves its strings and data as well. Nothing
    in the copy can be changed through the original, nor the reverse.

    A property list is a string, number, date or data, or an array or dictionary
    (with strings for keys) of property lists. For anything else, for nesting beyond
    OvPropertyListMaximumDepth (as in a list that contains itself), and for more than
    OvPropertyListMaximumCount objects (as when one array is held again and again)
    the answer is nil.

    The copy is autoreleased. If `error` is not NULL, it receives nil or, when the
    answer is nil, a sentence that says why; that string belongs to the caller, who
    releases it. */
OV_EXPORT id OvPropertyListDeepCopy(id propertyList, NSPropertyListMutabilityOptions option,
                                    NSString **error);
