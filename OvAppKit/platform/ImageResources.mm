#import "platform/ImageResources.h"

#import <GNUstepGUI/GSTheme.h>

namespace ov {

namespace {

void addNames(NSMutableSet *names, NSString *folder, bool withLanguages = true) {
  if (folder == nil) return;
  for (NSString *file in [[NSFileManager defaultManager] contentsOfDirectoryAtPath:folder
                                                                             error:NULL]) {
    [names addObject:file];
    [names addObject:[file stringByDeletingPathExtension]];
    if (withLanguages && [[file pathExtension] isEqualToString:@"lproj"]) {
      addNames(names, [folder stringByAppendingPathComponent:file], false);
    }
  }
}

// With and without extension, the names of all files that the platform takes into account.
NSSet *namesOfFiles(NSBundle *bundle) {
  NSMutableSet *names = [NSMutableSet set];
  addNames(names, [bundle bundlePath]);
  addNames(names, [bundle resourcePath]);

  NSString *themed =
      [[[[GSTheme theme] bundle] resourcePath] stringByAppendingPathComponent:@"ThemeImages"];
  addNames(names, themed);
  // What a theme puts in the place of a program's own pictures.
  if ([bundle bundleIdentifier]) {
    addNames(names, [themed stringByAppendingPathComponent:[bundle bundleIdentifier]]);
  }
  for (NSString *library in NSSearchPathForDirectoriesInDomains(NSLibraryDirectory,
                                                                NSAllDomainsMask, YES)) {
    addNames(names, [library stringByAppendingPathComponent:@"Images"]);
  }
  return names;
}

// The platform tells of each type that a name without a base has no file.
bool isResourceName(NSString *name) {
  NSString *base = [[name lastPathComponent] stringByDeletingPathExtension];
  return [base length] > 0 && ![base isEqualToString:@"/"];
}

}  // namespace

ImageResources::ImageResources(NSBundle *bundle, NSString *extension)
    : bundle_(bundle ?: [NSBundle mainBundle]), extension_(extension) {}

NSString *ImageResources::pathOf(NSString *name) {
  if (!isResourceName(name)) return nil;
  if (extension_) return [bundle_ pathForResource:name ofType:extension_];
  if (missedOne_ && !mayExist(name)) return nil;
  NSString *path = [bundle_ pathForImageResource:name];
  missedOne_ = missedOne_ || path == nil;
  return path;
}

bool ImageResources::mayExist(NSString *name) {
  // A bundle of another class may look anywhere.
  if ([bundle_ class] != [NSBundle class]) return true;
  if (names_.get() == nil) names_ = retain(namesOfFiles(bundle_));
  return [names_.get() containsObject:name];
}

}  // namespace ov
