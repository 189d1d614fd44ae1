// The usual view of a page: a panel that has its parts laid out whenever its size changes.
#import "shell/GalleryStyle.h"

#include <functional>

@interface GalleryStage : GalleryBox {
  std::function<void(NSSize)> _layOut;
}
// Autoreleased. The function must not be called any more once what it refers to is gone: a page
// gives its stage up in -dealloc with setLayout:nullptr.
+ (GalleryStage *)stageWithLayout:(std::function<void(NSSize size)>)layOut;
- (void)setLayout:(std::function<void(NSSize size)>)layOut;
@end
