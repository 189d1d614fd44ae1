// The states of a picture set, held still side by side, each with its name below.
#import <AppKit/AppKit.h>

@class HXImageControlImageContainer;

@interface StateBoard : NSView {
  HXImageControlImageContainer *_artwork;
}
+ (CGFloat)height;
- (void)setArtwork:(HXImageControlImageContainer *)artwork;
@end
