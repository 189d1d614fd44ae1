#import "NibFiles.h"

#import "InterfaceFiles.h"

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
  GormFile file;
  file.add(@"View", makeView(contents));
  file.add(@"Companion", [[[NibCompanion alloc] init] autorelease]);
  if (contents.connected) file.outlet(@"NSOwner", @"view", @"View");
  NSString *folder = [name stringByAppendingPathExtension:@"gorm"];
  writeNibBytes([folder stringByAppendingPathComponent:@"objects.gorm"], file.data());
}

void writeNib(NSString *name, const NibContents &contents) {
  NSView *view = makeView(contents);
  NSString *folder = [name stringByAppendingPathExtension:@"nib"];
  writeNibBytes([folder stringByAppendingPathComponent:@"keyedobjects.nib"],
                nibData(@"HXViewController", contents.connected ? @{@"view" : view} : @{},
                        @[ view, [[[NibCompanion alloc] init] autorelease] ]));
}

}  // namespace ov::test
