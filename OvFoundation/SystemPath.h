// A path as the system takes it.

#import <Foundation/Foundation.h>

#include <string>

// Empty for what cannot be a path: nil, an empty string, one that holds a NUL or half
// a character, or no string at all.
std::string SystemPath(NSString *path);
