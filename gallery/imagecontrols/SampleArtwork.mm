#import "imagecontrols/SampleArtwork.h"

static const CGFloat kCap = 8;

@implementation SampleArtwork

+ (SampleArtwork *)buttonWithIcon:(BOOL)icon accessory:(BOOL)accessory {
  SampleArtwork *artwork =
      [[[self alloc] initWithSeparatedImageResourceNamePrefix:@"GalleryButton"] autorelease];
  if (!icon) [artwork removeAllImagesForImageKey:HXImageControlImagePartIcon];
  if (!accessory) [artwork removeAllImagesForImageKey:HXImageControlImagePartAccessory];
  return artwork;
}

+ (SampleArtwork *)plate {
  return [[[self alloc] initWithStrechableImageResourceNamePrefix:@"GalleryPlate"
                                                          leftCap:kCap
                                                           topCap:kCap] autorelease];
}

+ (SampleArtwork *)strip {
  static const int32_t states[] = {
      HXImageControlImageVariationDefault, HXImageControlImageVariationHighlighted,
      HXImageControlImageVariationMousePushed, HXImageControlImageVariationMouseOver,
      HXImageControlImageVariationDisabled};
  return [[[self alloc] initWithTiledStrechableImageResourceName:@"GalleryStrip"
                                                         leftCap:kCap
                                                          topCap:kCap
                                                 imageVariations:states
                                                           count:5] autorelease];
}

- (HXImageControlImageVariation)drawnState {
  return _drawnState;
}

- (void)setDrawn:(std::function<void()>)drawn {
  _drawn = std::move(drawn);
}

- (void)drawImageInRect:(NSRect)rect
              isFlipped:(BOOL)flipped
         imageVariation:(HXImageControlImageVariation)state {
  [super drawImageInRect:rect isFlipped:flipped imageVariation:state];
  if (_drawnState == state) return;
  _drawnState = state;
  if (_drawn) _drawn();
}

@end
