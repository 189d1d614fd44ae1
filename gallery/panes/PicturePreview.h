// What the inspector inspects: a picture on a sheet, with its name and its label's colour below.
#import <AppKit/AppKit.h>

@interface PicturePreview : NSView {
  NSString *_name;
  NSColor *_labelColor;
}
- (id)initWithName:(NSString *)name labelColor:(NSColor *)color;
- (void)setLabelColor:(NSColor *)color;
@end
