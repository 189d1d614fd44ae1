#import "shell/GalleryStage.h"

@implementation GalleryStage

+ (GalleryStage *)stageWithLayout:(std::function<void(NSSize)>)layOut {
  GalleryStage *stage = static_cast<GalleryStage *>([self boxWithFill:GalleryPanelColor()
                                                               border:nil]);
  stage->_layOut = std::move(layOut);
  return stage;
}

- (void)setLayout:(std::function<void(NSSize)>)layOut {
  _layOut = std::move(layOut);
}

- (void)resizeSubviewsWithOldSize:(NSSize)oldSize {
  (void)oldSize;
  if (_layOut) _layOut([self bounds].size);
}

@end
