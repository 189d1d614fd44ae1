// Lines of a name and a value that changes.
#import <AppKit/AppKit.h>

@interface GalleryValueList : NSView {
  NSArray *_names;
  NSArray *_values;
}
+ (CGFloat)heightForCount:(NSUInteger)count;
- (id)initWithNames:(NSArray *)names;
// As many strings as there are names.
- (void)setValues:(NSArray *)values;
@end
