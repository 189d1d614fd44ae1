// Interface files in the platform's formats, made by a test and loaded from the run's private
// folder.

#pragma once

#import <AppKit/AppKit.h>

@class GSNibContainer;

namespace ov::test {

// Writes a file of a format, "gorm", "nib" or "xib", and answers whether it could be loaded. The
// objects on top in it live until the test's pool goes.
bool loadInterface(NSString *format, NSData *data, id owner);

// The same with objects in XML. The owner's outlets, by name, lead to those with the identifiers;
// as a destination, the owner is "-2".
bool loadXib(id owner, NSDictionary *outlets, NSString *objects);

// An archive of named objects and the connections between them; the owner is "NSOwner".
class GormFile {
 public:
  GormFile();
  ~GormFile();
  GormFile(const GormFile &) = delete;
  GormFile &operator=(const GormFile &) = delete;

  void add(NSString *name, id object);
  void outlet(NSString *source, NSString *label, NSString *destination);
  void action(NSString *source, NSString *selector, NSString *destination);

  NSData *data() const;
  bool load(id owner) const { return loadInterface(@"gorm", data(), owner); }

 private:
  GSNibContainer *container_;
};

// A keyed archive of objects, for an owner of that class with outlets to some of them.
NSData *nibData(NSString *ownerClass, NSDictionary *outlets, NSArray *objects);

}  // namespace ov::test
