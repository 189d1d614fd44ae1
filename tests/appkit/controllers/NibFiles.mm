#import "NibFiles.h"

#import <GNUstepGUI/GSGormLoading.h>
#import <GNUstepGUI/GSNibLoading.h>

static int viewsAlive, viewDeaths, viewAwakenings, companionsAlive, companionDeaths;

@implementation NibView
+ (int)alive {
  return viewsAlive;
}
+ (int)deaths {
  return viewDeaths;
}
+ (int)awakenings {
  return viewAwakenings;
}
- (id)initWithFrame:(NSRect)frame {
  self = [super initWithFrame:frame];
  viewsAlive++;
  return self;
}
- (id)initWithCoder:(NSCoder *)coder {
  self = [super initWithCoder:coder];
  viewsAlive++;
  return self;
}
- (void)awakeFromNib {
  viewAwakenings++;
}
- (void)dealloc {
  viewsAlive--;
  viewDeaths++;
  [super dealloc];
}
@end

@implementation NibRaisingView
- (void)awakeFromNib {
  [NSException raise:NSGenericException format:@"This view does not want to wake up."];
}
@end

@implementation NibCompanion
+ (int)alive {
  return companionsAlive;
}
+ (int)deaths {
  return companionDeaths;
}
- (id)init {
  self = [super init];
  companionsAlive++;
  return self;
}
- (id)initWithCoder:(NSCoder *)coder {
  (void)coder;
  return [self init];
}
- (void)encodeWithCoder:(NSCoder *)coder {
  (void)coder;
}
- (void)dealloc {
  companionsAlive--;
  companionDeaths++;
  [super dealloc];
}
@end

namespace ov::test {

namespace {

NSView *makeView(const NibContents &contents) {
  NSView *view =
      [[NSClassFromString(contents.viewClass) alloc] initWithFrame:NSMakeRect(0, 0, 200, 100)];
  NSButton *button = [[NSButton alloc] initWithFrame:NSMakeRect(10, 10, 80, 24)];
  [button setTitle:@"Push"];
  [view addSubview:button];
  [button release];
  return [view autorelease];
}

NSNibOutletConnector *viewOutlet(id source, id destination) {
  NSNibOutletConnector *outlet = [[[NSNibOutletConnector alloc] init] autorelease];
  [outlet setSource:source];
  [outlet setDestination:destination];
  [outlet setLabel:@"view"];
  return outlet;
}

}  // namespace

NSString *nibFolder() {
  NSString *folder = [[NSBundle mainBundle] resourcePath];
  [[NSFileManager defaultManager] createDirectoryAtPath:folder
                            withIntermediateDirectories:YES
                                             attributes:nil
                                                  error:NULL];
  return folder;
}

void writeNibBytes(NSString *path, NSData *data) {
  path = [nibFolder() stringByAppendingPathComponent:path];
  [[NSFileManager defaultManager] createDirectoryAtPath:[path stringByDeletingLastPathComponent]
                            withIntermediateDirectories:YES
                                             attributes:nil
                                                  error:NULL];
  if (![data writeToFile:path atomically:NO]) {
    [NSException raise:NSGenericException format:@"Cannot write %@", path];
  }
}

void writeXib(NSString *name, const NibContents &contents) {
  NSString *outlet = contents.connected
                         ? @"<connections><outlet property=\"view\" destination=\"v1\" id=\"o1\"/>"
                           @"</connections>"
                         : @"";
  NSString *others = contents.standIns ? @"<customObject id=\"-1\" userLabel=\"First Responder\" "
                                         @"customClass=\"FirstResponder\"/><customObject id=\"-3\" "
                                         @"userLabel=\"Application\" customClass=\"NSObject\"/>"
                                       : @"";
  NSString *text = [NSString
      stringWithFormat:
          @"<document type=\"com.apple.InterfaceBuilder3.Cocoa.XIB\" version=\"3.0\" "
          @"targetRuntime=\"MacOSX.Cocoa\"><objects>"
          @"<customObject id=\"-2\" userLabel=\"File's Owner\" customClass=\"HXViewController\">%@"
          @"</customObject>%@"
          @"<customView id=\"v1\" customClass=\"%@\"><rect key=\"frame\" x=\"0\" y=\"0\" "
          @"width=\"200\" height=\"100\"/><subviews><button id=\"b1\"><rect key=\"frame\" x=\"10\" "
          @"y=\"10\" width=\"80\" height=\"24\"/><buttonCell key=\"cell\" type=\"push\" "
          @"title=\"Push\" id=\"c1\"/></button></subviews></customView>"
          @"<customObject id=\"k1\" customClass=\"NibCompanion\"/>"
          @"</objects></document>",
          outlet, others, contents.viewClass];
  writeNibBytes([name stringByAppendingPathExtension:@"xib"],
                [text dataUsingEncoding:NSUTF8StringEncoding]);
}

void writeGorm(NSString *name, const NibContents &contents) {
  GSNibContainer *container = [[[GSNibContainer alloc] init] autorelease];
  NSView *view = makeView(contents);
  NibCompanion *companion = [[[NibCompanion alloc] init] autorelease];
  [[container nameTable] setObject:view forKey:@"View"];
  [[container nameTable] setObject:companion forKey:@"Companion"];
  [[container topLevelObjects] addObject:view];
  [[container topLevelObjects] addObject:companion];
  if (contents.connected) {
    [[container connections] addObject:viewOutlet(@"NSOwner", @"View")];
  }
  NSString *folder = [name stringByAppendingPathExtension:@"gorm"];
  writeNibBytes([folder stringByAppendingPathComponent:@"objects.gorm"],
                [NSArchiver archivedDataWithRootObject:container]);
}

void writeNib(NSString *name, const NibContents &contents) {
  NSIBObjectData *container = [[[NSIBObjectData alloc] init] autorelease];
  NSCustomObject *owner = [[[NSCustomObject alloc] init] autorelease];
  [owner setClassName:@"HXViewController"];
  [container setRoot:owner];
  NSView *view = makeView(contents);
  NibCompanion *companion = [[[NibCompanion alloc] init] autorelease];
  int identifier = 0;
  for (id object in @[ view, companion ]) {
    NSMapInsert([container objects], object, owner);
    NSMapInsert([container oids], object, @(++identifier));
  }
  NSMapInsert([container oids], owner, @(-1));
  if (contents.connected) [[container connections] addObject:viewOutlet(owner, view)];
  NSMutableData *data = [NSMutableData data];
  NSKeyedArchiver *archiver =
      [[[NSKeyedArchiver alloc] initForWritingWithMutableData:data] autorelease];
  [archiver encodeObject:container forKey:@"IB.objectdata"];
  [archiver finishEncoding];
  NSString *folder = [name stringByAppendingPathExtension:@"nib"];
  writeNibBytes([folder stringByAppendingPathComponent:@"keyedobjects.nib"], data);
}

}  // namespace ov::test
