#import <Foundation/Foundation.h>

@interface NSDictionary (OvDifferences)

/** The entries of the receiver whose key is missing from `other` or has a value
    there that is not equal. Keys that only `other` has are not reported. Against
    nil (or what is not a dictionary) that is every entry. The result is a new
    immutable dictionary; its keys and values are the receiver's own. */
- (NSDictionary *)differencesFromDictionary:(NSDictionary *)other;

@end
