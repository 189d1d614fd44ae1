// Interface files in the test program's own bundle, made by the tests: a view with a button
// and an object beside it, in each of the platform's formats.

#pragma once

#import <AppKit/AppKit.h>

#include <string>

// The view of the files: counts its lives.
@interface NibView : NSView
+ (int)alive;
+ (int)deaths;
+ (int)awakenings;
@end

// A view whose awakening raises.
@interface NibRaisingView : NibView
@end

// The object beside the view.
@interface NibCompanion : NSObject <NSCoding>
+ (int)alive;
+ (int)deaths;
@end

namespace ov::test {

struct NibContents {
  NSString *viewClass = @"NibView";
  bool connected = true;  // the outlet "view"
  bool standIns = true;   // for the first responder and the application; xib only
};

// The folder where the main bundle looks for interface files.
NSString *nibFolder();

void writeXib(NSString *name, const NibContents &contents = {});
void writeGorm(NSString *name, const NibContents &contents = {});
void writeNib(NSString *name, const NibContents &contents = {});
// A file of any contents, "name.xib" or "name.gorm/objects.gorm".
void writeNibBytes(NSString *path, NSData *data);

}  // namespace ov::test
