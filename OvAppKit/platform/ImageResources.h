// Finding the pictures of a set by their names. Many of the names have no picture, and such a one
// the platform looks for with each of 240 types in each folder where there may be one: seven
// milliseconds for a name, forty in a bundle of thousands of files. So once a name was missing, the
// folders are listed, and only names that are in the list are looked for. Removable once the
// platform is quick about it.

#pragma once

#import <AppKit/AppKit.h>

#include "support/Retained.h"

namespace ov {

// For a moment: what comes and goes in the bundle meanwhile may be missed.
class ImageResources {
 public:
  // The main bundle for nil. Without an extension, pictures of every type are found.
  ImageResources(NSBundle *bundle, NSString *extension);

  // Lists the folders before the first look already, for a name that is as likely to be missing.
  void listFirst() { missedOne_ = true; }

  // nil where there is none.
  NSString *pathOf(NSString *name);

 private:
  bool mayExist(NSString *name);

  NSBundle *bundle_;
  NSString *extension_;
  bool missedOne_ = false;
  Retained<NSSet *> names_;
};

}  // namespace ov
