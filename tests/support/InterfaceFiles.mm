#import "InterfaceFiles.h"

#import <GNUstepGUI/GSGormLoading.h>
#import <GNUstepGUI/GSNibLoading.h>

#include "Supervisor.h"

namespace ov::test {

namespace {

NSNibConnector *connector(Class kind, id source, NSString *label, id destination) {
  NSNibConnector *made = [[[kind alloc] init] autorelease];
  [made setSource:source];
  [made setLabel:label];
  [made setDestination:destination];
  return made;
}

}  // namespace

bool loadInterface(NSString *format, NSData *data, id owner) {
  NSString *path = [[[NSString stringWithUTF8String:privateFolder().c_str()]
      stringByAppendingPathComponent:@"Interface"] stringByAppendingPathExtension:format];
  NSString *inside =
      [@{@"gorm" : @"objects.gorm", @"nib" : @"keyedobjects.nib"} objectForKey:format];
  if (inside) {
    [[NSFileManager defaultManager] createDirectoryAtPath:path
                              withIntermediateDirectories:YES
                                               attributes:nil
                                                    error:NULL];
  }
  NSString *file = inside ? [path stringByAppendingPathComponent:inside] : path;
  if (![data writeToFile:file atomically:NO]) return false;
  NSNib *nib = [[[NSNib alloc] initWithContentsOfURL:[NSURL fileURLWithPath:path]] autorelease];
  NSArray *objects = nil;
  return [nib instantiateNibWithOwner:owner topLevelObjects:&objects];
}

bool loadXib(id owner, NSDictionary *outlets, NSString *objects) {
  NSMutableString *connections = [NSMutableString string];
  for (NSString *name in outlets) {
    [connections appendFormat:@"<outlet property=\"%@\" destination=\"%@\" id=\"owner-%@\"/>", name,
                              [outlets objectForKey:name], name];
  }
  NSString *text = [NSString
      stringWithFormat:
          @"<?xml version=\"1.0\" encoding=\"UTF-8\"?>"
          @"<document type=\"com.apple.InterfaceBuilder3.Cocoa.XIB\" version=\"3.0\" "
          @"targetRuntime=\"MacOSX.Cocoa\"><objects>"
          @"<customObject id=\"-2\" userLabel=\"File's Owner\" customClass=\"%@\">"
          @"<connections>%@</connections></customObject>"
          @"<customObject id=\"-1\" userLabel=\"First Responder\" customClass=\"FirstResponder\"/>"
          @"<customObject id=\"-3\" userLabel=\"Application\" customClass=\"NSObject\"/>"
          @"%@</objects></document>",
          [owner class], connections, objects];
  return loadInterface(@"xib", [text dataUsingEncoding:NSUTF8StringEncoding], owner);
}

GormFile::GormFile() : container_([[GSNibContainer alloc] init]) {}

GormFile::~GormFile() { [container_ release]; }

void GormFile::add(NSString *name, id object) {
  [[container_ nameTable] setObject:object forKey:name];
  [[container_ topLevelObjects] addObject:object];
}

void GormFile::outlet(NSString *source, NSString *label, NSString *destination) {
  [[container_ connections]
      addObject:connector([NSNibOutletConnector class], source, label, destination)];
}

void GormFile::action(NSString *source, NSString *selector, NSString *destination) {
  [[container_ connections]
      addObject:connector([NSNibControlConnector class], source, selector, destination)];
}

NSData *GormFile::data() const { return [NSArchiver archivedDataWithRootObject:container_]; }

NSData *nibData(NSString *ownerClass, NSDictionary *outlets, NSArray *objects) {
  NSIBObjectData *container = [[[NSIBObjectData alloc] init] autorelease];
  NSCustomObject *owner = [[[NSCustomObject alloc] init] autorelease];
  [owner setClassName:ownerClass];
  [container setRoot:owner];
  int identifier = 0;
  for (id object in objects) {
    NSMapInsert([container objects], object, owner);
    NSMapInsert([container oids], object, @(++identifier));
  }
  NSMapInsert([container oids], owner, @(-1));
  for (NSString *name in outlets) {
    [[container connections] addObject:connector([NSNibOutletConnector class], owner, name,
                                                 [outlets objectForKey:name])];
  }
  NSMutableData *data = [NSMutableData data];
  NSKeyedArchiver *archiver =
      [[[NSKeyedArchiver alloc] initForWritingWithMutableData:data] autorelease];
  [archiver encodeObject:container forKey:@"IB.objectdata"];
  [archiver finishEncoding];
  return data;
}

}  // namespace ov::test
